#pragma once

#include "apps/artwork/ArtworkFile.h"

#include <optional>
#include <string>
#include <vector>

namespace Vexlor::Tool
{

/// Something that is wrong with an artwork file.
struct ArtworkFinding
{
    bool isError = false; ///< a group or a picture cannot be had; otherwise a waste or an oddity
    std::optional<std::size_t> position; ///< of the group that it is about
    std::string text;
};

/// Everything that is wrong with the file, its table before its groups.
std::vector<ArtworkFinding> FindingsOf(const ArtworkFile& file);

} // namespace Vexlor::Tool
