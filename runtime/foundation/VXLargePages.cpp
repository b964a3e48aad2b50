#include "runtime/foundation/VXLargePages.h"

#ifdef __linux__
#include <memory>
#include <sys/mman.h>
#endif

namespace Vexlor
{

#ifdef __linux__

void UseLargePages(void* memory, std::size_t size)
{
    constexpr std::size_t kLargePage = std::size_t{2} << 20;
    // Only pages that lie whole inside, so that no neighbour is touched.
    if (std::align(kLargePage, kLargePage, memory, size))
        ::madvise(memory, size / kLargePage * kLargePage, MADV_HUGEPAGE);
}

#else

void UseLargePages(void*, std::size_t) {}

#endif

} // namespace Vexlor
