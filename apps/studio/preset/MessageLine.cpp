#include "MessageLine.h"

#include <QAccessible>

#include <algorithm>

namespace Vexlor::Studio
{

MessageLine::MessageLine(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void MessageLine::Say(const QString& text)
{
    if (text == this->text())
        return;
    setText(text);
    KeepHeight();
    setVisible(!text.isEmpty());
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageLine::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    KeepHeight();
}

// Layouts within layouts lose count of the lines that a text of that width takes. What is the minimum now
// would be part of the answer.
void MessageLine::KeepHeight()
{
    setMinimumHeight(0);
    setMinimumHeight(std::max(0, heightForWidth(width())));
}

} // namespace Vexlor::Studio
