#include "OwnCategory.h"

#include "FreeNames.h"

#include "IVXArtworkImageMgr.h"
#include "IVXFormatNode.h"

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

using Node = std::shared_ptr<IVXFormatNode>;

constexpr const char* kOwnCategory = "Customised";

bool HasIcon(const Node& category)
{
    return category && category->FaceID() == IVXArtworkImageMgr::CategoryFaceIDCustomize;
}

Node NewCategory()
{
    auto made = IVXFormatNode::MallocFormatNode(Node());
    made->SetName(kOwnCategory);
    made->SetFaceID(IVXArtworkImageMgr::CategoryFaceIDCustomize);
    return made;
}

Node FindOwnCategory(IVXFormatNode& root)
{
    const auto children = root.GetChildList();
    const auto found = std::ranges::find_if(children, HasIcon);
    return found != children.end() ? *found : root.FindChild(kOwnCategory);
}

} // namespace

Node OwnCategory(const Node& root, std::vector<PlacedItem>& added)
{
    if (auto found = FindOwnCategory(*root))
        return found;
    for (const auto& placed : added)
        if (placed.place.parent == root && HasIcon(placed.item.category))
            return placed.item.category;
    auto made = NewCategory();
    added.push_back({{made}, {root, NextCategory(root, added)}});
    return made;
}

QString NameAsOwn(IVXFormatNode& root, const TreeItem& item, const QString& name)
{
    const auto own = FindOwnCategory(root);
    return own ? FreeNames(*own).Take(item, name) : name;
}

int NextCategory(const Node& parent, const std::vector<PlacedItem>& added)
{
    const auto isThere = [&parent](const PlacedItem& placed)
    { return placed.item.category && placed.place.parent == parent; };
    return parent->ChildCount() + static_cast<int>(std::ranges::count_if(added, isThere));
}

} // namespace Vexlor::Studio
