#include "OutcomeView.h"

#include "OutcomeModel.h"
#include "ReasonDelegate.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeySequence>
#include <QStringList>

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

constexpr int kNarrowReasons = 16; // letters, below which a column of reasons is hard to read

QString LineOf(const OutcomeRow& row)
{
    if (row.isHeading)
        return row.name;
    return QStringList{row.name, row.source, row.output, row.why}.join(QLatin1Char('\t'));
}

} // namespace

OutcomeView::OutcomeView(OutcomeModel& model, QWidget* parent)
    : QTableView(parent), m_model(model), m_reasons(new ReasonDelegate(this))
{
    setObjectName(QStringLiteral("outcomeTable"));
    setAccessibleName(tr("Source and output"));
    setModel(&model);
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setTabKeyNavigation(false);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    AddActions();
    connect(&model, &QAbstractItemModel::modelReset, this, &OutcomeView::Arrange);
    connect(&model, &QAbstractItemModel::dataChanged, this, &OutcomeView::Arrange);
    Arrange();
}

void OutcomeView::AddActions()
{
    auto* copy = new QAction(tr("Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    connect(copy, &QAction::triggered, this, [this] { QApplication::clipboard()->setText(Text()); });
    auto* all = new QAction(tr("Select All"), this);
    all->setShortcut(QKeySequence::SelectAll);
    connect(all, &QAction::triggered, this, &OutcomeView::selectAll);
    for (auto* action : {copy, all})
    {
        action->setShortcutContext(Qt::WidgetShortcut);
        addAction(action);
    }
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

QString OutcomeView::Text() const
{
    QStringList lines;
    const bool isAll = !selectionModel()->hasSelection();
    for (int row = 0; row < m_model.rowCount(); ++row)
        if (isAll || selectionModel()->isRowSelected(row, {}))
            lines << LineOf(m_model.RowAt(row));
    return lines.join(QLatin1Char('\n'));
}

void OutcomeView::SpanHeadings()
{
    clearSpans();
    for (int row = 0; row < m_model.rowCount(); ++row)
        if (m_model.RowAt(row).isHeading)
            setSpan(row, 0, 1, OutcomeModel::ColumnCount);
}

/// Values have the room that they need, up to a third each, and reasons the rest.
void OutcomeView::Arrange()
{
    setItemDelegateForColumn(OutcomeModel::Output, nullptr);
    setColumnHidden(OutcomeModel::Why, false);
    clearSpans(); // a heading needs no room of its own
    const int width = viewport()->width();
    int rest = width;
    for (const int column : {OutcomeModel::Name, OutcomeModel::Source, OutcomeModel::Output})
    {
        const int wanted = std::min(
            std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column)), width / 3);
        setColumnWidth(column, wanted);
        rest -= wanted;
    }
    const bool isNarrow = rest < kNarrowReasons * fontMetrics().averageCharWidth();
    setColumnHidden(OutcomeModel::Why, isNarrow);
    setItemDelegateForColumn(OutcomeModel::Output, isNarrow ? m_reasons : nullptr);
    const int last = isNarrow ? OutcomeModel::Output : OutcomeModel::Why;
    setColumnWidth(last, (isNarrow ? columnWidth(last) : 0) + rest);
    SpanHeadings();
    resizeRowsToContents();
    updateGeometry();
}

int OutcomeView::HeightOfRows() const { return horizontalHeader()->height() + verticalHeader()->length(); }

QSize OutcomeView::sizeHint() const { return {fontMetrics().averageCharWidth() * 60, HeightOfRows()}; }

QSize OutcomeView::minimumSizeHint() const { return {fontMetrics().averageCharWidth() * 30, HeightOfRows()}; }

void OutcomeView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    Arrange();
}

void OutcomeView::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        Arrange();
}

void OutcomeView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    auto row = visualRect(current);
    row.translate(viewport()->pos());
    emit CurrentMoved(row);
}

} // namespace Vexlor::Studio
