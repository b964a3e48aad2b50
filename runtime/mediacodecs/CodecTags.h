#pragma once

#include <cstdint>

struct AVCodecParameters;
struct AVOutputFormat;

namespace Vexlor
{

/// The tag that a muxer of libavformat's writes for an encoded stream where matching asks for this one.
///
/// The tag itself where the muxer knows it for that codec, else the one that the same players take for the
/// same. Where none is asked for, or neither is known, the encoder's own, since some tell their profile by
/// it; else 0, the muxer's own choice.
std::uint32_t WritableTag(const AVOutputFormat& muxer, const AVCodecParameters& encoded, std::uint32_t tag);

} // namespace Vexlor
