#pragma once

#include "PresetTree.h"

#include <QUndoCommand>

namespace Vexlor::Studio
{

/// An item comes into the tree.
class InsertEdit final : public QUndoCommand
{
public:
    InsertEdit(PresetTree& tree, TreeItem item, TreePlace place);
    void undo() override;
    void redo() override;

private:
    PresetTree& m_tree;
    TreeItem m_item;
    TreePlace m_place;
};

/// An item leaves the tree.
class RemoveEdit final : public QUndoCommand
{
public:
    RemoveEdit(PresetTree& tree, TreeItem item, TreePlace place);
    void undo() override;
    void redo() override;

private:
    PresetTree& m_tree;
    TreeItem m_item;
    TreePlace m_place;
};

/// An item goes to another place; the index of that one counts without the item.
class MoveEdit final : public QUndoCommand
{
public:
    MoveEdit(PresetTree& tree, TreeItem item, TreePlace from, TreePlace to);
    void undo() override;
    void redo() override;

private:
    PresetTree& m_tree;
    TreeItem m_item;
    TreePlace m_from;
    TreePlace m_to;
};

/// An item gets another name.
class RenameEdit final : public QUndoCommand
{
public:
    RenameEdit(PresetTree& tree, TreeItem item, QString name);
    void undo() override;
    void redo() override;

private:
    PresetTree& m_tree;
    TreeItem m_item;
    QString m_before;
    QString m_after;
};

} // namespace Vexlor::Studio
