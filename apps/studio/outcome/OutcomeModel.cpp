#include "OutcomeModel.h"

#include "apps/studio/ShownText.h"

#include <QFont>

#include <algorithm>
#include <array>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

const QString& TextOf(const OutcomeRow& row, int column)
{
    switch (column)
    {
    case OutcomeModel::Name:
        return row.name;
    case OutcomeModel::Source:
        return row.source;
    case OutcomeModel::Output:
        return row.output;
    default:
        return row.why;
    }
}

bool HaveSameNames(const std::vector<OutcomeRow>& one, const std::vector<OutcomeRow>& other)
{
    return std::ranges::equal(one, other, {}, &OutcomeRow::name, &OutcomeRow::name);
}

} // namespace

void OutcomeModel::SetRows(std::vector<OutcomeRow> rows)
{
    if (!HaveSameNames(m_rows, rows))
    {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
        return;
    }
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        if (rows[i] == m_rows[i])
            continue;
        m_rows[i] = std::move(rows[i]);
        const int row = static_cast<int>(i);
        emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
    }
}

bool OutcomeModel::HasOutput() const
{
    return std::ranges::any_of(m_rows, [](const OutcomeRow& row) { return !row.output.isEmpty(); });
}

int OutcomeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int OutcomeModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant OutcomeModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto& row = RowAt(index.row());
    if (role == Qt::DisplayRole)
        return TextOf(row, index.column());
    if (role == Qt::ToolTipRole && !row.why.isEmpty())
        return AsPlainText(row.why);
    if (role == Qt::TextAlignmentRole)
        // Reasons may take some lines; a heading stands near what is below it.
        return (Qt::AlignLeft | (row.isHeading ? Qt::AlignBottom : Qt::AlignTop)).toInt();
    const bool isStrong = row.isHeading || (index.column() == Output && row.IsChanged());
    if (role == Qt::FontRole && isStrong)
    {
        QFont font;
        font.setBold(true);
        return font;
    }
    return {};
}

QVariant OutcomeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return (Qt::AlignLeft | Qt::AlignVCenter).toInt();
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return {};
    const std::array<QString, ColumnCount> titles{tr("Value"), tr("Source"), tr("Output"), tr("Why")};
    return titles[static_cast<std::size_t>(section)];
}

} // namespace Vexlor::Studio
