#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

extern "C"
{
#include <libavcodec/avcodec.h>
}

// libavcodec 60 renamed its profile constants; the old names are gone from 62 on.
#ifdef AV_PROFILE_UNKNOWN
#define VX_AV_PROFILE(name) AV_PROFILE_##name
#else
#define VX_AV_PROFILE(name) FF_PROFILE_##name
#endif

struct AVStream;

namespace Vexlor
{

/// What an encoder says that it takes; an empty span where it says nothing. Valid for the process's life.
struct EncoderLists
{
    std::span<const AVPixelFormat> pixelFormats;
    std::span<const AVSampleFormat> sampleFormats;
    std::span<const int> sampleRates;
    std::span<const AVChannelLayout> layouts;
};
EncoderLists ListsOf(const AVCodec& encoder);

/// The matrix that turns a stream's picture upright, as libavutil's display functions take it; empty when the
/// container has none.
std::optional<std::array<std::int32_t, 9>> DisplayMatrixOf(const AVStream& stream);

} // namespace Vexlor
