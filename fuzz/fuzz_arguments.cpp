#include "fuzz/ChoiceReader.h"
#include "fuzz/Require.h"

#include "apps/artwork/ArtworkFile.h"
#include "apps/host/Failure.h"
#include "apps/vxpresets/ArtworkChoice.h"
#include "apps/vxpresets/ArtworkCommands.h"
#include "apps/vxpresets/CommandLine.h"
#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXLogSink.h"
#include "tests/foundation/TestFolder.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

// Any arguments are read or refused with a reason, and so is any document; each of its presets is found by
// its path. A command answers, in JSON where it is asked to, or tells why it does not; one that was refused
// has changed nothing, and none leaves a file behind that was not asked for. The input: arguments, a line
// each, a zero byte, the document.

namespace Vexlor::Tool
{

// What reaches beyond documents and media files is left out.
std::string ArtworkListCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkCheckCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkExtractCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkShowCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkAddCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkReplaceCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkRemoveCommand(const Request&, const Catalogue&, const Style&) { return {}; }
std::string ArtworkCompactCommand(const Request&, const Catalogue&, const Style&) { return {}; }
ArtworkFile OpenRequested(const ArtworkRequest&) { return {.name = "artwork", .storage = nullptr}; }

namespace
{

namespace fs = std::filesystem;

constexpr std::size_t kMostLookedUp = 20;

/// The only files that a command meets, whatever its arguments name.
class Files
{
public:
    explicit Files(const std::string& document)
    {
        WithContent(Document(), document);
        WithContent(Other(), R"({"name": "Presets", "childList": [{"name": "Video"}]})");
    }
    ~Files()
    {
        for (const auto& entry : fs::directory_iterator(Folder().Path()))
            fs::remove(entry.path());
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    std::string Document() const { return Folder() / "document"; }
    std::string Other() const { return Folder() / "other"; }
    std::string New() const { return Folder() / "new"; }
    std::ptrdiff_t Count() const { return Folder().Count(); }

    /// One of the corpus of fuzz_media: what reads media files has a fuzzer of its own.
    std::string Media(const std::string& name) const
    {
        const auto media = fs::path(VX_MEDIA_FOLDER) / fs::path(name).filename();
        std::error_code ignored;
        return fs::is_regular_file(media, ignored) ? media.string() : VX_MEDIA_FOLDER "/film.mov";
    }

private:
    static const TestFolder& Folder()
    {
        static const TestFolder s_folder;
        return s_folder;
    }
};

void Divert(Request& request, const Files& files)
{
    request.document = files.Document();
    request.convert.media = files.Media(request.convert.media);
    request.convert.output = files.New();
    request.convert.isDryRun = true; // nothing is encoded
    request.edit.document = files.Document();
    if (request.edit.source)
        request.edit.source = files.Document();
    request.import.file = files.Document();
    if (request.import.into)
        request.import.into = files.Other();
    if (request.import.output)
        request.import.output = files.New();
}

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

Catalogue CatalogueOf(const Request& request)
{
    if (!request.needsCatalogue)
        return {};
    auto catalogue = LoadCatalogue(request.document);
    Require(!catalogue.entries.empty());
    CheckPaths(catalogue);
    return catalogue;
}

void RequireAnswer(const Request& request, const std::string& answer)
{
    Require(!request.asJson || answer.empty() || ParseJson(answer));
}

/// The documents, which a command may have changed, and how many files there may be besides.
void CheckFiles(const Request& request, const Files& files)
{
    const bool keepsBackup = request.edit.keepsBackup || request.import.keepsBackup;
    Require(files.Count() <= 2 + (keepsBackup ? 1 : 0) + (request.import.output ? 1 : 0));
    Require(ParseJson(ContentOf(files.Other())) != nullptr);
}

void Run(const std::string& arguments, const std::string& document)
{
    auto line = ReadArguments(arguments);
    Require(line.text.empty() == (line.request.command != nullptr));
    if (!line.request.command)
        return;
    const Files files(document);
    Divert(line.request, files);
    try
    {
        RequireAnswer(line.request, line.request.command(line.request, CatalogueOf(line.request), Style()));
    }
    catch (const BadAnswer& answer)
    {
        RequireAnswer(line.request, answer.what());
    }
    catch (const std::runtime_error&)
    {
        Require(ContentOf(files.Document()) == document);
        CheckFiles(line.request, files);
        throw;
    }
    CheckFiles(line.request, files);
}

} // namespace

} // namespace Vexlor::Tool

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    using namespace Vexlor;
    static const auto s_log = SetLogSink([](IVXLogConfig::LogLevel, std::string_view) {});
    ChoiceReader choices(bytes, size);
    const auto arguments = choices.TextUpTo(0);
    try
    {
        Tool::Run(arguments, choices.Rest());
    }
    catch (const std::runtime_error& refusal)
    {
        const bool isTold = dynamic_cast<const Tool::Failure*>(&refusal) != nullptr ||
                            dynamic_cast<const Tool::WrongUsage*>(&refusal) != nullptr;
        Require(isTold && *refusal.what() != '\0');
    }
    return 0;
}
