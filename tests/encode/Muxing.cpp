#include "tests/encode/Muxing.h"

#include "runtime/mediacodecs/CodecTags.h"
#include "runtime/mediacodecs/FFmpegError.h"
#include "tests/encode/Encoding.h"

extern "C"
{
#include <libavformat/avformat.h>
#include <libavutil/opt.h>
}

namespace Vexlor
{

namespace
{

struct CloseOutput
{
    void operator()(AVFormatContext* context) const
    {
        avio_closep(&context->pb);
        avformat_free_context(context);
    }
};
using Output = std::unique_ptr<AVFormatContext, CloseOutput>;

// What program and transport streams wait for data, as the ffmpeg program has it. Without it transport
// streams cut sound into pieces that libavformat's own reader tells the layer of MPEG audio wrongly from.
constexpr int kMuxDelay = AV_TIME_BASE / 10 * 7;

int OpenOutput(Output& output, const std::string& muxer, const std::string& path)
{
    AVFormatContext* context = nullptr;
    const int code = avformat_alloc_output_context2(&context, nullptr, muxer.c_str(), path.c_str());
    if (code < 0)
        return code;
    output.reset(context);
    context->max_delay = kMuxDelay;
    for (const auto& [name, value] : MuxerOptions(muxer))
        av_opt_set(context, name.c_str(), value.c_str(), AV_OPT_SEARCH_CHILDREN);
    return avio_open(&context->pb, path.c_str(), AVIO_FLAG_WRITE);
}

int AddStream(AVFormatContext& output, const MuxedStream& muxed)
{
    auto* stream = avformat_new_stream(&output, nullptr);
    if (!stream)
        return AVERROR(ENOMEM);
    const auto& encoded = *muxed.encoded;
    stream->time_base = encoded.timeBase;
    stream->avg_frame_rate = encoded.frameRate;
    stream->sample_aspect_ratio = encoded.parameters->sample_aspect_ratio;
    const int code = avcodec_parameters_copy(stream->codecpar, encoded.parameters.get());
    stream->codecpar->codec_tag = WritableTag(*output.oformat, *encoded.parameters, muxed.tag);
    return code;
}

int WritePackets(AVFormatContext& output, const EncodedStream& encoded, int index)
{
    for (const auto& packet : encoded.packets)
    {
        const Packet copy(av_packet_clone(packet.get()));
        av_packet_rescale_ts(copy.get(), encoded.timeBase, output.streams[index]->time_base);
        copy->stream_index = index;
        const int code = av_interleaved_write_frame(&output, copy.get());
        if (code < 0)
            return code;
    }
    return 0;
}

int WriteAll(AVFormatContext& output, const std::vector<MuxedStream>& streams)
{
    int code = avformat_write_header(&output, nullptr);
    if (code < 0)
        return code;
    for (std::size_t index = 0; index < streams.size() && code >= 0; ++index)
        code = WritePackets(output, *streams[index].encoded, static_cast<int>(index));
    const int end = av_write_trailer(&output);
    return code < 0 ? code : end;
}

} // namespace

std::string WriteFile(const std::vector<MuxedStream>& streams, const std::string& muxer,
                      const std::string& path)
{
    Output output;
    int code = OpenOutput(output, muxer, path);
    for (const auto& stream : streams)
        if (code >= 0)
            code = AddStream(*output, stream);
    if (code >= 0)
        code = WriteAll(*output, streams);
    return code < 0 ? FFmpegErrorText(code) : std::string();
}

bool WantsGlobalHeader(const std::string& muxer)
{
    const auto* format = av_guess_format(muxer.c_str(), nullptr, nullptr);
    return format && (format->flags & AVFMT_GLOBALHEADER) != 0;
}

} // namespace Vexlor
