#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace Vexlor
{
class IVXCodecParameter;
}

namespace Vexlor::Tool
{

/// What matching decides of a stream.
enum class MatchValue : int
{
    Codec,
    Size,
    DisplaySize,
    FrameRate,
    SampleRate,
    ChannelLayout,
    Format, ///< of pixels or of samples
    Profile,
    Level,
    SampleAspect,
    Bitrate,
    MaxBitrate,
    MinBitrate,
    BitrateMode,
    CodecTag,
};

/// A value as numbers that can be compared.
using MatchNumbers = std::array<std::int64_t, 2>;

/// How one value of a stream is named, shown and compared.
struct MatchRow
{
    MatchValue value;
    const char* name;   ///< "Frame rate"
    const char* member; ///< "frameRate", in JSON
    /// The stream's value; empty where it is not known, or there is none.
    std::string (*text)(const IVXCodecParameter& stream);
    MatchNumbers (*numbers)(const IVXCodecParameter& stream);
};

/// The values of a video stream in the order in which they are shown; the codec, whose name the stream alone
/// does not tell, is not among them.
std::span<const MatchRow> VideoRows();
/// The values of an audio stream; as above.
std::span<const MatchRow> AudioRows();

} // namespace Vexlor::Tool
