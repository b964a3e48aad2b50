#pragma once

#include "CodecFacts.h"

#include <string>
#include <vector>

namespace Vexlor::Tool
{

/// The page of reference: the containers with their codecs, then every codec with what it accepts and its
/// bitrates at common sizes.
std::string CodecsMarkdown(const std::vector<Codec>& codecs);

} // namespace Vexlor::Tool
