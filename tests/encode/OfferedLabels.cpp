#include "tests/encode/OfferedLabels.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecs.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/StreamLabels.h"

#include <algorithm>
#include <vector>

namespace Vexlor
{

namespace
{

const std::string kProfile = "profile ";
const std::string kLevel = "level ";

bool GaveWay(const std::vector<std::string>& changes, const std::string& label)
{
    return std::ranges::any_of(changes, [&](const auto& change) { return change.starts_with(label); });
}

} // namespace

OfferedLabels::OfferedLabels(const IVXCodecPreset& preset)
{
    for (const auto& each : preset.ProfilePresets())
        if (each->Profile() != IVXCodecs::VXProfileUnknown)
            m_left.insert(kProfile + each->Name());
    for (const auto& each : preset.LevelPresets())
        if (each->Level() != IVXCodecs::VXLevelUnknown)
            m_left.insert(kLevel + each->Name());
}

void OfferedLabels::TakeOffKept(const IVXCodecParameter& stream)
{
    const auto codecs = stream.GetCodecs(true);
    const auto labels = FittingLabels(*CapabilitiesOf(stream.GetCodecID()), stream, stream.GetFormat());
    if (!GaveWay(labels.changes, kProfile))
        m_left.erase(kProfile + codecs->ProfileName(stream.GetProfile()));
    if (!GaveWay(labels.changes, kLevel))
        m_left.erase(kLevel + codecs->LevelName(stream.GetLevel()));
}

} // namespace Vexlor
