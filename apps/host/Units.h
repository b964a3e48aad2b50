#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Vexlor
{
class IVXRational;
}

namespace Vexlor::Tool
{

/// "8.00 Mb/s", "192 kb/s"; empty for a bitrate below 1.
std::string BitrateText(int bitrate);
/// "29.97 fps"; empty for a rate that is not known.
std::string FrameRateText(const IVXRational& rate);
/// "16:15"; empty for a ratio that is not known.
std::string RatioText(const IVXRational& ratio);
/// "1920 x 1080"; empty for a size that is not known.
std::string SizeText(int width, int height);
/// "Stereo"; empty for a layout that is not known.
std::string LayoutText(std::uint64_t layout);
/// The display names of codecs.
std::vector<std::string> CodecNames(const std::vector<int>& codecIDs);

} // namespace Vexlor::Tool
