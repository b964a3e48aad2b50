#pragma once

#include <cstddef>

namespace Vexlor
{

/// Bytes of this process that lie in memory now, free ones given back as far as they can be; 0 where
/// that tells nothing.
std::size_t ResidentBytes();

} // namespace Vexlor
