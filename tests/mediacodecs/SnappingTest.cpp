#include "runtime/mediacodecs/Snapping.h"
#include "PictureSizes.h"
#include "runtime/mediacodecs/ChannelLayouts.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>

namespace Vexlor
{

namespace
{

constexpr ChromaBlock kHalfChroma{2, 2};
constexpr std::array kTwoSizes{PictureSize{176, 144}, PictureSize{352, 288}};
constexpr std::array kTwoRates{AVRational{25, 1}, AVRational{30000, 1001}};
constexpr VideoLimits kSmall{.min = {64, 64}, .max = {1920, 1080}};
constexpr VideoLimits kFixed{.min = {176, 144}, .max = {352, 288}, .sizes = kTwoSizes, .rates = kTwoRates};

struct SizeCase
{
    const char* name;
    PictureSize wanted;
    PictureSize best;
};

class SizeWithin1080 : public testing::TestWithParam<SizeCase>
{
};

TEST_P(SizeWithin1080, Snaps)
{
    EXPECT_EQ(GetParam().best, SnapSize(GetParam().wanted, kSmall, kHalfChroma));
}

constexpr auto kSizes = std::to_array<SizeCase>({
    {"Fitting", {1280, 720}, {1280, 720}},
    {"Odd", {853, 481}, {854, 482}},
    {"OddAtTheLimit", {1919, 1079}, {1920, 1080}},
    {"Twice", {3840, 2160}, {1920, 1080}},
    {"TooHigh", {1080, 1920}, {606, 1080}},
    {"TooWide", {4000, 1000}, {1920, 480}},
    {"TooSmall", {32, 16}, {128, 64}},
    {"None", {0, 0}, {1280, 720}},
    {"NoHeight", {1920, 0}, {1280, 720}},
    {"Negative", {-5, INT_MIN}, {1280, 720}},
    {"ALine", {INT_MAX, 1}, {1920, 64}},
    {"AColumn", {1, INT_MAX}, {64, 1080}},
    {"Huge", {INT_MAX, INT_MAX}, {1080, 1080}},
});
INSTANTIATE_TEST_SUITE_P(Sizes, SizeWithin1080, testing::ValuesIn(kSizes),
                         [](const auto& test) { return test.param.name; });

TEST(SnapSize, OfFixedSizesIsTheNearestByAreaAndShape)
{
    EXPECT_EQ((PictureSize{352, 288}), SnapSize({1920, 1080}, kFixed, kHalfChroma));
    EXPECT_EQ((PictureSize{176, 144}), SnapSize({160, 120}, kFixed, kHalfChroma));
    EXPECT_EQ((PictureSize{352, 288}), SnapSize({0, 0}, kFixed, kHalfChroma));
}

TEST(SnapSize, ShapeDecidesBetweenSizesOfOneArea)
{
    constexpr std::array kShapes{PictureSize{100, 400}, PictureSize{400, 100}};
    const VideoLimits twoShapes{.min = {100, 100}, .max = {400, 400}, .sizes = kShapes};
    EXPECT_EQ((PictureSize{400, 100}), SnapSize({300, 100}, twoShapes, kHalfChroma));
}

TEST(SnapSize, KeepsOddSidesWhereChromaAllowsThem)
{
    EXPECT_EQ((PictureSize{853, 481}), SnapSize({853, 481}, kSmall, {1, 1}));
}

TEST(SnapSize, KeepsToTheArea)
{
    constexpr VideoLimits kArea{.min = {16, 16}, .max = {1000, 1000}, .maxArea = 40000};
    EXPECT_EQ((PictureSize{200, 200}), SnapSize({1000, 1000}, kArea, kHalfChroma));
    EXPECT_EQ((PictureSize{400, 100}), SnapSize({800, 200}, kArea, kHalfChroma));
}

struct RateCase
{
    const char* name;
    AVRational wanted;
    AVRational best;
};

class RateOfAnyCodec : public testing::TestWithParam<RateCase>
{
};

TEST_P(RateOfAnyCodec, Snaps)
{
    const auto best = SnapFrameRate(GetParam().wanted, kSmall);
    EXPECT_EQ(GetParam().best.num, best.num);
    EXPECT_EQ(GetParam().best.den, best.den);
}

constexpr auto kRates = std::to_array<RateCase>({
    {"ExactFraction", {30000, 1001}, {30000, 1001}},
    {"Unreduced", {60, 2}, {60, 2}},
    {"TooSlow", {1, 5}, {1, 1}},
    {"TooFast", {INT_MAX, 1}, {300, 1}},
    {"Zero", {0, 1}, {30, 1}},
    {"Invalid", {0, 0}, {30, 1}},
    {"Infinite", {1, 0}, {30, 1}},
    {"Negative", {-25, 1}, {30, 1}},
    {"TwoSigns", {-25, -1}, {25, 1}},
    {"Smallest", {INT_MIN, INT_MIN}, {1, 1}},
    {"SmallestOverMinusOne", {INT_MIN, -1}, {300, 1}},
});
INSTANTIATE_TEST_SUITE_P(Rates, RateOfAnyCodec, testing::ValuesIn(kRates),
                         [](const auto& test) { return test.param.name; });

TEST(SnapFrameRate, OfFixedRatesIsTheNearest)
{
    EXPECT_EQ(30000, SnapFrameRate({30, 1}, kFixed).num);
    EXPECT_EQ(25, SnapFrameRate({24, 1}, kFixed).num);
    EXPECT_EQ(30000, SnapFrameRate({0, 0}, kFixed).num);
}

TEST(SnapFrameRate, OfFixedRatesIsTheUpperOneOnATie)
{
    constexpr std::array kTie{AVRational{20, 1}, AVRational{30, 1}, AVRational{10, 1}};
    EXPECT_EQ(30, SnapFrameRate({25, 1}, {.min = {}, .max = {}, .rates = kTie}).num);
    EXPECT_EQ(20, SnapFrameRate({15, 1}, {.min = {}, .max = {}, .rates = kTie}).num);
}

TEST(SnapFrameRate, KeepsTermsWithinTheCodecsField)
{
    const VideoLimits limits{.min = {}, .max = {}, .maxRateTerm = 65535};
    const auto best = SnapFrameRate({90000000, 3003003}, limits);
    EXPECT_LE(best.num, 65535);
    EXPECT_LE(best.den, 65535);
    EXPECT_NEAR(90000000.0 / 3003003.0, av_q2d(best), 1e-6);
}

TEST(SnapSampleRate, IsTheNearestAndTheUpperOneOnATie)
{
    constexpr std::array kRatesHere{48000, 44100, 32000, 24000};
    EXPECT_EQ(44100, SnapSampleRate(44100, kRatesHere));
    EXPECT_EQ(48000, SnapSampleRate(96000, kRatesHere));
    EXPECT_EQ(32000, SnapSampleRate(28000, kRatesHere));
    EXPECT_EQ(24000, SnapSampleRate(1, kRatesHere));
    EXPECT_EQ(48000, SnapSampleRate(INT_MAX, kRatesHere));
}

TEST(SnapSampleRate, IsAUsableOneForWhatIsNoRate)
{
    constexpr std::array kRatesHere{48000, 44100};
    EXPECT_EQ(48000, SnapSampleRate(0, kRatesHere));
    EXPECT_EQ(48000, SnapSampleRate(INT_MIN, kRatesHere));
    EXPECT_EQ(0, SnapSampleRate(44100, {}));
}

struct LayoutCase
{
    const char* name;
    std::uint64_t wanted;
    std::uint64_t best;
};

class LayoutOfThree : public testing::TestWithParam<LayoutCase>
{
};

TEST_P(LayoutOfThree, Snaps)
{
    constexpr std::array kThree{kStereo, kQuad, kLayout51};
    EXPECT_EQ(GetParam().best, SnapLayout(GetParam().wanted, kThree));
}

constexpr auto kLayouts = std::to_array<LayoutCase>({
    {"Same", kLayout51, kLayout51},
    {"AsManyChannels", kLayout51Side, kLayout51},
    {"LargestWithFewer", kLayout50, kQuad},
    {"LargestOfAll", ~0ULL, kLayout51},
    {"SmallestWhenNoneIsFewer", kMono, kStereo},
    {"None", 0, kStereo},
});
INSTANTIATE_TEST_SUITE_P(Layouts, LayoutOfThree, testing::ValuesIn(kLayouts),
                         [](const auto& test) { return test.param.name; });

TEST(SnapLayout, IsNoneWithoutLayouts) { EXPECT_EQ(0U, SnapLayout(kStereo, {})); }

} // namespace

} // namespace Vexlor
