#pragma once

#include <memory>

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Studio
{

class PresetTree;

/// So many presets are kept as recently used.
inline constexpr int kMostRecentPresets = 10;

/// Puts a copy of the preset to the front of the category of recently used ones, which is made where it is
/// missing; a preset that stands there itself moves to the front. An older one of the same name and container
/// goes, and so does what is beyond the bound. No step that can be undone: the category keeps itself.
void NoteRecentPreset(PresetTree& tree, const IVXFormatPreset& preset);

} // namespace Vexlor::Studio
