#include "runtime/mediacodecs/SampleFormats.h"
#include "Columns.h"
#include "VXMediaCodecs.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

TEST(SampleFormats, NumbersFormatsAndNamesAreGivenOnce)
{
    EXPECT_EQ(SampleFormatTable().size(), DifferentValues(SampleFormatTable(), &SampleFormatRow::format));
    EXPECT_EQ(SampleFormatTable().size(), DifferentValues(SampleFormatTable(), &SampleFormatRow::name));
}

TEST(SampleFormats, EveryFormatOfLibavutilIsFoundBothWays)
{
    EXPECT_EQ(std::size_t{AV_SAMPLE_FMT_NB},
              DifferentValues(SampleFormatTable(), &SampleFormatRow::avFormat));
    for (const auto& row : SampleFormatTable())
    {
        EXPECT_EQ(row.format, SampleFormatOf(row.avFormat, row.bits));
        EXPECT_EQ(row.avFormat, AVSampleFormatOf(row.format));
        EXPECT_EQ(row.name, SampleFormatName(row.format));
    }
}

TEST(SampleFormats, TheFixedNumbersHold)
{
    EXPECT_EQ(VXSampleFormat_FLT, SampleFormatOf(AV_SAMPLE_FMT_FLT));
    EXPECT_EQ(VXSampleFormat_None, SampleFormatOf(AV_SAMPLE_FMT_NONE));
}

TEST(SampleFormats, NamesAreAsPeopleWriteThem)
{
    EXPECT_EQ("32-bit float", SampleFormatName(VXSampleFormat_FLT));
    EXPECT_EQ("16-bit", SampleFormatName(kSampleFormatS16));
    EXPECT_EQ("", SampleFormatName(VXSampleFormat_None));
}

// libavutil keeps them in samples of 32, as it does those of 32.
TEST(SampleFormats, SamplesOf24BitsAreAFormatOfTheirOwn)
{
    EXPECT_EQ(kSampleFormatS24, SampleFormatOf(AV_SAMPLE_FMT_S32, 24));
    EXPECT_EQ(kSampleFormatS32, SampleFormatOf(AV_SAMPLE_FMT_S32, 32));
    EXPECT_EQ(kSampleFormatS32P, SampleFormatOf(AV_SAMPLE_FMT_S32P));
    EXPECT_EQ(kSampleFormatS16, SampleFormatOf(AV_SAMPLE_FMT_S16, 14));
    EXPECT_EQ("24-bit", SampleFormatName(kSampleFormatS24));
}

TEST(SampleFormats, TellTheirBits)
{
    EXPECT_EQ(16, SampleBitsOf(kSampleFormatS16P));
    EXPECT_EQ(24, SampleBitsOf(kSampleFormatS24P));
    EXPECT_EQ(32, SampleBitsOf(VXSampleFormat_FLT));
    EXPECT_EQ(16, SampleBitsOf(-9));
}

} // namespace

} // namespace Vexlor
