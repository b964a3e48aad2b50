#include "TreeEdits.h"

#include "OwnCategory.h"

#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kMergeableID = 2; // another than that of a preset's content

} // namespace

InsertEdit::InsertEdit(PresetTree& tree, std::vector<PlacedItem> items, QUndoCommand* whole)
    : QUndoCommand(whole), m_tree(tree), m_items(std::move(items))
{
}

void InsertEdit::undo() { m_tree.Remove(m_items); }

void InsertEdit::redo() { m_tree.Insert(m_items); }

RemoveEdit::RemoveEdit(PresetTree& tree, std::vector<PlacedItem> items)
    : m_tree(tree), m_items(std::move(items))
{
}

void RemoveEdit::undo() { m_tree.Insert(m_items); }

void RemoveEdit::redo() { m_tree.Remove(m_items); }

MoveEdit::MoveEdit(PresetTree& tree, std::vector<MovedItem> items, QUndoCommand* whole)
    : QUndoCommand(whole), m_tree(tree), m_items(std::move(items))
{
}

void MoveEdit::undo() { m_tree.Move(Reversed(m_items)); }

void MoveEdit::redo() { m_tree.Move(m_items); }

LookEdit::LookEdit(PresetTree& tree, TreeItem item, ItemLook look, int run)
    : m_tree(tree), m_item(std::move(item)), m_before(LookOf(m_item)), m_after(std::move(look)), m_run(run)
{
}

int LookEdit::id() const { return m_run == 0 ? -1 : kMergeableID; }

bool LookEdit::mergeWith(const QUndoCommand* other)
{
    const auto* next = dynamic_cast<const LookEdit*>(other);
    if (next == nullptr || !(next->m_item == m_item) || next->m_run != m_run)
        return false;
    m_after = next->m_after;
    setObsolete(m_after == m_before && childCount() == 0); // what it did besides is to be undone
    return true;
}

void LookEdit::undo()
{
    m_tree.SetLook(m_item, m_before);
    QUndoCommand::undo();
}

void LookEdit::redo()
{
    QUndoCommand::redo();
    m_tree.SetLook(m_item, m_after);
}

// The step deletes what belongs to it.
void AdoptAsOwn(PresetTree& tree, const PlacedItem& recent, QUndoCommand& step)
{
    std::vector<PlacedItem> added;
    const auto own = OwnCategory(tree.Root(), added);
    if (!added.empty())
        new InsertEdit(tree, std::move(added), &step);
    const TreePlace place{own, CountLike(*own, recent.item)};
    new MoveEdit(tree, {{recent.item, recent.place, place}}, &step);
}

} // namespace Vexlor::Studio
