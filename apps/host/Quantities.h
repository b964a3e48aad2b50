#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

namespace Vexlor::Tool
{

// Quantities as people write them, in whatever case and spacing; nothing for any other text.

/// "-3"
std::optional<int> IntegerOf(std::string_view text);
/// "1280x720" or "1280 x 720"
std::optional<std::pair<int, int>> SizeOf(std::string_view text);
/// "30000/1001", "25" or "29.97 fps" as numerator and denominator; decimals of the rates of colour television
/// mean those.
std::optional<std::pair<int, int>> FrameRateOf(std::string_view text);
/// "44100", "44.1 kHz" or "44.1k", in Hz
std::optional<int> SampleRateOf(std::string_view text);
/// "8000000", "8000k" or "8 Mb/s", in bits per second
std::optional<int> BitrateOf(std::string_view text);
/// "0x3": a mask of channels
std::optional<std::uint64_t> MaskOf(std::string_view text);

} // namespace Vexlor::Tool
