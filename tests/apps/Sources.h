#pragma once

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <memory>
#include <vector>

namespace Vexlor::Apps
{

/// A video stream as a file would have it.
struct VideoSource
{
    int codec = VXCodecID_H264;
    int width = 1920;
    int height = 1080;
    int num = 30;
    int den = 1;
    int bitrate = 8'000'000;
    int aspectNum = 1;
    int aspectDen = 1;
    int format = VXPixFormat_YUV420P;
};

/// An audio stream as a file would have it.
struct AudioSource
{
    int codec = VXCodecID_AAC;
    int sampleRate = 48'000;
    std::uint64_t layout = 3;
    int bitrate = 128'000;
};

inline std::shared_ptr<IVXCodecParameter> StreamOf(const VideoSource& source)
{
    auto stream = IVXCodecParameter::MallocCodecParamter(source.codec);
    stream->SetWidth(source.width);
    stream->SetHeight(source.height);
    stream->SetFramePerSecond(IVXRational::MallocRational(source.num, source.den));
    stream->SetAspectRatio(IVXRational::MallocRational(source.aspectNum, source.aspectDen));
    stream->SetFormat(source.format);
    stream->SetBitrate(source.bitrate);
    return stream;
}

inline std::shared_ptr<IVXCodecParameter> StreamOf(const AudioSource& source)
{
    auto stream = IVXCodecParameter::MallocCodecParamter(source.codec);
    stream->SetSampleRate(source.sampleRate);
    stream->SetChannelLayout(source.layout);
    stream->SetFormat(VXSampleFormat_FLT);
    stream->SetBitrate(source.bitrate);
    return stream;
}

/// A file of a container that nobody knows, so that its streams stay as they are.
inline std::shared_ptr<IVXFormatParameter> FileOf(const VideoSource& video)
{
    auto file = IVXFormatParameter::MallocFormatParameter("a camera's", "");
    file->SetVideoCodecParameter(StreamOf(video));
    return file;
}

inline std::shared_ptr<IVXFormatParameter> FileOf(const AudioSource& audio)
{
    auto file = IVXFormatParameter::MallocFormatParameter("a camera's", "");
    file->SetAudioCodecParameter(StreamOf(audio));
    return file;
}

inline std::shared_ptr<IVXFormatParameter> FileOf(const VideoSource& video, const AudioSource& audio)
{
    auto file = FileOf(video);
    file->SetAudioCodecParameter(StreamOf(audio));
    return file;
}

/// Sources of many kinds.
inline std::vector<std::shared_ptr<IVXFormatParameter>> ManyFiles()
{
    return {FileOf(VideoSource{}, AudioSource{}),
            FileOf(VideoSource{.codec = VXCodecID_HEVC, .width = 3840, .height = 2160, .num = 60},
                   AudioSource{.layout = 0x3F, .bitrate = 384'000}),
            FileOf(VideoSource{.codec = VXCodecID_MPEG2,
                               .width = 720,
                               .height = 576,
                               .num = 25,
                               .aspectNum = 64,
                               .aspectDen = 45},
                   AudioSource{.codec = VXCodecID_MP2}),
            FileOf(VideoSource{.width = 1080, .height = 1920, .num = 30000, .den = 1001, .bitrate = 0},
                   AudioSource{.sampleRate = 44'100, .layout = 4, .bitrate = 0}),
            FileOf(VideoSource{.codec = VXCodecID_None, .width = 321, .height = 241, .num = 0, .bitrate = 1},
                   AudioSource{.codec = VXCodecID_None, .sampleRate = 8000, .layout = 4}),
            FileOf(VideoSource{.width = 0, .height = 0, .num = 1, .den = 0}, AudioSource{.layout = 0}),
            FileOf(VideoSource{.width = 640, .height = 360, .num = 24000, .den = 1001}),
            FileOf(AudioSource{.codec = VXCodecID_FLAC, .sampleRate = 96'000, .bitrate = 3'000'000})};
}

} // namespace Vexlor::Apps
