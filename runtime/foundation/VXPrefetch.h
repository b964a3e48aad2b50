#pragma once

namespace Vexlor
{

/// A hint that what lies there is read soon.
inline void Prefetch(const void* address)
{
#ifdef __GNUC__
    __builtin_prefetch(address);
#else
    static_cast<void>(address);
#endif
}

} // namespace Vexlor
