#include "TreePane.h"

#include "FormatFilterModel.h"
#include "FormatTreeModel.h"
#include "apps/studio/document/StudioDocument.h"

#include "IVXFormatNode.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

constexpr int kOpenUnderDrag = 600; // milliseconds that a category is held over before it opens

/// One range for rows that follow one another: each range costs something at every change of the tree.
void Append(const QModelIndex& index, QItemSelection& selection)
{
    const bool follows = !selection.isEmpty() && selection.last().parent() == index.parent() &&
                         selection.last().bottom() + 1 == index.row();
    if (follows)
        selection.last() = QItemSelectionRange(selection.last().topLeft(), index);
    else
        selection.append(QItemSelectionRange(index));
}

constexpr int kIndentation = 20;
constexpr int kLeastIndentation = 6;
constexpr int kNameRoom = 16; // characters of the deepest names are to be seen

constexpr int kMostExpanded = 2000; // presets that are found and shown with all that is above them

} // namespace

TreePane::TreePane(StudioDocument& document, const FaceIcons& icons, QWidget* parent)
    : QWidget(parent), m_document(document), m_model(new FormatTreeModel(document, icons, this)),
      m_filter(new FormatFilterModel(document, this)), m_search(new QLineEdit(this)),
      m_count(new QLabel(this)), m_view(new QTreeView(this))
{
    // Before the view hears of it.
    connect(m_model, &QAbstractItemModel::rowsAboutToBeRemoved, this, &TreePane::LeaveRows);
    m_filter->setSourceModel(m_model);
    MakeSearch();
    MakeView();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search);
    layout->addWidget(m_view);
    layout->addWidget(m_count);
    connect(m_model, &FormatTreeModel::Refused, this, &TreePane::Refused);
    connect(m_model, &FormatTreeModel::Dropped, this, &TreePane::Select, Qt::QueuedConnection);
    for (const auto change : {&PresetTree::Reset, &PresetTree::Inserted, &PresetTree::Removed})
        connect(&document.Tree(), change, this, &TreePane::ShowState);
    connect(&document, &StudioDocument::MadeOwn, this, &TreePane::TellOfOwn);
    connect(&document.Tree(), &PresetTree::Reset, this, &TreePane::KeepCurrent);
    connect(&document.Tree(), &PresetTree::Removed, this, &TreePane::KeepCurrent);
}

void TreePane::MakeSearch()
{
    m_search->setObjectName("search");
    m_search->setPlaceholderText(tr("Search presets"));
    m_search->setAccessibleName(tr("Search presets"));
    m_search->setToolTip(tr("Shows what has all of these words in its name, path or container"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    connect(m_search, &QLineEdit::textChanged, m_filter, &FormatFilterModel::SetText);
    connect(m_filter, &FormatFilterModel::Searching, this, &TreePane::HoldState);
    connect(m_filter, &FormatFilterModel::Found, this, &TreePane::ShowFound);
    m_count->setObjectName("searchCount");
    m_count->setAlignment(Qt::AlignCenter);
    m_count->setWordWrap(true);
    m_count->hide();
}

void TreePane::MakeView()
{
    m_view->setObjectName("tree");
    m_view->setAccessibleName(tr("Presets"));
    m_view->setModel(m_filter);
    m_view->setHeaderHidden(true);
    m_view->setUniformRowHeights(true); // or every row would be measured
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::SelectedClicked);
    m_view->setDragDropMode(QAbstractItemView::DragDrop);
    m_view->setDefaultDropAction(Qt::MoveAction);
    m_view->setAutoExpandDelay(kOpenUnderDrag);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->setIconSize({20, 20});
    m_view->viewport()->installEventFilter(this);
    m_fitting.setSingleShot(true);
    m_fitting.setInterval(0);
    connect(&m_fitting, &QTimer::timeout, this, &TreePane::FitIndentation);
    const auto fitSoon = qOverload<>(&QTimer::start);
    connect(m_view, &QTreeView::expanded, &m_fitting, fitSoon);
    connect(m_view, &QTreeView::collapsed, &m_fitting, fitSoon);
    for (const auto change :
         {&PresetTree::Reset, &PresetTree::Inserted, &PresetTree::Removed, &PresetTree::Rearranged})
        connect(&m_document.Tree(), change, &m_fitting, fitSoon);
    const auto* selection = m_view->selectionModel();
    connect(selection, &QItemSelectionModel::currentChanged, this, &TreePane::KeepCurrent);
    connect(selection, &QItemSelectionModel::selectionChanged, this, &TreePane::SelectionChanged);
}

std::vector<TreeItem> TreePane::Selected() const
{
    QModelIndexList indexes;
    for (const auto& index : m_view->selectionModel()->selectedIndexes())
        indexes.append(m_filter->mapToSource(index));
    std::vector<TreeItem> items;
    for (const auto& index : Outermost(indexes))
        items.push_back(m_model->ItemAt(index));
    return items;
}

TreeItem TreePane::Current() const { return m_current; }

std::shared_ptr<IVXFormatNode> TreePane::CurrentCategory() const
{
    const auto current = Current();
    if (!current)
        return m_document.Root();
    return current.IsPreset() ? m_document.Tree().ParentOf(current) : current.category;
}

void TreePane::Select(const std::vector<TreeItem>& items)
{
    if (items.empty() || !m_model->IndexOfItem(items.front()).isValid())
        return;
    if (!ShownIndexOf(items.front()).isValid())
        m_search->clear();
    QItemSelection selection;
    for (const auto& found : m_model->IndexesOf(items))
        if (const auto index = m_filter->mapFromSource(found); index.isValid())
            Append(index, selection);
    const auto first = ShownIndexOf(items.front());
    m_view->setCurrentIndex(first);
    m_view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_view->scrollTo(first);
}

bool TreePane::SelectByPath(const QString& path)
{
    std::vector<std::pair<std::shared_ptr<IVXFormatNode>, QString>> pending{{m_document.Root(), "/"}};
    while (!pending.empty())
    {
        const auto [node, above] = pending.back();
        pending.pop_back();
        for (int i = 0; i < node->FormatPresetCount(); ++i)
        {
            const TreeItem preset{{}, node->GetFormatPreset(i)};
            if (!(above + NameOf(preset)).endsWith('/' + path, Qt::CaseInsensitive))
                continue;
            Select({preset});
            return true;
        }
        for (int i = node->ChildCount() - 1; i >= 0; --i)
            pending.emplace_back(node->GetChild(i), above + NameOf({node->GetChild(i)}) + '/');
    }
    return false;
}

void TreePane::EditName()
{
    if (m_view->currentIndex().isValid())
        m_view->edit(m_view->currentIndex());
}

void TreePane::FocusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

// What the list itself does not say.
void TreePane::ShowState()
{
    const bool isEmpty = m_model->rowCount() == 0;
    m_count->setVisible(isEmpty || m_filter->IsNarrowed());
    const int count = m_filter->FoundCount();
    if (isEmpty)
        m_count->setText(tr("This document has no presets yet. Make one with Presets > New Preset, or bring "
                            "in those of another program with Presets > Import."));
    else if (count == 0)
        m_count->setText(tr("No preset has all of these words.\nPress Esc to see all presets."));
    else
        m_count->setText(tr("%n preset(s) found", nullptr, count));
}

// Who looks for something has not chosen anything yet: what is edited stays, and the tree comes back as it
// was.
void TreePane::HoldState()
{
    m_isSearching = true;
    m_expanded.Keep(*m_view);
}

void TreePane::ShowFound()
{
    ShowState();
    if (!m_filter->IsNarrowed())
        m_expanded.Restore(*m_view);
    else if (m_filter->FoundCount() <= kMostExpanded)
        m_view->expandAll();
    else
        m_view->expandToDepth(0);
    m_isSearching = false;
    ReturnToCurrent();
    m_fitting.start();
}

// Where it is hidden, none is current in the view, so that each row that is clicked is another one.
void TreePane::ReturnToCurrent()
{
    auto* selection = m_view->selectionModel();
    const auto shown = ShownIndexOf(m_current);
    const bool isSelected = !shown.isValid() || selection->hasSelection();
    selection->setCurrentIndex(shown, isSelected ? QItemSelectionModel::NoUpdate
                                                 : QItemSelectionModel::ClearAndSelect);
    if (shown.isValid() && !m_filter->IsNarrowed())
        m_view->scrollTo(shown, QAbstractItemView::PositionAtCenter);
    KeepCurrent();
}

// Names of deep categories are to be read, too, without scrolling aside.
void TreePane::FitIndentation()
{
    const int names = m_view->iconSize().width() + kNameRoom * m_view->fontMetrics().averageCharWidth();
    const int room = (m_view->viewport()->width() - names) / (DeepestShown({}) + 1);
    m_view->setIndentation(std::clamp(room, kLeastIndentation, kIndentation));
}

// As deep as the categories, which stand before the presets.
int TreePane::DeepestShown(const QModelIndex& parent) const
{
    int deepest = 0;
    for (int row = 0; row < m_filter->rowCount(parent); ++row)
    {
        const auto index = m_filter->index(row, 0, parent);
        if (index.flags().testFlag(Qt::ItemNeverHasChildren))
            break;
        if (m_view->isExpanded(index))
            deepest = std::max(deepest, 1 + DeepestShown(index));
    }
    return deepest;
}

// Where many rows go one by one, the next one is not worth being shown each time.
void TreePane::LeaveRows(const QModelIndex& parent, int first, int last)
{
    auto index = m_filter->mapToSource(m_view->currentIndex());
    while (index.isValid() && index.parent() != parent)
        index = index.parent();
    if (index.isValid() && index.row() >= first && index.row() <= last)
        m_view->selectionModel()->setCurrentIndex(m_filter->mapFromSource(parent),
                                                  QItemSelectionModel::NoUpdate);
}

void TreePane::KeepCurrent()
{
    const auto index = m_view->currentIndex();
    const auto item = index.isValid() ? m_model->ItemAt(m_filter->mapToSource(index)) : TreeItem();
    const bool isHeld = m_isSearching || (!item && IsHidden(m_current));
    if (isHeld || item == m_current)
        return;
    m_current = item;
    emit CurrentChanged(item);
}

void TreePane::TellOfOwn(const std::shared_ptr<IVXFormatPreset>& preset)
{
    const TreeItem item{{}, preset};
    if (m_current == item)
        m_view->scrollTo(m_view->currentIndex());
    emit Told(tr("Recently used presets come and go: \"%1\" stands in \"%2\" now.")
                  .arg(ShownNameOf(item), ShownNameOf({m_document.Tree().ParentOf(item)})));
}

QModelIndex TreePane::ShownIndexOf(const TreeItem& item) const
{
    return m_filter->mapFromSource(m_model->IndexOfItem(item));
}

bool TreePane::IsHidden(const TreeItem& item) const
{
    const auto index = m_model->IndexOfItem(item);
    return index.isValid() && !m_filter->mapFromSource(index).isValid();
}

TreeItem TreePane::FirstFoundPreset(const QModelIndex& parent) const
{
    for (int row = 0; row < m_filter->rowCount(parent); ++row)
    {
        const auto index = m_filter->index(row, 0, parent);
        const auto item = m_model->ItemAt(m_filter->mapToSource(index));
        auto found = item.IsPreset() ? item : FirstFoundPreset(index);
        if (found)
            return found;
    }
    return {};
}

// From the search field the keyboard goes on to what was found, and back to the whole tree.
bool TreePane::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view->viewport() && event->type() == QEvent::Resize)
        m_fitting.start();
    if (watched != m_search || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape && !m_search->text().isEmpty())
    {
        m_search->clear();
        return true;
    }
    if (key != Qt::Key_Down && key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    if (const auto found = FirstFoundPreset({}))
        Select({found});
    m_view->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace Vexlor::Studio
