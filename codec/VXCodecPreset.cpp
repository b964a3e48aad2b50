#include "codec/VXCodecPreset.h"

#include "codec/VXCodecDefaults.h"
#include "presets/VXWrapping.h"

#include "IVXCodecs.h"
#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

constexpr std::string_view kAspectPreset = "aspectPreset";
constexpr std::string_view kCodecID = "codecID";
constexpr std::string_view kName = "name";
constexpr std::string_view kDescription = "description";
constexpr std::string_view kIndexForQualityPresets = "indexForQualityPresets";
constexpr std::string_view kIndexForSampleFmts = "indexForSampleFmts";

// The two members of a list that is kept in documents.
struct ListKeys
{
    std::string_view index;
    std::string_view entries;
};

constexpr ListKeys kResolutions{"indexForResolutionPreset", "resolutionPresets"};
constexpr ListKeys kFramerates{"indexForFrameratePresets", "frameratePresets"};
constexpr ListKeys kSamplerates{"indexForSampleratePresets", "sampleratePresets"};
constexpr ListKeys kChannelLayouts{"indexForChannelLayoutPresets", "channelLayoutPresets"};
constexpr ListKeys kProfiles{"indexForProfilesPresets", "profilesPresets"};
constexpr ListKeys kLevels{"indexForLevelPresets", "levelPresets"};

template <typename Preset>
void Read(const IVXJsonValue& json, const ListKeys& keys, VXPresetList<Preset>& list)
{
    list.StoreIndex(json.GetValueInt(keys.index));
    list.Reset(ReadValues<Preset>(*json.GetValueArray(keys.entries)));
}

template <typename Preset>
void Write(IVXJsonValue& json, const ListKeys& keys, const VXPresetList<Preset>& list)
{
    json.SetValueInt(keys.index, list.Index());
    json.SetValueArray(keys.entries, JsonOfEach(list.Entries()));
}

} // namespace

VXCodecPreset::VXCodecPreset(int codecID)
    : m_codecID(codecID),
      m_aspect(IVXSampleAspectPreset::MallocSampleAspectPreset(IVXSampleAspectPreset::AspectDefault))
{
    if (codecID == VXCodecID_None)
        return;
    ResetResolutionPresets();
    ResetFrameratePresets();
    m_qualities.Reset(DefaultQualities());
    ResetSampleratePresets();
    ResetChannelLayoutPresets();
    ResetProfilePresets();
    ResetLevelPresets();
    if (const auto codecs = IVXCodecs::MallocCodecs(codecID, true))
        m_name = codecs->GetCodecName();
    m_sampleFmts.Reset(DefaultSampleFormats(codecID));
}

VXCodecPreset::VXCodecPreset(const IVXJsonValue& json)
    : m_aspect(IVXSampleAspectPreset::MallocSampleAspectPreset(json[kAspectPreset]))
{
    m_codecID = json.GetValueInt(kCodecID);
    m_name = json.GetValueString(kName);
    m_description = json.GetValueString(kDescription);
    LoadLists(json);
    StartLevelsWithUnknown();
    m_sampleFmts.StoreIndex(json.GetValueInt(kIndexForSampleFmts));
    if (m_codecID == VXCodecID_None)
        return;
    // Grades, formats and the name belong to the codec, not to the document; deliberately, a name in it is
    // dropped.
    m_qualities.Reset(DefaultQualities());
    m_sampleFmts.Reset(DefaultSampleFormats(m_codecID));
    m_name = IVXCodecs::DefaultCodecName(m_codecID, true);
}

VXCodecPreset::VXCodecPreset(const VXCodecPreset& other)
    : m_codecID(other.m_codecID), m_name(other.m_name), m_description(other.m_description),
      m_resolutions(other.m_resolutions.Clone()), m_framerates(other.m_framerates.Clone()),
      m_qualities(other.m_qualities.Clone()), m_samplerates(other.m_samplerates.Clone()),
      m_channelLayouts(other.m_channelLayouts.Clone()), m_profiles(other.m_profiles.Clone()),
      m_levels(other.m_levels.Clone()), m_aspect(other.m_aspect->Clone()),
      m_sampleFmts(other.m_sampleFmts.Clone())
{
}

void VXCodecPreset::LoadLists(const IVXJsonValue& json)
{
    Read(json, kResolutions, m_resolutions);
    Read(json, kFramerates, m_framerates);
    Read(json, kSamplerates, m_samplerates);
    Read(json, kChannelLayouts, m_channelLayouts);
    Read(json, kProfiles, m_profiles);
    Read(json, kLevels, m_levels);
}

// Every level list can say "not told"; a current index keeps naming the same level.
void VXCodecPreset::StartLevelsWithUnknown()
{
    const auto first = m_levels.At(0);
    if (first && first->Level() == IVXCodecs::VXLevelUnknown)
        return;
    m_levels.Insert({IVXLevelPreset::MallocLevelPreset(IVXCodecs::VXLevelUnknown, "Unknown")}, 0);
    if (first)
        m_levels.StoreIndex(WrappingSum(m_levels.Index(), 1));
}

std::shared_ptr<IVXJsonValue> VXCodecPreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueObject(kAspectPreset, m_aspect->JsonValue());
    json->SetValueInt(kCodecID, m_codecID);
    json->SetValueString(kName, m_name);
    json->SetValueString(kDescription, m_description);
    Write(*json, kResolutions, m_resolutions);
    Write(*json, kFramerates, m_framerates);
    json->SetValueInt(kIndexForQualityPresets, m_qualities.Index());
    Write(*json, kSamplerates, m_samplerates);
    Write(*json, kChannelLayouts, m_channelLayouts);
    Write(*json, kProfiles, m_profiles);
    Write(*json, kLevels, m_levels);
    json->SetValueInt(kIndexForSampleFmts, m_sampleFmts.Index());
    return json;
}

std::shared_ptr<IVXCodecPreset> VXCodecPreset::Clone() const
{
    return std::make_shared<VXCodecPreset>(*this);
}

std::string VXCodecPreset::Name() const { return IsAutoValue() ? "Auto" : m_name; }

std::string VXCodecPreset::ProfileName(int profile) const
{
    const auto codecs = IVXCodecs::MallocCodecs(m_codecID, true);
    return codecs ? codecs->ProfileName(profile) : std::string();
}

std::string VXCodecPreset::LevelName(int level) const
{
    const auto codecs = IVXCodecs::MallocCodecs(m_codecID, true);
    return codecs ? codecs->LevelName(level) : std::string();
}

std::shared_ptr<IVXCodecPreset> IVXCodecPreset::MallocCodecPreset(int codecID)
{
    return std::make_shared<VXCodecPreset>(codecID);
}

std::shared_ptr<IVXCodecPreset>
IVXCodecPreset::MallocCodecPreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    return std::make_shared<VXCodecPreset>(json ? *json : *IVXJsonValue::JsonValueNull());
}

} // namespace Vexlor
