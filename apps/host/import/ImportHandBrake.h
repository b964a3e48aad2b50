#pragma once

#include <string>
#include <string_view>

namespace Vexlor::Tool
{

struct Import;

/// Adds the presets of a file that HandBrake has exported: an object with "PresetList", or such a list.
/// Throws Failure.
void ImportHandBrake(const std::string& name, std::string_view text, Import& import);

} // namespace Vexlor::Tool
