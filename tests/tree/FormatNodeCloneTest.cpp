#include "tests/tree/Nodes.h"

#include "IVXCodecPreset.h"
#include "VXMediaCodecs.h"

#include "tests/tree/Outline.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

class FormatNodeClone : public FormatNode
{
protected:
    FormatNodeClone()
    {
        source->SetDescription("text");
        source->SetFaceID(9);
        source->AddFormatPreset(PresetFamily::Make("p"));
        source->AddFormatPreset(PresetFamily::Make("q"));
        Child(Child(source, "a"), "deep")->AddFormatPreset(PresetFamily::Make("r"));
        Child(source, "b");
    }

    Node root = Root("root");
    Node source = Child(root, "source");
};

struct CloneCase
{
    int flags;
    const char* outline;
    bool fields;
};

constexpr const char* kWhole = "source\n  - p\n  - q\n  a\n    deep\n      - r\n  b\n";
constexpr const char* kListsOnly = "\n  - p\n  - q\n  a\n    deep\n      - r\n  b\n";
constexpr const char* kChildrenOnly = "\n  a\n    deep\n      - r\n  b\n";

const std::vector<CloneCase> kClones = {
    {0, "\n", false},
    {1, "source\n", true},
    {2, "\n  - p\n  - q\n", false},
    {3, "source\n  - p\n  - q\n", true},
    {4, kChildrenOnly, false},
    {5, "source\n  a\n    deep\n      - r\n  b\n", true},
    {6, kListsOnly, false},
    {IVXFormatNode::CloneAll, kWhole, true},
    {8, "\n", false},
    {kLowest, "\n", false},
    {9, "source\n", true},
    {-1, kWhole, true},
    {kHighest, kWhole, true},
};

std::string FieldsOf(const IVXFormatNode& node)
{
    const auto parent = node.Parent();
    return node.Description() + " " + std::to_string(node.FaceID()) + (parent ? " below " : " ") +
           (parent ? parent->Name() : "");
}

TEST_F(FormatNodeClone, HoldsWhatTheFlagsAskFor)
{
    for (const auto& test : kClones)
    {
        const auto clone = source->Clone(test.flags);
        EXPECT_EQ(test.outline, Outline(*clone)) << test.flags;
        EXPECT_EQ(test.fields ? "text 9 below root" : " 0 ", FieldsOf(*clone)) << test.flags;
    }
}

TEST_F(FormatNodeClone, OfEverythingWritesTheSame)
{
    EXPECT_EQ(Text(source->JsonValue()), Text(source->Clone(IVXFormatNode::CloneAll)->JsonValue()));
}

TEST_F(FormatNodeClone, IsNotAddedToItsParent)
{
    const auto clone = source->Clone(IVXFormatNode::CloneAll);
    EXPECT_EQ(1, root->ChildCount());
    EXPECT_EQ(-1, root->IndexOfChild(clone));
}

TEST_F(FormatNodeClone, HasChildrenThatPointAtTheirSourcesParents)
{
    const auto clone = source->Clone(IVXFormatNode::CloneAll);
    EXPECT_EQ(source, clone->GetChild(0)->Parent());
    EXPECT_EQ(source, clone->GetChild(1)->Parent());
    EXPECT_EQ(source->GetChild(0), clone->GetChild(0)->GetChild(0)->Parent());
}

TEST_F(FormatNodeClone, OfChildrenAloneHasThemPointAtTheirSourcesParentsToo)
{
    const auto clone = source->Clone(4);
    ASSERT_EQ(nullptr, clone->Parent());
    EXPECT_EQ(source, clone->GetChild(0)->Parent());
}

TEST_F(FormatNodeClone, SharesNothing)
{
    const auto clone = source->Clone(IVXFormatNode::CloneAll);
    EXPECT_NE(source, clone);
    EXPECT_NE(source->GetFormatPreset(0), clone->GetFormatPreset(0));
    EXPECT_NE(source->GetChild(0), clone->GetChild(0));
    EXPECT_NE(source->GetChild(0)->GetChild(0), clone->GetChild(0)->GetChild(0));
}

TEST_F(FormatNodeClone, CanBeChangedWithoutTheSource)
{
    source->GetFormatPreset(0)->AddVideoCodecPreset(VXCodecID_None);
    const auto before = Text(source->JsonValue());
    const auto clone = source->Clone(IVXFormatNode::CloneAll);
    clone->GetFormatPreset(0)->VideoCodecPreset(0)->SetDescription("edited");
    clone->GetFormatPreset(1)->SetName("edited");
    clone->GetChild(0)->GetChild(0)->SetName("edited");
    clone->RemoveChildAt(1);
    clone->SetDescription("edited");
    EXPECT_EQ(before, Text(source->JsonValue()));
}

TEST_F(FormatNodeClone, OfARootHasNoParent)
{
    EXPECT_EQ(nullptr, root->Clone(IVXFormatNode::CloneAll)->Parent());
}

} // namespace

} // namespace Vexlor
