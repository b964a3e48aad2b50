#include "IVXCodecs.h"
#include "VXMediaCodecs.h"

#include "tests/codec/ListFamilies.h"
#include "tests/platform/ScriptedJson.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

constexpr int kCodec = 7;

std::string Resolutions()
{
    return Shown(IVXCodecPreset::DefaultResolutions(kCodec), &IVXResolutionPreset::FormatResolution);
}

std::string Framerates()
{
    return Shown(IVXCodecPreset::DefaultFramerates(kCodec), &IVXFrameratePreset::FormatFramerate);
}

std::string Samplerates()
{
    return Shown(IVXCodecPreset::DefaultSamplerates(kCodec), &IVXSampleratePreset::FormatSamplerate);
}

std::string ChannelLayouts()
{
    return Shown(IVXCodecPreset::DefaultChannelLayouts(kCodec), &IVXChannelLayoutPreset::FormatLayout);
}

class CodecDefaults : public testing::Test
{
protected:
    void LimitSizes(ScriptedCodec::Size min, ScriptedCodec::Size max)
    {
        m_codec.minWidth = min.first;
        m_codec.minHeight = min.second;
        m_codec.maxWidth = max.first;
        m_codec.maxHeight = max.second;
    }

    void LimitRates(ScriptedCodec::Fraction min, ScriptedCodec::Fraction max)
    {
        m_codec.minFrameRate = min;
        m_codec.maxFrameRate = max;
    }

    ScriptedPlatform m_platform;
    ScriptedCodec& m_codec = m_platform.Codec(kCodec);
};

TEST_F(CodecDefaults, AnUnknownCodecHasEmptyLists)
{
    constexpr int kUnknown = 8;
    EXPECT_TRUE(IVXCodecPreset::DefaultResolutions(kUnknown).empty());
    EXPECT_TRUE(IVXCodecPreset::DefaultFramerates(kUnknown).empty());
    EXPECT_TRUE(IVXCodecPreset::DefaultSamplerates(kUnknown).empty());
    EXPECT_TRUE(IVXCodecPreset::DefaultChannelLayouts(kUnknown).empty());
    EXPECT_TRUE(IVXCodecPreset::DefaultProfiles(kUnknown).empty());
    EXPECT_TRUE(IVXCodecPreset::DefaultLevels(kUnknown).empty());
    EXPECT_TRUE(IVXCodecPreset::DefaultSampleFmt(kUnknown).empty());
}

TEST_F(CodecDefaults, TheEncoderIsAskedNotTheDecoder)
{
    IVXCodecPreset::DefaultResolutions(kCodec);
    IVXCodecPreset::DefaultLevels(kCodec);
    EXPECT_EQ((std::vector<std::string>{"MallocCodecs(7, true)", "MallocCodecs(7, true)"}),
              m_platform.CallsTo("MallocCodecs"));
}

TEST_F(CodecDefaults, ResolutionsOfTheCodecComeInItsOrder)
{
    m_codec.resolutions = {{352, 288}, {176, 144}, {704, 576}};
    EXPECT_EQ("Auto, 352 x 288, 176 x 144, 704 x 576", Resolutions());
}

TEST_F(CodecDefaults, ResolutionsOfTheCodecAreTakenWhateverItsLimits)
{
    LimitSizes({1, 1}, {200, 200});
    m_codec.resolutions = {{352, 288}, {176, 144}};
    EXPECT_EQ("Auto, 352 x 288, 176 x 144", Resolutions());
}

TEST_F(CodecDefaults, ASingleResolutionGetsNoAutoEntry)
{
    m_codec.resolutions = {{352, 288}};
    EXPECT_EQ("352 x 288", Resolutions());
}

TEST_F(CodecDefaults, WithoutAListTheTableOfResolutionsApplies)
{
    LimitSizes({0, 0}, {100000, 100000});
    EXPECT_EQ("Auto, 8192 x 4320, 7680 x 4320, 5120 x 2880, 5120 x 2160, 4096 x 2160, 3840 x 2160, "
              "2048 x 1536, 2048 x 1152, 1920 x 1440, 1920 x 1080, 1280 x 960, 1280 x 720, 960 x 720, "
              "960 x 640, 854 x 480, 768 x 576, 720 x 480, 640 x 480, 480 x 360, 320 x 270, 320 x 240, "
              "240 x 180, 240 x 140, 180 x 140, 120 x 90",
              Resolutions());
}

TEST_F(CodecDefaults, TheTableOfResolutionsKeepsWhatTheLimitsAllow)
{
    LimitSizes({320, 240}, {1920, 1080});
    EXPECT_EQ("Auto, 1920 x 1080, 1280 x 960, 1280 x 720, 960 x 720, 960 x 640, 854 x 480, 768 x 576, "
              "720 x 480, 640 x 480, 480 x 360, 320 x 270, 320 x 240",
              Resolutions());
}

struct LimitCase
{
    const char* name;
    ScriptedCodec::Size min;
    ScriptedCodec::Size max;
    const char* resolutions;
};

class CodecDefaultsLimit : public CodecDefaults, public testing::WithParamInterface<LimitCase>
{
};

TEST_P(CodecDefaultsLimit, BoundsTheTableOfResolutionsOnEachSide)
{
    LimitSizes(GetParam().min, GetParam().max);
    EXPECT_EQ(GetParam().resolutions, Resolutions());
}

INSTANTIATE_TEST_SUITE_P(
    Limits, CodecDefaultsLimit,
    testing::Values(LimitCase{"OneSize", {1280, 720}, {1280, 720}, "1280 x 720"},
                    LimitCase{"AllBoundsInclusive", {960, 640}, {960, 720}, "Auto, 960 x 720, 960 x 640"},
                    LimitCase{"MinWidth", {961, 0}, {1280, 720}, "1280 x 720"},
                    LimitCase{"MinHeight", {0, 641}, {960, 720}, "960 x 720"},
                    LimitCase{"MaxWidth", {960, 640}, {1279, 800}, "Auto, 960 x 720, 960 x 640"},
                    LimitCase{"MaxHeight", {960, 640}, {1280, 719}, "960 x 640"},
                    LimitCase{"None", {0, 0}, {0, 0}, ""}),
    [](const auto& test) { return test.param.name; });

TEST_F(CodecDefaults, FrameratesOfTheCodecComeInItsOrderWhateverItsLimits)
{
    LimitRates({1, 1}, {2, 1});
    m_codec.frameRates = {{24000, 1001}, {60, 2}};
    EXPECT_EQ("Auto, 24000/1001 fps, 60/2 fps", Framerates());
}

TEST_F(CodecDefaults, ASingleFramerateGetsNoAutoEntry)
{
    m_codec.frameRates = {{25, 1}};
    EXPECT_EQ("25/1 fps", Framerates());
}

TEST_F(CodecDefaults, WithoutAListTheTableOfFrameratesApplies)
{
    LimitRates({1, 1}, {1000, 1});
    EXPECT_EQ("Auto, 60/1 fps, 60000/1001 fps, 50/1 fps, 50000/1001 fps, 30/1 fps, 30000/1001 fps, "
              "25/1 fps, 25000/1001 fps, 24/1 fps, 24000/1001 fps, 20/1 fps, 15/1 fps, 8/1 fps",
              Framerates());
}

TEST_F(CodecDefaults, TheTableOfFrameratesKeepsBothBounds)
{
    LimitRates({24000, 1001}, {25, 1});
    EXPECT_EQ("Auto, 25/1 fps, 25000/1001 fps, 24/1 fps, 24000/1001 fps", Framerates());
}

TEST_F(CodecDefaults, OneFramerateOfTheTableGetsNoAutoEntry)
{
    LimitRates({30, 2}, {15, 1});
    EXPECT_EQ("15/1 fps", Framerates());
}

TEST_F(CodecDefaults, NoFramerateOfTheTableMayFit)
{
    LimitRates({1, 1}, {7, 1});
    EXPECT_EQ("", Framerates());
}

TEST_F(CodecDefaults, SampleratesComeInOrder)
{
    m_codec.sampleRates = {48000, 8000, 44100};
    EXPECT_EQ("Auto, 48000 Hz, 8000 Hz, 44100 Hz", Samplerates());
    EXPECT_EQ(0, IVXCodecPreset::DefaultSamplerates(kCodec).front()->Samplerate());
}

TEST_F(CodecDefaults, ASingleSamplerateGetsNoAutoEntry)
{
    m_codec.sampleRates = {48000};
    EXPECT_EQ("48000 Hz", Samplerates());
}

TEST_F(CodecDefaults, WithoutSampleratesThereAreNone) { EXPECT_EQ("", Samplerates()); }

TEST_F(CodecDefaults, ChannelLayoutsComeInOrder)
{
    m_codec.layouts = {63, 3};
    EXPECT_EQ("Auto, layout 63, layout 3", ChannelLayouts());
    EXPECT_EQ(0U, IVXCodecPreset::DefaultChannelLayouts(kCodec).front()->Layout());
}

TEST_F(CodecDefaults, ASingleChannelLayoutGetsNoAutoEntry)
{
    m_codec.layouts = {3};
    EXPECT_EQ("layout 3", ChannelLayouts());
}

TEST_F(CodecDefaults, WithoutChannelLayoutsThereAreNone) { EXPECT_EQ("", ChannelLayouts()); }

TEST_F(CodecDefaults, ProfilesStandBehindUnknown)
{
    m_codec.profiles = {{100, "High"}, {66, "Baseline"}};
    EXPECT_EQ(R"({"profile":-99,"name":"Unknown"}{"profile":100,"name":"High"})"
              R"({"profile":66,"name":"Baseline"})",
              Written(IVXCodecPreset::DefaultProfiles(kCodec)));
}

TEST_F(CodecDefaults, WithoutProfilesThereIsUnknownAlone)
{
    EXPECT_EQ(R"({"profile":-99,"name":"Unknown"})", Written(IVXCodecPreset::DefaultProfiles(kCodec)));
}

TEST_F(CodecDefaults, LevelsStandBehindUnknown)
{
    m_codec.levels = {{41, "4.1"}};
    EXPECT_EQ(R"({"level":-99,"name":"Unknown"}{"level":41,"name":"4.1"})",
              Written(IVXCodecPreset::DefaultLevels(kCodec)));
}

TEST_F(CodecDefaults, WithoutLevelsThereIsUnknownAlone)
{
    EXPECT_EQ(R"({"level":-99,"name":"Unknown"})", Written(IVXCodecPreset::DefaultLevels(kCodec)));
}

TEST_F(CodecDefaults, FormatsOfAVideoCodecArePixelFormats)
{
    m_codec.formats = {0, 5};
    EXPECT_EQ(R"({"isAudio":false,"format":-1}{"isAudio":false,"format":0}{"isAudio":false,"format":5})",
              Written(IVXCodecPreset::DefaultSampleFmt(kCodec)));
}

TEST_F(CodecDefaults, FormatsOfAnAudioCodecAreSampleFormatsBehindNoPixelFormat)
{
    m_codec.type = VXCodecTypeAudio;
    m_codec.formats = {3, 8};
    const auto formats = IVXCodecPreset::DefaultSampleFmt(kCodec);
    ASSERT_EQ(3U, formats.size());
    EXPECT_EQ(VXPixFormat_None, formats[0]->Format());
    EXPECT_EQ(R"({"isAudio":true,"format":3})", Text(formats[1]->JsonValue()));
    EXPECT_EQ(R"({"isAudio":true,"format":8})", Text(formats[2]->JsonValue()));
}

TEST_F(CodecDefaults, TheAutoFormatOfAnAudioCodecIsAudioToo)
{
    m_codec.type = VXCodecTypeAudio;
    m_codec.formats = {3, 8};
    EXPECT_TRUE(IVXCodecPreset::DefaultSampleFmt(kCodec).front()->IsAudio());
}

TEST_F(CodecDefaults, ASingleFormatGetsNoAutoEntry)
{
    m_codec.formats = {5};
    EXPECT_EQ(R"({"isAudio":false,"format":5})", Written(IVXCodecPreset::DefaultSampleFmt(kCodec)));
}

TEST_F(CodecDefaults, WithoutFormatsThereAreNone)
{
    EXPECT_TRUE(IVXCodecPreset::DefaultSampleFmt(kCodec).empty());
}

TEST_F(CodecDefaults, TheAutoEntriesAreTheAutoValuesOfTheirKinds)
{
    m_codec.resolutions = {{640, 480}, {320, 240}};
    m_codec.frameRates = {{30, 1}, {25, 1}};
    EXPECT_EQ(R"({"width":0,"height":0})",
              Text(IVXCodecPreset::DefaultResolutions(kCodec).front()->JsonValue()));
    EXPECT_EQ(Text(IVXFrameratePreset::MallocFrameratePreset()->JsonValue()),
              Text(IVXCodecPreset::DefaultFramerates(kCodec).front()->JsonValue()));
}

TEST_F(CodecDefaults, EveryListIsMadeAnew)
{
    m_codec.sampleRates = {48000};
    EXPECT_NE(IVXCodecPreset::DefaultSamplerates(kCodec)[0], IVXCodecPreset::DefaultSamplerates(kCodec)[0]);
}

TEST_F(CodecDefaults, EveryQuestionHasAnEmptyOption)
{
    LimitSizes({1, 1}, {2000, 2000});
    IVXCodecPreset::MallocCodecPreset(kCodec);
    for (const auto* question :
         {"SupportedResolutions", "MinWidth", "MinHeight", "MaxWidth", "MaxHeight", "SupportedFrameRates",
          "MinFrameRate", "MaxFrameRate", "SupportedSampleRates", "SupportedChannelLayouts",
          "SupportedProfiles", "SupportedLevels", "SupportedFormats"})
    {
        const auto calls = m_platform.CallsTo(question);
        ASSERT_FALSE(calls.empty()) << question;
        EXPECT_EQ(std::string(question) + "(\"\")", calls.front());
    }
}

} // namespace

} // namespace Vexlor
