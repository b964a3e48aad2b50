#pragma once

#include "PresetTree.h"

#include <QUndoCommand>

#include <vector>

namespace Vexlor::Studio
{

/// Items come into the tree; the indexes are those that they have then.
class InsertEdit final : public QUndoCommand
{
public:
    InsertEdit(PresetTree& tree, std::vector<PlacedItem> items, QUndoCommand* whole = nullptr);
    void undo() override;
    void redo() override;

private:
    PresetTree& m_tree;
    std::vector<PlacedItem> m_items;
};

/// Items leave the tree.
class RemoveEdit final : public QUndoCommand
{
public:
    RemoveEdit(PresetTree& tree, std::vector<PlacedItem> items);
    void undo() override;
    void redo() override;

private:
    PresetTree& m_tree;
    std::vector<PlacedItem> m_items;
};

/// Items go to other places; the indexes are those that they have before and after all of them have gone.
class MoveEdit final : public QUndoCommand
{
public:
    MoveEdit(PresetTree& tree, std::vector<MovedItem> items, QUndoCommand* whole = nullptr);
    void undo() override;
    void redo() override;

private:
    PresetTree& m_tree;
    std::vector<MovedItem> m_items;
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

/// Has the step take the item, which is recently used and might go, into the category of the user's own.
void AdoptAsOwn(PresetTree& tree, const PlacedItem& recent, QUndoCommand& step);

} // namespace Vexlor::Studio
