#pragma once

#include <QColor>

class QPalette;

namespace Vexlor::Studio
{

/// The colours of the drawings, mixed from a palette so that they stand out from its windows, light or dark.
struct DrawingColors
{
    QColor text;   ///< of labels
    QColor faint;  ///< of lesser labels
    QColor line;   ///< of outlines and ticks
    QColor paper;  ///< inside the source's picture, and the empty part of a bar
    QColor output; ///< of the output
    QColor hatch;  ///< of what is padded or cut off

    static DrawingColors Of(const QPalette& palette);
};

/// How well one colour is told from another, from 1 to 21, as WCAG 2.1 counts it: text wants 4.5, graphics 3.
double Contrast(const QColor& one, const QColor& other);

} // namespace Vexlor::Studio
