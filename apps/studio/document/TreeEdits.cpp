#include "TreeEdits.h"

#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kMergeableID = 2; // another than that of a preset's content

} // namespace

InsertEdit::InsertEdit(PresetTree& tree, TreeItem item, TreePlace place)
    : m_tree(tree), m_item(std::move(item)), m_place(std::move(place))
{
}

void InsertEdit::undo() { m_tree.Remove(m_item, m_place.parent); }

void InsertEdit::redo() { m_tree.Insert(m_item, m_place); }

RemoveEdit::RemoveEdit(PresetTree& tree, TreeItem item, TreePlace place)
    : m_tree(tree), m_item(std::move(item)), m_place(std::move(place))
{
}

void RemoveEdit::undo() { m_tree.Insert(m_item, m_place); }

void RemoveEdit::redo() { m_tree.Remove(m_item, m_place.parent); }

MoveEdit::MoveEdit(PresetTree& tree, TreeItem item, TreePlace from, TreePlace to)
    : m_tree(tree), m_item(std::move(item)), m_from(std::move(from)), m_to(std::move(to))
{
}

void MoveEdit::undo() { m_tree.Move(m_item, m_to.parent, m_from); }

void MoveEdit::redo() { m_tree.Move(m_item, m_from.parent, m_to); }

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
    setObsolete(m_after == m_before);
    return true;
}

void LookEdit::undo() { m_tree.SetLook(m_item, m_before); }

void LookEdit::redo() { m_tree.SetLook(m_item, m_after); }

} // namespace Vexlor::Studio
