#pragma once

namespace Vexlor
{

/// True when a stream of that profile may have that pixel format. A profile that is not known, and one of a
/// codec whose profiles leave the format open, holds every one.
bool ProfileHolds(int codecID, int profile, int format);

} // namespace Vexlor
