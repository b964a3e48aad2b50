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
#include <cmath>
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

/// What a program or a service publishes for one sound, in kb/s.
struct PublishedSound
{
    const char* name;
    int codecID;
    std::uint64_t layout;
    int kbps;
};

class PublishedSounds : public testing::TestWithParam<PublishedSound>
{
};

TEST_P(PublishedSounds, AreNearAGrade)
{
    const SoundStream stream{48000, GetParam().layout, kSampleFormatFLTP};
    const auto isNear = [&](Grade level)
    { return std::abs(Audio(GetParam().codecID, stream, level) / (1000.0 * GetParam().kbps) - 1) <= 0.15; };
    EXPECT_TRUE(std::ranges::any_of(kAllGrades, isNear));
}

constexpr auto kPublishedSounds = std::to_array<PublishedSound>({
    {"YouTubeMono", VXCodecID_AAC, kMono, 128},
    {"YouTubeStereo", VXCodecID_AAC, kStereo, 384},
    {"YouTube51", VXCodecID_AAC, kLayout51, 512},
    {"HandBrakeAAC", VXCodecID_AAC, kStereo, 160},
    {"JellyfinMost", VXCodecID_AAC, kStereo, 256},
    {"Media3", VXCodecID_AAC, kStereo, 128},
    {"ShakaMono", VXCodecID_AAC, kMono, 64},
    {"ShakaStereo", VXCodecID_AAC, kStereo, 160},
    {"Shaka51", VXCodecID_AAC, kLayout51, 320},
    {"HandBrakeHEAAC", VXCodecID_HEAAC, kStereo, 64},
    {"HandBrakeOpus", VXCodecID_Opus, kStereo, 96},
    {"HandBrakeOpus51", VXCodecID_Opus, kLayout51, 320},
    {"HandBrakeVorbis", VXCodecID_Vorbis, kStereo, 160},
    {"HandBrakeAC3Mono", VXCodecID_AC3, kMono, 96},
    {"HandBrakeAC3Stereo", VXCodecID_AC3, kStereo, 224},
    {"HandBrakeAC351", VXCodecID_AC3, kLayout51Side, 640},
    {"ShakaAC3Mono", VXCodecID_AC3, kMono, 92},
    {"ShakaAC3Stereo", VXCodecID_AC3, kStereo, 192},
    {"ShakaAC351", VXCodecID_AC3, kLayout51Side, 384},
    {"ShakaEAC3Mono", VXCodecID_EAC3, kMono, 64},
    {"ShakaEAC3Stereo", VXCodecID_EAC3, kStereo, 160},
});
INSTANTIATE_TEST_SUITE_P(AudioBitrate, PublishedSounds, testing::ValuesIn(kPublishedSounds),
                         [](const auto& test) { return test.param.name; });

TEST(AudioBitrate, FollowsTheNumberOfChannels)
{
    EXPECT_EQ(72'000, Audio(VXCodecID_AAC, {48000, kMono, kSampleFormatFLTP}, Grade::QualityLevelNormal));
    EXPECT_EQ(360'000,
              Audio(VXCodecID_AAC, {48000, kLayout51, kSampleFormatFLTP}, Grade::QualityLevelNormal));
}

/// Sound whose bitrate follows from its samples alone.
struct StoredSound
{
    const char* name;
    int codecID;
    SoundStream stream;
    int bitrate;
};

class StoredSounds : public testing::TestWithParam<StoredSound>
{
};

TEST_P(StoredSounds, HaveTheirBitrateAtEveryGrade)
{
    for (const auto level : kAllGrades)
        EXPECT_EQ(GetParam().bitrate, Audio(GetParam().codecID, GetParam().stream, level));
}

constexpr auto kStoredSounds = std::to_array<StoredSound>({
    {"PCM16", VXCodecID_PCM16, {44100, kStereo, kSampleFormatS16}, 1'411'200},
    {"PCM16ToldAsFloat", VXCodecID_PCM16, {44100, kStereo, VXSampleFormat_FLT}, 1'411'200},
    {"PCM16BigEndian", VXCodecID_PCM16BE, {44100, kStereo, kSampleFormatS16}, 1'411'200},
    {"PCM24", VXCodecID_PCM24, {48000, kLayout51, kSampleFormatS32}, 6'912'000},
    {"PCM24BigEndian", VXCodecID_PCM24BE, {96000, kStereo, kSampleFormatS32}, 4'608'000},
    {"PCM32", VXCodecID_PCM32, {48000, kStereo, kSampleFormatS32}, 3'072'000},
    {"PCMFloat", VXCodecID_PCMFloat, {48000, kStereo, VXSampleFormat_FLT}, 3'072'000},
    {"ALaw", VXCodecID_ALaw, {8000, kMono, kSampleFormatS16}, 64'000},
    {"MuLaw", VXCodecID_MuLaw, {8000, kStereo, kSampleFormatS16}, 128'000},
    // Blocks of 1024 bytes hold 2041 and 1017, 2036 and 1012 samples of each channel.
    {"IMAMono", VXCodecID_ADPCM, {44100, kMono, kSampleFormatS16P}, 177'005},
    {"IMAStereo", VXCodecID_ADPCM, {44100, kStereo, kSampleFormatS16P}, 355'228},
    {"MicrosoftMono", VXCodecID_ADPCMMS, {44100, kMono, kSampleFormatS16}, 177'440},
    {"MicrosoftStereo", VXCodecID_ADPCMMS, {44100, kStereo, kSampleFormatS16}, 356'983},
    {"FLAC16", VXCodecID_FLAC, {44100, kStereo, kSampleFormatS16}, 846'720},
    {"FLAC24", VXCodecID_FLAC, {48000, kStereo, kSampleFormatS32}, 1'382'400},
    {"ALAC24", VXCodecID_ALAC, {48000, kStereo, kSampleFormatS32P}, 1'382'400},
});
INSTANTIATE_TEST_SUITE_P(AudioBitrate, StoredSounds, testing::ValuesIn(kStoredSounds),
                         [](const auto& test) { return test.param.name; });

TEST(AudioBitrate, OfSpeechIsAModeOfItsSampleRate)
{
    EXPECT_EQ(12'200, Audio(VXCodecID_AMRNB, {8000, kMono, kSampleFormatS16}, Grade::QualityLevelBest));
    EXPECT_EQ(12'650, Audio(VXCodecID_AMRWB, {16000, kMono, kSampleFormatS16}, Grade::QualityLevelNormal));
    EXPECT_EQ(27'800, Audio(VXCodecID_Speex, {16000, kMono, kSampleFormatS16}, Grade::QualityLevelHigh));
    EXPECT_EQ(24'600, Audio(VXCodecID_Speex, {8000, kMono, kSampleFormatS16}, Grade::QualityLevelBest));
}

TEST(AudioBitrate, OfEAC3IsNeverBelow224KilobitsForFiveChannels)
{
    for (const auto layout : CapabilitiesOf(VXCodecID_EAC3)->layouts)
        EXPECT_GE(Audio(VXCodecID_EAC3, {48000, layout, kSampleFormatFLTP}, Grade::QualityLevelLow),
                  224'000 * ChannelsOf(layout) / 5)
            << VXChannelLayoutName(layout);
}

TEST(AudioBitrate, OfOpusGrowsBeyondThatOfOneStream)
{
    EXPECT_EQ(672'000, Audio(VXCodecID_Opus, {48000, kLayout71, kSampleFormatFLTP}, Grade::QualityLevelBest));
}

/// What libvorbis takes of one channel, in kb/s.
struct VorbisCase
{
    const char* name;
    int sampleRate;
    int least;
    int most;
};

class VorbisOf : public testing::TestWithParam<VorbisCase>
{
};

TEST_P(VorbisOf, StaysWithinWhatItsEncoderTakes)
{
    const SoundStream mono{GetParam().sampleRate, kMono, kSampleFormatFLTP};
    EXPECT_GE(Audio(VXCodecID_Vorbis, mono, Grade::QualityLevelLow), 1000 * GetParam().least);
    EXPECT_LE(Audio(VXCodecID_Vorbis, mono, Grade::QualityLevelBest), 1000 * GetParam().most);
}

constexpr VorbisCase kVorbisCases[] = {
    {"At8", 8000, 14, 32},    {"At11", 11025, 14, 32},  {"At16", 16000, 22, 86}, {"At24", 24000, 22, 86},
    {"At32", 32000, 32, 190}, {"At44", 44100, 32, 240}, {"At48", 48000, 32, 240}};
INSTANTIATE_TEST_SUITE_P(AudioBitrate, VorbisOf, testing::ValuesIn(kVorbisCases),
                         [](const auto& test) { return test.param.name; });

TEST(AudioBitrate, OfDTSIsOneOfADVDsAtBothEnds)
{
    const SoundStream stream{48000, kLayout51Side, kSampleFormatS32};
    EXPECT_EQ(768'000, Audio(VXCodecID_DTS, stream, Grade::QualityLevelLow));
    EXPECT_EQ(1'536'000, Audio(VXCodecID_DTS, stream, Grade::QualityLevelBest));
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
        const auto legal = LegalBitrates(GetParam(), stream.sampleRate, stream.layout);
        return legal.empty() || std::ranges::find(legal, bitrate) != legal.end();
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
        for (const auto layout : Codec().layouts)
            EXPECT_TRUE(std::ranges::is_sorted(rates, {},
                                               [&](int rate) {
                                                   return Rate({rate, layout, kSampleFormatS16}, level);
                                               }));
}

TEST_P(EveryAudioModel, RisesWithTheChannels)
{
    auto layouts = Codec().layouts;
    std::ranges::stable_sort(layouts, {}, ChannelsOf);
    std::erase_if(layouts, [](std::uint64_t layout) { return layout & kLowFrequency; });
    for (const int rate : Codec().sampleRates)
        for (const auto level : kAllGrades)
            EXPECT_TRUE(std::ranges::is_sorted(layouts, {},
                                               [&](std::uint64_t layout) {
                                                   return Rate({rate, layout, kSampleFormatS16}, level);
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

TEST_P(EveryAudioModel, RangeHoldsEveryGradeOfTheSoundOfferedFirst)
{
    const auto [low, high] = AudioBitrateRange(Codec());
    for (const auto level : kAllGrades)
    {
        const int rate =
            Rate({Codec().sampleRates.front(), Codec().layouts.front(), Codec().formats.front()}, level);
        EXPECT_LE(low, rate);
        EXPECT_GE(high, rate);
    }
}

INSTANTIATE_TEST_SUITE_P(Codecs, EveryAudioModel, testing::ValuesIn(CodecIDs(VXCodecTypeAudio)),
                         CodecTestName);

} // namespace

} // namespace Vexlor
