#pragma once

#include "tests/encode/ReadBack.h"

namespace Vexlor
{

/// Reads the file at that path and tells how its stream of that kind differs from what was matched: all that
/// ReadBack compares, and of pictures the pixel format, the profile and the level where they were chosen, and
/// the shape of the samples.
std::vector<Difference> BrokenPromises(const std::string& path, const std::string& container,
                                       const IVXCodecParameter& asked);

/// The reason why that codec in that container cannot keep it; empty when it could.
std::string ExcuseOf(const Difference& difference, const std::string& container, int codecID);

} // namespace Vexlor
