#include "ExpandedRows.h"

#include <QAbstractProxyModel>
#include <QTreeView>

#include <utility>

namespace Vexlor::Studio
{

namespace
{

const QAbstractProxyModel& ModelOf(const QTreeView& view)
{
    return *qobject_cast<const QAbstractProxyModel*>(view.model());
}

// As deep as the categories, which stand before the presets.
void Collect(const QTreeView& view, const QModelIndex& parent, QList<QPersistentModelIndex>& rows)
{
    const auto& model = ModelOf(view);
    for (int row = 0; row < model.rowCount(parent); ++row)
    {
        const auto index = model.index(row, 0, parent);
        if (index.flags().testFlag(Qt::ItemNeverHasChildren))
            return;
        if (view.isExpanded(index))
            rows.append(model.mapToSource(index));
        Collect(view, index, rows);
    }
}

} // namespace

void ExpandedRows::Keep(const QTreeView& view)
{
    if (m_rows)
        return;
    m_rows.emplace();
    Collect(view, {}, *m_rows);
}

void ExpandedRows::Restore(QTreeView& view)
{
    const auto rows = std::exchange(m_rows, std::nullopt);
    view.collapseAll();
    for (const auto& row : rows.value_or(QList<QPersistentModelIndex>()))
        view.expand(ModelOf(view).mapFromSource(row));
}

} // namespace Vexlor::Studio
