#pragma once

#include <cstdint>

namespace Vexlor
{

/// True when a stream of that profile may have that pixel format. A profile that is not known, and one of a
/// codec whose profiles leave the format open, holds every one.
bool ProfileHolds(int codecID, int profile, int format);
/// True when a stream of that profile may have that layout. HE-AAC v2 has a picture of stereo beside one
/// channel, so it has stereo alone; every other profile holds every layout that its codec takes.
bool ProfileHoldsLayout(int codecID, int profile, std::uint64_t layout);

} // namespace Vexlor
