#pragma once

#include "presets/VXValueList.h"

namespace Vexlor
{

/// The quality settings that every codec offers: Auto, the four grades, and a custom bitrate to edit.
VXValueList<IVXCodecQualityPreset> DefaultQualities();

/// The formats of IVXCodecPreset::DefaultSampleFmt.
VXValueList<IVXSampleFmtPreset> DefaultSampleFormats(int codecID);

} // namespace Vexlor
