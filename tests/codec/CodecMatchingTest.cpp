#include "tests/codec/CodecMatching.h"

#include "IVXRational.h"
#include "IVXSampleFmtPreset.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <utility>

namespace Vexlor
{

namespace
{

using testing::AllOf;
using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

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

} // namespace

} // namespace Vexlor
