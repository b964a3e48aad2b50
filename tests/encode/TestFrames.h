#pragma once

extern "C"
{
#include <libavcodec/avcodec.h>
}

#include <cstdint>
#include <memory>

namespace Vexlor
{

struct FreeFrame
{
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
using Frame = std::unique_ptr<AVFrame, FreeFrame>;

/// A picture as that encoder takes it: a slope of brightness that moves with every index.
Frame PictureFrame(const AVCodecContext& encoder, int index);
/// Sound as that encoder takes it, the same tone in all channels; first counts from the stream's beginning.
Frame SoundFrame(const AVCodecContext& encoder, std::int64_t first, int samples);

} // namespace Vexlor
