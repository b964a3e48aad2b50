#include "FFmpegCompat.h"

extern "C"
{
#include <libavformat/avformat.h>
}

#include <cstddef>
#include <cstring>

namespace Vexlor
{

namespace
{

#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(61, 13, 100)

template <class Value>
std::span<const Value> ListOf(const AVCodec& encoder, AVCodecConfig config)
{
    const void* values = nullptr;
    int count = 0;
    if (avcodec_get_supported_config(nullptr, &encoder, config, 0, &values, &count) < 0 || !values)
        return {};
    return {static_cast<const Value*>(values), static_cast<std::size_t>(count)};
}

#else

template <class Value, class IsEnd>
std::span<const Value> ListUntil(const Value* values, IsEnd isEnd)
{
    std::size_t count = 0;
    while (values && !isEnd(values[count]))
        ++count;
    return {values, count};
}

#endif

} // namespace

EncoderLists ListsOf(const AVCodec& encoder)
{
#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(61, 13, 100)
    return {ListOf<AVPixelFormat>(encoder, AV_CODEC_CONFIG_PIX_FORMAT),
            ListOf<AVSampleFormat>(encoder, AV_CODEC_CONFIG_SAMPLE_FORMAT),
            ListOf<int>(encoder, AV_CODEC_CONFIG_SAMPLE_RATE),
            ListOf<AVChannelLayout>(encoder, AV_CODEC_CONFIG_CHANNEL_LAYOUT)};
#else
    return {
        ListUntil(encoder.pix_fmts, [](AVPixelFormat format) { return format == AV_PIX_FMT_NONE; }),
        ListUntil(encoder.sample_fmts, [](AVSampleFormat format) { return format == AV_SAMPLE_FMT_NONE; }),
        ListUntil(encoder.supported_samplerates, [](int rate) { return rate == 0; }),
        ListUntil(encoder.ch_layouts, [](const AVChannelLayout& layout) { return layout.nb_channels == 0; })};
#endif
}

std::optional<std::array<std::int32_t, 9>> DisplayMatrixOf(const AVStream& stream)
{
    std::array<std::int32_t, 9> matrix{};
    const std::uint8_t* bytes = nullptr;
    std::size_t size = 0;
#if LIBAVFORMAT_VERSION_INT >= AV_VERSION_INT(60, 15, 100)
    const auto& codec = *stream.codecpar;
    if (const auto* data = av_packet_side_data_get(codec.coded_side_data, codec.nb_coded_side_data,
                                                   AV_PKT_DATA_DISPLAYMATRIX))
    {
        bytes = data->data;
        size = data->size;
    }
#else
    bytes = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &size);
#endif
    if (!bytes || size < sizeof(matrix))
        return {};
    std::memcpy(matrix.data(), bytes, sizeof(matrix));
    return matrix;
}

} // namespace Vexlor
