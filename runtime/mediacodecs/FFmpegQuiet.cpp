#include "FFmpegQuiet.h"

extern "C"
{
#include <libavutil/log.h>
}

#include <mutex>

namespace Vexlor
{

namespace
{

struct Silence
{
    std::mutex mutex;
    int holders = 0;
    int levelBefore = AV_LOG_INFO;
};

Silence& TheSilence()
{
    static Silence silence;
    return silence;
}

} // namespace

FFmpegQuiet::FFmpegQuiet()
{
    auto& silence = TheSilence();
    const std::scoped_lock lock(silence.mutex);
    if (silence.holders++ > 0)
        return;
    silence.levelBefore = av_log_get_level();
    av_log_set_level(AV_LOG_QUIET);
}

FFmpegQuiet::~FFmpegQuiet()
{
    auto& silence = TheSilence();
    const std::scoped_lock lock(silence.mutex);
    if (--silence.holders == 0)
        av_log_set_level(silence.levelBefore);
}

} // namespace Vexlor
