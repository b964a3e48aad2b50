#include "ElidedLabel.h"

#include "apps/studio/ShownText.h"

namespace Vexlor::Studio
{

namespace
{

constexpr int kFewLetters = 8;

} // namespace

void ElidedLabel::SetWholeText(const QString& text)
{
    m_whole = text;
    setTextFormat(Qt::PlainText);
    setToolTip(AsPlainText(text));
    setAccessibleName(text);
    Cut();
    updateGeometry();
}

void ElidedLabel::Cut() { setText(fontMetrics().elidedText(m_whole, Qt::ElideMiddle, width())); }

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_whole) + 1, QLabel::sizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * kFewLetters, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    Cut();
}

} // namespace Vexlor::Studio
