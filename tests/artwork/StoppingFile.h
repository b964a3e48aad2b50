#pragma once

#include "tests/artwork/ArtworkBytes.h"

#include <limits>

namespace Vexlor
{

/// The one file of a program whose storage stops, as when the process is killed: what it is asked for
/// afterwards is lost. Seeks, reads and writes count as operations.
struct StoppingFile
{
    struct Write
    {
        int operation;    ///< how many operations came before it
        std::size_t size; ///< in bytes
    };

    static constexpr int kNever = std::numeric_limits<int>::max();

    explicit StoppingFile(Bytes content = {}, int stops = kNever, std::size_t torn = 0)
        : bytes(std::move(content)), stopsAfter(stops), tornAt(torn)
    {
    }

    Bytes bytes;
    int stopsAfter;            ///< operations that are done
    std::size_t tornAt;        ///< bytes of the next operation that are still written, when it is a write
    int operations = 0;        ///< so far
    std::vector<Write> writes; ///< so far
};

/// The file that the next storages open.
void SetStoppingFile(StoppingFile* file);

} // namespace Vexlor
