#include "tests/docs/DocumentRun.h"

#include "tests/foundation/TestFolder.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include <sys/wait.h>

namespace Vexlor::Docs
{

namespace fs = std::filesystem;

fs::path SourceFolder() { return VX_SOURCE_FOLDER; }

std::vector<std::string> Documents()
{
    std::vector<std::string> documents{"README.md", "CONTRIBUTING.md"};
    for (const auto& entry : fs::directory_iterator(SourceFolder() / "docs"))
        if (entry.path().extension() == ".md")
            documents.push_back("docs/" + entry.path().filename().string());
    std::ranges::sort(documents);
    return documents;
}

std::string TextOf(const std::string& document) { return ContentOf((SourceFolder() / document).string()); }

std::vector<DocumentBlock> BlocksOf(const std::string& document) { return ReadBlocks(TextOf(document)); }

std::string NameOfDocument(const testing::TestParamInfo<std::string>& test)
{
    auto name = fs::path(test.param).stem().string();
    std::erase(name, '-');
    return name;
}

Outcome RunLine(const std::string& command, const std::string& folder)
{
    const auto line =
        "cd '" + folder + "' && export PATH='" VX_TOOL_FOLDER "':\"$PATH\" XDG_RUNTIME_DIR=. VX_SOURCE='" +
        SourceFolder().string() + "' LC_ALL=C.UTF-8 && unset TERM && { " + command + "\n} 2>&1 </dev/null";
    Outcome outcome;
    std::FILE* pipe = ::popen(line.c_str(), "r");
    std::array<char, 4096> buffer{};
    for (std::size_t count = 1; pipe && count > 0;)
    {
        count = std::fread(buffer.data(), 1, buffer.size(), pipe);
        outcome.out.append(buffer.data(), count);
    }
    const int status = pipe ? ::pclose(pipe) : -1;
    outcome.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

} // namespace Vexlor::Docs
