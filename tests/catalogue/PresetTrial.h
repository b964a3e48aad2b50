#pragma once

#include "tests/encode/Findings.h"

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

struct PlacedPreset;

/// What came of a preset and its sources.
struct TriedPreset
{
    std::string path;
    std::string
        marks; ///< a sign a source: '+' kept its word, '!' did not, '.' nothing to write, ' ' not tried
    double seconds = 0;
    Findings failures; ///< not opened, not encoded, not written, or read back as something else
    Findings notKept;  ///< read back as something else, for a reason that is known
};

/// Matches the preset with each of the first sources, opens the preferred encoders, encodes a second, writes
/// the file as the preset's container and reads it back. Every so many-th of the sources that leave anything
/// to write is tried, beginning with another one for another turn.
TriedPreset TryPreset(const PlacedPreset& placed, std::size_t turn, std::size_t step);

} // namespace Vexlor
