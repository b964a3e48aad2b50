#include "tests/encode/Container.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/CodecTable.h"
#include "runtime/mediacodecs/FormatTable.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace Vexlor
{

namespace
{

// Their sound is cut to the frames of a picture, so there is none without one.
constexpr std::array<std::string_view, 2> kPictureFirst{"DV", "MXF"};

bool IsVideo(int codecID) { return FindCodec(codecID)->type == VXCodecTypeVideo; }

Container ContainerOf(const std::string& name)
{
    const auto* row = FindFormat(name);
    const auto ending = row->endings.substr(0, row->endings.find(' '));
    return {name, std::string(row->muxer), std::string(ending), IVXFormatPreset::MallocFormatPreset(name, ""),
            nullptr};
}

// Makes the codec the current one; false when the container does not list it.
bool Take(Container& container, int codecID)
{
    auto& preset = *container.preset;
    const auto codecs = IsVideo(codecID) ? preset.VideoCodecPresets() : preset.AudioCodecPresets();
    const auto found =
        std::ranges::find_if(codecs, [codecID](const auto& codec) { return codec->CodecID() == codecID; });
    if (found == codecs.end())
        return false;
    container.codec = *found;
    const auto index = static_cast<int>(found - codecs.begin());
    if (IsVideo(codecID))
        preset.SetIndexForVideoCodecPresets(index);
    else
        preset.SetIndexForAudioCodecPresets(index);
    return true;
}

} // namespace

std::shared_ptr<IVXCodecParameter> Container::Match(const BitrateBounds& bounds) const
{
    preset->SetMaxVideoBitrate(bounds.max);
    preset->SetMinVideoBitrate(bounds.min);
    preset->SetMaxAudioBitrate(bounds.max);
    preset->SetMinAudioBitrate(bounds.min);
    const auto output = preset->MatchForSource(AutoSource());
    return IsVideo(codec->CodecID()) ? output->GetVideoCodecParameter() : output->GetAudioCodecParameter();
}

std::shared_ptr<IVXCodecParameter> Container::MatchCompanion() const
{
    if (IsVideo(codec->CodecID()) || std::ranges::find(kPictureFirst, name) == kPictureFirst.end())
        return nullptr;
    const bool hasAuto = preset->VideoCodecPresetCount() > 1;
    preset->SetIndexForVideoCodecPresets(hasAuto ? 1 : 0);
    return preset->MatchForSource(AutoSource())->GetVideoCodecParameter();
}

std::vector<Container> ContainersOf(int codecID)
{
    std::vector<Container> containers;
    for (const auto& name : VXMediaCodecSupportOutputAllMediaFormats())
        if (auto container = ContainerOf(name); Take(container, codecID))
            containers.push_back(std::move(container));
    return containers;
}

} // namespace Vexlor
