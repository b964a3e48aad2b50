#pragma once

#include <cstdint>
#include <vector>

namespace Vexlor
{

/// One file in memory. An operation counts from the file's beginning of life, over all its storages; a fail
/// count of n makes the n-th one fail (0: none), without an effect on the bytes or the position.
struct ScriptedFile
{
    std::vector<std::uint8_t> bytes;
    bool opens = true; ///< false: no storage can open the file

    int failReadAt = 0;
    int failWriteAt = 0;
    int failSeekAt = 0;
    int reads = 0; ///< reads so far, failed ones included, as for the two that follow
    int writes = 0;
    int seeks = 0;
};

} // namespace Vexlor
