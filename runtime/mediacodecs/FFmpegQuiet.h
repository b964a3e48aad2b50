#pragma once

namespace Vexlor
{

/// Keeps FFmpeg from writing to stderr for as long as one of these lives, in any thread.
///
/// Only the level of FFmpeg's own log function is lowered; the level that was set before returns with the
/// last of them. A host that has set a log function of its own keeps it and goes on receiving every line.
class FFmpegQuiet final
{
public:
    FFmpegQuiet();
    ~FFmpegQuiet();
    FFmpegQuiet(const FFmpegQuiet&) = delete;
    FFmpegQuiet& operator=(const FFmpegQuiet&) = delete;
};

} // namespace Vexlor
