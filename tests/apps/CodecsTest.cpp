#include "Documents.h"

#include "IVXCodecs.h"
#include "VXMediaCodecs.h"

#include <algorithm>

namespace Vexlor::Apps
{

namespace
{

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
    EXPECT_NE(std::string::npos, text.find("  Sizes            16 x 16 to 1920 x 1152\n")) << text;
    EXPECT_NE(std::string::npos, text.find("  Frame rates      60 fps, 59.94 fps, 50 fps, 30 fps, 29.97 fps, "
                                           "25 fps, 24 fps, 23.976 fps\n"));
    EXPECT_NE(std::string::npos, text.find("  Pixel formats    YUV 4:2:0, YUV 4:2:2\n"));
    EXPECT_NE(std::string::npos, text.find("  Profiles         Simple, Main, 4:2:2\n"));
    EXPECT_NE(std::string::npos, text.find("  Levels           Low, Main, High 1440, High\n"));
}

TEST(CodecsCommand, PrintsATableOfAllCodecs)
{
    const auto text = RunTool({"codecs"}).out;
    EXPECT_EQ("Number  Codec       Type   Accepts                                  Encoders",
              FirstLine(text));
    EXPECT_EQ(18, std::ranges::count(text, '\n'));
    EXPECT_NE(std::string::npos, text.find("\n1       H.264       video  16 x 16 to ")) << text;
    EXPECT_NE(std::string::npos, text.find("\n1008    PCM 16-bit  audio  8 kHz to 192 kHz"));
}

TEST(CodecsCommand, FindsACodecByItsNameWithoutSigns)
{
    EXPECT_EQ("H.264", FirstLine(RunTool({"codecs", "h264"}).out));
}

TEST(CodecsCommand, FindsACodecByItsNumber) { EXPECT_EQ("AAC", FirstLine(RunTool({"codecs", "1001"}).out)); }

TEST(CodecsCommand, ListsTheNearestOfAnUnknownCodec)
{
    const auto run = RunTool({"codecs", "vp7"});
    EXPECT_EQ("vxpresets: no codec \"vp7\"; nearest: \"VP8\", \"VP9\", \"MP3\"\n", run.err);
    EXPECT_EQ(1, run.exitCode);
}

TEST(CodecsCommand, ListsAllThatAreMeant)
{
    EXPECT_EQ("vxpresets: \"mpeg\" is more than one codec: \"MPEG-4\", \"MPEG-1\", \"MPEG-2\"\n",
              RunTool({"codecs", "mpeg"}).err);
}

TEST(CodecsCommand, JsonHasEveryCodecByItsNumber)
{
    const auto json = RunForJson({"codecs"});
    EXPECT_EQ(17, json->Size());
    for (int i = 0; i < json->Size(); ++i)
    {
        const auto codec = json->At(i);
        EXPECT_EQ(IVXCodecs::DefaultCodecName(codec->GetValueInt("id"), true), codec->GetValueString("name"));
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
    EXPECT_EQ("1920 1152", Elements(*codec->GetValueArray("maxSize")));
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

} // namespace

} // namespace Vexlor::Apps
