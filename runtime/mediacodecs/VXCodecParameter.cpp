#include "VXCodecParameter.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Vexlor
{

namespace
{

// A container's aspect ratio may be anything; only a positive one widens the picture.
double Widening(const IVXRational& aspect)
{
    const double ratio = aspect.GetDoubleValue();
    return std::isfinite(ratio) && ratio > 0 ? ratio : 1.0;
}

} // namespace

int VXCodecParameter::GetCodecType() const
{
    const auto* codec = FindCodec(m_codecID);
    return codec ? codec->type : VXCodecTypeUnknown;
}

std::shared_ptr<IVXCodecs> VXCodecParameter::GetCodecs(bool encoder) const
{
    return IVXCodecs::MallocCodecs(m_codecID, encoder);
}

int VXCodecParameter::GetDisplayWidth() const
{
    if (m_display != PictureSize{})
        return m_display.width;
    constexpr double most = std::numeric_limits<int>::max();
    const double width = std::round(m_size.width * Widening(*m_aspect));
    return static_cast<int>(std::clamp(width, -most, most));
}

int VXCodecParameter::GetDisplayHeight() const
{
    return m_display != PictureSize{} ? m_display.height : m_size.height;
}

void VXCodecParameter::SetAspectRatio(const std::shared_ptr<const IVXRational>& ratio)
{
    if (ratio)
        m_aspect = ratio;
}

void VXCodecParameter::SetFramePerSecond(const std::shared_ptr<const IVXRational>& rate)
{
    if (rate)
        m_frameRate = rate;
}

std::shared_ptr<IVXCodecParameter> IVXCodecParameter::MallocCodecParamter(int codecID)
{
    return std::make_shared<VXCodecParameter>(codecID);
}

std::uint32_t IVXCodecParameter::MakeCodecTag(std::uint8_t first, std::uint8_t second, std::uint8_t third,
                                              std::uint8_t fourth)
{
    return std::uint32_t{first} | std::uint32_t{second} << 8 | std::uint32_t{third} << 16 |
           std::uint32_t{fourth} << 24;
}

} // namespace Vexlor
