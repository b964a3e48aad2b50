#include "Commands.h"

#include "ListText.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"
#include "apps/host/Units.h"

#include "IVXChannelLayoutPreset.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFormatPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleAspectPreset.h"
#include "IVXSampleFmtPreset.h"
#include "IVXSampleratePreset.h"

namespace Vexlor::Tool
{

namespace
{

template <typename Preset, typename Display>
NamedList ListOf(const std::string& name, const std::vector<std::shared_ptr<Preset>>& presets, int current,
                 Display display)
{
    NamedList list{name, {}, current};
    for (const auto& preset : presets)
        list.entries.push_back((*preset.*display)());
    return list;
}

std::string QualityText(IVXCodecQualityPreset& quality)
{
    const auto bitrate = quality.IsCustom() ? BitrateText(quality.Bitrate()) : std::string();
    return quality.FormatQuality() + (bitrate.empty() ? "" : " (" + bitrate + ')');
}

NamedList QualityList(IVXCodecPreset& codec)
{
    NamedList list{"Quality", {}, codec.IndexForQualityPresets()};
    for (const auto& quality : codec.CodecQualityPresets())
        list.entries.push_back(QualityText(*quality));
    return list;
}

/// The lists of a codec preset that have entries, in the order of its interface.
std::vector<NamedList> ListsOf(IVXCodecPreset& codec)
{
    std::vector<NamedList> lists{
        ListOf("Resolution", codec.ResolutionPresets(), codec.IndexForResolutionPreset(),
               &IVXResolutionPreset::FormatResolution),
        ListOf("Frame rate", codec.FrameratePresets(), codec.IndexForFrameratePresets(),
               &IVXFrameratePreset::FormatFramerate),
        QualityList(codec),
        ListOf("Sample rate", codec.SampleratePresets(), codec.IndexForSampleratePresets(),
               &IVXSampleratePreset::FormatSamplerate),
        ListOf("Channel layout", codec.ChannelLayoutPresets(), codec.IndexForChannelLayoutPresets(),
               &IVXChannelLayoutPreset::FormatLayout),
        ListOf("Profile", codec.ProfilePresets(), codec.IndexForProfilesPresets(), &IVXProfilePreset::Name),
        ListOf("Level", codec.LevelPresets(), codec.IndexForLevelPresets(), &IVXLevelPreset::Name),
        ListOf("Format", std::as_const(codec).SampleFmtPresets(), codec.IndexForSampleFmts(),
               &IVXSampleFmtPreset::FormatSampleFmt),
    };
    std::erase_if(lists, [](const NamedList& list) { return list.entries.empty(); });
    return lists;
}

/// One of the two halves of a format preset.
struct Half
{
    std::string name;
    std::vector<std::shared_ptr<IVXCodecPreset>> codecs;
    int current;
    int maxBitrate;
    int minBitrate;
};

std::vector<Half> HalvesOf(IVXFormatPreset& preset)
{
    return {{"Video", preset.VideoCodecPresets(), preset.IndexForVideoCodecPresets(),
             preset.MaxVideoBitrate(), preset.MinVideoBitrate()},
            {"Audio", preset.AudioCodecPresets(), preset.IndexForAudioCodecPresets(),
             preset.MaxAudioBitrate(), preset.MinAudioBitrate()}};
}

std::string LineOf(const std::string& name, const std::string& value, const Style& style)
{
    return value.empty() ? std::string() : ListText({name, {value}, -1}, style);
}

std::string CodecText(IVXCodecPreset& codec, const Style& style)
{
    if (codec.IsAutoValue())
        return {};
    std::string text = '\n' + Strong(OneLine(codec.Name()), style) + '\n';
    text += LineOf("Description", codec.Description(), style);
    for (const auto& list : ListsOf(codec))
        text += ListText(list, style);
    return text + LineOf("Sample aspect", codec.AspectPreset()->AspectName(), style);
}

std::string HeadText(const CatalogueEntry& entry, const std::vector<Half>& halves, const Style& style)
{
    const auto& preset = *entry.preset;
    std::string text = Strong(OneLine(entry.path), style) + '\n';
    text += LineOf("Description", preset.Description(), style);
    text += LineOf("Container", preset.FormatName(), style);
    text += LineOf("Hint", preset.FormatHint(), style);
    text += LineOf("Largest size", SizeText(preset.MaxWidth(), preset.MaxHeight()), style);
    text += LineOf("Smallest size", SizeText(preset.MinWidth(), preset.MinHeight()), style);
    for (const auto& half : halves)
    {
        text += LineOf(half.name + " at most", BitrateText(half.maxBitrate), style);
        text += LineOf(half.name + " at least", BitrateText(half.minBitrate), style);
    }
    for (const auto& half : halves)
        text +=
            ListText(ListOf(half.name + " codec", half.codecs, half.current, &IVXCodecPreset::Name), style);
    return text;
}

Json ListJson(const NamedList& list)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("name", list.name);
    json->SetValueInt("current", list.current);
    json->SetValueArray("entries", JsonElements(list.entries));
    return json;
}

Json CodecJson(const std::shared_ptr<IVXCodecPreset>& codec)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("codec", codec->Name());
    json->SetValueInt("codecID", codec->CodecID());
    json->SetValueString("description", codec->Description());
    json->SetValueArray("lists", JsonElements(ListsOf(*codec), ListJson));
    json->SetValueString("sampleAspect", codec->AspectPreset()->AspectName());
    return json;
}

Json HalfJson(const Half& half)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt("maxBitrate", half.maxBitrate);
    json->SetValueInt("minBitrate", half.minBitrate);
    json->SetValueInt("current", half.current);
    json->SetValueArray("codecs", JsonElements(half.codecs, CodecJson));
    return json;
}

std::string PresetJson(const CatalogueEntry& entry, const std::vector<Half>& halves)
{
    const auto& preset = *entry.preset;
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("path", entry.path);
    json->SetValueString("name", preset.Name());
    json->SetValueString("description", preset.Description());
    json->SetValueString("format", preset.FormatName());
    json->SetValueString("hint", preset.FormatHint());
    json->SetValueInt("faceID", preset.FaceID());
    json->SetValueArray("maxSize", JsonElements(preset.MaxWidth(), preset.MaxHeight()));
    json->SetValueArray("minSize", JsonElements(preset.MinWidth(), preset.MinHeight()));
    json->SetValueObject("video", HalfJson(halves.front()));
    json->SetValueObject("audio", HalfJson(halves.back()));
    return JsonDocument(*json);
}

} // namespace

std::string ShowCommand(const Request& request, const Catalogue& catalogue, const Style& style)
{
    const auto& entry = FindPreset(catalogue, request.preset);
    // Quality settings tell their text only where they may be edited, so the lists are those of a copy.
    const auto editable = entry.preset->Clone();
    const auto halves = HalvesOf(*editable);
    if (request.asJson)
        return PresetJson(entry, halves);
    auto text = HeadText(entry, halves, style);
    for (const auto& half : halves)
        for (const auto& codec : half.codecs)
            text += CodecText(*codec, style);
    return text;
}

} // namespace Vexlor::Tool
