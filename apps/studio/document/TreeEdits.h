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

/// An item is called or shown in another way.
class LookEdit final : public QUndoCommand
{
public:
    /// Steps of one nonzero run become one.
    LookEdit(PresetTree& tree, TreeItem item, ItemLook look, int run = 0);
    int id() const override;
    bool mergeWith(const QUndoCommand* other) override;
    void undo() override;
    void redo() override;

private:
    PresetTree& m_tree;
    TreeItem m_item;
    ItemLook m_before;
    ItemLook m_after;
    int m_run;
};

} // namespace Vexlor::Studio
