#include "FindingsPane.h"

#include "FindingsModel.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kRowMargin = 8;
constexpr int kMostCharacters = 60; // of a path, beside which there has to be room for what is wrong

} // namespace

FindingsPane::FindingsPane(QWidget* parent)
    : QWidget(parent), m_model(new FindingsModel(this)), m_summary(new QLabel(this)),
      m_view(new QTableView(this))
{
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setObjectName("findingsSummary");
    m_summary->setWordWrap(true);
    m_view->setObjectName("findings");
    m_view->setAccessibleName(tr("Findings"));
    m_view->setModel(m_model);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setShowGrid(false);
    m_view->setTabKeyNavigation(false);
    m_view->setWordWrap(false);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowMargin);
    m_view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->horizontalHeader()->setHighlightSections(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 0, 6, 6);
    layout->addWidget(m_summary);
    layout->addWidget(m_view);
    connect(m_view, &QTableView::clicked, this, &FindingsPane::Choose);
    connect(m_view, &QTableView::activated, this, &FindingsPane::Choose);
    Clear();
}

void FindingsPane::Show(const QString& summary, Findings findings)
{
    m_summary->setText(summary);
    m_view->setVisible(!findings.empty());
    m_model->SetFindings(std::move(findings));
    m_view->resizeColumnToContents(FindingsModel::KindColumn);
    m_view->resizeColumnToContents(FindingsModel::WhereColumn);
    const int most = fontMetrics().averageCharWidth() * kMostCharacters;
    m_view->setColumnWidth(FindingsModel::WhereColumn,
                           std::min(m_view->columnWidth(FindingsModel::WhereColumn), most));
}

void FindingsPane::Clear()
{
    Show(tr("Nothing was looked for yet: Presets > Check looks at the document."), {});
}

void FindingsPane::Choose(const QModelIndex& index)
{
    if (const auto& item = m_model->At(index.row()).item)
        emit Chosen(item);
}

} // namespace Vexlor::Studio
