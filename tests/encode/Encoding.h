#pragma once

extern "C"
{
#include <libavcodec/avcodec.h>
}

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

struct FreePacket
{
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
using Packet = std::unique_ptr<AVPacket, FreePacket>;

struct FreeParameters
{
    void operator()(AVCodecParameters* parameters) const { avcodec_parameters_free(&parameters); }
};

/// A stream as an encoder made it.
struct EncodedStream
{
    std::unique_ptr<AVCodecParameters, FreeParameters> parameters;
    AVRational timeBase{};
    AVRational frameRate{}; ///< of pictures
    std::vector<Packet> packets;
    std::string complaint; ///< FFmpeg's reason why it went no further; empty when all was encoded
};

/// So many test pictures, encoded to the end.
EncodedStream EncodePictures(AVCodecContext& encoder, int frames);
/// A second of test sound, and what the last frame needs to be whole; as above.
EncodedStream EncodeSound(AVCodecContext& encoder);

} // namespace Vexlor
