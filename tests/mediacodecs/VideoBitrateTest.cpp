#include "CodecLists.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateModel.h"
#include "runtime/mediacodecs/BitrateTable.h"
#include "runtime/mediacodecs/Snapping.h"

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

/// Usual sizes, rates and formats, and odd sizes between them.
std::vector<PictureStream> EveryPicture(int codecID)
{
    std::vector<PictureStream> streams;
    for (const int format : CapabilitiesOf(codecID)->formats)
        for (const double rate : kFrameRates)
        {
            for (const auto size : kPictures)
                streams.push_back({size.width, size.height, rate, format});
            for (int width = 17; width < 20000; width += width / 3)
                streams.push_back({width, width / 2, rate, format});
        }
    return streams;
}

int Video(int codecID, const PictureStream& stream, Grade level)
{
    return VideoBitrate(*CapabilitiesOf(codecID), stream, level);
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
    EXPECT_GT(of(VXCodecID_H263), of(VXCodecID_MPEG4));
}

/// What a codec may need of H.264's bitrate at the same grade, so that it looks the same: what is published
/// for HEVC falls from 0.8 at 720p to 0.4 at 360p and 2160p; VP9's and AV1's factors are 0.6 and 0.5.
struct Efficiency
{
    const char* name;
    int codecID;
    double least;
    double most;
};

class EfficiencyAgainstH264 : public testing::TestWithParam<Efficiency>
{
};

TEST_P(EfficiencyAgainstH264, IsThatOfTheCodecAtEveryGradeAndSize)
{
    const auto& test = GetParam();
    for (const auto size :
         {PictureSize{640, 360}, {854, 480}, {1280, 720}, {1920, 1080}, {2560, 1440}, {3840, 2160}})
        for (const auto level : kAllGrades)
        {
            const PictureStream stream{size.width, size.height, 30, k420};
            const double ratio =
                double(Video(test.codecID, stream, level)) / Video(VXCodecID_H264, stream, level);
            EXPECT_GE(ratio, test.least) << size.height << " lines at grade " << level;
            EXPECT_LE(ratio, test.most) << size.height << " lines at grade " << level;
        }
}

constexpr Efficiency kEfficiencies[] = {
    {"HEVC", VXCodecID_HEVC, 0.39, 0.81},
    {"VP9", VXCodecID_VP9, 0.5, 0.67},
    {"AV1", VXCodecID_AV1, 0.42, 0.56},
};
INSTANTIATE_TEST_SUITE_P(VideoBitrate, EfficiencyAgainstH264, testing::ValuesIn(kEfficiencies),
                         [](const auto& test) { return test.param.name; });

TEST(VideoBitrate, RisesWithDepthAndChroma)
{
    const auto of = [](int format) {
        return Video(VXCodecID_HEVC, {1920, 1080, 30, format}, Grade::QualityLevelHigh);
    };
    EXPECT_EQ(7'250'000, of(kPixFormatYUV420P10));
    EXPECT_LT(of(k420), of(kPixFormatYUV422P));
    EXPECT_LT(of(kPixFormatYUV422P), of(kPixFormatYUV444P));
    EXPECT_EQ(of(k420), of(VXPixFormat_None));
}

struct HostilePicture
{
    const char* name;
    PictureStream stream;
};

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

TEST(VideoBitrate, StaysWithinTheLowestLevelForThePicture)
{
    // Level 1b for 176 x 144 at 15 fps, MPEG-2 of Low for 352 x 288, and VP9 of 4.1 for 1080p at 60 fps.
    EXPECT_EQ(128'000, Video(VXCodecID_H264, {176, 144, 15, k420}, Grade::QualityLevelBest));
    EXPECT_EQ(4'000'000,
              Video(VXCodecID_MPEG2, {352, 288, 30, kPixFormatYUV444P12}, Grade::QualityLevelBest));
    EXPECT_EQ(30'000'000,
              Video(VXCodecID_VP9, {1920, 1080, 60, kPixFormatYUV444P12}, Grade::QualityLevelBest));
}

TEST(VideoBitrate, StaysWithinTheHighestLevel)
{
    EXPECT_EQ(800'000'000,
              Video(VXCodecID_H264, {INT_MAX, INT_MAX, 300, kPixFormatYUV444P12}, Grade::QualityLevelBest));
    EXPECT_EQ(80'000'000, Video(VXCodecID_MPEG2, {4096, 2304, 60, k420}, Grade::QualityLevelBest));
    EXPECT_EQ(20'000'000, Video(VXCodecID_DIVX, {1920, 1080, 30, k420}, Grade::QualityLevelBest));
    EXPECT_EQ(1'920'000, Video(VXCodecID_H261, {352, 288, 30, k420}, Grade::QualityLevelBest));
}

TEST(VideoBitrate, OfAFrameCodedAloneIsTheSameAtEveryRate)
{
    const auto of = [](double rate) {
        return Video(VXCodecID_MJPEG, {1920, 1080, rate, kPixFormatYUVJ420P}, Grade::QualityLevelNormal);
    };
    EXPECT_EQ(46'656'000, of(30));
    EXPECT_EQ(2 * of(30), of(60));
}

TEST(VideoBitrate, OfProResFollowsItsProfiles)
{
    const auto of = [](int format, Grade level) {
        return Video(VXCodecID_ProRes, {1920, 1080, 30000 / 1001.0, format}, level);
    };
    EXPECT_EQ(45'000'000, of(kPixFormatYUV422P10, Grade::QualityLevelLow));
    EXPECT_EQ(147'000'000, of(kPixFormatYUV422P10, Grade::QualityLevelHigh));
    EXPECT_EQ(330'000'000, of(kPixFormatYUV444P10, Grade::QualityLevelLow));
    EXPECT_EQ(500'000'000, of(kPixFormatYUVA444P10, Grade::QualityLevelBest));
}

TEST(VideoBitrate, OfProResInAFormatThatItLacksIsThatOfTheOneOfferedFirst)
{
    EXPECT_EQ(102'000'000,
              Video(VXCodecID_ProRes, {1920, 1080, 30000 / 1001.0, k420}, Grade::QualityLevelNormal));
}

/// Figures as they are published, for the four grades.
struct PublishedFigures
{
    const char* name;
    int codecID;
    PictureStream stream;
    std::array<double, kGrades> megabits;
};

class FiguresOfProfiles : public testing::TestWithParam<PublishedFigures>
{
};

TEST_P(FiguresOfProfiles, AreThoseOfTheGrades)
{
    const auto& test = GetParam();
    for (const auto level : kAllGrades)
        EXPECT_NEAR(test.megabits.at(static_cast<std::size_t>(level)),
                    Video(test.codecID, test.stream, level) / 1e6, 1e-6)
            << "grade " << level;
}

constexpr double kNTSCRate = 30000 / 1001.0;
// Those of ProRes at 2160p, 720p and 486 lines stand in its white paper, those of DNxHD in SMPTE ST 2019-1.
constexpr auto kPublishedFigures = std::to_array<PublishedFigures>({
    {"ProRes486", VXCodecID_ProRes, {720, 486, kNTSCRate, kPixFormatYUV422P10}, {12, 29, 42, 63}},
    {"ProRes720", VXCodecID_ProRes, {1280, 720, kNTSCRate, kPixFormatYUV422P10}, {23, 51, 73, 110}},
    {"ProRes1080", VXCodecID_ProRes, {1920, 1080, kNTSCRate, kPixFormatYUV422P10}, {45, 102, 147, 220}},
    {"ProRes2160", VXCodecID_ProRes, {3840, 2160, kNTSCRate, kPixFormatYUV422P10}, {182, 410, 589, 884}},
    {"ProRes4444", VXCodecID_ProRes, {1920, 1080, kNTSCRate, kPixFormatYUV444P10}, {330, 330, 330, 500}},
    {"DNxHR1080", VXCodecID_DNxHR, {1920, 1080, kNTSCRate, kPixFormatYUV422P}, {45, 145, 220, 220}},
    {"DNxHD720At24", VXCodecID_DNxHD, {1280, 720, 24, kPixFormatYUV422P}, {60, 60, 90, 90}},
    {"DNxHD720At60", VXCodecID_DNxHD, {1280, 720, 60, kPixFormatYUV422P}, {145, 145, 220, 220}},
    {"DNxHD1080At24", VXCodecID_DNxHD, {1920, 1080, 24, kPixFormatYUV422P}, {115, 115, 175, 175}},
    {"DNxHD1080At25", VXCodecID_DNxHD, {1920, 1080, 25, kPixFormatYUV422P}, {120, 120, 185, 185}},
    {"DNxHD1080At2997", VXCodecID_DNxHD, {1920, 1080, kNTSCRate, kPixFormatYUV422P}, {145, 145, 220, 220}},
    {"DNxHD1080TenBit", VXCodecID_DNxHD, {1920, 1080, 25, kPixFormatYUV422P10}, {185, 185, 185, 185}},
});
INSTANTIATE_TEST_SUITE_P(VideoBitrate, FiguresOfProfiles, testing::ValuesIn(kPublishedFigures),
                         [](const auto& test) { return test.param.name; });

TEST(VideoBitrate, OfDNxHRWithMoreThan8BitsIsThatOfHQX)
{
    for (const auto level : kAllGrades)
        EXPECT_EQ(220'000'000,
                  Video(VXCodecID_DNxHR, {1920, 1080, 30000 / 1001.0, kPixFormatYUV422P10}, level));
}

TEST(VideoBitrate, OfDVIsThatOfItsTapeWhateverTheGrade)
{
    for (const auto level : kAllGrades)
    {
        EXPECT_EQ(28'800'000, Video(VXCodecID_DV, {720, 576, 25, k420}, level));
        EXPECT_EQ(57'600'000, Video(VXCodecID_DV, {720, 576, 25, kPixFormatYUV422P}, level));
        EXPECT_EQ(28'771'229, Video(VXCodecID_DVNTSC, {720, 480, 30000 / 1001.0, kPixFormatYUV411P}, level));
    }
}

TEST(VideoBitrate, OfLosslessCodecsIsAShareOfThePixels)
{
    EXPECT_EQ(1920 * 1080 * 30LL * 12 / 2,
              Video(VXCodecID_FFV1, {1920, 1080, 30, k420}, Grade::QualityLevelBest));
    EXPECT_EQ(320 * 240 * 10 * 8 / 2,
              Video(VXCodecID_GIF, {320, 240, 10, kPixFormatRGB8}, Grade::QualityLevelLow));
}

class EveryVideoModel : public testing::TestWithParam<int>
{
protected:
    static int Rate(const PictureStream& stream, Grade level) { return Video(GetParam(), stream, level); }
    static const std::vector<int>& Formats() { return CapabilitiesOf(GetParam())->formats; }
    static std::vector<int> AlongGrades(const PictureStream& stream)
    {
        return Along(kAllGrades, [&](Grade level) { return Rate(stream, level); });
    }
    static std::vector<int> AlongSizes(double frameRate, Grade level)
    {
        return Along(kPictures,
                     [&](PictureSize size) {
                         return Rate({size.width, size.height, frameRate, Formats().front()}, level);
                     });
    }
    static std::vector<int> AlongFrameRates(PictureSize size, Grade level)
    {
        return Along(kFrameRates,
                     [&](double rate) {
                         return Rate({size.width, size.height, rate, Formats().front()}, level);
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
    for (const auto& stream : EveryPicture(GetParam()))
        ASSERT_TRUE(std::ranges::is_sorted(AlongGrades(stream)))
            << stream.width << " x " << stream.height << " at " << stream.frameRate;
}

TEST_P(EveryVideoModel, RisesWithThePicture)
{
    for (const double rate : kFrameRates)
        for (const auto level : kAllGrades)
            EXPECT_TRUE(std::ranges::is_sorted(AlongSizes(rate, level))) << rate << " grade " << level;
}

TEST_P(EveryVideoModel, RisesWithEveryLine)
{
    for (const auto level : kAllGrades)
        for (int last = 0, height = 16; height < 4400; height += 4)
        {
            const int rate = Rate({height * 16 / 9, height, 30, Formats().front()}, level);
            ASSERT_GE(rate, last) << height << " grade " << level;
            last = rate;
        }
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
    for (const auto& stream : EveryPicture(GetParam()))
        for (const auto level : kAllGrades)
        {
            const int bitrate = Rate(stream, level);
            const auto found = VideoGrade(*CapabilitiesOf(GetParam()), stream, bitrate);
            ASSERT_EQ(bitrate, Rate(stream, found)) << stream.width << " at " << stream.frameRate;
        }
}

/// The codecs whose grades are ladders of their own; others have profiles, lists or no grades.
class EveryLadder : public EveryVideoModel
{
};

std::vector<int> CodecsWithLadders()
{
    auto ids = CodecIDs(VXCodecTypeVideo);
    std::erase_if(ids, [](int id) { return FindVideoBitrate(id)->grades.front().points.empty(); });
    return ids;
}

TEST_P(EveryLadder, PassesThroughItsPoints)
{
    const auto& row = *FindVideoBitrate(GetParam());
    for (const auto level : kAllGrades)
    {
        const auto& ladder = row.grades.at(static_cast<std::size_t>(level));
        for (const auto& point : ladder.points)
        {
            const double bitrate = 1000 * point.kbps * ladder.factor * row.factor;
            const int most = Rate({INT_MAX, INT_MAX, 300, Formats().front()}, Grade::QualityLevelBest);
            EXPECT_NEAR(std::min<double>(bitrate, most),
                        Rate({point.width, point.height, 30, Formats().front()}, level), 1.0);
        }
    }
}

TEST_P(EveryLadder, TellsTheGradesApartThatHaveOtherFigures)
{
    const auto& ladders = FindVideoBitrate(GetParam())->grades;
    const auto isSame = [](const GradeLadder& left, const GradeLadder& right)
    { return left.points.data() == right.points.data() && left.factor == right.factor; };
    for (const auto wanted : {PictureSize{320, 240}, {720, 480}, {1280, 720}, {3840, 2160}})
    {
        const auto& video = CapabilitiesOf(GetParam())->codec->video;
        const auto size = SnapSize(wanted, video, CapabilitiesOf(GetParam())->block);
        const auto rates = AlongGrades({size.width, size.height, 25, Formats().front()});
        for (std::size_t grade = 1; grade < kGrades; ++grade)
            if (!isSame(ladders.at(grade), ladders.at(grade - 1)))
            {
                EXPECT_LT(rates.at(grade - 1), rates.at(grade)) << size.width << " grade " << grade;
            }
    }
}

INSTANTIATE_TEST_SUITE_P(Codecs, EveryLadder, testing::ValuesIn(CodecsWithLadders()), CodecTestName);

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
}

TEST_P(EveryVideoModel, RangeHoldsTheFourGrades)
{
    const PictureStream stream{1920, 1080, 30, Formats().front()};
    const auto rates = AlongGrades(stream);
    EXPECT_EQ(std::pair(rates.front(), rates.back()), VideoBitrateRange(*CapabilitiesOf(GetParam()), stream));
}

TEST_P(EveryVideoModel, OfHostilePicturesIsPositive)
{
    for (const auto& hostile : kHostilePictures)
        for (const int grade : {INT_MIN, -1, 0, 3, 99, INT_MAX})
            EXPECT_GE(Rate(hostile.stream, Grade{grade}), 1) << hostile.name;
}

INSTANTIATE_TEST_SUITE_P(Codecs, EveryVideoModel, testing::ValuesIn(CodecIDs(VXCodecTypeVideo)),
                         CodecTestName);

} // namespace

} // namespace Vexlor
