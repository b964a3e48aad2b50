#include "runtime/mediacodecs/VXMediaFile.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "tests/media/Ffmpeg.h"
#include "tests/media/MediaMaker.h"

#include <gmock/gmock.h>

#include <array>
#include <filesystem>
#include <sstream>

namespace Vexlor
{

namespace
{

using testing::AllOf;
using testing::Ge;
using testing::Le;

VXMediaFile Read(const std::string& clip)
{
    auto file = ReadMediaFile(Media::Clip(clip));
    EXPECT_EQ("", file.error);
    return file;
}

std::shared_ptr<const IVXCodecParameter> VideoOf(const std::string& clip)
{
    return Read(clip).parameter->GetVideoCodecParameter();
}

std::shared_ptr<const IVXCodecParameter> AudioOf(const std::string& clip)
{
    return Read(clip).parameter->GetAudioCodecParameter();
}

void Print(std::ostream& text, const IVXCodecParameter& video)
{
    text << video.GetWidth() << 'x' << video.GetHeight();
    text << " shown " << video.GetDisplayWidth() << 'x' << video.GetDisplayHeight();
    text << " at " << video.GetFrameRate()->Num() << '/' << video.GetFrameRate()->Den();
}

// "MP4, video 1 1920x1080 shown 1920x1080 at 30/1, audio 1001 48000 Hz 0x3"
std::string Outline(const VXMediaFile& file)
{
    std::ostringstream text;
    text << file.parameter->FormatName();
    if (const auto video = file.parameter->GetVideoCodecParameter())
    {
        text << ", video " << video->GetCodecID() << ' ';
        Print(text, *video);
    }
    if (const auto audio = file.parameter->GetAudioCodecParameter())
    {
        text << ", audio " << audio->GetCodecID() << ' ' << audio->GetSampleRate() << " Hz ";
        text << std::hex << "0x" << audio->GetChannelLayout();
    }
    return text.str();
}

struct ClipCase
{
    const char* name;
    const char* clip;
    const char* outline;
};

constexpr std::array kClips{
    ClipCase{"FilmInMP4", "film.mp4",
             "MP4, video 1 1920x1080 shown 1920x1080 at 30/1, audio 1001 48000 Hz 0x3"},
    ClipCase{"FilmInMKV", "film.mkv",
             "MKV, video 1 640x360 shown 640x360 at 24000/1001, audio 1005 48000 Hz 0x3"},
    ClipCase{"FilmInWEBM", "film.webm",
             "WEBM, video 8 320x180 shown 320x180 at 25/1, audio 1005 48000 Hz 0x3"},
    ClipCase{"FilmInAVI", "film.avi", "AVI, video 3 320x240 shown 320x240 at 25/1, audio 1002 44100 Hz 0x3"},
    ClipCase{"FilmInTS", "film.ts", "TS, video 1 320x180 shown 320x180 at 25/1, audio 1001 48000 Hz 0x3"},
    ClipCase{"WidePixels", "anamorphic.mp4", "MP4, video 1 720x576 shown 1024x576 at 25/1"},
    ClipCase{"QuarterTurn", "rotated.mp4",
             "MP4, video 1 1920x1080 shown 1080x1920 at 30/1, audio 1001 48000 Hz 0x4"},
    ClipCase{"QuarterTurnOfWidePixels", "turned.mp4", "MP4, video 1 720x576 shown 576x1024 at 25/1"},
    ClipCase{"TenBits", "tenbit.mp4", "MP4, video 2 640x360 shown 640x360 at 25/1"},
    ClipCase{"Surround", "surround.mp4",
             "MP4, video 1 320x180 shown 320x180 at 25/1, audio 1001 48000 Hz 0x3f"},
    ClipCase{"VideoOnly", "silent.mp4", "MP4, video 1 320x180 shown 320x180 at 25/1"},
    ClipCase{"CodecWithoutAnIdentifier", "animation.mov",
             "MOV, video 0 640x360 shown 640x360 at 25/1, audio 1008 48000 Hz 0x3"},
    ClipCase{"CoverPictureIsNoVideo", "music.mp3", "MP3, audio 1002 44100 Hz 0x3"},
    ClipCase{"AudioOnly", "music.flac", "FLAC, audio 1007 44100 Hz 0x3"},
    ClipCase{"NumberOfChannelsOnly", "count.au", "au, audio 1027 48000 Hz 0x3f"},
};

class MediaFileOutline : public testing::TestWithParam<ClipCase>
{
};

TEST_P(MediaFileOutline, TellsContainerAndStreams)
{
    EXPECT_EQ(GetParam().outline, Outline(Read(GetParam().clip)));
}

INSTANTIATE_TEST_SUITE_P(Clips, MediaFileOutline, testing::ValuesIn(kClips),
                         [](const auto& test) { return test.param.name; });

TEST(MediaFile, TellsPixelFormatProfileAndLevel)
{
    const auto video = VideoOf("film.mp4");
    EXPECT_EQ(VXPixFormat_YUV420P, video->GetFormat());
    EXPECT_EQ("Main", video->GetCodecs(false)->ProfileName(video->GetProfile()));
    EXPECT_EQ("4", video->GetCodecs(false)->LevelName(video->GetLevel()));
}

struct LowLevelCase
{
    const char* name;
    const char* profile;
    const char* level;
    const char* container;
};

class LowLevel : public testing::TestWithParam<LowLevelCase>
{
};

TEST_P(LowLevel, IsToldAsItWasWritten)
{
    const auto& test = GetParam();
    const Media::ScratchFolder scratch;
    const auto path = scratch.Path(std::string("small.") + test.container);
    Media::RunFfmpeg("-f lavfi -i testsrc=size=176x144:rate=15:duration=1 -c:v libx264 -pix_fmt yuv420p "
                     "-b:v 60k -profile:v " +
                         std::string(test.profile) + " -level " + test.level,
                     path);
    const auto file = ReadMediaFile(path);
    ASSERT_EQ("", file.error);
    const auto video = file.parameter->GetVideoCodecParameter();
    EXPECT_EQ(test.level, video->GetCodecs(false)->LevelName(video->GetLevel()));
}

constexpr std::array kLowLevels{
    LowLevelCase{"Baseline1b", "baseline", "1b", "mp4"},
    LowLevelCase{"Main1b", "main", "1b", "mkv"},
    LowLevelCase{"Main1bBehindStartCodes", "main", "1b", "ts"},
    LowLevelCase{"High1b", "high", "1b", "mp4"},
    LowLevelCase{"Baseline11", "baseline", "1.1", "mp4"},
    LowLevelCase{"Main11BehindStartCodes", "main", "1.1", "ts"},
    LowLevelCase{"High11", "high", "1.1", "mp4"},
};
INSTANTIATE_TEST_SUITE_P(H264, LowLevel, testing::ValuesIn(kLowLevels),
                         [](const auto& test) { return test.param.name; });

TEST(MediaFile, TellsTenBitFormatAndProfile)
{
    const auto video = VideoOf("tenbit.mp4");
    EXPECT_NE(VXPixFormat_YUV420P, video->GetFormat());
    EXPECT_NE("", PixFormatName(video->GetFormat()));
    EXPECT_EQ("Main 10", video->GetCodecs(false)->ProfileName(video->GetProfile()));
}

TEST(MediaFile, TellsSampleFormatAndProfile)
{
    const auto audio = AudioOf("film.mp4");
    EXPECT_NE("", SampleFormatName(audio->GetFormat()));
    EXPECT_EQ("LC", audio->GetCodecs(false)->ProfileName(audio->GetProfile()));
}

TEST(MediaFile, TellsSampleAspect)
{
    const auto aspect = VideoOf("anamorphic.mp4")->GetAspectRatio();
    EXPECT_EQ(64, aspect->Num());
    EXPECT_EQ(45, aspect->Den());
}

TEST(MediaFile, TellsCodecTag)
{
    EXPECT_EQ(IVXCodecParameter::MakeCodecTag('X', 'V', 'I', 'D'), VideoOf("film.avi")->GetCodecTag());
}

TEST(MediaFile, TellsAverageOfUnevenFrameRate)
{
    EXPECT_NEAR(20.0, VideoOf("uneven.mp4")->GetFrameRate()->GetDoubleValue(), 0.5);
}

TEST(MediaFile, TellsLengthAndSize)
{
    const auto file = Read("film.mp4");
    EXPECT_NEAR(1.0, file.duration, 0.05);
    EXPECT_EQ(static_cast<std::int64_t>(std::filesystem::file_size(Media::Clip("film.mp4"))), file.size);
}

TEST(MediaFile, NamesCodecs)
{
    const auto file = Read("film.mp4");
    EXPECT_EQ(IVXCodecs::DefaultCodecName(VXCodecID_H264, false), file.videoCodec);
    EXPECT_EQ(IVXCodecs::DefaultCodecName(VXCodecID_AAC, false), file.audioCodec);
}

TEST(MediaFile, NamesCodecWithoutAnIdentifierAsTheEngineDoes)
{
    EXPECT_EQ("qtrle", Read("animation.mov").videoCodec);
}

TEST(MediaFile, LeavesNameOfMissingStreamEmpty)
{
    EXPECT_EQ("", Read("silent.mp4").audioCodec);
    EXPECT_EQ("", Read("music.mp3").videoCodec);
}

TEST(MediaFile, TellsBitrateOfStreamsThatHaveOne)
{
    EXPECT_EQ(128000, AudioOf("music.mp3")->GetBitrate());
    EXPECT_EQ(1536000, AudioOf("animation.mov")->GetBitrate());
}

// The container's own bytes are a few per cent of such short files.
TEST(MediaFile, SharesBitrateOfContainerAmongStreamsWithoutOne)
{
    const auto file = Read("film.mkv");
    const int video = file.parameter->GetVideoCodecParameter()->GetBitrate();
    const int audio = file.parameter->GetAudioCodecParameter()->GetBitrate();
    EXPECT_NEAR(8.0 * static_cast<double>(file.size) / file.duration, video + audio, 2);
    EXPECT_THAT(audio, AllOf(Ge(32000), Le(96000))); // made with 64 kb/s
}

TEST(MediaFile, LeavesStreamWithoutBitrateWhatTheOthersLeave)
{
    const auto file = Read("film.ts");
    const int audio = file.parameter->GetAudioCodecParameter()->GetBitrate();
    const double whole = 8.0 * static_cast<double>(file.size) / file.duration;
    EXPECT_GT(audio, 64000);
    EXPECT_NEAR(whole - audio, file.parameter->GetVideoCodecParameter()->GetBitrate(), 2);
}

} // namespace

} // namespace Vexlor
