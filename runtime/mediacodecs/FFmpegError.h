#pragma once

#include <string>

namespace Vexlor
{

/// FFmpeg's own words for one of its error codes: "Invalid argument".
std::string FFmpegErrorText(int error);

} // namespace Vexlor
