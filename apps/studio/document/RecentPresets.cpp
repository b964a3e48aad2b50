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

void NoteRecentPreset(PresetTree& tree, const IVXFormatPreset& preset, const IVXFormatPreset& asItWas)
{
    const auto category = RecentCategory(tree);
    std::shared_ptr<IVXFormatPreset> own;
    for (int i = category->FormatPresetCount() - 1; i >= 0; --i)
        if (const auto old = category->GetFormatPreset(i); old.get() == &preset)
            own = old; // it stays the one that is shown, and that steps are about
        else if (IsSamePreset(*old, asItWas))
            tree.Remove({{}, old}, category);
    if (own)
        tree.Move({{}, own}, category, {category, 0});
    else
        tree.Insert({{}, asItWas.Clone()}, {category, 0});
    while (category->FormatPresetCount() > kMostRecentPresets)
        tree.Remove({{}, category->LastFormatPreset()}, category);
}

} // namespace Vexlor::Studio
