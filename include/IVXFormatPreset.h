#pragma once

#include "VXExport.h"

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

class IVXCodecPreset;
class IVXFormat;
class IVXFormatParameter;
class IVXJsonValue;

/// One output target that a user can pick: a container with its video and its audio codec presets, each list
/// with the index of the current one, and bounds for the picture's size and the bitrates.
///
/// The list getters hand out copies of the lists whose codec presets are shared with this preset. Sizes are
/// in pixels, 0 for no limit; bitrates are in bits per second, -1 for no bound. An index of -1 says that a
/// list has no current entry.
class VX_PRESETS_API IVXFormatPreset
{
public:
    /// A preset of that container with a codec preset for every codec that the container takes; empty when
    /// the codec library cannot write a container of exactly that name. The second text is not consulted.
    static std::shared_ptr<IVXFormatPreset> MallocFormatPreset(const std::string& formatName,
                                                               const std::string& unused);
    /// A preset read from a JSON object, an empty handle being one without members; never empty. The
    /// container names "MPEG1" and "MPEG2" read as VXFormatNameMPG. Indices beyond their
    /// lists become the last one; negative ones are deliberately kept.
    static std::shared_ptr<IVXFormatPreset>
    MallocFormatPreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// A codec preset for every video codec of the container, behind one of no codec where there are at least
    /// two.
    static std::vector<std::shared_ptr<IVXCodecPreset>>
    DefaultVideoCodecPresets(const std::string& formatName);
    /// The same of the audio codecs.
    static std::vector<std::shared_ptr<IVXCodecPreset>>
    DefaultAudioCodecPresets(const std::string& formatName);

    /// The container's name, as the codec library lists it.
    virtual std::string FormatName() const = 0;
    /// A hint that the codec library interprets; this preset only hands it on.
    virtual std::string FormatHint() const = 0;
    /// Stores the hint.
    virtual void SetFormatHint(const std::string& hint) = 0;
    /// Key of the preset's icon in the artwork file; 0 for none.
    virtual int FaceID() const = 0;
    /// Stores the key of the icon.
    virtual void SetFaceID(int faceID) = 0;
    /// The name to show.
    virtual std::string Name() const = 0;
    /// Stores the name.
    virtual void SetName(const std::string& name) = 0;
    /// Free text.
    virtual std::string Description() const = 0;
    /// Stores the description.
    virtual void SetDescription(const std::string& description) = 0;
    /// A deep copy: no codec preset is shared with this preset.
    virtual std::shared_ptr<IVXFormatPreset> Clone() const = 0;
    /// Becomes a deep copy of the other preset, indices taken as they are; an empty handle changes nothing.
    virtual void CopyFrom(std::shared_ptr<const IVXFormatPreset> other) = 0;
    /// A new object that the JSON factory reads back.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

    /// The audio codec presets.
    virtual std::vector<std::shared_ptr<IVXCodecPreset>> AudioCodecPresets() = 0;
    /// The audio codec presets, read only.
    virtual std::vector<std::shared_ptr<const IVXCodecPreset>> AudioCodecPresets() const = 0;
    /// The video codec presets.
    virtual std::vector<std::shared_ptr<IVXCodecPreset>> VideoCodecPresets() = 0;
    /// The video codec presets, read only.
    virtual std::vector<std::shared_ptr<const IVXCodecPreset>> VideoCodecPresets() const = 0;
    /// The audio codec preset at index; empty when index is outside [0, AudioCodecPresetCount()).
    virtual std::shared_ptr<IVXCodecPreset> AudioCodecPreset(int index) = 0;
    /// The same, read only.
    virtual std::shared_ptr<const IVXCodecPreset> AudioCodecPreset(int index) const = 0;
    /// Reserved; always empty.
    virtual std::shared_ptr<IVXCodecPreset> AudioCodecPresetByCodecID(int codecID) = 0;
    /// Reserved, as above.
    virtual std::shared_ptr<const IVXCodecPreset> AudioCodecPresetByCodecID(int codecID) const = 0;
    /// The video codec preset at index; empty when index is outside [0, VideoCodecPresetCount()).
    virtual std::shared_ptr<IVXCodecPreset> VideoCodecPreset(int index) = 0;
    /// The same, read only.
    virtual std::shared_ptr<const IVXCodecPreset> VideoCodecPreset(int index) const = 0;
    /// Reserved; always empty.
    virtual std::shared_ptr<IVXCodecPreset> VideoCodecPresetByCodecID(int codecID) = 0;
    /// Reserved, as above.
    virtual std::shared_ptr<const IVXCodecPreset> VideoCodecPresetByCodecID(int codecID) const = 0;
    /// Number of video codec presets.
    virtual int VideoCodecPresetCount() const = 0;
    /// Number of audio codec presets.
    virtual int AudioCodecPresetCount() const = 0;

    /// Index of the current audio codec preset; negative when there is none.
    virtual int IndexForAudioCodecPresets() const = 0;
    /// Index of the current video codec preset; negative when there is none.
    virtual int IndexForVideoCodecPresets() const = 0;
    /// Stores the index, clamped into the list, and answers what was stored: -1 for an empty list.
    virtual int SetIndexForAudioCodecPresets(int index) = 0;
    /// The same for video.
    virtual int SetIndexForVideoCodecPresets(int index) = 0;
    /// Appends a new preset of that codec and answers it; an index of -1 becomes 0.
    virtual std::shared_ptr<IVXCodecPreset> AddAudioCodecPreset(int codecID) = 0;
    /// The same for video.
    virtual std::shared_ptr<IVXCodecPreset> AddVideoCodecPreset(int codecID) = 0;
    /// Removes the first audio preset of that codec; an index beyond the rest becomes the last one.
    virtual void RemoveAudioCodec(int codecID) = 0;
    /// The same for video.
    virtual void RemoveVideoCodec(int codecID) = 0;
    /// Removes the audio preset at index, or nothing when there is none; an index beyond the rest becomes the
    /// last.
    virtual void RemoveAudioCodecPreset(int index) = 0;
    /// The same for video.
    virtual void RemoveVideoCodecPreset(int index) = 0;
    /// Inserts the preset before index, which may be the count; anything else, or an empty handle, does
    /// nothing. The current index keeps its position, not its preset.
    virtual void InsertAudioCodecPreset(std::shared_ptr<IVXCodecPreset> preset, int index) = 0;
    /// Moves the audio preset at from to just before the one at to, which may be the count; positions beyond
    /// the count do nothing. Throws std::out_of_range when from is the count. The current index keeps its
    /// position.
    virtual void MoveAudioCodecPreset(int from, int to) = 0;
    /// As InsertAudioCodecPreset, for video.
    virtual void InsertVideoCodecPreset(std::shared_ptr<IVXCodecPreset> preset, int index) = 0;
    /// As MoveAudioCodecPreset, for video.
    virtual void MoveVideoCodecPreset(int from, int to) = 0;

    /// Largest width of the picture.
    virtual int MaxWidth() const = 0;
    /// Stores it, unchecked.
    virtual void SetMaxWidth(int pixels) = 0;
    /// Largest height of the picture.
    virtual int MaxHeight() const = 0;
    /// Stores it, unchecked.
    virtual void SetMaxHeight(int pixels) = 0;
    /// Smallest width of the picture.
    virtual int MinWidth() const = 0;
    /// Stores it, unchecked.
    virtual void SetMinWidth(int pixels) = 0;
    /// Smallest height of the picture.
    virtual int MinHeight() const = 0;
    /// Stores it, unchecked.
    virtual void SetMinHeight(int pixels) = 0;
    /// Upper bound of the video bitrate.
    virtual int MaxVideoBitrate() const = 0;
    /// Stores it, unchecked.
    virtual void SetMaxVideoBitrate(int bitrate) = 0;
    /// Upper bound of the audio bitrate.
    virtual int MaxAudioBitrate() const = 0;
    /// Stores it, unchecked.
    virtual void SetMaxAudioBitrate(int bitrate) = 0;
    /// Lower bound of the video bitrate.
    virtual int MinVideoBitrate() const = 0;
    /// Stores it, unchecked.
    virtual void SetMinVideoBitrate(int bitrate) = 0;
    /// Lower bound of the audio bitrate.
    virtual int MinAudioBitrate() const = 0;
    /// Stores it, unchecked.
    virtual void SetMinAudioBitrate(int bitrate) = 0;

    /// The current audio codec preset; empty when its index is outside the list.
    std::shared_ptr<IVXCodecPreset> CurrentAudioCodec();
    /// The same, read only.
    std::shared_ptr<const IVXCodecPreset> CurrentAudioCodec() const;
    /// The current video codec preset; empty when its index is outside the list.
    std::shared_ptr<IVXCodecPreset> CurrentVideoCodec();
    /// The same, read only.
    std::shared_ptr<const IVXCodecPreset> CurrentVideoCodec() const;
    /// What the codec library knows of the container, a new object each time; the hint is not passed on.
    std::shared_ptr<IVXFormat> GetFormat() const;

    /// The parameters to write that source file with: each of its streams matched by the current codec preset
    /// or, where that is no codec, by the first that can be used, within this preset's bounds. A stream that
    /// the source lacks is left out; an empty source gives no streams. A new object; never empty.
    ///
    /// The size bounds act only when both largest sides are given, and on each side alone: the picture's
    /// shape is deliberately not kept.
    std::shared_ptr<IVXFormatParameter>
    MatchForSource(const std::shared_ptr<const IVXFormatParameter>& source) const;
    /// The parameters to write with when no source is known; no bounds are applied. A stream without a
    /// current codec preset is left out. A new object; never empty.
    std::shared_ptr<IVXFormatParameter> DefaultFormatParameter() const;

protected:
    /// Only the class behind the interface makes, copies and destroys these.
    /// @{
    IVXFormatPreset() = default;
    IVXFormatPreset(const IVXFormatPreset&) = default;
    IVXFormatPreset(IVXFormatPreset&&) = default;
    IVXFormatPreset& operator=(const IVXFormatPreset&) = default;
    IVXFormatPreset& operator=(IVXFormatPreset&&) = default;
    ~IVXFormatPreset() = default;
    /// @}

private:
    void MatchVideo(IVXFormatParameter& output, const IVXFormatParameter& source) const;
    void MatchAudio(IVXFormatParameter& output, const IVXFormatParameter& source) const;
    void LimitSize(IVXFormatParameter& output) const;
    std::shared_ptr<const IVXCodecPreset> UsableCodecPreset(bool audio) const;
};

} // namespace Vexlor
