#include "tests/docs/DocumentRun.h"
#include "tests/foundation/TestFolder.h"

#include <algorithm>
#include <cstdint>
#include <sstream>

// Every block of the documents is run here, or listed in blocks.txt with what runs it or why nothing does.

namespace Vexlor::Docs
{

namespace
{

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
    if (TextOf(GetParam()).find("vxpresets match holiday.mov") != std::string::npos)
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

/// A row of blocks.txt.
struct ListedBlock
{
    std::string document;
    std::string begin;
    std::string sum; ///< of the block, or "whole" where what runs it takes all of it as it stands
    std::string reason;
};

std::vector<ListedBlock> ListedBlocks()
{
    std::vector<ListedBlock> rows;
    std::istringstream lines(TextOf("tests/docs/blocks.txt"));
    for (std::string line; std::getline(lines, line);)
    {
        std::vector<std::string> cells;
        for (std::size_t at = 0, end = 0; end != std::string::npos; at = end + 3)
        {
            end = line.find(" | ", at);
            cells.push_back(line.substr(at, end == std::string::npos ? end : end - at));
        }
        if (!line.starts_with('#') && cells.size() == 4)
            rows.push_back({cells[0], cells[1], cells[2], cells[3]});
        else
            EXPECT_TRUE(line.starts_with('#')) << line;
    }
    return rows;
}

/// FNV-1a, of 32 bits.
std::string SumOf(const std::string& text)
{
    std::uint32_t sum = 2166136261U;
    for (const char letter : text)
        sum = (sum ^ static_cast<unsigned char>(letter)) * 16777619U;
    std::ostringstream digits;
    digits << std::hex << sum;
    return digits.str();
}

bool IsListed(const ListedBlock& row, const std::string& document, const DocumentBlock& block)
{
    return row.document == document && block.text.starts_with(row.begin);
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

INSTANTIATE_TEST_SUITE_P(All, Document, testing::ValuesIn(Documents()), NameOfDocument);

TEST(Documents, ListNoBlockThatIsNotThere)
{
    for (const auto& row : ListedBlocks())
    {
        const auto blocks = BlocksOf(row.document);
        EXPECT_TRUE(std::ranges::any_of(blocks, [&](const auto& block)
                                        { return IsListed(row, row.document, block); }))
            << row.document << " | " << row.begin;
        EXPECT_FALSE(row.reason.empty());
    }
}

// Who changes a block sees here that nothing else would have noticed, and looks at what the list tells of it.
TEST(Documents, HaveListedBlocksAsTheyWereWhenTheyWereListed)
{
    for (const auto& row : ListedBlocks())
        for (const auto& block : BlocksOf(row.document))
            EXPECT_TRUE(!IsListed(row, row.document, block) || row.sum == "whole" ||
                        row.sum == SumOf(block.text))
                << row.document << ':' << block.line << " has the sum " << SumOf(block.text);
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
