#pragma once

#include "PictureFit.h"

#include <string>

namespace Vexlor
{
class IVXCodecParameter;
struct VXEncoderSettings;
} // namespace Vexlor

namespace Vexlor::Tool
{

/// The filters that make of a source's pictures, upright, those of an output, in the ffmpeg program's words.
std::string PictureFilters(const IVXCodecParameter& source, const IVXCodecParameter& output,
                           const VXEncoderSettings& settings, PictureFitting fitting);
/// The filters that make of a source's sound that of an output.
std::string SoundFilters(const IVXCodecParameter& source, const IVXCodecParameter& output,
                         const VXEncoderSettings& settings);

} // namespace Vexlor::Tool
