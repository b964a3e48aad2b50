#include "runtime/mediacodecs/BitrateControl.h"

#include "IVXCodecParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <gtest/gtest.h>

#include <climits>

namespace Vexlor
{

namespace
{

constexpr int kMegabit = 1'000'000;

class BitrateControlTest : public testing::Test
{
protected:
    BitrateControlTest() { stream->SetFramePerSecond(IVXRational::MallocRational(25, 1)); }
    std::shared_ptr<IVXCodecParameter> stream = IVXCodecParameter::MallocCodecParamter(VXCodecID_H264);
};

TEST_F(BitrateControlTest, WithoutBoundsNothingIsRationed)
{
    const auto control = ControlOf(*stream, 4 * kMegabit, {.buffer = 10 * kMegabit});
    EXPECT_EQ(0, control.most);
    EXPECT_EQ(0, control.buffer);
    EXPECT_FALSE(control.isConstant);
}

TEST_F(BitrateControlTest, AVariableBitrateHasTheWholeBufferOfItsLevel)
{
    stream->SetMaxBitrate(5 * kMegabit);
    EXPECT_EQ(10 * kMegabit, ControlOf(*stream, 4 * kMegabit, {.buffer = 10 * kMegabit}).buffer);
    EXPECT_EQ(2 * kMegabit, ControlOf(*stream, 4 * kMegabit, {.buffer = 2 * kMegabit}).buffer);
}

TEST_F(BitrateControlTest, AConstantBitrateHasASecondOfIt)
{
    stream->SetBitrateMode(1);
    EXPECT_EQ(4 * kMegabit, ControlOf(*stream, 4 * kMegabit, {.buffer = 10 * kMegabit}).buffer);
    EXPECT_EQ(2 * kMegabit, ControlOf(*stream, 4 * kMegabit, {.buffer = 2 * kMegabit}).buffer);
    EXPECT_TRUE(ControlOf(*stream, 4 * kMegabit, {.buffer = 0}).isConstant);
}

TEST_F(BitrateControlTest, WithoutALevelTheBufferHoldsASecond)
{
    stream->SetMaxBitrate(5 * kMegabit);
    EXPECT_EQ(5 * kMegabit, ControlOf(*stream, 4 * kMegabit, {.buffer = 0}).buffer);
}

TEST_F(BitrateControlTest, ALevelBoundsWhatHasNoBoundOfItsOwn)
{
    EXPECT_EQ(10 * kMegabit, ControlOf(*stream, 4 * kMegabit, {.bitrate = 10 * kMegabit}).most);
    stream->SetMaxBitrate(5 * kMegabit);
    EXPECT_EQ(5 * kMegabit, ControlOf(*stream, 4 * kMegabit, {.bitrate = 10 * kMegabit}).most);
}

TEST_F(BitrateControlTest, AConstantBitrateIsNotRaisedToItsLevels)
{
    stream->SetBitrateMode(1);
    EXPECT_EQ(4 * kMegabit, ControlOf(*stream, 4 * kMegabit, {.bitrate = 10 * kMegabit}).most);
}

TEST_F(BitrateControlTest, ALevelOfMoreThanNumbersHoldIsTheMostOfThem)
{
    EXPECT_EQ(INT_MAX, ControlOf(*stream, 4 * kMegabit, {.bitrate = 3'200'000'000}).most);
}

TEST_F(BitrateControlTest, AFrameFitsIntoTheBuffer)
{
    stream->SetMaxBitrate(4 * kMegabit);
    stream->SetFramePerSecond(IVXRational::MallocRational(1, 2));
    EXPECT_EQ(8 * kMegabit, ControlOf(*stream, 4 * kMegabit, {.buffer = 2 * kMegabit}).buffer);
}

TEST_F(BitrateControlTest, HostileNumbersStayWithinBounds)
{
    for (const int bound : {INT_MIN, -1, 0, 1, INT_MAX})
        for (const int rate : {INT_MIN, 0, 1, INT_MAX})
        {
            stream->SetMaxBitrate(bound);
            stream->SetMinBitrate(bound);
            stream->SetFramePerSecond(IVXRational::MallocRational(rate, INT_MAX));
            const auto control = ControlOf(*stream, bound, {bound, bound});
            EXPECT_LE(control.least, control.most);
            EXPECT_GE(control.buffer, 0);
        }
}

} // namespace

} // namespace Vexlor
