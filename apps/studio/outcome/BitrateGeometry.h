#pragma once

#include "BitrateScale.h"

#include <QRectF>

namespace Vexlor::Studio
{

/// Where the bitrates are drawn, from left to right.
struct BitrateGeometry
{
    QRectF line;   ///< the whole scale
    QRectF bar;    ///< between the bounds; empty where one is not known or they contradict each other
    QRectF filled; ///< of the bar, up to the output's bitrate
    double output = 0;
    double source = 0;
    std::vector<double> marks; ///< as MarksOf has them
};

/// The bitrates on a line.
BitrateGeometry LayOutBitrates(const BitrateFacts& facts, const QRectF& line);

} // namespace Vexlor::Studio
