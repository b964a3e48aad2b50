#include "runtime/mediacodecs/PixelFormats.h"
#include "Columns.h"
#include "VXMediaCodecs.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

TEST(PixelFormats, NumbersFormatsAndNamesAreGivenOnce)
{
    EXPECT_EQ(PixelFormatTable().size(), DifferentValues(PixelFormatTable(), &PixelFormatRow::format));
    EXPECT_EQ(PixelFormatTable().size(), DifferentValues(PixelFormatTable(), &PixelFormatRow::avFormat));
    EXPECT_EQ(PixelFormatTable().size(), DifferentValues(PixelFormatTable(), &PixelFormatRow::name));
}

TEST(PixelFormats, EveryRowIsFoundBothWays)
{
    for (const auto& row : PixelFormatTable())
    {
        EXPECT_EQ(row.format, PixelFormatOf(row.avFormat));
        EXPECT_EQ(row.avFormat, AVPixelFormatOf(row.format));
        EXPECT_EQ(row.name, PixFormatName(row.format));
    }
}

TEST(PixelFormats, TheFixedNumbersHold)
{
    EXPECT_EQ(VXPixFormat_YUV420P, PixelFormatOf(AV_PIX_FMT_YUV420P));
    EXPECT_EQ(VXPixFormat_None, PixelFormatOf(AV_PIX_FMT_NONE));
    EXPECT_EQ(AV_PIX_FMT_NONE, AVPixelFormatOf(VXPixFormat_None));
}

TEST(PixelFormats, NumbersThatAreNotKnownHaveNoName)
{
    EXPECT_EQ("", PixFormatName(VXPixFormat_None));
    EXPECT_EQ("", PixFormatName(999999));
}

TEST(PixelFormats, NamesAreAsPeopleWriteThem)
{
    EXPECT_EQ("YUV 4:2:0", PixFormatName(VXPixFormat_YUV420P));
    EXPECT_EQ("YUV 4:2:2 10-bit", PixFormatName(kPixFormatYUV422P10));
}

TEST(PixelFormats, TellDepthAndChroma)
{
    EXPECT_EQ(8, BitDepthOf(VXPixFormat_YUV420P));
    EXPECT_EQ(12, BitDepthOf(kPixFormatYUV422P12));
    EXPECT_DOUBLE_EQ(1.5, SamplesPerPixel(VXPixFormat_YUV420P));
    EXPECT_DOUBLE_EQ(2.0, SamplesPerPixel(kPixFormatYUV422P10));
    EXPECT_DOUBLE_EQ(3.0, SamplesPerPixel(kPixFormatGBRP));
    EXPECT_DOUBLE_EQ(1.0, SamplesPerPixel(kPixFormatGray8));
}

TEST(PixelFormats, TellTheBlockThatSharesItsChroma)
{
    EXPECT_EQ(2, ChromaBlockOf(VXPixFormat_YUV420P).height);
    EXPECT_EQ(2, ChromaBlockOf(kPixFormatYUV422P).width);
    EXPECT_EQ(1, ChromaBlockOf(kPixFormatYUV422P).height);
    EXPECT_EQ(1, ChromaBlockOf(kPixFormatYUV444P).width);
}

TEST(PixelFormats, NumbersThatAreNotKnownReadAsTheUsualPicture)
{
    EXPECT_EQ(8, BitDepthOf(-7));
    EXPECT_DOUBLE_EQ(1.5, SamplesPerPixel(-7));
    EXPECT_EQ(1, ChromaBlockOf(-7).width);
}

} // namespace

} // namespace Vexlor
