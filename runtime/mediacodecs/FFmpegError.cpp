#include "FFmpegError.h"

extern "C"
{
#include <libavutil/error.h>
}

#include <array>

namespace Vexlor
{

std::string FFmpegErrorText(int error)
{
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(error, text.data(), text.size());
    return text.data();
}

} // namespace Vexlor
