#pragma once

#include "CodecTable.h"
#include "PixelFormats.h"

#include <cstdint>
#include <span>

namespace Vexlor
{

/// The size nearest to the wanted one within the limits, its sides multiples of the block. Of fixed sizes the
/// nearest by area and shape; else the size itself when it fits, else scaled with its shape kept. A side
/// below 1 reads as 1280 x 720.
PictureSize SnapSize(PictureSize wanted, const VideoLimits& limits, ChromaBlock block);
/// The frame rate nearest to the wanted one within the limits, upward on a tie; exact fractions are kept.
/// What is no positive rate reads as 30.
AVRational SnapFrameRate(AVRational wanted, const VideoLimits& limits);
/// The rate nearest to the wanted one, upward on a tie; the first one when the wanted one is below 1, 0 when
/// there are none.
int SnapSampleRate(int wanted, std::span<const int> rates);
/// The same layout when it is there; else the one with as many channels, else the largest with fewer, else
/// the smallest; the first one for 0, 0 when there are none.
std::uint64_t SnapLayout(std::uint64_t wanted, std::span<const std::uint64_t> layouts);

} // namespace Vexlor
