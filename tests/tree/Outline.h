#pragma once

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <string>

namespace Vexlor
{

/// The tree as indented text: a node a line, its format presets behind a dash, its children below.
///
///     Devices
///       - Any device
///       Phones
///         - Large
inline std::string Outline(const IVXFormatNode& node, const std::string& indent = {})
{
    auto text = indent + node.Name() + "\n";
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        text += indent + "  - " + node.GetFormatPreset(i)->Name() + "\n";
    for (const auto& child : node.GetChildList())
        text += Outline(*child, indent + "  ");
    return text;
}

} // namespace Vexlor
