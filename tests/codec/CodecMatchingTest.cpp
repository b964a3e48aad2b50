#include "tests/codec/CodecMatching.h"

#include "IVXRational.h"
#include "IVXSampleAspectPreset.h"

#include <gmock/gmock.h>

namespace Vexlor
{

namespace
{

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

// What a codec library is asked for each kind of choice.

constexpr const char* kSizes =
    R"("resolutionPresets":[{},{"width":640,"height":480},{"width":1280,"height":720}])";
constexpr const char* kAutoSizes = R"("resolutionPresets":[{"width":1920},{"height":5}])";
constexpr const char* kRates = R"("frameratePresets":[{},{"num":25,"den":1},{"num":30000,"den":1001}])";
constexpr const char* kHertz = R"("sampleratePresets":[{},{"samplerate":48000},{"samplerate":32000}])";
constexpr const char* kAutoHertz = R"("sampleratePresets":[{"samplerate":-3},{"samplerate":0}])";
constexpr const char* kLayouts = R"("channelLayoutPresets":[{},{"chLayout":4},{"chLayout":63}])";

void HighDefinition(ScriptedCodecParameter& source)
{
    source.SetWidth(1440);
    source.SetHeight(1088);
    source.SetDisplaySize(1920, 1080);
}

template <int num, int den>
void FrameRate(ScriptedCodecParameter& source)
{
    source.SetFramePerSecond(IVXRational::MallocRational(num, den));
}

void CompactDisc(ScriptedCodecParameter& source)
{
    source.SetSampleRate(44100);
    source.SetChannelLayout(3);
}

void Nothing(ScriptedCodecParameter& /*source*/) {}

struct Question
{
    const char* name;
    const char* list;
    const char* index;
    void (*source)(ScriptedCodecParameter&); ///< null: there is no source
    const char* asked;
};

class Matching : public CodecMatching, public testing::WithParamInterface<Question>
{
protected:
    static std::string Members() { return std::string(GetParam().list) + "," + GetParam().index; }

    static bool IsVideo()
    {
        const std::string list = GetParam().list;
        return list == kSizes || list == kAutoSizes || list.find("framerate") != std::string::npos;
    }

    static std::shared_ptr<ScriptedCodecParameter> Source()
    {
        if (!GetParam().source)
            return {};
        auto source = MakeStream(IsVideo() ? kVideoSource : kAudioSource);
        GetParam().source(*source);
        return source;
    }

    static std::string Operation()
    {
        const std::string asked = GetParam().asked;
        return asked.substr(0, asked.find('('));
    }
};

TEST_P(Matching, AsksTheCodecLibraryOnce)
{
    const auto preset = Preset(IsVideo() ? kVideo : kAudio, Members());
    const auto source = Source();
    preset->MatchForSource(source, -1, -1);
    EXPECT_THAT(platform.CallsTo(Operation()), ElementsAre(GetParam().asked));
    if (source)
        return;
    platform.ForgetCalls();
    preset->DefaultCodecParameter(-1, -1);
    EXPECT_THAT(platform.CallsTo(Operation()), ElementsAre(GetParam().asked));
}

std::string NameOf(const testing::TestParamInfo<Question>& test) { return test.param.name; }

constexpr const char* kSize0 = R"("indexForResolutionPreset":0)";
constexpr const char* kSize2 = R"("indexForResolutionPreset":2)";
constexpr const char* kSizeBeyond = R"("indexForResolutionPreset":3)";
constexpr const char* kSizeNegative = R"("indexForResolutionPreset":-1)";

const std::vector<Question> kResolutions = {
    {"ConcreteWithSource", kSizes, kSize2, HighDefinition, R"(BestResolutionFor(1280, 720, ""))"},
    {"ConcreteWithoutSource", kSizes, kSize2, nullptr, R"(BestResolutionFor(1280, 720, ""))"},
    {"AutoTakesTheDisplaySize", kSizes, kSize0, HighDefinition, R"(BestResolutionFor(1920, 1080, ""))"},
    {"AutoTakesASourceOfNoSizeToo", kSizes, kSize0, Nothing, R"(BestResolutionFor(0, 0, ""))"},
    {"AutoTakesTheFirstConcrete", kSizes, kSize0, nullptr, R"(BestResolutionFor(640, 480, ""))"},
    {"AutoKeepsItsOwnNumbers", kAutoSizes, kSize0, nullptr, R"(BestResolutionFor(1920, 0, ""))"},
    {"AutoKeepsNoneOfThemWithSource", kAutoSizes, kSize0, HighDefinition,
     R"(BestResolutionFor(1920, 1080, ""))"},
    {"MissingWithSource", kSizes, kSizeBeyond, HighDefinition, R"(BestResolutionFor(1920, 1080, ""))"},
    {"MissingWithoutSource", kSizes, kSizeBeyond, nullptr, R"(BestResolutionFor(640, 480, ""))"},
    {"NegativeWithSource", kSizes, kSizeNegative, HighDefinition, R"(BestResolutionFor(1920, 1080, ""))"},
    {"NegativeWithoutSource", kSizes, kSizeNegative, nullptr, R"(BestResolutionFor(640, 480, ""))"},
    {"MissingAmongAutoOnly", kAutoSizes, kSizeBeyond, nullptr, R"(BestResolutionFor(0, 0, ""))"},
};
INSTANTIATE_TEST_SUITE_P(Resolution, Matching, testing::ValuesIn(kResolutions), NameOf);

constexpr const char* kRate0 = R"("indexForFrameratePresets":0)";
constexpr const char* kRate2 = R"("indexForFrameratePresets":2)";
constexpr const char* kRateBeyond = R"("indexForFrameratePresets":3)";
constexpr const char* kRateNegative = R"("indexForFrameratePresets":-2147483648)";
constexpr const char* kNoRate = R"("frameratePresets":[{},{"num":0,"den":7}])";
constexpr const char* kZeroRate = R"("frameratePresets":[{"num":0,"den":1},{"num":24,"den":1}])";

const std::vector<Question> kFramerates = {
    {"ConcreteWithSource", kRates, kRate2, FrameRate<50, 1>, R"(BestFrameRateForInput(30000/1001, ""))"},
    {"ConcreteWithoutSource", kRates, kRate2, nullptr, R"(BestFrameRateForInput(30000/1001, ""))"},
    {"AutoTakesTheSources", kRates, kRate0, FrameRate<50, 1>, R"(BestFrameRateForInput(50/1, ""))"},
    {"AutoTakesTheFirstConcrete", kRates, kRate0, nullptr, R"(BestFrameRateForInput(25/1, ""))"},
    {"AutoKeepsItsOwnWhenNoneIsConcrete", kNoRate, kRate0, nullptr, R"(BestFrameRateForInput(0/0, ""))"},
    {"SourceOfRateZero", kRates, kRate0, FrameRate<0, 1>, R"(BestFrameRateForInput(25/1, ""))"},
    {"SourceOfRateZeroAndNoneConcrete", kNoRate, kRate0, FrameRate<0, 3>,
     R"(BestFrameRateForInput(0/3, ""))"},
    {"NotANumberIsNotZero", kRates, kRate0, FrameRate<0, 0>, R"(BestFrameRateForInput(0/0, ""))"},
    {"InfiniteIsNotZero", kRates, kRate0, FrameRate<5, 0>, R"(BestFrameRateForInput(5/0, ""))"},
    {"ZeroEntryWithSourceOfZero", kZeroRate, kRate0, FrameRate<0, 1>, R"(BestFrameRateForInput(24/1, ""))"},
    {"ZeroEntryWithoutSource", kZeroRate, kRate0, nullptr, R"(BestFrameRateForInput(24/1, ""))"},
    {"MissingWithSource", kRates, kRateBeyond, FrameRate<50, 1>, R"(BestFrameRateForInput(50/1, ""))"},
    {"MissingWithoutSource", kRates, kRateBeyond, nullptr, R"(BestFrameRateForInput(25/1, ""))"},
    {"NegativeWithSourceOfZero", kRates, kRateNegative, FrameRate<0, 1>,
     R"(BestFrameRateForInput(25/1, ""))"},
};
INSTANTIATE_TEST_SUITE_P(Framerate, Matching, testing::ValuesIn(kFramerates), NameOf);

constexpr const char* kHertz0 = R"("indexForSampleratePresets":0)";
constexpr const char* kHertz2 = R"("indexForSampleratePresets":2)";
constexpr const char* kHertzBeyond = R"("indexForSampleratePresets":2147483647)";
constexpr const char* kHertzNegative = R"("indexForSampleratePresets":-1)";

const std::vector<Question> kSamplerates = {
    {"ConcreteWithSource", kHertz, kHertz2, CompactDisc, R"(BestSampleRateForInput(32000, ""))"},
    {"ConcreteWithoutSource", kHertz, kHertz2, nullptr, R"(BestSampleRateForInput(32000, ""))"},
    {"AutoTakesTheSources", kHertz, kHertz0, CompactDisc, R"(BestSampleRateForInput(44100, ""))"},
    {"AutoTakesASourceOfNoRateToo", kHertz, kHertz0, Nothing, R"(BestSampleRateForInput(0, ""))"},
    {"AutoTakesTheFirstConcrete", kHertz, kHertz0, nullptr, R"(BestSampleRateForInput(48000, ""))"},
    {"NegativeRateIsAuto", kAutoHertz, kHertz0, CompactDisc, R"(BestSampleRateForInput(44100, ""))"},
    {"AutoKeepsItsOwnWhenNoneIsConcrete", kAutoHertz, kHertz0, nullptr, R"(BestSampleRateForInput(-3, ""))"},
    {"MissingWithSource", kHertz, kHertzBeyond, CompactDisc, R"(BestSampleRateForInput(44100, ""))"},
    {"MissingWithoutSource", kHertz, kHertzBeyond, nullptr, R"(BestSampleRateForInput(48000, ""))"},
    {"NegativeIndexWithoutSource", kHertz, kHertzNegative, nullptr, R"(BestSampleRateForInput(48000, ""))"},
    {"MissingAmongAutoOnly", kAutoHertz, kHertzBeyond, nullptr, R"(BestSampleRateForInput(0, ""))"},
};
INSTANTIATE_TEST_SUITE_P(Samplerate, Matching, testing::ValuesIn(kSamplerates), NameOf);

constexpr const char* kLayout0 = R"("indexForChannelLayoutPresets":0)";
constexpr const char* kLayout2 = R"("indexForChannelLayoutPresets":2)";
constexpr const char* kLayoutBeyond = R"("indexForChannelLayoutPresets":3)";
constexpr const char* kNoLayout = R"("channelLayoutPresets":[{}])";
// The highest bit of the mask: negative as a signed number, yet a layout.
constexpr const char* kHighLayout = R"("channelLayoutPresets":[{},{"chLayout":9223372036854775808}])";

const std::vector<Question> kChannelLayouts = {
    {"ConcreteWithSource", kLayouts, kLayout2, CompactDisc, R"(BestChannelLayoutForInput(63, ""))"},
    {"ConcreteWithoutSource", kLayouts, kLayout2, nullptr, R"(BestChannelLayoutForInput(63, ""))"},
    {"AutoTakesTheSources", kLayouts, kLayout0, CompactDisc, R"(BestChannelLayoutForInput(3, ""))"},
    {"AutoTakesASourceOfNoLayoutToo", kLayouts, kLayout0, Nothing, R"(BestChannelLayoutForInput(0, ""))"},
    {"AutoTakesTheFirstConcrete", kLayouts, kLayout0, nullptr, R"(BestChannelLayoutForInput(4, ""))"},
    {"AutoKeepsZeroWhenNoneIsConcrete", kNoLayout, kLayout0, nullptr, R"(BestChannelLayoutForInput(0, ""))"},
    {"AllSixtyFourBits", kHighLayout, kLayout0, nullptr,
     R"(BestChannelLayoutForInput(9223372036854775808, ""))"},
    {"MissingWithSource", kLayouts, kLayoutBeyond, CompactDisc, R"(BestChannelLayoutForInput(3, ""))"},
    {"MissingWithoutSource", kLayouts, kLayoutBeyond, nullptr, R"(BestChannelLayoutForInput(4, ""))"},
};
INSTANTIATE_TEST_SUITE_P(ChannelLayout, Matching, testing::ValuesIn(kChannelLayouts), NameOf);

// The whole operation.

constexpr const char* kConcreteVideo = R"("aspectPreset":{"num":8,"den":9,"type":13},
    "resolutionPresets":[{"width":1280,"height":720}],
    "frameratePresets":[{"num":24,"den":1}],
    "profilesPresets":[{"profile":77,"name":"Main"},{"profile":100,"name":"High"}],"indexForProfilesPresets":1,
    "levelPresets":[{"level":30,"name":"3"}],"indexForLevelPresets":0,
    "indexForSampleFmts":2)";

class VideoMatching : public CodecMatching
{
protected:
    VideoMatching()
    {
        auto& codec = platform.Codec(kVideo);
        codec.formats = {0, 5};
        codec.bestResolution = ScriptedCodec::Size(1284, 724);
        codec.bestFrameRate = IVXRational::MallocRational(25, 1);
    }
};

TEST_F(VideoMatching, AsksInTheOrderOfTheSteps)
{
    Preset(kVideo, kConcreteVideo)->MatchForSource(MakeStream(kVideoSource), -1, -1);
    EXPECT_EQ("MallocCodecParamter(7)\n"
              "BestResolutionFor(1280, 720, \"\")\n"
              "BestFrameRateForInput(24/1, \"\")\n"
              "SupportedBitrates()\n"
              "BestBitrateFor(1284, 724, 25/1, 5, 1, \"\")\n",
              Queries());
}

TEST_F(VideoMatching, WritesWhatTheCodecLibraryAnswers)
{
    const auto output = Preset(kVideo, kConcreteVideo)->MatchForSource(MakeStream(kVideoSource), -1, -1);
    EXPECT_EQ(kVideo, output->GetCodecID());
    EXPECT_EQ("SetWidth(1284)\n"
              "SetHeight(724)\n"
              "SetFramePerSecond(25/1)\n"
              "SetFormat(5)\n"
              "SetBitrate(2000)\n"
              "SetProfile(100)\n"
              "SetLevel(30)\n"
              "SetAspectRatio(8/9)\n",
              Setters(output));
}

TEST_F(VideoMatching, StartsWithTheOutputAndTheEncoder)
{
    Preset(kVideo)->MatchForSource({}, -1, -1);
    ASSERT_LE(2U, platform.Calls().size());
    EXPECT_EQ("MallocCodecParamter(7)", platform.Calls().at(0));
    EXPECT_EQ("MallocCodecs(7, true)", platform.Calls().at(1));
}

TEST_F(VideoMatching, OfADefaultAsksForTheBitrateBeforeItSetsTheFormat)
{
    const auto output = Preset(kVideo, kConcreteVideo)->DefaultCodecParameter(-1, -1);
    EXPECT_EQ("MallocCodecParamter(7)\n"
              "BestResolutionFor(1280, 720, \"\")\n"
              "BestFrameRateForInput(24/1, \"\")\n"
              "SupportedBitrates()\n"
              "BestBitrateFor(1284, 724, 25/1, -1, 1, \"\")\n",
              Queries());
    EXPECT_EQ("SetWidth(1284)\n"
              "SetHeight(724)\n"
              "SetFramePerSecond(25/1)\n"
              "SetBitrate(2000)\n"
              "SetProfile(100)\n"
              "SetLevel(30)\n"
              "SetAspectRatio(8/9)\n"
              "SetFormat(0)\n",
              Setters(output));
}

TEST_F(VideoMatching, OfADefaultIgnoresTheFormatList)
{
    platform.Codec(kVideo).formats = {5, 6};
    const auto preset = Preset(kVideo, R"("indexForSampleFmts":1)");
    ASSERT_NE(nullptr, preset->CurrentSampleFmt());
    EXPECT_EQ(VXPixFormat_YUV420P, preset->DefaultCodecParameter(-1, -1)->GetFormat());
}

TEST_F(VideoMatching, MakesANewOutputEachTime)
{
    const auto preset = Preset(kVideo);
    EXPECT_NE(preset->MatchForSource({}, -1, -1), preset->MatchForSource({}, -1, -1));
    EXPECT_NE(preset->DefaultCodecParameter(-1, -1), preset->DefaultCodecParameter(-1, -1));
}

TEST_F(VideoMatching, LeavesTheSourceAlone)
{
    const auto source = MakeStream(kVideoSource);
    Preset(kVideo, kConcreteVideo)->MatchForSource(source, 2000000, 1000000);
    EXPECT_EQ("", source->SettersText());
}

TEST_F(VideoMatching, KeepsOrderOfTheBounds)
{
    platform.Codec(kVideo).bitrateRange = std::pair(1, 2);
    const auto preset = Preset(kVideo);
    preset->SetIndexForQualityPresets(4);
    EXPECT_EQ(2000000, preset->MatchForSource({}, 2000000, 1000000)->GetBitrate());
    EXPECT_EQ(2000000, preset->DefaultCodecParameter(2000000, 1000000)->GetBitrate());
    EXPECT_EQ("", platform.Log());
}

class AudioMatching : public CodecMatching
{
protected:
    AudioMatching()
    {
        auto& codec = platform.Codec(kAudio);
        codec.formats = {3, 8};
        codec.bestSampleRate = 48000;
        codec.bestLayout = std::uint64_t{3};
    }

    static constexpr const char* kConcrete = R"("sampleratePresets":[{"samplerate":44000}],
        "channelLayoutPresets":[{"chLayout":63}],"indexForSampleFmts":2)";
};

TEST_F(AudioMatching, AsksInTheOrderOfTheSteps)
{
    Preset(kAudio, kConcrete)->MatchForSource(MakeStream(kAudioSource), -1, -1);
    EXPECT_EQ("MallocCodecParamter(8)\n"
              "BestSampleRateForInput(44000, \"\")\n"
              "BestChannelLayoutForInput(63, \"\")\n"
              "SupportedBitrates()\n"
              "BestBitrateFor(48000, 3, 8, 1, \"\")\n",
              Queries());
}

TEST_F(AudioMatching, WritesWhatTheCodecLibraryAnswers)
{
    const auto output = Preset(kAudio, kConcrete)->MatchForSource(MakeStream(kAudioSource), -1, -1);
    EXPECT_EQ("SetSampleRate(48000)\n"
              "SetChannelLayout(3)\n"
              "SetFormat(8)\n"
              "SetBitrate(2000)\n"
              "SetLevel(-99)\n"
              "SetAspectRatio(1/1)\n",
              Setters(output));
}

TEST_F(AudioMatching, OfADefaultWritesFloatSamples)
{
    const auto output = Preset(kAudio, kConcrete)->DefaultCodecParameter(-1, -1);
    EXPECT_EQ("SetSampleRate(48000)\n"
              "SetChannelLayout(3)\n"
              "SetBitrate(2000)\n"
              "SetLevel(-99)\n"
              "SetAspectRatio(1/1)\n"
              "SetFormat(3)\n",
              Setters(output));
}

TEST_F(AudioMatching, IsWhatAnyOtherTypeGets)
{
    platform.Codec(kAudio).type = 77;
    Preset(kAudio, kConcrete)->MatchForSource({}, -1, -1);
    EXPECT_THAT(platform.CallsText(), HasSubstr("BestSampleRateForInput(44000, \"\")\n"));
    EXPECT_THAT(platform.CallsText(), Not(HasSubstr("BestResolutionFor")));
}

TEST_F(AudioMatching, OfADefaultOfAnyOtherTypeSetsNoFormat)
{
    platform.Codec(kAudio).type = 77;
    const auto output = Preset(kAudio, kConcrete)->DefaultCodecParameter(-1, -1);
    EXPECT_THAT(Setters(output), HasSubstr("SetSampleRate(48000)\n"));
    EXPECT_THAT(Setters(output), Not(HasSubstr("SetFormat")));
}

TEST_F(CodecMatching, OnlyEverMakesEncoders)
{
    for (const int codecID : {kVideo, kAudio})
    {
        const auto preset = Preset(codecID);
        preset->MatchForSource({}, -1, 1);
        preset->DefaultCodecParameter(-1, -1);
        const auto encoder = "MallocCodecs(" + std::to_string(codecID) + ", true)";
        EXPECT_THAT(platform.CallsTo("MallocCodecs"), AllOf(Not(IsEmpty()), Each(encoder)));
    }
}

// Formats: a codec with two formats offers [None, first, second].

struct FormatCase
{
    const char* name;
    std::vector<int> formats;
    int index;
    int expected;
};

class FormatMatching : public CodecMatching, public testing::WithParamInterface<FormatCase>
{
};

TEST_P(FormatMatching, WritesTheFormat)
{
    for (const int codecID : {kVideo, kAudio})
    {
        platform.Codec(codecID).formats = GetParam().formats;
        const auto preset = Preset(codecID);
        preset->SetIndexForSampleFmts(GetParam().index);
        EXPECT_EQ(GetParam().expected, preset->MatchForSource({}, -1, -1)->GetFormat()) << codecID;
    }
}

const std::vector<FormatCase> kFormats = {
    {"Concrete", {4, 5}, 2, 5},
    {"AutoGivesTheFirstConcrete", {4, 5}, 0, 4},
    {"AutoSkipsEveryNone", {-1, 5}, 0, 5},
    {"AutoAmongNoneOnly", {-1, -1}, 0, -1},
    {"MissingGivesTheFirstConcrete", {4, 5}, 3, 4},
    {"NegativeGivesTheFirstConcrete", {4, 5}, -5, 4},
    {"NoFormatsAtAll", {}, 0, -1},
};
INSTANTIATE_TEST_SUITE_P(Formats, FormatMatching, testing::ValuesIn(kFormats),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(CodecMatching, WritesTheNoneFormatWhenThereIsNoOther)
{
    platform.Codec(kVideo).formats = {-1, -1};
    EXPECT_THAT(Setters(Preset(kVideo)->MatchForSource({}, -1, -1)), HasSubstr("SetFormat(-1)\n"));
}

// Profile, level and aspect.

struct NumberCase
{
    const char* name;
    int profileIndex;
    int levelIndex;
    const char* setters;
};

class ProfileAndLevelMatching : public CodecMatching, public testing::WithParamInterface<NumberCase>
{
protected:
    static std::string Members()
    {
        return R"("profilesPresets":[{"profile":1},{"profile":2}],"indexForProfilesPresets":)" +
               std::to_string(GetParam().profileIndex) +
               R"(,"levelPresets":[{"level":-99},{"level":31}],"indexForLevelPresets":)" +
               std::to_string(GetParam().levelIndex);
    }

    static std::string NumberSetters(const std::shared_ptr<IVXCodecParameter>& output)
    {
        std::string text;
        for (const auto& setter : Scripted(output).Setters())
            if (setter.starts_with("SetProfile") || setter.starts_with("SetLevel"))
                text += setter + " ";
        return text;
    }
};

TEST_P(ProfileAndLevelMatching, SetsWhatIsThere)
{
    const auto preset = Preset(kVideo, Members());
    EXPECT_EQ(GetParam().setters, NumberSetters(preset->MatchForSource({}, -1, -1)));
    EXPECT_EQ(GetParam().setters, NumberSetters(preset->DefaultCodecParameter(-1, -1)));
}

const std::vector<NumberCase> kNumbers = {
    {"Both", 1, 1, "SetProfile(2) SetLevel(31) "},
    {"UnknownIsSetToo", 0, 0, "SetProfile(1) SetLevel(-99) "},
    {"ProfileBeyondItsList", 2, 1, "SetLevel(31) "},
    {"LevelBeyondItsList", 0, 2, "SetProfile(1) "},
    {"Negative", -1, -1, ""},
    {"Extreme", 2147483647, -2147483647 - 1, ""},
};
INSTANTIATE_TEST_SUITE_P(Numbers, ProfileAndLevelMatching, testing::ValuesIn(kNumbers),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(CodecMatching, SharesACustomAspectRatio)
{
    const auto preset = Preset(kVideo, R"("aspectPreset":{"num":8,"den":9,"type":13})");
    const auto output = preset->MatchForSource({}, -1, -1);
    EXPECT_EQ(preset->AspectPreset()->Ratio(), output->GetAspectRatio());
}

TEST_F(CodecMatching, TakesTheRatioOfANamedAspectNotTheStoredOne)
{
    const auto preset = Preset(kVideo, R"("aspectPreset":{"num":8,"den":9,"type":1})");
    EXPECT_THAT(Setters(preset->MatchForSource({}, -1, -1)), HasSubstr("SetAspectRatio(110/100)\n"));
    EXPECT_THAT(Setters(preset->DefaultCodecParameter(-1, -1)), HasSubstr("SetAspectRatio(110/100)\n"));
}

// Codecs that cannot be made.

constexpr const char* kEverything = R"("aspectPreset":{"num":8,"den":9,"type":13},
    "resolutionPresets":[{"width":1280,"height":720}],"frameratePresets":[{"num":24,"den":1}],
    "sampleratePresets":[{"samplerate":44000}],"channelLayoutPresets":[{"chLayout":63}],
    "profilesPresets":[{"profile":77}],"levelPresets":[{"level":30}])";

TEST_F(CodecMatching, LeavesOutTheStepsThatNeedACodecsObject)
{
    const auto preset = Preset(kUnknown, kEverything);
    const auto output = preset->MatchForSource(MakeStream(kVideoSource), 2000000, 1000000);
    EXPECT_EQ(kUnknown, output->GetCodecID());
    EXPECT_EQ(0, output->GetWidth());
    EXPECT_EQ(0, output->GetSampleRate());
    EXPECT_EQ(0U, output->GetChannelLayout());
    EXPECT_EQ(-1, output->GetFormat());
    EXPECT_EQ(0, output->GetBitrate());
    EXPECT_EQ("", platform.Log());
}

TEST_F(CodecMatching, StillWritesWhatNeedsNoCodecsObject)
{
    const auto preset = Preset(kUnknown, kEverything);
    EXPECT_EQ("SetProfile(77)\nSetLevel(30)\nSetAspectRatio(8/9)\n",
              Setters(preset->DefaultCodecParameter(-1, -1)));
}

TEST_F(CodecMatching, WorksOnAPresetOfNoCodec)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
    const auto output = preset->MatchForSource(MakeStream(kVideoSource), 2000000, -1);
    EXPECT_EQ(VXCodecID_None, output->GetCodecID());
    EXPECT_EQ(0, output->GetBitrate());
    EXPECT_NE(nullptr, preset->DefaultCodecParameter(-1, -1));
}

TEST_F(CodecMatching, TakesEmptyListsAsAuto)
{
    const auto source = MakeStream(kVideoSource);
    HighDefinition(*source);
    FrameRate<50, 1>(*source);
    Preset(kVideo)->MatchForSource(source, -1, -1);
    EXPECT_THAT(Queries(), HasSubstr("BestResolutionFor(1920, 1080, \"\")\n"
                                     "BestFrameRateForInput(50/1, \"\")\n"));
}

} // namespace

} // namespace Vexlor
