#include "BitrateControl.h"

#include "IVXCodecParameter.h"
#include "IVXRational.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Vexlor
{

namespace
{

int MostOf(const IVXCodecParameter& stream, const LevelBounds& level)
{
    constexpr std::int64_t kMost = std::numeric_limits<int>::max();
    return stream.GetMaxBitrate() > 0 ? stream.GetMaxBitrate()
                                      : static_cast<int>(std::clamp<std::int64_t>(level.bitrate, 0, kMost));
}

BitrateControl BoundsOf(const IVXCodecParameter& stream, int bitrate, const LevelBounds& level)
{
    if (stream.GetBitrateMode() == kConstantBitrate)
        return {bitrate, bitrate, 0, true};
    const int most = MostOf(stream, level);
    if (most == 0)
        return {};
    // Bounds that leave the bitrate out follow it.
    return {std::max(most, bitrate), std::clamp(stream.GetMinBitrate(), 0, bitrate), 0, false};
}

std::int64_t LargestFrame(const IVXCodecParameter& stream, int bitrate)
{
    const double rate = stream.GetFrameRate()->GetDoubleValue();
    const bool told = std::isfinite(rate) && rate > 0;
    return told ? static_cast<std::int64_t>(std::ceil(bitrate / std::clamp(rate, 1e-3, 1e6))) : bitrate;
}

} // namespace

BitrateControl ControlOf(const IVXCodecParameter& stream, int bitrate, const LevelBounds& level)
{
    auto control = BoundsOf(stream, std::max(bitrate, 0), level);
    if (control.most == 0)
        return control;
    const std::int64_t second = control.most;
    const auto own = level.buffer > 0 ? level.buffer : second;
    control.buffer =
        std::max(control.isConstant ? std::min(second, own) : own, LargestFrame(stream, bitrate));
    return control;
}

} // namespace Vexlor
