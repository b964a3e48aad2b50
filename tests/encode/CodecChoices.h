#pragma once

#include <memory>
#include <vector>

namespace Vexlor
{

class IVXCodecPreset;
class IVXFormatParameter;

/// The lists of a codec preset that a user chooses from, by their number of entries; a list without entries
/// counts as one of one. Pictures: size, frame rate, pixel format, profile, level, quality. Sound: sample
/// rate, layout, sample format, profile, quality. The last one is how the bitrate comes about: by the
/// quality, as a user's own number, variable or constant, or between bounds.
std::vector<int> ChoiceCounts(const IVXCodecPreset& preset);
/// Of pictures each profile with each level, beside the last size, the last frame rate and the lowest grade:
/// little enough for the lowest level, which pairs of choices leave without a picture that it holds.
std::vector<std::vector<int>> LabelCases(const IVXCodecPreset& preset);
/// Makes one entry of each list the current one.
void Choose(IVXCodecPreset& preset, const std::vector<int>& entries);
/// Bits a second between which a preset is matched; -1 for no bound.
struct BitrateBounds
{
    int max = -1;
    int min = -1;
};
/// The bounds that go with those entries.
BitrateBounds BoundsOf(const IVXCodecPreset& preset, const std::vector<int>& entries);
/// True when the bitrate is one that the codec's preset offers, so that nothing may take its place.
bool HasOfferedBitrate(const std::vector<int>& entries);
/// What Auto entries take their values from: a picture of odd sides at a broken rate, sound of many channels.
std::shared_ptr<const IVXFormatParameter> AutoSource();

} // namespace Vexlor
