#pragma once

namespace Vexlor
{
class IVXCodecParameter;
}

namespace Vexlor::Tool
{

/// What becomes of a picture whose shape is not the frame's.
enum class PictureFitting : int
{
    Pad,     ///< it is shown whole, with black beside it
    Crop,    ///< it fills the frame, and what does not fit in is cut off on both sides alike
    Stretch, ///< it is bent into the frame
};

/// How large a picture is drawn, in the frame's pixels, which need not be square.
struct PictureFit
{
    int width = 0;
    int height = 0;
    bool isPadded = false;
    bool isCropped = false;
};

/// How a source's picture, as it is displayed, is brought into an output's frame.
///
/// A difference in shape that nobody sees, as rounding makes it, is bent away: four pixels, or half a
/// percent.
PictureFit FitPicture(const IVXCodecParameter& source, const IVXCodecParameter& output,
                      PictureFitting fitting);

} // namespace Vexlor::Tool
