#pragma once

#include "VXExport.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

class IVXChannelLayoutPreset;
class IVXCodecParameter;
class IVXCodecQualityPreset;
class IVXFrameratePreset;
class IVXJsonValue;
class IVXLevelPreset;
class IVXProfilePreset;
class IVXResolutionPreset;
class IVXSampleAspectPreset;
class IVXSampleFmtPreset;
class IVXSampleratePreset;

/// One output codec as a user may configure it: the codec, its name and description, and for every encoding
/// parameter the list of values on offer with the index of the current one. An Auto codec preset stands for
/// no codec.
///
/// The list families follow one pattern. The list getters hand out a copy of the list whose entries are
/// shared with this preset. A current index is stored as a position and never follows an entry: adding,
/// removing, moving and resetting leave it alone, and it may be stale, so read the current entry with the
/// Current... functions, which answer an empty handle for an index outside the list. Unless an operation says
/// otherwise, a position outside the list is ignored.
class VX_PRESETS_API IVXCodecPreset
{
public:
    /// A preset of that codec with the built-in lists and every index 0; VXCodecID_None gives the Auto
    /// preset, whose lists are empty.
    static std::shared_ptr<IVXCodecPreset> MallocCodecPreset(int codecID);
    /// A preset read from a JSON object, an empty handle being one without members; absent lists are empty,
    /// indices are taken as they are. Deliberately, a real codec's name, quality list and sample formats are
    /// the built-in ones whatever the object holds, and the level list always starts with the level
    /// "Unknown".
    static std::shared_ptr<IVXCodecPreset> MallocCodecPreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// The resolutions of the codec, or those of a fixed table within its limits, with Auto in front where
    /// there are at least two; empty for an unknown codec, as for all that follow.
    static std::vector<std::shared_ptr<IVXResolutionPreset>> DefaultResolutions(int codecID);
    /// The frame rates of the codec, or those of a fixed table within its limits; Auto as above.
    static std::vector<std::shared_ptr<IVXFrameratePreset>> DefaultFramerates(int codecID);
    /// The sample rates of the codec; Auto as above.
    static std::vector<std::shared_ptr<IVXSampleratePreset>> DefaultSamplerates(int codecID);
    /// The channel layouts of the codec; Auto as above.
    static std::vector<std::shared_ptr<IVXChannelLayoutPreset>> DefaultChannelLayouts(int codecID);
    /// "Unknown", then the profiles of the codec.
    static std::vector<std::shared_ptr<IVXProfilePreset>> DefaultProfiles(int codecID);
    /// "Unknown", then the levels of the codec.
    static std::vector<std::shared_ptr<IVXLevelPreset>> DefaultLevels(int codecID);
    /// The pixel or sample formats of the codec; where there are at least two, an entry of VXPixFormat_None
    /// in front, deliberately for audio too.
    static std::vector<std::shared_ptr<IVXSampleFmtPreset>> DefaultSampleFmt(int codecID);

    /// The codec; VXCodecID_None for the Auto preset.
    virtual int CodecID() const = 0;
    /// The name to show; "Auto" for the Auto preset, whatever its stored name.
    virtual std::string Name() const = 0;
    /// Free text.
    virtual std::string Description() const = 0;
    /// Stores the name.
    virtual void SetName(const std::string& name) = 0;
    /// Stores the description.
    virtual void SetDescription(const std::string& description) = 0;
    /// A deep copy: no list entry is shared with this preset.
    virtual std::shared_ptr<IVXCodecPreset> Clone() const = 0;
    /// A new object that the JSON factory reads. Of the quality and sample format lists only the index is
    /// written.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

    /// The resolutions on offer.
    virtual std::vector<std::shared_ptr<IVXResolutionPreset>> ResolutionPresets() = 0;
    /// The resolutions on offer, read only.
    virtual std::vector<std::shared_ptr<const IVXResolutionPreset>> ResolutionPresets() const = 0;
    /// The resolution at index, shared with this preset; empty when index is outside [0,
    /// ResolutionPresetCount()).
    virtual std::shared_ptr<IVXResolutionPreset> ResolutionPresetAt(int index) const = 0;
    /// Number of resolutions on offer.
    virtual int ResolutionPresetCount() const = 0;
    /// Appends a resolution of that size, in pixels.
    virtual void AddResolutionPreset(int width, int height) = 0;
    /// Removes the resolution at index.
    virtual void RemoveResolutionPreset(int index) = 0;
    /// Replaces the list by DefaultResolutions(CodecID()).
    virtual void ResetResolutionPresets() = 0;
    /// Index of the current resolution, which may be stale.
    virtual int IndexForResolutionPreset() const = 0;
    /// Makes the resolution at index the current one.
    virtual void SetIndexForResolutionPreset(int index) = 0;
    /// Inserts those very entries before position, which may be the count; empty handles are left out.
    virtual void InsertResolutionPresets(const std::vector<std::shared_ptr<IVXResolutionPreset>>& presets,
                                         int position) = 0;
    /// Moves the resolution at from to just before the one at to, which may be the count. Throws
    /// std::out_of_range when from is the count.
    virtual void MoveResolutionPreset(int from, int to) = 0;

    /// The frame rates on offer.
    virtual std::vector<std::shared_ptr<IVXFrameratePreset>> FrameratePresets() = 0;
    /// The frame rates on offer, read only.
    virtual std::vector<std::shared_ptr<const IVXFrameratePreset>> FrameratePresets() const = 0;
    /// The frame rate at index. Deliberately unchecked: index must be inside [0, FrameratePresetCount()).
    virtual std::shared_ptr<IVXFrameratePreset> FrameratePresetAt(int index) const = 0;
    /// Number of frame rates on offer.
    virtual int FrameratePresetCount() const = 0;
    /// Appends the frame rate num/den.
    virtual void AddFrameratePreset(int num, int den) = 0;
    /// Removes the frame rate at index.
    virtual void RemoveFrameratePreset(int index) = 0;
    /// Replaces the list by DefaultFramerates(CodecID()).
    virtual void ResetFrameratePresets() = 0;
    /// Index of the current frame rate, which may be stale.
    virtual int IndexForFrameratePresets() const = 0;
    /// Makes the frame rate at index the current one.
    virtual void SetIndexForFrameratePresets(int index) = 0;
    /// Inserts those very entries before position, which may be the count; empty handles are left out.
    virtual void InsertFrameratePresets(const std::vector<std::shared_ptr<IVXFrameratePreset>>& presets,
                                        int position) = 0;
    /// Moves the frame rate at from to just before the one at to, which may be the count. Throws
    /// std::out_of_range when from is the count.
    virtual void MoveFrameratePreset(int from, int to) = 0;

    /// The quality settings on offer. Their list is the same for every codec and cannot be changed.
    virtual std::vector<std::shared_ptr<IVXCodecQualityPreset>> CodecQualityPresets() = 0;
    /// The quality settings on offer, read only.
    virtual std::vector<std::shared_ptr<const IVXCodecQualityPreset>> CodecQualityPresets() const = 0;
    /// The quality setting at index, read only. Deliberately unchecked: index must be inside the list.
    virtual std::shared_ptr<const IVXCodecQualityPreset> CodecQualityPresetAt(int index) const = 0;
    /// The quality setting at index, editable; as above.
    virtual std::shared_ptr<IVXCodecQualityPreset> CodecQualityPresetAt(int index) = 0;
    /// Number of quality settings on offer.
    virtual int CodecQualityPresetCount() const = 0;
    /// Index of the current quality setting, which may be stale.
    virtual int IndexForQualityPresets() const = 0;
    /// Makes the quality setting at index the current one.
    virtual void SetIndexForQualityPresets(int index) = 0;

    /// The sample rates on offer.
    virtual std::vector<std::shared_ptr<IVXSampleratePreset>> SampleratePresets() = 0;
    /// The sample rates on offer, read only.
    virtual std::vector<std::shared_ptr<const IVXSampleratePreset>> SampleratePresets() const = 0;
    /// The sample rate at index. Deliberately unchecked: index must be inside [0, SampleratePresetCount()).
    virtual std::shared_ptr<IVXSampleratePreset> SampleratePresetAt(int index) const = 0;
    /// Number of sample rates on offer.
    virtual int SampleratePresetCount() const = 0;
    /// Appends that sample rate, in Hz.
    virtual void AddSampleratePreset(int samplerate) = 0;
    /// Removes the sample rate at index.
    virtual void RemoveSampleratePreset(int index) = 0;
    /// Replaces the list by DefaultSamplerates(CodecID()).
    virtual void ResetSampleratePresets() = 0;
    /// Index of the current sample rate, which may be stale.
    virtual int IndexForSampleratePresets() const = 0;
    /// Makes the sample rate at index the current one.
    virtual void SetIndexForSampleratePresets(int index) = 0;
    /// Inserts those very entries before position, which may be the count; empty handles are left out.
    virtual void InsertSampleratePresets(const std::vector<std::shared_ptr<IVXSampleratePreset>>& presets,
                                         int position) = 0;
    /// Moves the sample rate at from to just before the one at to, which may be the count. Throws
    /// std::out_of_range when from is the count.
    virtual void MoveSampleratePreset(int from, int to) = 0;

    /// The channel layouts on offer.
    virtual std::vector<std::shared_ptr<IVXChannelLayoutPreset>> ChannelLayoutPresets() = 0;
    /// The channel layouts on offer, read only.
    virtual std::vector<std::shared_ptr<const IVXChannelLayoutPreset>> ChannelLayoutPresets() const = 0;
    /// The channel layout at index. Deliberately unchecked: index must be inside [0,
    /// ChannelLayoutPresetCount()).
    virtual std::shared_ptr<IVXChannelLayoutPreset> ChannelLayoutPresetAt(int index) const = 0;
    /// Number of channel layouts on offer.
    virtual int ChannelLayoutPresetCount() const = 0;
    /// Appends the channel layout of that mask.
    virtual void AddChannelLayoutPreset(std::uint64_t layout) = 0;
    /// Removes the channel layout at index.
    virtual void RemoveChannelLayoutPreset(int index) = 0;
    /// Replaces the list by DefaultChannelLayouts(CodecID()).
    virtual void ResetChannelLayoutPresets() = 0;
    /// Index of the current channel layout, which may be stale.
    virtual int IndexForChannelLayoutPresets() const = 0;
    /// Makes the channel layout at index the current one.
    virtual void SetIndexForChannelLayoutPresets(int index) = 0;
    /// Inserts those very entries before position, which may be the count; empty handles are left out.
    virtual void
    InsertChannelLayoutPresets(const std::vector<std::shared_ptr<IVXChannelLayoutPreset>>& presets,
                               int position) = 0;
    /// Moves the channel layout at from to just before the one at to, which may be the count. Throws
    /// std::out_of_range when from is the count.
    virtual void MoveChannelLayoutPreset(int from, int to) = 0;

    /// The profiles on offer.
    virtual std::vector<std::shared_ptr<IVXProfilePreset>> ProfilePresets() = 0;
    /// The profiles on offer, read only.
    virtual std::vector<std::shared_ptr<const IVXProfilePreset>> ProfilePresets() const = 0;
    /// The profile at index. Deliberately unchecked: index must be inside [0, ProfilePresetCount()).
    virtual std::shared_ptr<IVXProfilePreset> ProfilePresetAt(int index) const = 0;
    /// Number of profiles on offer.
    virtual int ProfilePresetCount() const = 0;
    /// Appends that profile, named by the codec library (empty for an unknown codec).
    virtual void AddProfilePreset(int profile) = 0;
    /// Removes the profile at index.
    virtual void RemoveProfilePreset(int index) = 0;
    /// Replaces the list by DefaultProfiles(CodecID()).
    virtual void ResetProfilePresets() = 0;
    /// Index of the current profile, which may be stale.
    virtual int IndexForProfilesPresets() const = 0;
    /// Makes the profile at index the current one.
    virtual void SetIndexForProfilesPresets(int index) = 0;
    /// Inserts those very entries before position, which may be the count; empty handles are left out.
    virtual void InsertProfilePresets(const std::vector<std::shared_ptr<IVXProfilePreset>>& presets,
                                      int position) = 0;
    /// Moves the profile at from to just before the one at to, which may be the count. Throws
    /// std::out_of_range when from is the count.
    virtual void MoveProfilePreset(int from, int to) = 0;

    /// The levels on offer.
    virtual std::vector<std::shared_ptr<IVXLevelPreset>> LevelPresets() = 0;
    /// The levels on offer, read only.
    virtual std::vector<std::shared_ptr<const IVXLevelPreset>> LevelPresets() const = 0;
    /// The level at index. Deliberately unchecked: index must be inside [0, LevelPresetCount()).
    virtual std::shared_ptr<IVXLevelPreset> LevelPresetAt(int index) const = 0;
    /// Number of levels on offer.
    virtual int LevelPresetCount() const = 0;
    /// Appends that level, named by the codec library (empty for an unknown codec).
    virtual void AddLevelPreset(int level) = 0;
    /// Removes the level at index.
    virtual void RemoveLevelPreset(int index) = 0;
    /// Replaces the list by DefaultLevels(CodecID()).
    virtual void ResetLevelPresets() = 0;
    /// Index of the current level, which may be stale.
    virtual int IndexForLevelPresets() const = 0;
    /// Makes the level at index the current one.
    virtual void SetIndexForLevelPresets(int index) = 0;
    /// Inserts those very entries before position, which may be the count; empty handles are left out.
    virtual void InsertLevelPresets(const std::vector<std::shared_ptr<IVXLevelPreset>>& presets,
                                    int position) = 0;
    /// Moves the level at from to just before the one at to, which may be the count. Throws std::out_of_range
    /// when from is the count.
    virtual void MoveLevelPreset(int from, int to) = 0;

    /// The pixel or sample format at index. Deliberately unchecked: index must be inside the list.
    virtual std::shared_ptr<IVXSampleFmtPreset> SampleFmtPresetAt(int index) const = 0;
    /// The pixel or sample formats on offer, read only.
    virtual std::vector<std::shared_ptr<const IVXSampleFmtPreset>> SampleFmtPresets() const = 0;
    /// Index of the current format, which may be stale.
    virtual int IndexForSampleFmts() const = 0;
    /// Stores the index; deliberately, unlike every other index, without any check.
    virtual void SetIndexForSampleFmts(int index) = 0;
    /// The current format; empty when its index is outside the list.
    virtual std::shared_ptr<IVXSampleFmtPreset> CurrentSampleFmt() const = 0;
    /// The sample aspect ratio, shared with this preset; never empty.
    virtual std::shared_ptr<IVXSampleAspectPreset> AspectPreset() = 0;
    /// The sample aspect ratio, read only.
    virtual std::shared_ptr<const IVXSampleAspectPreset> AspectPreset() const = 0;

    /// The current resolution; empty when its index is outside the list, as for all that follow.
    std::shared_ptr<const IVXResolutionPreset> CurrentResolution() const;
    /// The current frame rate.
    std::shared_ptr<const IVXFrameratePreset> CurrentFramerate() const;
    /// The current quality setting.
    std::shared_ptr<const IVXCodecQualityPreset> CurrentCodecQuality() const;
    /// The current quality setting, editable: users change a custom bitrate in place.
    std::shared_ptr<IVXCodecQualityPreset> CurrentCodecQuality();
    /// The current sample rate.
    std::shared_ptr<const IVXSampleratePreset> CurrentSamplerate() const;
    /// The current channel layout.
    std::shared_ptr<const IVXChannelLayoutPreset> CurrentChannelLayout() const;
    /// The current profile; the spelling is part of the interface.
    std::shared_ptr<const IVXProfilePreset> CurrentPrefile() const;
    /// The current level.
    std::shared_ptr<const IVXLevelPreset> CurrentLevel() const;
    /// True when the codec is VXCodecID_None.
    bool IsAutoValue() const;

    /// The parameters to encode that source stream with: each value the current entry or, where that is Auto,
    /// the source's, snapped to what the codec accepts. The bounds are in bits per second, -1 for none.
    /// Without a source an Auto entry gives way to the first concrete one of its list. A new object; never
    /// empty.
    std::shared_ptr<IVXCodecParameter> MatchForSource(const std::shared_ptr<const IVXCodecParameter>& source,
                                                      int maxBitrate, int minBitrate) const;
    /// The parameters to encode with when no source is known. Unlike MatchForSource it deliberately ignores
    /// the format list and takes 8-bit 4:2:0 for video and 32-bit float for audio.
    std::shared_ptr<IVXCodecParameter> DefaultCodecParameter(int maxBitrate, int minBitrate) const;

protected:
    ~IVXCodecPreset() = default;

private:
    using Output = std::shared_ptr<IVXCodecParameter>;
    using Source = std::shared_ptr<const IVXCodecParameter>;

    void MatchForType(Output& output, const Source& source) const;
    void MatchForResolution(Output& output, const Source& source) const;
    void MatchForFramerate(Output& output, const Source& source) const;
    void MatchForSamplerate(Output& output, const Source& source) const;
    void MatchForChannelLayout(Output& output, const Source& source) const;
    void MatchForFormat(Output& output) const;
    void MatchForQuality(Output& output, const Source& source, int maxBitrate, int minBitrate) const;
    void SetProfileLevelAspect(Output& output) const;
};

} // namespace Vexlor
