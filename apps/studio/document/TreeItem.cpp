#include "TreeItem.h"

#include "apps/studio/ShownText.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>
#include <vector>

namespace Vexlor::Studio
{

namespace
{

// Copies of categories keep the parents of what they were copied from.
void AdoptDescendants(const std::shared_ptr<IVXFormatNode>& root)
{
    std::vector<std::shared_ptr<IVXFormatNode>> pending{root};
    while (!pending.empty())
    {
        const auto node = std::move(pending.back());
        pending.pop_back();
        for (const auto& child : node->GetChildList())
        {
            child->SetParent(node);
            pending.push_back(child);
        }
    }
}

template <typename Look>
void Wear(Look& object, const ItemLook& look)
{
    object.SetName(look.name.toStdString());
    object.SetDescription(look.description.toStdString());
    object.SetFaceID(look.faceID);
}

} // namespace

QString NameOf(const TreeItem& item)
{
    return QString::fromStdString(item.preset ? item.preset->Name() : item.category->Name());
}

QString ShownNameOf(const TreeItem& item)
{
    const auto name = ShownText(item.preset ? item.preset->Name() : item.category->Name());
    return name.trimmed().isEmpty() ? QCoreApplication::translate("TreeItem", "(no name)") : name;
}

QString DescriptionOf(const TreeItem& item)
{
    return QString::fromStdString(item.preset ? item.preset->Description() : item.category->Description());
}

int FaceOf(const TreeItem& item) { return item.preset ? item.preset->FaceID() : item.category->FaceID(); }

ItemLook LookOf(const TreeItem& item) { return {NameOf(item), DescriptionOf(item), FaceOf(item)}; }

void SetName(const TreeItem& item, const QString& name)
{
    if (item.preset)
        item.preset->SetName(name.toStdString());
    else
        item.category->SetName(name.toStdString());
}

void SetLook(const TreeItem& item, const ItemLook& look)
{
    if (item.preset)
        Wear(*item.preset, look);
    else
        Wear(*item.category, look);
}

std::vector<MovedItem> Reversed(std::vector<MovedItem> items)
{
    for (auto& moved : items)
    {
        std::swap(moved.from, moved.to);
        std::swap(moved.nameFrom, moved.nameTo);
    }
    return items;
}

int IndexOf(IVXFormatNode& parent, const TreeItem& item)
{
    return item.preset ? parent.IndexOfFormatPreset(item.preset) : parent.IndexOfChild(item.category);
}

int CountLike(const IVXFormatNode& parent, const TreeItem& item)
{
    return item.preset ? parent.FormatPresetCount() : parent.ChildCount();
}

bool IsNameTaken(IVXFormatNode& parent, const TreeItem& item, const QString& name)
{
    const auto wanted = name.toStdString();
    if (item.category)
        return std::ranges::any_of(parent.GetChildList(), [&](const auto& other)
                                   { return other != item.category && other->Name() == wanted; });
    for (int i = 0; i < parent.FormatPresetCount(); ++i)
        if (const auto other = parent.GetFormatPreset(i); other != item.preset && other->Name() == wanted)
            return true;
    return false;
}

bool Holds(const TreeItem& item, std::shared_ptr<IVXFormatNode> category)
{
    while (category && category != item.category)
        category = category->Parent();
    return category != nullptr;
}

TreeItem CopyOf(const TreeItem& item)
{
    if (item.preset)
        return {{}, item.preset->Clone()};
    TreeItem copy{item.category->Clone(IVXFormatNode::CloneAll)};
    copy.category->SetParent({});
    AdoptDescendants(copy.category);
    return copy;
}

} // namespace Vexlor::Studio
