#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/CodecTable.h"
#include "runtime/mediacodecs/SampleFormats.h"

#include <gmock/gmock.h>

#include <climits>

namespace Vexlor
{

namespace
{

using testing::Contains;
using testing::IsEmpty;
using testing::Pair;

std::shared_ptr<IVXCodecs> Encoder(int codecID) { return IVXCodecs::MallocCodecs(codecID, true); }

const auto k30 = IVXRational::MallocRational(30, 1);

TEST(Codecs, OfAnUnknownNumberAreNone)
{
    EXPECT_EQ(nullptr, Encoder(VXCodecID_None));
    EXPECT_EQ(nullptr, Encoder(INT_MIN));
    EXPECT_EQ("", IVXCodecs::DefaultCodecName(12345, true));
}

TEST(Codecs, HaveTheirDisplayName)
{
    EXPECT_EQ("H.264", Encoder(VXCodecID_H264)->GetCodecName());
    EXPECT_EQ("AC-3", IVXCodecs::DefaultCodecName(VXCodecID_AC3, false));
}

TEST(Codecs, GradesHaveNames)
{
    EXPECT_EQ("Low", IVXCodecs::QualityLevelName(IVXCodecs::QualityLevelLow));
    EXPECT_EQ("Best", IVXCodecs::QualityLevelName(IVXCodecs::QualityLevelBest));
    EXPECT_EQ("", IVXCodecs::QualityLevelName(IVXCodecs::QualityLevel{4}));
    EXPECT_EQ("", IVXCodecs::QualityLevelName(IVXCodecs::QualityLevel{-1}));
}

TEST(Codecs, NamesAreTheEncodersOrTheDecoders)
{
    EXPECT_THAT(Encoder(VXCodecID_MPEG2)->Names(), Contains("mpeg2video"));
    EXPECT_THAT(IVXCodecs::MallocCodecs(VXCodecID_H264, false)->Names(), Contains("h264"));
}

TEST(Codecs, ProfilesAndLevelsHaveNames)
{
    EXPECT_EQ("Main 10", Encoder(VXCodecID_HEVC)->ProfileName(2));
    EXPECT_EQ("4.1", Encoder(VXCodecID_H264)->LevelName(41));
    EXPECT_EQ("4.1 High", Encoder(VXCodecID_HEVC)->LevelName(1123));
    EXPECT_EQ("", Encoder(VXCodecID_H264)->ProfileName(IVXCodecs::VXProfileUnknown));
    EXPECT_EQ("", Encoder(VXCodecID_MP3)->LevelName(1));
}

TEST(Codecs, EveryOfferedProfileHasAName)
{
    for (const auto& codec : CodecTable())
        for (const int profile : Encoder(codec.id)->SupportedProfiles(""))
            EXPECT_NE("", Encoder(codec.id)->ProfileName(profile)) << codec.name;
}

TEST(Codecs, EveryOfferedLevelHasAName)
{
    for (const auto& codec : CodecTable())
        for (const int level : Encoder(codec.id)->SupportedLevels(""))
            EXPECT_NE("", Encoder(codec.id)->LevelName(level)) << codec.name;
}

TEST(Codecs, LevelsAreOfferedWhereTheStandardHasThem)
{
    for (const int id :
         {VXCodecID_H264, VXCodecID_HEVC, VXCodecID_MPEG4, VXCodecID_MPEG2, VXCodecID_VP9, VXCodecID_AV1})
        EXPECT_FALSE(Encoder(id)->SupportedLevels("").empty()) << id;
}

TEST(Codecs, OfVideoHaveLimits)
{
    const auto divx = Encoder(VXCodecID_DIVX);
    EXPECT_EQ(16, divx->MinWidth(""));
    EXPECT_EQ(16, divx->MinHeight(""));
    EXPECT_EQ(1920, divx->MaxWidth(""));
    EXPECT_EQ(1080, divx->MaxHeight(""));
    EXPECT_EQ(1, divx->MinFrameRate("")->Num());
    EXPECT_EQ(30, divx->MaxFrameRate("")->Num());
    EXPECT_THAT(divx->SupportedResolutions(""), IsEmpty());
}

TEST(Codecs, OfSoundHaveNoPicture)
{
    const auto aac = Encoder(VXCodecID_AAC);
    EXPECT_EQ(VXCodecTypeAudio, aac->GetCodecType());
    EXPECT_EQ(0, aac->MinWidth("") + aac->MaxWidth("") + aac->MinHeight("") + aac->MaxHeight(""));
    EXPECT_EQ(0, aac->MinFrameRate("")->GetDoubleValue());
    EXPECT_EQ(0, aac->MaxFrameRate("")->GetDoubleValue());
    EXPECT_FALSE(aac->BestFrameRateForInput(k30, "")->IsValid());
    EXPECT_THAT(aac->BestResolutionFor(1920, 1080, ""), Pair(0, 0));
}

TEST(Codecs, OfPicturesHaveNoSound)
{
    const auto video = Encoder(VXCodecID_H264);
    EXPECT_THAT(video->SupportedSampleRates(""), IsEmpty());
    EXPECT_THAT(video->SupportedChannelLayouts(""), IsEmpty());
    EXPECT_EQ(0, video->BestSampleRateForInput(48000, ""));
    EXPECT_EQ(0U, video->BestChannelLayoutForInput(kStereo, ""));
}

TEST(Codecs, FixedFrameRatesAreListedHighestFirst)
{
    const auto rates = Encoder(VXCodecID_MPEG2)->SupportedFrameRates("");
    ASSERT_EQ(8U, rates.size());
    EXPECT_EQ(60, rates.front()->Num());
    EXPECT_EQ(24000, rates.back()->Num());
    EXPECT_THAT(Encoder(VXCodecID_H264)->SupportedFrameRates(""), IsEmpty());
}

TEST(Codecs, SnapWhatTheyAreAskedFor)
{
    EXPECT_THAT(Encoder(VXCodecID_DIVX)->BestResolutionFor(3840, 2160, ""), Pair(1920, 1080));
    EXPECT_EQ(
        30000,
        Encoder(VXCodecID_MPEG1)->BestFrameRateForInput(IVXRational::MallocRational(2997, 100), "")->Num());
    EXPECT_EQ(48000, Encoder(VXCodecID_Opus)->BestSampleRateForInput(44100, ""));
    EXPECT_EQ(kStereo, Encoder(VXCodecID_MP3)->BestChannelLayoutForInput(kLayout51, ""));
}

TEST(Codecs, AnEmptyRateReadsAsAUsableOne)
{
    EXPECT_EQ(30, Encoder(VXCodecID_H264)->BestFrameRateForInput(nullptr, "")->Num());
    EXPECT_EQ(
        Encoder(VXCodecID_H264)->BestBitrateFor(1280, 720, k30, 0, IVXCodecs::QualityLevelHigh, ""),
        Encoder(VXCodecID_H264)->BestBitrateFor(1280, 720, nullptr, 0, IVXCodecs::QualityLevelHigh, ""));
}

TEST(Codecs, BitratesOfUploadsAreTheRecommendedOnes)
{
    const auto video = Encoder(VXCodecID_H264);
    EXPECT_EQ(8'000'000, video->BestBitrateFor(1920, 1080, k30, 0, IVXCodecs::QualityLevelHigh, ""));
    EXPECT_EQ(IVXCodecs::QualityLevelHigh, video->EstQualityWithBitrate(9'000'000, 1920, 1080, k30, 0, ""));
}

TEST(Codecs, SoundWithoutGradesIsOfTheBest)
{
    for (const int codecID : {VXCodecID_PCM16, VXCodecID_FLAC, VXCodecID_ALAC, VXCodecID_WavPack})
        EXPECT_EQ(IVXCodecs::QualityLevelBest,
                  Encoder(codecID)->EstQualityWithBitrate(700'000, 44100, kStereo, kSampleFormatS16, ""))
            << codecID;
}

TEST(Codecs, SoundIsGradedBySound)
{
    const auto aac = Encoder(VXCodecID_AAC);
    const int high = aac->BestBitrateFor(48000, kStereo, 0, IVXCodecs::QualityLevelHigh, "");
    EXPECT_EQ(IVXCodecs::QualityLevelHigh, aac->EstQualityWithBitrate(high, 48000, kStereo, 0, ""));
    EXPECT_EQ(IVXCodecs::QualityLevelLow, aac->EstQualityWithBitrate(-7, 48000, kStereo, 0, ""));
}

TEST(Codecs, AnAudioCodecAnswersItsOwnRangeWhateverThePicture)
{
    const auto aac = Encoder(VXCodecID_AAC);
    EXPECT_EQ(aac->BitrateRangeFor(0, 0, nullptr, 0, ""), aac->BitrateRangeFor(1920, 1080, k30, -5, ""));
    EXPECT_THAT(aac->BitrateRangeFor(0, 0, nullptr, 0, ""), Pair(96'000, 384'000));
}

TEST(Codecs, NoCodecIsBoundToListedBitrates)
{
    for (const int id : {VXCodecID_H264, VXCodecID_MP3, VXCodecID_AC3})
        EXPECT_THAT(Encoder(id)->SupportedBitrates(), IsEmpty());
}

TEST(Codecs, AudioQuestionsToAVideoCodecHaveAPositiveAnswer)
{
    EXPECT_GE(Encoder(VXCodecID_H264)->BestBitrateFor(48000, kStereo, 0, IVXCodecs::QualityLevelLow, ""), 1);
    EXPECT_GE(Encoder(VXCodecID_AAC)->BestBitrateFor(1, 1, k30, 0, IVXCodecs::QualityLevelLow, ""), 1);
}

} // namespace

} // namespace Vexlor
