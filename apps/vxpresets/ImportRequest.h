#pragma once

#include <optional>
#include <string>

namespace Vexlor::Tool
{

/// What the user wants of another program's presets.
struct ImportRequest
{
    std::string file;
    std::optional<std::string> into;   ///< document that they are added to
    std::optional<std::string> output; ///< new document
    bool keepsBackup = false;
};

} // namespace Vexlor::Tool
