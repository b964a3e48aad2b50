#include "PresetValues.h"

#include "PresetCodecs.h"
#include "PresetLists.h"
#include "apps/host/Faces.h"
#include "apps/host/Failure.h"
#include "apps/host/NameSearch.h"
#include "apps/host/Quantities.h"
#include "apps/host/Text.h"
#include "apps/host/Units.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"
#include "IVXRational.h"
#include "IVXSampleAspectPreset.h"

#include <algorithm>
#include <array>
#include <functional>
#include <limits>

namespace Vexlor::Tool
{

namespace
{

using Preset = IVXFormatPreset;
using Strings = std::vector<std::string>;
constexpr int kNoBitrate = -1;

/// How a key is set, and what it may be set to.
struct Row
{
    PresetKey key;
    std::function<void(Preset&, const std::string& value, PresetSetting&)> set;
    std::function<Strings(Preset&)> choices = [](Preset&) { return Strings(); };
};

[[noreturn]] void Refuse(const std::string& value, std::string_view expected)
{
    throw Failure(Quoted(value) + " is not " + std::string(expected));
}

Row CodecRow(PresetKey key, StreamKind kind)
{
    return {key,
            [kind](Preset& preset, const std::string& value, PresetSetting& setting)
            { setting.value = ChooseCodec(preset, kind, value, setting.isAdded); },
            [kind](Preset& preset) { return CodecChoices(preset, kind); }};
}

Row CodecsRow(PresetKey key, StreamKind kind)
{
    return {key,
            [kind](Preset& preset, const std::string& value, PresetSetting& setting)
            { setting.value = SetCodecs(preset, kind, value); },
            [kind](Preset& preset) { return CodecChoices(preset, kind); }};
}

Row ListRow(PresetKey key, StreamKind kind, PresetListKind list)
{
    return {key,
            [kind, list](Preset& preset, const std::string& value, PresetSetting& setting) {
                setting.value =
                    ChooseEntry(*PresetListOf(list, ChosenCodec(preset, kind)), value, setting.isAdded);
            },
            [kind, list](Preset& preset) { return PresetListOf(list, ChosenCodec(preset, kind))->Texts(); }};
}

using SetInteger = void (Preset::*)(int);

int Pixels(const std::string& value)
{
    const auto pixels = Folded(value) == "none" ? 0 : IntegerOf(value);
    if (!pixels || *pixels < 0)
        Refuse(value, "a number of pixels or none");
    return *pixels;
}

std::string PixelsText(int pixels) { return pixels == 0 ? "none" : std::to_string(pixels); }

Row PixelsRow(PresetKey key, SetInteger set)
{
    return {key, [set](Preset& preset, const std::string& value, PresetSetting& setting)
            {
                const int pixels = Pixels(value);
                (preset.*set)(pixels);
                setting.value = PixelsText(pixels);
            }};
}

Row SizeRow(PresetKey key, SetInteger setWidth, SetInteger setHeight)
{
    return {key, [=](Preset& preset, const std::string& value, PresetSetting& setting)
            {
                const auto size = Folded(value) == "none" ? std::pair(0, 0) : SizeOf(value);
                if (!size)
                    Refuse(value, "a size such as 1280x720, or none");
                (preset.*setWidth)(size->first);
                (preset.*setHeight)(size->second);
                setting.value = size == std::pair(0, 0) ? "none" : SizeText(size->first, size->second);
            }};
}

/// A bitrate, or -1 for none.
int Bitrate(const std::string& value)
{
    const auto bitrate = Folded(value) == "none" ? kNoBitrate : BitrateOf(value);
    if (!bitrate || (*bitrate < 1 && *bitrate != kNoBitrate))
        Refuse(value, "a bitrate such as 8M or 192k, or none");
    return *bitrate;
}

std::string BitrateOrNone(int bitrate) { return bitrate == kNoBitrate ? "none" : BitrateText(bitrate); }

Row BoundRow(PresetKey key, SetInteger set)
{
    return {key, [set](Preset& preset, const std::string& value, PresetSetting& setting)
            {
                const int bitrate = Bitrate(value);
                (preset.*set)(bitrate);
                setting.value = BitrateOrNone(bitrate);
            }};
}

// A document has no place for a bitrate of one's own. Bounds that leave no room come to the same.
Row BitrateRow(PresetKey key, SetInteger setLeast, SetInteger setMost)
{
    return {key, [=](Preset& preset, const std::string& value, PresetSetting& setting)
            {
                const int bitrate = Bitrate(value);
                if (bitrate == std::numeric_limits<int>::max())
                    Refuse(value, "a bitrate such as 8M or 192k, or none");
                (preset.*setLeast)(bitrate);
                (preset.*setMost)(bitrate == kNoBitrate ? kNoBitrate : bitrate + 1);
                setting.value = BitrateOrNone(bitrate);
            }};
}

constexpr std::array kAspects{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 300, 301, 302, 303};

std::string AspectText(int type)
{
    return IVXSampleAspectPreset::AspectPresetName(
        static_cast<IVXSampleAspectPreset::AspectPresetType>(type));
}

Strings AspectTexts()
{
    Strings texts;
    for (const int type : kAspects)
        texts.push_back(AspectText(type));
    return texts;
}

void SetAspect(Preset& preset, const std::string& value, PresetSetting& setting)
{
    using Type = IVXSampleAspectPreset::AspectPresetType;
    const auto aspect = ChosenCodec(preset, StreamKind::Video).AspectPreset();
    const auto named =
        std::ranges::find(kAspects, Squeezed(value), [](int type) { return Squeezed(AspectText(type)); });
    const auto colon = value.find(':');
    const auto num = IntegerOf(std::string_view(value).substr(0, colon));
    const auto den = IntegerOf(colon == std::string::npos ? std::string_view()
                                                          : std::string_view(value).substr(colon + 1));
    if (named != kAspects.end())
        aspect->SetAspectType(static_cast<Type>(*named));
    else if (num && den && *num > 0 && *den > 0)
    {
        aspect->SetAspectType(Type::AspectCustom);
        aspect->SetRatio(*num, *den);
    }
    else
        throw Failure(Quoted(value) + " is no ratio such as 4:3 and none of " + Joined(AspectTexts(), ", "));
    setting.value = named != kAspects.end() ? AspectText(*named) : RatioText(*aspect->Ratio());
}

void SetFace(Preset& preset, const std::string& value, PresetSetting& setting)
{
    preset.SetFaceID(FaceOf(value));
    setting.value = FaceText(preset.FaceID());
}

using SetString = void (Preset::*)(const std::string&);

Row TextRow(PresetKey key, SetString set)
{
    return {key, [set](Preset& preset, const std::string& value, PresetSetting& setting)
            {
                (preset.*set)(value);
                setting.value = value;
            }};
}

const std::vector<Row>& Rows()
{
    constexpr auto kVideo = StreamKind::Video;
    constexpr auto kAudio = StreamKind::Audio;
    using enum PresetListKind;
    static const std::vector<Row> s_rows{
        TextRow({"description", "a text"}, &Preset::SetDescription),
        {{"face", "face identifier of the icon, or its name"}, SetFace},
        TextRow({"hint", "a text for the codec library"}, &Preset::SetFormatHint),
        CodecsRow({"video-codecs", "the codecs on offer: H.264,HEVC; all or none"}, kVideo),
        CodecRow({"video-codec", "the current codec: H.264"}, kVideo),
        ListRow({"resolution", "1280x720 or Auto"}, kVideo, Resolution),
        ListRow({"frame-rate", "25, 29.97, 30000/1001 or Auto"}, kVideo, FrameRate),
        ListRow({"pixel-format", "\"YUV 4:2:0\" or Auto"}, kVideo, Format),
        ListRow({"video-profile", "High or Auto"}, kVideo, Profile),
        ListRow({"video-level", "4.1 or Auto"}, kVideo, Level),
        {{"sample-aspect", "16:15, or a name"}, SetAspect, [](Preset&) { return AspectTexts(); }},
        ListRow({"video-quality", "Auto, Low, Normal, High or Best"}, kVideo, Quality),
        BitrateRow({"video-bitrate", "8M; sets both bounds; none"}, &Preset::SetMinVideoBitrate,
                   &Preset::SetMaxVideoBitrate),
        CodecsRow({"audio-codecs", "the codecs on offer: AAC,AC-3; all or none"}, kAudio),
        CodecRow({"audio-codec", "the current codec: AAC"}, kAudio),
        ListRow({"sample-rate", "48000, 44.1kHz or Auto"}, kAudio, SampleRate),
        ListRow({"channels", "Stereo, 5.1, 0x3 or Auto"}, kAudio, Channels),
        ListRow({"sample-format", "\"16-bit\" or Auto"}, kAudio, Format),
        ListRow({"audio-profile", "LC or Auto"}, kAudio, Profile),
        ListRow({"audio-level", "a level or Auto"}, kAudio, Level),
        ListRow({"audio-quality", "Auto, Low, Normal, High or Best"}, kAudio, Quality),
        BitrateRow({"audio-bitrate", "192k; sets both bounds; none"}, &Preset::SetMinAudioBitrate,
                   &Preset::SetMaxAudioBitrate),
        SizeRow({"max-size", "1280x720 or none"}, &Preset::SetMaxWidth, &Preset::SetMaxHeight),
        SizeRow({"min-size", "320x180 or none"}, &Preset::SetMinWidth, &Preset::SetMinHeight),
        PixelsRow({"max-width", "pixels or none"}, &Preset::SetMaxWidth),
        PixelsRow({"max-height", "pixels or none"}, &Preset::SetMaxHeight),
        PixelsRow({"min-width", "pixels or none"}, &Preset::SetMinWidth),
        PixelsRow({"min-height", "pixels or none"}, &Preset::SetMinHeight),
        BoundRow({"max-video-bitrate", "8M or none"}, &Preset::SetMaxVideoBitrate),
        BoundRow({"min-video-bitrate", "1M or none"}, &Preset::SetMinVideoBitrate),
        BoundRow({"max-audio-bitrate", "320k or none"}, &Preset::SetMaxAudioBitrate),
        BoundRow({"min-audio-bitrate", "64k or none"}, &Preset::SetMinAudioBitrate),
    };
    return s_rows;
}

const Row& RowOf(std::string_view key)
{
    const auto& rows = Rows();
    const auto found = std::ranges::find(rows, Folded(key), [](const Row& row) { return row.key.name; });
    if (found != rows.end())
        return *found;
    Strings names;
    for (const auto& row : rows)
        names.emplace_back(row.key.name);
    const auto nearest = NearestName(names, key);
    throw Failure("nothing to set is called " + Quoted(key) +
                  (nearest.empty() ? "; there are " + Joined(names, ", ") : "; nearest: " + nearest));
}

} // namespace

const std::vector<PresetKey>& PresetKeys()
{
    static const auto s_keys = []
    {
        std::vector<PresetKey> keys;
        for (const auto& row : Rows())
            keys.push_back(row.key);
        return keys;
    }();
    return s_keys;
}

std::vector<std::string> PresetChoices(IVXFormatPreset& preset, std::string_view key)
{
    return RowOf(key).choices(preset);
}

PresetSetting SetPresetValue(IVXFormatPreset& preset, std::string_view key, const std::string& value)
{
    const auto& row = RowOf(key);
    PresetSetting setting{std::string(row.key.name), {}, false};
    try
    {
        row.set(preset, value, setting);
    }
    catch (const Failure& failure)
    {
        throw Failure(setting.key + ": " + failure.what());
    }
    return setting;
}

std::pair<std::string, std::string> KeyAndValue(const std::string& text)
{
    const auto equals = text.find('=');
    if (equals == std::string::npos || equals == 0)
        throw Failure(Quoted(text) + " is not KEY=VALUE, as in resolution=1280x720");
    return {text.substr(0, equals), text.substr(equals + 1)};
}

} // namespace Vexlor::Tool
