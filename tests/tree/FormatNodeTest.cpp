#include "tests/tree/Nodes.h"

#include "tests/platform/Slots.h"
#include "tests/tree/Outline.h"

#include <gmock/gmock.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();

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

} // namespace

} // namespace Vexlor
