#include "IVXCodecs.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/VXCodecParameter.h"

#include <gtest/gtest.h>

#include <climits>

namespace Vexlor
{

namespace
{

std::shared_ptr<IVXCodecParameter> Video(int width, int height, int num, int den)
{
    auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_H264);
    video->SetWidth(width);
    video->SetHeight(height);
    video->SetAspectRatio(IVXRational::MallocRational(num, den));
    return video;
}

TEST(CodecParameter, StartsWithTheDocumentedDefaults)
{
    const auto fresh = IVXCodecParameter::MallocCodecParamter(VXCodecID_H264);
    EXPECT_EQ(VXCodecID_H264, fresh->GetCodecID());
    EXPECT_EQ(VXPixFormat_None, fresh->GetFormat());
    EXPECT_EQ(IVXCodecs::VXProfileUnknown, fresh->GetProfile());
    EXPECT_EQ(IVXCodecs::VXLevelUnknown, fresh->GetLevel());
    EXPECT_EQ(0, fresh->GetFrameRate()->Num());
    EXPECT_EQ(1, fresh->GetFrameRate()->Den());
    EXPECT_EQ(1, fresh->GetAspectRatio()->Num());
    EXPECT_EQ(1, fresh->GetAspectRatio()->Den());
}

TEST(CodecParameter, StartsWithZeroNumbers)
{
    const auto fresh = IVXCodecParameter::MallocCodecParamter(VXCodecID_AAC);
    EXPECT_EQ(0,
              fresh->GetWidth() + fresh->GetHeight() + fresh->GetDisplayWidth() + fresh->GetDisplayHeight());
    EXPECT_EQ(0, fresh->GetBitrate() + fresh->GetMaxBitrate() + fresh->GetMinBitrate() +
                     fresh->GetBitrateMode());
    EXPECT_EQ(0, fresh->GetSampleRate());
    EXPECT_EQ(0U, fresh->GetChannelLayout());
    EXPECT_EQ(0U, fresh->GetCodecTag());
}

TEST(CodecParameter, TellsItsCodecsType)
{
    EXPECT_EQ(VXCodecTypeVideo, IVXCodecParameter::MallocCodecParamter(VXCodecID_VP9)->GetCodecType());
    EXPECT_EQ(VXCodecTypeAudio, IVXCodecParameter::MallocCodecParamter(VXCodecID_AAC)->GetCodecType());
}

TEST(CodecParameter, OfAnUnknownCodecHasNoTypeAndNoModel)
{
    const auto unknown = IVXCodecParameter::MallocCodecParamter(-5);
    ASSERT_NE(nullptr, unknown);
    EXPECT_EQ(VXCodecTypeUnknown, unknown->GetCodecType());
    EXPECT_EQ(nullptr, unknown->GetCodecs(true));
}

TEST(CodecParameter, HandsOutTheModelOfItsCodec)
{
    const auto codecs = IVXCodecParameter::MallocCodecParamter(VXCodecID_HEVC)->GetCodecs(true);
    ASSERT_NE(nullptr, codecs);
    EXPECT_EQ("HEVC", codecs->GetCodecName());
}

TEST(CodecParameter, KeepsWhatItIsGiven)
{
    const auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_H264);
    video->SetCodecTag(7);
    video->SetFormat(20);
    video->SetProfile(100);
    video->SetLevel(41);
    EXPECT_EQ(7U, video->GetCodecTag());
    EXPECT_EQ(20, video->GetFormat());
    EXPECT_EQ(100, video->GetProfile());
    EXPECT_EQ(41, video->GetLevel());
}

TEST(CodecParameter, KeepsItsBitrates)
{
    const auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_H264);
    video->SetBitrate(3);
    video->SetMaxBitrate(4);
    video->SetMinBitrate(2);
    video->SetBitrateMode(9);
    EXPECT_EQ(3, video->GetBitrate());
    EXPECT_EQ(4, video->GetMaxBitrate());
    EXPECT_EQ(2, video->GetMinBitrate());
    EXPECT_EQ(9, video->GetBitrateMode());
}

TEST(CodecParameter, KeepsItsSound)
{
    const auto audio = IVXCodecParameter::MallocCodecParamter(VXCodecID_AAC);
    audio->SetSampleRate(44100);
    audio->SetChannelLayout(~0ULL);
    EXPECT_EQ(44100, audio->GetSampleRate());
    EXPECT_EQ(~0ULL, audio->GetChannelLayout());
}

TEST(CodecParameter, SharesTheRationalsThatItIsGiven)
{
    const auto rate = IVXRational::MallocRational(25, 1);
    const auto video = Video(720, 576, 16, 11);
    video->SetFramePerSecond(rate);
    EXPECT_EQ(rate, video->GetFrameRate());
}

TEST(CodecParameter, IsNotChangedByEmptyHandles)
{
    const auto video = Video(720, 576, 16, 11);
    video->SetAspectRatio(nullptr);
    video->SetFramePerSecond(nullptr);
    EXPECT_EQ(16, video->GetAspectRatio()->Num());
    EXPECT_EQ(1, video->GetFrameRate()->Den());
}

TEST(CodecParameter, DisplayWidthIsWidenedByTheSampleAspectRatio)
{
    const auto video = Video(720, 576, 16, 11);
    EXPECT_EQ(1047, video->GetDisplayWidth());
    EXPECT_EQ(576, video->GetDisplayHeight());
}

TEST(CodecParameter, AspectRatiosThatAreNoneLeaveThePictureAsItIs)
{
    for (const auto& [num, den] : {std::pair{0, 0}, {0, 1}, {1, 0}, {-1, 1}, {INT_MIN, 1}})
        EXPECT_EQ(720, Video(720, 576, num, den)->GetDisplayWidth());
}

TEST(CodecParameter, DisplayWidthStaysWithinAnInteger)
{
    EXPECT_EQ(INT_MAX, Video(INT_MAX, 1, INT_MAX, 1)->GetDisplayWidth());
    EXPECT_EQ(-INT_MAX, Video(INT_MIN, 1, INT_MAX, 1)->GetDisplayWidth());
}

TEST(CodecParameter, AReadersDisplaySizeGoesFirst)
{
    VXCodecParameter phone(VXCodecID_H264);
    phone.SetWidth(1920);
    phone.SetHeight(1080);
    phone.SetDisplaySize(1080, 1920);
    EXPECT_EQ(1080, phone.GetDisplayWidth());
    EXPECT_EQ(1920, phone.GetDisplayHeight());
}

TEST(CodecParameter, ATagHasItsFirstByteLowest)
{
    EXPECT_EQ(0x58564944U, IVXCodecParameter::MakeCodecTag('D', 'I', 'V', 'X'));
    EXPECT_EQ(0xFF000000U, IVXCodecParameter::MakeCodecTag(0, 0, 0, 255));
}

} // namespace

} // namespace Vexlor
