#include "tests/codec/CodecMatching.h"

#include "IVXRational.h"
#include "IVXSampleAspectPreset.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace Vexlor
{

namespace
{

using testing::HasSubstr;

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

} // namespace

} // namespace Vexlor
