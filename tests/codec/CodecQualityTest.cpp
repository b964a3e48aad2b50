#include "tests/codec/CodecMatching.h"

#include "IVXCodecQualityPreset.h"
#include "IVXRational.h"

#include <gmock/gmock.h>

#include <limits>
#include <vector>

namespace Vexlor
{

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();
constexpr int kNone = -1;

constexpr const char* kBoundsError = "IVXCodecPreset:MatchForQuality:(Error)maxbr <= minbr\n";

std::string BitrateError(int bitrate)
{
    return "IVXCodecPreset:MatchForQuality:(Error)bitrate == " + std::to_string(bitrate) + "\n";
}

class CodecQuality : public CodecMatching
{
protected:
    // The quality list is Auto, the grades 0 to 3, Custom.
    std::shared_ptr<IVXCodecPreset> Grade(int codecID, int grade)
    {
        auto preset = Preset(codecID);
        preset->SetIndexForQualityPresets(grade + 1);
        return preset;
    }

    std::shared_ptr<IVXCodecPreset> Custom(int codecID, int bitrate, int mode, int minBitrate)
    {
        auto preset = Preset(codecID);
        preset->SetIndexForQualityPresets(5);
        const auto quality = preset->CurrentCodecQuality();
        quality->SetBitrate(bitrate);
        quality->SetMode(mode);
        quality->SetMinBitrate(minBitrate);
        return preset;
    }

    static std::string BitrateSetters(const std::shared_ptr<IVXCodecParameter>& output)
    {
        std::string text;
        for (const auto& setter : Scripted(output).Setters())
            if (setter.find("itrate") != std::string::npos)
                text += setter + "\n";
        return text;
    }
};

// A custom bitrate.

TEST_F(CodecQuality, CustomOfModeOneIsItsOwnLowerBound)
{
    const auto preset = Custom(kVideo, 800000, 1, 300000);
    EXPECT_EQ("SetBitrateMode(1)\nSetBitrate(800000)\nSetMaxBitrate(800000)\nSetMinBitrate(800000)\n",
              BitrateSetters(preset->MatchForSource({}, kNone, kNone)));
}

TEST_F(CodecQuality, CustomOfAnotherModeKeepsItsLowerBound)
{
    const auto preset = Custom(kAudio, 800000, 2, 300000);
    EXPECT_EQ("SetBitrateMode(2)\nSetBitrate(800000)\nSetMaxBitrate(800000)\nSetMinBitrate(300000)\n",
              BitrateSetters(preset->DefaultCodecParameter(kNone, kNone)));
}

TEST_F(CodecQuality, CustomIgnoresTheBounds)
{
    const auto preset = Custom(kVideo, 800000, 1, 0);
    EXPECT_EQ(800000, preset->MatchForSource({}, 2000, 1000)->GetBitrate());
    EXPECT_THAT(platform.CallsTo("BitrateRangeFor"), IsEmpty());
}

TEST_F(CodecQuality, CustomIsNeverTakenAsAuto)
{
    const auto preset = Custom(kVideo, 800000, 1, 0);
    ASSERT_TRUE(preset->CurrentCodecQuality()->IsAutoValue());
    const auto source = MakeStream(kVideoSource);
    source->SetBitrate(5000000);
    EXPECT_EQ(800000, preset->MatchForSource(source, kNone, kNone)->GetBitrate());
    EXPECT_THAT(platform.CallsTo("EstQualityWithBitrate"), IsEmpty());
    EXPECT_THAT(platform.CallsTo("SupportedBitrates"), IsEmpty());
}

TEST_F(CodecQuality, CustomOfNothingIsWrittenSilently)
{
    const auto preset = Custom(kVideo, 0, 0, -7);
    EXPECT_EQ("SetBitrateMode(0)\nSetBitrate(0)\nSetMaxBitrate(0)\nSetMinBitrate(-7)\n",
              BitrateSetters(preset->MatchForSource({}, kNone, kNone)));
    EXPECT_EQ("", platform.Log());
}

TEST_F(CodecQuality, CustomNeedsNoCodecsObject)
{
    const auto preset = Custom(kUnknown, 800000, 1, 0);
    EXPECT_EQ(800000, preset->MatchForSource({}, kNone, kNone)->GetBitrate());
}

// The bitrate model.

class CodecGrade : public CodecQuality, public testing::WithParamInterface<int>
{
};

TEST_P(CodecGrade, GoesToTheModelOfPictures)
{
    Grade(kVideo, GetParam())->MatchForSource({}, kNone, kNone);
    EXPECT_THAT(platform.CallsTo("BestBitrateFor"),
                ElementsAre("BestBitrateFor(0, 0, 0/0, -1, " + std::to_string(GetParam()) + ", \"\")"));
}

TEST_P(CodecGrade, GoesToTheModelOfSound)
{
    Grade(kAudio, GetParam())->MatchForSource({}, kNone, kNone);
    EXPECT_THAT(platform.CallsTo("BestBitrateFor"),
                ElementsAre("BestBitrateFor(0, 0, -1, " + std::to_string(GetParam()) + ", \"\")"));
}

INSTANTIATE_TEST_SUITE_P(Grades, CodecGrade, testing::Range(0, 4));

TEST_F(CodecQuality, GradeWritesTheBitrateAlone)
{
    EXPECT_EQ("SetBitrate(4000)\n", BitrateSetters(Grade(kVideo, 3)->MatchForSource({}, kNone, kNone)));
    EXPECT_EQ("SetBitrate(3000)\n", BitrateSetters(Grade(kAudio, 2)->MatchForSource({}, kNone, kNone)));
}

TEST_F(CodecQuality, OfAnyOtherTypeIsModelledAsSound)
{
    platform.Codec(kAudio).type = 77;
    Grade(kAudio, 0)->MatchForSource({}, kNone, kNone);
    EXPECT_THAT(platform.CallsTo("BestBitrateFor"), ElementsAre("BestBitrateFor(0, 0, -1, 0, \"\")"));
}

TEST_F(CodecQuality, LastOfTheListedBitratesWinsOverTheGrade)
{
    platform.Codec(kAudio).bitrates = {96000, 320000, 128000};
    EXPECT_EQ(128000, Grade(kAudio, 0)->MatchForSource({}, kNone, kNone)->GetBitrate());
    EXPECT_THAT(platform.CallsTo("BestBitrateFor"), IsEmpty());
}

TEST_F(CodecQuality, ListedBitratesPlayNoPartBetweenBounds)
{
    platform.Codec(kAudio).bitrates = {96000};
    EXPECT_EQ(64000, Grade(kAudio, 0)->MatchForSource({}, 128000, 64000)->GetBitrate());
    EXPECT_THAT(platform.CallsTo("SupportedBitrates"), IsEmpty());
}

TEST_F(CodecQuality, ModelAnsweringNothingIsLoggedAndWritten)
{
    platform.Codec(kVideo).bestPictureBitrate = 0;
    EXPECT_EQ("SetBitrate(0)\n", BitrateSetters(Grade(kVideo, 1)->MatchForSource({}, kNone, kNone)));
    EXPECT_EQ(BitrateError(0), platform.Log());
}

TEST_F(CodecQuality, ListedBitrateBelowOneIsLoggedAndWritten)
{
    platform.Codec(kAudio).bitrates = {96000, -5};
    EXPECT_EQ(-5, Grade(kAudio, 1)->MatchForSource({}, kNone, kNone)->GetBitrate());
    EXPECT_EQ(BitrateError(-5), platform.Log());
}

TEST_F(CodecQuality, BitrateOfOneIsNoError)
{
    platform.Codec(kVideo).bestPictureBitrate = 1;
    EXPECT_EQ(1, Grade(kVideo, 1)->MatchForSource({}, kNone, kNone)->GetBitrate());
    EXPECT_EQ("", platform.Log());
}

// Between bounds.

struct BoundsCase
{
    const char* name;
    int grade;
    int maxBitrate;
    int minBitrate;
    std::pair<int, int> range; ///< what the codec library answers
    int bitrate;
    std::string log;
};

class CodecBounds : public CodecQuality, public testing::WithParamInterface<BoundsCase>
{
};

TEST_P(CodecBounds, GiveTheBitrate)
{
    const auto& test = GetParam();
    for (const int codecID : {kVideo, kAudio})
    {
        platform.Codec(codecID).bitrateRange = test.range;
        const auto output = Grade(codecID, test.grade)->MatchForSource({}, test.maxBitrate, test.minBitrate);
        EXPECT_EQ("SetBitrate(" + std::to_string(test.bitrate) + ")\n", BitrateSetters(output));
    }
    EXPECT_EQ(test.log + test.log, platform.Log());
}

const std::vector<BoundsCase> kBounds = {
    {"Grade0", 0, 2000000, 1000000, {1, 2}, 1000000, ""},
    {"Grade1", 1, 2000000, 1000000, {1, 2}, 1333333, ""},
    {"Grade2", 2, 2000000, 1000000, {1, 2}, 1666666, ""},
    {"Grade3", 3, 2000000, 1000000, {1, 2}, 2000000, ""},
    {"OnlyUpper", 3, 200000, kNone, {64000, 320000}, 200000, ""},
    {"OnlyUpperFromTheLowEnd", 0, 200000, kNone, {64000, 320000}, 64000, ""},
    {"OnlyLower", 0, kNone, 100000, {64000, 320000}, 100000, ""},
    {"OnlyLowerUpToTheHighEnd", 3, kNone, 100000, {64000, 320000}, 320000, ""},
    {"LowerAboveTheHighEnd", 2, kNone, 500000, {64000, 320000}, 320000, kBoundsError},
    {"UpperBelowTheLowEnd", 2, 32000, kNone, {64000, 320000}, 64000, kBoundsError},
    {"CrossedTakesTheLowerNearItsEnd", 1, 100000, 200000, {150000, 900000}, 200000, kBoundsError},
    {"CrossedTakesTheUpperNearItsEnd", 1, 100000, 200000, {10000, 110000}, 100000, kBoundsError},
    {"CrossedAtEqualDistanceTakesTheUpper", 1, 100, 200, {150, 150}, 100, kBoundsError},
    {"EqualAreCrossed", 3, 100000, 100000, {0, 0}, 100000, kBoundsError},
    {"ZeroIsABound", 3, 0, 0, {64000, 320000}, 0, kBoundsError + BitrateError(0)},
    {"NegativeIsABound", 0, 100, -2, {64000, 320000}, -2, BitrateError(-2)},
    {"DivisionTruncatesTowardZero", 1, -5, -10, {0, 0}, -9, BitrateError(-9)},
    {"RangeOfNothing", 1, kNone, 0, {0, 0}, 0, kBoundsError + BitrateError(0)},
    // The arithmetic wraps at 32 bits.
    {"ProductWrapsAboveThirtyTwoBits", 3, 2000000000, 0, {0, 0}, 568344234, ""},
    {"ProductWrapsIntoTheSign", 2, 2000000000, 0, {0, 0}, -98322432, BitrateError(-98322432)},
    {"DifferenceIsExactAtGradeOne", 1, 2000000000, 0, {0, 0}, 666666666, ""},
    {"WholeSpanGrade0", 0, kHighest, kLowest, {0, 0}, kLowest, BitrateError(kLowest)},
    {"WholeSpanGrade1", 1, kHighest, kLowest, {0, 0}, kLowest, BitrateError(kLowest)},
    {"WholeSpanGrade2", 2, kHighest, kLowest, {0, 0}, kLowest, BitrateError(kLowest)},
    {"WholeSpanGrade3", 3, kHighest, kLowest, {0, 0}, kHighest, ""},
    {"PositiveSpanGrade3", 3, kHighest, 0, {0, 0}, 715827881, ""},
    {"NegativeSpanGrade3", 3, 0, kLowest, {0, 0}, 1431655766, ""},
    {"RangeEndsReachTheLimits", 3, kNone, 1, {kLowest, kHighest}, 715827881, ""},
    {"DistanceToTheLowEndWraps", 1, 0, kHighest, {-10, 100}, kHighest, kBoundsError},
    {"DistanceToTheHighEndWraps", 1, kLowest, 5, {0, 10}, kLowest, kBoundsError + BitrateError(kLowest)},
    {"BothDistancesWrap",
     1,
     kLowest,
     kHighest,
     {kLowest, kHighest},
     kLowest,
     kBoundsError + BitrateError(kLowest)},
};
INSTANTIATE_TEST_SUITE_P(Bounds, CodecBounds, testing::ValuesIn(kBounds),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(CodecQuality, AsksForTheRangeOfThePicture)
{
    platform.Codec(kVideo).bestResolution = ScriptedCodec::Size(1284, 724);
    platform.Codec(kVideo).bestFrameRate = IVXRational::MallocRational(25, 1);
    platform.Codec(kVideo).formats = {5};
    Grade(kVideo, 1)->MatchForSource({}, 2, 1);
    EXPECT_THAT(platform.CallsTo("BitrateRangeFor"),
                ElementsAre("BitrateRangeFor(1284, 724, 25/1, 5, \"\")"));
}

TEST_F(CodecQuality, AsksForTheRangeOfThePictureForSoundToo)
{
    platform.Codec(kAudio).bestSampleRate = 48000;
    platform.Codec(kAudio).formats = {8};
    Grade(kAudio, 1)->MatchForSource({}, kNone, 1);
    EXPECT_THAT(platform.CallsTo("BitrateRangeFor"), ElementsAre("BitrateRangeFor(0, 0, 0/1, 8, \"\")"));
    EXPECT_THAT(platform.CallsTo("BestBitrateFor"), IsEmpty());
}

// Auto takes the source's grade.

class CodecAutoQuality : public CodecQuality
{
protected:
    std::shared_ptr<ScriptedCodecParameter> Source(int codecID, int bitrate)
    {
        auto source = MakeStream(codecID);
        source->SetBitrate(bitrate);
        source->SetWidth(1440);
        source->SetHeight(1080);
        source->SetDisplaySize(1920, 1081);
        source->SetFramePerSecond(IVXRational::MallocRational(30000, 1001));
        source->SetFormat(6);
        source->SetSampleRate(44100);
        source->SetChannelLayout(3);
        for (const int sourceID : {kVideoSource, kAudioSource})
        {
            platform.Codec(sourceID).estPictureQuality = IVXCodecs::QualityLevelHigh;
            platform.Codec(sourceID).estSoundQuality = IVXCodecs::QualityLevelBest;
        }
        return source;
    }
};

TEST_F(CodecAutoQuality, WithoutASourceIsGradeOne)
{
    EXPECT_EQ(2000, Preset(kVideo)->MatchForSource({}, kNone, kNone)->GetBitrate());
    EXPECT_EQ(2000, Preset(kAudio)->DefaultCodecParameter(kNone, kNone)->GetBitrate());
}

TEST_F(CodecAutoQuality, OfASourceWithoutABitrateIsGradeOne)
{
    EXPECT_EQ(2000, Preset(kVideo)->MatchForSource(Source(kVideoSource, 0), kNone, kNone)->GetBitrate());
    EXPECT_THAT(platform.CallsTo("EstQualityWithBitrate"), IsEmpty());
}

TEST_F(CodecAutoQuality, OfASourceOfAnUnknownCodecIsGradeOne)
{
    EXPECT_EQ(2000, Preset(kVideo)->MatchForSource(Source(kUnknown, 5000), kNone, kNone)->GetBitrate());
    EXPECT_THAT(platform.CallsTo("MallocCodecs"), testing::Contains("MallocCodecs(99, true)"));
}

TEST_F(CodecAutoQuality, AsksTheSourcesCodecAboutAPicture)
{
    const auto output = Preset(kVideo)->MatchForSource(Source(kVideoSource, 5000), kNone, kNone);
    EXPECT_EQ(3000, output->GetBitrate());
    EXPECT_THAT(platform.CallsTo("EstQualityWithBitrate"),
                ElementsAre("EstQualityWithBitrate(5000, 1440, 1080, 30000/1001, 6, \"\")"));
}

TEST_F(CodecAutoQuality, AsksTheSourcesCodecAboutSound)
{
    const auto output = Preset(kAudio)->MatchForSource(Source(kAudioSource, 5000), kNone, kNone);
    EXPECT_EQ(4000, output->GetBitrate());
    EXPECT_THAT(platform.CallsTo("EstQualityWithBitrate"),
                ElementsAre("EstQualityWithBitrate(5000, 44100, 3, 6, \"\")"));
}

TEST_F(CodecAutoQuality, GoesByTheSourcesTypeNotTheOutputs)
{
    EXPECT_EQ(4000, Preset(kVideo)->MatchForSource(Source(kAudioSource, 1), kNone, kNone)->GetBitrate());
    EXPECT_EQ(3000, Preset(kAudio)->MatchForSource(Source(kVideoSource, 1), kNone, kNone)->GetBitrate());
}

TEST_F(CodecAutoQuality, TakesANegativeBitrateToTheCodecLibrary)
{
    Preset(kVideo)->MatchForSource(Source(kVideoSource, kLowest), kNone, kNone);
    EXPECT_THAT(platform.CallsTo("EstQualityWithBitrate"),
                ElementsAre(HasSubstr("EstQualityWithBitrate(-2147483648, 1440")));
}

TEST_F(CodecAutoQuality, EstimatesBetweenBoundsToo)
{
    const auto output = Preset(kVideo)->MatchForSource(Source(kVideoSource, 5000), 2000000, 1000000);
    EXPECT_EQ(1666666, output->GetBitrate());
}

TEST_F(CodecAutoQuality, GradeDoesNotAskAboutTheSource)
{
    Grade(kVideo, 0)->MatchForSource(Source(kVideoSource, 5000), kNone, kNone);
    EXPECT_THAT(platform.CallsTo("EstQualityWithBitrate"), IsEmpty());
}

TEST_F(CodecAutoQuality, IsWhatAMissingEntryMeans)
{
    platform.Codec(VXCodecID_None).type = VXCodecTypeAudio;
    const auto preset = IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
    ASSERT_EQ(0, preset->CodecQualityPresetCount());
    EXPECT_EQ(2000, preset->MatchForSource({}, kNone, kNone)->GetBitrate());
    EXPECT_EQ(4000, preset->MatchForSource(Source(kAudioSource, 1), kNone, kNone)->GetBitrate());
}

} // namespace

} // namespace Vexlor
