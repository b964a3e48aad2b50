#include "tests/codec/CodecMatching.h"

#include "IVXRational.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace Vexlor
{

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

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
