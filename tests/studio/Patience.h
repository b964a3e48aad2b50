#pragma once

namespace Vexlor::Studio
{

/// How long tests wait for what is done beside the window's thread, in milliseconds: under sanitizers, on a
/// machine with more to do, all of it takes its time.
inline constexpr int kPatience = 60'000;

} // namespace Vexlor::Studio
