#pragma once

#include <memory>
#include <vector>

namespace Vexlor
{

class IVXCodecPreset;
class IVXFormatParameter;

/// The lists of a codec preset that a user chooses from, by their number of entries; a list without entries
/// counts as one of one. Pictures: size, frame rate, pixel format, profile, level, quality. Sound: sample
/// rate, layout, sample format, profile, quality.
///
/// The entry of a custom bitrate is left out: what it comes to is the user's number, not an offer of ours.
std::vector<int> ChoiceCounts(const IVXCodecPreset& preset);
/// Makes one entry of each list the current one.
void Choose(IVXCodecPreset& preset, const std::vector<int>& entries);
/// What Auto entries take their values from: a picture of odd sides at a broken rate, sound of many channels.
std::shared_ptr<const IVXFormatParameter> AutoSource();

} // namespace Vexlor
