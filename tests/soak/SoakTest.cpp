#include "tests/memory/CountedMemory.h"
#include "tests/memory/ResidentMemory.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <random>
#include <string>

// What a long session does to a large tree, a million times over, leaves no memory behind. Each step keeps
// the number of categories, presets and entries, so that what is in use must stay.

namespace Vexlor
{

namespace
{

// A debugging build and the sanitizers take ten times as long for a step.
#ifdef NDEBUG
constexpr int kSteps = 1'000'000;
constexpr int kCategories = 1000;
#else
constexpr int kSteps = 50'000;
constexpr int kCategories = 100;
#endif
constexpr int kStepsToSettle = kSteps / 5;
constexpr int kPresets = 10; // of each category

// What is resident moves by a few pages. A byte that each of 800,000 steps left behind would be thrice this.
constexpr std::size_t kMostGrowth = 256U << 10U;

constexpr const char* kPreset = R"({
    "name": "A preset of some length", "description": "", "formatName": "MP4", "formatHint": "", "faceID": 1,
    "indexForVideoCodecPresets": 1,
    "videoCodecPresets": [
        {"codecID": 0},
        {"codecID": 1,
         "resolutionPresets": [{"width": 0, "height": 0}, {"width": 1920, "height": 1080},
                               {"width": 1280, "height": 720}],
         "frameratePresets": [{"num": 0, "den": 0}, {"num": 25, "den": 1}],
         "profilesPresets": [{"profile": -99, "name": "Unknown"}],
         "levelPresets": [{"level": -99, "name": "Unknown"}]}],
    "indexForAudioCodecPresets": 0,
    "audioCodecPresets": [
        {"codecID": 1001, "sampleratePresets": [{"samplerate": 0}, {"samplerate": 48000}],
         "channelLayoutPresets": [{"chLayout": 3}]}],
    "maxWidth": 0, "maxHeight": 0})";

std::string Repeated(const std::string& element, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += (i == 0 ? "" : ",") + element;
    return text;
}

std::shared_ptr<IVXFormatNode> LargeTree()
{
    const auto category =
        R"({"name": "A category of some length", "formatPresetList": [)" + Repeated(kPreset, kPresets) + "]}";
    return IVXFormatNode::MallocFormatNode(
        ParseJson(R"({"name": "Presets", "childList": [)" + Repeated(category, kCategories) + "]}"));
}

std::shared_ptr<IVXFormatParameter> Source()
{
    auto source = IVXFormatParameter::MallocFormatParameter("", "");
    const auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_HEVC);
    video->SetWidth(1440);
    video->SetHeight(1080);
    video->SetFramePerSecond(IVXRational::MallocRational(24000, 1001));
    video->SetBitrate(6'000'000);
    source->SetVideoCodecParameter(video);
    const auto audio = IVXCodecParameter::MallocCodecParamter(VXCodecID_Opus);
    audio->SetSampleRate(48000);
    audio->SetChannelLayout(3);
    source->SetAudioCodecParameter(audio);
    return source;
}

/// A tree in the hands of a restless user.
class Session
{
public:
    void Run(int steps)
    {
        for (int i = 0; i < steps; ++i)
            (this->*Chosen())();
    }

    int PresetCount() const
    {
        int count = 0;
        for (const auto& category : m_root->GetChildList())
            count += category->FormatPresetCount();
        return count;
    }

    const IVXFormatNode& Root() const { return *m_root; }

private:
    using Step = void (Session::*)();
    struct Row
    {
        int weight;
        Step step;
    };

    Step Chosen()
    {
        static constexpr std::array kRows{Row{30, &Session::Match},         Row{10, &Session::EditCodec},
                                          Row{10, &Session::MoveCategory},  Row{10, &Session::MovePresets},
                                          Row{10, &Session::Rename},        Row{10, &Session::SetBounds},
                                          Row{10, &Session::ReplacePreset}, Row{5, &Session::CopyPreset},
                                          Row{3, &Session::AskForDefaults}, Row{1, &Session::ReplaceCategory},
                                          Row{1, &Session::RereadCategory}};
        for (int left = Below(100); const auto& row : kRows)
            if ((left -= row.weight) < 0)
                return row.step;
        return kRows.front().step;
    }

    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    std::shared_ptr<IVXFormatNode> Category() { return m_root->GetChild(Below(kCategories)); }
    std::shared_ptr<IVXFormatPreset> Preset() { return Category()->GetFormatPreset(Below(kPresets)); }

    void Match() { EXPECT_TRUE(Preset()->MatchForSource(m_source)->GetVideoCodecParameter()); }
    void AskForDefaults() { EXPECT_TRUE(Preset()->DefaultFormatParameter()->GetAudioCodecParameter()); }
    void MoveCategory() { m_root->MoveChild(Below(kCategories), Below(kCategories + 1)); }
    void MovePresets()
    {
        Category()->MoveFormatPresets({Below(kPresets), Below(kPresets), Below(kPresets)}, Below(kPresets));
    }
    void Rename() { Preset()->SetName("A preset of some length " + std::to_string(Below(1000))); }
    void SetBounds()
    {
        const auto preset = Preset();
        preset->SetMaxWidth(Below(4000));
        preset->SetMaxHeight(Below(3000));
        preset->SetIndexForVideoCodecPresets(Below(2));
    }
    void CopyPreset() { Preset()->CopyFrom(Preset()); }

    void EditCodec()
    {
        const auto codec = Preset()->VideoCodecPreset(1);
        codec->AddResolutionPreset(Below(4000), Below(3000));
        codec->MoveResolutionPreset(3, Below(3));
        codec->RemoveResolutionPreset(Below(4));
        codec->SetIndexForResolutionPreset(Below(3));
        codec->SetIndexForQualityPresets(Below(5));
    }

    void ReplacePreset()
    {
        const auto category = Category();
        category->InsertFormatPreset(Preset()->Clone(), Below(kPresets));
        category->RemoveFormatPresetAt(Below(kPresets + 1));
    }

    void ReplaceCategory() { PutInPlaceOfOne(Category()->Clone(IVXFormatNode::CloneAll)); }

    void RereadCategory()
    {
        PutInPlaceOfOne(IVXFormatNode::MallocFormatNode(ParseJson(JsonText(*Category()->JsonValue()))));
    }

    void PutInPlaceOfOne(const std::shared_ptr<IVXFormatNode>& category)
    {
        category->SetParent(m_root);
        m_root->InsertChild(category, Below(kCategories));
        m_root->RemoveChildAt(Below(kCategories + 1));
    }

    std::mt19937 m_random{2026};
    std::shared_ptr<IVXFormatNode> m_root = LargeTree();
    std::shared_ptr<IVXFormatParameter> m_source = Source();
};

struct Memory
{
    std::size_t inUse = BytesInUse();
    std::size_t resident = ResidentBytes();
};

/// The figures for whoever runs the program, and for whoever reads its results.
void Tell(const char* name, const Memory& memory)
{
    std::printf("%s: %zu bytes in use, %zu resident\n", name, memory.inUse, memory.resident);
    testing::Test::RecordProperty(std::string(name) + "InUse", std::to_string(memory.inUse));
    testing::Test::RecordProperty(std::string(name) + "Resident", std::to_string(memory.resident));
}

TEST(Soak, MemoryStaysFlat)
{
    Session session;
    session.Run(kStepsToSettle);
    const Memory settled;
    Tell("settled", settled);
    session.Run(kSteps - kStepsToSettle);
    const Memory end;
    Tell("end", end);
    EXPECT_EQ(kCategories * kPresets, session.PresetCount());
    EXPECT_NEAR(1.0, static_cast<double>(end.inUse) / static_cast<double>(settled.inUse), 0.01);
    EXPECT_LE(end.resident, settled.resident + kMostGrowth);
}

TEST(Soak, NothingIsLeftOfASession)
{
    Session().Run(kStepsToSettle / 10); // what is made once in a program is made now
    const auto before = BytesInUse();
    Session().Run(kStepsToSettle / 10);
    EXPECT_EQ(before, BytesInUse());
}

// The first text has the grades chosen last, which no document keeps.
TEST(Soak, TheTreeStillReadsBack)
{
    const auto reread = [](const IVXFormatNode& root)
    { return IVXFormatNode::MallocFormatNode(ParseJson(JsonText(*root.JsonValue()))); };
    Session session;
    session.Run(kStepsToSettle / 10);
    const auto once = reread(session.Root());
    const bool isSame = JsonText(*once->JsonValue()) == JsonText(*reread(*once)->JsonValue());
    EXPECT_TRUE(isSame);
    EXPECT_EQ(kCategories, once->ChildCount());
}

} // namespace

} // namespace Vexlor
