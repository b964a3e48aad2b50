#pragma once

#include "runtime/mediacodecs/CodecTable.h"

#include <ostream>

namespace Vexlor
{

/// How a failed test writes a size.
inline void PrintTo(PictureSize size, std::ostream* out) { *out << size.width << 'x' << size.height; }

} // namespace Vexlor
