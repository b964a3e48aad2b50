#include "RecentPresets.h"

#include "PresetTree.h"

#include "IVXArtworkImageMgr.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

namespace Vexlor::Studio
{

namespace
{

using Node = std::shared_ptr<IVXFormatNode>;

constexpr const char* kRecentCategory = "Recently Used";

Node RecentCategory(PresetTree& tree)
{
    if (auto found = FindRecentCategory(*tree.Root()))
        return found;
    auto made = IVXFormatNode::MallocFormatNode(Node());
    made->SetName(kRecentCategory);
    made->SetFaceID(IVXArtworkImageMgr::CategoryFaceIDRecentList);
    tree.Insert({made}, {tree.Root(), tree.Root()->ChildCount()});
    return made;
}

} // namespace

Node FindRecentCategory(IVXFormatNode& root)
{
    for (const auto& child : root.GetChildList())
        if (child->FaceID() == IVXArtworkImageMgr::CategoryFaceIDRecentList)
            return child;
    return root.FindChild(kRecentCategory);
}

bool IsSamePreset(const IVXFormatPreset& one, const IVXFormatPreset& other)
{
    return one.Name() == other.Name() && one.FormatName() == other.FormatName();
}

void RecentPresets::Adopt()
{
    m_kept.clear();
    const auto category = FindRecentCategory(*m_tree.Root());
    if (!category || category->FormatPresetCount() > kMostRecentPresets)
        return;
    for (int i = 0; i < category->FormatPresetCount(); ++i)
        m_kept.insert(category->GetFormatPreset(i));
}

void RecentPresets::Note(const IVXFormatPreset& preset, const IVXFormatPreset& asItWas)
{
    const auto category = RecentCategory(m_tree);
    Preset own;
    for (int i = category->FormatPresetCount() - 1; i >= 0; --i)
        if (const auto old = category->GetFormatPreset(i); old.get() == &preset)
            own = old; // it stays the one that is shown, and that steps are about
        else if (m_kept.contains(old) && IsSamePreset(*old, asItWas))
            Drop(old, category);
    const int index = own ? category->IndexOfFormatPreset(own) : -1;
    if (index >= 0)
        return m_tree.Move({{}, own}, {category, index}, {category, 0});
    const auto copy = asItWas.Clone();
    m_kept.insert(copy);
    m_tree.Insert({{}, copy}, {category, 0});
    DropOldest(category);
}

void RecentPresets::Drop(const Preset& preset, const Node& category)
{
    m_tree.Remove({{}, preset}, category);
    m_kept.erase(preset);
}

void RecentPresets::DropOldest(const Node& category)
{
    int count = 0;
    for (int i = 0; i < category->FormatPresetCount();)
        if (const auto preset = category->GetFormatPreset(i);
            m_kept.contains(preset) && ++count > kMostRecentPresets)
            Drop(preset, category);
        else
            ++i;
}

} // namespace Vexlor::Studio
