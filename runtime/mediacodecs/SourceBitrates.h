#pragma once

#include <vector>

namespace Vexlor
{

class MediaInput;

/// The bitrate of each stream of a file, in the streams' order, in bits per second; 0 where it is unknown.
///
/// A stream's own figure comes first. Where a picture or sound stream has none, the streams without one share
/// what the container's bitrate (file size by length, cover pictures left out) leaves beside the known ones,
/// in the proportion of their packets at the beginning of the file. That reads packets, so it comes last.
std::vector<int> SourceBitrates(const MediaInput& input);

} // namespace Vexlor
