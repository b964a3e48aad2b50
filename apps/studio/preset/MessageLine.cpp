#include "MessageLine.h"

#include <QAccessible>

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
    setVisible(!text.isEmpty());
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace Vexlor::Studio
