#include "PictureFit.h"

#include "IVXCodecParameter.h"
#include "IVXRational.h"

#include <algorithm>
#include <cmath>

namespace Vexlor::Tool
{

namespace
{

constexpr double kUnseen = 4;
constexpr double kUnseenShare = 0.005;

double AspectOf(const IVXCodecParameter& stream)
{
    const double aspect = stream.GetAspectRatio()->GetDoubleValue();
    return std::isfinite(aspect) && aspect > 0 ? aspect : 1;
}

bool IsSame(double side, int frame)
{
    return std::abs(side - frame) <= std::max(kUnseen, kUnseenShare * frame);
}

// Chroma is stored for two pixels at once.
int EvenSide(double side, int least)
{
    constexpr double kMost = 1 << 20;
    const int rounded = 2 * static_cast<int>(std::lround(std::clamp(side, 2.0, kMost) / 2));
    return std::max(rounded, least);
}

} // namespace

PictureFit FitPicture(const IVXCodecParameter& source, const IVXCodecParameter& output,
                      PictureFitting fitting)
{
    const int width = output.GetWidth();
    const int height = output.GetHeight();
    const PictureFit whole{width, height};
    if (fitting == PictureFitting::Stretch || source.GetDisplayWidth() < 1 || source.GetDisplayHeight() < 1)
        return whole;
    const double shape = double(source.GetDisplayWidth()) / source.GetDisplayHeight() / AspectOf(output);
    const double asHigh = height * shape; // as wide as the picture is at the frame's height
    const double asWide = width / shape;
    if (IsSame(asHigh, width) || IsSame(asWide, height))
        return whole;
    const bool isCropped = fitting == PictureFitting::Crop;
    const bool fillsHeight = (asHigh < width) != isCropped;
    return {.width = fillsHeight ? EvenSide(asHigh, isCropped ? width : 2) : width,
            .height = fillsHeight ? height : EvenSide(asWide, isCropped ? height : 2),
            .isPadded = !isCropped,
            .isCropped = isCropped};
}

} // namespace Vexlor::Tool
