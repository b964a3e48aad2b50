#pragma once

#include "ConvertRequest.h"
#include "apps/host/convert/FfmpegCommand.h"

#include <string>

namespace Vexlor::Tool
{

/// The command line for a shell, what gives way to the encoders in comments above it.
std::string CommandText(const FfmpegCommand& command);
/// The same as JSON.
std::string CommandJson(const FfmpegCommand& command);
/// What the user wants to become of a picture whose shape is not the frame's.
PictureFitting FittingOf(const ConvertRequest& request);

} // namespace Vexlor::Tool
