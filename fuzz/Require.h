#pragma once

#include <cstdlib>

namespace Vexlor
{

/// Ends the program where a property does not hold, which is how a fuzzer learns of it.
inline void Require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace Vexlor
