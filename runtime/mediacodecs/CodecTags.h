#pragma once

#include <cstdint>

extern "C"
{
#include <libavcodec/codec_id.h>
}

struct AVOutputFormat;

namespace Vexlor
{

/// The tag that a muxer of libavformat's writes where matching asks for this one: the tag itself where the
/// muxer knows it for that codec, else the one that the same players take for the same, else 0, the muxer's
/// own choice.
std::uint32_t WritableTag(const AVOutputFormat& muxer, AVCodecID codec, std::uint32_t tag);

} // namespace Vexlor
