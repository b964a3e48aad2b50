#include "tests/docs/DocumentBlocks.h"
#include "tests/foundation/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <set>
#include <sstream>

#include <sys/wait.h>

// Every block of the documents is run here, or listed in blocks.txt with what runs it or why nothing does.

namespace Vexlor::Docs
{

namespace
{

namespace fs = std::filesystem;

const fs::path kSource = VX_SOURCE_FOLDER;

std::vector<std::string> Documents()
{
    std::vector<std::string> documents{"README.md", "CONTRIBUTING.md"};
    for (const auto& entry : fs::directory_iterator(kSource / "docs"))
        if (entry.path().extension() == ".md")
            documents.push_back("docs/" + entry.path().filename().string());
    std::ranges::sort(documents);
    return documents;
}

std::vector<DocumentBlock> BlocksOf(const std::string& document)
{
    return ReadBlocks(ContentOf((kSource / document).string()));
}

struct Outcome
{
    int exitCode = -1;
    std::string out; ///< standard output and standard error
};

/// Runs a command line in a folder, with the tool on the path.
Outcome RunLine(const std::string& command, const std::string& folder)
{
    const auto line =
        "cd '" + folder + "' && export PATH='" VX_TOOL_FOLDER "':\"$PATH\" XDG_RUNTIME_DIR=. VX_SOURCE='" +
        kSource.string() + "' LC_ALL=C.UTF-8 && unset TERM && { " + command + "\n} 2>&1 </dev/null";
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

/// True when the text is the expected one, in which a line of three dots stands for any lines.
bool IsShown(const std::string& expected, const std::string& text)
{
    const std::string dots = "…\n";
    const auto at = expected.find(dots);
    if (at == std::string::npos)
        return text == expected;
    const auto tail = expected.substr(at + dots.size());
    return text.size() >= at + tail.size() && text.starts_with(expected.substr(0, at)) &&
           text.ends_with(tail);
}

void MakeClip(const std::string& folder)
{
    const auto made =
        RunLine("ffmpeg -v error -f lavfi -i testsrc2=size=1280x720:rate=30 -f lavfi -i sine -t 1 "
                "-c:v libx264 -pix_fmt yuv420p -c:a aac holiday.mov",
                folder);
    ASSERT_EQ("", made.out);
}

class Document : public testing::TestWithParam<std::string>
{
};

TEST_P(Document, DoesWhatItShows)
{
    const TestFolder folder;
    const auto path = folder.Path().string();
    if (ContentOf((kSource / GetParam()).string()).find("vxpresets match holiday.mov") != std::string::npos)
        MakeClip(path);
    for (const auto& block : BlocksOf(GetParam()))
    {
        for (const auto& command : block.hidden)
            ASSERT_EQ(0, RunLine(command, path).exitCode) << command;
        for (const auto& step : block.steps)
        {
            const auto outcome = RunLine(step.command, path);
            if (block.kind == BlockKind::Console)
            {
                EXPECT_TRUE(IsShown(step.output, outcome.out))
                    << GetParam() << ':' << block.line << ": " << step.command << '\n'
                    << outcome.out.substr(0, 3000);
            }
            else
                EXPECT_EQ(0, outcome.exitCode) << step.command << '\n' << outcome.out.substr(0, 3000);
        }
    }
}

/// Rows of blocks.txt: the document, how the block begins, the reason.
std::vector<std::array<std::string, 3>> ListedBlocks()
{
    std::vector<std::array<std::string, 3>> rows;
    std::istringstream lines(ContentOf((kSource / "tests/docs/blocks.txt").string()));
    for (std::string line; std::getline(lines, line);)
    {
        const auto first = line.find(" | ");
        const auto last = line.rfind(" | ");
        if (!line.starts_with('#'))
            rows.push_back(
                {line.substr(0, first), line.substr(first + 3, last - first - 3), line.substr(last + 3)});
    }
    return rows;
}

bool IsListed(const std::array<std::string, 3>& row, const std::string& document, const DocumentBlock& block)
{
    return row[0] == document && block.text.starts_with(row[1]);
}

TEST_P(Document, HasNoBlockThatIsNeitherRunNorListed)
{
    const auto rows = ListedBlocks();
    for (const auto& block : BlocksOf(GetParam()))
    {
        if (block.kind == BlockKind::Other)
        {
            EXPECT_EQ(1, std::ranges::count_if(rows, [&](const auto& row)
                                               { return IsListed(row, GetParam(), block); }))
                << GetParam() << ':' << block.line << " begins with "
                << block.text.substr(0, block.text.find('\n'));
        }
    }
}

/// The words of the commands of the tool that are told inside the text, as far as they name commands.
std::set<std::string> InlineCommands(const std::string& document)
{
    std::set<std::string> commands;
    const std::string begin = "`vxpresets ";
    const auto text = ContentOf((kSource / document).string());
    for (auto at = text.find(begin); at != std::string::npos; at = text.find(begin, at + 1))
    {
        std::istringstream words(text.substr(at + begin.size(), text.find('`', at + 1) - at - begin.size()));
        std::string command;
        for (std::string word;
             words >> word &&
             std::ranges::all_of(word, [](char letter) { return letter >= 'a' && letter <= 'z'; });)
            command += (command.empty() ? "" : " ") + word;
        commands.insert(command);
    }
    return commands;
}

TEST_P(Document, TellsOfCommandsThatAreThere)
{
    for (const auto& command : InlineCommands(GetParam()))
        EXPECT_EQ(0, RunLine("vxpresets " + command + " --help", kSource.string()).exitCode) << command;
}

INSTANTIATE_TEST_SUITE_P(All, Document, testing::ValuesIn(Documents()),
                         [](const auto& test)
                         {
                             auto name = fs::path(test.param).stem().string();
                             std::erase(name, '-');
                             return name;
                         });

TEST(Documents, ListNoBlockThatIsNotThere)
{
    for (const auto& row : ListedBlocks())
    {
        const auto blocks = BlocksOf(row[0]);
        EXPECT_TRUE(
            std::ranges::any_of(blocks, [&](const auto& block) { return IsListed(row, row[0], block); }))
            << row[0] << " | " << row[1];
        EXPECT_FALSE(row[2].empty());
    }
}

TEST(DocumentBlocks, AreReadWithTheirCommandsAndOutputs)
{
    const auto blocks =
        ReadBlocks("text\n<!-- run: touch a -->\n```\n$ ls\na\n$ cat \\\n  a\n```\n\n```cpp\nint a;\n```\n"
                   "```\nvxpresets tree\n```\n");
    ASSERT_EQ(3U, blocks.size());
    EXPECT_EQ(std::vector<std::string>{"touch a"}, blocks[0].hidden);
    ASSERT_EQ(2U, blocks[0].steps.size());
    EXPECT_EQ("ls", blocks[0].steps[0].command);
    EXPECT_EQ("a\n", blocks[0].steps[0].output);
    EXPECT_EQ("cat \\\n  a", blocks[0].steps[1].command);
    EXPECT_EQ(BlockKind::Other, blocks[1].kind);
    EXPECT_EQ(10, blocks[1].line);
    EXPECT_EQ(BlockKind::Commands, blocks[2].kind);
}

TEST(DocumentBlocks, ThreeDotsStandForAnyLines)
{
    EXPECT_TRUE(IsShown("a\n…\nc\n", "a\nb\nb\nc\n"));
    EXPECT_FALSE(IsShown("a\n…\nc\n", "a\nb\nd\n"));
    EXPECT_FALSE(IsShown("a\n", "a\nb\n"));
}

} // namespace

} // namespace Vexlor::Docs
