#include "apps/studio/outcome/BitrateBar.h"
#include "apps/studio/outcome/BitrateGeometry.h"
#include "apps/studio/outcome/BitrateScale.h"
#include "apps/studio/outcome/BitrateWords.h"

#include <gmock/gmock.h>

namespace
{

using namespace Vexlor::Studio;
using testing::DoubleNear;
using testing::ElementsAre;

const QRectF kLine(10, 0, 100, 8);

BitrateFacts Bitrates(int least, int most, int output, int source = 0)
{
    BitrateFacts facts;
    facts.least = least;
    facts.most = most;
    facts.output = output;
    facts.source = source;
    return facts;
}

TEST(BitrateScale, HasEqualRatiosEquallyFarApart)
{
    const BitrateScale scale(Bitrates(1000, 100'000, 10'000));
    EXPECT_DOUBLE_EQ(0, scale.Position(1000));
    EXPECT_DOUBLE_EQ(0.5, scale.Position(10'000));
    EXPECT_DOUBLE_EQ(1, scale.Position(100'000));
}

TEST(BitrateScale, ReachesToWhatIsBeyondTheBounds)
{
    const BitrateScale scale(Bitrates(1000, 2000, 1500, 100'000));
    EXPECT_DOUBLE_EQ(1, scale.Position(100'000));
    EXPECT_LT(scale.Position(2000), 0.2);
}

TEST(BitrateScale, HasASingleBitrateInItsMiddle)
{
    EXPECT_DOUBLE_EQ(0.5, BitrateScale(Bitrates(0, 0, 128'000)).Position(128'000));
}

TEST(BitrateScale, IsEmptyWhereNoBitrateIsKnown)
{
    const BitrateScale scale(Bitrates(0, -5, 0, 0));
    EXPECT_TRUE(scale.IsEmpty());
    EXPECT_EQ(0, scale.Position(1000));
}

TEST(BitrateScale, KeepsItsEndsForWhatIsBeyondThem)
{
    const BitrateScale scale(Bitrates(1000, 2000, 1500));
    EXPECT_EQ(0, scale.Position(1));
    EXPECT_EQ(1, scale.Position(2'000'000'000));
}

TEST(GradeMarks, AreOneWhereGradesAreTheSame)
{
    auto facts = Bitrates(0, 0, 0);
    facts.grades = {100, 200, 200, 300};
    const auto marks = MarksOf(facts);
    ASSERT_EQ(3U, marks.size());
    EXPECT_EQ("Low", GradeText(marks[0]));
    EXPECT_EQ("Normal to High", GradeText(marks[1]));
    EXPECT_EQ("Best", GradeText(marks[2]));
}

TEST(GradeMarks, TellOfEveryGradeWhereAllAreTheSame)
{
    auto facts = Bitrates(0, 0, 0);
    facts.grades = {64, 64, 64, 64};
    ASSERT_EQ(1U, MarksOf(facts).size());
    EXPECT_EQ("every grade", GradeText(MarksOf(facts).front()));
}

TEST(GradeMarks, AreNotThereForWhatIsNotKnown) { EXPECT_TRUE(MarksOf(Bitrates(1, 2, 3)).empty()); }

TEST(SpreadLabels, LeavesLabelsWhereTheyBelong)
{
    EXPECT_THAT(SpreadLabels({20, 60}, {10, 10}, 0, 100, 5), ElementsAre(15, 55));
}

TEST(SpreadLabels, PushesThemApart)
{
    EXPECT_THAT(SpreadLabels({50, 52, 54}, {10, 10, 10}, 0, 100, 2), ElementsAre(45, 57, 69));
}

TEST(SpreadLabels, KeepsThemInsideTheLine)
{
    EXPECT_THAT(SpreadLabels({0, 100, 100}, {10, 10, 10}, 0, 100, 2), ElementsAre(0, 78, 90));
}

TEST(SpreadLabels, StartsAtTheLeftWhereThereIsNoRoom)
{
    EXPECT_THAT(SpreadLabels({10, 10}, {30, 30}, 0, 40, 2), ElementsAre(0, 32));
}

TEST(BitrateGeometry, HasItsBarBetweenTheBounds)
{
    const auto drawn = LayOutBitrates(Bitrates(1000, 100'000, 10'000), kLine);
    EXPECT_EQ(kLine, drawn.bar);
    EXPECT_NEAR(60, drawn.output, 1e-9);
    EXPECT_NEAR(60, drawn.filled.right(), 1e-9);
}

TEST(BitrateGeometry, FillsNoMoreThanTheBar)
{
    const auto drawn = LayOutBitrates(Bitrates(1000, 10'000, 100'000), kLine);
    EXPECT_NEAR(60, drawn.bar.right(), 1e-9);
    EXPECT_EQ(drawn.bar, drawn.filled);
    EXPECT_NEAR(110, drawn.output, 1e-9);
}

TEST(BitrateGeometry, FillsNothingBelowTheBar)
{
    const auto drawn = LayOutBitrates(Bitrates(10'000, 100'000, 1000), kLine);
    EXPECT_TRUE(drawn.filled.isEmpty());
    EXPECT_NEAR(60, drawn.bar.left(), 1e-9);
}

TEST(BitrateGeometry, HasNoBarBetweenBoundsThatContradictEachOther)
{
    EXPECT_TRUE(LayOutBitrates(Bitrates(2000, 1000, 1500), kLine).bar.isEmpty());
}

TEST(BitrateGeometry, MarksTheGrades)
{
    auto facts = Bitrates(1000, 1'000'000, 1000);
    facts.grades = {1000, 10'000, 100'000, 1'000'000};
    const auto marks = LayOutBitrates(facts, QRectF(0, 0, 90, 8)).marks;
    EXPECT_THAT(marks, ElementsAre(DoubleNear(0, 1e-9), DoubleNear(30, 1e-9), DoubleNear(60, 1e-9),
                                   DoubleNear(90, 1e-9)));
}

TEST(BitrateBar, DescribesItselfInWords)
{
    auto facts = Bitrates(1'000'000, 20'000'000, 6'000'000, 6'500'000);
    facts.isMostOfPreset = true;
    facts.grades = {2'000'000, 4'000'000, 6'000'000, 9'000'000};
    BitrateBar bar("Bitrate of the video");
    bar.SetFacts(facts);
    EXPECT_EQ("Bitrate of the video", bar.accessibleName());
    EXPECT_EQ(
        "Output: 6.00 Mb/s. Source: 6.50 Mb/s. At least 1.00 Mb/s suits the codec. At most 20.00 Mb/s by "
        "the preset. Grades: Low 2.00 Mb/s, Normal 4.00 Mb/s, High 6.00 Mb/s, Best 9.00 Mb/s.",
        bar.accessibleDescription());
}

TEST(BitrateBar, SaysWhereContentDecides)
{
    auto facts = Bitrates(1000, 2000, 1500);
    facts.followsBitrate = false;
    EXPECT_TRUE(BitrateDescription(facts).contains("follows from the content"));
}

TEST(BitrateBar, IsDrawnInsideOfItself)
{
    BitrateBar bar("Bitrate");
    bar.resize(300, bar.sizeHint().height());
    bar.SetFacts(Bitrates(1000, 2000, 1500, 4000));
    const auto drawn = bar.Geometry();
    EXPECT_GT(drawn.line.left(), 0);
    EXPECT_LT(drawn.source, 300);
    EXPECT_LT(drawn.line.bottom(), bar.height());
}

} // namespace
