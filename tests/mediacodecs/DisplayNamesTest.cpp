#include "runtime/mediacodecs/DisplayNames.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <limits>

namespace Vexlor
{

namespace
{

std::string Text(const std::shared_ptr<IVXRational>& ratio)
{
    return std::to_string(ratio->Num()) + "/" + std::to_string(ratio->Den());
}

TEST(DisplayNames, ASizeHasSpacesAroundTheCross)
{
    EXPECT_EQ("1920 x 1080", VXMediaCodecFormatResolution(1920, 1080));
    EXPECT_EQ("-1 x 0", VXMediaCodecFormatResolution(-1, 0));
}

TEST(DisplayNames, ASampleRateIsInKilohertzWithTheDecimalsItNeeds)
{
    EXPECT_EQ("44.1 kHz", VXMediaCodecFormatSamplerate(44100));
    EXPECT_EQ("48 kHz", VXMediaCodecFormatSamplerate(48000));
    EXPECT_EQ("22.05 kHz", VXMediaCodecFormatSamplerate(22050));
    EXPECT_EQ("11.025 kHz", VXMediaCodecFormatSamplerate(11025));
    EXPECT_EQ("0 kHz", VXMediaCodecFormatSamplerate(0));
}

TEST(DisplayNames, ADecimalDropsOnlyZeroesBehindThePoint)
{
    EXPECT_EQ("100", FormatDecimal(100, 2));
    EXPECT_EQ("0.5", FormatDecimal(0.5, 2));
    EXPECT_EQ("1200", FormatDecimal(1200, 0));
}

TEST(DisplayNames, TheLargestDoubleHasAText)
{
    EXPECT_EQ(309U, FormatDecimal(std::numeric_limits<double>::max(), 3).size());
}

TEST(DisplayNames, DvdPicturesHaveTheAspectsOfBT601)
{
    EXPECT_EQ("16/11", Text(VXMediaCodecDVDSampleAspectRatio(TVStandNormPAL, TVAspectType16x9)));
    EXPECT_EQ("12/11", Text(VXMediaCodecDVDSampleAspectRatio(TVStandNormPAL, TVAspectType4x3)));
    EXPECT_EQ("40/33", Text(VXMediaCodecDVDSampleAspectRatio(TVStandNormNTSC, TVAspectType16x9)));
    EXPECT_EQ("10/11", Text(VXMediaCodecDVDSampleAspectRatio(TVStandNormNTSC, TVAspectType4x3)));
}

TEST(DisplayNames, NormsAndAspectsOutsideTheEnumerationsReadAsPalAndWide)
{
    EXPECT_EQ("16/11", Text(VXMediaCodecDVDSampleAspectRatio(TVStandNorm{-1}, TVAspectType{7})));
    EXPECT_EQ("4/3", Text(VXMediaCodecDVHDSampleAspectRatio(TVStandNorm{9}, TVAspectType{9})));
    EXPECT_EQ("4/3", Text(VXMediaCodecDVHD720PSampleAspectRatio(TVStandNorm{9}, TVAspectType{9})));
}

struct Screen
{
    const char* name;
    TVStandNorm norm;
    TVAspectType aspect;
    std::shared_ptr<IVXRational> (*ratio)(TVStandNorm, TVAspectType);
    int width;
    int height;
};

class HighDefinition : public testing::TestWithParam<Screen>
{
};

TEST_P(HighDefinition, FillsAScreenOfItsShape)
{
    const auto& screen = GetParam();
    const double shape = screen.aspect == TVAspectType4x3 ? 4.0 / 3.0 : 16.0 / 9.0;
    const double shown =
        screen.ratio(screen.norm, screen.aspect)->GetDoubleValue() * screen.width / screen.height;
    EXPECT_NEAR(shape, shown, 1e-12);
}

constexpr auto kScreens = std::to_array<Screen>({
    {"PalInterlacedWide", TVStandNormPAL, TVAspectType16x9, VXMediaCodecDVHDSampleAspectRatio, 1440, 1080},
    {"PalInterlacedNarrow", TVStandNormPAL, TVAspectType4x3, VXMediaCodecDVHDSampleAspectRatio, 1440, 1080},
    {"NtscInterlacedWide", TVStandNormNTSC, TVAspectType16x9, VXMediaCodecDVHDSampleAspectRatio, 1280, 1080},
    {"NtscInterlacedNarrow", TVStandNormNTSC, TVAspectType4x3, VXMediaCodecDVHDSampleAspectRatio, 1280, 1080},
    {"PalProgressiveWide", TVStandNormPAL, TVAspectType16x9, VXMediaCodecDVHD720PSampleAspectRatio, 960, 720},
    {"PalProgressiveNarrow", TVStandNormPAL, TVAspectType4x3, VXMediaCodecDVHD720PSampleAspectRatio, 960,
     720},
    {"NtscProgressiveWide", TVStandNormNTSC, TVAspectType16x9, VXMediaCodecDVHD720PSampleAspectRatio, 960,
     720},
    {"NtscProgressiveNarrow", TVStandNormNTSC, TVAspectType4x3, VXMediaCodecDVHD720PSampleAspectRatio, 960,
     720},
});
INSTANTIATE_TEST_SUITE_P(Screens, HighDefinition, testing::ValuesIn(kScreens),
                         [](const auto& test) { return test.param.name; });

} // namespace

} // namespace Vexlor
