#include "runtime/mediacodecs/CodecTable.h"
#include "Columns.h"
#include "VXMediaCodecs.h"
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
        EXPECT_LT(video.min.width, video.max.width) << codec.name;
        EXPECT_LT(video.min.height, video.max.height) << codec.name;
        EXPECT_LT(av_q2d(video.minRate), av_q2d(video.maxRate)) << codec.name;
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

TEST(CodecTable, HasNoRowForOtherNumbers)
{
    EXPECT_EQ(nullptr, FindCodec(VXCodecID_None));
    EXPECT_EQ(nullptr, FindCodec(-1));
    EXPECT_EQ(nullptr, FindCodec(999999));
}

TEST(CodecTable, EveryStreamWithoutATagIsFoundAsItsCodec)
{
    for (const auto& codec : CodecTable())
    {
        const int found = CodecIDOf(codec.avID, 0);
        EXPECT_TRUE(found == codec.id || codec.id == VXCodecID_DIVX)
            << codec.name; // DivX is known by its tag
    }
}

TEST(CodecTable, TheTagTellsDivXFromOtherMpeg4)
{
    for (const auto tag : {MKTAG('D', 'I', 'V', 'X'), MKTAG('D', 'X', '5', '0'), MKTAG('D', 'I', 'V', '5')})
        EXPECT_EQ(VXCodecID_DIVX, CodecIDOf(AV_CODEC_ID_MPEG4, tag));
    EXPECT_EQ(VXCodecID_MPEG4, CodecIDOf(AV_CODEC_ID_MPEG4, MKTAG('X', 'V', 'I', 'D')));
    EXPECT_EQ(VXCodecID_H264, CodecIDOf(AV_CODEC_ID_H264, MKTAG('D', 'I', 'V', 'X')));
}

TEST(CodecTable, ACodecWithoutANumberOfOursIsNone)
{
    EXPECT_EQ(VXCodecID_None, CodecIDOf(AV_CODEC_ID_COOK, 0));
    EXPECT_EQ(VXCodecID_None, CodecIDOf(AV_CODEC_ID_NONE, 0));
}

} // namespace

} // namespace Vexlor
