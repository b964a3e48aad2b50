#include "BitrateGeometry.h"

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

QRectF Part(const QRectF& line, double from, double to)
{
    return to > from ? QRectF(from, line.top(), to - from, line.height()) : QRectF();
}

} // namespace

BitrateGeometry LayOutBitrates(const BitrateFacts& facts, const QRectF& line)
{
    const BitrateScale scale(facts);
    const auto place = [&](int bitrate) { return line.left() + line.width() * scale.Position(bitrate); };
    BitrateGeometry geometry;
    geometry.line = line;
    geometry.output = place(facts.output);
    geometry.source = place(facts.source);
    if (facts.least > 0 && facts.most > 0)
    {
        geometry.bar = Part(line, place(facts.least), place(facts.most));
        geometry.filled = Part(line, geometry.bar.left(), std::min(geometry.bar.right(), geometry.output));
    }
    for (const auto& mark : MarksOf(facts))
        geometry.marks.push_back(place(mark.bitrate));
    return geometry;
}

} // namespace Vexlor::Studio
