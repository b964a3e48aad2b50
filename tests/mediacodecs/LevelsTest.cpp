#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/LevelTable.h"
#include "runtime/mediacodecs/ProfileTable.h"
#include "runtime/mediacodecs/VXLevels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <string>

namespace Vexlor
{

namespace
{

constexpr int kCodecs[] = {VXCodecID_H264, VXCodecID_HEVC,  VXCodecID_VP9,
                           VXCodecID_AV1,  VXCodecID_MPEG4, VXCodecID_MPEG2};
constexpr int kHigh = 100;
constexpr int kMain10 = 2;

VXLevelStream Stream(int codecID, int profile, int width, int height, int num, int den = 1,
                     std::int64_t bitrate = 0)
{
    return {codecID, profile, width, height, IVXRational::MallocRational(num, den), bitrate};
}

std::string LevelName(int codecID, int level)
{
    for (const auto& row : LevelsOf(codecID))
        if (row.number == level)
            return std::string(row.name);
    return "none";
}

struct LevelCase
{
    const char* name;
    int codecID;
    int profile;
    int width;
    int height;
    int num;
    int den;
    std::int64_t bitrate;
    const char* level;
};

class SmallestLevelOf : public testing::TestWithParam<LevelCase>
{
};

TEST_P(SmallestLevelOf, IsTheStandards)
{
    const auto& test = GetParam();
    const auto level = SmallestLevel(
        Stream(test.codecID, test.profile, test.width, test.height, test.num, test.den, test.bitrate));
    EXPECT_EQ(test.level, LevelName(test.codecID, level));
}

constexpr LevelCase kLevels[] = {
    {"H264QCIF", VXCodecID_H264, 66, 176, 144, 15, 1, 64000, "1"},
    {"H264QCIFAt128", VXCodecID_H264, 66, 176, 144, 15, 1, 128000, "1b"},
    {"H264CIF30", VXCodecID_H264, kHigh, 352, 288, 30, 1, 0, "1.3"},
    {"H264NTSC", VXCodecID_H264, kHigh, 720, 480, 30000, 1001, 0, "3"},
    {"H264PAL", VXCodecID_H264, kHigh, 720, 576, 25, 1, 0, "3"},
    {"H264At720p30", VXCodecID_H264, kHigh, 1280, 720, 30, 1, 0, "3.1"},
    {"H264At720p60", VXCodecID_H264, kHigh, 1280, 720, 60, 1, 0, "3.2"},
    {"H264At1080p30", VXCodecID_H264, kHigh, 1920, 1080, 30, 1, 0, "4"},
    {"H264At1080p30OfTheHighestBitrate", VXCodecID_H264, kHigh, 1920, 1080, 30, 1, 25000000, "4"},
    {"H264At1080p30OfMore", VXCodecID_H264, kHigh, 1920, 1080, 30, 1, 25000001, "4.1"},
    {"H264At1080p30OfMain", VXCodecID_H264, 77, 1920, 1080, 30, 1, 25000000, "4.1"},
    {"H264At1080p50", VXCodecID_H264, kHigh, 1920, 1080, 50, 1, 0, "4.2"},
    {"H264At1080p60", VXCodecID_H264, kHigh, 1920, 1080, 60, 1, 0, "4.2"},
    {"H264At1080p120", VXCodecID_H264, kHigh, 1920, 1080, 120, 1, 0, "5.1"},
    {"H264At1440p30", VXCodecID_H264, kHigh, 2560, 1440, 30, 1, 0, "5"},
    {"H264At2160p30", VXCodecID_H264, kHigh, 3840, 2160, 30, 1, 0, "5.1"},
    {"H264At2160p60", VXCodecID_H264, kHigh, 3840, 2160, 60, 1, 0, "5.2"},
    {"H264At4320p60", VXCodecID_H264, kHigh, 7680, 4320, 60, 1, 0, "6.1"},
    {"H264At4320p120", VXCodecID_H264, kHigh, 7680, 4320, 120, 1, 0, "6.2"},
    {"H264Portrait", VXCodecID_H264, kHigh, 1080, 1920, 30, 1, 0, "4"},
    {"H264LongAndFlat", VXCodecID_H264, kHigh, 4096, 16, 30, 1, 0, "4"},
    {"H264LongerAndFlat", VXCodecID_H264, kHigh, 4112, 16, 30, 1, 0, "4.2"},
    {"H264TooFast", VXCodecID_H264, kHigh, 176, 144, 173, 1, 0, "none"},
    {"H264TooLarge", VXCodecID_H264, kHigh, 16896, 16, 30, 1, 0, "none"},
    {"HEVCAt720p30", VXCodecID_HEVC, 1, 1280, 720, 30, 1, 0, "3.1"},
    {"HEVCAt1080p30", VXCodecID_HEVC, 1, 1920, 1080, 30, 1, 0, "4"},
    {"HEVCAt1080p60", VXCodecID_HEVC, 1, 1920, 1080, 60, 1, 0, "4.1"},
    {"HEVCAt2160p30", VXCodecID_HEVC, kMain10, 3840, 2160, 30, 1, 0, "5"},
    {"HEVCAt2160p60", VXCodecID_HEVC, kMain10, 3840, 2160, 60, 1, 0, "5.1"},
    {"HEVCAt2160p60OfTheMainTier", VXCodecID_HEVC, kMain10, 3840, 2160, 60, 1, 40000000, "5.1"},
    {"HEVCAt2160p60OfTheHighTier", VXCodecID_HEVC, kMain10, 3840, 2160, 60, 1, 40000001, "5.1 High"},
    {"HEVCAt4320p60", VXCodecID_HEVC, kMain10, 7680, 4320, 60, 1, 0, "6.1"},
    {"AV1At1080p30", VXCodecID_AV1, 0, 1920, 1080, 30, 1, 0, "4.0"},
    {"AV1At1080p60", VXCodecID_AV1, 0, 1920, 1080, 60, 1, 0, "4.1"},
    {"AV1At2160p60", VXCodecID_AV1, 0, 3840, 2160, 60, 1, 0, "5.1"},
    {"AV1At2160p60OfTheMainTier", VXCodecID_AV1, 0, 3840, 2160, 60, 1, 40000000, "5.1"},
    {"AV1At2160p60OfTheHighTier", VXCodecID_AV1, 0, 3840, 2160, 60, 1, 40000001, "5.1 High"},
    {"AV1At4320p60", VXCodecID_AV1, 0, 7680, 4320, 60, 1, 0, "6.1"},
    {"AV1Upright", VXCodecID_AV1, 0, 64, 1200, 10, 1, 0, "2.1"},
    {"VP9At720p30", VXCodecID_VP9, 0, 1280, 720, 30, 1, 0, "3.1"},
    {"VP9At1080p30", VXCodecID_VP9, 0, 1920, 1080, 30, 1, 0, "4"},
    {"VP9At1080p60", VXCodecID_VP9, 0, 1920, 1080, 60, 1, 0, "4.1"},
    {"VP9At2160p60", VXCodecID_VP9, 0, 3840, 2160, 60, 1, 0, "5.1"},
    {"MPEG4OfCIF", VXCodecID_MPEG4, 15, 352, 288, 30, 1, 0, "3"},
    {"MPEG4OfPAL", VXCodecID_MPEG4, 15, 720, 576, 25, 1, 0, "5"},
    {"MPEG4TooLarge", VXCodecID_MPEG4, 15, 1280, 720, 25, 1, 0, "none"},
    {"MPEG4SimpleAt720p30", VXCodecID_MPEG4, 0, 1280, 720, 30, 1, 12000000, "6"},
    {"MPEG2OfPAL", VXCodecID_MPEG2, 4, 720, 576, 25, 1, 8000000, "Main"},
    {"MPEG2At1080p30", VXCodecID_MPEG2, 4, 1920, 1080, 30, 1, 0, "High"},
    {"MPEG2OfHDV", VXCodecID_MPEG2, 4, 1440, 1080, 25, 1, 25000000, "High 1440"},
    {"MPEG2Simple", VXCodecID_MPEG2, 5, 352, 288, 25, 1, 0, "Main"},
    {"VP8", VXCodecID_VP8, 0, 352, 288, 25, 1, 0, "none"},
};
INSTANTIATE_TEST_SUITE_P(Codecs, SmallestLevelOf, testing::ValuesIn(kLevels),
                         [](const auto& test) { return test.param.name; });

TEST(Levels, TheMainTierAloneAsksForAHigherLevel)
{
    const auto stream = Stream(VXCodecID_HEVC, 1, 1920, 1080, 30, 1, 25000000);
    EXPECT_EQ("4 High", LevelName(VXCodecID_HEVC, SmallestLevel(stream)));
    EXPECT_EQ("5", LevelName(VXCodecID_HEVC, SmallestLevel(stream, VXLevelTiers::Main)));
}

TEST(Levels, ARateThatIsNotToldCountsForNothing)
{
    auto stream = Stream(VXCodecID_H264, kHigh, 1920, 1080, 0, 0);
    EXPECT_EQ(40, SmallestLevel(stream));
    stream.frameRate = nullptr;
    EXPECT_EQ(40, SmallestLevel(stream));
    stream.frameRate = IVXRational::MallocRational(-60, 1);
    EXPECT_EQ(40, SmallestLevel(stream));
    stream.frameRate = IVXRational::MallocRational(-60, -1);
    EXPECT_EQ(42, SmallestLevel(stream));
}

TEST(Levels, APictureWithoutASizeFitsNoLevelAndNothingHelps)
{
    for (const auto& [width, height] : {std::pair(0, 1080), std::pair(1920, 0), std::pair(-1, -1)})
    {
        const auto stream = Stream(VXCodecID_H264, kHigh, width, height, 30);
        EXPECT_EQ(IVXCodecs::VXLevelUnknown, SmallestLevel(stream));
        EXPECT_TRUE(LevelRemedies(40, stream).empty());
    }
}

TEST(Levels, TheLargestNumbersDoNotOverflow)
{
    constexpr int kMost = std::numeric_limits<int>::max();
    for (const int codecID : kCodecs)
    {
        EXPECT_EQ(IVXCodecs::VXLevelUnknown, SmallestLevel(Stream(codecID, -99, kMost, kMost, kMost)));
        EXPECT_EQ(IVXCodecs::VXLevelUnknown, SmallestLevel(Stream(codecID, -99, 352, 288, kMost)));
        EXPECT_NE(IVXCodecs::VXLevelUnknown, SmallestLevel(Stream(codecID, -99, 352, 288, 1, kMost)));
        EXPECT_NE(IVXCodecs::VXLevelUnknown, SmallestLevel(Stream(codecID, -99, 352, 288, kMost, kMost)));
    }
}

TEST(LevelRemedies, NothingIsToBeMendedWhereTheLevelHolds)
{
    EXPECT_TRUE(LevelRemedies(40, Stream(VXCodecID_H264, kHigh, 1920, 1080, 30)).empty());
}

std::string Text(const VXLevelRemedy& remedy)
{
    constexpr const char* kKinds[] = {"level", "bitrate", "rate", "size"};
    const auto& stream = remedy.stream;
    return std::string(kKinds[static_cast<int>(remedy.kind)]) + ": " +
           LevelName(stream.codecID, remedy.level) + ' ' + std::to_string(stream.width) + 'x' +
           std::to_string(stream.height) + ' ' + std::to_string(stream.frameRate->Num()) + '/' +
           std::to_string(stream.frameRate->Den()) + ' ' + std::to_string(stream.bitrate) + ", loses " +
           std::to_string(std::lround(remedy.loss * 100)) + " %\n";
}

std::string Texts(const std::vector<VXLevelRemedy>& remedies)
{
    std::string text;
    for (const auto& remedy : remedies)
        text += Text(remedy);
    return text;
}

TEST(LevelRemedies, TheLeastLossStandsFirst)
{
    EXPECT_EQ("level: 4.2 1920x1080 60000/1001 20000000, loses 0 %\n"
              "rate: 4 1920x1080 30000/1001 20000000, loses 50 %\n"
              "size: 4 1280x720 60000/1001 20000000, loses 56 %\n",
              Texts(LevelRemedies(40, Stream(VXCodecID_H264, kHigh, 1920, 1080, 60000, 1001, 20000000))));
}

TEST(LevelRemedies, ABitrateAloneIsLoweredToTheLevels)
{
    EXPECT_EQ("level: 4 High 1920x1080 25/1 30000000, loses 0 %\n"
              "bitrate: 4 1920x1080 25/1 12000000, loses 60 %\n",
              Texts(LevelRemedies(120, Stream(VXCodecID_HEVC, 1, 1920, 1080, 25, 1, 30000000))));
}

TEST(LevelRemedies, TheBitrateComesDownWithTheRest)
{
    EXPECT_EQ("level: 5.1 3840x2160 24/1 90000000, loses 0 %\n"
              "size: 4 1920x1080 24/1 25000000, loses 75 %\n",
              Texts(LevelRemedies(40, Stream(VXCodecID_H264, kHigh, 3840, 2160, 24, 1, 90000000))));
}

TEST(LevelRemedies, BeyondEveryLevelOnlyTheStreamIsChanged)
{
    EXPECT_EQ("size: 5 854x480 30/1 0, loses 80 %\n",
              Texts(LevelRemedies(5, Stream(VXCodecID_MPEG4, 15, 1920, 1080, 30))));
}

TEST(LevelRemedies, AnUprightPictureStaysUpright)
{
    const auto remedies = LevelRemedies(31, Stream(VXCodecID_H264, kHigh, 1080, 1920, 30));
    EXPECT_EQ("level: 4 1080x1920 30/1 0, loses 0 %\n"
              "size: 3.1 720x1280 30/1 0, loses 56 %\n",
              Texts(remedies));
}

TEST(LevelRemedies, ARateOfFewerThan5FramesIsNoRemedy)
{
    EXPECT_EQ("level: 1.2 352x288 9/1 0, loses 0 %\n"
              "size: 1.1 294x240 9/1 0, loses 30 %\n",
              Texts(LevelRemedies(11, Stream(VXCodecID_H264, kHigh, 352, 288, 9))));
}

TEST(LevelRemedies, EveryThirdFrameIsKeptWhereTheSecondIsTooMuch)
{
    EXPECT_EQ("level: 5.2 2560x1440 120/1 0, loses 0 %\n"
              "rate: 5 2560x1440 40/1 0, loses 67 %\n"
              "size: 5 1280x720 120/1 0, loses 75 %\n",
              Texts(LevelRemedies(50, Stream(VXCodecID_H264, kHigh, 2560, 1440, 120))));
}

TEST(LevelRemedies, ALevelThatTheProfileDoesNotHaveCanOnlyBeChanged)
{
    const auto remedies = LevelRemedies(10, Stream(VXCodecID_MPEG2, 5, 352, 288, 25));
    ASSERT_EQ(1U, remedies.size());
    EXPECT_EQ("level: Main 352x288 25/1 0, loses 0 %\n", Text(remedies.front()));
}

TEST(LevelRemedies, TheMainTierStaysWhereItIsAskedFor)
{
    const auto stream = Stream(VXCodecID_HEVC, 1, 1920, 1080, 25, 1, 30000000);
    EXPECT_EQ("5.1", LevelName(VXCodecID_HEVC, LevelRemedies(120, stream, VXLevelTiers::Main).front().level));
}

/// Streams of every kind, the same ones at each run.
class Streams
{
public:
    VXLevelStream Next(int codecID)
    {
        constexpr std::pair<int, int> kSizes[] = {{176, 144},   {352, 288},   {720, 576},   {854, 480},
                                                  {1080, 1920}, {1280, 720},  {1920, 800},  {1920, 1080},
                                                  {2560, 1440}, {3840, 2160}, {4096, 2160}, {7680, 4320}};
        constexpr std::pair<int, int> kRates[] = {{24000, 1001}, {25, 1}, {30000, 1001}, {30, 1},
                                                  {50, 1},       {60, 1}, {120, 1},      {0, 0}};
        auto [width, height] = kSizes[Below(std::size(kSizes))];
        if (Below(2) == 0)
        {
            width = 16 + static_cast<int>(Below(9000));
            height = 16 + static_cast<int>(Below(9000));
        }
        const auto [num, den] = kRates[Below(std::size(kRates))];
        const auto profiles = ProfilesOf(codecID);
        return Stream(codecID, profiles[Below(profiles.size())].number, width, height, num, den,
                      static_cast<std::int64_t>(std::exp(static_cast<double>(Below(22)))));
    }

    std::size_t Below(std::size_t end) { return m_random() % end; }

private:
    std::mt19937 m_random{1};
};

class LevelProperties : public testing::TestWithParam<int>
{
protected:
    void ForEachStream(const std::function<void(const VXLevelStream&, int)>& check)
    {
        const auto levels = LevelsOf(GetParam());
        for (int round = 0; round < 2000; ++round)
            check(m_streams.Next(GetParam()), levels[m_streams.Below(levels.size())].number);
    }

private:
    Streams m_streams;
};

TEST_P(LevelProperties, EveryRemedyFits)
{
    int seen = 0;
    ForEachStream(
        [&](const VXLevelStream& stream, int level)
        {
            for (const auto& remedy : LevelRemedies(level, stream))
            {
                ++seen;
                EXPECT_TRUE(LevelHolds(remedy.level, remedy.stream)) << Text(remedy);
                EXPECT_EQ(remedy.kind == VXLevelRemedyKind::RaiseLevel, remedy.loss == 0) << Text(remedy);
            }
        });
    EXPECT_GT(seen, 500);
}

TEST_P(LevelProperties, RemediesAreRankedByLoss)
{
    ForEachStream(
        [](const VXLevelStream& stream, int level)
        {
            const auto remedies = LevelRemedies(level, stream);
            EXPECT_TRUE(std::ranges::is_sorted(remedies, {}, &VXLevelRemedy::loss)) << Texts(remedies);
        });
}

TEST_P(LevelProperties, ALowerSizeKeepsTheShape)
{
    ForEachStream(
        [](const VXLevelStream& stream, int level)
        {
            for (const auto& [kind, found, changed, loss] : LevelRemedies(level, stream))
                if (kind == VXLevelRemedyKind::LowerSize)
                {
                    const double scale = std::min(double(changed.width) / stream.width,
                                                  double(changed.height) / stream.height);
                    EXPECT_LE(std::abs(changed.width - stream.width * scale), 2.5);
                    EXPECT_LE(std::abs(changed.height - stream.height * scale), 2.5);
                    EXPECT_EQ(0, changed.width % 2 + changed.height % 2);
                }
        });
}

TEST_P(LevelProperties, ASmallerStreamNeedsNoHigherLevel)
{
    const auto rank = [](const VXLevelStream& stream)
    {
        const auto levels = LevelsOf(stream.codecID);
        return std::ranges::find(levels, SmallestLevel(stream), &LevelRow::number) - levels.begin();
    };
    ForEachStream(
        [&](const VXLevelStream& stream, int)
        {
            auto smaller = stream;
            smaller.width = std::max(1, stream.width * 3 / 4);
            EXPECT_LE(rank(smaller), rank(stream));
            smaller = stream;
            smaller.height = std::max(1, stream.height / 2);
            EXPECT_LE(rank(smaller), rank(stream));
            smaller = stream;
            smaller.bitrate = stream.bitrate / 3;
            EXPECT_LE(rank(smaller), rank(stream));
            smaller = stream;
            smaller.frameRate =
                IVXRational::MallocRational(stream.frameRate->Num(), 2 * stream.frameRate->Den());
            EXPECT_LE(rank(smaller), rank(stream));
        });
}

TEST_P(LevelProperties, NoLowerLevelThanTheSmallestHolds)
{
    ForEachStream(
        [](const VXLevelStream& stream, int)
        {
            const int smallest = SmallestLevel(stream);
            for (const auto& level : LevelsOf(stream.codecID))
            {
                EXPECT_EQ(level.number == smallest, LevelHolds(level.number, stream));
                if (level.number == smallest)
                    break;
            }
        });
}

INSTANTIATE_TEST_SUITE_P(Codecs, LevelProperties, testing::ValuesIn(kCodecs));

} // namespace

} // namespace Vexlor
