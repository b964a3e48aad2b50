#pragma once

#include <memory>

namespace Vexlor
{
class IVXFormatNode;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Studio
{

class PresetTree;

/// So many presets are kept as recently used.
inline constexpr int kMostRecentPresets = 10;

/// The category of recently used presets below that root; empty where there is none. It keeps itself: what
/// stands there may go at any time, so that nothing may stand there alone.
std::shared_ptr<IVXFormatNode> FindRecentCategory(IVXFormatNode& root);

/// True for presets of one name and container, of which there is one among the recently used ones.
bool IsSamePreset(const IVXFormatPreset& one, const IVXFormatPreset& other);

/// Puts a copy of the preset, as it was when it was used, to the front of the category of recently used ones,
/// which is made where it is missing; a preset that stands there itself moves to the front, as it is now. An
/// older one of the same name and container goes, and so does what is beyond the bound. No step that can be
/// undone: the category keeps itself.
void NoteRecentPreset(PresetTree& tree, const IVXFormatPreset& preset, const IVXFormatPreset& asItWas);

} // namespace Vexlor::Studio
