#include "runtime/mediacodecs/BitrateModel.h"
#include "CodecLists.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateTable.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/SampleFormats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

namespace Vexlor
{

namespace
{

using Grade = IVXCodecs::QualityLevel;

constexpr std::array kAllGrades{Grade::QualityLevelLow, Grade::QualityLevelNormal, Grade::QualityLevelHigh,
                                Grade::QualityLevelBest};
constexpr int k420 = VXPixFormat_YUV420P;
constexpr PictureSize kPictures[] = {{16, 16},     {120, 90},    {320, 240},   {416, 234},   {640, 360},
                                     {768, 432},   {720, 480},   {854, 480},   {960, 540},   {1280, 720},
                                     {1920, 1080}, {2560, 1440}, {3840, 2160}, {7680, 4320}, {16384, 8704}};
constexpr double kFrameRates[] = {1, 8, 15, 24000 / 1001.0, 24, 25, 30000 / 1001.0, 30, 50, 60, 120, 300};

int Video(int codecID, const PictureStream& stream, Grade level)
{
    return VideoBitrate(*CapabilitiesOf(codecID), stream, level);
}

int Audio(int codecID, const SoundStream& stream, Grade level)
{
    return AudioBitrate(*CapabilitiesOf(codecID), stream, level);
}

TEST(VideoBitrate, OfTheReferenceCodecIsTheLadders)
{
    for (std::size_t grade = 0; grade < kGrades; ++grade)
        for (const auto& point : ReferenceLadder(grade))
            EXPECT_NEAR(point.kbps * 1000,
                        Video(VXCodecID_H264, {point.width, point.height, 30, k420}, kAllGrades.at(grade)),
                        1.0);
}

TEST(VideoBitrate, RisesByAHalfWhenTheFrameRateDoubles)
{
    EXPECT_EQ(12'000'000, Video(VXCodecID_H264, {1920, 1080, 60, k420}, Grade::QualityLevelHigh));
}

TEST(VideoBitrate, OfModernCodecsIsLower)
{
    const PictureStream stream{1920, 1080, 30, k420};
    EXPECT_LT(Video(VXCodecID_HEVC, stream, Grade::QualityLevelHigh),
              Video(VXCodecID_H264, stream, Grade::QualityLevelHigh));
    EXPECT_LT(Video(VXCodecID_AV1, stream, Grade::QualityLevelHigh),
              Video(VXCodecID_HEVC, stream, Grade::QualityLevelHigh));
    EXPECT_GT(Video(VXCodecID_MPEG2, stream, Grade::QualityLevelHigh),
              Video(VXCodecID_MPEG4, stream, Grade::QualityLevelHigh));
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

TEST(VideoBitrate, OfHostilePicturesIsPositive)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const int side : {INT_MIN, -1, 0, 1, INT_MAX})
        for (const double rate : {nan, -HUGE_VAL, -1.0, 0.0, 1e-9, 1e9, HUGE_VAL})
            for (const auto grade : {Grade{-1}, Grade::QualityLevelBest, Grade{99}})
                for (const int format : {INT_MIN, -1, k420, 12345})
                    EXPECT_GE(Video(VXCodecID_H264, {side, INT_MAX, rate, format}, grade), 1);
}

TEST(VideoBitrate, StaysWithinTheHighestLevel)
{
    EXPECT_EQ(800'000'000,
              Video(VXCodecID_H264, {INT_MAX, INT_MAX, 300, kPixFormatYUV444P12}, Grade::QualityLevelBest));
    EXPECT_EQ(20'000'000, Video(VXCodecID_DIVX, {1920, 1080, 30, k420}, Grade::QualityLevelBest));
}

class EveryVideoModel : public testing::TestWithParam<int>
{
protected:
    int Rate(const PictureStream& stream, Grade level) const { return Video(GetParam(), stream, level); }
};

TEST_P(EveryVideoModel, RisesWithGradePixelsAndFrameRate)
{
    for (std::size_t size = 0; size < std::size(kPictures); ++size)
        for (std::size_t rate = 0; rate < std::size(kFrameRates); ++rate)
            for (std::size_t grade = 0; grade < kGrades; ++grade)
            {
                const PictureStream here{kPictures[size].width, kPictures[size].height, kFrameRates[rate],
                                         k420};
                const auto& smaller = kPictures[size ? size - 1 : 0];
                const auto slower = kFrameRates[rate ? rate - 1 : 0];
                const int bitrate = Rate(here, kAllGrades.at(grade));
                ASSERT_GE(bitrate,
                          Rate({smaller.width, smaller.height, here.frameRate, k420}, kAllGrades.at(grade)));
                ASSERT_GE(bitrate, Rate({here.width, here.height, slower, k420}, kAllGrades.at(grade)));
                ASSERT_GE(bitrate, Rate(here, kAllGrades.at(grade ? grade - 1 : 0)));
            }
}

TEST_P(EveryVideoModel, RecognisesTheGradeOfItsOwnBitrates)
{
    const auto& codec = *CapabilitiesOf(GetParam());
    for (const auto size : kPictures)
        for (const double rate : kFrameRates)
            for (const auto level : kAllGrades)
            {
                const PictureStream here{size.width, size.height, rate, k420};
                const auto found = VideoGrade(codec, here, Rate(here, level));
                ASSERT_EQ(Rate(here, level), Rate(here, found)) << size.width << " at " << rate;
                ASSERT_TRUE(found == level || found < level) << size.width << " at " << rate;
            }
}

TEST_P(EveryVideoModel, TellsTheGradesOfUsualPicturesApart)
{
    for (const auto size : {PictureSize{320, 240}, {720, 480}, {1280, 720}})
        for (std::size_t grade = 1; grade < kGrades; ++grade)
            EXPECT_GT(Rate({size.width, size.height, 25, k420}, kAllGrades.at(grade)),
                      Rate({size.width, size.height, 25, k420}, kAllGrades.at(grade - 1)));
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
    const auto [low, high] = VideoBitrateRange(*CapabilitiesOf(GetParam()), stream);
    for (const auto level : kAllGrades)
    {
        EXPECT_LE(low, Rate(stream, level));
        EXPECT_GE(high, Rate(stream, level));
    }
    EXPECT_LT(low, high);
}

INSTANTIATE_TEST_SUITE_P(Codecs, EveryVideoModel, testing::ValuesIn(CodecIDs(VXCodecTypeVideo)),
                         CodecTestName);

TEST(AudioBitrate, OfStereoIsTheOneInCommonUse)
{
    const SoundStream stereo{44100, kStereo, kSampleFormatFLTP};
    EXPECT_EQ(128'000, Audio(VXCodecID_AAC, stereo, Grade::QualityLevelNormal));
    EXPECT_EQ(320'000, Audio(VXCodecID_MP3, stereo, Grade::QualityLevelBest));
    EXPECT_EQ(96'000, Audio(VXCodecID_Opus, stereo, Grade::QualityLevelNormal));
    EXPECT_EQ(224'000, Audio(VXCodecID_AC3, stereo, Grade::QualityLevelHigh));
}

TEST(AudioBitrate, FollowsTheNumberOfChannels)
{
    EXPECT_EQ(64'000, Audio(VXCodecID_AAC, {48000, kMono, kSampleFormatFLTP}, Grade::QualityLevelNormal));
    EXPECT_EQ(320'000,
              Audio(VXCodecID_AAC, {48000, kLayout51, kSampleFormatFLTP}, Grade::QualityLevelNormal));
}

TEST(AudioBitrate, OfPcmIsExact)
{
    EXPECT_EQ(1'411'200, Audio(VXCodecID_PCM16, {44100, kStereo, kSampleFormatS16}, Grade::QualityLevelLow));
    EXPECT_EQ(1'411'200,
              Audio(VXCodecID_PCM16, {44100, kStereo, VXSampleFormat_FLT}, Grade::QualityLevelBest));
}

TEST(AudioBitrate, OfFlacIsAShareOfItsSamples)
{
    EXPECT_EQ(846'720, Audio(VXCodecID_FLAC, {44100, kStereo, kSampleFormatS16}, Grade::QualityLevelLow));
}

class EveryAudioModel : public testing::TestWithParam<int>
{
protected:
    const CodecCapabilities& Codec() const { return *CapabilitiesOf(GetParam()); }
    int Rate(const SoundStream& stream, Grade level) const { return Audio(GetParam(), stream, level); }
};

TEST_P(EveryAudioModel, RisesWithTheGradeAndRecognisesIt)
{
    for (const int rate : Codec().sampleRates)
        for (const auto layout : Codec().layouts)
            for (std::size_t grade = 0; grade < kGrades; ++grade)
            {
                const SoundStream here{rate, layout, Codec().formats.front()};
                const int bitrate = Rate(here, kAllGrades.at(grade));
                ASSERT_GE(bitrate, Rate(here, kAllGrades.at(grade ? grade - 1 : 0))) << rate;
                ASSERT_EQ(bitrate, Rate(here, AudioGrade(Codec(), here, bitrate))) << rate;
            }
}

TEST_P(EveryAudioModel, RisesWithTheSampleRate)
{
    auto rates = Codec().sampleRates;
    std::ranges::sort(rates);
    for (const auto level : kAllGrades)
        for (std::size_t i = 1; i < rates.size(); ++i)
            EXPECT_GE(Rate({rates[i], kStereo, kSampleFormatS16}, level),
                      Rate({rates[i - 1], kStereo, kSampleFormatS16}, level));
}

TEST_P(EveryAudioModel, GivesLegalBitratesOnly)
{
    for (const int rate : Codec().sampleRates)
        for (const auto layout : Codec().layouts)
            for (const auto level : kAllGrades)
            {
                const auto legal = LegalKbps(GetParam(), rate, ChannelsOf(layout));
                const int bitrate = Rate({rate, layout, Codec().formats.front()}, level);
                ASSERT_TRUE(legal.empty() || std::ranges::find(legal, bitrate / 1000) != legal.end())
                    << bitrate;
            }
}

TEST_P(EveryAudioModel, OfHostileSoundIsPositive)
{
    for (const int rate : {INT_MIN, -1, 0, 1, INT_MAX})
        for (const std::uint64_t layout : {0ULL, 8ULL, 1ULL << 63, ~0ULL})
            for (const auto level : {Grade{-1}, Grade::QualityLevelBest, Grade{99}})
                for (const int format : {INT_MIN, -1, 0, 12345})
                    EXPECT_GE(Rate({rate, layout, format}, level), 1);
}

TEST_P(EveryAudioModel, HasARangeOfItsOwn)
{
    const auto [low, high] = AudioBitrateRange(Codec());
    EXPECT_GE(low, 1);
    EXPECT_LT(low, high);
}

INSTANTIATE_TEST_SUITE_P(Codecs, EveryAudioModel, testing::ValuesIn(CodecIDs(VXCodecTypeAudio)),
                         CodecTestName);

} // namespace

} // namespace Vexlor
