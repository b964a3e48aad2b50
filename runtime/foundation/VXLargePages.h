#pragma once

#include <cstddef>

namespace Vexlor
{

/// Asks the system to back fresh memory by large pages where it can: filling it takes a fraction of the time
/// then, which for the buffers of a large document is most of the parsing. Nothing else changes.
void UseLargePages(void* memory, std::size_t size);

} // namespace Vexlor
