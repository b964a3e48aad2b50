#include "DrawingFocus.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWidget>

namespace Vexlor::Studio
{

void DrawFocus(const QWidget& drawing, QPainter& painter)
{
    if (!drawing.hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(&drawing);
    option.backgroundColor = drawing.palette().color(QPalette::Window);
    drawing.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &drawing);
}

} // namespace Vexlor::Studio
