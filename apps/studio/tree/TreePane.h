#pragma once

#include "ExpandedRows.h"
#include "apps/studio/document/TreeItem.h"

#include <QModelIndexList>
#include <QTimer>
#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;
class QTreeView;

namespace Vexlor::Studio
{

class FaceIcons;
class FormatFilterModel;
class FormatTreeModel;
class StudioDocument;

/// The left pane: a search field and the tree that it narrows.
class TreePane : public QWidget
{
    Q_OBJECT

public:
    TreePane(StudioDocument& document, const FaceIcons& icons, QWidget* parent = nullptr);

    /// The items that are selected, in their order, without those inside of selected categories.
    std::vector<TreeItem> Selected() const;
    /// The item that the keyboard is at; none where the tree is empty. A search that hides it leaves it,
    /// until another one is chosen.
    TreeItem Current() const;
    /// The category that something new goes to: the current one, or that of the current preset.
    std::shared_ptr<IVXFormatNode> CurrentCategory() const;
    /// Selects those items, and shows the first. The search is ended where it hides that one.
    void Select(const std::vector<TreeItem>& items);
    /// Selects the preset whose path of names ends so; answers false where there is none.
    bool SelectByPath(const QString& path);
    /// Begins to edit the name of the current item.
    void EditName();
    /// Puts the keyboard into the search field.
    void FocusSearch();
    QTreeView& View() { return *m_view; }

signals:
    /// After another item became current; none where it was removed.
    void CurrentChanged(const Vexlor::Studio::TreeItem& item);
    void SelectionChanged();
    /// Why something was not done, in words.
    void Refused(const QString& reason);
    /// What was done otherwise than one may have thought, in words.
    void Told(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeSearch();
    void MakeView();
    void ShowState();
    void HoldState();
    void ShowFound();
    void ReturnToCurrent();
    void LeaveRows(const QModelIndex& parent, int first, int last);
    void KeepCurrent();
    void TellOfOwn(const std::shared_ptr<IVXFormatPreset>& preset);
    void FitIndentation();
    int DeepestShown(const QModelIndex& parent) const;
    QModelIndex ShownIndexOf(const TreeItem& item) const;
    bool IsHidden(const TreeItem& item) const;
    TreeItem FirstFoundPreset(const QModelIndex& parent) const;

    StudioDocument& m_document;
    FormatTreeModel* m_model;
    FormatFilterModel* m_filter;
    QLineEdit* m_search;
    QLabel* m_count;
    QTreeView* m_view;
    TreeItem m_current;
    bool m_isSearching = false;
    ExpandedRows m_expanded; // before the search began
    QTimer m_fitting;
};

} // namespace Vexlor::Studio
