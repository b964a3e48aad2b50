// What the lists of a preset do not hold: the ends of the limits, and rates between those on offer.

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXRational.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/EncoderSetup.h"
#include "runtime/mediacodecs/FFmpegQuiet.h"
#include "runtime/mediacodecs/Snapping.h"
#include "tests/encode/Encoding.h"
#include "tests/mediacodecs/CodecLists.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

class EncoderLimits : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        if (Codec().encoders.empty())
            GTEST_SKIP() << "no encoder here";
    }

    static const CodecCapabilities& Codec() { return *CapabilitiesOf(GetParam()); }
    static const VideoLimits& Limits() { return Codec().codec->video; }

    /// Why a frame of that size and rate is not encoded; empty when it is.
    static std::string Complaint(PictureSize size, AVRational rate)
    {
        const FFmpegQuiet quiet;
        const auto picture = IVXCodecParameter::MallocCodecParamter(GetParam());
        picture->SetWidth(size.width);
        picture->SetHeight(size.height);
        const auto frameRate = IVXRational::MallocRational(rate.num, rate.den);
        picture->SetFramePerSecond(frameRate);
        picture->SetFormat(Codec().formats.front());
        picture->SetBitrate(picture->GetCodecs(true)->BestBitrateFor(
            size.width, size.height, frameRate, picture->GetFormat(), IVXCodecs::QualityLevelNormal, ""));
        const auto setup = OpenEncoder(*picture, {});
        return setup.context ? EncodePictures(*setup.context, 1).complaint : setup.complaint;
    }
};

TEST_P(EncoderLimits, TheSmallestPictureIsTaken)
{
    EXPECT_EQ("",
              Complaint(SnapSize(Limits().min, Limits(), Codec().block), SnapFrameRate({25, 1}, Limits())));
}

TEST_P(EncoderLimits, EverySnappedRateIsTaken)
{
    const auto size = SnapSize({320, 240}, Limits(), Codec().block);
    for (const auto wanted : {AVRational{1, 9}, {12, 1}, {24000, 1001}, {90000000, 3003003}, {999, 1}})
    {
        const auto rate = SnapFrameRate(wanted, Limits());
        EXPECT_EQ("", Complaint(size, rate)) << rate.num << '/' << rate.den;
    }
}

INSTANTIATE_TEST_SUITE_P(Codecs, EncoderLimits, testing::ValuesIn(CodecIDs(VXCodecTypeVideo)), CodecTestName);

} // namespace

} // namespace Vexlor
