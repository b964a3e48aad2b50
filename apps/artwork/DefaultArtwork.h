#pragma once

#include <cstdint>
#include <span>

namespace Vexlor::Tool
{

/// The bytes of the artwork file that is built in: an icon for every face identifier of ours.
std::span<const std::uint8_t> DefaultArtwork();

} // namespace Vexlor::Tool
