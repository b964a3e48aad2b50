#include "tests/apps/ArtworkFiles.h"
#include "tests/apps/RunTool.h"
#include "tests/foundation/TestFolder.h"

#include "apps/artwork/DefaultArtwork.h"

#include <gmock/gmock.h>

#include <random>
#include <regex>

namespace Vexlor::Apps
{

namespace
{

const auto kOne = Group({{0, Stored(TinyPNG())}});
const auto kSize = static_cast<std::uint32_t>(kOne.size());

struct Damage
{
    std::string name;
    std::string bytes;
    int exitCode;
    std::string report; ///< without the file's name in front of each line
};

class ArtworkCheck : public testing::TestWithParam<Damage>
{
};

TEST_P(ArtworkCheck, Reports)
{
    const TestFolder folder;
    const auto file = WithContent(folder / "icons.artwork", GetParam().bytes);
    const auto run = RunTool({"artwork", "check", file});
    EXPECT_EQ(GetParam().exitCode, run.exitCode);
    EXPECT_EQ(GetParam().report, std::regex_replace(run.out, std::regex(file + ": "), ""));
    EXPECT_EQ("", run.err);
}

const std::vector<Damage> kDamages = {
    {"NothingWrong", FileOf({{1, kOne}, {2, kOne}}), 0, "2 groups, nothing wrong\n"},
    {"DeadSpace", File({{1, 51210, kSize}}, std::string(10, 'x') + kOne + "abc"), 0,
     "warning: 13 bytes are used by no group\n"},
    {"SameIdentifier", FileOf({{20000000, kOne}, {2, kOne}, {20000000, kOne}}), 1,
     "error: group #2, 20000000 (FormatFaceIDMP4): has the identifier of group #0, which is found in its "
     "place\n"},
    {"Overlap", File({{1, 51200, kSize}, {2, 51200, kSize}}, kOne), 1,
     "error: group #1, 2: overlaps group #0, 1\n"},
    {"InsideTheTable", File({{1, 51199, kSize}}, kOne.substr(1)), 1,
     "error: group #0, 1: lies at 51199, inside the table's 51200 bytes\n"
     "warning: 92 bytes are used by no group\n"
     "error: group #0, 1: is no group of pictures\n"},
    {"BeyondTheEnd", File({{1, 51200, 4294967295U}}, kOne), 1,
     "error: group #0, 1: its 4294967295 bytes at 51200 reach beyond the end of the file, 51293\n"
     "warning: 93 bytes are used by no group\n"},
    {"OffsetBeyond63Bits", File({{1, 0xffffffffffffffffU, 16}}, ""), 1,
     "error: group #0, 1: its 16 bytes at 18446744073709551615 reach beyond the end of the file, 51200\n"
     "error: group #0, 1: is no group of pictures\n"},
    {"CountThatLies", File({{1, 51200, kSize}}, kOne, 2000), 1,
     "error: the head counts 2000 groups, the table has room for 1599\n"},
    {"NegativeCount", File({}, "", -1), 1, "error: the head counts -1 groups, the table has room for 1599\n"},
    {"TableCutOff", FileOf({{1, kOne}, {2, kOne}}).substr(0, 50), 1,
     "error: the head counts 2 groups, the table has 1\n"},
    {"NoGroup", FileOf({{1, "IX"}}), 1, "error: group #0, 1: is no group of pictures\n"},
    {"NoPictures", FileOf({{1, Group({})}}), 0, "warning: group #0, 1: has no pictures\n"},
    {"PicturesMissing", FileOf({{1, Group({{0, Stored(TinyPNG())}}, 2147483647)}}), 1,
     "error: group #0, 1: counts 2147483647 pictures, 1 are whole\n"},
    {"PictureThatIsNone", FileOf({{1, Group({{3, Stored("no picture")}})}}), 1,
     "error: group #0, 1: picture 0-selected, format PNG, cannot be decoded\n"},
    {"PictureOfALaterFormat", FileOf({{1, Group({{3, Stored("no picture", 4711)}})}}), 0,
     "warning: group #0, 1: picture 0-selected, format 4711, cannot be decoded\n"},
    {"PictureNeverShown", FileOf({{1, Group({{34, Stored(TinyPNG())}})}}), 0,
     "warning: group #0, 1: picture key-34 is never shown\n"},
    {"PictureTwice", FileOf({{1, Group({{1, Stored(TinyPNG())}, {1, Stored(TinyPNG())}})}}), 0,
     "warning: group #0, 1: picture 0-disabled is there twice\n"},
};
INSTANTIATE_TEST_SUITE_P(Files, ArtworkCheck, testing::ValuesIn(kDamages),
                         [](const auto& test) { return test.param.name; });

TEST(ArtworkCheckJson, TellsSeverityAndPlace)
{
    const TestFolder folder;
    const auto file = WithContent(folder / "icons.artwork", FileOf({{10000000, Group({})}}));
    EXPECT_EQ(R"({
  "file": ")" + file +
                  R"(",
  "groups": 1,
  "findings": [
    {
      "severity": "warning",
      "position": 0,
      "faceID": 10000000,
      "name": "CategoryFaceIDCustomize",
      "message": "has no pictures"
    }
  ]
}
)",
              RunTool({"artwork", "check", "--json", file}).out);
}

struct NoArtwork
{
    const char* name;
    std::string bytes;
};

class ArtworkRefused : public testing::TestWithParam<NoArtwork>
{
};

TEST_P(ArtworkRefused, ByEveryCommand)
{
    const TestFolder folder;
    const auto file = WithContent(folder / "icons.artwork", GetParam().bytes);
    for (const std::vector<std::string>& words : {std::vector<std::string>{"artwork", "list", file},
                                                  {"artwork", "check", file},
                                                  {"artwork", "compact", file}})
    {
        const auto run = RunTool(words);
        EXPECT_EQ(1, run.exitCode);
        EXPECT_EQ(file + ": is no artwork file\n", run.err);
    }
    EXPECT_TRUE(Holds(file, GetParam().bytes));
}

const std::vector<NoArtwork> kNoArtworks = {
    {"OneByte", "Z"},
    {"Text", "a text that is longer than the magic of an artwork file"},
    {"MagicWithoutItsZero", "ZQAW2023CC1" + std::string(60000, '\0')},
    {"MagicCutOff", "ZQAW2023CC"},
};
INSTANTIATE_TEST_SUITE_P(Files, ArtworkRefused, testing::ValuesIn(kNoArtworks),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(ArtworkRefused, AMissingFileIsNamedWithTheReason)
{
    EXPECT_EQ("/nowhere/a.artwork: No such file or directory\n",
              RunTool({"artwork", "list", "/nowhere/a.artwork"}).err);
}

std::string Default()
{
    const auto bytes = Tool::DefaultArtwork();
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// Ends by itself, with an exit code that is documented and without a word from a sanitizer.
void ExpectOrderlyEnd(const std::string& file, const std::string& out)
{
    for (const std::vector<std::string>& words : {std::vector<std::string>{"artwork", "list", file},
                                                  {"artwork", "check", file},
                                                  {"artwork", "extract", file, "--to", out},
                                                  {"artwork", "compact", file}})
    {
        const auto run = RunTool(words);
        EXPECT_TRUE(run.exitCode == 0 || run.exitCode == 1) << words[1] << " ended with " << run.exitCode;
        EXPECT_THAT(run.err, testing::Not(testing::ContainsRegex("Sanitizer|runtime error"))) << words[1];
    }
}

TEST(ArtworkHostile, TruncatedFilesAreEndured)
{
    const TestFolder folder;
    const auto whole = Default();
    for (const std::size_t size : {14UL, 47UL, 51199UL, 51207UL, 60000UL})
        ExpectOrderlyEnd(WithContent(folder / "icons.artwork", whole.substr(0, size)), folder / "out");
}

TEST(ArtworkHostile, MutatedFilesAreEndured)
{
    const TestFolder folder;
    std::mt19937 random(20231); // the same files every time
    for (int round = 0; round < 5; ++round)
    {
        auto bytes = Default();
        for (int i = 0; i < 40; ++i)
            bytes[random() % (i % 2 ? 800 : bytes.size())] = static_cast<char>(random());
        bytes.replace(0, 11, std::string("ZQAW2023CC\0", 11));
        ExpectOrderlyEnd(WithContent(folder / "icons.artwork", bytes), folder / "out");
    }
}

struct Stuck
{
    const char* name;
    std::string bytes;
    const char* reason;
};

class ArtworkNotChanged : public testing::TestWithParam<Stuck>
{
};

// A change writes all groups anew; one that cannot be written must not be dropped in silence.
TEST_P(ArtworkNotChanged, WhereAGroupWouldBeLost)
{
    const TestFolder folder;
    const auto file = WithContent(folder / "icons.artwork", GetParam().bytes);
    const auto run = RunTool({"artwork", "compact", file});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ(file + ": not changed: " + GetParam().reason + '\n', run.err);
    EXPECT_TRUE(Holds(file, GetParam().bytes));
    EXPECT_EQ(1, folder.Count());
}

const std::vector<Stuck> kStuck = {
    {"BeyondTheEnd", File({{1, 51200, kSize + 1}, {2, 51200, kSize}}, kOne),
     "group 1 reaches beyond the end; remove it first"},
    {"MoreGroupBytesThanTheFileHas", File(std::vector<Entry>(1500, {1, 51200, kSize}), kOne),
     "groups overlap; see which by vxpresets artwork check, and remove them first"},
};
INSTANTIATE_TEST_SUITE_P(Files, ArtworkNotChanged, testing::ValuesIn(kStuck),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(ArtworkNotChanged, AfterTheBrokenGroupIsRemovedItCanBe)
{
    const TestFolder folder;
    const auto file =
        WithContent(folder / "icons.artwork", File({{1, 51200, kSize + 1}, {2, 51200, kSize}}, kOne));
    EXPECT_EQ(0, RunTool({"artwork", "remove", file, "1"}).exitCode);
    EXPECT_TRUE(Holds(file, FileOf({{2, kOne}})));
}

} // namespace

} // namespace Vexlor::Apps
