#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Vexlor::Tool
{

/// What the user asks of an artwork file.
struct ArtworkRequest
{
    std::optional<std::string> file;    ///< the built-in one without it
    std::vector<std::string> faces;     ///< numbers, names or positions of groups
    std::optional<std::string> face;    ///< number or name for a new group
    std::string target;                 ///< where pictures go
    std::optional<std::string> drawing; ///< what every size and mode is made of
    std::vector<std::string> pictures;  ///< "VARIANT:MODE=FILE"
};

} // namespace Vexlor::Tool
