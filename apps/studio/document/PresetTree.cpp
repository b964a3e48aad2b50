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

/// The index of what is placed there, which as a rule is where it is looked for first; -1 where it is not in
/// that category.
int FoundIndex(const PlacedItem& placed)
{
    const auto& [item, place] = placed;
    auto& parent = *place.parent;
    const bool isThere = place.index >= 0 && place.index < CountLike(parent, item) &&
                         (item.preset ? parent.GetFormatPreset(place.index) == item.preset
                                      : parent.GetChild(place.index) == item.category);
    return isThere ? place.index : IndexOf(parent, item);
}

/// The items that are in their categories still, where they are now.
std::vector<PlacedItem> Found(std::vector<PlacedItem> items)
{
    for (auto& placed : items)
        placed.place.index = FoundIndex(placed);
    std::erase_if(items, [](const PlacedItem& placed) { return placed.place.index < 0; });
    return items;
}

using Way = TreePlace MovedItem::*;

std::vector<PlacedItem> Placed(const std::vector<MovedItem>& items, Way way)
{
    std::vector<PlacedItem> placed;
    placed.reserve(items.size());
    for (const auto& moved : items)
        placed.push_back({moved.item, moved.*way});
    return placed;
}

/// The items on their way to the end of their list, where the first gets that index.
std::vector<MovedItem> ToTheEnd(const std::vector<PlacedItem>& list, int index)
{
    std::vector<MovedItem> moves;
    moves.reserve(list.size());
    for (const auto& [item, place] : list)
        moves.push_back({item, place, {place.parent, index++}});
    return moves;
}

// Each run costs views as much as all rows together: of more than so many one is made at the list's end.
constexpr std::size_t kMostRuns = 8;

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

void PresetTree::Insert(const std::vector<PlacedItem>& items)
{
    for (const auto& list : ByList(items))
        if (const auto runs = RunsOf(list); runs.size() <= kMostRuns)
            for (const auto& run : runs)
                Insert(run);
        else
        {
            const auto way = ToTheEnd(list, CountOf(ListOf(list.front())));
            Insert(RunsOf(Placed(way, &MovedItem::to)).front());
            Move(Reversed(way));
        }
}

void PresetTree::Insert(ItemRun run)
{
    run.index = std::clamp(run.index, 0, CountOf(run.list));
    emit AboutToInsert(run);
    Studio::Insert(run);
    emit Inserted();
}

void PresetTree::Remove(const std::vector<PlacedItem>& items)
{
    auto lists = ByList(Found(items));
    std::ranges::reverse(lists);
    for (const auto& list : lists)
        if (const auto runs = RunsOf(list); runs.size() <= kMostRuns)
            for (auto run = runs.rbegin(); run != runs.rend(); ++run)
                Remove(*run);
        else
        {
            const auto way = ToTheEnd(list, CountOf(ListOf(list.front())) - static_cast<int>(list.size()));
            Move(way);
            Remove(RunsOf(Placed(way, &MovedItem::to)).front());
        }
}

void PresetTree::Remove(const ItemRun& run)
{
    emit AboutToRemove(run);
    Studio::Remove(run);
    emit Removed();
}

void PresetTree::Move(std::vector<MovedItem> items)
{
    std::erase_if(items, [](const MovedItem& moved) { return FoundIndex({moved.item, moved.from}) < 0; });
    if (items.empty())
        return;
    emit AboutToRearrange();
    for (const auto& list : ByList(Placed(items, &MovedItem::from)))
        TakeOut(ListOf(list.front()), list);
    for (const auto& list : ByList(Placed(items, &MovedItem::to)))
        MergeIn(ListOf(list.front()), list);
    for (const auto& moved : items)
        Rename(moved);
    emit Rearranged();
}

void PresetTree::Rename(const MovedItem& moved)
{
    if (moved.nameTo == moved.nameFrom)
        return;
    SetName(moved.item, moved.nameTo);
    emit LookChanged(moved.item);
}

void PresetTree::Insert(const TreeItem& item, const TreePlace& place)
{
    Insert(std::vector{PlacedItem{item, place}});
}

void PresetTree::Remove(const TreeItem& item, const Node& parent)
{
    Remove(std::vector{PlacedItem{item, {parent, 0}}});
}

void PresetTree::Move(const TreeItem& item, const TreePlace& from, const TreePlace& to)
{
    Move(std::vector{MovedItem{item, from, to}});
}

void PresetTree::SetLook(const TreeItem& item, const ItemLook& look)
{
    Studio::SetLook(item, look);
    emit LookChanged(item);
}

} // namespace Vexlor::Studio
