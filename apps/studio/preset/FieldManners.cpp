#include "FieldManners.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>

namespace Vexlor::Studio
{

namespace
{

bool IsTakingBack(QKeyEvent& event)
{
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
}

} // namespace

void FieldManners::Teach(QWidget& field)
{
    field.setFocusPolicy(Qt::StrongFocus);
    field.installEventFilter(this);
    for (auto* edit : field.findChildren<QLineEdit*>())
        edit->installEventFilter(this);
}

bool FieldManners::eventFilter(QObject* watched, QEvent* event)
{
    const auto* widget = qobject_cast<QWidget*>(watched);
    const bool isStrayWheel = event->type() == QEvent::Wheel && widget != nullptr && !widget->hasFocus();
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (isStrayWheel || (isOverride && IsTakingBack(*static_cast<QKeyEvent*>(event))))
    {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Vexlor::Studio
