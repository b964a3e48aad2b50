#include "ItemList.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <unordered_set>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

using Categories = std::vector<std::shared_ptr<IVXFormatNode>>;
using Presets = std::vector<std::shared_ptr<IVXFormatPreset>>;

const void* KeyOf(const TreeItem& item)
{
    return item.preset ? static_cast<const void*>(item.preset.get()) : item.category.get();
}

std::vector<TreeItem> ItemsOf(const ItemList& list)
{
    std::vector<TreeItem> items;
    items.reserve(static_cast<std::size_t>(CountOf(list)));
    if (!list.isOfPresets)
        for (auto& child : list.category->GetChildList())
            items.push_back({std::move(child)});
    for (int i = 0; list.isOfPresets && i < CountOf(list); ++i)
        items.push_back({{}, list.category->GetFormatPreset(i)});
    return items;
}

Categories CategoriesOf(const std::vector<TreeItem>& items)
{
    Categories categories(items.size());
    std::ranges::transform(items, categories.begin(), &TreeItem::category);
    return categories;
}

Presets PresetsOf(const std::vector<TreeItem>& items)
{
    Presets presets(items.size());
    std::ranges::transform(items, presets.begin(), &TreeItem::preset);
    return presets;
}

void SetItems(const ItemList& list, const std::vector<TreeItem>& items)
{
    if (list.isOfPresets)
        list.category->SetFormatPresetList(PresetsOf(items));
    else
        list.category->SetChildList(CategoriesOf(items));
}

std::vector<int> IndexesOf(const ItemRun& run)
{
    std::vector<int> indexes(run.items.size());
    std::iota(indexes.begin(), indexes.end(), run.index);
    return indexes;
}

} // namespace

int CountOf(const ItemList& list)
{
    return list.isOfPresets ? list.category->FormatPresetCount() : list.category->ChildCount();
}

void Insert(const ItemRun& run)
{
    const auto& parent = run.list.category;
    if (run.list.isOfPresets)
        return parent->InsertFormatPresets(PresetsOf(run.items), run.index);
    parent->InsertChildren(CategoriesOf(run.items), run.index);
    for (const auto& item : run.items)
        item.category->SetParent(parent);
}

// One by its index: the list is not made anew then.
void Remove(const ItemRun& run)
{
    auto& parent = *run.list.category;
    if (run.list.isOfPresets)
        run.Count() == 1 ? parent.RemoveFormatPresetAt(run.index)
                         : parent.RemoveFormatPresetsAt(IndexesOf(run));
    else
        run.Count() == 1 ? parent.RemoveChildAt(run.index) : parent.RemoveChildrenAt(IndexesOf(run));
}

void TakeOut(const ItemList& list, const std::vector<PlacedItem>& items)
{
    std::unordered_set<const void*> taken;
    for (const auto& placed : items)
        taken.insert(KeyOf(placed.item));
    auto rest = ItemsOf(list);
    std::erase_if(rest, [&taken](const TreeItem& item) { return taken.contains(KeyOf(item)); });
    SetItems(list, rest);
}

void MergeIn(const ItemList& list, const std::vector<PlacedItem>& items)
{
    const auto before = ItemsOf(list);
    std::vector<TreeItem> merged;
    merged.reserve(before.size() + items.size());
    auto next = before.begin();
    for (const auto& [item, place] : items)
    {
        const auto missing = std::max<std::ptrdiff_t>(place.index - std::ssize(merged), 0);
        const auto last = next + std::min(missing, before.end() - next);
        merged.insert(merged.end(), next, last);
        next = last;
        merged.push_back(item);
        if (item.category)
            item.category->SetParent(list.category);
    }
    merged.insert(merged.end(), next, before.end());
    SetItems(list, merged);
}

ItemList ListOf(const PlacedItem& placed) { return {placed.place.parent, placed.item.IsPreset()}; }

std::vector<std::vector<PlacedItem>> ByList(const std::vector<PlacedItem>& items)
{
    std::vector<std::vector<PlacedItem>> lists;
    std::map<std::pair<std::shared_ptr<IVXFormatNode>, bool>, std::size_t> positions;
    for (const auto& placed : items)
    {
        const std::pair list(placed.place.parent, placed.item.IsPreset());
        const auto [found, isNew] = positions.try_emplace(list, lists.size());
        if (isNew)
            lists.emplace_back();
        lists[found->second].push_back(placed);
    }
    for (auto& list : lists)
        std::ranges::stable_sort(list, {}, [](const PlacedItem& placed) { return placed.place.index; });
    return lists;
}

std::vector<ItemRun> RunsOf(const std::vector<PlacedItem>& items)
{
    std::vector<ItemRun> runs;
    for (const auto& placed : items)
    {
        if (runs.empty() || runs.back().index + runs.back().Count() != placed.place.index)
            runs.push_back({ListOf(placed), placed.place.index});
        runs.back().items.push_back(placed.item);
    }
    return runs;
}

} // namespace Vexlor::Studio
