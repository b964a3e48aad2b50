#pragma once

#include <string>
#include <string_view>

namespace Vexlor::Media
{

/// Runs the ffmpeg program with these arguments, separated by blanks, and the file to write; no shell reads
/// them. Throws std::runtime_error with what ffmpeg said when it fails or is not there.
void RunFfmpeg(std::string_view arguments, const std::string& output);

} // namespace Vexlor::Media
