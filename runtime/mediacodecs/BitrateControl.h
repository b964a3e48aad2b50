#pragma once

#include <cstdint>

namespace Vexlor
{

class IVXCodecParameter;

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
/// smaller: what it is sent over has no more to give. A variable one with a bound has the whole buffer of its
/// level, levelBuffer, since its player has it; a second where it has no level and levelBuffer is 0. A frame
/// always fits in.
BitrateControl ControlOf(const IVXCodecParameter& stream, int bitrate, std::int64_t levelBuffer);

} // namespace Vexlor
