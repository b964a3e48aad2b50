#include "runtime/mediacodecs/LevelTable.h"
#include "Columns.h"
#include "IVXCodecs.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecTable.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

TEST(LevelTable, NumbersAndNamesAreGivenOnceACodec)
{
    for (const auto& codec : CodecTable())
    {
        const auto levels = LevelsOf(codec.id);
        EXPECT_EQ(levels.size(), DifferentValues(levels, &LevelRow::number)) << codec.name;
        EXPECT_EQ(levels.size(), DifferentValues(levels, &LevelRow::name)) << codec.name;
    }
}

TEST(LevelTable, NoNumberStandsForUnknown)
{
    for (const auto& codec : CodecTable())
        EXPECT_EQ(IVXCodecs::VXLevelUnknown, LevelNumberOf(codec.id, -99)) << codec.name;
}

TEST(LevelTable, ReadsALevelAsOneOfTheMainTier)
{
    EXPECT_EQ(123, LevelNumberOf(VXCodecID_HEVC, 123));
    EXPECT_EQ(41, LevelNumberOf(VXCodecID_H264, 41));
}

TEST(LevelTable, H264HasTheLevelsFrom1To62)
{
    const auto levels = LevelsOf(VXCodecID_H264);
    EXPECT_EQ(20U, levels.size());
    EXPECT_EQ("1", levels.front().name);
    EXPECT_EQ("6.2", levels.back().name);
}

TEST(LevelTable, ACodecWithoutLevelsHasNone)
{
    EXPECT_TRUE(LevelsOf(VXCodecID_AAC).empty());
    EXPECT_TRUE(LevelsOf(-1).empty());
    EXPECT_FALSE(LimitsOf(VXCodecID_AAC, 2, 1));
    EXPECT_FALSE(LimitsOf(VXCodecID_H264, 100, 39));
}

TEST(LevelTable, MPEG4OfNoProfileIsSimple)
{
    for (const int codecID : {VXCodecID_MPEG4, VXCodecID_DIVX})
    {
        EXPECT_EQ(384'000, LimitsOf(codecID, IVXCodecs::VXProfileUnknown, 3)->bitrate);
        EXPECT_FALSE(LimitsOf(codecID, IVXCodecs::VXProfileUnknown, 7)); // 3b of Advanced Simple
    }
}

TEST(LevelTable, LimitsOfOneCodecGrowWithItsLevels)
{
    for (const auto& codec : CodecTable())
    {
        const LevelRow* below = nullptr;
        for (const auto& level : LevelsOf(codec.id))
        {
            if (below)
            {
                EXPECT_LE(below->limits.picture, level.limits.picture) << codec.name << ' ' << level.name;
                EXPECT_LE(below->limits.rate, level.limits.rate) << codec.name << ' ' << level.name;
                EXPECT_LE(below->limits.width, level.limits.width) << codec.name << ' ' << level.name;
                EXPECT_LE(below->limits.height, level.limits.height) << codec.name << ' ' << level.name;
            }
            below = &level;
        }
    }
}

TEST(LevelTable, ALevelHoldsTheLongestSideOfEightTimesItsPicture)
{
    EXPECT_EQ(4096, LimitsOf(VXCodecID_H264, 100, 40)->width);
    EXPECT_EQ(2704, LimitsOf(VXCodecID_H264, 100, 31)->height);
    EXPECT_EQ(8444, LimitsOf(VXCodecID_HEVC, 1, 150)->width);
}

struct BitrateCase
{
    const char* name;
    int codecID;
    int profile;
    int level;
    std::int64_t bitrate;
};

class LevelBitrate : public testing::TestWithParam<BitrateCase>
{
};

TEST_P(LevelBitrate, FollowsTheProfile)
{
    const auto& [name, codecID, profile, level, bitrate] = GetParam();
    const auto limits = LimitsOf(codecID, profile, level);
    ASSERT_TRUE(limits);
    EXPECT_EQ(bitrate, limits->bitrate);
}

constexpr BitrateCase kBitrates[] = {
    {"H264Baseline", VXCodecID_H264, 66, 31, 14000000},
    {"H264High", VXCodecID_H264, 100, 31, 17500000},
    {"H264High10", VXCodecID_H264, 110, 31, 42000000},
    {"H264High422", VXCodecID_H264, 122, 31, 56000000},
    {"H264High444OfTheHighestLevel", VXCodecID_H264, 244, 62, 3200000000},
    {"H264OfAnUnknownProfile", VXCodecID_H264, IVXCodecs::VXProfileUnknown, 31, 14000000},
    {"HEVCMain", VXCodecID_HEVC, 1, 153, 40000000},
    {"HEVCMainOfTheHighTier", VXCodecID_HEVC, 1, 1153, 160000000},
    {"HEVCMain42210", VXCodecID_HEVC, 402, 153, 66680000},
    {"AV1Main", VXCodecID_AV1, 0, 0, 1500000},
    {"AV1MainOfTheHighTier", VXCodecID_AV1, 0, 1008, 30000000},
    {"AV1Professional", VXCodecID_AV1, 2, 0, 4500000},
    {"VP9", VXCodecID_VP9, 0, 41, 30000000},
    {"MPEG4AdvancedSimple", VXCodecID_MPEG4, 15, 3, 768000},
    {"MPEG4Simple", VXCodecID_MPEG4, 0, 3, 384000},
    {"MPEG4SimpleOfTheHighestLevel", VXCodecID_MPEG4, 0, 6, 12000000},
    {"DivXSimple", VXCodecID_DIVX, 0, 5, 8000000},
    {"MPEG2Main", VXCodecID_MPEG2, 4, 8, 15000000},
    {"MPEG2Of422", VXCodecID_MPEG2, 128, 8, 50000000},
};
INSTANTIATE_TEST_SUITE_P(Codecs, LevelBitrate, testing::ValuesIn(kBitrates),
                         [](const auto& test) { return test.param.name; });

TEST(LevelTable, TheBufferOfADecoderFollowsTheProfile)
{
    EXPECT_EQ(31'250'000, LimitsOf(VXCodecID_H264, 100, 40)->buffer);
    EXPECT_EQ(25'000'000, LimitsOf(VXCodecID_H264, 77, 40)->buffer);
    EXPECT_EQ(30'000'000, LimitsOf(VXCodecID_HEVC, 1, 1120)->buffer);
    EXPECT_EQ(350'000, LimitsOf(VXCodecID_HEVC, 1, 30)->buffer);
    EXPECT_EQ(112 * 16384, LimitsOf(VXCodecID_MPEG4, 15, 5)->buffer);
    EXPECT_EQ(1'835'008, LimitsOf(VXCodecID_MPEG2, 4, 8)->buffer);
    EXPECT_EQ(9'437'184, LimitsOf(VXCodecID_MPEG2, 128, 8)->buffer);
}

TEST(LevelTable, AProfileHasNoLevelThatItsStandardLeavesOut)
{
    constexpr int kSimpleOfMPEG2 = 5;
    constexpr int kHigh = 4;
    EXPECT_FALSE(LimitsOf(VXCodecID_MPEG2, kSimpleOfMPEG2, kHigh));
    constexpr int kSimpleOfMPEG4 = 0;
    constexpr int k3b = 7;
    EXPECT_FALSE(LimitsOf(VXCodecID_MPEG4, kSimpleOfMPEG4, k3b));
    constexpr int kAdvancedSimple = 15;
    EXPECT_FALSE(LimitsOf(VXCodecID_MPEG4, kAdvancedSimple, 6));
    EXPECT_FALSE(LimitsOf(VXCodecID_DIVX, kAdvancedSimple, 6));
}

} // namespace

} // namespace Vexlor
