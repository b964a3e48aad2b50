#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Tool
{

/// A value of a format preset that can be set, as a key names it.
struct PresetKey
{
    std::string_view name;
    std::string_view help; ///< what its values look like
};

/// What a key was set to, as people read it.
struct PresetSetting
{
    std::string key;
    std::string value;
    bool isAdded = false; ///< to the list that it is chosen from
};

/// All keys, in the order in which they are told.
const std::vector<PresetKey>& PresetKeys();

/// The display texts of the values that the key may be set to without more ado; empty for one that takes
/// numbers or texts. Throws Failure for a key that there is not, or that needs a codec that is not chosen.
std::vector<std::string> PresetChoices(IVXFormatPreset& preset, std::string_view key);

/// Sets a value, told by its display text or in figures. Values of a stream are those of its current codec.
/// Throws Failure, which says what may be set; the preset may then be changed in part.
PresetSetting SetPresetValue(IVXFormatPreset& preset, std::string_view key, const std::string& value);

/// "resolution=1280x720" in its two parts. Throws Failure.
std::pair<std::string, std::string> KeyAndValue(const std::string& text);

} // namespace Vexlor::Tool
