#include "Documents.h"

#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace Vexlor::Apps
{

namespace
{

std::string MegaText(int bitrate)
{
    std::array<char, 32> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "%.2f Mb/s", bitrate / 1e6));
    return text.data();
}

std::string FirstLine(const std::string& text) { return text.substr(0, text.find('\n')); }

TEST(CodecsCommand, PrintsOneCodecInFull)
{
    const auto run = RunTool({"codecs", "PCM 16-bit"});
    EXPECT_EQ(R"(PCM 16-bit
  Number           1008
  Type             audio
  Encoders         pcm_s16le
  Sample rates     48 kHz, 44.1 kHz, 32 kHz, 24 kHz, 22.05 kHz, 16 kHz, 11.025 kHz, 8 kHz, 88.2 kHz,
                   96 kHz, 176.4 kHz, 192 kHz
  Channel layouts  Stereo, Mono, 2.1, 3.0, 4.0, Quad, 5.0, 5.1, 6.1, 7.1
  Sample formats   16-bit
)",
              run.out);
    EXPECT_EQ("", run.err);
    EXPECT_EQ(0, run.exitCode);
}

TEST(CodecsCommand, PrintsWhatAVideoCodecAccepts)
{
    const auto text = RunTool({"codecs", "MPEG-2"}).out;
    EXPECT_NE(std::string::npos, text.find("  Sizes            16 x 16 to 1920 x 1088\n")) << text;
    EXPECT_NE(std::string::npos, text.find("  Frame rates      60 fps, 59.94 fps, 50 fps, 30 fps, 29.97 fps, "
                                           "25 fps, 24 fps, 23.976 fps\n"));
    EXPECT_NE(std::string::npos, text.find("  Pixel formats    YUV 4:2:0, YUV 4:2:2\n"));
    EXPECT_NE(std::string::npos, text.find("  Profiles         Simple, Main, 4:2:2\n"));
    EXPECT_NE(std::string::npos, text.find("  Levels           Low, Main, High 1440, High\n"));
}

TEST(CodecsCommand, PrintsATableOfAllCodecs)
{
    const auto text = RunTool({"codecs"}).out;
    EXPECT_EQ(0U, text.find("No.   Codec  ")) << text;
    EXPECT_EQ(RunForJson({"codecs"})->Size() + 1, std::ranges::count(text, '\n'));
    EXPECT_NE(std::string::npos, text.find("\n1     H.264  ")) << text;
    EXPECT_NE(std::string::npos, text.find("  video  16 x 16 to 1920 x 1088, up to 60 fps  ")) << text;
    EXPECT_NE(std::string::npos, text.find("  audio  8 kHz to 192 kHz  ")) << text;
}

TEST(CodecsCommand, FindsACodecByItsNameWithoutSigns)
{
    EXPECT_EQ("H.264", FirstLine(RunTool({"codecs", "h264"}).out));
}

TEST(CodecsCommand, FindsACodecByItsNumber) { EXPECT_EQ("AAC", FirstLine(RunTool({"codecs", "1001"}).out)); }

TEST(CodecsCommand, ListsTheNearestOfAnUnknownCodec)
{
    const auto run = RunTool({"codecs", "vp7"});
    EXPECT_EQ(0U, run.err.find("vxpresets: no codec \"vp7\"; nearest: \"VP8\", \"VP9\", \"")) << run.err;
    EXPECT_EQ(1, run.exitCode);
}

TEST(CodecsCommand, ListsAllThatAreMeant)
{
    EXPECT_EQ("vxpresets: \"h.26\" is more than one codec: \"H.264\", \"H.263\", \"H.261\"\n",
              RunTool({"codecs", "h.26"}).err);
}

TEST(CodecsCommand, JsonHasEveryCodecByItsNumber)
{
    const auto json = RunForJson({"codecs"});
    EXPECT_GE(json->Size(), 40);
    for (int i = 0; i < json->Size(); ++i)
    {
        const auto codec = json->At(i);
        EXPECT_EQ(IVXCodecs::DefaultCodecName(codec->GetValueInt("id"), true), codec->GetValueString("name"));
        EXPECT_TRUE(i == 0 || json->At(i - 1)->GetValueInt("id") < codec->GetValueInt("id"));
    }
}

TEST(CodecsCommand, JsonTellsWhatAVideoCodecAccepts)
{
    const auto json = RunForJson({"codecs", "mpeg2"});
    ASSERT_EQ(1, json->Size());
    const auto codec = json->At(0);
    EXPECT_EQ(VXCodecID_MPEG2, codec->GetValueInt("id"));
    EXPECT_EQ("MPEG-2", codec->GetValueString("name"));
    EXPECT_EQ("video", codec->GetValueString("type"));
    EXPECT_EQ("\"mpeg2video\"", Elements(*codec->GetValueArray("names")));
    EXPECT_EQ("16 16", Elements(*codec->GetValueArray("minSize")));
    EXPECT_EQ("1920 1088", Elements(*codec->GetValueArray("maxSize")));
    EXPECT_EQ("[60,1]", JsonText(*codec->GetValueArray("frameRates")->At(0)));
    EXPECT_EQ(R"("YUV 4:2:0" "YUV 4:2:2")", Elements(*codec->GetValueArray("pixelFormats")));
    EXPECT_EQ(R"("Simple" "Main" "4:2:2")", Elements(*codec->GetValueArray("profiles")));
    EXPECT_EQ(R"("Low" "Main" "High 1440" "High")", Elements(*codec->GetValueArray("levels")));
}

TEST(CodecsCommand, JsonTellsWhatAnAudioCodecAccepts)
{
    const auto codec = RunForJson({"codecs", "AC-3"})->At(0);
    EXPECT_EQ("audio", codec->GetValueString("type"));
    EXPECT_EQ("48000 44100 32000", Elements(*codec->GetValueArray("sampleRates")));
    EXPECT_EQ("\"Stereo\"", JsonText(*codec->GetValueArray("channelLayouts")->At(0)));
    EXPECT_EQ("\"32-bit float planar\"", Elements(*codec->GetValueArray("sampleFormats")));
}

/// What stands below a heading of the page, up to the next one.
std::string Section(const std::string& page, const std::string& heading)
{
    const auto start = page.find('\n' + heading + '\n');
    if (start == std::string::npos)
        return {};
    const auto begin = start + heading.size() + 2;
    return page.substr(begin, page.find("\n#", begin) - begin);
}

std::ptrdiff_t RowsIn(const std::string& text)
{
    constexpr int kHeading = 2;
    std::ptrdiff_t rows = 0;
    for (auto at = text.find("\n| "); at != std::string::npos; at = text.find("\n| ", at + 1))
        ++rows;
    return rows - kHeading + 1;
}

TEST(CodecsMarkdown, HasARowForEveryContainer)
{
    const auto page = RunTool({"codecs", "--markdown"}).out;
    EXPECT_EQ(0U, page.find("# Codecs and containers\n")) << page;
    const auto containers = Section(page, "## Containers");
    EXPECT_EQ(VXMediaCodecSupportOutputAllMediaFormats().size(),
              static_cast<std::size_t>(RowsIn(containers)));
    EXPECT_NE(std::string::npos, containers.find("\n| WEBM | VP9, AV1, VP8 | Opus, Vorbis |\n"));
}

TEST(CodecsMarkdown, HasASectionForEveryCodec)
{
    const auto page = RunTool({"codecs", "--markdown"}).out;
    const auto codecs = RunForJson({"codecs"});
    for (int i = 0; i < codecs->Size(); ++i)
    {
        const auto name = codecs->At(i)->GetValueString("name");
        const auto section = Section(page, "### " + name);
        EXPECT_NE(std::string::npos, section.find("- Encoders: ")) << name;
        EXPECT_NE(std::string::npos, section.find("| Bitrate | Low | Normal | High | Best |")) << name;
        EXPECT_GE(RowsIn(section), 1) << name;
    }
}

TEST(CodecsMarkdown, TellsWhatACodecAccepts)
{
    const auto section = Section(RunTool({"codecs", "--markdown"}).out, "### MPEG-2");
    EXPECT_NE(std::string::npos, section.find("\n- Encoders: mpeg2video\n- Containers: MOV, ")) << section;
    EXPECT_NE(std::string::npos, section.find("\n- Sizes: 16 x 16 to 1920 x 1088\n"));
    EXPECT_NE(std::string::npos, section.find("\n- Levels: Low, Main, High 1440, High\n"));
}

TEST(CodecsMarkdown, TellsTheBitrateOfEveryGradeAndTheLevel)
{
    const auto section = Section(RunTool({"codecs", "--markdown"}).out, "### H.264");
    const auto model = IVXCodecs::MallocCodecs(VXCodecID_H264, true);
    const auto rate = IVXRational::MallocRational(60, 1);
    std::string row = "\n| 1920 x 1080, 60 fps |";
    for (int grade = 0; grade < 4; ++grade)
        row += ' ' +
               MegaText(model->BestBitrateFor(1920, 1080, rate, model->SupportedFormats({}).front(),
                                              static_cast<IVXCodecs::QualityLevel>(grade), {})) +
               " |";
    EXPECT_NE(std::string::npos, section.find(row + " 4.2 |\n")) << row << section;
}

TEST(CodecsMarkdown, LevelsFollowTheBitratesBesideThem)
{
    const auto section = Section(RunTool({"codecs", "--markdown"}).out, "### HEVC");
    const auto row = section.substr(section.find("| 3840 x 2160, 60 fps |"));
    EXPECT_EQ("| 5.1 to 5.1 High |", row.substr(row.find("| 5.1"), 19)) << row;
}

TEST(CodecsMarkdown, HasNoLevelsWhereTheCodecHasNone)
{
    const auto section = Section(RunTool({"codecs", "--markdown"}).out, "### VP8");
    EXPECT_NE(std::string::npos, section.find("| Low | Normal | High | Best |\n|---|--:|--:|--:|--:|\n"));
}

TEST(CodecsMarkdown, IsAlwaysTheWholePage)
{
    EXPECT_EQ(2, RunTool({"codecs", "h264", "--markdown"}).exitCode);
    EXPECT_EQ(2, RunTool({"codecs", "--json", "--markdown"}).exitCode);
}

} // namespace

} // namespace Vexlor::Apps
