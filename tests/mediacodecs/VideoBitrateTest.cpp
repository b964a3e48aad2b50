#include "CodecLists.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateModel.h"
#include "runtime/mediacodecs/BitrateTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <iterator>
#include <limits>
#include <vector>

namespace Vexlor
{

namespace
{

using Grade = IVXCodecs::QualityLevel;

constexpr std::array kAllGrades{Grade::QualityLevelLow, Grade::QualityLevelNormal, Grade::QualityLevelHigh,
                                Grade::QualityLevelBest};
constexpr int k420 = VXPixFormat_YUV420P;
constexpr auto kPictures = std::to_array<PictureSize>({{16, 16},
                                                       {120, 90},
                                                       {320, 240},
                                                       {416, 234},
                                                       {640, 360},
                                                       {768, 432},
                                                       {720, 480},
                                                       {854, 480},
                                                       {960, 540},
                                                       {1280, 720},
                                                       {1920, 1080},
                                                       {2560, 1440},
                                                       {3840, 2160},
                                                       {7680, 4320},
                                                       {16384, 8704}});
constexpr auto kFrameRates =
    std::to_array<double>({1, 8, 15, 24000 / 1001.0, 24, 25, 30000 / 1001.0, 30, 50, 60, 120, 300});

std::vector<PictureStream> EveryPicture()
{
    std::vector<PictureStream> streams;
    for (const auto size : kPictures)
        for (const double rate : kFrameRates)
            streams.push_back({size.width, size.height, rate, k420});
    return streams;
}

int Video(int codecID, const PictureStream& stream, Grade level)
{
    return VideoBitrate(*CapabilitiesOf(codecID), stream, level);
}

TEST(VideoBitrate, OfTheReferenceCodecIsTheLadders)
{
    for (const auto level : kAllGrades)
        for (const auto& point : ReferenceLadder(static_cast<std::size_t>(level)))
            EXPECT_NEAR(point.kbps * 1000,
                        Video(VXCodecID_H264, {point.width, point.height, 30, k420}, level), 1.0);
}

TEST(VideoBitrate, RisesByAHalfWhenTheFrameRateDoubles)
{
    EXPECT_EQ(12'000'000, Video(VXCodecID_H264, {1920, 1080, 60, k420}, Grade::QualityLevelHigh));
}

TEST(VideoBitrate, OfModernCodecsIsLower)
{
    const auto of = [](int codecID) {
        return Video(codecID, {1280, 720, 30, k420}, Grade::QualityLevelHigh);
    };
    EXPECT_LT(of(VXCodecID_HEVC), of(VXCodecID_H264));
    EXPECT_LT(of(VXCodecID_AV1), of(VXCodecID_HEVC));
    EXPECT_GT(of(VXCodecID_MPEG4), of(VXCodecID_H264));
    EXPECT_GT(of(VXCodecID_MPEG2), of(VXCodecID_MPEG4));
}

TEST(VideoBitrate, RisesWithDepthAndChroma)
{
    const auto of = [](int format) {
        return Video(VXCodecID_HEVC, {1920, 1080, 30, format}, Grade::QualityLevelHigh);
    };
    EXPECT_EQ(6'000'000, of(kPixFormatYUV420P10));
    EXPECT_LT(of(k420), of(kPixFormatYUV422P));
    EXPECT_LT(of(kPixFormatYUV422P), of(kPixFormatYUV444P));
    EXPECT_EQ(of(k420), of(VXPixFormat_None));
}

struct HostilePicture
{
    const char* name;
    PictureStream stream;
};

class VideoBitrateOf : public testing::TestWithParam<HostilePicture>
{
};

TEST_P(VideoBitrateOf, IsPositive)
{
    for (const int grade : {INT_MIN, -1, 0, 3, 99, INT_MAX})
        EXPECT_GE(Video(VXCodecID_H264, GetParam().stream, Grade{grade}), 1);
}

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr auto kHostilePictures = std::to_array<HostilePicture>({
    {"Nothing", {0, 0, 0, 0}},
    {"NegativeSides", {-1920, -1080, 30, k420}},
    {"SmallestNumbers", {INT_MIN, INT_MIN, -HUGE_VAL, INT_MIN}},
    {"LargestNumbers", {INT_MAX, INT_MAX, HUGE_VAL, INT_MAX}},
    {"NoRate", {1920, 1080, kNaN, k420}},
    {"NegativeRate", {1920, 1080, -25, k420}},
    {"VanishingRate", {16, 16, 1e-300, k420}},
    {"UnknownFormat", {1920, 1080, 30, 12345}},
    {"ALine", {INT_MAX, 1, 30, k420}},
});
INSTANTIATE_TEST_SUITE_P(Hostile, VideoBitrateOf, testing::ValuesIn(kHostilePictures),
                         [](const auto& test) { return test.param.name; });

TEST(VideoBitrate, StaysWithinTheHighestLevel)
{
    EXPECT_EQ(800'000'000,
              Video(VXCodecID_H264, {INT_MAX, INT_MAX, 300, kPixFormatYUV444P12}, Grade::QualityLevelBest));
    EXPECT_EQ(20'000'000, Video(VXCodecID_DIVX, {1920, 1080, 30, k420}, Grade::QualityLevelBest));
}

class EveryVideoModel : public testing::TestWithParam<int>
{
protected:
    static int Rate(const PictureStream& stream, Grade level) { return Video(GetParam(), stream, level); }
    static std::vector<int> AlongGrades(const PictureStream& stream)
    {
        return Along(kAllGrades, [&](Grade level) { return Rate(stream, level); });
    }
    static std::vector<int> AlongSizes(double frameRate, Grade level)
    {
        return Along(kPictures,
                     [&](PictureSize size) {
                         return Rate({size.width, size.height, frameRate, k420}, level);
                     });
    }
    static std::vector<int> AlongFrameRates(PictureSize size, Grade level)
    {
        return Along(kFrameRates,
                     [&](double rate) {
                         return Rate({size.width, size.height, rate, k420}, level);
                     });
    }

private:
    template <class Steps, class RateOf>
    static std::vector<int> Along(const Steps& steps, RateOf rateOf)
    {
        std::vector<int> rates;
        std::ranges::transform(steps, std::back_inserter(rates), rateOf);
        return rates;
    }
};

TEST_P(EveryVideoModel, RisesWithTheGrade)
{
    for (const auto& stream : EveryPicture())
        EXPECT_TRUE(std::ranges::is_sorted(AlongGrades(stream)))
            << stream.width << " at " << stream.frameRate;
}

TEST_P(EveryVideoModel, RisesWithThePicture)
{
    for (const double rate : kFrameRates)
        for (const auto level : kAllGrades)
            EXPECT_TRUE(std::ranges::is_sorted(AlongSizes(rate, level))) << rate << " grade " << level;
}

TEST_P(EveryVideoModel, RisesWithTheFrameRate)
{
    for (const auto size : kPictures)
        for (const auto level : kAllGrades)
            EXPECT_TRUE(std::ranges::is_sorted(AlongFrameRates(size, level)))
                << size.width << " grade " << level;
}

TEST_P(EveryVideoModel, RecognisesTheGradeOfItsOwnBitrates)
{
    for (const auto& stream : EveryPicture())
        for (const auto level : kAllGrades)
        {
            const int bitrate = Rate(stream, level);
            const auto found = VideoGrade(*CapabilitiesOf(GetParam()), stream, bitrate);
            ASSERT_EQ(bitrate, Rate(stream, found)) << stream.width << " at " << stream.frameRate;
        }
}

TEST_P(EveryVideoModel, TellsTheGradesOfUsualPicturesApart)
{
    for (const auto size : {PictureSize{320, 240}, {720, 480}, {1280, 720}})
    {
        const auto rates = AlongGrades({size.width, size.height, 25, k420});
        EXPECT_EQ(rates.end(), std::ranges::adjacent_find(rates)) << size.width;
    }
}

TEST_P(EveryVideoModel, GradeNeverFallsWhenTheBitrateGrows)
{
    auto last = Grade::QualityLevelLow;
    for (double bitrate = 1; bitrate < INT_MAX; bitrate *= 1.1)
    {
        const auto grade =
            VideoGrade(*CapabilitiesOf(GetParam()), {1280, 720, 25, k420}, static_cast<int>(bitrate));
        ASSERT_GE(grade, last);
        last = grade;
    }
    EXPECT_EQ(Grade::QualityLevelBest, last);
}

TEST_P(EveryVideoModel, RangeHoldsTheFourGrades)
{
    const PictureStream stream{1920, 1080, 30, k420};
    const auto rates = AlongGrades(stream);
    EXPECT_EQ(std::pair(rates.front(), rates.back()), VideoBitrateRange(*CapabilitiesOf(GetParam()), stream));
    EXPECT_LT(rates.front(), rates.back());
}

INSTANTIATE_TEST_SUITE_P(Codecs, EveryVideoModel, testing::ValuesIn(CodecIDs(VXCodecTypeVideo)),
                         CodecTestName);

} // namespace

} // namespace Vexlor
