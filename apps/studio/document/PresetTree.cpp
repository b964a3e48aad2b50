#include "PresetTree.h"

#include "catalog/DefaultTree.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace Vexlor::Studio
{

namespace
{

using Node = std::shared_ptr<IVXFormatNode>;

void Put(const TreeItem& item, const TreePlace& place)
{
    if (item.preset)
        return place.parent->InsertFormatPreset(item.preset, place.index);
    place.parent->InsertChild(item.category, place.index);
    item.category->SetParent(place.parent);
}

void Take(const TreeItem& item, const Node& parent)
{
    if (item.preset)
        parent->RemoveFormatPreset(item.preset);
    else
        parent->RemoveChild(item.category);
}

bool Stands(const TreeItem& item, const IVXFormatNode& parent, int index)
{
    return item.preset ? parent.GetFormatPreset(index) == item.preset
                       : item.category && parent.GetChild(index) == item.category;
}

TreePlace Inside(const TreeItem& item, const TreePlace& place)
{
    return {place.parent, std::clamp(place.index, 0, CountLike(*place.parent, item))};
}

} // namespace

PresetTree::PresetTree(QObject* parent) : QObject(parent), m_root(Catalog::DefaultTree()) {}

PresetTree::~PresetTree() = default;

void PresetTree::SetRoot(std::shared_ptr<IVXFormatNode> root)
{
    emit AboutToReset();
    m_root = std::move(root);
    emit Reset();
}

Node PresetTree::ParentOf(const TreeItem& item) const
{
    if (item.category)
        return item.category->Parent();
    std::vector<Node> pending{m_root};
    while (!pending.empty())
    {
        auto node = std::move(pending.back());
        pending.pop_back();
        if (node->IndexOfFormatPreset(item.preset) >= 0)
            return node;
        for (const auto& child : node->GetChildList())
            pending.push_back(child);
    }
    return {};
}

// What is removed keeps its own categories, and they their parents.
bool PresetTree::IsHere(Node node) const
{
    while (node != m_root)
    {
        const auto parent = node->Parent();
        if (!parent || parent->IndexOfChild(node) < 0)
            return false;
        node = parent;
    }
    return true;
}

TreePlace PresetTree::PlaceOf(const TreeItem& item) const
{
    const auto parent = ParentOf(item);
    const int index = parent ? IndexOf(*parent, item) : -1;
    return index < 0 || !IsHere(parent) ? TreePlace{} : TreePlace{parent, index};
}

TreePlace PresetTree::PlaceBeside(const TreeItem& item, const TreePlace& other) const
{
    for (int index = other.index - 1; other.parent && index <= other.index + 1; ++index)
        if (Stands(item, *other.parent, index))
            return {other.parent, index};
    const int index = other.parent ? IndexOf(*other.parent, item) : -1;
    return index >= 0 ? TreePlace{other.parent, index} : PlaceOf(item);
}

void PresetTree::Insert(const TreeItem& item, const TreePlace& place)
{
    const auto inside = Inside(item, place);
    emit AboutToInsert(item, inside);
    Put(item, inside);
    emit Inserted();
}

void PresetTree::Remove(const TreeItem& item, const Node& parent)
{
    const int index = IndexOf(*parent, item);
    if (index < 0)
        return;
    emit AboutToRemove(item, {parent, index});
    Take(item, parent);
    emit Removed();
}

void PresetTree::Move(const TreeItem& item, const Node& from, const TreePlace& to)
{
    const int index = IndexOf(*from, item);
    if (index < 0)
        return;
    const bool isInside = to.parent == from;
    const int limit = CountLike(*to.parent, item) - (isInside ? 1 : 0);
    const TreePlace target{to.parent, std::clamp(to.index, 0, limit)};
    if (isInside && target.index == index)
        return;
    emit AboutToMove(item, {from, index},
                     {target.parent, target.index + (isInside && target.index > index ? 1 : 0)});
    Take(item, from);
    Put(item, target);
    emit Moved();
}

void PresetTree::SetLook(const TreeItem& item, const ItemLook& look)
{
    Studio::SetLook(item, look);
    emit LookChanged(item);
}

} // namespace Vexlor::Studio
