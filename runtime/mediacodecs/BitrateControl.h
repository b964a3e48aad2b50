#pragma once

#include <cstdint>

namespace Vexlor
{

class IVXCodecParameter;

inline constexpr int kConstantBitrate = 1; ///< of IVXCodecParameter::GetBitrateMode

/// What a stream's level leaves it.
struct LevelBounds
{
    std::int64_t bitrate = 0; ///< the highest, of a level that is chosen; 0: any
    std::int64_t buffer = 0;  ///< bits that its decoders hold; 0: not told
};

/// How an encoder rations the bits of a picture stream: bits a second, but for the buffer, which has bits.
struct BitrateControl
{
    int most = 0;            ///< 0: unbounded, and there is no buffer
    int least = 0;           ///< 0: unbounded
    std::int64_t buffer = 0; ///< what a decoder can hold back
    bool isConstant = false; ///< every second takes the same
};

/// How the stream wants its bits rationed around a bitrate.
///
/// A constant one has its bounds at the bitrate and a buffer of one second, or that of its level where it is
/// smaller: what it is sent over has no more to give. A variable one is bounded by its own highest, else by
/// its level's, and has the whole buffer of its level, since its player has it; a second where that is not
/// told. A frame always fits in.
BitrateControl ControlOf(const IVXCodecParameter& stream, int bitrate, const LevelBounds& level);

} // namespace Vexlor
