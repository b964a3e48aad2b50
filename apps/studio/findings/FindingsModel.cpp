#include "FindingsModel.h"

#include "apps/studio/ShownText.h"

#include <QApplication>
#include <QStyle>

#include <array>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

QIcon IconOf(Finding::Kind kind)
{
    constexpr std::array kIcons{QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxWarning,
                                QStyle::SP_MessageBoxInformation};
    return QApplication::style()->standardIcon(kIcons.at(static_cast<std::size_t>(kind)));
}

} // namespace

void FindingsModel::SetFindings(Findings findings)
{
    beginResetModel();
    m_findings = std::move(findings);
    endResetModel();
}

int FindingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_findings.size());
}

int FindingsModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant FindingsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto& finding = At(index.row());
    if (role == Qt::DecorationRole && index.column() == KindColumn)
        return IconOf(finding.kind);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    if (index.column() == KindColumn)
        return KindText(finding.kind);
    const auto& text = index.column() == WhereColumn ? finding.where : finding.what;
    return role == Qt::ToolTipRole ? AsPlainText(text) : text;
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    const std::array titles{tr("Kind"), tr("Where"), tr("What")};
    return titles.at(static_cast<std::size_t>(section));
}

QString FindingsModel::KindText(Finding::Kind kind)
{
    const std::array texts{tr("Error"), tr("Warning"), tr("Note")};
    return texts.at(static_cast<std::size_t>(kind));
}

} // namespace Vexlor::Studio
