#pragma once

#include "tests/encode/Findings.h"

#include <string>

namespace Vexlor
{

/// What was tried of a codec, and what came of it.
struct WalkedCodec
{
    std::string codec;
    std::string encoder;
    int combinations = 0;
    std::string containers; ///< the names, separated by blanks
    int files = 0;
    int leftOut = 0; ///< further combinations, of pictures larger than 1080p
    double seconds = 0;
    Findings failures;   ///< did not open, gave way to nothing that was asked for, was not encoded, not
                         ///< written, read back as something else, is a label that always gives way, or is
                         ///< lost no more
    Findings notCarried; ///< read back as something else, for a reason that is known
    Findings gaveWay;    ///< asked for, but excluded by something else that was asked for
};

/// Chooses pairwise among everything that the codec's preset offers, and each profile with each level beside
/// the smallest picture, in every container that lists the codec, matches, opens the preferred encoder,
/// encodes ten pictures or a second of sound, writes them into every container and reads each file back.
WalkedCodec WalkCodec(int codecID);

} // namespace Vexlor
