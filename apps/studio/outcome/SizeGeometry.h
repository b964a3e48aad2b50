#pragma once

#include <QRectF>
#include <QSize>
#include <QSizeF>

#include <utility>

namespace Vexlor::Studio
{

/// The sizes that a conversion has to do with, each as it is displayed, so with the sample aspect counted, in
/// square pixels. An empty size is one that is not there.
struct SizeFacts
{
    QSizeF source;
    QSizeF output;      ///< the frame
    QSizeF picture;     ///< in the frame: smaller where it is padded, larger where it is cut off
    QSizeF most;        ///< the largest frame that the preset allows
    QSizeF least;       ///< the smallest
    QSize storedSource; ///< in the file's own pixels, which need not be square
    QSize storedOutput;
    bool isStretched = false; ///< where the picture is bent into a frame of another shape

    bool operator==(const SizeFacts&) const = default;
};

/// Where the sizes are drawn; an empty rectangle is not drawn.
struct SizeGeometry
{
    double scale = 0; ///< of the drawing's units a pixel; 0 where there is nothing to draw
    QRectF source;
    QRectF output;
    QRectF picture;
    QRectF most;
    QRectF least;
};

/// The sizes in an area, all to one scale: the source stands in its left half and what becomes of it in the
/// right one, on one ground; either has the whole area where the other is not there. The picture and the
/// bounds stand around the middle of the output's frame.
///
/// A bound that would make the rest small is left out: one whose sides are more than kFarBound times as long.
SizeGeometry LayOutSizes(const SizeFacts& facts, const QRectF& area, double gap);

/// The left and the right half of an area with a gap in between; twice the whole of it where it is not
/// divided.
std::pair<QRectF, QRectF> HalvesOf(const QRectF& area, double gap, bool isDivided);

/// How many times larger than all else a bound may be that is drawn.
inline constexpr double kFarBound = 2;

} // namespace Vexlor::Studio
