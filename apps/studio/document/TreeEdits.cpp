#include "TreeEdits.h"

#include <utility>

namespace Vexlor::Studio
{

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

RenameEdit::RenameEdit(PresetTree& tree, TreeItem item, QString name)
    : m_tree(tree), m_item(std::move(item)), m_before(NameOf(m_item)), m_after(std::move(name))
{
}

void RenameEdit::undo() { m_tree.Rename(m_item, m_before); }

void RenameEdit::redo() { m_tree.Rename(m_item, m_after); }

} // namespace Vexlor::Studio
