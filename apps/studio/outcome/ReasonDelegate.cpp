#include "ReasonDelegate.h"

#include "DrawingColors.h"
#include "OutcomeModel.h"

#include <QApplication>
#include <QPainter>
#include <QTableView>

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

constexpr int kMargin = 3; // as the style's own delegates keep
constexpr int kWrapped = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
constexpr int kHighest = 10'000;

QString WhyOf(const QModelIndex& index) { return index.siblingAtColumn(OutcomeModel::Why).data().toString(); }

int WidthOf(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto* view = qobject_cast<const QTableView*>(option.widget);
    return view ? view->columnWidth(index.column()) : option.rect.width();
}

QRect TextBounds(const QFontMetrics& metrics, int width, const QString& text)
{
    return text.isEmpty() ? QRect()
                          : metrics.boundingRect(0, 0, std::max(width, 1), kHighest, kWrapped, text);
}

} // namespace

void ReasonDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    auto item = option;
    initStyleOption(&item, index);
    const auto text = std::exchange(item.text, {});
    const auto* style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isSelected = item.state.testFlag(QStyle::State_Selected);
    const auto group = item.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const auto color =
        item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::WindowText);
    auto area = item.rect.adjusted(kMargin, kMargin / 2, -kMargin, 0);
    painter->save();
    painter->setPen(color);
    painter->setFont(item.font);
    painter->drawText(area, kWrapped, text);
    area.setTop(area.top() + TextBounds(item.fontMetrics, area.width(), text).height());
    painter->setPen(isSelected ? color : DrawingColors::Of(item.palette).faint);
    painter->setFont(option.font);
    painter->drawText(area, kWrapped, WhyOf(index));
    painter->restore();
}

QSize ReasonDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    auto item = option;
    initStyleOption(&item, index);
    const int width = WidthOf(option, index) - 2 * kMargin;
    const int height = TextBounds(item.fontMetrics, width, item.text).height() +
                       TextBounds(QFontMetrics(option.font), width, WhyOf(index)).height();
    return {width, height + kMargin};
}

} // namespace Vexlor::Studio
