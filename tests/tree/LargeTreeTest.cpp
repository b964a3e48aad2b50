#include "tests/tree/NodeLists.h"

#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <deque>

namespace Vexlor
{

namespace
{

using Node = std::shared_ptr<IVXFormatNode>;

constexpr int kMany = 100'000;

/// A root, and below it one child below another, some with a sibling in front.
struct Chain
{
    Node root = ChildFamily::Make("root");
    Node middle;
    Node leaf = root;

    Chain()
    {
        for (int i = 1; i < kMany; ++i)
        {
            if (i % 100 == 1)
                IVXFormatNode::MallocFormatNode(leaf);
            leaf = IVXFormatNode::MallocFormatNode(leaf);
            if (i == kMany / 2)
                middle = leaf;
        }
        leaf->SetName("leaf");
    }
};

/// The levels from the node down to the last of its last children, which must have the name.
int DepthTo(const std::string& name, Node node)
{
    int depth = 1;
    for (auto next = node->LastChild(); next; next = node->LastChild())
    {
        node = std::move(next);
        ++depth;
    }
    return node->Name() == name ? depth : 0;
}

class DeepTree : public testing::Test
{
protected:
    ScriptedPlatform platform;
    Chain chain;
};

TEST_F(DeepTree, IsAsDeepAsItWasBuilt) { EXPECT_EQ(kMany, DepthTo("leaf", chain.root)); }

TEST_F(DeepTree, DiesWithItsRoot)
{
    const std::weak_ptr<IVXFormatNode> leaf = chain.leaf;
    chain.leaf.reset();
    chain.middle.reset();
    chain.root.reset();
    EXPECT_TRUE(leaf.expired());
}

TEST_F(DeepTree, DiesWithTheHandleOfARemovedChild)
{
    const std::weak_ptr<IVXFormatNode> leaf = chain.leaf;
    auto child = chain.root->LastChild();
    chain.root->ClearChildren();
    chain.leaf.reset();
    chain.middle.reset();
    ASSERT_FALSE(leaf.expired());
    child.reset();
    EXPECT_TRUE(leaf.expired());
}

TEST_F(DeepTree, DiesInEveryOperationThatDropsAChild)
{
    const std::weak_ptr<IVXFormatNode> leaf = chain.leaf;
    chain.leaf.reset();
    const std::weak_ptr<IVXFormatNode> middle = chain.middle;
    chain.middle->RemoveChildAt(1);
    EXPECT_TRUE(leaf.expired());
    chain.middle.reset();
    chain.root->SetChildList({});
    EXPECT_TRUE(middle.expired());
}

TEST_F(DeepTree, KeepsWhatIsHeldInTheMiddle)
{
    chain.leaf.reset();
    chain.root.reset();
    EXPECT_EQ(nullptr, chain.middle->Parent());
    EXPECT_EQ(2, chain.middle->ChildCount());
    EXPECT_EQ(kMany - kMany / 2, DepthTo("leaf", chain.middle));
}

TEST_F(DeepTree, KeepsWhatSeveralNodesShare)
{
    const auto other = ChildFamily::Make("other");
    other->AddChild(chain.middle);
    chain.leaf.reset();
    chain.middle.reset();
    chain.root.reset();
    EXPECT_EQ(kMany - kMany / 2 + 1, DepthTo("leaf", other));
}

TEST_F(DeepTree, IsCloned)
{
    const auto clone = chain.root->Clone(IVXFormatNode::CloneAll);
    EXPECT_EQ(kMany, DepthTo("leaf", clone));
    EXPECT_NE(chain.root->LastChild(), clone->LastChild());
    EXPECT_EQ(chain.root, clone->LastChild()->Parent());
    EXPECT_EQ(2, clone->ChildCount());
}

/// The values of a written chain from the outside in: objects and, between them, their lists of children.
///
/// A plain JSON value dies by recursion, which so deep a document would not survive: while all are held here,
/// each dies alone when it is let go from the front.
class Levels
{
public:
    using Value = std::shared_ptr<const IVXJsonValue>;

    explicit Levels(Value document)
    {
        while (document)
        {
            m_values.push_back(document);
            ++m_count;
            m_innermost = document->GetValueString("name");
            const auto children = document->GetValueArray("childList");
            m_values.push_back(children);
            document = children->Size() > 0 ? children->At(children->Size() - 1) : Value();
        }
    }
    Levels(const Levels&) = delete;
    Levels& operator=(const Levels&) = delete;

    ~Levels()
    {
        while (!m_values.empty())
            m_values.pop_front();
    }

    int Count() const { return m_count; }
    const std::string& Innermost() const { return m_innermost; }

private:
    std::deque<Value> m_values;
    int m_count = 0;
    std::string m_innermost;
};

TEST_F(DeepTree, IsWritten)
{
    const Levels levels(chain.root->JsonValue());
    EXPECT_EQ(kMany, levels.Count());
    EXPECT_EQ("leaf", levels.Innermost());
}

TEST_F(DeepTree, IsLoaded)
{
    std::shared_ptr<const IVXJsonValue> document = chain.root->JsonValue();
    const Levels levels(document);
    const auto loaded = IVXFormatNode::MallocFormatNode(document);
    document.reset();
    EXPECT_EQ(kMany, DepthTo("leaf", loaded));
    EXPECT_EQ(2, loaded->ChildCount());
    EXPECT_EQ(loaded, loaded->LastChild()->Parent());
}

// Wide.

class WideTree : public testing::Test
{
protected:
    WideTree()
    {
        for (int i = 0; i < kMany; ++i)
            IVXFormatNode::MallocFormatNode(root)->SetFaceID(i);
    }

    static std::vector<int> EvenPositions()
    {
        std::vector<int> positions;
        for (int i = 0; i < kMany; i += 2)
            positions.push_back(i);
        return positions;
    }

    ScriptedPlatform platform;
    Node root = ChildFamily::Make("root");
};

TEST_F(WideTree, HoldsItsChildrenInOrder)
{
    EXPECT_EQ(kMany, root->ChildCount());
    EXPECT_EQ(kMany / 3, root->GetChild(kMany / 3)->FaceID());
    EXPECT_EQ(kMany - 1, root->LastChild()->FaceID());
}

TEST_F(WideTree, IsClonedAndWritten)
{
    const auto clone = root->Clone(IVXFormatNode::CloneAll);
    const auto children = clone->JsonValue()->GetValueArray("childList");
    ASSERT_EQ(kMany, children->Size());
    EXPECT_EQ(kMany - 1, children->At(kMany - 1)->GetValueInt("faceID"));
}

TEST_F(WideTree, IsLoaded)
{
    const auto loaded = IVXFormatNode::MallocFormatNode(root->JsonValue());
    ASSERT_EQ(kMany, loaded->ChildCount());
    EXPECT_EQ(kMany - 1, loaded->LastChild()->FaceID());
    EXPECT_EQ(loaded, loaded->LastChild()->Parent());
}

TEST_F(WideTree, RemovesEverySecondChildAtOnce)
{
    EXPECT_TRUE(root->RemoveChildrenAt(EvenPositions()));
    ASSERT_EQ(kMany / 2, root->ChildCount());
    EXPECT_EQ(1, root->FirstChild()->FaceID());
    EXPECT_EQ(3, root->GetChild(1)->FaceID());
}

TEST_F(WideTree, MovesEverySecondChildAtOnce)
{
    root->MoveChildren(EvenPositions(), kMany);
    ASSERT_EQ(kMany, root->ChildCount());
    EXPECT_EQ(1, root->FirstChild()->FaceID());
    EXPECT_EQ(0, root->GetChild(kMany / 2)->FaceID());
    EXPECT_EQ(kMany - 2, root->LastChild()->FaceID());
}

} // namespace

} // namespace Vexlor
