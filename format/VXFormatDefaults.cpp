#include "IVXFormatPreset.h"

#include "IVXCodecPreset.h"
#include "IVXFormat.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

// Where there is a choice, the entry that leaves the stream out stands first.
std::vector<std::shared_ptr<IVXCodecPreset>> PresetsOf(const std::vector<int>& codecIDs)
{
    std::vector<std::shared_ptr<IVXCodecPreset>> presets;
    if (codecIDs.size() > 1)
        presets.push_back(IVXCodecPreset::MallocCodecPreset(VXCodecID_None));
    for (const int codecID : codecIDs)
        presets.push_back(IVXCodecPreset::MallocCodecPreset(codecID));
    return presets;
}

} // namespace

std::vector<std::shared_ptr<IVXCodecPreset>>
IVXFormatPreset::DefaultVideoCodecPresets(const std::string& formatName)
{
    const auto format = IVXFormat::MallocFormat(formatName, {});
    return format ? PresetsOf(format->VideoCodecIDs()) : PresetsOf({});
}

std::vector<std::shared_ptr<IVXCodecPreset>>
IVXFormatPreset::DefaultAudioCodecPresets(const std::string& formatName)
{
    const auto format = IVXFormat::MallocFormat(formatName, {});
    return format ? PresetsOf(format->AudioCodecIDs()) : PresetsOf({});
}

std::shared_ptr<IVXFormat> IVXFormatPreset::GetFormat() const
{
    return IVXFormat::MallocFormat(FormatName(), {});
}

} // namespace Vexlor
