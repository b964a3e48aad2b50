#pragma once

#include "codec/VXPresetList.h"

#include "IVXChannelLayoutPreset.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleAspectPreset.h"
#include "IVXSampleFmtPreset.h"
#include "IVXSampleratePreset.h"

namespace Vexlor
{

/// The codec preset. Its list families are one-line calls of VXPresetList; only the departures say more.
class VXCodecPreset final : public IVXCodecPreset
{
public:
    /// The preset of that codec with the built-in lists.
    explicit VXCodecPreset(int codecID);
    /// The preset that a document describes.
    explicit VXCodecPreset(const IVXJsonValue& json);
    /// A deep copy.
    VXCodecPreset(const VXCodecPreset& other);
    VXCodecPreset& operator=(const VXCodecPreset&) = delete;

    int CodecID() const override { return m_codecID; }
    std::string Name() const override;
    std::string Description() const override { return m_description; }
    void SetName(const std::string& name) override { m_name = name; }
    void SetDescription(const std::string& description) override { m_description = description; }
    std::shared_ptr<IVXCodecPreset> Clone() const override;
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

    HandleList<IVXResolutionPreset> ResolutionPresets() override { return m_resolutions.Handles(); }
    HandleList<const IVXResolutionPreset> ResolutionPresets() const override
    {
        return m_resolutions.ReadOnlyHandles();
    }
    std::shared_ptr<IVXResolutionPreset> ResolutionPresetAt(int index) const override
    {
        return m_resolutions.At(index);
    }
    int ResolutionPresetCount() const override { return m_resolutions.Count(); }
    void AddResolutionPreset(int width, int height) override
    {
        m_resolutions.Add(IVXResolutionPreset::MallocResolutionPreset(width, height));
    }
    void RemoveResolutionPreset(int index) override { m_resolutions.Remove(index); }
    void ResetResolutionPresets() override { m_resolutions.ResetToCopies(DefaultResolutions(m_codecID)); }
    int IndexForResolutionPreset() const override { return m_resolutions.Index(); }
    void SetIndexForResolutionPreset(int index) override { m_resolutions.SetIndex(index); }
    void InsertResolutionPresets(const HandleList<IVXResolutionPreset>& presets, int position) override
    {
        m_resolutions.Insert(presets, position);
    }
    void MoveResolutionPreset(int from, int to) override { m_resolutions.Move(from, to); }

    HandleList<IVXFrameratePreset> FrameratePresets() override { return m_framerates.Handles(); }
    HandleList<const IVXFrameratePreset> FrameratePresets() const override
    {
        return m_framerates.ReadOnlyHandles();
    }
    std::shared_ptr<IVXFrameratePreset> FrameratePresetAt(int index) const override
    {
        return m_framerates.Unchecked(index);
    }
    int FrameratePresetCount() const override { return m_framerates.Count(); }
    void AddFrameratePreset(int num, int den) override
    {
        m_framerates.Add(IVXFrameratePreset::MallocFrameratePreset(num, den));
    }
    void RemoveFrameratePreset(int index) override { m_framerates.Remove(index); }
    void ResetFrameratePresets() override { m_framerates.ResetToCopies(DefaultFramerates(m_codecID)); }
    int IndexForFrameratePresets() const override { return m_framerates.Index(); }
    void SetIndexForFrameratePresets(int index) override { m_framerates.SetIndex(index); }
    void InsertFrameratePresets(const HandleList<IVXFrameratePreset>& presets, int position) override
    {
        m_framerates.Insert(presets, position);
    }
    void MoveFrameratePreset(int from, int to) override { m_framerates.Move(from, to); }

    HandleList<IVXCodecQualityPreset> CodecQualityPresets() override { return m_qualities.Handles(); }
    HandleList<const IVXCodecQualityPreset> CodecQualityPresets() const override
    {
        return m_qualities.ReadOnlyHandles();
    }
    std::shared_ptr<const IVXCodecQualityPreset> CodecQualityPresetAt(int index) const override
    {
        return m_qualities.Unchecked(index);
    }
    std::shared_ptr<IVXCodecQualityPreset> CodecQualityPresetAt(int index) override
    {
        return m_qualities.Unchecked(index);
    }
    int CodecQualityPresetCount() const override { return m_qualities.Count(); }
    int IndexForQualityPresets() const override { return m_qualities.Index(); }
    void SetIndexForQualityPresets(int index) override { m_qualities.SetIndex(index); }

    HandleList<IVXSampleratePreset> SampleratePresets() override { return m_samplerates.Handles(); }
    HandleList<const IVXSampleratePreset> SampleratePresets() const override
    {
        return m_samplerates.ReadOnlyHandles();
    }
    std::shared_ptr<IVXSampleratePreset> SampleratePresetAt(int index) const override
    {
        return m_samplerates.Unchecked(index);
    }
    int SampleratePresetCount() const override { return m_samplerates.Count(); }
    void AddSampleratePreset(int samplerate) override
    {
        m_samplerates.Add(IVXSampleratePreset::MallocSampleratePreset(samplerate));
    }
    void RemoveSampleratePreset(int index) override { m_samplerates.Remove(index); }
    void ResetSampleratePresets() override { m_samplerates.ResetToCopies(DefaultSamplerates(m_codecID)); }
    int IndexForSampleratePresets() const override { return m_samplerates.Index(); }
    void SetIndexForSampleratePresets(int index) override { m_samplerates.SetIndex(index); }
    void InsertSampleratePresets(const HandleList<IVXSampleratePreset>& presets, int position) override
    {
        m_samplerates.Insert(presets, position);
    }
    void MoveSampleratePreset(int from, int to) override { m_samplerates.Move(from, to); }

    HandleList<IVXChannelLayoutPreset> ChannelLayoutPresets() override { return m_channelLayouts.Handles(); }
    HandleList<const IVXChannelLayoutPreset> ChannelLayoutPresets() const override
    {
        return m_channelLayouts.ReadOnlyHandles();
    }
    std::shared_ptr<IVXChannelLayoutPreset> ChannelLayoutPresetAt(int index) const override
    {
        return m_channelLayouts.Unchecked(index);
    }
    int ChannelLayoutPresetCount() const override { return m_channelLayouts.Count(); }
    void AddChannelLayoutPreset(std::uint64_t layout) override
    {
        m_channelLayouts.Add(IVXChannelLayoutPreset::MallocChannelLayoutPreset(layout));
    }
    void RemoveChannelLayoutPreset(int index) override { m_channelLayouts.Remove(index); }
    void ResetChannelLayoutPresets() override
    {
        m_channelLayouts.ResetToCopies(DefaultChannelLayouts(m_codecID));
    }
    int IndexForChannelLayoutPresets() const override { return m_channelLayouts.Index(); }
    void SetIndexForChannelLayoutPresets(int index) override { m_channelLayouts.SetIndex(index); }
    void InsertChannelLayoutPresets(const HandleList<IVXChannelLayoutPreset>& presets, int position) override
    {
        m_channelLayouts.Insert(presets, position);
    }
    void MoveChannelLayoutPreset(int from, int to) override { m_channelLayouts.Move(from, to); }

    HandleList<IVXProfilePreset> ProfilePresets() override { return m_profiles.Handles(); }
    HandleList<const IVXProfilePreset> ProfilePresets() const override
    {
        return m_profiles.ReadOnlyHandles();
    }
    std::shared_ptr<IVXProfilePreset> ProfilePresetAt(int index) const override
    {
        return m_profiles.Unchecked(index);
    }
    int ProfilePresetCount() const override { return m_profiles.Count(); }
    void AddProfilePreset(int profile) override
    {
        m_profiles.Add(IVXProfilePreset::MallocProfilePreset(profile, ProfileName(profile)));
    }
    void RemoveProfilePreset(int index) override { m_profiles.Remove(index); }
    void ResetProfilePresets() override { m_profiles.ResetToCopies(DefaultProfiles(m_codecID)); }
    int IndexForProfilesPresets() const override { return m_profiles.Index(); }
    void SetIndexForProfilesPresets(int index) override { m_profiles.SetIndex(index); }
    void InsertProfilePresets(const HandleList<IVXProfilePreset>& presets, int position) override
    {
        m_profiles.Insert(presets, position);
    }
    void MoveProfilePreset(int from, int to) override { m_profiles.Move(from, to); }

    HandleList<IVXLevelPreset> LevelPresets() override { return m_levels.Handles(); }
    HandleList<const IVXLevelPreset> LevelPresets() const override { return m_levels.ReadOnlyHandles(); }
    std::shared_ptr<IVXLevelPreset> LevelPresetAt(int index) const override
    {
        return m_levels.Unchecked(index);
    }
    int LevelPresetCount() const override { return m_levels.Count(); }
    void AddLevelPreset(int level) override
    {
        m_levels.Add(IVXLevelPreset::MallocLevelPreset(level, LevelName(level)));
    }
    void RemoveLevelPreset(int index) override { m_levels.Remove(index); }
    void ResetLevelPresets() override { m_levels.ResetToCopies(DefaultLevels(m_codecID)); }
    int IndexForLevelPresets() const override { return m_levels.Index(); }
    void SetIndexForLevelPresets(int index) override { m_levels.SetIndex(index); }
    void InsertLevelPresets(const HandleList<IVXLevelPreset>& presets, int position) override
    {
        m_levels.Insert(presets, position);
    }
    void MoveLevelPreset(int from, int to) override { m_levels.Move(from, to); }

    std::shared_ptr<IVXSampleFmtPreset> SampleFmtPresetAt(int index) const override
    {
        return m_sampleFmts.Unchecked(index);
    }
    HandleList<const IVXSampleFmtPreset> SampleFmtPresets() const override
    {
        return m_sampleFmts.ReadOnlyHandles();
    }
    int IndexForSampleFmts() const override { return m_sampleFmts.Index(); }
    // Deliberately unchecked, unlike every other index.
    void SetIndexForSampleFmts(int index) override { m_sampleFmts.StoreIndex(index); }
    std::shared_ptr<IVXSampleFmtPreset> CurrentSampleFmt() const override { return m_sampleFmts.Current(); }
    std::shared_ptr<IVXSampleAspectPreset> AspectPreset() override { return m_aspect; }
    std::shared_ptr<const IVXSampleAspectPreset> AspectPreset() const override { return m_aspect; }

private:
    std::string ProfileName(int profile) const;
    std::string LevelName(int level) const;
    void LoadLists(const IVXJsonValue& json);
    void StartLevelsWithUnknown();

    int m_codecID = 0;
    std::string m_name;
    std::string m_description;
    VXPresetList<IVXResolutionPreset> m_resolutions;
    VXPresetList<IVXFrameratePreset> m_framerates;
    VXPresetList<IVXCodecQualityPreset> m_qualities;
    VXPresetList<IVXSampleratePreset> m_samplerates;
    VXPresetList<IVXChannelLayoutPreset> m_channelLayouts;
    VXPresetList<IVXProfilePreset> m_profiles;
    VXPresetList<IVXLevelPreset> m_levels;
    std::shared_ptr<IVXSampleAspectPreset> m_aspect;
    VXPresetList<IVXSampleFmtPreset> m_sampleFmts;
};

} // namespace Vexlor
