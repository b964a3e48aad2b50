#include "tests/memory/RefusedMemory.h"

#include "IVXCodecParameter.h"
#include "IVXFormatNode.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

// The same with the runtime beneath the library: texts are parsed and written, codecs are asked.

namespace Vexlor
{

namespace
{

// Built values take their memory from blocks of 64 KB, and a thread keeps one to cut the next from.
constexpr std::size_t kBlocks = 2 * 65536;

std::shared_ptr<IVXFormatNode> Tree()
{
    auto preset = IVXFormatPreset::MallocFormatPreset("WEBM", "");
    preset->SetName("A preset with a name of more than fifteen letters");
    preset->SetDescription("and with a \"quote\"");
    auto root = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    IVXFormatNode::MallocFormatNode(root)->AddFormatPreset(std::move(preset));
    return root;
}

std::shared_ptr<const IVXFormatParameter> Source()
{
    auto video = IVXCodecParameter::MallocCodecParamter(VXCodecID_H264);
    video->SetWidth(1920);
    video->SetHeight(1080);
    video->SetFramePerSecond(IVXRational::MallocRational(30000, 1001));
    auto audio = IVXCodecParameter::MallocCodecParamter(VXCodecID_AAC);
    audio->SetSampleRate(44100);
    auto source = IVXFormatParameter::MallocFormatParameter("MOV", "");
    source->SetVideoCodecParameter(video);
    source->SetAudioCodecParameter(audio);
    return source;
}

// Parsing tells of short memory as it tells of a fault in the text.
std::shared_ptr<const IVXJsonValue> Parsed(const std::string& text)
{
    std::string error;
    auto value = ParseJson(text, &error);
    if (!value && error == "1:1: not enough memory")
        throw std::bad_alloc();
    return value;
}

class RuntimeAllocationFailure : public testing::TestWithParam<Refusal>
{
protected:
    /// Runs the operation with the first of its allocations refused, then the second, and so on until it is
    /// done.
    template <class Operation>
    void RefuseEach(Operation operation, std::size_t slack = 0)
    {
        operation(); // what is made once in a program is made now
        const auto inUse = BytesInUse();
        std::size_t allocations = 0;
        for (auto outcome = Outcome::BadAlloc; outcome == Outcome::BadAlloc; ++allocations)
        {
            outcome = OutcomeOf(operation, allocations, GetParam());
            EXPECT_NE(Outcome::Swallowed, outcome) << allocations;
            EXPECT_LE(BytesInUse(), inUse + slack) << allocations;
            EXPECT_GE(BytesInUse() + slack, inUse) << allocations;
        }
        EXPECT_LT(5U, allocations);
        EXPECT_EQ(text, JsonText(*root->JsonValue()));
    }

    std::shared_ptr<IVXFormatNode> root = Tree();
    std::string text = JsonText(*root->JsonValue());
    std::shared_ptr<const IVXFormatParameter> source = Source();
};

TEST_P(RuntimeAllocationFailure, OfParsingAText)
{
    RefuseEach([&] { return Parsed(text); });
}

TEST_P(RuntimeAllocationFailure, OfLoadingATextAsATree)
{
    RefuseEach([&] { return IVXFormatNode::MallocFormatNode(Parsed(text)); });
}

TEST_P(RuntimeAllocationFailure, OfCloningATree)
{
    RefuseEach([&] { return root->Clone(IVXFormatNode::CloneAll); });
}

TEST_P(RuntimeAllocationFailure, OfMatchingASource)
{
    const auto preset = root->GetChild(0)->GetFormatPreset(0);
    preset->SetIndexForVideoCodecPresets(1);
    preset->SetIndexForAudioCodecPresets(1);
    text = JsonText(*root->JsonValue());
    RefuseEach([&] { return preset->MatchForSource(source); });
}

TEST_P(RuntimeAllocationFailure, OfBuildingAValue)
{
    RefuseEach([&] { return root->JsonValue(); }, kBlocks);
}

TEST_P(RuntimeAllocationFailure, OfWritingAText)
{
    const auto value = root->JsonValue();
    RefuseEach([&] { return std::make_shared<std::string>(JsonText(*value, JsonStyle::Indented)); }, kBlocks);
}

TEST(RuntimeMemory, OfAThreadEndsWithIt)
{
    const auto root = Tree();
    const auto writeElsewhere = [&root] { std::thread([&] { JsonText(*root->JsonValue()); }).join(); };
    writeElsewhere(); // what is made once in a program is made now
    const auto inUse = BytesInUse();
    for (int i = 0; i < 10; ++i)
        writeElsewhere();
    EXPECT_EQ(inUse, BytesInUse());
}

TEST(RuntimeMemory, OfLargeObjectsIsNotKept)
{
    constexpr int kObjects = 20;
    constexpr int kMembers = 1300;
    const auto build = []
    {
        std::vector<std::shared_ptr<IVXJsonValue>> objects;
        for (int i = 0; i < kObjects; ++i)
        {
            objects.push_back(IVXJsonValue::JsonValueNull());
            for (int member = 0; member < kMembers; ++member)
                objects.back()->SetValueInt(std::to_string(member), member);
        }
        EXPECT_TRUE(objects.back()->HasKey(std::to_string(kMembers - 1)));
    };
    const auto inUse = BytesInUse();
    build();
    EXPECT_GE(inUse + kBlocks, BytesInUse());
}

INSTANTIATE_TEST_SUITE_P(Memory, RuntimeAllocationFailure,
                         testing::Values(Refusal::One, Refusal::AllThatFollow),
                         [](const auto& test)
                         { return test.param == Refusal::One ? "ShortForAMoment" : "Gone"; });

} // namespace

} // namespace Vexlor
