#pragma once

#include "BitrateControl.h"

#include <string>
#include <vector>

namespace Vexlor
{

class IVXCodecParameter;
struct CodecCapabilities;
struct LevelRow;
struct ProfileRow;

/// What a stream says of itself to players: which of them can take it.
struct StreamLabels
{
    const ProfileRow* profile = nullptr; ///< null: the encoder chooses
    const LevelRow* level = nullptr;     ///< as above
    LevelBounds bounds; ///< the level's; where it is open, the buffer alone, of the lowest that there is
    std::vector<std::string> changes; ///< what gave way, a sentence each
};

/// The labels nearest to the stream's own that its format, size, rates and bitrate allow. A profile that
/// cannot hold the pixel format or the layout gives way to the first on offer that can, a level that cannot
/// hold the stream to the lowest that can; where there is none, the encoder chooses. Where profiles have
/// bitrates of their own (ProRes, DNxHR), the one nearest to the stream's is the first, and is taken where
/// the stream leaves its profile open.
StreamLabels FittingLabels(const CodecCapabilities& codec, const IVXCodecParameter& stream, int pixelFormat);

} // namespace Vexlor
