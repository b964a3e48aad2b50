#include "SourceBitrates.h"

#include "MediaInput.h"
#include "SourceStreams.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <numeric>

namespace Vexlor
{

namespace
{

constexpr double kSampleBytes = 8 << 20;
constexpr int kLeastPacket = 64; // or empty ones would be read for ever

struct FreePacket
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};

bool IsWithoutBitrate(const AVStream* stream)
{
    return stream->codecpar->bit_rate <= 0 && !IsAttachedPicture(*stream);
}

bool NeedsEstimate(const AVStream* stream)
{
    const auto type = stream->codecpar->codec_type;
    return (type == AVMEDIA_TYPE_VIDEO || type == AVMEDIA_TYPE_AUDIO) && IsWithoutBitrate(stream);
}

// The bytes that each stream takes in the first few MiB of packets; only streams without a bitrate are
// counted.
std::vector<double> PacketBytes(const MediaInput& input)
{
    auto& context = input.Context();
    std::vector<double> bytes(context.nb_streams);
    const std::unique_ptr<AVPacket, FreePacket> packet(av_packet_alloc());
    for (double all = 0; packet && all < kSampleBytes && !input.HasHadEnough();)
    {
        if (av_read_frame(&context, packet.get()) < 0)
            break;
        const auto index = static_cast<std::size_t>(packet->stream_index);
        all += std::max(packet->size, kLeastPacket);
        // A damaged file may bring in a stream late.
        if (index < bytes.size() && IsWithoutBitrate(context.streams[index]))
            bytes[index] += packet->size;
        av_packet_unref(packet.get());
    }
    return bytes;
}

double SumOver(std::span<AVStream* const> streams, double (*figure)(const AVStream&))
{
    return std::accumulate(streams.begin(), streams.end(), 0.0,
                           [&](double sum, const AVStream* stream) { return sum + figure(*stream); });
}

double PictureBytes(const AVStream& stream)
{
    return IsAttachedPicture(stream) ? stream.attached_pic.size : 0;
}

double KnownBitrate(const AVStream& stream)
{
    return IsAttachedPicture(stream) ? 0.0 : std::max(0.0, static_cast<double>(stream.codecpar->bit_rate));
}

// What the container's bitrate leaves to the streams that have none of their own.
double Remainder(const MediaInput& input, std::span<AVStream* const> streams)
{
    if (input.Duration() <= 0)
        return 0;
    const double mediaBytes = static_cast<double>(input.Size()) - SumOver(streams, PictureBytes);
    return std::max(0.0, 8 * mediaBytes / input.Duration() - SumOver(streams, KnownBitrate));
}

int Clamped(double bitrate)
{
    constexpr double most = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(bitrate, 0.0, most));
}

} // namespace

std::vector<int> SourceBitrates(const MediaInput& input)
{
    const auto streams = StreamsOf(input.Context());
    std::vector<int> bitrates;
    for (const auto* stream : streams)
        bitrates.push_back(Clamped(KnownBitrate(*stream)));
    const double remainder = std::ranges::any_of(streams, NeedsEstimate) ? Remainder(input, streams) : 0;
    if (remainder <= 0)
        return bitrates;
    const auto bytes = PacketBytes(input);
    const double all = std::accumulate(bytes.begin(), bytes.end(), 0.0);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        if (bytes[i] > 0)
            bitrates[i] = Clamped(remainder * bytes[i] / all);
    return bitrates;
}

} // namespace Vexlor
