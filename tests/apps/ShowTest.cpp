#include "Documents.h"

#include <array>

namespace Vexlor::Apps
{

namespace
{

constexpr std::string_view kCD = R"(Disc/CD
  Description      For a player
  Container        WAV
  Audio at most    1.41 Mb/s
  Video codec      none
  Audio codec      [PCM 16-bit]

PCM 16-bit
  Quality          [Auto], Low, Normal, High, Best, Custom (1 b/s)
  Sample rate      Auto, [44.1 kHz]
  Channel layout   [Stereo]
  Level            [Unknown]
  Format           [16-bit]
  Sample aspect    Default
)";

TEST(ShowCommand, PrintsEveryListWithTheCurrentEntryInBrackets)
{
    const auto run = RunOn(kShortDocument, {"show", "Disc/CD"});
    EXPECT_EQ(kCD, run.out);
    EXPECT_EQ("", run.err);
    EXPECT_EQ(0, run.exitCode);
}

TEST(ShowCommand, PrintsTheListsOfEveryCodec)
{
    const auto text = RunTool({"show", "Video/WEBM"}).out;
    EXPECT_NE(std::string::npos, text.find("  Video codec      Auto, [VP9], AV1, VP8\n"));
    EXPECT_NE(std::string::npos, text.find("  Audio codec      Auto, [Opus], Vorbis\n"));
    for (const auto* heading : {"\nVP9\n", "\nAV1\n", "\nVP8\n", "\nOpus\n", "\nVorbis\n"})
        EXPECT_NE(std::string::npos, text.find(heading)) << heading;
}

TEST(ShowCommand, WrapsLongLists)
{
    const auto text = RunTool({"show", "Video/MP4"}).out;
    EXPECT_NE(std::string::npos,
              text.find("  Resolution       [Auto], 8192 x 4320, 7680 x 4320, 5120 x 2880, 5120 x 2160, "
                        "4096 x 2160,\n                   3840 x 2160,"));
}

TEST(ShowCommand, PrintsTheBounds)
{
    const auto text = RunTool({"show", "Devices/Phones/Phone 720p"}).out;
    EXPECT_NE(std::string::npos, text.find("  Largest size     1280 x 720\n"
                                           "  Video at most    7.50 Mb/s\n"
                                           "  Video at least   937 kb/s\n"
                                           "  Audio at most    192 kb/s\n"
                                           "  Audio at least   96 kb/s\n"));
}

TEST(ShowCommand, JsonTellsThePreset)
{
    const auto json = RunForJson({"show", "phone 720p"});
    EXPECT_EQ("Devices/Phones/Phone 720p", json->GetValueString("path"));
    EXPECT_EQ("Phone 720p", json->GetValueString("name"));
    EXPECT_EQ("Any smartphone, in little room", json->GetValueString("description"));
    EXPECT_EQ("MP4", json->GetValueString("format"));
    EXPECT_EQ("", json->GetValueString("hint"));
    EXPECT_EQ(20000000, json->GetValueInt("faceID"));
    EXPECT_EQ("1280 720", Elements(*json->GetValueArray("maxSize")));
    EXPECT_EQ("0 0", Elements(*json->GetValueArray("minSize")));
}

TEST(ShowCommand, JsonTellsBothHalves)
{
    const auto json = RunForJson({"show", "phone 720p"});
    const auto video = (*json)["video"];
    EXPECT_EQ(7'500'000, video->GetValueInt("maxBitrate"));
    EXPECT_EQ(937'000, video->GetValueInt("minBitrate"));
    EXPECT_EQ(0, video->GetValueInt("current"));
    EXPECT_EQ("H.264", video->GetValueArray("codecs")->At(0)->GetValueString("codec"));
    EXPECT_EQ(192'000, (*json)["audio"]->GetValueInt("maxBitrate"));
}

TEST(ShowCommand, JsonTellsEveryListWithItsCurrentEntry)
{
    const DocumentFile file(kShortDocument);
    const auto json = RunForJson({"show", "CD", "--document", file.Path()});
    const auto codec = (*json)["audio"]->GetValueArray("codecs")->At(0);
    EXPECT_EQ("PCM 16-bit", codec->GetValueString("codec"));
    EXPECT_EQ(1008, codec->GetValueInt("codecID"));
    EXPECT_EQ("Default", codec->GetValueString("sampleAspect"));
    EXPECT_EQ(R"({"name":"Sample rate","current":1,"entries":["Auto","44.1 kHz"]})",
              JsonText(*codec->GetValueArray("lists")->At(1)));
}

struct NameCase
{
    const char* what;
    const char* asked;
    const char* found; ///< the first line
};

void PrintTo(const NameCase& test, std::ostream* out) { *out << test.what; }

class PresetName : public testing::TestWithParam<NameCase>
{
};

TEST_P(PresetName, Finds)
{
    const auto run = RunOn(kShortDocument, {"show", GetParam().asked});
    EXPECT_EQ(GetParam().found, run.out.substr(0, run.out.find('\n'))) << run.err;
}

constexpr std::array kNames{
    NameCase{"WholePath", "Disc/CD", "Disc/CD"},
    NameCase{"WholePathInOtherCase", "dISC/cd", "Disc/CD"},
    NameCase{"NameAlone", "CD", "Disc/CD"},
    NameCase{"PartOfTheNameBeforeOnesOfThePath", "isc/w", "Disc\\/Wide"},
    NameCase{"PartOfThePath", "sc/c", "Disc/CD"},
    NameCase{"PathBeforeASlashInAName", "Disc/Wide", "Disc/Wide"},
    NameCase{"EscapedSlash", "Disc\\/Wide", "Disc\\/Wide"},
    NameCase{"RightCaseBeforeOthers", "both", "Disc/both"},
    NameCase{"CharactersBeyondASCII", "日", "Disc/日本"},
};

INSTANTIATE_TEST_SUITE_P(Names, PresetName, testing::ValuesIn(kNames),
                         [](const auto& test) { return test.param.what; });

TEST(PresetName, SlashInANameNeedsNoEscapeWhereNothingElseIsMeant)
{
    const auto run =
        RunOn(R"({"childList": [{"name": "A", "formatPresetList": [{"name": "B/C"}]}]})", {"show", "A/B/C"});
    EXPECT_EQ("A/B\\/C\n  Video codec      none\n  Audio codec      none\n", run.out);
}

TEST(PresetName, NoHitListsTheNearest)
{
    const auto run = RunTool({"show", "vdeo/mp4"});
    EXPECT_EQ("vxpresets: no preset \"vdeo/mp4\"; nearest: \"Video/MP4\", \"Video/MPG\", \"Video/MOV\"\n",
              run.err);
    EXPECT_EQ("", run.out);
    EXPECT_EQ(1, run.exitCode);
}

TEST(PresetName, SeveralHitsAreListed)
{
    const auto run = RunTool({"show", "divx"});
    EXPECT_EQ("vxpresets: \"divx\" is more than one preset: \"Video/More AVI/AVI DivX\", "
              "\"Devices/Car and Disc Players/DivX Player\"\n",
              run.err);
    EXPECT_EQ(1, run.exitCode);
}

TEST(PresetName, ManyHitsAreListedInPart)
{
    const auto run = RunTool({"show", ""});
    EXPECT_NE(std::string::npos, run.err.find("\"General/Music\" and 212 more\n")) << run.err;
}

TEST(PresetName, MessagesNameTheDocument)
{
    const DocumentFile file(kShortDocument);
    const auto run = RunTool({"show", "BOTH", "--document", file.Path()});
    EXPECT_EQ(file.Path() + ": \"BOTH\" is more than one preset: \"Disc/Both\", \"Disc/both\"\n", run.err);
}

TEST(PresetName, AMessageStaysOnOneLine)
{
    EXPECT_EQ(0U,
              RunTool({"show", "no\nsuch\x1b[31m"}).err.find("vxpresets: no preset \"no\uFFFDsuch\uFFFD["));
}

} // namespace

} // namespace Vexlor::Apps
