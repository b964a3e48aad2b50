#pragma once

class QPainter;
class QWidget;

namespace Vexlor::Studio
{

/// Draws the style's frame around a drawing that has the keyboard's focus.
void DrawFocus(const QWidget& drawing, QPainter& painter);

} // namespace Vexlor::Studio
