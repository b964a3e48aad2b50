#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

/// Options that a muxer of that name is told so that it writes the tags that streams have.
std::vector<std::pair<std::string, std::string>> MuxerOptions(std::string_view muxer);

} // namespace Vexlor
