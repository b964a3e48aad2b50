#include "Qualities.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"

#include <memory>
#include <vector>

namespace Vexlor::Tool
{

namespace
{

void TakeUp(const std::vector<std::shared_ptr<IVXCodecPreset>>& codecs, const IVXJsonValue& list)
{
    for (int i = 0; i < static_cast<int>(codecs.size()); ++i)
    {
        auto& codec = *codecs[static_cast<std::size_t>(i)];
        const int index = list.At(i)->GetValueInt("indexForQualityPresets");
        const bool isGrade = index > 0 && index < codec.CodecQualityPresetCount();
        if (isGrade && !codec.CodecQualityPresetAt(index)->IsCustom())
            codec.SetIndexForQualityPresets(index);
    }
}

} // namespace

void TakeUpQualities(IVXFormatPreset& preset, const IVXJsonValue& json)
{
    TakeUp(preset.VideoCodecPresets(), *json.GetValueArray("videoCodecPresets"));
    TakeUp(preset.AudioCodecPresets(), *json.GetValueArray("audioCodecPresets"));
}

// As deep as the document is nested, which the parser bounds.
void TakeUpQualities(IVXFormatNode& node, const IVXJsonValue& json)
{
    const auto presets = json.GetValueArray("formatPresetList");
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        TakeUpQualities(*node.GetFormatPreset(i), *presets->At(i));
    const auto children = json.GetValueArray("childList");
    for (int i = 0; i < node.ChildCount(); ++i)
        TakeUpQualities(*node.GetChild(i), *children->At(i));
}

} // namespace Vexlor::Tool
