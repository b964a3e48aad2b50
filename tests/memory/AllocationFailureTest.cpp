#include "tests/memory/RefusedMemory.h"

#include "IVXCodecParameter.h"
#include "IVXFormatNode.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "IVXRational.h"

#include "tests/platform/ScriptedCodecParameter.h"
#include "tests/platform/ScriptedJson.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <string>

// Every allocation of an operation is refused once: std::bad_alloc comes out, what was there before is as it
// was, and no byte is lost.

namespace Vexlor
{

namespace
{

constexpr int kVideo = 1;
constexpr int kAudio = 1001;

/// Two levels, every kind of list, and texts too long to lie inside a string.
constexpr const char* kDocument = R"({
    "name": "A root with a name of more than fifteen letters", "description": "", "faceID": 1,
    "formatPresetList": [],
    "childList": [{
        "name": "Devices", "description": "Phones, tablets and all the rest of them", "faceID": 12,
        "formatPresetList": [{
            "name": "Any device, however small it is", "description": "", "formatName": "MP4",
            "formatHint": "", "faceID": 101, "indexForVideoCodecPresets": 1,
            "videoCodecPresets": [
                {"codecID": 0},
                {"codecID": 1, "description": "the one that all of them play",
                 "indexForResolutionPreset": 1,
                 "resolutionPresets": [{"width": 0, "height": 0}, {"width": 1280, "height": 720}],
                 "frameratePresets": [{"num": 0, "den": 0}, {"num": 30000, "den": 1001}],
                 "profilesPresets": [{"profile": 100, "name": "a profile with quite a long name"}],
                 "levelPresets": [{"level": 31, "name": "a level whose name is as long"}]}],
            "indexForAudioCodecPresets": 0,
            "audioCodecPresets": [
                {"codecID": 1001, "sampleratePresets": [{"samplerate": 0}, {"samplerate": 48000}],
                 "channelLayoutPresets": [{"chLayout": 3}, {"chLayout": 63}]}],
            "maxWidth": 640, "maxHeight": 480, "maxVideoBitrate": 8000000, "minVideoBitrate": 1000}],
        "childList": [{"name": "A child of a child, empty as such nodes are"}]}]})";

class AllocationFailure : public testing::TestWithParam<Refusal>
{
protected:
    AllocationFailure()
    {
        auto& video = platform.Codec(kVideo);
        video.formats = {0, 5};
        video.resolutions = {{1920, 1080}, {1280, 720}};
        video.frameRates = {{25, 1}, {30, 1}};
        video.profiles = {{100, "a profile with quite a long name"}};
        video.levels = {{31, "a level whose name is as long"}};
        auto& audio = platform.Codec(kAudio);
        audio.type = VXCodecTypeAudio;
        audio.sampleRates = {44100, 48000};
        audio.layouts = {3, 63};
        audio.formats = {1, 8};
        auto& format = platform.Format("MP4");
        format.videoCodecIDs = {kVideo, kVideo};
        format.audioCodecIDs = {kAudio};
        root = IVXFormatNode::MallocFormatNode(json);
        preset = root->GetChild(0)->GetFormatPreset(0);
        source->SetVideoCodecParameter(MakeStream(kVideo));
        source->SetAudioCodecParameter(MakeStream(kAudio));
        source->GetVideoCodecParameter()->SetFramePerSecond(IVXRational::MallocRational(24, 1));
    }

    std::string Whole() const
    {
        return Text(json) + Text(root->JsonValue()) +
               Scripted(source->GetVideoCodecParameter()).SettersText() +
               Scripted(source->GetAudioCodecParameter()).SettersText();
    }

    /// Runs the operation with the first of its allocations refused, then the second, and so on until it is
    /// done.
    template <class Operation>
    void RefuseEach(Operation operation)
    {
        operation(); // what is made once in a program is made now
        const auto whole = Whole();
        platform.ForgetCalls();
        const auto inUse = BytesInUse();
        std::size_t allocations = 0;
        for (auto outcome = Outcome::BadAlloc; outcome == Outcome::BadAlloc; ++allocations)
        {
            outcome = OutcomeOf(operation, allocations, GetParam());
            platform.ForgetCalls();
            EXPECT_NE(Outcome::Swallowed, outcome) << allocations;
            EXPECT_EQ(inUse, BytesInUse()) << allocations;
        }
        EXPECT_EQ(whole, Whole());
        EXPECT_LT(10U, allocations);
    }

    ScriptedPlatform platform;
    std::shared_ptr<IVXJsonValue> json = Json(kDocument);
    std::shared_ptr<IVXFormatNode> root;
    std::shared_ptr<const IVXFormatPreset> preset;
    std::shared_ptr<IVXFormatParameter> source = IVXFormatParameter::MallocFormatParameter("source", "");
};

TEST_P(AllocationFailure, OfLoadingATree)
{
    RefuseEach([&] { return IVXFormatNode::MallocFormatNode(json); });
}

TEST_P(AllocationFailure, OfMakingAPresetOfAContainer)
{
    RefuseEach([] { return IVXFormatPreset::MallocFormatPreset("MP4", ""); });
}

TEST_P(AllocationFailure, OfCloningATree)
{
    RefuseEach([&] { return root->Clone(IVXFormatNode::CloneAll); });
}

TEST_P(AllocationFailure, OfCloningAPreset)
{
    RefuseEach([&] { return preset->Clone(); });
}

TEST_P(AllocationFailure, OfTakingAPresetOverLeavesTheOldOneWhole)
{
    const auto target = IVXFormatPreset::MallocFormatPreset("MP4", "");
    const auto before = Text(target->JsonValue());
    std::size_t allocations = 0;
    for (auto outcome = Outcome::BadAlloc; outcome == Outcome::BadAlloc; ++allocations)
    {
        outcome = OutcomeOf([&] { return target->CopyFrom(preset), target; }, allocations, GetParam());
        EXPECT_EQ(outcome == Outcome::Done ? Text(preset->JsonValue()) : before, Text(target->JsonValue()));
    }
    EXPECT_LT(10U, allocations);
}

TEST_P(AllocationFailure, OfMatchingASource)
{
    RefuseEach([&] { return preset->MatchForSource(source); });
}

TEST_P(AllocationFailure, OfTheOutputWithoutASource)
{
    RefuseEach([&] { return preset->DefaultFormatParameter(); });
}

TEST_P(AllocationFailure, OfWritingATree)
{
    RefuseEach([&] { return root->JsonValue(); });
}

// A destructor has nobody to tell, so it does without.
TEST_P(AllocationFailure, OfDroppingATree)
{
    const auto inUse = BytesInUse();
    std::size_t allocations = 0;
    for (bool enough = false; !enough; ++allocations)
    {
        auto tree = root->Clone(IVXFormatNode::CloneAll);
        const AllocationLimit limit(allocations, GetParam());
        tree.reset();
        enough = !limit.WasReached();
        EXPECT_EQ(inUse, BytesInUse()) << allocations;
    }
    EXPECT_LT(1U, allocations);
}

INSTANTIATE_TEST_SUITE_P(Memory, AllocationFailure, testing::Values(Refusal::One, Refusal::AllThatFollow),
                         [](const auto& test)
                         { return test.param == Refusal::One ? "ShortForAMoment" : "Gone"; });

} // namespace

} // namespace Vexlor
