#include "CodecLists.h"
#include "PictureSizes.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/Snapping.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace Vexlor
{

namespace
{

int AnySide(std::mt19937& random)
{
    // All magnitudes alike, not nearly all of them huge.
    const int bits = std::uniform_int_distribution(1, 30)(random);
    return std::uniform_int_distribution(-8, (1 << bits) - 1 + (1 << (bits - 1)))(random);
}

class EveryVideoCodec : public testing::TestWithParam<int>
{
protected:
    static const CodecCapabilities& Codec() { return *CapabilitiesOf(GetParam()); }
    static const VideoLimits& Limits() { return Codec().codec->video; }
    static PictureSize Snap(PictureSize size) { return SnapSize(size, Limits(), Codec().block); }
    static bool Holds(PictureSize size)
    {
        if (!Limits().sizes.empty())
            return std::ranges::find(Limits().sizes, size) != Limits().sizes.end();
        const auto& min = Limits().min;
        const auto& max = Limits().max;
        const auto area = Limits().maxArea;
        return size.width >= min.width && size.width <= max.width && size.height >= min.height &&
               size.height <= max.height && (area == 0 || std::int64_t{size.width} * size.height <= area) &&
               size.width % Codec().block.width == 0 && size.height % Codec().block.height == 0;
    }

    static bool IsListed(AVRational rate)
    {
        return std::ranges::any_of(Limits().rates, [rate](auto each) { return av_cmp_q(each, rate) == 0; });
    }

    static bool Holds(AVRational rate)
    {
        return av_q2d(rate) >= av_q2d(Limits().minRate) && av_q2d(rate) <= av_q2d(Limits().maxRate);
    }

    std::mt19937 m_random{42};
};

TEST_P(EveryVideoCodec, SnapsEverySizeIntoItsLimitsForGood)
{
    for (int i = 0; i < 20000; ++i)
    {
        const PictureSize wanted{AnySide(m_random), AnySide(m_random)};
        const auto best = Snap(wanted);
        ASSERT_TRUE(Holds(best)) << wanted.width << 'x' << wanted.height << " -> " << best.width << 'x'
                                 << best.height;
        ASSERT_EQ(best, Snap(best)) << wanted.width << 'x' << wanted.height;
    }
}

TEST_P(EveryVideoCodec, KeepsTheShapeOfUsualPicturesUnlessItsSizesAreFixed)
{
    if (!Limits().sizes.empty())
        return;
    for (const auto size : {PictureSize{7680, 4320}, {4096, 1716}, {2160, 3840}, {1440, 1080}})
    {
        const auto best = Snap(size);
        const double bent = double(best.width) * size.height / best.height / size.width;
        EXPECT_NEAR(1.0, bent, 0.003) << size.width << 'x' << size.height;
    }
}

TEST_P(EveryVideoCodec, SnapsEveryRateIntoItsLimitsForGood)
{
    for (int i = 0; i < 20000; ++i)
    {
        const AVRational wanted{AnySide(m_random), AnySide(m_random)};
        const auto best = SnapFrameRate(wanted, Limits());
        const auto again = SnapFrameRate(best, Limits());
        ASSERT_TRUE(Holds(best)) << wanted.num << '/' << wanted.den;
        ASSERT_EQ(std::pair(best.num, best.den), std::pair(again.num, again.den))
            << wanted.num << '/' << wanted.den;
    }
}

TEST_P(EveryVideoCodec, KeepsEveryFixedSizeAndRate)
{
    for (const auto size : Limits().sizes)
        EXPECT_EQ(size, Snap(size));
    for (const auto rate : Limits().rates)
        EXPECT_EQ(0, av_cmp_q(rate, SnapFrameRate(rate, Limits()))) << rate.num << '/' << rate.den;
}

TEST_P(EveryVideoCodec, HasAUsableSizeAndRateForNone)
{
    EXPECT_TRUE(Holds(Snap({0, 0})));
    EXPECT_TRUE(Holds(SnapFrameRate({0, 0}, Limits())));
}

TEST_P(EveryVideoCodec, KeepsTheFractionsOfTelevisionExactWhereItHasThem)
{
    for (const auto rate : {AVRational{24000, 1001}, {30000, 1001}})
    {
        const auto best = SnapFrameRate(rate, Limits());
        const bool isOffered = Limits().rates.empty() || IsListed(rate);
        EXPECT_EQ(isOffered, av_cmp_q(best, rate) == 0) << best.num << '/' << best.den;
        EXPECT_TRUE(Limits().rates.empty() || IsListed(best)) << best.num << '/' << best.den;
    }
}

TEST_P(EveryVideoCodec, NoFixedRateIsNearerThanTheOneTaken)
{
    for (int i = 0; i < 2000; ++i)
    {
        const AVRational wanted{AnySide(m_random), 1001};
        if (wanted.num < 1)
            continue;
        const double gap = std::abs(av_q2d(SnapFrameRate(wanted, Limits())) - av_q2d(wanted));
        for (const auto rate : Limits().rates)
            ASSERT_GE(std::abs(av_q2d(rate) - av_q2d(wanted)), gap) << wanted.num << "/1001";
    }
}

INSTANTIATE_TEST_SUITE_P(Codecs, EveryVideoCodec, testing::ValuesIn(CodecIDs(VXCodecTypeVideo)),
                         CodecTestName);

class EveryAudioCodec : public testing::TestWithParam<int>
{
protected:
    static std::span<const int> Rates() { return CapabilitiesOf(GetParam())->sampleRates; }
    static std::span<const std::uint64_t> Layouts() { return CapabilitiesOf(GetParam())->layouts; }
    static bool Offers(std::uint64_t layout)
    {
        return std::ranges::find(Layouts(), layout) != Layouts().end();
    }

    std::mt19937 m_random{42};
};

TEST_P(EveryAudioCodec, SnapsEveryRateToTheNearestAndTheUpperOneOnATie)
{
    for (int i = 0; i < 20000; ++i)
    {
        const int wanted = std::max(1, AnySide(m_random));
        const int best = SnapSampleRate(wanted, Rates());
        ASSERT_NE(Rates().end(), std::ranges::find(Rates(), best)) << wanted;
        for (const int rate : Rates())
        {
            const auto gap = std::abs(std::int64_t{rate} - wanted) - std::abs(std::int64_t{best} - wanted);
            ASSERT_TRUE(gap > 0 || (gap == 0 && rate <= best)) << wanted << " -> " << best;
        }
    }
}

TEST_P(EveryAudioCodec, KeepsEveryRateAndLayoutThatItOffers)
{
    for (const int rate : Rates())
        EXPECT_EQ(rate, SnapSampleRate(rate, Rates()));
    for (const auto layout : Layouts())
        EXPECT_EQ(layout, SnapLayout(layout, Layouts()));
}

TEST_P(EveryAudioCodec, TakesAsManyChannelsAsItCanOfEveryNamedLayout)
{
    for (const auto& wanted : ChannelLayoutTable())
    {
        const auto best = SnapLayout(wanted.mask, Layouts());
        EXPECT_TRUE(Offers(best)) << wanted.name;
        for (const auto layout : Layouts())
            if (ChannelsOf(layout) <= ChannelsOf(wanted.mask))
            {
                EXPECT_LE(ChannelsOf(layout), ChannelsOf(best)) << wanted.name;
            }
    }
}

TEST_P(EveryAudioCodec, HasAUsableRateAndLayoutForNone)
{
    EXPECT_EQ(Rates().front(), SnapSampleRate(0, Rates()));
    EXPECT_EQ(Layouts().front(), SnapLayout(0, Layouts()));
}

INSTANTIATE_TEST_SUITE_P(Codecs, EveryAudioCodec, testing::ValuesIn(CodecIDs(VXCodecTypeAudio)),
                         CodecTestName);

} // namespace

} // namespace Vexlor
