#include "runtime/mediacodecs/VXMediaFile.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "tests/media/MediaMaker.h"

#include <gmock/gmock.h>

#include <array>
#include <sstream>

namespace Vexlor
{

namespace
{

using testing::AllOf;
using testing::Ge;
using testing::Le;

std::shared_ptr<IVXFormatParameter> Match(const std::string& clip, const std::string& container)
{
    const auto file = ReadMediaFile(Media::Clip(clip));
    EXPECT_EQ("", file.error);
    return IVXFormatPreset::MallocFormatPreset(container, "")->MatchForSource(file.parameter);
}

// "MP4: video 1 1920x1080 at 30/1, audio 1001 48000 Hz 0x3", or "no video", "no audio"
std::string Outline(const IVXFormatParameter& output)
{
    std::ostringstream text;
    text << output.FormatName() << ": ";
    if (const auto video = output.GetVideoCodecParameter())
        text << "video " << video->GetCodecID() << ' ' << video->GetWidth() << 'x' << video->GetHeight()
             << " at " << video->GetFrameRate()->Num() << '/' << video->GetFrameRate()->Den();
    else
        text << "no video";
    if (const auto audio = output.GetAudioCodecParameter())
        text << ", audio " << audio->GetCodecID() << ' ' << audio->GetSampleRate() << " Hz 0x" << std::hex
             << audio->GetChannelLayout();
    else
        text << ", no audio";
    return text.str();
}

struct MatchCase
{
    const char* name;
    const char* clip;
    const char* container;
    const char* outline;
};

constexpr std::array kMatches{
    MatchCase{"Film", "film.mp4", "MP4", "MP4: video 1 1920x1080 at 30/1, audio 1001 48000 Hz 0x3"},
    MatchCase{"WidePixelsBecomeSquare", "anamorphic.mp4", "MP4", "MP4: video 1 1024x576 at 25/1, no audio"},
    MatchCase{"QuarterTurn", "rotated.mp4", "MP4", "MP4: video 1 1080x1920 at 30/1, audio 1001 48000 Hz 0x4"},
    MatchCase{"QuarterTurnOfWidePixels", "turned.mp4", "MP4", "MP4: video 1 576x1024 at 25/1, no audio"},
    MatchCase{"TenBits", "tenbit.mp4", "MP4", "MP4: video 1 640x360 at 25/1, no audio"},
    MatchCase{"SurroundIsKept", "surround.mp4", "MP4",
              "MP4: video 1 320x180 at 25/1, audio 1001 48000 Hz 0x3f"},
    MatchCase{"SurroundWhereOnlyTwoChannelsFit", "surround.mp4", "MP3",
              "MP3: no video, audio 1002 48000 Hz 0x3"},
    MatchCase{"AudioOnly", "music.mp3", "MP4", "MP4: no video, audio 1001 44100 Hz 0x3"},
    MatchCase{"VideoOnly", "silent.mp4", "MP4", "MP4: video 1 320x180 at 25/1, no audio"},
    MatchCase{"CodecWithoutAnIdentifier", "animation.mov", "MP4",
              "MP4: video 1 640x360 at 25/1, audio 1001 48000 Hz 0x3"},
    MatchCase{"NumberOfChannelsOnly", "count.au", "WAV", "WAV: no video, audio 1008 48000 Hz 0x3f"},
    MatchCase{"FractionOfAFrameRate", "film.mkv", "MKV",
              "MKV: video 1 640x360 at 24000/1001, audio 1001 48000 Hz 0x3"},
    MatchCase{"OtherCodecs", "film.mkv", "WEBM",
              "WEBM: video 8 640x360 at 24000/1001, audio 1005 48000 Hz 0x3"},
    MatchCase{"SampleRateThatTheCodecLacks", "music.flac", "WEBM", "WEBM: no video, audio 1005 48000 Hz 0x3"},
    MatchCase{"FilmAsMusic", "film.mp4", "MP3", "MP3: no video, audio 1002 48000 Hz 0x3"},
    MatchCase{"FilmForAVI", "film.webm", "AVI", "AVI: video 3 320x180 at 25/1, audio 1002 48000 Hz 0x3"},
    MatchCase{"FilmForMPG", "film.mp4", "MPG", "MPG: video 6 1920x1080 at 30/1, audio 1003 48000 Hz 0x3"},
};

class MatchMedia : public testing::TestWithParam<MatchCase>
{
};

TEST_P(MatchMedia, MakesOutputOfClip)
{
    EXPECT_EQ(GetParam().outline, Outline(*Match(GetParam().clip, GetParam().container)));
}

INSTANTIATE_TEST_SUITE_P(Clips, MatchMedia, testing::ValuesIn(kMatches),
                         [](const auto& test) { return test.param.name; });

int BitrateFor(const IVXCodecParameter& sound, IVXCodecs::QualityLevel grade)
{
    return sound.GetCodecs(true)->BestBitrateFor(sound.GetSampleRate(), sound.GetChannelLayout(),
                                                 sound.GetFormat(), grade, "");
}

// The bitrates that the codec's model allows the stream.
std::pair<int, int> RangeOf(const IVXCodecParameter& stream)
{
    const auto codecs = stream.GetCodecs(true);
    if (stream.GetCodecType() == VXCodecTypeVideo)
        return codecs->BitrateRangeFor(stream.GetWidth(), stream.GetHeight(), stream.GetFrameRate(),
                                       stream.GetFormat(), "");
    if (const auto bitrates = codecs->SupportedBitrates(); !bitrates.empty())
        return {bitrates.front(), bitrates.back()};
    return {BitrateFor(stream, IVXCodecs::QualityLevelLow), BitrateFor(stream, IVXCodecs::QualityLevelBest)};
}

TEST_P(MatchMedia, KeepsBitratesInTheModelsRange)
{
    const auto output = Match(GetParam().clip, GetParam().container);
    for (const auto& stream : {output->GetVideoCodecParameter(), output->GetAudioCodecParameter()})
    {
        if (!stream)
            continue;
        const auto [low, high] = RangeOf(*stream);
        EXPECT_GT(low, 0);
        EXPECT_THAT(stream->GetBitrate(), AllOf(Ge(low), Le(high)));
    }
}

TEST(MatchMediaFile, CodedFrameRateTakesTheNearestOfAnUnevenOne)
{
    const auto rate = Match("uneven.mp4", "MPG")->GetVideoCodecParameter()->GetFrameRate();
    EXPECT_EQ(24000, rate->Num());
    EXPECT_EQ(1001, rate->Den());
}

TEST(MatchMediaFile, TagsMPEG4InAVI)
{
    EXPECT_EQ(IVXCodecParameter::MakeCodecTag('X', 'V', 'I', 'D'),
              Match("film.mp4", "AVI")->GetVideoCodecParameter()->GetCodecTag());
}

TEST(MatchMediaFile, OutputHasSquarePixels)
{
    EXPECT_EQ(1.0,
              Match("anamorphic.mp4", "MP4")->GetVideoCodecParameter()->GetAspectRatio()->GetDoubleValue());
}

int MatchedBitrate(int sourceBitrate)
{
    const auto file = ReadMediaFile(Media::Clip("film.mp4"));
    file.parameter->GetVideoCodecParameter()->SetBitrate(sourceBitrate);
    const auto preset = IVXFormatPreset::MallocFormatPreset("MP4", "");
    return preset->MatchForSource(file.parameter)->GetVideoCodecParameter()->GetBitrate();
}

TEST(MatchMediaFile, GradeFollowsTheSourcesBitrate)
{
    const auto video = Match("film.mp4", "MP4")->GetVideoCodecParameter();
    const auto [low, high] = RangeOf(*video);
    EXPECT_EQ(low, MatchedBitrate(100'000));
    EXPECT_EQ(high, MatchedBitrate(100'000'000));
}

} // namespace

} // namespace Vexlor
