#include "tests/memory/ResidentMemory.h"

#include <cstdio>
#include <stdexcept>

#include <malloc.h>
#include <unistd.h>

// The address sanitizer keeps what was freed, to watch it.
#if defined(__clang__)
#define VX_KEEPS_FREED __has_feature(address_sanitizer)
#elif defined(__SANITIZE_ADDRESS__)
#define VX_KEEPS_FREED 1
#else
#define VX_KEEPS_FREED 0
#endif

namespace Vexlor
{

#if VX_KEEPS_FREED
std::size_t ResidentBytes() { return 0; }
#else
std::size_t ResidentBytes()
{
    ::malloc_trim(0);
    std::FILE* file = std::fopen("/proc/self/statm", "r");
    if (!file)
        throw std::runtime_error("/proc/self/statm cannot be opened");
    std::size_t mapped = 0;
    std::size_t pages = 0;
    const bool isRead = std::fscanf(file, "%zu %zu", &mapped, &pages) == 2;
    static_cast<void>(std::fclose(file));
    if (!isRead)
        throw std::runtime_error("/proc/self/statm cannot be read");
    return pages * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}
#endif

} // namespace Vexlor
