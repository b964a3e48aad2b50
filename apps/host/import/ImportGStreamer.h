#pragma once

#include <string>
#include <string_view>

namespace Vexlor::Tool
{

struct Import;

/// Adds the profiles of an encoding target of GStreamer: a category with a preset for each of its profiles.
/// Throws Failure.
void ImportGStreamer(const std::string& name, std::string_view text, Import& import);

} // namespace Vexlor::Tool
