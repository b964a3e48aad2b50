#include "tree/VXFormatNode.h"

#include "IVXLogConfig.h"

#include <new>

namespace Vexlor
{

namespace
{

constexpr int kCloneFields = 1;
constexpr int kCloneFormatPresets = 2;
constexpr int kCloneChildren = 4;
static_assert(IVXFormatNode::CloneAll == (kCloneFields | kCloneFormatPresets | kCloneChildren));

/// Copies everything below source to below copy. The copies keep the parent links of their sources,
/// deliberately.
void CloneDescendants(const IVXFormatNode& source, IVXFormatNode& copy)
{
    std::vector<std::pair<const IVXFormatNode*, IVXFormatNode*>> pending{{&source, &copy}};
    while (!pending.empty())
    {
        const auto [from, to] = pending.back();
        pending.pop_back();
        for (const auto& child : from->GetChildList())
        {
            const auto childCopy = child->Clone(kCloneFields | kCloneFormatPresets);
            to->AddChild(childCopy);
            if (childCopy)
                pending.emplace_back(child.get(), childCopy.get());
        }
    }
}

/// Lets go of the nodes and, one by one, of every descendant that nobody else holds.
void Release(HandleList<IVXFormatNode> nodes)
{
    while (!nodes.empty())
    {
        const auto node = std::move(nodes.back());
        nodes.pop_back();
        if (node.use_count() > 1)
            continue;
        const auto children = node->GetChildList();
        node->ClearChildren();
        nodes.insert(nodes.end(), children.begin(), children.end());
    }
}

} // namespace

VXFormatNode::~VXFormatNode()
{
    try
    {
        auto children = m_children.Entries();
        m_children.Clear();
        Release(std::move(children));
    }
    catch (const std::bad_alloc&)
    {
        // Without memory for the list the rest goes level by level, on the stack.
    }
}

std::shared_ptr<IVXFormatNode> VXFormatNode::Clone(int flags) const
{
    auto copy = std::make_shared<VXFormatNode>();
    if (flags & kCloneFields)
    {
        copy->m_parent = m_parent;
        copy->m_name = m_name;
        copy->m_description = m_description;
        copy->m_faceID = m_faceID;
    }
    if (flags & kCloneFormatPresets)
        copy->m_formatPresets.Set(CloneEach(m_formatPresets.Entries()));
    if (flags & kCloneChildren)
        CloneDescendants(*this, *copy);
    return copy;
}

// Only the upper bound is told of, and deliberately only here.
std::shared_ptr<IVXFormatPreset> VXFormatNode::GetFormatPreset(int idx)
{
    if (idx >= m_formatPresets.Count())
        IVXLogConfig::Printf("VXFormatNode->warring:GetFormatPreset idx=%d is beyond array size!", idx);
    return m_formatPresets.At(idx);
}

std::shared_ptr<IVXFormatPreset> IVXFormatNode::FirstFormatPreset() { return GetFormatPreset(0); }

std::shared_ptr<const IVXFormatPreset> IVXFormatNode::FirstFormatPreset() const { return GetFormatPreset(0); }

std::shared_ptr<IVXFormatPreset> IVXFormatNode::LastFormatPreset()
{
    return FormatPresetCount() < 1 ? nullptr : GetFormatPreset(FormatPresetCount() - 1);
}

std::shared_ptr<const IVXFormatPreset> IVXFormatNode::LastFormatPreset() const
{
    return FormatPresetCount() < 1 ? nullptr : GetFormatPreset(FormatPresetCount() - 1);
}

std::shared_ptr<IVXFormatNode> IVXFormatNode::FirstChild() { return GetChild(0); }

std::shared_ptr<const IVXFormatNode> IVXFormatNode::FirstChild() const { return GetChild(0); }

std::shared_ptr<IVXFormatNode> IVXFormatNode::LastChild()
{
    return ChildCount() < 1 ? nullptr : GetChild(ChildCount() - 1);
}

std::shared_ptr<const IVXFormatNode> IVXFormatNode::LastChild() const
{
    return ChildCount() < 1 ? nullptr : GetChild(ChildCount() - 1);
}

std::shared_ptr<IVXFormatNode> IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode> parent)
{
    auto node = std::make_shared<VXFormatNode>();
    if (parent)
    {
        parent->AddChild(node);
        node->SetParent(std::move(parent));
    }
    return node;
}

} // namespace Vexlor
