#pragma once

#include "presets/VXHandleList.h"

namespace Vexlor
{

class IVXCodecQualityPreset;

/// The quality settings that every codec offers: Auto, the four grades, and a custom bitrate to edit.
HandleList<IVXCodecQualityPreset> DefaultQualities();

} // namespace Vexlor
