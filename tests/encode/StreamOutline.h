#pragma once

#include <string>

namespace Vexlor
{

class IVXCodecParameter;

/// Everything that an encoder is told of a stream, but for the container's tag, in a line.
std::string StreamOutline(const IVXCodecParameter& stream);

} // namespace Vexlor
