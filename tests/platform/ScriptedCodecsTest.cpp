#include "IVXFormat.h"

#include "tests/platform/ScriptedCall.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

TEST(ScriptedCodecs, ACodecThatNoTestNamedIsUnknown)
{
    const ScriptedPlatform platform;
    EXPECT_FALSE(IVXCodecs::MallocCodecs(7, true));
    EXPECT_EQ("", IVXCodecs::DefaultCodecName(7, true));
}

TEST(ScriptedCodecs, EveryCallIsRecordedWithItsArguments)
{
    ScriptedPlatform platform;
    platform.Codec(7);
    const auto codecs = IVXCodecs::MallocCodecs(7, true);
    codecs->BestResolutionFor(1280, 720, "");
    codecs->BestBitrateFor(1920, 1080, IVXRational::MallocRational(30, 1), 0, IVXCodecs::QualityLevelHigh,
                           "");
    codecs->BestFrameRateForInput({}, "");
    EXPECT_EQ("MallocCodecs(7, true)\n"
              "BestResolutionFor(1280, 720, \"\")\n"
              "BestBitrateFor(1920, 1080, 30/1, 0, 2, \"\")\n"
              "BestFrameRateForInput(none, \"\")\n",
              platform.CallsText());
}

TEST(ScriptedCodecs, BestQueriesEchoUnlessToldOtherwise)
{
    ScriptedPlatform platform;
    platform.Codec(7).bestSampleRate = 48000;
    const auto codecs = IVXCodecs::MallocCodecs(7, true);
    EXPECT_EQ(std::pair(320, 240), codecs->BestResolutionFor(320, 240, ""));
    EXPECT_EQ(48000, codecs->BestSampleRateForInput(44100, ""));
}

TEST(ScriptedCodecs, AnAnswerCanBeAFunctionOfTheArguments)
{
    ScriptedPlatform platform;
    platform.Codec(7).bestResolution = [](int width, int height) { return std::pair(height, width); };
    EXPECT_EQ(std::pair(240, 320), IVXCodecs::MallocCodecs(7, true)->BestResolutionFor(320, 240, ""));
}

TEST(ScriptedCodecs, ProfilesHaveNumbersAndNames)
{
    ScriptedPlatform platform;
    platform.Codec(7).profiles = {{66, "Baseline"}, {100, "High"}};
    const auto codecs = IVXCodecs::MallocCodecs(7, true);
    EXPECT_EQ((std::vector{66, 100}), codecs->SupportedProfiles(""));
    EXPECT_EQ("High", codecs->ProfileName(100));
    EXPECT_EQ("", codecs->ProfileName(5));
}

TEST(ScriptedPlatform, ListsFormatsInOrderOfDefinition)
{
    ScriptedPlatform platform;
    platform.Format("MP4").videoCodecIDs = {1, 2};
    platform.Format("Hidden").listed = false;
    platform.Format("AVI");
    EXPECT_EQ((std::vector<std::string>{"MP4", "AVI"}), VXMediaCodecSupportOutputAllMediaFormats());
    EXPECT_EQ((std::vector{1, 2}), IVXFormat::MallocFormat("MP4", "")->VideoCodecIDs());
}

TEST(ScriptedPlatform, CallsToPicksOneOperation)
{
    const ScriptedPlatform platform;
    IVXCodecs::MallocCodecs(7, true);
    IVXFormat::MallocFormat("MP4", "m4v");
    EXPECT_EQ(std::vector<std::string>{"MallocFormat(\"MP4\", \"m4v\")"}, platform.CallsTo("MallocFormat"));
}

TEST(ScriptedPlatform, StartsFromNothingEachTime)
{
    {
        ScriptedPlatform platform;
        platform.Codec(7);
    }
    const ScriptedPlatform platform;
    EXPECT_FALSE(IVXCodecs::MallocCodecs(7, true));
}

TEST(ScriptedPlatform, KeepsTheLevelOfALogLine)
{
    const ScriptedPlatform platform;
    IVXLogConfig::Printf("first %d\n", 1);
    IVXLogConfig::Printf(IVXLogConfig::LogLevelError, "second\n");
    EXPECT_EQ("first 1\nsecond\n", platform.Log());
    EXPECT_FALSE(platform.LogLines()[0].level);
    EXPECT_EQ(IVXLogConfig::LogLevelError, platform.LogLines()[1].level);
}

} // namespace

} // namespace Vexlor
