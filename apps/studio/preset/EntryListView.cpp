#include "EntryListView.h"

#include "apps/studio/ShownText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <QStyleOption>

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

constexpr int kFewestRows = 3;
constexpr int kMostRows = 7;

constexpr int kRoom = 4; // pixels between rows

/// Draws the marks of rows as those of options that exclude one another, in the colour of the rows' text:
/// those of the style's own buttons are hardly to be seen on a dark ground.
class OptionStyle final : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override
    {
        const auto needed = QProxyStyle::sizeFromContents(type, option, size, widget);
        return type == CT_ItemViewItem ? needed + QSize(0, kRoom) : needed;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        if (element == PE_IndicatorItemViewItemCheck)
            DrawMark(*option, *painter);
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

private:
    static void DrawMark(const QStyleOption& option, QPainter& painter)
    {
        const bool isSelected = option.state.testFlag(State_Selected);
        const auto color = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
        const auto side = std::min(option.rect.width(), option.rect.height()) - 2.0;
        const auto center = QRectF(option.rect).center();
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(color);
        painter.drawEllipse(center, side / 2, side / 2);
        painter.setBrush(color);
        if (option.state.testFlag(State_On))
            painter.drawEllipse(center, side / 4, side / 4);
        painter.restore();
    }
};

bool IsMove(const QKeyEvent& event)
{
    return event.modifiers() == Qt::AltModifier && (event.key() == Qt::Key_Up || event.key() == Qt::Key_Down);
}

bool IsRemoval(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Delete && event.modifiers() == Qt::NoModifier;
}

} // namespace

EntryListView::EntryListView(QWidget* parent) : QListWidget(parent)
{
    auto* style = new OptionStyle(QApplication::style()->name());
    style->setParent(this);
    setStyle(style);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    connect(this, &QListWidget::itemChanged, this, &EntryListView::AskToChoose);
    connect(this, &QListWidget::itemDoubleClicked, this, &EntryListView::AskToChoose);
}

void EntryListView::Fill(const QStringList& texts, int current)
{
    const QSignalBlocker blocker(this);
    const bool isResized = count() != texts.size();
    while (count() > texts.size())
        delete takeItem(count() - 1);
    for (int row = 0; row < texts.size(); ++row)
    {
        if (row == count())
            addItem(QString());
        item(row)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item(row)->setText(texts[row]);
        item(row)->setToolTip(AsPlainText(texts[row]));
    }
    m_chosen = current;
    Mark();
    if (isResized)
        updateGeometry();
}

QSize EntryListView::sizeHint() const
{
    const int width = sizeHintForColumn(0) + 2 * frameWidth() + fontMetrics().averageCharWidth() * 4;
    return {std::max(width, fontMetrics().averageCharWidth() * 14),
            HeightOf(std::clamp(count(), kFewestRows, kMostRows))};
}

QSize EntryListView::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 10, HeightOf(kFewestRows)};
}

bool EntryListView::event(QEvent* event)
{
    // The window has a Delete of its own.
    if (event->type() == QEvent::ShortcutOverride)
        if (const auto& key = *static_cast<QKeyEvent*>(event); IsMove(key) || IsRemoval(key))
            event->accept();
    return QListWidget::event(event);
}

void EntryListView::keyPressEvent(QKeyEvent* event)
{
    if (IsMove(*event))
        emit MoveAsked(currentRow(), event->key() == Qt::Key_Up ? -1 : 1);
    else if (IsRemoval(*event))
        emit RemoveAsked(currentRow());
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit ChooseAsked(currentRow());
    else
        QListWidget::keyPressEvent(event);
}

// The mark moves when the document has changed, and not when it was clicked.
void EntryListView::AskToChoose(const QListWidgetItem* item)
{
    const int asked = row(item);
    Mark();
    emit ChooseAsked(asked);
}

void EntryListView::Mark()
{
    const QSignalBlocker blocker(this);
    for (int row = 0; row < count(); ++row)
        item(row)->setCheckState(row == m_chosen ? Qt::Checked : Qt::Unchecked);
}

int EntryListView::HeightOf(int rows) const
{
    const int rowHeight = count() > 0 ? sizeHintForRow(0) : fontMetrics().height() + kRoom;
    return rows * rowHeight + 2 * frameWidth();
}

} // namespace Vexlor::Studio
