#pragma once

#include "IVXLogConfig.h"

#include <functional>
#include <string_view>

namespace Vexlor
{

/// Takes one formatted line of the log, on the thread that wrote it and possibly on several at once. The text
/// is valid during the call only.
using VXLogSink = std::function<void(IVXLogConfig::LogLevel level, std::string_view text)>;

/// Makes sink take the log from now on and answers the one before it; an empty sink stands for the default,
/// standard error. Any thread may call it; a line that is being written may still reach the sink before.
VX_FOUNDATION_API VXLogSink SetLogSink(VXLogSink sink);

} // namespace Vexlor
