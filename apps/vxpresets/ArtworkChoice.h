#pragma once

#include "ArtworkRequest.h"
#include "apps/artwork/ArtworkFile.h"

#include <cstddef>
#include <string>

namespace Vexlor::Tool
{

/// The file that is asked about, or the built-in one. Throws Failure.
ArtworkFile OpenRequested(const ArtworkRequest& request);

/// Position of the group that the text means: "#3", a face identifier, the identifier's name or a part of it.
/// Of several groups of one identifier it is the first. Throws Failure.
std::size_t FindGroup(const ArtworkFile& file, const std::string& text);

} // namespace Vexlor::Tool
