#include "runtime/mediacodecs/FormatLimits.h"
#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/FormatTable.h"
#include "runtime/mediacodecs/SampleFormats.h"
#include "runtime/mediacodecs/Snapping.h"
#include "runtime/mediacodecs/VXFormatParameter.h"

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

TEST(FormatLimits, AChosenBitrateStays)
{
    const auto sound = Sound(VXCodecID_MP3, 32000, kStereo);
    sound->SetBitrate(96'000);
    FitIntoContainer(*sound, "FLV");
    EXPECT_EQ(96'000, sound->GetBitrate());
}

TEST(FormatLimits, PicturesInMXFHaveARateOfTelevision)
{
    const auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_ProRes);
    video->SetFramePerSecond(IVXRational::MallocRational(15, 1));
    FitIntoContainer(*video, "MXF");
    EXPECT_EQ("24000/1001", std::to_string(video->GetFrameRate()->Num()) + "/" +
                                std::to_string(video->GetFrameRate()->Den()));
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
            }
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
