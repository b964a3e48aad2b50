#pragma once

#include "BitrateScale.h"
#include "SizeGeometry.h"
#include "apps/host/convert/PictureFit.h"
#include "apps/host/match/MediaMatch.h"

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

/// The bitrates of what the preset makes of a source, and of what would have come out at each of the four
/// grades.
StreamBitrates BitrateFactsOf(const Tool::MediaMatch& match, const IVXFormatPreset& preset);

} // namespace Vexlor::Studio
