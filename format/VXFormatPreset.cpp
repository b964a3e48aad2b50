#include "format/VXCodecPresetList.h"

#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "VXMediaCodecs.h"

#include <utility>

namespace Vexlor
{

namespace
{

constexpr std::string_view kName = "name";
constexpr std::string_view kDescription = "description";
constexpr std::string_view kFormatName = "formatName";
constexpr std::string_view kFormatHint = "formatHint";
constexpr std::string_view kFaceID = "faceID";
constexpr std::string_view kIndexForVideoCodecPresets = "indexForVideoCodecPresets";
constexpr std::string_view kVideoCodecPresets = "videoCodecPresets";
constexpr std::string_view kIndexForAudioCodecPresets = "indexForAudioCodecPresets";
constexpr std::string_view kAudioCodecPresets = "audioCodecPresets";
constexpr std::string_view kMaxWidth = "maxWidth";
constexpr std::string_view kMinWidth = "minWidth";
constexpr std::string_view kMaxHeight = "maxHeight";
constexpr std::string_view kMinHeight = "minHeight";
constexpr std::string_view kMaxVideoBitrate = "maxVideoBitrate";
constexpr std::string_view kMinVideoBitrate = "minVideoBitrate";
constexpr std::string_view kMaxAudioBitrate = "maxAudioBitrate";
constexpr std::string_view kMinAudioBitrate = "minAudioBitrate";

constexpr int kNotSet = -1;

struct Bounds
{
    int maxWidth = 0;
    int minWidth = 0;
    int maxHeight = 0;
    int minHeight = 0;
    int maxVideoBitrate = kNotSet;
    int minVideoBitrate = kNotSet;
    int maxAudioBitrate = kNotSet;
    int minAudioBitrate = kNotSet;
};

class VXFormatPreset final : public IVXFormatPreset
{
public:
    explicit VXFormatPreset(const std::string& formatName);
    explicit VXFormatPreset(const IVXJsonValue& json);
    VXFormatPreset(const VXFormatPreset& other);
    VXFormatPreset& operator=(const VXFormatPreset&) = delete;
    VXFormatPreset& operator=(VXFormatPreset&&) = default;

    std::string FormatName() const override { return m_formatName; }
    std::string FormatHint() const override { return m_formatHint; }
    void SetFormatHint(const std::string& hint) override { m_formatHint = hint; }
    int FaceID() const override { return m_faceID; }
    void SetFaceID(int faceID) override { m_faceID = faceID; }
    std::string Name() const override { return m_name; }
    void SetName(const std::string& name) override { m_name = name; }
    std::string Description() const override { return m_description; }
    void SetDescription(const std::string& description) override { m_description = description; }
    std::shared_ptr<IVXFormatPreset> Clone() const override
    {
        return std::make_shared<VXFormatPreset>(*this);
    }
    void CopyFrom(std::shared_ptr<const IVXFormatPreset> other) override;
    std::shared_ptr<IVXJsonValue> JsonValue() const override;

    HandleList<IVXCodecPreset> AudioCodecPresets() override { return m_audio.Presets(); }
    HandleList<const IVXCodecPreset> AudioCodecPresets() const override
    {
        return ReadOnly(m_audio.Presets());
    }
    HandleList<IVXCodecPreset> VideoCodecPresets() override { return m_video.Presets(); }
    HandleList<const IVXCodecPreset> VideoCodecPresets() const override
    {
        return ReadOnly(m_video.Presets());
    }
    std::shared_ptr<IVXCodecPreset> AudioCodecPreset(int index) override { return m_audio.At(index); }
    std::shared_ptr<const IVXCodecPreset> AudioCodecPreset(int index) const override
    {
        return m_audio.At(index);
    }
    std::shared_ptr<IVXCodecPreset> AudioCodecPresetByCodecID(int) override { return {}; }
    std::shared_ptr<const IVXCodecPreset> AudioCodecPresetByCodecID(int) const override { return {}; }
    std::shared_ptr<IVXCodecPreset> VideoCodecPreset(int index) override { return m_video.At(index); }
    std::shared_ptr<const IVXCodecPreset> VideoCodecPreset(int index) const override
    {
        return m_video.At(index);
    }
    std::shared_ptr<IVXCodecPreset> VideoCodecPresetByCodecID(int) override { return {}; }
    std::shared_ptr<const IVXCodecPreset> VideoCodecPresetByCodecID(int) const override { return {}; }
    int VideoCodecPresetCount() const override { return m_video.Count(); }
    int AudioCodecPresetCount() const override { return m_audio.Count(); }

    int IndexForAudioCodecPresets() const override { return m_audio.Index(); }
    int IndexForVideoCodecPresets() const override { return m_video.Index(); }
    int SetIndexForAudioCodecPresets(int index) override { return m_audio.SetIndex(index); }
    int SetIndexForVideoCodecPresets(int index) override { return m_video.SetIndex(index); }
    std::shared_ptr<IVXCodecPreset> AddAudioCodecPreset(int codecID) override { return m_audio.Add(codecID); }
    std::shared_ptr<IVXCodecPreset> AddVideoCodecPreset(int codecID) override { return m_video.Add(codecID); }
    void RemoveAudioCodec(int codecID) override { m_audio.RemoveCodec(codecID); }
    void RemoveVideoCodec(int codecID) override { m_video.RemoveCodec(codecID); }
    void RemoveAudioCodecPreset(int index) override { m_audio.Remove(index); }
    void RemoveVideoCodecPreset(int index) override { m_video.Remove(index); }
    void InsertAudioCodecPreset(std::shared_ptr<IVXCodecPreset> preset, int index) override
    {
        m_audio.Insert(preset, index);
    }
    void MoveAudioCodecPreset(int from, int to) override { m_audio.Move(from, to); }
    void InsertVideoCodecPreset(std::shared_ptr<IVXCodecPreset> preset, int index) override
    {
        m_video.Insert(preset, index);
    }
    void MoveVideoCodecPreset(int from, int to) override { m_video.Move(from, to); }

    int MaxWidth() const override { return m_bounds.maxWidth; }
    void SetMaxWidth(int pixels) override { m_bounds.maxWidth = pixels; }
    int MaxHeight() const override { return m_bounds.maxHeight; }
    void SetMaxHeight(int pixels) override { m_bounds.maxHeight = pixels; }
    int MinWidth() const override { return m_bounds.minWidth; }
    void SetMinWidth(int pixels) override { m_bounds.minWidth = pixels; }
    int MinHeight() const override { return m_bounds.minHeight; }
    void SetMinHeight(int pixels) override { m_bounds.minHeight = pixels; }
    int MaxVideoBitrate() const override { return m_bounds.maxVideoBitrate; }
    void SetMaxVideoBitrate(int bitrate) override { m_bounds.maxVideoBitrate = bitrate; }
    int MaxAudioBitrate() const override { return m_bounds.maxAudioBitrate; }
    void SetMaxAudioBitrate(int bitrate) override { m_bounds.maxAudioBitrate = bitrate; }
    int MinVideoBitrate() const override { return m_bounds.minVideoBitrate; }
    void SetMinVideoBitrate(int bitrate) override { m_bounds.minVideoBitrate = bitrate; }
    int MinAudioBitrate() const override { return m_bounds.minAudioBitrate; }
    void SetMinAudioBitrate(int bitrate) override { m_bounds.minAudioBitrate = bitrate; }

private:
    VXFormatPreset() = default;

    std::string m_name;
    std::string m_description;
    std::string m_formatName;
    std::string m_formatHint;
    int m_faceID = 0;
    VXCodecPresetList m_video;
    VXCodecPresetList m_audio;
    Bounds m_bounds;
};

// Both versions of MPEG go into one container, whatever a document calls it.
std::string ReadFormatName(const IVXJsonValue& json)
{
    auto name = json.GetValueString(kFormatName);
    if (name == "MPEG1" || name == "MPEG2")
        name = VXFormatNameMPG;
    return name;
}

VXCodecPresetList ReadCodecPresets(const IVXJsonValue& json, std::string_view indexKey,
                                   std::string_view listKey)
{
    const int index = json.GetValueInt(indexKey);
    return {*json.GetValueArray(listKey), index};
}

int ReadBitrate(const IVXJsonValue& json, std::string_view key)
{
    return json.HasKey(key) ? json.GetValueInt(key) : kNotSet;
}

Bounds ReadBounds(const IVXJsonValue& json)
{
    Bounds bounds;
    bounds.maxWidth = json.GetValueInt(kMaxWidth);
    bounds.minWidth = json.GetValueInt(kMinWidth);
    bounds.maxHeight = json.GetValueInt(kMaxHeight);
    bounds.minHeight = json.GetValueInt(kMinHeight);
    bounds.maxVideoBitrate = ReadBitrate(json, kMaxVideoBitrate);
    bounds.minVideoBitrate = ReadBitrate(json, kMinVideoBitrate);
    bounds.maxAudioBitrate = ReadBitrate(json, kMaxAudioBitrate);
    bounds.minAudioBitrate = ReadBitrate(json, kMinAudioBitrate);
    return bounds;
}

void WriteBounds(IVXJsonValue& json, const Bounds& bounds)
{
    json.SetValueInt(kMaxWidth, bounds.maxWidth);
    json.SetValueInt(kMinWidth, bounds.minWidth);
    json.SetValueInt(kMaxHeight, bounds.maxHeight);
    json.SetValueInt(kMinHeight, bounds.minHeight);
    json.SetValueInt(kMaxVideoBitrate, bounds.maxVideoBitrate);
    json.SetValueInt(kMinVideoBitrate, bounds.minVideoBitrate);
    json.SetValueInt(kMaxAudioBitrate, bounds.maxAudioBitrate);
    json.SetValueInt(kMinAudioBitrate, bounds.minAudioBitrate);
}

VXFormatPreset::VXFormatPreset(const std::string& formatName)
    : m_formatName(formatName), m_video(DefaultVideoCodecPresets(formatName)),
      m_audio(DefaultAudioCodecPresets(formatName))
{
}

VXFormatPreset::VXFormatPreset(const IVXJsonValue& json)
    : m_name(json.GetValueString(kName)), m_description(json.GetValueString(kDescription)),
      m_formatName(ReadFormatName(json)), m_formatHint(json.GetValueString(kFormatHint)),
      m_faceID(json.GetValueInt(kFaceID)),
      m_video(ReadCodecPresets(json, kIndexForVideoCodecPresets, kVideoCodecPresets)),
      m_audio(ReadCodecPresets(json, kIndexForAudioCodecPresets, kAudioCodecPresets)),
      m_bounds(ReadBounds(json))
{
}

VXFormatPreset::VXFormatPreset(const VXFormatPreset& other)
    : IVXFormatPreset(other), m_name(other.m_name), m_description(other.m_description),
      m_formatName(other.m_formatName), m_formatHint(other.m_formatHint), m_faceID(other.m_faceID),
      m_video(other.m_video.Clone()), m_audio(other.m_audio.Clone()), m_bounds(other.m_bounds)
{
}

void VXFormatPreset::CopyFrom(std::shared_ptr<const IVXFormatPreset> other)
{
    if (!other)
        return;
    // Taken as a whole or not at all, should memory run out.
    VXFormatPreset copy;
    copy.m_name = other->Name();
    copy.m_description = other->Description();
    copy.m_formatName = other->FormatName();
    copy.m_formatHint = other->FormatHint();
    copy.m_faceID = other->FaceID();
    copy.m_bounds.maxVideoBitrate = other->MaxVideoBitrate();
    copy.m_bounds.minVideoBitrate = other->MinVideoBitrate();
    copy.m_bounds.maxAudioBitrate = other->MaxAudioBitrate();
    copy.m_bounds.minAudioBitrate = other->MinAudioBitrate();
    copy.m_bounds.maxWidth = other->MaxWidth();
    copy.m_bounds.minWidth = other->MinWidth();
    copy.m_bounds.maxHeight = other->MaxHeight();
    copy.m_bounds.minHeight = other->MinHeight();
    const int videoIndex = other->IndexForVideoCodecPresets();
    copy.m_video = VXCodecPresetList::CopyOf(videoIndex, other->VideoCodecPresets());
    const int audioIndex = other->IndexForAudioCodecPresets();
    copy.m_audio = VXCodecPresetList::CopyOf(audioIndex, other->AudioCodecPresets());
    *this = std::move(copy);
}

std::shared_ptr<IVXJsonValue> VXFormatPreset::JsonValue() const
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString(kName, m_name);
    json->SetValueString(kDescription, m_description);
    json->SetValueString(kFormatName, m_formatName);
    json->SetValueString(kFormatHint, m_formatHint);
    json->SetValueInt(kFaceID, m_faceID);
    json->SetValueInt(kIndexForVideoCodecPresets, m_video.Index());
    json->SetValueArray(kVideoCodecPresets, JsonOfEach(m_video.Presets()));
    json->SetValueInt(kIndexForAudioCodecPresets, m_audio.Index());
    json->SetValueArray(kAudioCodecPresets, JsonOfEach(m_audio.Presets()));
    WriteBounds(*json, m_bounds);
    return json;
}

} // namespace

std::shared_ptr<IVXCodecPreset> IVXFormatPreset::CurrentAudioCodec()
{
    const int index = IndexForAudioCodecPresets();
    return index >= 0 && index < AudioCodecPresetCount() ? AudioCodecPreset(index) : nullptr;
}

std::shared_ptr<const IVXCodecPreset> IVXFormatPreset::CurrentAudioCodec() const
{
    const int index = IndexForAudioCodecPresets();
    return index >= 0 && index < AudioCodecPresetCount() ? AudioCodecPreset(index) : nullptr;
}

std::shared_ptr<IVXCodecPreset> IVXFormatPreset::CurrentVideoCodec()
{
    const int index = IndexForVideoCodecPresets();
    return index >= 0 && index < VideoCodecPresetCount() ? VideoCodecPreset(index) : nullptr;
}

std::shared_ptr<const IVXCodecPreset> IVXFormatPreset::CurrentVideoCodec() const
{
    const int index = IndexForVideoCodecPresets();
    return index >= 0 && index < VideoCodecPresetCount() ? VideoCodecPreset(index) : nullptr;
}

std::shared_ptr<IVXFormatPreset> IVXFormatPreset::MallocFormatPreset(const std::string& formatName,
                                                                     const std::string&)
{
    const auto names = VXMediaCodecSupportOutputAllMediaFormats();
    if (std::ranges::find(names, formatName) == names.end())
        return {};
    return std::make_shared<VXFormatPreset>(formatName);
}

std::shared_ptr<IVXFormatPreset>
IVXFormatPreset::MallocFormatPreset(const std::shared_ptr<const IVXJsonValue>& json)
{
    return std::make_shared<VXFormatPreset>(json ? *json : *IVXJsonValue::JsonValueNull());
}

} // namespace Vexlor
