#include "CodecLists.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/BitrateModel.h"
#include "runtime/mediacodecs/BitrateTable.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/SampleFormats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <vector>

namespace Vexlor
{

namespace
{

using Grade = IVXCodecs::QualityLevel;

constexpr std::array kAllGrades{Grade::QualityLevelLow, Grade::QualityLevelNormal, Grade::QualityLevelHigh,
                                Grade::QualityLevelBest};

int Audio(int codecID, const SoundStream& stream, Grade level)
{
    return AudioBitrate(*CapabilitiesOf(codecID), stream, level);
}

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
    static const CodecCapabilities& Codec() { return *CapabilitiesOf(GetParam()); }
    static int Rate(const SoundStream& stream, Grade level) { return Audio(GetParam(), stream, level); }
    static std::vector<SoundStream> EverySound()
    {
        std::vector<SoundStream> streams;
        for (const int rate : Codec().sampleRates)
            for (const auto layout : Codec().layouts)
                streams.push_back({rate, layout, Codec().formats.front()});
        return streams;
    }
    static bool IsLegal(const SoundStream& stream, int bitrate)
    {
        const auto legal = LegalKbps(GetParam(), stream.sampleRate, ChannelsOf(stream.layout));
        return legal.empty() || std::ranges::find(legal, bitrate / 1000) != legal.end();
    }
};

TEST_P(EveryAudioModel, RisesWithTheGrade)
{
    for (const auto& stream : EverySound())
        EXPECT_TRUE(std::ranges::is_sorted(kAllGrades, {}, [&](Grade level) { return Rate(stream, level); }))
            << stream.sampleRate;
}

TEST_P(EveryAudioModel, RecognisesTheGradeOfItsOwnBitrates)
{
    for (const auto& stream : EverySound())
        for (const auto level : kAllGrades)
        {
            const int bitrate = Rate(stream, level);
            ASSERT_EQ(bitrate, Rate(stream, AudioGrade(Codec(), stream, bitrate))) << stream.sampleRate;
        }
}

TEST_P(EveryAudioModel, RisesWithTheSampleRate)
{
    auto rates = Codec().sampleRates;
    std::ranges::sort(rates);
    for (const auto level : kAllGrades)
        EXPECT_TRUE(std::ranges::is_sorted(rates, {},
                                           [&](int rate) {
                                               return Rate({rate, kStereo, kSampleFormatS16}, level);
                                           }));
}

TEST_P(EveryAudioModel, GivesLegalBitratesOnly)
{
    for (const auto& stream : EverySound())
        for (const auto level : kAllGrades)
            ASSERT_TRUE(IsLegal(stream, Rate(stream, level))) << stream.sampleRate << " grade " << level;
}

TEST_P(EveryAudioModel, OfHostileSoundIsPositive)
{
    for (const auto& stream : {SoundStream{0, 0, 0},
                               {INT_MIN, ~0ULL, INT_MIN},
                               {INT_MAX, ~0ULL, INT_MAX},
                               {1, 1ULL << 63, -1},
                               {-44100, kLowFrequency, 12345}})
        for (const int grade : {INT_MIN, -1, 3, INT_MAX})
            EXPECT_GE(Rate(stream, Grade{grade}), 1) << stream.sampleRate;
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
