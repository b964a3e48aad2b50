#include "runtime/mediacodecs/CodecCapabilities.h"
#include "CodecLists.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/FFmpegCompat.h"
#include "runtime/mediacodecs/LevelTable.h"
#include "runtime/mediacodecs/SampleFormats.h"

#include <gmock/gmock.h>

#include <future>

namespace Vexlor
{

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

TEST(CodecCapabilities, LevelsThatNoEncoderMakesAreNotOffered)
{
    for (const auto& codec : CodecTable())
        for (const auto& level : LevelsOf(codec.id))
            EXPECT_EQ(level.onlyRead, std::ranges::find(CapabilitiesOf(codec.id)->levels, level.number) ==
                                          CapabilitiesOf(codec.id)->levels.end())
                << codec.name << ' ' << level.name;
}

TEST(CodecCapabilities, AreSharedByAllWhoAsk)
{
    EXPECT_EQ(CapabilitiesOf(VXCodecID_H264), CapabilitiesOf(VXCodecID_H264));
    const auto* elsewhere = std::async(std::launch::async, CapabilitiesOf, VXCodecID_H264).get();
    EXPECT_EQ(elsewhere, CapabilitiesOf(VXCodecID_H264));
}

TEST(CodecCapabilities, AreNoneForOtherNumbers)
{
    EXPECT_EQ(nullptr, CapabilitiesOf(VXCodecID_None));
    EXPECT_EQ(nullptr, CapabilitiesOf(-3));
}

TEST(CodecCapabilities, EncodersAndDecodersAreHere)
{
    for (const auto& codec : CodecTable())
    {
        for (const auto& name : CapabilitiesOf(codec.id)->encoders)
            EXPECT_NE(nullptr, avcodec_find_encoder_by_name(name.c_str())) << name;
        for (const auto& name : CapabilitiesOf(codec.id)->decoders)
            EXPECT_NE(nullptr, avcodec_find_decoder_by_name(name.c_str())) << name;
    }
}

TEST(CodecCapabilities, WithoutAnEncoderTheTableAnswers)
{
    for (const auto& codec : CodecTable())
        EXPECT_FALSE(CapabilitiesOf(codec.id)->formats.empty()) << codec.name;
}

TEST(CodecCapabilities, PicturesOfEightBitsAndHalfChromaAreOfferedFirstWhereTheCodecHasThem)
{
    for (const int id : CodecIDs(VXCodecTypeVideo))
    {
        const auto& formats = CapabilitiesOf(id)->formats;
        if (std::ranges::find(formats, VXPixFormat_YUV420P) != formats.end())
        {
            EXPECT_EQ(VXPixFormat_YUV420P, formats.front()) << id;
        }
    }
}

TEST(CodecCapabilities, PicturesOfTenBitsAreOfferedSecondWhereTheCodecHasThem)
{
    for (const int id : {VXCodecID_H264, VXCodecID_HEVC, VXCodecID_VP9, VXCodecID_AV1})
        EXPECT_EQ(kPixFormatYUV420P10, FindCodec(id)->formats[1]) << id;
}

TEST(CodecCapabilities, GIFIsOfferedWithItsPalette)
{
    EXPECT_EQ(kPixFormatPAL8, CapabilitiesOf(VXCodecID_GIF)->formats.front());
}

TEST(CodecCapabilities, NoPictureIsOfferedInAFormatOfGraphicsCards)
{
    for (const int id : CodecIDs(VXCodecTypeVideo))
        for (const int format : CapabilitiesOf(id)->formats)
            EXPECT_THAT(PixFormatName(format), Not(testing::HasSubstr("semi-planar"))) << id;
}

// The format that is chosen later must not be refused for the sides chosen now.
TEST(CodecCapabilities, SidesSuitTheChromaOfEveryOfferedFormat)
{
    for (const int id : CodecIDs(VXCodecTypeVideo))
        for (const int format : CapabilitiesOf(id)->formats)
        {
            EXPECT_EQ(0, CapabilitiesOf(id)->block.width % ChromaBlockOf(format).width) << id;
            EXPECT_EQ(0, CapabilitiesOf(id)->block.height % ChromaBlockOf(format).height) << id;
        }
}

TEST(CodecCapabilities, AreNarrowedToWhatTheEncoderTakes)
{
    const auto* av1 = CapabilitiesOf(VXCodecID_AV1);
    if (av1->encoders.empty() || av1->encoders.front() != "libsvtav1")
        GTEST_SKIP() << "another AV1 encoder is here";
    EXPECT_THAT(av1->formats, ElementsAre(VXPixFormat_YUV420P, kPixFormatYUV420P10));
    EXPECT_THAT(av1->profiles, ElementsAre(0));
}

TEST(CodecCapabilities, StereoIsOfferedFirstButForSpeech)
{
    for (const int id : CodecIDs(VXCodecTypeAudio))
    {
        const bool isSpeech = CapabilitiesOf(id)->sampleRates.front() <= 32000;
        EXPECT_EQ(isSpeech ? kMono : kStereo, CapabilitiesOf(id)->layouts.front()) << id;
    }
}

TEST(CodecCapabilities, HeAacIsACodecOfItsOwn)
{
    const auto* aac = CapabilitiesOf(VXCodecID_AAC);
    if (aac->encoders.empty())
        GTEST_SKIP() << "no AAC encoder is here";
    EXPECT_THAT(aac->profiles, ElementsAre(2));
    EXPECT_THAT(CapabilitiesOf(VXCodecID_HEAAC)->encoders, Not(Contains("aac")));
}

TEST(CodecCapabilities, Mp3TakesTheRatesOfThreeVersionsOfMpeg)
{
    const auto& rates = CapabilitiesOf(VXCodecID_MP3)->sampleRates;
    EXPECT_EQ(48000, rates.front());
    EXPECT_THAT(rates, Contains(8000));
    EXPECT_THAT(rates, Not(Contains(96000)));
}

} // namespace

} // namespace Vexlor
