#pragma once

struct AVCodecParameters;

namespace Vexlor
{

/// The number of an H.264 stream's level, by the headers that stand beside it: libavcodec takes 1b for 1.1
/// where it is written so.
int H264LevelOf(const AVCodecParameters& stream);

} // namespace Vexlor
