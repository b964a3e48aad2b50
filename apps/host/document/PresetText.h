#pragma once

#include "PresetValues.h"

#include <string>
#include <utility>
#include <vector>

namespace Vexlor::Tool
{

/// What is to be set, a key and a value each.
using PresetSettings = std::vector<std::pair<std::string, std::string>>;

/// The text of a format preset with values set one after the other; whatever they do not touch stays as it
/// stands. Puts into done what each became. Throws Failure for a value that cannot be set, and where the
/// preset then has an error, as the document's check finds it, that it had not before.
std::string WithSettings(const std::string& preset, const PresetSettings& settings,
                         std::vector<PresetSetting>& done);

/// The same for a category, which has a description and a face.
std::string WithCategorySettings(const std::string& category, const PresetSettings& settings,
                                 std::vector<PresetSetting>& done);

/// The text with another name.
std::string WithName(const std::string& object, const std::string& name);

/// Throws Failure for a text that is not UTF-8.
void RequireUtf8(const std::string& text);

} // namespace Vexlor::Tool
