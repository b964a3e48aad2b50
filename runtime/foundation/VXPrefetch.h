#pragma once

#include <cstddef>
#include <cstdint>

namespace Vexlor
{

/// A hint that memory which begins so many bytes behind that address is read soon; it need not exist.
inline void Prefetch(const void* address, std::size_t bytesBehind = 0)
{
#ifdef __GNUC__
    __builtin_prefetch(
        reinterpret_cast<const void*>(reinterpret_cast<std::uintptr_t>(address) + bytesBehind));
#else
    static_cast<void>(address);
    static_cast<void>(bytesBehind);
#endif
}

} // namespace Vexlor
