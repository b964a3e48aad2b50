#pragma once

#include "OutcomeRows.h"

#include <QAbstractTableModel>

#include <vector>

namespace Vexlor::Studio
{

/// A source and its output value by value, with the reasons.
class OutcomeModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// What stands side by side.
    enum Column : int
    {
        Name,
        Source,
        Output,
        Why,
        ColumnCount,
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// Shows those rows. Where they are the same values as before, views keep their place and selection.
    void SetRows(std::vector<OutcomeRow> rows);
    /// The row at that place, which must be one.
    const OutcomeRow& RowAt(int row) const { return m_rows[static_cast<std::size_t>(row)]; }

    /// Whether any value of an output is there.
    bool HasOutput() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<OutcomeRow> m_rows;
};

} // namespace Vexlor::Studio
