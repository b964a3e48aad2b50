#include "tests/encode/TestFrames.h"

extern "C"
{
#include <libavutil/pixdesc.h>
}

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <span>
#include <type_traits>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr int kSteps = 256;      // the slope begins again after as many samples
constexpr int kStepsAFrame = 8;  // that it moves
constexpr int kMiddle = 128;     // colorless
constexpr double kTone = 440;    // Hz
constexpr double kLoudness = .5; // of full scale

/// One plane of a picture.
struct Plane
{
    std::uint8_t* data;
    std::ptrdiff_t stride;
    int rows;
    bool isColor; // of YUV: neither brightness nor alpha
};

int Rows(const AVPixFmtDescriptor& format, const AVFrame& frame, int plane)
{
    const bool isChroma = plane == 1 || plane == 2;
    return isChroma ? AV_CEIL_RSHIFT(frame.height, format.log2_chroma_h) : frame.height;
}

std::vector<Plane> PlanesOf(const AVPixFmtDescriptor& format, const AVFrame& frame)
{
    std::vector<Plane> planes;
    const bool isYUV = (format.flags & AV_PIX_FMT_FLAG_RGB) == 0;
    for (int plane = 0; plane < av_pix_fmt_count_planes(static_cast<AVPixelFormat>(frame.format)); ++plane)
        planes.push_back({frame.data[plane], frame.linesize[plane], Rows(format, frame, plane),
                          isYUV && (plane == 1 || plane == 2)});
    return planes;
}

template <class Sample>
void FillPlane(const Plane& plane, int start, int shift)
{
    const auto count = static_cast<std::size_t>(plane.stride) / sizeof(Sample);
    std::vector<Sample> slope(count + kSteps);
    for (std::size_t x = 0; x < slope.size(); ++x)
        slope[x] = static_cast<Sample>((plane.isColor ? kMiddle : static_cast<int>(x % kSteps)) << shift);
    for (int row = 0; row < plane.rows; ++row)
        std::memcpy(plane.data + row * plane.stride, &slope[static_cast<std::size_t>((start + row) % kSteps)],
                    count * sizeof(Sample));
}

void FillPicture(AVFrame& frame, int index)
{
    const auto& format = *av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    const int start = index * kStepsAFrame;
    const auto& first = format.comp[0];
    for (const auto& plane : PlanesOf(format, frame))
        if (first.depth > 8)
            FillPlane<std::uint16_t>(plane, start, first.depth - 8 + first.shift);
        else
            FillPlane<std::uint8_t>(plane, start, 0);
    if (format.flags & AV_PIX_FMT_FLAG_PAL)
        std::memset(frame.data[1], kMiddle, AVPALETTE_SIZE);
}

template <class Sample>
Sample Scaled(double value)
{
    if constexpr (std::is_floating_point_v<Sample>)
        return static_cast<Sample>(value);
    else if constexpr (std::is_unsigned_v<Sample>)
        return static_cast<Sample>(kMiddle + std::lround(value * (kMiddle - 1)));
    else
        return static_cast<Sample>(value * static_cast<double>(std::numeric_limits<Sample>::max()));
}

template <class Sample>
void FillSound(AVFrame& frame, std::int64_t first)
{
    const bool isPlanar = av_sample_fmt_is_planar(static_cast<AVSampleFormat>(frame.format)) != 0;
    const int channels = frame.ch_layout.nb_channels;
    for (int index = 0; index < frame.nb_samples; ++index)
    {
        const double time = static_cast<double>(first + index) / frame.sample_rate;
        const auto sample = Scaled<Sample>(kLoudness * std::sin(2 * std::numbers::pi * kTone * time));
        for (int channel = 0; channel < channels; ++channel)
        {
            auto* plane = reinterpret_cast<Sample*>(frame.extended_data[isPlanar ? channel : 0]);
            plane[isPlanar ? index : index * channels + channel] = sample;
        }
    }
}

Frame Allocated(Frame frame) { return av_frame_get_buffer(frame.get(), 0) < 0 ? nullptr : std::move(frame); }

} // namespace

Frame PictureFrame(const AVCodecContext& encoder, int index)
{
    Frame frame(av_frame_alloc());
    frame->width = encoder.width;
    frame->height = encoder.height;
    frame->format = encoder.pix_fmt;
    frame->color_range = encoder.color_range;
    frame->sample_aspect_ratio = encoder.sample_aspect_ratio;
    frame->pts = index;
    frame = Allocated(std::move(frame));
    if (frame)
        FillPicture(*frame, index);
    return frame;
}

Frame SoundFrame(const AVCodecContext& encoder, std::int64_t first, int samples)
{
    Frame frame(av_frame_alloc());
    frame->sample_rate = encoder.sample_rate;
    frame->format = encoder.sample_fmt;
    frame->nb_samples = samples;
    frame->pts = first;
    av_channel_layout_copy(&frame->ch_layout, &encoder.ch_layout);
    frame = Allocated(std::move(frame));
    if (!frame)
        return frame;
    switch (av_get_packed_sample_fmt(encoder.sample_fmt))
    {
    case AV_SAMPLE_FMT_U8:
        FillSound<std::uint8_t>(*frame, first);
        break;
    case AV_SAMPLE_FMT_S16:
        FillSound<std::int16_t>(*frame, first);
        break;
    case AV_SAMPLE_FMT_S32:
        FillSound<std::int32_t>(*frame, first);
        break;
    case AV_SAMPLE_FMT_FLT:
        FillSound<float>(*frame, first);
        break;
    case AV_SAMPLE_FMT_DBL:
        FillSound<double>(*frame, first);
        break;
    default:
        return nullptr;
    }
    return frame;
}

} // namespace Vexlor
