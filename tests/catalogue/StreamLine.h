#pragma once

#include <string>

namespace Vexlor
{

class IVXFormatParameter;

/// Everything that the record tells of both streams, in a line: codec, size, frame rate, pixel format,
/// profile and level, sample aspect, bitrate and tag, then codec, sample rate, layout, sample format,
/// profile, bitrate and tag. What is not known is left out, as is a square sample; "nothing" without a
/// stream.
std::string LineOf(const IVXFormatParameter& parameter);

} // namespace Vexlor
