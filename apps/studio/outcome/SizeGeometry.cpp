#include "SizeGeometry.h"

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

// As thin a line as can still be seen.
constexpr double kThinnest = 2;

QSizeF Union(const QSizeF& one, const QSizeF& other) { return one.expandedTo(other); }

/// The bound, unless it is far beyond what is drawn beside it.
QSizeF NearBound(const QSizeF& bound, const QSizeF& drawn)
{
    const bool isFar =
        bound.width() > kFarBound * drawn.width() || bound.height() > kFarBound * drawn.height();
    return bound.isEmpty() || isFar ? QSizeF() : bound;
}

/// What one half of the drawing has to hold.
struct Half
{
    QSizeF content;
    QRectF area;
};

double ScaleOf(const Half& half)
{
    return std::min(half.area.width() / half.content.width(), half.area.height() / half.content.height());
}

QRectF Around(const QPointF& middle, const QSizeF& size, double scale)
{
    if (size.isEmpty())
        return {};
    const QSizeF drawn = Union(size * scale, {kThinnest, kThinnest});
    QRectF rectangle(QPointF(), drawn);
    rectangle.moveCenter(middle);
    return rectangle;
}

/// The middle of a content that stands on the ground of its half.
QPointF Middle(const Half& half, double scale)
{
    return {half.area.center().x(), half.area.bottom() - half.content.height() * scale / 2};
}

} // namespace

std::pair<QRectF, QRectF> HalvesOf(const QRectF& area, double gap, bool isDivided)
{
    if (!isDivided)
        return {area, area};
    const double width = std::max(0.0, (area.width() - gap) / 2);
    return {QRectF(area.left(), area.top(), width, area.height()),
            QRectF(area.right() - width, area.top(), width, area.height())};
}

SizeGeometry LayOutSizes(const SizeFacts& facts, const QRectF& area, double gap)
{
    const bool hasSource = !facts.source.isEmpty();
    const bool hasOutput = !facts.output.isEmpty();
    if ((!hasSource && !hasOutput) || area.isEmpty())
        return {};
    const auto frame = Union(facts.output, facts.picture);
    const auto most = hasOutput ? NearBound(facts.most, Union(frame, facts.source)) : QSizeF();
    const auto least = hasOutput ? NearBound(facts.least, Union(frame, facts.source)) : QSizeF();
    const auto halves = HalvesOf(area, gap, hasSource && hasOutput);
    const Half left{facts.source, halves.first};
    const Half right{Union(Union(frame, most), least), halves.second};

    SizeGeometry geometry;
    geometry.scale = !hasOutput   ? ScaleOf(left)
                     : !hasSource ? ScaleOf(right)
                                  : std::min(ScaleOf(left), ScaleOf(right));
    geometry.source = Around(Middle(left, geometry.scale), facts.source, geometry.scale);
    const auto middle = Middle(right, geometry.scale);
    geometry.output = Around(middle, facts.output, geometry.scale);
    geometry.picture = Around(middle, facts.picture, geometry.scale);
    geometry.most = Around(middle, most, geometry.scale);
    geometry.least = Around(middle, least, geometry.scale);
    return geometry;
}

} // namespace Vexlor::Studio
