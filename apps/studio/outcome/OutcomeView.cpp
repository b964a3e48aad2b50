#include "OutcomeView.h"

#include "OutcomeModel.h"
#include "ReasonDelegate.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequence>
#include <QStringList>

#include <algorithm>
#include <array>
#include <numeric>

namespace Vexlor::Studio
{

namespace
{

constexpr int kNarrowReasons = 26; // letters, below which a column of reasons is hard to read

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
    connect(copy, &QAction::triggered, this, &OutcomeView::Copy);
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

void OutcomeView::Copy() const { QApplication::clipboard()->setText(Text()); }

// The window's own shortcuts leave these keys to the table that has the focus.
bool OutcomeView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
    {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void OutcomeView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        return Copy(); // the table itself would copy a single cell
    QTableView::keyPressEvent(event);
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

/// What a column asks for, its title included.
int OutcomeView::WantedWidth(int column) const
{
    return std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
}

/// Values have the room that they need, or a third each where they need more than there is, and reasons the
/// rest.
void OutcomeView::Arrange()
{
    constexpr std::array kValues{OutcomeModel::Name, OutcomeModel::Source, OutcomeModel::Output};
    clearSpans(); // a heading needs no room of its own
    setItemDelegateForColumn(OutcomeModel::Output, nullptr);
    for (int column = 0; column < OutcomeModel::ColumnCount; ++column)
        setColumnHidden(column, column > OutcomeModel::Source && !m_model.HasOutput());
    const int width = viewport()->width();
    if (!m_model.HasOutput())
        return ShowSourceAlone(width);
    std::array<int, kValues.size()> widths{};
    std::ranges::transform(kValues, widths.begin(), [this](int column) { return WantedWidth(column); });
    const int reasons = width - std::accumulate(widths.begin(), widths.end(), 0);
    const bool isNarrow = reasons < kNarrowReasons * fontMetrics().averageCharWidth();
    for (std::size_t i = 0; i < kValues.size(); ++i)
        setColumnWidth(kValues[i], isNarrow ? std::min(widths[i], width / 3) : widths[i]);
    if (isNarrow)
        PutReasonsBelow(width);
    else
        setColumnWidth(OutcomeModel::Why, reasons);
    FitRows();
}

void OutcomeView::ShowSourceAlone(int width)
{
    const int names = std::min(WantedWidth(OutcomeModel::Name), width / 2);
    setColumnWidth(OutcomeModel::Name, names);
    setColumnWidth(OutcomeModel::Source, width - names);
    FitRows();
}

void OutcomeView::PutReasonsBelow(int width)
{
    setColumnHidden(OutcomeModel::Why, true);
    setItemDelegateForColumn(OutcomeModel::Output, m_reasons);
    setColumnWidth(OutcomeModel::Output,
                   width - columnWidth(OutcomeModel::Name) - columnWidth(OutcomeModel::Source));
}

void OutcomeView::FitRows()
{
    constexpr int kBetween = 3; // so that lines of one row are nearer than rows
    constexpr int kAboveHeading = 5;
    SpanHeadings();
    resizeRowsToContents();
    for (int row = 0; row < m_model.rowCount(); ++row)
        setRowHeight(row, rowHeight(row) + (m_model.RowAt(row).isHeading ? kAboveHeading : kBetween));
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
