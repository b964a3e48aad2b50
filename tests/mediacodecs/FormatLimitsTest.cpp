#include "runtime/mediacodecs/FormatLimits.h"
#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/FormatTable.h"
#include "runtime/mediacodecs/LevelTable.h"
#include "runtime/mediacodecs/PixelFormats.h"
#include "runtime/mediacodecs/SampleFormats.h"
#include "runtime/mediacodecs/Snapping.h"
#include "runtime/mediacodecs/VXFormatParameter.h"
#include "runtime/mediacodecs/VXLevels.h"

#include <gtest/gtest.h>

#include <algorithm>

extern "C"
{
#include <libavformat/avformat.h>
}

namespace Vexlor
{

namespace
{

std::shared_ptr<IVXCodecParameter> Sound(int codecID, int sampleRate, std::uint64_t layout)
{
    auto sound = IVXCodecParameter::MallocCodecParamter(codecID);
    sound->SetSampleRate(sampleRate);
    sound->SetChannelLayout(layout);
    sound->SetFormat(kSampleFormatS16);
    return sound;
}

int RateIn(const char* container, int codecID, int sampleRate)
{
    const auto sound = Sound(codecID, sampleRate, kStereo);
    FitIntoContainer(*sound, container);
    return sound->GetSampleRate();
}

TEST(FormatLimits, SoundTakesTheNearestRateThatTheContainerHas)
{
    EXPECT_EQ(22050, RateIn("FLV", VXCodecID_MP3, 24000));
    EXPECT_EQ(44100, RateIn("FLV", VXCodecID_MP3, 32000)); // by ratio
    EXPECT_EQ(16000, RateIn("MP4", VXCodecID_MP3, 8000));
    EXPECT_EQ(48000, RateIn("MXF", VXCodecID_PCM24, 192000));
}

TEST(FormatLimits, WhatTheContainerTakesStays)
{
    EXPECT_EQ(48000, RateIn("FLV", VXCodecID_MP3, 48000));
    EXPECT_EQ(8000, RateIn("FLV", VXCodecID_AAC, 8000)); // the limit is MP3's alone
    EXPECT_EQ(8000, RateIn("MP3", VXCodecID_MP3, 8000));
    EXPECT_EQ(8000, RateIn("no such container", VXCodecID_MP3, 8000));
}

TEST(FormatLimits, LabelsThatTheContainerCannotTellGiveWay)
{
    const auto picture = IVXCodecParameter::MallocCodecParamter(VXCodecID_MPEG2);
    picture->SetProfile(5); // Simple
    picture->SetLevel(10);  // Low
    FitIntoContainer(*picture, "MXF");
    EXPECT_EQ(4, picture->GetProfile());
    EXPECT_EQ(8, picture->GetLevel());
}

TEST(FormatLimits, LabelsThatAreLeftOpenStayOpen)
{
    const auto picture = IVXCodecParameter::MallocCodecParamter(VXCodecID_MPEG2);
    FitIntoContainer(*picture, "MXF");
    EXPECT_EQ(IVXCodecs::VXProfileUnknown, picture->GetProfile());
    EXPECT_EQ(IVXCodecs::VXLevelUnknown, picture->GetLevel());
}

TEST(FormatLimits, SoundInDVIsStereo)
{
    const auto sound = Sound(VXCodecID_PCM16, 44100, kLayout51);
    FitIntoContainer(*sound, "DV");
    EXPECT_EQ(kStereo, sound->GetChannelLayout());
    EXPECT_EQ(44100, sound->GetSampleRate());
}

TEST(FormatLimits, TheBitrateOfPlainSamplesFollowsThem)
{
    const auto sound = Sound(VXCodecID_PCM16, 96000, kStereo);
    sound->SetBitrate(96000 * 2 * 16);
    FitIntoContainer(*sound, "MXF");
    EXPECT_EQ(48000 * 2 * 16, sound->GetBitrate());
}

int BitrateIn(const char* container, int codecID, int sampleRate, int bitrate)
{
    const auto sound = Sound(codecID, sampleRate, kStereo);
    sound->SetBitrate(bitrate);
    FitIntoContainer(*sound, container);
    return sound->GetBitrate();
}

TEST(FormatLimits, AGradeIsThatOfTheRateThatTheContainerTakes)
{
    const auto codecs = IVXCodecs::MallocCodecs(VXCodecID_MP3, true);
    const auto best = [&](int rate)
    { return codecs->BestBitrateFor(rate, kStereo, kSampleFormatS16, IVXCodecs::QualityLevelBest, ""); };
    EXPECT_EQ(best(44100), BitrateIn("FLV", VXCodecID_MP3, 32000, best(32000)));
    EXPECT_NE(best(44100), best(32000));
}

TEST(FormatLimits, AChosenBitrateStays)
{
    EXPECT_EQ(112'000, BitrateIn("FLV", VXCodecID_MP3, 32000, 112'000));
}

TEST(FormatLimits, AChosenBitrateThatTheNewRateLacksTakesTheNearest)
{
    EXPECT_EQ(320'000, BitrateIn("FLV", VXCodecID_MP3, 32000, 384'000));
    EXPECT_EQ(32'000, BitrateIn("FLV", VXCodecID_MP3, 32000, 24'000));
}

TEST(FormatLimits, SoundOnDiscsHas48Kilohertz)
{
    EXPECT_EQ(48000, RateIn("VOB", VXCodecID_AC3, 44100));
    EXPECT_EQ(48000, RateIn("VOB", VXCodecID_MP2, 32000));
    EXPECT_EQ(48000, RateIn("M2TS", VXCodecID_AC3, 32000));
}

TEST(FormatLimits, SoundOnDVDHasTheMostThatPlayersTake)
{
    EXPECT_EQ(448'000, BitrateIn("VOB", VXCodecID_AC3, 48000, 640'000));
    EXPECT_EQ(640'000, BitrateIn("M2TS", VXCodecID_AC3, 48000, 640'000));
}

/// A picture and what becomes of it: "720x576 at 25/1, 64:45".
struct PictureCase
{
    const char* name;
    const char* container;
    int codecID;
    PictureSize size;
    AVRational rate;
    const char* outline;
};

std::shared_ptr<IVXCodecParameter> PictureIn(const PictureCase& test)
{
    auto picture = IVXCodecParameter::MallocCodecParamter(test.codecID);
    picture->SetWidth(test.size.width);
    picture->SetHeight(test.size.height);
    picture->SetFramePerSecond(IVXRational::MallocRational(test.rate.num, test.rate.den));
    picture->SetFormat(VXPixFormat_YUV420P);
    FitIntoContainer(*picture, test.container);
    return picture;
}

std::string Terms(const IVXRational& ratio, char between)
{
    return std::to_string(ratio.Num()) + between + std::to_string(ratio.Den());
}

class PicturesOnDiscs : public testing::TestWithParam<PictureCase>
{
};

TEST_P(PicturesOnDiscs, AreWhatPlayersTake)
{
    const auto picture = PictureIn(GetParam());
    EXPECT_EQ(GetParam().outline,
              std::to_string(picture->GetWidth()) + 'x' + std::to_string(picture->GetHeight()) + " at " +
                  Terms(*picture->GetFrameRate(), '/') + ", " + Terms(*picture->GetAspectRatio(), ':'));
}

constexpr PictureCase kPictures[] = {
    {"Film", "VOB", VXCodecID_MPEG2, {1920, 1080}, {24, 1}, "720x576 at 25/1, 64:45"},
    {"HalfOf50", "VOB", VXCodecID_MPEG2, {1280, 720}, {50, 1}, "720x576 at 25/1, 64:45"},
    {"HalfOf60", "VOB", VXCodecID_MPEG2, {1280, 720}, {60, 1}, "720x480 at 30000/1001, 32:27"},
    {"TwiceOf15", "VOB", VXCodecID_MPEG2, {640, 480}, {15, 1}, "704x480 at 30000/1001, 10:11"},
    {"DVDItself", "VOB", VXCodecID_MPEG2, {704, 576}, {25, 1}, "704x576 at 25/1, 12:11"},
    {"SmallPicturesAreNotWide", "VOB", VXCodecID_MPEG1, {640, 360}, {25, 1}, "352x288 at 25/1, 12:11"},
    {"FilmOnBluRay", "M2TS", VXCodecID_H264, {1920, 800}, {24, 1}, "1920x1080 at 24/1, 1:1"},
    {"SmallOnBluRay", "M2TS", VXCodecID_H264, {640, 480}, {25, 1}, "720x576 at 25/1, 16:15"},
    {"Motion", "M2TS", VXCodecID_H264, {1280, 720}, {60, 1}, "1280x720 at 60000/1001, 1:1"},
    {"MotionInMPEG2", "M2TS", VXCodecID_MPEG2, {1920, 1080}, {60, 1}, "1280x720 at 60000/1001, 1:1"},
    {"FilmInMPEG2", "M2TS", VXCodecID_MPEG2, {1920, 1080}, {24, 1}, "1920x1080 at 24/1, 1:1"},
    {"UltraHD", "M2TS", VXCodecID_HEVC, {3840, 2160}, {30, 1}, "3840x2160 at 60/1, 1:1"},
    {"TransportStreamOfAnything", "TS", VXCodecID_H264, {640, 480}, {15, 1}, "640x480 at 15/1, 1:1"},
};

INSTANTIATE_TEST_SUITE_P(Sizes, PicturesOnDiscs, testing::ValuesIn(kPictures),
                         [](const auto& test) { return test.param.name; });

TEST(FormatLimits, AChosenAspectStays)
{
    const auto picture = PictureIn({"", "MP4", VXCodecID_MPEG4, {720, 576}, {25, 1}, ""});
    picture->SetAspectRatio(IVXRational::MallocRational(16, 11));
    FitIntoContainer(*picture, "VOB");
    EXPECT_EQ("16:11", Terms(*picture->GetAspectRatio(), ':'));
}

TEST(FormatLimits, AGradeIsThatOfTheSizeThatTheContainerTakes)
{
    const auto codecs = IVXCodecs::MallocCodecs(VXCodecID_MPEG2, true);
    const auto picture = IVXCodecParameter::MallocCodecParamter(VXCodecID_MPEG2);
    const auto bitrate = [&]
    {
        return codecs->BestBitrateFor(picture->GetWidth(), picture->GetHeight(), picture->GetFrameRate(),
                                      picture->GetFormat(), IVXCodecs::QualityLevelNormal, "");
    };
    picture->SetWidth(1920);
    picture->SetHeight(1080);
    picture->SetFramePerSecond(IVXRational::MallocRational(25, 1));
    picture->SetBitrate(bitrate());
    FitIntoContainer(*picture, "VOB");
    EXPECT_EQ(720, picture->GetWidth());
    EXPECT_EQ(bitrate(), picture->GetBitrate());
}

TEST(FormatLimits, PicturesOnDiscsHaveTheMostBitrateThatPlayersTake)
{
    const auto picture = PictureIn({"", "MPG", VXCodecID_MPEG2, {720, 576}, {25, 1}, ""});
    picture->SetBitrate(15'000'000);
    picture->SetMaxBitrate(15'000'000);
    FitIntoContainer(*picture, "VOB");
    EXPECT_EQ(9'800'000, picture->GetBitrate());
    EXPECT_EQ(9'800'000, picture->GetMaxBitrate());
}

std::shared_ptr<IVXCodecParameter> Disc(const char* container, int codecID, int bitrate, int level = -99)
{
    auto picture = PictureIn({"", "MKV", codecID, {720, 576}, {25, 1}, ""});
    picture->SetBitrate(bitrate);
    picture->SetLevel(level);
    FitIntoContainer(*picture, container);
    return picture;
}

// Or an average within the limit would have seconds far beyond it.
TEST(FormatLimits, PicturesOnDiscsAreBoundedAtThatWhereTheyAreUnbounded)
{
    EXPECT_EQ(9'800'000, Disc("VOB", VXCodecID_MPEG2, 8'000'000)->GetMaxBitrate());
    EXPECT_EQ(1'856'000, Disc("VOB", VXCodecID_MPEG1, 1'150'000)->GetMaxBitrate());
    EXPECT_EQ(40'000'000, Disc("M2TS", VXCodecID_H264, 8'000'000)->GetMaxBitrate());
    EXPECT_EQ(0, Disc("TS", VXCodecID_H264, 8'000'000)->GetMaxBitrate());
}

TEST(FormatLimits, PicturesOnDiscsAreBoundedAtTheLevelThatIsChosen)
{
    const auto picture = Disc("M2TS", VXCodecID_H264, 8'000'000, 30);
    EXPECT_EQ(10'000'000, picture->GetMaxBitrate());
    EXPECT_EQ(30, picture->GetLevel());
    EXPECT_EQ(9'800'000, Disc("VOB", VXCodecID_MPEG2, 8'000'000, 8)->GetMaxBitrate());
}

TEST(FormatLimits, SoundAndConstantBitratesNeedNoBound)
{
    const auto picture = PictureIn({"", "MKV", VXCodecID_MPEG2, {720, 576}, {25, 1}, ""});
    picture->SetBitrate(4'000'000);
    picture->SetBitrateMode(1);
    FitIntoContainer(*picture, "VOB");
    EXPECT_EQ(0, picture->GetMaxBitrate());
    const auto sound = Sound(VXCodecID_AC3, 48000, kStereo);
    FitIntoContainer(*sound, "VOB");
    EXPECT_EQ(0, sound->GetMaxBitrate());
}

TEST(FormatLimits, PicturesOnDVDHaveHalfChroma)
{
    const auto picture = PictureIn({"", "MPG", VXCodecID_MPEG2, {720, 576}, {25, 1}, ""});
    picture->SetFormat(kPixFormatYUV422P);
    FitIntoContainer(*picture, "VOB");
    EXPECT_EQ(VXPixFormat_YUV420P, picture->GetFormat());
}

TEST(FormatLimits, PicturesInMXFHaveARateOfTelevision)
{
    const auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_ProRes);
    video->SetFramePerSecond(IVXRational::MallocRational(15, 1));
    FitIntoContainer(*video, "MXF");
    EXPECT_EQ("30/1", Terms(*video->GetFrameRate(), '/')); // each picture twice
}

int ProfiledBitrate(const char* container, int codecID, int profile, int bitrate)
{
    const auto video = IVXCodecParameter::MallocCodecParamter(codecID);
    video->SetWidth(1920);
    video->SetHeight(1080);
    video->SetFramePerSecond(IVXRational::MallocRational(30000, 1001));
    video->SetFormat(codecID == VXCodecID_ProRes ? kPixFormatYUV422P10 : kPixFormatYUV422P);
    video->SetProfile(profile);
    video->SetBitrate(bitrate);
    FitIntoContainer(*video, container);
    return video->GetBitrate();
}

// Apple ProRes White Paper, target data rates: 45 Mb/s of Proxy, 102 of LT, 220 of HQ.
TEST(FormatLimits, ABitrateIsThatOfTheProfile)
{
    EXPECT_EQ(45'000'000, ProfiledBitrate("MOV", VXCodecID_ProRes, 0, 220'000'000));
    EXPECT_EQ(102'000'000, ProfiledBitrate("MKV", VXCodecID_ProRes, 1, 1'000));
    EXPECT_EQ(220'000'000, ProfiledBitrate("MOV", VXCodecID_DNxHR, 3, 45'000'000));
}

TEST(FormatLimits, WithoutAProfileABitrateIsTheNearestThatAProfileHas)
{
    EXPECT_EQ(102'000'000,
              ProfiledBitrate("MOV", VXCodecID_ProRes, IVXCodecs::VXProfileUnknown, 100'000'000));
}

TEST(FormatLimits, ABitrateIsOneThatTheStandardLists)
{
    EXPECT_EQ(145'000'000, ProfiledBitrate("MOV", VXCodecID_DNxHD, IVXCodecs::VXProfileUnknown, 100'000'000));
}

TEST(FormatLimits, ABitrateThatTheCodecTakesAndOneThatIsNotKnownStay)
{
    EXPECT_EQ(1'234'567, ProfiledBitrate("MP4", VXCodecID_H264, IVXCodecs::VXProfileUnknown, 1'234'567));
    EXPECT_EQ(0, ProfiledBitrate("MOV", VXCodecID_ProRes, 0, 0));
}

std::uint32_t TagIn(const char* container, int codecID, std::uint32_t tag = 0)
{
    const auto picture = IVXCodecParameter::MallocCodecParamter(codecID);
    picture->SetCodecTag(tag);
    FitIntoContainer(*picture, container);
    return picture->GetCodecTag();
}

// Apple's players refuse libavformat's own choice, hev1.
TEST(FormatLimits, HEVCIsTaggedForApplesPlayers)
{
    const auto tag = IVXCodecParameter::MakeCodecTag('h', 'v', 'c', '1');
    EXPECT_EQ(tag, TagIn("MP4", VXCodecID_HEVC));
    EXPECT_EQ(tag, TagIn("MOV", VXCodecID_HEVC));
    EXPECT_EQ(0U, TagIn("MKV", VXCodecID_HEVC));
}

TEST(FormatLimits, MPEG4InAVIIsTaggedForItsPlayers)
{
    EXPECT_EQ(IVXCodecParameter::MakeCodecTag('X', 'V', 'I', 'D'), TagIn("AVI", VXCodecID_MPEG4));
    EXPECT_EQ(IVXCodecParameter::MakeCodecTag('D', 'X', '5', '0'), TagIn("AVI", VXCodecID_DIVX));
}

TEST(FormatLimits, AChosenTagStays) { EXPECT_EQ(7U, TagIn("MP4", VXCodecID_HEVC, 7)); }

TEST(FormatLimits, AnOutputsStreamsAreFitted)
{
    const auto output = IVXFormatParameter::MallocFormatParameter("MXF", "");
    output->SetAudioCodecParameter(Sound(VXCodecID_PCM16, 44100, kStereo));
    EXPECT_EQ(48000, output->GetAudioCodecParameter()->GetSampleRate());
}

TEST(FormatLimits, ASourceIsWhatItIs)
{
    const auto source = MallocSourceParameter("MXF");
    source->SetAudioCodecParameter(Sound(VXCodecID_PCM16, 44100, kStereo));
    EXPECT_EQ(44100, source->GetAudioCodecParameter()->GetSampleRate());
}

template <class Value>
bool HoldsAll(std::span<const Value> all, std::span<const Value> some)
{
    return std::ranges::all_of(some, [&](const Value& value)
                               { return std::ranges::find(all, value) != all.end(); });
}

// Or what is fitted into the container would no longer be what the codec accepts.
TEST(FormatLimits, AreWithinWhatTheirCodecsAccept)
{
    for (const auto& format : FormatTable())
        for (const auto& limit : format.limits)
            for (const int codecID : limit.codecs)
            {
                const auto& codec = *FindCodec(codecID);
                EXPECT_TRUE(HoldsAll(codec.audio.sampleRates, limit.sampleRates)) << codec.name;
                EXPECT_TRUE(HoldsAll(codec.audio.layouts, limit.layouts)) << codec.name;
                for (const auto rate : limit.frameRates)
                    EXPECT_EQ(0, av_cmp_q(rate, SnapFrameRate(rate, codec.video))) << codec.name;
                for (const auto& system : limit.systems)
                    for (const auto size : system.sizes)
                        EXPECT_EQ(size, SnapSize(size, codec.video, {2, 2})) << codec.name;
                EXPECT_TRUE(HoldsAll(codec.formats, limit.formats)) << codec.name;
            }
}

TEST(FormatLimits, EveryRateOfALimitHasSizesWhereAnyHas)
{
    for (const auto& format : FormatTable())
        for (const auto& limit : format.limits)
            for (const auto rate : limit.frameRates)
                EXPECT_TRUE(limit.systems.empty() ||
                            std::ranges::any_of(limit.systems,
                                                [rate](const auto& system) {
                                                    return std::ranges::any_of(
                                                        system.rates, [rate](AVRational each)
                                                        { return av_cmp_q(rate, each) == 0; });
                                                }))
                    << format.name << ' ' << rate.num << '/' << rate.den;
}

bool HasALevel(int codecID, PictureSize size, AVRational rate)
{
    VXLevelStream stream;
    stream.codecID = codecID;
    stream.width = size.width;
    stream.height = size.height;
    stream.frameRate = IVXRational::MallocRational(rate.num, rate.den);
    return LevelsOf(codecID).empty() || SmallestLevel(stream) != IVXCodecs::VXLevelUnknown;
}

TEST(FormatLimits, ALevelHoldsEverySizeAtEveryRate)
{
    for (const auto& format : FormatTable())
        for (const auto& limit : format.limits)
            for (const auto& system : limit.systems)
                for (const auto rate : system.rates)
                    for (const auto size : system.sizes)
                        EXPECT_TRUE(HasALevel(limit.codecs.front(), size, rate))
                            << format.name << ' ' << size.width << " at " << rate.num << '/' << rate.den;
}

TEST(FormatLimits, TagsAreKnownToTheMuxer)
{
    for (const auto& format : FormatTable())
        for (const auto& row : format.tags)
        {
            const auto* muxer = av_guess_format(std::string(format.muxer).c_str(), nullptr, nullptr);
            ASSERT_NE(nullptr, muxer) << format.name;
            EXPECT_EQ(FindCodec(row.codecID)->avID, av_codec_get_id(muxer->codec_tag, row.tag))
                << format.name;
        }
}

TEST(FormatLimits, AreOfCodecsThatTheContainerLists)
{
    for (const auto& format : FormatTable())
        for (const auto& limit : format.limits)
            for (const int codecID : limit.codecs)
                EXPECT_TRUE(std::ranges::find(format.audioCodecs, codecID) != format.audioCodecs.end() ||
                            std::ranges::find(format.videoCodecs, codecID) != format.videoCodecs.end())
                    << format.name << ' ' << codecID;
}

} // namespace

} // namespace Vexlor
