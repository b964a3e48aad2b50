#pragma once

#include "apps/studio/document/TreeEditor.h"

#include <QObject>

class QAction;
class QMenu;

namespace Vexlor::Studio
{

class StudioDocument;
class TreePane;

/// What can be done with the items that are selected in the tree: in a menu, in the tree's own menu, and by
/// shortcuts while the keyboard is in the tree.
class TreeActions : public QObject
{
    Q_OBJECT

public:
    TreeActions(StudioDocument& document, TreePane& pane, QObject* parent = nullptr);

    /// Adds what changes the shape of the tree to the Edit menu.
    void AddTo(QMenu& edit) const;
    /// Adds what makes new things, and what is done with presets, to the menu of presets.
    void AddPresetActionsTo(QMenu& presets) const;

private:
    using Deed = void (TreeActions::*)();

    QAction* Add(const QString& text, const QKeySequence& shortcut, Deed deed);
    void MakeNewMenu();
    void ShowPossible();
    void Cut();
    void Copy();
    void ShowNew(const std::vector<TreeItem>& items, const std::shared_ptr<IVXFormatNode>& wanted);
    void Paste();
    void Delete();
    void Rename();
    void Clone();
    void MoveUp();
    void MoveDown();
    void Shift(int by);
    void NewCategory();

    StudioDocument& m_document;
    TreePane& m_pane;
    TreeEditor m_editor;
    QMenu* m_newPreset;
    QList<QAction*> m_needSelection;
    QAction* m_cut;
    QAction* m_copy;
    QAction* m_paste;
    QAction* m_delete;
    QAction* m_rename;
    QAction* m_clone;
    QAction* m_up;
    QAction* m_down;
    QAction* m_newCategory;
};

} // namespace Vexlor::Studio
