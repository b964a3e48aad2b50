#pragma once

#include "TreeItem.h"

#include <vector>

namespace Vexlor::Studio
{

/// One list of a category: its categories, or its presets.
struct ItemList
{
    std::shared_ptr<IVXFormatNode> category = {};
    bool isOfPresets = false;

    friend bool operator==(const ItemList&, const ItemList&) = default;
};

/// Items that follow one another in a list.
struct ItemRun
{
    ItemList list = {};
    int index = 0; ///< of the first
    std::vector<TreeItem> items = {};

    int Count() const { return static_cast<int>(items.size()); }
};

int CountOf(const ItemList& list);
/// Puts the items of the run into its list, at its end where that is shorter; categories get their parent.
void Insert(const ItemRun& run);
/// Takes them out of it.
void Remove(const ItemRun& run);
/// Takes those items out of the list.
void TakeOut(const ItemList& list, const std::vector<PlacedItem>& items);
/// Puts the items into the list, so that each has its index then; those of the list stay in their order.
void MergeIn(const ItemList& list, const std::vector<PlacedItem>& items);

/// The items by their lists, which are in the order in which they come first; those of a list in the order of
/// their indexes.
std::vector<std::vector<PlacedItem>> ByList(const std::vector<PlacedItem>& items);
/// The list of what is placed there.
ItemList ListOf(const PlacedItem& placed);
/// The same in as few runs as can be; the items are of one list, in the order of their indexes.
std::vector<ItemRun> RunsOf(const std::vector<PlacedItem>& items);

} // namespace Vexlor::Studio
