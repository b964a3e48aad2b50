#pragma once

#include "CodecTable.h"
#include "PixelFormats.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Vexlor
{

/// What one codec accepts with the encoders at hand: the table's row, narrowed to what the preferred encoder
/// takes. Without an encoder, the row as it stands.
struct CodecCapabilities
{
    const CodecRow* codec = nullptr;
    std::vector<std::string> encoders; ///< preferred first
    std::vector<std::string> decoders; ///< as above
    std::vector<int> formats;
    std::vector<int> sampleRates;
    std::vector<std::uint64_t> layouts;
    std::vector<int> profiles;
    std::vector<int> levels;
    ChromaBlock block; ///< what the sides of a picture are multiples of, in whichever format
};

/// The capabilities of a codec of ours, made at the first call and shared by all; null when there is none.
/// Safe to call from several threads.
const CodecCapabilities* CapabilitiesOf(int codecID);

} // namespace Vexlor
