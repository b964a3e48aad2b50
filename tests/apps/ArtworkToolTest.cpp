#include "tests/apps/ArtworkFiles.h"
#include "tests/apps/RunTool.h"
#include "tests/foundation/TestFolder.h"

#include <QImage>

#include <gmock/gmock.h>

#include <filesystem>
#include <regex>

namespace Vexlor::Apps
{

namespace
{

using testing::HasSubstr;
using Words = std::vector<std::string>;

class ArtworkTool : public testing::Test
{
protected:
    /// Runs "artwork COMMAND FILE ARGUMENTS…" on the file of this test.
    ToolRun Run(const std::string& command, const Words& arguments = {}) const
    {
        Words words{"artwork", command, file};
        words.insert(words.end(), arguments.begin(), arguments.end());
        return RunTool(words);
    }

    /// The identifiers in the file, in its order.
    std::string Faces() const
    {
        std::string faces;
        const std::regex row(R"((?:^|\n)\d+ +(-?\d+))");
        const auto list = Run("list").out;
        for (std::sregex_iterator i(list.begin(), list.end(), row); i != std::sregex_iterator(); ++i)
            faces += (faces.empty() ? "" : " ") + (*i)[1].str();
        return faces;
    }

    TestFolder folder;
    std::string file = folder / "icons.artwork";
    std::string png = WithContent(folder / "tiny.png", TinyPNG());
    std::string svg = WithContent(folder / "red.svg", CircleSVG("#f00"));
};

const auto kOne = Group({{0, Stored(TinyPNG())}});

TEST_F(ArtworkTool, ListTellsIdentifiersNamesPicturesSizesAndBytes)
{
    WithContent(file, FileOf({{20000000, Group({{0, Stored(TinyPNG())}, {11, Stored(PlainPNG(5, 3, 0))}})},
                              {77, Group({})},
                              {-1, Group({{0, Stored("what is this")}})}}));
    const auto list = Run("list");
    EXPECT_EQ(0, list.exitCode);
    const auto bytes = std::to_string(7 + 16 + 16 + 70 + PlainPNG(5, 3, 0).size());
    EXPECT_EQ("#  Face      Name             Pictures  Sizes         Bytes\n"
              "0  20000000  FormatFaceIDMP4  2         1 x 1, 5 x 3  " +
                  bytes +
                  "\n"
                  "1  77                         0                       7\n"
                  "2  -1                         1         ?             35\n",
              list.out);
}

TEST_F(ArtworkTool, ListAsJsonHasEveryPicture)
{
    WithContent(file, FileOf({{10000003, Group({{12, Stored(TinyPNG())}})}}));
    EXPECT_EQ(R"([
  {
    "position": 0,
    "faceID": 10000003,
    "name": "CategoryFaceIDVideo",
    "offset": 51200,
    "bytes": 93,
    "pictures": [
      {
        "key": 12,
        "variant": 1,
        "mode": "active",
        "format": "PNG",
        "width": 1,
        "height": 1,
        "bytes": 70
      }
    ]
  }
]
)",
              Run("list", {"--json"}).out);
}

TEST_F(ArtworkTool, AnEmptyFileHasNoGroups)
{
    WithContent(file, "");
    EXPECT_EQ("#  Face  Name  Pictures  Sizes  Bytes\n", Run("list").out);
}

TEST_F(ArtworkTool, AddMakesTheFile)
{
    const auto added = Run("add", {"20000000", "--picture", "0:normal=" + png});
    EXPECT_EQ(file + ": added group 20000000 (FormatFaceIDMP4)\n", added.out);
    EXPECT_TRUE(Holds(file, FileOf({{20000000, kOne}})));
}

TEST_F(ArtworkTool, AddTakesANameForTheIdentifier)
{
    Run("add", {"mkv", "--picture", "0:normal=" + png});
    EXPECT_EQ("20000003", Faces());
}

TEST_F(ArtworkTool, AddWithoutIdentifierTakesTheLowestFreeOne)
{
    WithContent(file, FileOf({{1, kOne}, {3, kOne}}));
    EXPECT_EQ(file + ": added group 2\n", Run("add", {"--picture", "0:normal=" + png}).out);
    EXPECT_EQ("1 3 2", Faces());
}

TEST_F(ArtworkTool, AddOfATakenIdentifierFails)
{
    const auto before = FileOf({{5, kOne}});
    WithContent(file, before);
    const auto added = Run("add", {"5", "--picture", "0:normal=" + png});
    EXPECT_EQ(1, added.exitCode);
    EXPECT_EQ(file + ": group 5 is there; replace it\n", added.err);
    EXPECT_TRUE(Holds(file, before));
}

TEST_F(ArtworkTool, The1600thGroupIsRefused)
{
    std::vector<std::pair<int, std::string>> groups;
    for (int i = 1; i < 1600; ++i)
        groups.emplace_back(i, Group({}));
    const auto before = FileOf(groups);
    WithContent(file, before);
    const auto added = Run("add", {"--picture", "0:normal=" + png});
    EXPECT_EQ(file + ": not changed: an artwork file holds at most 1599 groups\n", added.err);
    EXPECT_TRUE(Holds(file, before));
}

TEST_F(ArtworkTool, FromADrawingEverySizeAndModeIsMade)
{
    Run("add", {"9", "--from", svg});
    EXPECT_THAT(Run("list").out, HasSubstr("12        16 x 16, 32 x 32, 64 x 64"));
}

TEST_F(ArtworkTool, TheModesOfADrawingDifferAndAreNotBlank)
{
    Run("add", {"9", "--from", svg});
    Run("extract", {"--to", folder / "out"});
    const auto middle = [this](const std::string& mode)
    { return QImage(QString::fromStdString(folder / ("out/9-2-" + mode + ".png"))).pixel(32, 32); };
    EXPECT_EQ(0xffff0000, middle("normal"));
    EXPECT_EQ(qRed(middle("disabled")), qBlue(middle("disabled")));
    EXPECT_GT(255, qAlpha(middle("disabled")));
    EXPECT_EQ(0xffff2a2a, middle("active"));
    EXPECT_EQ(0xffff0000, middle("selected"));
}

TEST_F(ArtworkTool, APictureThatIsNoSquareIsCentred)
{
    WithContent(folder / "wide.png", PlainPNG(40, 20, 0xff00ff00));
    Run("add", {"9", "--from", folder / "wide.png"});
    Run("extract", {"--to", folder / "out"});
    const QImage made(QString::fromStdString(folder / "out/9-0-normal.png"));
    EXPECT_EQ(QSize(16, 16), made.size());
    EXPECT_EQ(0, qAlpha(made.pixel(8, 3)));
    EXPECT_EQ(0xff00ff00, made.pixel(8, 8));
}

TEST_F(ArtworkTool, AFileOfPicturesKeepsTheirBytes)
{
    Run("add", {"9", "--picture", "1:selected=" + png});
    Run("extract", {"--to", folder / "out"});
    EXPECT_EQ(TinyPNG(), ContentOf(folder / "out/9-1-selected.png"));
}

TEST_F(ArtworkTool, ANamedPictureComesBeforeAMadeOne)
{
    Run("add", {"9", "--from", svg, "--picture", "0:normal=" + png});
    EXPECT_THAT(Run("list").out, HasSubstr("12        1 x 1, 16 x 16, 32 x 32, 64 x 64"));
}

TEST_F(ArtworkTool, WhatIsNoPictureIsRefused)
{
    WithContent(folder / "text", "no picture");
    const auto added = Run("add", {"9", "--picture", "0:normal=" + (folder / "text")});
    EXPECT_EQ(1, added.exitCode);
    EXPECT_EQ((folder / "text") + ": is no picture that can be decoded\n", added.err);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(ArtworkTool, AMissingPictureIsNamed)
{
    EXPECT_EQ((folder / "none.png") + ": No such file or directory\n",
              Run("add", {"9", "--from", folder / "none.png"}).err);
}

TEST_F(ArtworkTool, ReplaceKeepsIdentifierAndPosition)
{
    WithContent(file, FileOf({{1, Group({})}, {2, Group({})}, {3, Group({})}}));
    EXPECT_EQ(file + ": replaced group 2\n", Run("replace", {"2", "--picture", "0:normal=" + png}).out);
    EXPECT_TRUE(Holds(file, FileOf({{1, Group({})}, {2, kOne}, {3, Group({})}})));
}

TEST_F(ArtworkTool, ReplaceOfNothingFails)
{
    WithContent(file, FileOf({{1, kOne}}));
    EXPECT_EQ(file + ": no group 2\n", Run("replace", {"2", "--picture", "0:normal=" + png}).err);
}

TEST_F(ArtworkTool, RemoveTakesNumbersNamesAndPositions)
{
    WithContent(file, FileOf({{1, kOne}, {20000000, kOne}, {2, kOne}, {3, kOne}}));
    EXPECT_EQ(file + ": removed 3 groups\n", Run("remove", {"#3", "MP4", "1"}).out);
    EXPECT_EQ("2", Faces());
}

TEST_F(ArtworkTool, RemoveTakesAPartOfANumberForNothing)
{
    WithContent(file, FileOf({{20000000, kOne}}));
    EXPECT_EQ(file + ": no group 2\n", Run("remove", {"2"}).err);
}

TEST_F(ArtworkTool, RemoveTakesAllOrNothing)
{
    WithContent(file, FileOf({{1, kOne}, {2, kOne}}));
    EXPECT_EQ(file + ": no group at \"#2\", there are 2 groups\n", Run("remove", {"1", "#2"}).err);
    EXPECT_EQ("1 2", Faces());
}

TEST_F(ArtworkTool, RemoveOfOneOfTwoOfAnIdentifierTakesTheFirst)
{
    WithContent(file, FileOf({{7, kOne}, {7, Group({})}}));
    Run("remove", {"7"});
    EXPECT_TRUE(Holds(file, FileOf({{7, Group({})}})));
}

TEST_F(ArtworkTool, CompactLeavesOutWhatNoGroupUses)
{
    const auto one = static_cast<std::uint32_t>(kOne.size());
    WithContent(file, File({{2, 51200 + 1000 + one, one}, {1, 51200 + 500, one}},
                           std::string(500, 'x') + kOne + std::string(500, 'x') + kOne + "tail"));
    EXPECT_EQ(file + ": 52390 bytes before, 51386 after\n", Run("compact").out);
    EXPECT_TRUE(Holds(file, FileOf({{2, kOne}, {1, kOne}})));
}

TEST_F(ArtworkTool, CompactKeepsBytesThatItDoesNotUnderstand)
{
    const auto before = FileOf({{1, "no group at all"}, {2, Group({{99, "unknown"}}, 5)}});
    WithContent(file, before);
    EXPECT_EQ(0, Run("compact").exitCode);
    EXPECT_TRUE(Holds(file, before));
}

TEST_F(ArtworkTool, ExtractNamesPicturesByGroupVariantAndMode)
{
    WithContent(file, FileOf({{20000000, Group({{21, Stored(TinyPNG())}})},
                              {20000000, Group({{0, Stored("abc", 4711)}, {35, Stored(TinyPNG())}})}}));
    EXPECT_EQ((folder / "out") + ": 3 pictures\n", Run("extract", {"--to", folder / "out"}).out);
    EXPECT_EQ(TinyPNG(), ContentOf(folder / "out/20000000-FormatFaceIDMP4-2-disabled.png"));
    EXPECT_EQ("abc", ContentOf(folder / "out/20000000-FormatFaceIDMP4-at-1-0-normal.bin"));
    EXPECT_EQ(TinyPNG(), ContentOf(folder / "out/20000000-FormatFaceIDMP4-at-1-key-35.png"));
}

TEST_F(ArtworkTool, ExtractTakesChosenGroupsOnly)
{
    WithContent(file, FileOf({{1, kOne}, {2, kOne}, {3, kOne}}));
    EXPECT_EQ((folder / "out") + ": 2 pictures\n",
              Run("extract", {"--to", folder / "out", "--face", "3", "--face", "#0"}).out);
}

TEST_F(ArtworkTool, ExtractWhereNoFolderCanBeNamesIt)
{
    WithContent(file, FileOf({{1, kOne}}));
    EXPECT_EQ(png + "/out: Not a directory\n", Run("extract", {"--to", png + "/out"}).err);
}

TEST_F(ArtworkTool, ShowDrawsLightAndDark)
{
    Run("add", {"9", "--from", svg});
    EXPECT_EQ((folder / "sheet.png") + ": 1 group\n", Run("show", {"--output", folder / "sheet.png"}).out);
    const QImage sheet(QString::fromStdString(folder / "sheet.png"));
    const auto light = sheet.pixel(10, 30);
    const auto dark = sheet.pixel(10, 102);
    EXPECT_LT(200, qGray(light));
    EXPECT_GT(60, qGray(dark));
    EXPECT_EQ(0xffff0000, sheet.pixel(16 + 32, 32 + 32));
    EXPECT_EQ(0xffff0000, sheet.pixel(16 + 32, 32 + 72 + 32));
}

TEST_F(ArtworkTool, ShowOfNoGroupsIsASheetToo)
{
    WithContent(file, "");
    EXPECT_EQ(0, Run("show", {"--output", folder / "sheet.png"}).exitCode);
    EXPECT_FALSE(QImage(QString::fromStdString(folder / "sheet.png")).isNull());
}

struct Misuse
{
    const char* name;
    Words words;
    const char* complaint;
};

class ArtworkMisuse : public testing::TestWithParam<Misuse>
{
};

TEST_P(ArtworkMisuse, IsWrongUsage)
{
    Words words{"artwork"};
    words.insert(words.end(), GetParam().words.begin(), GetParam().words.end());
    const auto run = RunTool(words);
    EXPECT_EQ(2, run.exitCode);
    EXPECT_THAT(run.err, HasSubstr(GetParam().complaint));
    EXPECT_EQ("", run.out);
}

const std::vector<Misuse> kMisuses = {
    {"NoCommand", {}, "subcommand is required"},
    {"UnknownCommand", {"lst"}, "no command \"lst\""},
    {"AddWithoutFile", {"add"}, "FILE is required"},
    {"AddWithoutPictures", {"add", "x"}, "no pictures: --from or --picture is required"},
    {"Variant", {"add", "x", "--picture", "3:normal=y"}, "\"3:normal=y\" is not VARIANT:MODE=PICTURE"},
    {"Mode", {"add", "x", "--picture", "0:pressed=y"}, "\"0:pressed=y\" is not VARIANT:MODE=PICTURE"},
    {"NoMode", {"add", "x", "--picture", "0=y"}, "\"0=y\" is not VARIANT:MODE=PICTURE"},
    {"NoPicture", {"add", "x", "--picture", "0:normal="}, "\"0:normal=\" is not VARIANT:MODE=PICTURE"},
    {"ReplaceWithoutGroup", {"replace", "x"}, "GROUP is required"},
    {"RemoveWithoutGroup", {"remove", "x"}, "GROUP is required"},
    {"ShowWithoutOutput", {"show"}, "--output is required"},
    {"ExtractWithoutFolder", {"extract"}, "--to is required"},
};
INSTANTIATE_TEST_SUITE_P(Commands, ArtworkMisuse, testing::ValuesIn(kMisuses),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(ArtworkTool, APictureNamedTwiceIsWrongUsage)
{
    const auto choice = "0:normal=" + png;
    EXPECT_EQ(2, Run("add", {"1", "--picture", choice, "--picture", choice}).exitCode);
}

} // namespace

} // namespace Vexlor::Apps
