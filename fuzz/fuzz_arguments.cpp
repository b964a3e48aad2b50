#include "fuzz/ChoiceReader.h"
#include "fuzz/Require.h"

#include "apps/host/Failure.h"
#include "apps/vxpresets/ArtworkCommands.h"
#include "apps/vxpresets/CommandLine.h"
#include "apps/vxpresets/ConvertCommands.h"
#include "apps/vxpresets/EditCommands.h"
#include "apps/vxpresets/ImportCommand.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

// Any arguments are read or refused with a reason; any document is read or refused with one, and each of its
// presets is found by its path. The input: arguments, a line each, a zero byte, the document.

namespace Vexlor::Tool
{

// What reaches beyond the document, to media files and artwork files, is left out.
std::string MatchCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string MatchAllCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string SizeCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ConvertCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string FormatsCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string CodecsCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string CheckCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string EditAddCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string EditCloneCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string EditMoveCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string EditRemoveCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string EditRenameCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string EditSetCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ImportCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkListCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkCheckCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkExtractCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkShowCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkAddCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkReplaceCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkRemoveCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkCompactCommand(const Request&, const Catalogue&, const Style&) { return {}; }

namespace
{

constexpr std::size_t kMostLookedUp = 20;

/// A file for the documents, gone with the program.
class DocumentFile
{
public:
    DocumentFile()
    {
        std::ostringstream name;
        name << "vxpresets-fuzz-" << std::hex << std::random_device()() << ".json";
        m_path = std::filesystem::temp_directory_path() / name.str();
    }
    ~DocumentFile()
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    DocumentFile(const DocumentFile&) = delete;
    DocumentFile& operator=(const DocumentFile&) = delete;

    std::string Path() const { return m_path.string(); }
    void Write(const std::string& text) const { std::ofstream(m_path, std::ios::binary) << text; }

private:
    std::filesystem::path m_path;
};

CommandLine ReadArguments(const std::string& lines)
{
    std::vector<std::string> arguments{"vxpresets"};
    std::istringstream stream(lines);
    for (std::string line; std::getline(stream, line);)
        arguments.push_back(line);
    std::vector<const char*> pointers;
    for (const auto& argument : arguments)
        pointers.push_back(argument.c_str());
    return ReadCommandLine(static_cast<int>(pointers.size()), pointers.data());
}

void CheckPaths(const Catalogue& catalogue)
{
    for (std::size_t i = 0; i < std::min(kMostLookedUp, catalogue.entries.size()); ++i)
    {
        const auto& entry = catalogue.entries[i];
        const auto same = std::ranges::count(catalogue.entries, entry.path, &CatalogueEntry::path);
        try
        {
            Require(&FindPreset(catalogue, entry.path) == &entry && same == 1);
        }
        catch (const Failure& failure)
        {
            Require(same > 1 && *failure.what() != '\0');
        }
    }
}

void Run(const std::string& arguments, const std::string& document)
{
    auto line = ReadArguments(arguments);
    Require(line.text.empty() == (line.request.command != nullptr));
    if (!line.request.command || !line.request.needsCatalogue)
        return;
    static const DocumentFile s_file;
    s_file.Write(document);
    line.request.document = s_file.Path();
    const auto catalogue = LoadCatalogue(line.request.document);
    Require(!catalogue.entries.empty());
    CheckPaths(catalogue);
    line.request.command(line.request, catalogue, Style());
}

} // namespace

} // namespace Vexlor::Tool

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    using namespace Vexlor;
    ChoiceReader choices(bytes, size);
    const auto arguments = choices.TextUpTo(0);
    try
    {
        Tool::Run(arguments, choices.Rest());
    }
    catch (const std::runtime_error& refusal)
    {
        const bool isTold = dynamic_cast<const Tool::Failure*>(&refusal) != nullptr ||
                            dynamic_cast<const Tool::WrongUsage*>(&refusal) != nullptr ||
                            dynamic_cast<const Tool::BadAnswer*>(&refusal) != nullptr;
        Require(isTold && *refusal.what() != '\0');
    }
    return 0;
}
