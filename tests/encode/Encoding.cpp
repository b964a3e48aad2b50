#include "tests/encode/Encoding.h"

#include "runtime/mediacodecs/FFmpegError.h"
#include "tests/encode/TestFrames.h"

namespace Vexlor
{

namespace
{

constexpr int kSamplesOfAnyFrame = 1024; // where the encoder takes any number

// What an encoder has ready; 0 when it wants more, AVERROR_EOF when it is done.
int Receive(AVCodecContext& encoder, EncodedStream& stream)
{
    while (true)
    {
        Packet packet(av_packet_alloc());
        const int code = avcodec_receive_packet(&encoder, packet.get());
        if (code < 0)
            return code == AVERROR(EAGAIN) ? 0 : code;
        stream.packets.push_back(std::move(packet));
    }
}

int Send(AVCodecContext& encoder, const Frame& frame, EncodedStream& stream)
{
    if (!frame)
        return AVERROR(ENOMEM);
    const int code = avcodec_send_frame(&encoder, frame.get());
    return code < 0 ? code : Receive(encoder, stream);
}

int Finish(AVCodecContext& encoder, EncodedStream& stream)
{
    const int code = avcodec_send_frame(&encoder, nullptr);
    return code < 0 ? code : Receive(encoder, stream);
}

// Flushed even when a frame was refused: SVT-AV1 1.4 waits for ever when it is closed in the middle.
EncodedStream Finished(AVCodecContext& encoder, EncodedStream stream, int code)
{
    const int end = Finish(encoder, stream);
    if (code < 0 || end != AVERROR_EOF)
        stream.complaint = FFmpegErrorText(code < 0 ? code : end);
    stream.parameters.reset(avcodec_parameters_alloc());
    avcodec_parameters_from_context(stream.parameters.get(), &encoder);
    stream.timeBase = encoder.time_base;
    stream.frameRate = encoder.framerate;
    return stream;
}

} // namespace

EncodedStream EncodePictures(AVCodecContext& encoder, int frames)
{
    EncodedStream stream;
    int code = 0;
    for (int index = 0; index < frames && code >= 0; ++index)
        code = Send(encoder, PictureFrame(encoder, index), stream);
    stream = Finished(encoder, std::move(stream), code);
    for (const auto& packet : stream.packets)
        if (packet->duration == 0)
            packet->duration = 1;
    return stream;
}

EncodedStream EncodeSound(AVCodecContext& encoder)
{
    const int samples = encoder.frame_size > 0 ? encoder.frame_size : kSamplesOfAnyFrame;
    EncodedStream stream;
    int code = 0;
    for (std::int64_t first = 0; first < encoder.sample_rate && code >= 0; first += samples)
        code = Send(encoder, SoundFrame(encoder, first, samples), stream);
    return Finished(encoder, std::move(stream), code);
}

} // namespace Vexlor
