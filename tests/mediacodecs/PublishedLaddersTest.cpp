#include "PublishedLadders.h"
#include "runtime/mediacodecs/BitrateModel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace Vexlor
{

namespace
{

using Grade = IVXCodecs::QualityLevel;

constexpr double kNear = 0.15;

/// What the model has for a point, and how far off it is: a share of the published figure, 0 within a range.
struct Fit
{
    Grade grade;
    double kbps;
    double distance;
};

Fit FitOf(const PublishedLadder& ladder, const PublishedPoint& point, Grade grade)
{
    const PictureStream stream{point.width, point.height, ladder.frameRate, ladder.format};
    const double kbps = VideoBitrate(*CapabilitiesOf(ladder.codecID), stream, grade) / 1000.0;
    const double nearest = std::clamp(kbps, point.low, point.high);
    return {grade, kbps, kbps / nearest - 1.0};
}

Fit NearestFit(const PublishedLadder& ladder, const PublishedPoint& point)
{
    auto best = FitOf(ladder, point, Grade::QualityLevelLow);
    for (const auto grade : {Grade::QualityLevelNormal, Grade::QualityLevelHigh, Grade::QualityLevelBest})
        if (const auto fit = FitOf(ladder, point, grade); std::abs(fit.distance) < std::abs(best.distance))
            best = fit;
    return best;
}

void Report(const PublishedLadder& ladder, const PublishedPoint& point, const Fit& fit)
{
    const auto size = std::to_string(point.width) + " x " + std::to_string(point.height);
    auto published = std::to_string(std::lround(point.low));
    if (point.high > point.low)
        published += " - " + std::to_string(std::lround(point.high));
    std::printf("%-32s %-11s %5.4g fps %15s kb/s  %-6s %8.0f kb/s %+6.1f %%\n", ladder.title, size.c_str(),
                ladder.frameRate, published.c_str(), IVXCodecs::QualityLevelName(fit.grade).c_str(), fit.kbps,
                100 * fit.distance);
}

class LadderOf : public testing::TestWithParam<PublishedLadder>
{
};

TEST_P(LadderOf, HasEveryPointNearAGrade)
{
    for (const auto& point : GetParam().points)
    {
        const auto fit = NearestFit(GetParam(), point);
        Report(GetParam(), point, fit);
        EXPECT_LE(std::abs(fit.distance), kNear) << point.width << " x " << point.height;
    }
}

TEST_P(LadderOf, IsFittedByItsGrades)
{
    for (const auto& point : GetParam().points)
    {
        double nearest = HUGE_VAL;
        for (int grade = GetParam().from; grade <= GetParam().to; ++grade)
            nearest = std::min(nearest, std::abs(FitOf(GetParam(), point, Grade{grade}).distance));
        EXPECT_LE(nearest, kNear) << point.width << " x " << point.height;
    }
}

INSTANTIATE_TEST_SUITE_P(Published, LadderOf, testing::ValuesIn(PublishedLadders()),
                         [](const auto& test) { return test.param.name; });

TEST(PublishedLadders, HaveOneGradeEachButForFacebooksAndGoogles)
{
    for (const auto& ladder : PublishedLadders())
    {
        const std::string_view name(ladder.name);
        EXPECT_EQ(name.starts_with("Facebook") || name.starts_with("Google"), ladder.from != ladder.to)
            << name;
    }
}

TEST(PublishedLadders, OfH264At1080pAreHitExactly)
{
    const auto rate = [](Grade grade) {
        return VideoBitrate(*CapabilitiesOf(VXCodecID_H264), {1920, 1080, 30, VXPixFormat_YUV420P}, grade);
    };
    EXPECT_EQ(6'000'000, rate(Grade::QualityLevelNormal));
    EXPECT_EQ(8'000'000, rate(Grade::QualityLevelHigh));
}

} // namespace

} // namespace Vexlor
