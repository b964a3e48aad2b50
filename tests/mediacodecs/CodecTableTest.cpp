#include "runtime/mediacodecs/CodecTable.h"
#include "Columns.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/FFmpegCompat.h"
#include "runtime/mediacodecs/Lookup.h"
#include "runtime/mediacodecs/PixelFormats.h"
#include "runtime/mediacodecs/SampleFormats.h"

#include <gtest/gtest.h>

extern "C"
{
#include <libavcodec/codec_desc.h>
#include <libavutil/macros.h>
}

namespace Vexlor
{

namespace
{

int CodecOf(AVCodecID avID, std::uint32_t tag)
{
    AVCodecParameters stream{};
    stream.codec_id = avID;
    stream.codec_tag = tag;
    return CodecIDOf(stream);
}

TEST(CodecTable, IdentifiersAndNamesAreGivenOnce)
{
    EXPECT_EQ(CodecTable().size(), DifferentValues(CodecTable(), &CodecRow::id));
    EXPECT_EQ(CodecTable().size(), DifferentValues(CodecTable(), &CodecRow::name));
}

TEST(CodecTable, TypesAgreeWithTheCodecsOfLibavcodec)
{
    for (const auto& codec : CodecTable())
        EXPECT_EQ(codec.type == VXCodecTypeVideo ? AVMEDIA_TYPE_VIDEO : AVMEDIA_TYPE_AUDIO,
                  avcodec_get_type(codec.avID))
            << codec.name;
}

TEST(CodecTable, EveryCodecOffersFormatsThatHaveAName)
{
    for (const auto& codec : CodecTable())
    {
        EXPECT_FALSE(codec.formats.empty()) << codec.name;
        for (const int format : codec.formats)
            EXPECT_FALSE(
                (codec.type == VXCodecTypeVideo ? PixFormatName(format) : SampleFormatName(format)).empty())
                << codec.name << ' ' << format;
    }
}

TEST(CodecTable, VideoLimitsEncloseAPictureAndARate)
{
    for (const auto& codec : CodecTable())
    {
        if (codec.type != VXCodecTypeVideo)
            continue;
        const auto& video = codec.video;
        EXPECT_GT(video.min.width, 0) << codec.name;
        EXPECT_GT(video.min.height, 0) << codec.name;
        EXPECT_LE(video.min.width, video.max.width) << codec.name;
        EXPECT_LE(video.min.height, video.max.height) << codec.name;
        EXPECT_GT(av_q2d(video.minRate), 0) << codec.name;
        EXPECT_LE(av_q2d(video.minRate), av_q2d(video.maxRate)) << codec.name;
    }
}

TEST(CodecTable, AudioCodecsOfferRatesAndLayouts)
{
    for (const auto& codec : CodecTable())
    {
        if (codec.type != VXCodecTypeAudio)
            continue;
        EXPECT_FALSE(codec.audio.sampleRates.empty()) << codec.name;
        EXPECT_FALSE(codec.audio.layouts.empty()) << codec.name;
    }
}

TEST(CodecTable, RatesOfMpeg1And2AreTheCodedOnes)
{
    for (const int id : {VXCodecID_MPEG1, VXCodecID_MPEG2})
        EXPECT_EQ(8U, FindCodec(id)->video.rates.size());
}

std::string SizesOf(int codecID)
{
    std::string text;
    for (const auto size : FindCodec(codecID)->video.sizes)
        text += std::to_string(size.width) + 'x' + std::to_string(size.height) + ' ';
    return text;
}

TEST(CodecTable, FixedSizesAreThoseOfTheStandards)
{
    EXPECT_EQ("352x288 176x144 ", SizesOf(VXCodecID_H261));
    EXPECT_EQ("1408x1152 704x576 352x288 176x144 128x96 ", SizesOf(VXCodecID_H263));
    EXPECT_EQ("1920x1080 1280x720 ", SizesOf(VXCodecID_DNxHD));
    EXPECT_EQ("720x576 ", SizesOf(VXCodecID_DV));
    EXPECT_EQ("720x480 ", SizesOf(VXCodecID_DVNTSC));
    EXPECT_EQ("", SizesOf(VXCodecID_DNxHR));
}

TEST(CodecTable, FixedSizesLieWithinTheLimits)
{
    for (const auto& codec : CodecTable())
        for (const auto size : codec.video.sizes)
        {
            EXPECT_GE(size.width, codec.video.min.width) << codec.name;
            EXPECT_GE(size.height, codec.video.min.height) << codec.name;
            EXPECT_LE(size.width, codec.video.max.width) << codec.name;
            EXPECT_LE(size.height, codec.video.max.height) << codec.name;
        }
}

TEST(CodecTable, RatesOfGifAreWholeHundredthsOfASecond)
{
    for (const auto rate : FindCodec(VXCodecID_GIF)->video.rates)
        EXPECT_EQ(0, 100 * rate.den % rate.num) << rate.num << '/' << rate.den;
}

TEST(CodecTable, HasTheCodecsThatPeopleConvertTo)
{
    const auto videos = std::ranges::count(CodecTable(), VXCodecTypeVideo, &CodecRow::type);
    EXPECT_GE(videos, 20);
    EXPECT_GE(static_cast<int>(CodecTable().size()) - videos, 25);
}

TEST(CodecTable, HasNoRowForOtherNumbers)
{
    EXPECT_EQ(nullptr, FindCodec(VXCodecID_None));
    EXPECT_EQ(nullptr, FindCodec(-1));
    EXPECT_EQ(nullptr, FindCodec(999999));
}

// The rows that come second to a codec of libavcodec's need more than its name.
TEST(CodecTable, EveryStreamThatTellsNoMoreIsTheFirstOfItsName)
{
    for (const auto& codec : CodecTable())
        EXPECT_EQ(FindRow(CodecTable(), &CodecRow::avID, codec.avID)->id, CodecOf(codec.avID, 0))
            << codec.name;
}

TEST(CodecTable, TheTagTellsDivXFromOtherMpeg4)
{
    for (const auto tag : {MKTAG('D', 'I', 'V', 'X'), MKTAG('D', 'X', '5', '0'), MKTAG('D', 'I', 'V', '5')})
        EXPECT_EQ(VXCodecID_DIVX, CodecOf(AV_CODEC_ID_MPEG4, tag));
    EXPECT_EQ(VXCodecID_MPEG4, CodecOf(AV_CODEC_ID_MPEG4, MKTAG('X', 'V', 'I', 'D')));
    EXPECT_EQ(VXCodecID_H264, CodecOf(AV_CODEC_ID_H264, MKTAG('D', 'I', 'V', 'X')));
}

TEST(CodecTable, TheProfileTellsDNxHRFromDNxHD)
{
    AVCodecParameters stream{};
    stream.codec_id = AV_CODEC_ID_DNXHD;
    EXPECT_EQ(VXCodecID_DNxHD, CodecIDOf(stream));
    stream.profile = VX_AV_PROFILE(DNXHR_SQ);
    EXPECT_EQ(VXCodecID_DNxHR, CodecIDOf(stream));
}

TEST(CodecTable, TheProfileTellsHEAACFromAAC)
{
    AVCodecParameters stream{};
    stream.codec_id = AV_CODEC_ID_AAC;
    for (const int profile : {VX_AV_PROFILE(AAC_HE), VX_AV_PROFILE(AAC_HE_V2)})
    {
        stream.profile = profile;
        EXPECT_EQ(VXCodecID_HEAAC, CodecIDOf(stream));
    }
    stream.profile = VX_AV_PROFILE(AAC_LOW);
    EXPECT_EQ(VXCodecID_AAC, CodecIDOf(stream));
}

TEST(CodecTable, TheHeightTellsTheSystemsOfDV)
{
    AVCodecParameters stream{};
    stream.codec_id = AV_CODEC_ID_DVVIDEO;
    stream.height = 576;
    EXPECT_EQ(VXCodecID_DV, CodecIDOf(stream));
    stream.height = 480;
    EXPECT_EQ(VXCodecID_DVNTSC, CodecIDOf(stream));
}

TEST(CodecTable, ACodecWithoutANumberOfOursIsNone)
{
    EXPECT_EQ(VXCodecID_None, CodecOf(AV_CODEC_ID_COOK, 0));
    EXPECT_EQ(VXCodecID_None, CodecOf(AV_CODEC_ID_NONE, 0));
}

} // namespace

} // namespace Vexlor
