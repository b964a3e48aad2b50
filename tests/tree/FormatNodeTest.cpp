#include "tests/tree/NodeLists.h"
#include "tests/tree/Outline.h"

#include "IVXCodecPreset.h"

#include "tests/platform/ScriptedPlatform.h"
#include "tests/platform/Slots.h"

#include <gmock/gmock.h>

#include <limits>
#include <vector>

namespace Vexlor
{

namespace
{

using Node = std::shared_ptr<IVXFormatNode>;

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

Node Root(const std::string& name = {}) { return ChildFamily::Make(name); }

Node Child(const Node& parent, const std::string& name)
{
    auto node = IVXFormatNode::MallocFormatNode(parent);
    node->SetName(name);
    return node;
}

Node Load(std::string_view json) { return IVXFormatNode::MallocFormatNode(Json(json)); }

class FormatNode : public testing::Test
{
protected:
    ScriptedPlatform platform;
};

TEST_F(FormatNode, OperationsHaveTheirSlots)
{
    using N = IVXFormatNode;
    EXPECT_EQ(EverySlot(49),
              SlotsOf(MutableForm(&N::Parent), ConstForm(&N::Parent), &N::SetParent, &N::FaceID,
                      &N::SetFaceID, &N::Name, &N::Description, &N::SetName, &N::SetDescription, &N::Clone,
                      &N::JsonValue, &N::FormatPresetCount, MutableForm(&N::GetFormatPreset),
                      ConstForm(&N::GetFormatPreset), &N::AddFormatPreset, &N::SetFormatPresetList,
                      &N::InsertFormatPreset, &N::InsertFormatPresets, &N::RemoveFormatPresetByName,
                      &N::RemoveFormatPreset, &N::RemoveFormatPresetAt, &N::RemoveFormatPresetsAt,
                      &N::RemoveFormatPresets, &N::MoveFormatPreset, &N::MoveFormatPresets,
                      &N::ClearFormatPresets, &N::FindFormatPreset, &N::IndexOfFormatPreset,
                      &N::IndexOfFormatPresetByName, &N::ChildCount, MutableForm(&N::GetChild),
                      ConstForm(&N::GetChild), MutableForm(&N::GetChildList), ConstForm(&N::GetChildList),
                      &N::AddChild, &N::SetChildList, &N::InsertChild, &N::InsertChildren,
                      &N::RemoveChildByName, &N::RemoveChild, &N::RemoveChildAt, &N::RemoveChildrenAt,
                      &N::RemoveChildren, &N::MoveChild, &N::MoveChildren, &N::ClearChildren, &N::FindChild,
                      &N::IndexOfChild, &N::IndexOfChildByName));
}

TEST_F(FormatNode, CloneAllIsEveryFlag) { EXPECT_EQ(1 | 2 | 4, IVXFormatNode::CloneAll); }

// Fields.

constexpr const char* kEmpty =
    R"({"name":"","description":"","faceID":0,"formatPresetList":[],"childList":[]})";

TEST_F(FormatNode, StartsEmpty)
{
    const auto root = Root();
    EXPECT_EQ(kEmpty, Text(root->JsonValue()));
    EXPECT_EQ(nullptr, root->Parent());
}

TEST_F(FormatNode, StoresItsFields)
{
    const auto root = Root();
    const std::string bytes("a\0\xff\xc3", 4);
    root->SetName(bytes);
    root->SetDescription("description");
    root->SetFaceID(kLowest);
    EXPECT_EQ(bytes, root->Name());
    EXPECT_EQ("description", root->Description());
    EXPECT_EQ(kLowest, root->FaceID());
}

// Parents.

TEST_F(FormatNode, MadeBelowAParentIsItsLastChild)
{
    const auto root = Root();
    Child(root, "first");
    const auto second = Child(root, "second");
    EXPECT_EQ(root, second->Parent());
    EXPECT_EQ(second, root->LastChild());
    EXPECT_EQ(2, root->ChildCount());
}

TEST_F(FormatNode, KnowsItsParentReadOnlyToo)
{
    const auto root = Root();
    const std::shared_ptr<const IVXFormatNode> child = Child(root, "child");
    EXPECT_EQ(root, child->Parent());
}

TEST_F(FormatNode, KnowsItsParentOnlyWeakly)
{
    auto root = Root();
    const auto child = Child(root, "child");
    const std::weak_ptr<IVXFormatNode> watch = root;
    root.reset();
    EXPECT_TRUE(watch.expired());
    EXPECT_EQ(nullptr, child->Parent());
    EXPECT_EQ(nullptr, std::as_const(*child).Parent());
}

TEST_F(FormatNode, SetParentLeavesTheParentsChildrenAlone)
{
    const auto root = Root();
    const auto child = Root("child");
    child->SetParent(root);
    EXPECT_EQ(root, child->Parent());
    EXPECT_EQ(0, root->ChildCount());
}

TEST_F(FormatNode, SetParentOfNothingClearsTheLink)
{
    const auto root = Root();
    const auto child = Child(root, "child");
    child->SetParent({});
    EXPECT_EQ(nullptr, child->Parent());
    EXPECT_EQ(child, root->FirstChild());
}

TEST_F(FormatNode, ListOperationsGiveNoParent)
{
    const auto root = Root();
    const NodeList<ChildFamily> nodes("ABCDE");
    root->AddChild(nodes.At(0));
    root->InsertChild(nodes.At(1), 0);
    root->InsertChildren({nodes.At(2)}, 0);
    EXPECT_EQ(nullptr, nodes.At(0)->Parent());
    EXPECT_EQ(nullptr, nodes.At(1)->Parent());
    EXPECT_EQ(nullptr, nodes.At(2)->Parent());
    root->SetChildList({nodes.At(3)});
    EXPECT_EQ(nullptr, nodes.At(3)->Parent());
}

TEST_F(FormatNode, ListOperationsTakeNoParentAway)
{
    const auto root = Root();
    std::vector<Node> children;
    for (const char* name : {"A", "B", "C", "D"})
        children.push_back(Child(root, name));
    root->MoveChild(0, 2);
    root->RemoveChild(children[0]);
    root->RemoveChildAt(0);
    root->ClearChildren();
    for (const auto& child : children)
        EXPECT_EQ(root, child->Parent()) << child->Name();
}

// Ownership.

TEST_F(FormatNode, OwnsItsSubtree)
{
    auto root = Root();
    const std::weak_ptr<IVXFormatNode> leaf = Child(Child(root, "child"), "leaf");
    ASSERT_FALSE(leaf.expired());
    root.reset();
    EXPECT_TRUE(leaf.expired());
}

TEST_F(FormatNode, LivesOnAfterItsRemovalWhileItIsHeld)
{
    auto root = Root();
    const auto child = Child(root, "child");
    Child(child, "leaf");
    root->ClearChildren();
    root.reset();
    EXPECT_EQ("child\n  leaf\n", Outline(*child));
}

TEST_F(FormatNode, ChildrenThatAreHeldKeepTheirOwnChildren)
{
    auto root = Root();
    const auto child = Child(root, "child");
    Child(child, "leaf");
    root.reset();
    EXPECT_EQ("child\n  leaf\n", Outline(*child));
    EXPECT_EQ(child, child->FirstChild()->Parent());
}

TEST_F(FormatNode, ChildrenOfTwoNodesLiveAsLongAsOneOfThem)
{
    auto first = Root("first");
    const auto second = Root("second");
    second->AddChild(Child(first, "shared"));
    Child(first->FirstChild(), "leaf");
    first.reset();
    EXPECT_EQ("second\n  shared\n    leaf\n", Outline(*second));
}

TEST_F(FormatNode, HandsOutACopyOfTheListOfChildren)
{
    const NodeList<ChildFamily> list("ABC");
    auto copy = list(MutableForm(&IVXFormatNode::GetChildList));
    EXPECT_EQ(list.Elements(), copy);
    copy.clear();
    EXPECT_EQ("ABC", list.Text());
}

TEST_F(FormatNode, HandsOutTheSameChildrenToReadOnly)
{
    const NodeList<ChildFamily> list("ABC");
    EXPECT_THAT(list.Const().GetChildList(), testing::ElementsAreArray(list.Elements()));
}

// The one warning.

class FormatNodeWarning : public FormatNode
{
protected:
    static std::string Warning(int index)
    {
        return "VXFormatNode->warring:GetFormatPreset idx=" + std::to_string(index) +
               " is beyond array size!";
    }

    /// What asking for that entry prints, a line in brackets each.
    std::string PrintedFor(int index) const
    {
        const ScriptedPlatform own;
        std::string text = list.At(index) ? "an entry " : "";
        for (const auto& line : own.LogLines())
            text += "[" + line.text + "]";
        return text;
    }

    const NodeList<PresetFamily> list = NodeList<PresetFamily>("AB");
};

TEST_F(FormatNodeWarning, IsPrintedOnceForAnIndexBeyondTheList)
{
    EXPECT_EQ("an entry ", PrintedFor(1));
    for (const int index : {2, 5, kHighest})
        EXPECT_EQ("[" + Warning(index) + "]", PrintedFor(index));
}

TEST_F(FormatNodeWarning, IsNotPrintedForANegativeIndex)
{
    EXPECT_EQ(nullptr, list.At(-1));
    EXPECT_EQ(nullptr, list.At(kLowest));
    EXPECT_EQ("", platform.Log());
}

TEST_F(FormatNodeWarning, IsNotPrintedReadOnlyOrForChildren)
{
    EXPECT_EQ(nullptr, list.Const().GetFormatPreset(5));
    EXPECT_EQ(nullptr, list.Const().GetChild(5));
    EXPECT_EQ(nullptr, Root()->GetChild(5));
    EXPECT_EQ("", platform.Log());
}

TEST_F(FormatNodeWarning, IsPrintedForTheFirstOfNone)
{
    EXPECT_EQ(nullptr, Root()->FirstFormatPreset());
    EXPECT_EQ(Warning(0), platform.Log());
}

TEST_F(FormatNodeWarning, IsNotPrintedForTheFirstOfNoneReadOnly)
{
    EXPECT_EQ(nullptr, std::as_const(*Root()).FirstFormatPreset());
    EXPECT_EQ("", platform.Log());
}

TEST_F(FormatNodeWarning, IsNotPrintedForTheLastOfNone)
{
    EXPECT_EQ(nullptr, Root()->LastFormatPreset());
    EXPECT_EQ("", platform.Log());
}

// Documents.

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

// Clones.

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
