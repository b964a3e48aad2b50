#include "SourceStreams.h"

#include "CodecTable.h"
#include "FFmpegCompat.h"
#include "H264Level.h"
#include "LevelTable.h"
#include "PixelFormats.h"
#include "ProfileTable.h"
#include "SampleFormats.h"
#include "VXCodecParameter.h"

extern "C"
{
#include <libavutil/display.h>
}

#include <cmath>

namespace Vexlor
{

namespace
{

constexpr int kMaxDisplaySide = 1 << 16;
// Where a container knows no frame rate it may answer its clock's: 1000 or 90000 ticks a second.
constexpr double kSlowestClock = 1000;

bool IsRate(AVRational rate) { return rate.num > 0 && rate.den > 0 && av_q2d(rate) < kSlowestClock; }

AVRational FrameRateOf(const AVStream& stream)
{
    if (IsRate(stream.avg_frame_rate))
        return stream.avg_frame_rate;
    return IsRate(stream.r_frame_rate) ? stream.r_frame_rate : AVRational{0, 1};
}

// 1/1 for an aspect that would leave no picture or one larger than any screen.
AVRational SampleAspectOf(AVFormatContext& context, AVStream& stream)
{
    const auto aspect = av_guess_sample_aspect_ratio(&context, &stream, nullptr);
    if (aspect.num <= 0 || aspect.den <= 0)
        return {1, 1};
    const double width = stream.codecpar->width * av_q2d(aspect);
    return width >= 1 && width <= kMaxDisplaySide ? aspect : AVRational{1, 1};
}

bool IsTurnedOnItsSide(const AVStream& stream)
{
    const auto matrix = DisplayMatrixOf(stream);
    if (!matrix)
        return false;
    const double degrees = av_display_rotation_get(matrix->data());
    return std::isfinite(degrees) && std::lround(degrees / 90) % 2 != 0;
}

std::uint64_t LayoutOf(const AVChannelLayout& layout)
{
    if (layout.order == AV_CHANNEL_ORDER_NATIVE)
        return layout.u.mask;
    AVChannelLayout usual{};
    av_channel_layout_default(&usual, layout.nb_channels);
    return usual.order == AV_CHANNEL_ORDER_NATIVE ? usual.u.mask : 0;
}

std::shared_ptr<IVXRational> Rational(AVRational value)
{
    return IVXRational::MallocRational(value.num, value.den);
}

bool IsMedia(const AVStream& stream)
{
    const auto type = stream.codecpar->codec_type;
    return (type == AVMEDIA_TYPE_VIDEO && !IsAttachedPicture(stream)) || type == AVMEDIA_TYPE_AUDIO;
}

bool IsReadable(const AVStream& stream)
{
    const auto& codec = *stream.codecpar;
    if (codec.codec_type == AVMEDIA_TYPE_VIDEO)
        return codec.width > 0 && codec.height > 0;
    return codec.sample_rate > 0 && codec.ch_layout.nb_channels > 0;
}

AVStream* BestStream(AVFormatContext& context, AVMediaType type, int related)
{
    const int index = av_find_best_stream(&context, type, -1, related, nullptr, 0);
    return index >= 0 ? context.streams[index] : nullptr;
}

// What every kind of stream tells.
std::shared_ptr<VXCodecParameter> Source(const AVStream& stream, int bitrate)
{
    const auto& codec = *stream.codecpar;
    const int codecID = CodecIDOf(codec);
    auto source = std::make_shared<VXCodecParameter>(codecID);
    source->SetCodecTag(codec.codec_tag);
    source->SetProfile(ProfileNumberOf(codecID, codec.profile));
    source->SetLevel(codecID == VXCodecID_H264 ? H264LevelOf(codec) : LevelNumberOf(codecID, codec.level));
    source->SetBitrate(bitrate);
    return source;
}

} // namespace

std::span<AVStream* const> StreamsOf(const AVFormatContext& context)
{
    return {context.streams, context.nb_streams};
}

bool IsAttachedPicture(const AVStream& stream)
{
    return (stream.disposition & AV_DISPOSITION_ATTACHED_PIC) != 0;
}

BestStreams FindBestStreams(AVFormatContext& context)
{
    BestStreams best;
    for (auto* stream : StreamsOf(context))
    {
        if (IsMedia(*stream) && IsReadable(*stream))
            continue;
        best.hasUnreadable |= IsMedia(*stream);
        stream->codecpar->codec_type = AVMEDIA_TYPE_UNKNOWN; // or libavformat might choose it
    }
    best.video = BestStream(context, AVMEDIA_TYPE_VIDEO, -1);
    best.audio = BestStream(context, AVMEDIA_TYPE_AUDIO, best.video ? best.video->index : -1);
    return best;
}

std::shared_ptr<IVXCodecParameter> VideoSource(AVFormatContext& context, AVStream& stream, int bitrate)
{
    const auto& codec = *stream.codecpar;
    auto source = Source(stream, bitrate);
    source->SetWidth(codec.width);
    source->SetHeight(codec.height);
    source->SetAspectRatio(Rational(SampleAspectOf(context, stream)));
    if (IsTurnedOnItsSide(stream))
        source->SetDisplaySize(source->GetDisplayHeight(), source->GetDisplayWidth());
    source->SetFramePerSecond(Rational(FrameRateOf(stream)));
    source->SetFormat(PixelFormatOf(static_cast<AVPixelFormat>(codec.format)));
    return source;
}

std::shared_ptr<IVXCodecParameter> AudioSource(const AVStream& stream, int bitrate)
{
    const auto& codec = *stream.codecpar;
    auto source = Source(stream, bitrate);
    source->SetSampleRate(codec.sample_rate);
    source->SetChannelLayout(LayoutOf(codec.ch_layout));
    source->SetFormat(SampleFormatOf(static_cast<AVSampleFormat>(codec.format), codec.bits_per_raw_sample));
    return source;
}

std::string SourceCodecName(const AVStream& stream)
{
    const auto& codec = *stream.codecpar;
    const auto* row = FindCodec(CodecIDOf(codec));
    return row ? std::string(row->name) : avcodec_get_name(codec.codec_id);
}

} // namespace Vexlor
