#include "TreeEditor.h"

#include "FreeNames.h"
#include "RecentPresets.h"
#include "StudioDocument.h"
#include "TreeEdits.h"
#include "UndoMacro.h"

#include "IVXArtworkImageMgr.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

using Items = TreeEditor::Items;
using Node = std::shared_ptr<IVXFormatNode>;

constexpr const char* kOwnCategory = "Customised";

/// The position for items of that kind, which is counted on as they arrive.
int& IndexFor(const TreeItem& item, DropPlace& place)
{
    return item.preset ? place.presetIndex : place.categoryIndex;
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
    const auto trimmed = name.trimmed();
    if (trimmed == NameOf(item))
        return {};
    if (trimmed.isEmpty())
        return tr("A name cannot be empty.");
    const auto parent = m_document.Tree().ParentOf(item);
    if (parent && IsNameTaken(*parent, item, trimmed))
        return tr("\"%1\" is there already.").arg(trimmed);
    const UndoMacro macro(m_document.Undo(), tr("Rename"));
    SetName(item, trimmed);
    return {};
}

void TreeEditor::SetName(const TreeItem& item, const QString& name)
{
    auto look = LookOf(item);
    if (look.name == name)
        return;
    look.name = name;
    m_document.Undo().push(new LookEdit(m_document.Tree(), item, std::move(look)));
}

void TreeEditor::Remove(const Items& items)
{
    if (items.empty())
        return;
    const UndoMacro macro(m_document.Undo(), items.size() == 1
                                                 ? tr("Delete \"%1\"").arg(NameOf(items.front()))
                                                 : tr("Delete Selection"));
    TreePlace place;
    // From the end, so that no list moves up each time.
    for (const auto& item : Items(items.rbegin(), items.rend()))
    {
        place = m_document.Tree().PlaceBeside(item, place);
        if (place.parent)
            m_document.Undo().push(new RemoveEdit(m_document.Tree(), item, place));
    }
}

bool TreeEditor::Move(const Items& items, DropPlace to)
{
    const auto isInside = [&to](const TreeItem& item) { return item.category && Holds(item, to.parent); };
    if (std::ranges::any_of(items, isInside))
        return false;
    if (items.empty() || (items.size() == 1 && IsThere(items.front(), to)))
        return true;
    const UndoMacro macro(m_document.Undo(), tr("Move"));
    FreeNames names(*to.parent);
    const bool keepsItself = to.parent == FindRecentCategory(*m_document.Root());
    TreePlace from;
    for (const auto& item : items)
    {
        from = m_document.Tree().PlaceBeside(item, from);
        if (!from.parent)
            continue;
        const bool comesIn = from.parent != to.parent;
        if (comesIn && keepsItself && item.IsPreset())
        {
            CopyOne(item, names, to);
            continue;
        }
        if (comesIn)
            SetName(item, names.Take(item, NameOf(item)));
        MoveOne(item, from, to);
    }
    return true;
}

bool TreeEditor::IsThere(const TreeItem& item, DropPlace place) const
{
    const auto from = m_document.Tree().PlaceOf(item);
    const int index = std::min(IndexFor(item, place), CountLike(*place.parent, item));
    return from.parent == place.parent && (index == from.index || index == from.index + 1);
}

void TreeEditor::MoveOne(const TreeItem& item, const TreePlace& from, DropPlace& to)
{
    auto& index = IndexFor(item, to);
    const bool isBehind = from.parent == to.parent && from.index < index;
    const int last = CountLike(*to.parent, item) - (from.parent == to.parent ? 1 : 0);
    const int target = std::clamp(index - (isBehind ? 1 : 0), 0, last);
    m_document.Undo().push(new MoveEdit(m_document.Tree(), item, from, {to.parent, target}));
    index = target + 1;
}

Items TreeEditor::Copy(const Items& items, DropPlace to)
{
    const UndoMacro macro(m_document.Undo(), tr("Copy"));
    FreeNames names(*to.parent);
    Items copies;
    for (const auto& item : items)
        copies.push_back(CopyOne(item, names, to));
    return copies;
}

TreeItem TreeEditor::CopyOne(const TreeItem& item, FreeNames& names, DropPlace& to)
{
    auto copy = CopyOf(item);
    Studio::SetName(copy, names.Take(copy, NameOf(copy)));
    auto& index = IndexFor(copy, to);
    index = std::clamp(index, 0, CountLike(*to.parent, copy));
    Insert(copy, {to.parent, index++});
    return copy;
}

void TreeEditor::Shift(const TreeItem& item, int by)
{
    const auto from = m_document.Tree().PlaceOf(item);
    if (!from.parent)
        return;
    const int target = std::clamp(from.index + by, 0, CountLike(*from.parent, item) - 1);
    if (target == from.index)
        return;
    const UndoMacro macro(m_document.Undo(), tr("Move"));
    m_document.Undo().push(new MoveEdit(m_document.Tree(), item, from, {from.parent, target}));
}

Items TreeEditor::CloneIntoOwn(const Items& items)
{
    const UndoMacro macro(m_document.Undo(), tr("Clone"));
    return Copy(items, {OwnCategory().category});
}

// By its icon or its name.
TreeItem TreeEditor::OwnCategory()
{
    const auto& root = m_document.Root();
    TreeItem found{root->FindChild(kOwnCategory)};
    for (const auto& child : root->GetChildList())
        if (child->FaceID() == IVXArtworkImageMgr::CategoryFaceIDCustomize)
            found.category = child;
    if (!found)
    {
        found = AddCategory(root, kOwnCategory);
        found.category->SetFaceID(IVXArtworkImageMgr::CategoryFaceIDCustomize);
    }
    return found;
}

TreeItem TreeEditor::AddCategory(const Node& parent, const QString& name)
{
    TreeItem item{IVXFormatNode::MallocFormatNode(Node())};
    Studio::SetName(item, FreeNames(*parent).Take(item, name));
    const UndoMacro macro(m_document.Undo(), tr("New Category"));
    Insert(item, {parent, parent->ChildCount()});
    return item;
}

TreeItem TreeEditor::AddPreset(const Node& parent, const QString& container)
{
    TreeItem item{{}, IVXFormatPreset::MallocFormatPreset(container.toStdString(), {})};
    if (!item)
        return {};
    Studio::SetName(item, FreeNames(*parent).Take(item, container));
    const UndoMacro macro(m_document.Undo(), tr("New Preset"));
    Insert(item, {parent, parent->FormatPresetCount()});
    return item;
}

Items TreeEditor::AddAll(IVXFormatNode& root, const QString& what)
{
    const UndoMacro macro(m_document.Undo(), what);
    Items presets;
    Absorb(m_document.Root(), root, presets);
    return presets;
}

void TreeEditor::Insert(const TreeItem& item, const TreePlace& place)
{
    m_document.Undo().push(new InsertEdit(m_document.Tree(), item, place));
}

// As deep as the categories that are there already.
void TreeEditor::Absorb(const Node& into, IVXFormatNode& node, Items& presets)
{
    FreeNames names(*into);
    for (int i = 0; i < node.FormatPresetCount(); ++i)
    {
        const TreeItem preset{{}, node.GetFormatPreset(i)};
        Studio::SetName(preset, names.Take(preset, NameOf(preset)));
        Insert(preset, {into, into->FormatPresetCount()});
        presets.push_back(preset);
    }
    for (const auto& child : node.GetChildList())
        if (const auto same = into->FindChild(child->Name()))
            Absorb(same, *child, presets);
        else
        {
            Insert({child}, {into, into->ChildCount()});
            CollectPresets(*child, presets);
        }
}

} // namespace Vexlor::Studio
