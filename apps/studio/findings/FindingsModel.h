#pragma once

#include "Finding.h"

#include <QAbstractTableModel>

namespace Vexlor::Studio
{

/// Findings as a table: what kind, where, what.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        KindColumn,
        WhereColumn,
        WhatColumn,
        ColumnCount,
    };

    using QAbstractTableModel::QAbstractTableModel;

    void SetFindings(Findings findings);
    const Finding& At(int row) const { return m_findings[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    static QString KindText(Finding::Kind kind);

    Findings m_findings;
};

} // namespace Vexlor::Studio
