#pragma once

#include "BitrateScale.h"
#include "SizeGeometry.h"
#include "apps/host/convert/PictureFit.h"

#include <memory>

namespace Vexlor
{
class IVXFormatParameter;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Studio
{

/// The sizes of a source's picture and of an output's; empty where there is no picture, and those of the
/// output where nothing comes out.
SizeFacts SizeFactsOf(const IVXFormatParameter& source, const IVXFormatParameter* output,
                      const IVXFormatPreset* preset, Tool::PictureFitting fitting);

/// Both kinds of stream.
struct StreamBitrates
{
    BitrateFacts video;
    BitrateFacts audio;
};

/// The bitrates of an output, which is what the preset makes of the source, and of what would have come out
/// at each of the four grades.
StreamBitrates BitrateFactsOf(const std::shared_ptr<const IVXFormatParameter>& source,
                              const IVXFormatParameter& output, const IVXFormatPreset& preset);

} // namespace Vexlor::Studio
