#pragma once

#include <QStyledItemDelegate>

namespace Vexlor::Studio
{

/// Shows the output's value with the reasons for it beneath, where there is no room for a column of them.
class ReasonDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// As high as the column's width makes it.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace Vexlor::Studio
