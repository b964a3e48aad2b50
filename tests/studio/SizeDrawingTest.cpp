#include "apps/studio/outcome/SizeDrawing.h"
#include "apps/studio/outcome/SizeGeometry.h"
#include "apps/studio/outcome/SizeWords.h"

#include <QImage>
#include <QSet>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor::Studio;

constexpr double kGap = 20;
const QRectF kArea(0, 0, 420, 100);

SizeFacts Sizes(const QSizeF& source, const QSizeF& output)
{
    SizeFacts facts;
    facts.source = source;
    facts.output = output;
    facts.picture = output;
    return facts;
}

TEST(SizeGeometry, DrawsNothingOfNothing)
{
    const auto drawn = LayOutSizes({}, kArea, kGap);
    EXPECT_EQ(0, drawn.scale);
    EXPECT_TRUE(drawn.source.isEmpty() && drawn.output.isEmpty());
}

TEST(SizeGeometry, DrawsBothToOneScale)
{
    const auto drawn = LayOutSizes(Sizes({1920, 1080}, {1280, 720}), kArea, kGap);
    EXPECT_NEAR(drawn.source.width() / 1920, drawn.output.width() / 1280, 1e-9);
    EXPECT_NEAR(drawn.source.height() / 1080, drawn.output.height() / 720, 1e-9);
}

TEST(SizeGeometry, FillsTheAreaWithTheLargest)
{
    const auto drawn = LayOutSizes(Sizes({1920, 1080}, {1280, 720}), kArea, kGap);
    EXPECT_NEAR(100, drawn.source.height(), 1e-9); // 200 x 112.5 is what its half would have room for
}

TEST(SizeGeometry, LetsBothStandOnOneGroundInTheirHalves)
{
    const auto drawn = LayOutSizes(Sizes({1920, 1080}, {640, 480}), kArea, kGap);
    EXPECT_NEAR(100, drawn.source.bottom(), 1e-9);
    EXPECT_NEAR(100, drawn.output.bottom(), 1e-9);
    EXPECT_NEAR(100, drawn.source.center().x(), 1e-9);
    EXPECT_NEAR(320, drawn.output.center().x(), 1e-9);
}

TEST(SizeGeometry, GivesASourceAloneTheWholeArea)
{
    const auto drawn = LayOutSizes(Sizes({420, 100}, {}), kArea, kGap);
    EXPECT_EQ(kArea, drawn.source);
    EXPECT_TRUE(drawn.output.isEmpty());
}

TEST(SizeGeometry, PutsAPaddedPictureIntoTheMiddleOfItsFrame)
{
    auto facts = Sizes({1080, 1920}, {1920, 1080});
    facts.picture = {608, 1080};
    const auto drawn = LayOutSizes(facts, kArea, kGap);
    EXPECT_EQ(drawn.output.center(), drawn.picture.center());
    EXPECT_NEAR(608 * drawn.scale, drawn.picture.width(), 1e-9);
    EXPECT_NEAR(drawn.output.height(), drawn.picture.height(), 1e-9);
}

TEST(SizeGeometry, MakesRoomForWhatIsCutOff)
{
    auto facts = Sizes({100, 100}, {100, 100});
    facts.picture = {400, 100};
    const auto drawn = LayOutSizes(facts, kArea, kGap);
    EXPECT_NEAR(0.5, drawn.scale, 1e-9);
    EXPECT_NEAR(200, drawn.picture.width(), 1e-9);
}

TEST(SizeGeometry, DrawsBoundsAroundTheOutput)
{
    auto facts = Sizes({1280, 720}, {1280, 720});
    facts.most = {1920, 1080};
    facts.least = {320, 180};
    const auto drawn = LayOutSizes(facts, kArea, kGap);
    EXPECT_NEAR(1920 * drawn.scale, drawn.most.width(), 1e-9);
    EXPECT_EQ(drawn.output.center(), drawn.most.center());
    EXPECT_NEAR(320 * drawn.scale, drawn.least.width(), 1e-9);
}

TEST(SizeGeometry, LeavesOutABoundThatWouldMakeTheRestSmall)
{
    auto facts = Sizes({320, 180}, {320, 180});
    facts.most = {4096, 2304};
    EXPECT_TRUE(LayOutSizes(facts, kArea, kGap).most.isEmpty());
}

TEST(SizeGeometry, ShowsWhatIsThinnerThanALine)
{
    const auto drawn = LayOutSizes(Sizes({1'000'000, 1}, {1'000'000, 1}), kArea, kGap);
    EXPECT_GE(drawn.source.height(), 1);
}

TEST(SizeWords, TellSizesAsDisplayedAndAsStored)
{
    auto facts = Sizes({1024, 576}, {1024, 576});
    facts.storedSource = {720, 576};
    facts.storedOutput = {1024, 576};
    EXPECT_EQ("Source: 1024 x 576, stored as 720 x 576. Output: 1024 x 576.", SizeWordsOf(facts).description);
}

TEST(SizeWords, TellHowThePictureFits)
{
    auto facts = Sizes({1080, 1920}, {640, 480});
    facts.storedOutput = {640, 480};
    facts.picture = {270, 480};
    EXPECT_TRUE(SizeWordsOf(facts).output.contains("padded left and right"));
    facts.picture = {640, 1138};
    EXPECT_TRUE(SizeWordsOf(facts).output.contains("cut off above and below"));
    facts.isStretched = true;
    EXPECT_TRUE(SizeWordsOf(facts).output.contains("stretched"));
}

TEST(SizeWords, TellBoundsThatAreTooFarToBeDrawn)
{
    auto facts = Sizes({320, 180}, {320, 180});
    facts.most = {4096, 2304};
    EXPECT_TRUE(SizeWordsOf(facts).output.contains("at most 4096 x 2304"));
}

TEST(SizeDrawing, DescribesItselfInWords)
{
    SizeDrawing drawing;
    drawing.SetFacts(Sizes({1920, 1080}, {1280, 720}));
    EXPECT_EQ("Sizes to scale", drawing.accessibleName());
    EXPECT_EQ("Source: 1920 x 1080. Output: 1280 x 720.", drawing.accessibleDescription());
}

TEST(SizeDrawing, IsOnlyAsHighAsItsPictures)
{
    SizeDrawing drawing;
    drawing.resize(600, 400);
    drawing.SetFacts(Sizes({1920, 1080}, {1920, 1080}));
    const int high = drawing.sizeHint().height();
    drawing.SetFacts(Sizes({1920, 108}, {1920, 108}));
    EXPECT_LT(drawing.sizeHint().height(), high);
}

/// Colours in the middle row of the output's frame.
int ColorsAcross(const SizeFacts& facts)
{
    SizeDrawing drawing;
    drawing.resize(600, 300);
    drawing.SetFacts(facts);
    const auto image = drawing.grab().toImage();
    const auto frame = drawing.Geometry().output;
    QSet<QRgb> colors;
    for (int x = int(frame.left()) + 4; x < int(frame.right()) - 4; ++x)
        colors.insert(image.pixel(int(x * image.devicePixelRatio()), int(frame.center().y())));
    return int(colors.size());
}

TEST(SizeDrawing, HatchesWhatIsPadded)
{
    auto facts = Sizes({1080, 1920}, {1920, 1080});
    EXPECT_EQ(1, ColorsAcross(facts));
    facts.picture = {608, 1080};
    EXPECT_GT(ColorsAcross(facts), 2);
}

} // namespace
