#include "Documents.h"

#include "VXMediaCodecs.h"

namespace Vexlor::Apps
{

namespace
{

constexpr std::string_view kFormats =
    R"(Container  Video codecs                                              Audio codecs
MP4        H.264, HEVC, AV1, VP9, MPEG-4, MPEG-2, MPEG-1             AAC, MP3, AC-3, Opus, FLAC, MP2
MOV        H.264, HEVC, MPEG-4, MPEG-2                               AAC, PCM 16-bit, MP3, AC-3
MKV        H.264, HEVC, AV1, VP9, VP8, MPEG-4, DivX, MPEG-2, MPEG-1  AAC, Opus, MP3, AC-3, FLAC, Vorbis, MP2, PCM 16-bit
WEBM       VP9, AV1, VP8                                             Opus, Vorbis
AVI        MPEG-4, DivX, H.264, MPEG-2, MPEG-1                       MP3, AC-3, PCM 16-bit, MP2, AAC
MPG        MPEG-2, MPEG-1                                            MP2, AC-3, MP3
MP3                                                                  MP3
M4A                                                                  AAC
WAV                                                                  PCM 16-bit
FLAC                                                                 FLAC
OGG                                                                  Vorbis, Opus, FLAC
)";

TEST(FormatsCommand, PrintsEveryContainerWithItsCodecs)
{
    const auto run = RunTool({"formats"});
    EXPECT_EQ(kFormats, run.out);
    EXPECT_EQ("", run.err);
    EXPECT_EQ(0, run.exitCode);
}

TEST(FormatsCommand, JsonHasAnElementForEveryContainer)
{
    const auto json = RunForJson({"formats"});
    const auto names = VXMediaCodecSupportOutputAllMediaFormats();
    ASSERT_EQ(static_cast<int>(names.size()), json->Size());
    for (int i = 0; i < json->Size(); ++i)
        EXPECT_EQ(names[static_cast<std::size_t>(i)], json->At(i)->GetValueString("name"));
}

TEST(FormatsCommand, JsonElementsHaveExactlyTheseMembers)
{
    const auto json = RunForJson({"formats"});
    EXPECT_EQ(R"({"name":"WEBM","videoCodecs":["VP9","AV1","VP8"],"audioCodecs":["Opus","Vorbis"]})",
              JsonText(*json->At(3)));
    EXPECT_EQ(R"({"name":"MP3","videoCodecs":[],"audioCodecs":["MP3"]})", JsonText(*json->At(6)));
}

TEST(FormatsCommand, ChecksTheDocumentAllTheSame)
{
    EXPECT_EQ(1, RunTool({"formats", "--document", "/no/such/presets.json"}).exitCode);
}

} // namespace

} // namespace Vexlor::Apps
