#include "tests/tree/Nodes.h"

#include "tests/tree/Outline.h"

#include <gtest/gtest.h>

#include <limits>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();

TEST_F(FormatNode, OfAnEmptyObjectIsEmpty)
{
    const auto root = Load("{}");
    EXPECT_EQ(kEmpty, Text(root->JsonValue()));
    EXPECT_EQ(nullptr, root->Parent());
}

TEST_F(FormatNode, OfNoDocumentIsEmpty)
{
    EXPECT_EQ(kEmpty,
              Text(IVXFormatNode::MallocFormatNode(std::shared_ptr<const IVXJsonValue>())->JsonValue()));
}

TEST_F(FormatNode, OfAnythingElseIsEmptyToo)
{
    for (const char* json : {"null", "[]", R"([{"name":"x"}])", "3", R"("text")", "true"})
        EXPECT_EQ(kEmpty, Text(Load(json)->JsonValue())) << json;
}

TEST_F(FormatNode, OfMalformedMembersHasEmptyValues)
{
    EXPECT_EQ(kEmpty, Text(Load(R"({"name":7,"description":{},"faceID":"5",)"
                                R"("formatPresetList":{"name":"x"},"childList":"none"})")
                               ->JsonValue()));
}

TEST_F(FormatNode, MakesAChildAndAPresetOfEveryElement)
{
    const auto root = Load(R"({"childList":[1,null,{"name":"c"},[]],"formatPresetList":["x",{"name":"p"}]})");
    EXPECT_EQ("\n  - \n  - p\n  \n  \n  c\n  \n", Outline(*root));
}

TEST_F(FormatNode, ReadsItsFields)
{
    const auto root = Load(R"({"faceID":-2147483648,"description":"für alle","name":"Video"})");
    EXPECT_EQ("Video", root->Name());
    EXPECT_EQ("für alle", root->Description());
    EXPECT_EQ(kLowest, root->FaceID());
}

TEST_F(FormatNode, DropsUnknownMembersAndWritesItsOwnOrder)
{
    EXPECT_EQ(
        kEmpty,
        Text(Load(R"({"childList":[],"expanded":true,"parent":{},"Name":"x","faceID":0})")->JsonValue()));
}

constexpr const char* kThreeLevels = R"({"name":"root","childList":[
    {"name":"a","childList":[{"name":"a1"},{"name":"a2","childList":[{"name":"deep"}]}]},
    {"name":"b","formatPresetList":[{"name":"p"},{"name":"q"}]}]})";

TEST_F(FormatNode, LoadsItsWholeSubtree)
{
    EXPECT_EQ("root\n"
              "  a\n"
              "    a1\n"
              "    a2\n"
              "      deep\n"
              "  b\n"
              "    - p\n"
              "    - q\n",
              Outline(*Load(kThreeLevels)));
}

void ExpectParentsInOrder(const Node& node)
{
    for (const auto& child : node->GetChildList())
    {
        EXPECT_EQ(node, child->Parent()) << child->Name();
        ExpectParentsInOrder(child);
    }
}

TEST_F(FormatNode, LoadedKnowsItsParents)
{
    const auto root = Load(kThreeLevels);
    EXPECT_EQ(nullptr, root->Parent());
    ExpectParentsInOrder(root);
}

TEST_F(FormatNode, WritesItsSubtreeInOrder)
{
    EXPECT_EQ(R"({"name":"root","description":"","faceID":0,"formatPresetList":[],"childList":[)"
              R"({"name":"a","description":"","faceID":0,"formatPresetList":[],"childList":[)"
              R"({"name":"a1","description":"","faceID":0,"formatPresetList":[],"childList":[]},)"
              R"({"name":"a2","description":"","faceID":3,"formatPresetList":[],"childList":[]}]},)"
              R"({"name":"b","description":"","faceID":0,"formatPresetList":[],"childList":[]}]})",
              Text(Load(R"({"name":"root","childList":[{"name":"a","childList":[{"name":"a1"},)"
                        R"({"faceID":3,"name":"a2"}]},{"name":"b"}]})")
                       ->JsonValue()));
}

TEST_F(FormatNode, WritesFormatPresetsAsTheyWriteThemselves)
{
    const auto root = Load(R"({"formatPresetList":[{"name":"p","formatName":"MPEG1"},{"faceID":3}]})");
    EXPECT_EQ("[" + Text(root->GetFormatPreset(0)->JsonValue()) + "," +
                  Text(root->GetFormatPreset(1)->JsonValue()) + "]",
              Text(root->JsonValue()->GetValueArray("formatPresetList")));
}

TEST_F(FormatNode, WrittenTwiceIsTheSame)
{
    const auto once = Text(Load(kThreeLevels)->JsonValue());
    EXPECT_EQ(once, Text(Load(once)->JsonValue()));
}

TEST_F(FormatNode, WritesWhatCallsHaveBuilt)
{
    const auto root = Root("root");
    Child(root, "child")->SetFaceID(5);
    root->AddFormatPreset(PresetFamily::Make("preset"));
    EXPECT_EQ(Outline(*root), Outline(*IVXFormatNode::MallocFormatNode(root->JsonValue())));
    EXPECT_EQ(Text(root->JsonValue()), Text(IVXFormatNode::MallocFormatNode(root->JsonValue())->JsonValue()));
}

} // namespace

} // namespace Vexlor
