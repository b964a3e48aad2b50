#include "BitrateControl.h"

#include "IVXCodecParameter.h"
#include "IVXRational.h"

#include <algorithm>
#include <cmath>

namespace Vexlor
{

namespace
{

constexpr int kConstant = 1; // of IVXCodecParameter::GetBitrateMode

BitrateControl BoundsOf(const IVXCodecParameter& stream, int bitrate)
{
    if (stream.GetBitrateMode() == kConstant)
        return {bitrate, bitrate, 0, true};
    if (stream.GetMaxBitrate() <= 0)
        return {};
    // Bounds that leave the bitrate out follow it.
    return {std::max(stream.GetMaxBitrate(), bitrate), std::clamp(stream.GetMinBitrate(), 0, bitrate), 0,
            false};
}

std::int64_t LargestFrame(const IVXCodecParameter& stream, int bitrate)
{
    const double rate = stream.GetFrameRate()->GetDoubleValue();
    const bool told = std::isfinite(rate) && rate > 0;
    return told ? static_cast<std::int64_t>(std::ceil(bitrate / std::clamp(rate, 1e-3, 1e6))) : bitrate;
}

} // namespace

BitrateControl ControlOf(const IVXCodecParameter& stream, int bitrate, std::int64_t levelBuffer)
{
    auto control = BoundsOf(stream, std::max(bitrate, 0));
    if (control.most == 0)
        return control;
    const std::int64_t second = control.most;
    const auto own = levelBuffer > 0 ? levelBuffer : second;
    control.buffer =
        std::max(control.isConstant ? std::min(second, own) : own, LargestFrame(stream, bitrate));
    return control;
}

} // namespace Vexlor
