#pragma once

#include <optional>
#include <string>

namespace Vexlor::Tool
{

/// What the user asks of a media file.
struct ConvertRequest
{
    std::string media;
    bool allPresets = false;
    std::optional<std::string> ffmpegOutput; ///< the file that the command line to print would write
    std::optional<std::string> target;       ///< the size wanted: "25MB"
    std::string output;
    bool stretches = false;
    bool crops = false;
    bool isDryRun = false;
    bool overwrites = false;
};

} // namespace Vexlor::Tool
