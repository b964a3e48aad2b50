#pragma once

#include "IVXChannelLayoutPreset.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "IVXRational.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleFmtPreset.h"
#include "IVXSampleratePreset.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/Slots.h"

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

// The families of list operations of a codec preset, each as the operations' addresses, so that one test body
// serves them all. The entry of number 1 is called A, that of 2 is B, and so on.

/// The number that an entry was made of.
inline int NumberOf(const IVXResolutionPreset& entry) { return entry.Width(); }
inline int NumberOf(const IVXFrameratePreset& entry) { return entry.Framerate()->Num(); }
inline int NumberOf(const IVXSampleratePreset& entry) { return entry.Samplerate(); }
inline int NumberOf(const IVXChannelLayoutPreset& entry) { return static_cast<int>(entry.Layout()); }
inline int NumberOf(const IVXProfilePreset& entry) { return entry.Profile(); }
inline int NumberOf(const IVXLevelPreset& entry) { return entry.Level(); }

struct ResolutionFamily
{
    using Preset = IVXResolutionPreset;
    static void Add(IVXCodecPreset& codec, int number) { codec.AddResolutionPreset(number, number + 1); }
    static std::shared_ptr<Preset> Make(int number)
    {
        return IVXResolutionPreset::MallocResolutionPreset(number, number + 1);
    }
    static constexpr auto kAdded = R"({"width":1,"height":2})";
    static constexpr auto kIndexKey = "indexForResolutionPreset";
    static constexpr auto kList = MutableForm(&IVXCodecPreset::ResolutionPresets);
    static constexpr auto kConstList = ConstForm(&IVXCodecPreset::ResolutionPresets);
    static constexpr auto kAt = &IVXCodecPreset::ResolutionPresetAt;
    static constexpr auto kCount = &IVXCodecPreset::ResolutionPresetCount;
    static constexpr auto kRemove = &IVXCodecPreset::RemoveResolutionPreset;
    static constexpr auto kReset = &IVXCodecPreset::ResetResolutionPresets;
    static constexpr auto kIndex = &IVXCodecPreset::IndexForResolutionPreset;
    static constexpr auto kSetIndex = &IVXCodecPreset::SetIndexForResolutionPreset;
    static constexpr auto kInsert = &IVXCodecPreset::InsertResolutionPresets;
    static constexpr auto kMove = &IVXCodecPreset::MoveResolutionPreset;
    static constexpr auto kCurrent = &IVXCodecPreset::CurrentResolution;
    static constexpr auto kDefaults = &IVXCodecPreset::DefaultResolutions;
};

struct FramerateFamily
{
    using Preset = IVXFrameratePreset;
    static void Add(IVXCodecPreset& codec, int number) { codec.AddFrameratePreset(number, number + 1); }
    static std::shared_ptr<Preset> Make(int number)
    {
        return IVXFrameratePreset::MallocFrameratePreset(number, number + 1);
    }
    static constexpr auto kAdded = R"({"num":1,"den":2})";
    static constexpr auto kIndexKey = "indexForFrameratePresets";
    static constexpr auto kList = MutableForm(&IVXCodecPreset::FrameratePresets);
    static constexpr auto kConstList = ConstForm(&IVXCodecPreset::FrameratePresets);
    static constexpr auto kAt = &IVXCodecPreset::FrameratePresetAt;
    static constexpr auto kCount = &IVXCodecPreset::FrameratePresetCount;
    static constexpr auto kRemove = &IVXCodecPreset::RemoveFrameratePreset;
    static constexpr auto kReset = &IVXCodecPreset::ResetFrameratePresets;
    static constexpr auto kIndex = &IVXCodecPreset::IndexForFrameratePresets;
    static constexpr auto kSetIndex = &IVXCodecPreset::SetIndexForFrameratePresets;
    static constexpr auto kInsert = &IVXCodecPreset::InsertFrameratePresets;
    static constexpr auto kMove = &IVXCodecPreset::MoveFrameratePreset;
    static constexpr auto kCurrent = &IVXCodecPreset::CurrentFramerate;
    static constexpr auto kDefaults = &IVXCodecPreset::DefaultFramerates;
};

struct SamplerateFamily
{
    using Preset = IVXSampleratePreset;
    static void Add(IVXCodecPreset& codec, int number) { codec.AddSampleratePreset(number); }
    static std::shared_ptr<Preset> Make(int number)
    {
        return IVXSampleratePreset::MallocSampleratePreset(number);
    }
    static constexpr auto kAdded = R"({"samplerate":1})";
    static constexpr auto kIndexKey = "indexForSampleratePresets";
    static constexpr auto kList = MutableForm(&IVXCodecPreset::SampleratePresets);
    static constexpr auto kConstList = ConstForm(&IVXCodecPreset::SampleratePresets);
    static constexpr auto kAt = &IVXCodecPreset::SampleratePresetAt;
    static constexpr auto kCount = &IVXCodecPreset::SampleratePresetCount;
    static constexpr auto kRemove = &IVXCodecPreset::RemoveSampleratePreset;
    static constexpr auto kReset = &IVXCodecPreset::ResetSampleratePresets;
    static constexpr auto kIndex = &IVXCodecPreset::IndexForSampleratePresets;
    static constexpr auto kSetIndex = &IVXCodecPreset::SetIndexForSampleratePresets;
    static constexpr auto kInsert = &IVXCodecPreset::InsertSampleratePresets;
    static constexpr auto kMove = &IVXCodecPreset::MoveSampleratePreset;
    static constexpr auto kCurrent = &IVXCodecPreset::CurrentSamplerate;
    static constexpr auto kDefaults = &IVXCodecPreset::DefaultSamplerates;
};

struct ChannelLayoutFamily
{
    using Preset = IVXChannelLayoutPreset;
    static void Add(IVXCodecPreset& codec, int number)
    {
        codec.AddChannelLayoutPreset(static_cast<std::uint64_t>(number));
    }
    static std::shared_ptr<Preset> Make(int number)
    {
        return IVXChannelLayoutPreset::MallocChannelLayoutPreset(static_cast<std::uint64_t>(number));
    }
    static constexpr auto kAdded = R"({"chLayout":1})";
    static constexpr auto kIndexKey = "indexForChannelLayoutPresets";
    static constexpr auto kList = MutableForm(&IVXCodecPreset::ChannelLayoutPresets);
    static constexpr auto kConstList = ConstForm(&IVXCodecPreset::ChannelLayoutPresets);
    static constexpr auto kAt = &IVXCodecPreset::ChannelLayoutPresetAt;
    static constexpr auto kCount = &IVXCodecPreset::ChannelLayoutPresetCount;
    static constexpr auto kRemove = &IVXCodecPreset::RemoveChannelLayoutPreset;
    static constexpr auto kReset = &IVXCodecPreset::ResetChannelLayoutPresets;
    static constexpr auto kIndex = &IVXCodecPreset::IndexForChannelLayoutPresets;
    static constexpr auto kSetIndex = &IVXCodecPreset::SetIndexForChannelLayoutPresets;
    static constexpr auto kInsert = &IVXCodecPreset::InsertChannelLayoutPresets;
    static constexpr auto kMove = &IVXCodecPreset::MoveChannelLayoutPreset;
    static constexpr auto kCurrent = &IVXCodecPreset::CurrentChannelLayout;
    static constexpr auto kDefaults = &IVXCodecPreset::DefaultChannelLayouts;
};

struct ProfileFamily
{
    using Preset = IVXProfilePreset;
    static void Add(IVXCodecPreset& codec, int number) { codec.AddProfilePreset(number); }
    static std::shared_ptr<Preset> Make(int number)
    {
        return IVXProfilePreset::MallocProfilePreset(number, "");
    }
    static constexpr auto kAdded = R"({"profile":1,"name":""})";
    static constexpr auto kIndexKey = "indexForProfilesPresets";
    static constexpr auto kList = MutableForm(&IVXCodecPreset::ProfilePresets);
    static constexpr auto kConstList = ConstForm(&IVXCodecPreset::ProfilePresets);
    static constexpr auto kAt = &IVXCodecPreset::ProfilePresetAt;
    static constexpr auto kCount = &IVXCodecPreset::ProfilePresetCount;
    static constexpr auto kRemove = &IVXCodecPreset::RemoveProfilePreset;
    static constexpr auto kReset = &IVXCodecPreset::ResetProfilePresets;
    static constexpr auto kIndex = &IVXCodecPreset::IndexForProfilesPresets;
    static constexpr auto kSetIndex = &IVXCodecPreset::SetIndexForProfilesPresets;
    static constexpr auto kInsert = &IVXCodecPreset::InsertProfilePresets;
    static constexpr auto kMove = &IVXCodecPreset::MoveProfilePreset;
    static constexpr auto kCurrent = &IVXCodecPreset::CurrentPrefile;
    static constexpr auto kDefaults = &IVXCodecPreset::DefaultProfiles;
};

struct LevelFamily
{
    using Preset = IVXLevelPreset;
    static void Add(IVXCodecPreset& codec, int number) { codec.AddLevelPreset(number); }
    static std::shared_ptr<Preset> Make(int number) { return IVXLevelPreset::MallocLevelPreset(number, ""); }
    static constexpr auto kAdded = R"({"level":1,"name":""})";
    static constexpr auto kIndexKey = "indexForLevelPresets";
    static constexpr auto kList = MutableForm(&IVXCodecPreset::LevelPresets);
    static constexpr auto kConstList = ConstForm(&IVXCodecPreset::LevelPresets);
    static constexpr auto kAt = &IVXCodecPreset::LevelPresetAt;
    static constexpr auto kCount = &IVXCodecPreset::LevelPresetCount;
    static constexpr auto kRemove = &IVXCodecPreset::RemoveLevelPreset;
    static constexpr auto kReset = &IVXCodecPreset::ResetLevelPresets;
    static constexpr auto kIndex = &IVXCodecPreset::IndexForLevelPresets;
    static constexpr auto kSetIndex = &IVXCodecPreset::SetIndexForLevelPresets;
    static constexpr auto kInsert = &IVXCodecPreset::InsertLevelPresets;
    static constexpr auto kMove = &IVXCodecPreset::MoveLevelPreset;
    static constexpr auto kCurrent = &IVXCodecPreset::CurrentLevel;
    static constexpr auto kDefaults = &IVXCodecPreset::DefaultLevels;
};

/// The quality settings: their list is fixed, so this family has no operations that change it.
struct QualityFamily
{
    using Preset = IVXCodecQualityPreset;
    static constexpr auto kList = MutableForm(&IVXCodecPreset::CodecQualityPresets);
    static constexpr auto kConstList = ConstForm(&IVXCodecPreset::CodecQualityPresets);
    static constexpr auto kAt = MutableForm(&IVXCodecPreset::CodecQualityPresetAt);
    static constexpr auto kCount = &IVXCodecPreset::CodecQualityPresetCount;
    static constexpr auto kIndex = &IVXCodecPreset::IndexForQualityPresets;
    static constexpr auto kSetIndex = &IVXCodecPreset::SetIndexForQualityPresets;
    static constexpr auto kCurrent = ConstForm(&IVXCodecPreset::CurrentCodecQuality);
};

/// What each entry of a list shows to a user: "Auto, 1920 x 1080".
template <class List, class Show>
std::string Shown(const List& list, Show show)
{
    std::string text;
    for (const auto& entry : list)
        text += (text.empty() ? "" : ", ") + ((*entry).*show)();
    return text;
}

/// The written form of each entry, one behind the other.
template <class List>
std::string Written(const List& list)
{
    std::string text;
    for (const auto& entry : list)
        text += Text(entry->JsonValue());
    return text;
}

} // namespace Vexlor
