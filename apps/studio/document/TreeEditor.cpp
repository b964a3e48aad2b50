#include "TreeEditor.h"

#include "FreeNames.h"
#include "OwnCategory.h"
#include "PlaceFinder.h"
#include "RecentPresets.h"
#include "StudioDocument.h"
#include "TreeEdits.h"
#include "apps/studio/ShownText.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

using Items = TreeEditor::Items;
using Node = std::shared_ptr<IVXFormatNode>;

/// The position for items of that kind, which is counted on as they arrive.
int& IndexFor(const TreeItem& item, DropPlace& place)
{
    return item.preset ? place.presetIndex : place.categoryIndex;
}

/// Has the positions point into the lists, or at their ends.
void Clamp(DropPlace& place)
{
    place.categoryIndex = std::clamp(place.categoryIndex, 0, place.parent->ChildCount());
    place.presetIndex = std::clamp(place.presetIndex, 0, place.parent->FormatPresetCount());
}

/// True where the item goes with one of those categories.
bool IsInside(const TreePlace& place, const std::unordered_set<const IVXFormatNode*>& categories)
{
    for (auto above = place.parent; above; above = above->Parent())
        if (categories.contains(above.get()))
            return true;
    return false;
}

std::unordered_set<const IVXFormatNode*> CategoriesIn(const Items& items)
{
    std::unordered_set<const IVXFormatNode*> categories;
    for (const auto& item : items)
        if (item.category)
            categories.insert(item.category.get());
    return categories;
}

/// Has the items follow one another at that place of the lists as they are.
void NumberPlaces(std::vector<MovedItem>& moves, DropPlace to)
{
    auto next = to;
    for (const auto& moved : moves)
        if (moved.from.parent == to.parent && moved.from.index < IndexFor(moved.item, to))
            --IndexFor(moved.item, next);
    for (auto& moved : moves)
        moved.to.index = IndexFor(moved.item, next)++;
}

bool StaysWhereItIs(const MovedItem& moved)
{
    return moved.from.parent == moved.to.parent && moved.from.index == moved.to.index;
}

// As deep as what is added is nested, which its reader bounds.
void CollectPresets(IVXFormatNode& node, Items& presets)
{
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        presets.push_back({{}, node.GetFormatPreset(i)});
    for (const auto& child : node.GetChildList())
        CollectPresets(*child, presets);
}

} // namespace

QString TreeEditor::Rename(const TreeItem& item, const QString& name)
{
    if (name == NameOf(item)) // with its blanks, too
        return {};
    const auto trimmed = name.trimmed();
    if (trimmed.isEmpty())
        return tr("A name cannot be empty.");
    const auto parent = m_document.Tree().ParentOf(item);
    if (parent && IsNameTaken(*parent, item, trimmed))
        return tr("\"%1\" is there already.").arg(trimmed);
    m_document.EditLook(item, tr("Rename"), [&trimmed](ItemLook& look) { look.name = trimmed; });
    return {};
}

void TreeEditor::Remove(const Items& items)
{
    const PlaceFinder places(m_document.Root());
    const auto categories = CategoriesIn(items);
    std::vector<PlacedItem> gone;
    for (const auto& item : items)
        if (const auto place = places.Find(item); place.parent && !IsInside(place, categories))
            gone.push_back({item, place});
    if (gone.empty())
        return;
    const auto what =
        gone.size() == 1 ? tr("Delete \"%1\"").arg(NameOf(gone.front().item)) : tr("Delete Selection");
    auto edit = std::make_unique<RemoveEdit>(m_document.Tree(), std::move(gone));
    edit->setText(MenuText(what));
    m_document.Undo().push(edit.release());
}

QString TreeEditor::Move(const Items& items, DropPlace to)
{
    const auto holdsIt = [&to](const TreeItem& item) { return item.category && Holds(item, to.parent); };
    if (std::ranges::any_of(items, holdsIt))
        return tr("A category cannot be moved into itself.");
    Clamp(to);
    auto moves = Moves(items, to);
    const auto comesIn = [](const MovedItem& moved) { return moved.from.parent != moved.to.parent; };
    if (KeepsItself(to.parent) && std::ranges::any_of(moves, comesIn))
        return tr("Recently used presets come and go: move yours elsewhere.");
    if (std::ranges::all_of(moves, &StaysWhereItIs))
        return {};
    Push(std::make_unique<MoveEdit>(m_document.Tree(), std::move(moves)), tr("Move"));
    return {};
}

std::vector<MovedItem> TreeEditor::Moves(const Items& items, const DropPlace& to) const
{
    const PlaceFinder places(m_document.Root());
    FreeNames names(*to.parent);
    std::vector<MovedItem> moves;
    for (const auto& item : items)
    {
        const auto from = places.Find(item);
        if (!from.parent)
            continue;
        const auto name = NameOf(item);
        const bool comesIn = from.parent != to.parent;
        const auto nameTo = comesIn ? names.Take(item, name) : name;
        moves.push_back({item, from, {to.parent, 0}, name, nameTo});
    }
    NumberPlaces(moves, to);
    return moves;
}

Items TreeEditor::Copy(const Items& items, DropPlace to)
{
    Added added;
    if (const auto taker = Taker(to.parent, added); taker != to.parent)
        to = {taker};
    return Copy(items, to, std::move(added), tr("Copy"));
}

Items TreeEditor::CloneIntoOwn(const Items& items)
{
    Added added;
    const DropPlace to{OwnCategory(m_document.Root(), added)};
    return Copy(items, to, std::move(added), tr("Clone"));
}

Items TreeEditor::Copy(const Items& items, DropPlace to, Added added, const QString& what)
{
    Clamp(to);
    FreeNames names(*to.parent);
    Items copies;
    copies.reserve(items.size());
    for (const auto& item : items)
    {
        copies.push_back(CopyOf(item));
        SetName(copies.back(), names.Take(item, NameOf(item)));
        added.push_back({copies.back(), {to.parent, IndexFor(item, to)++}});
    }
    Insert(std::move(added), what);
    return copies;
}

void TreeEditor::Shift(const Items& items, int by)
{
    const PlaceFinder places(m_document.Root());
    const auto list = items.empty() ? TreePlace{} : places.Find(items.front());
    if (!list.parent)
        return;
    int first = list.index;
    int last = list.index;
    Items shifted;
    for (const auto& item : items)
        if (const auto place = places.Find(item);
            place.parent == list.parent && item.IsPreset() == items.front().IsPreset())
        {
            shifted.push_back(item);
            first = std::min(first, place.index);
            last = std::max(last, place.index);
        }
    DropPlace to{list.parent};
    IndexFor(shifted.front(), to) = std::max(by < 0 ? first + by : last + 1 + by, 0);
    Move(shifted, to);
}

Node TreeEditor::Taker(const Node& wanted, Added& added) const
{
    return KeepsItself(wanted) ? OwnCategory(m_document.Root(), added) : wanted;
}

bool TreeEditor::KeepsItself(const Node& category) const
{
    return category == FindRecentCategory(*m_document.Root());
}

TreeItem TreeEditor::AddCategory(const Node& parent, const QString& name)
{
    const TreeItem item{IVXFormatNode::MallocFormatNode(Node())};
    SetName(item, FreeNames(*parent).Take(item, name));
    Insert({{item, {parent, parent->ChildCount()}}}, tr("New Category"));
    return item;
}

TreeItem TreeEditor::AddPreset(const Node& parent, const QString& container)
{
    const TreeItem item{{}, IVXFormatPreset::MallocFormatPreset(container.toStdString(), {})};
    if (!item)
        return {};
    Added added;
    const auto taker = Taker(parent, added);
    SetName(item, FreeNames(*taker).Take(item, container));
    added.push_back({item, {taker, taker->FormatPresetCount()}});
    Insert(std::move(added), tr("New Preset"));
    return item;
}

Items TreeEditor::AddAll(IVXFormatNode& root, const QString& what)
{
    Added added;
    Items presets;
    Absorb(m_document.Root(), root, added, presets);
    Insert(std::move(added), what);
    return presets;
}

void TreeEditor::Insert(Added items, const QString& what)
{
    if (!items.empty())
        Push(std::make_unique<InsertEdit>(m_document.Tree(), std::move(items)), what);
}

void TreeEditor::Push(std::unique_ptr<QUndoCommand> edit, const QString& what)
{
    edit->setText(MenuText(what));
    m_document.Undo().push(edit.release());
}

// As deep as the categories that are there already.
void TreeEditor::Absorb(const Node& into, IVXFormatNode& node, Added& added, Items& presets) const
{
    const auto taker = Taker(into, added);
    FreeNames names(*taker);
    int presetIndex = taker->FormatPresetCount();
    for (int i = 0; i < node.FormatPresetCount(); ++i)
    {
        const TreeItem preset{{}, node.GetFormatPreset(i)};
        SetName(preset, names.Take(preset, NameOf(preset)));
        added.push_back({preset, {taker, presetIndex++}});
        presets.push_back(preset);
    }
    for (const auto& child : node.GetChildList())
        if (const auto same = into->FindChild(child->Name()))
            Absorb(same, *child, added, presets);
        else
        {
            added.push_back({{child}, {into, NextCategory(into, added)}});
            CollectPresets(*child, presets);
        }
}

} // namespace Vexlor::Studio
