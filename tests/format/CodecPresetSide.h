#pragma once

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"

#include "tests/platform/ScriptedJson.h"

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{

/// The operations of a format preset on one of its two codec preset lists, so that one test serves both.
struct CodecPresetSide
{
    using Preset = std::shared_ptr<IVXCodecPreset>;
    using ConstPreset = std::shared_ptr<const IVXCodecPreset>;

    const char* name;
    const char* listKey;
    const char* indexKey;
    std::vector<Preset> (IVXFormatPreset::*presets)();
    std::vector<ConstPreset> (IVXFormatPreset::*constPresets)() const;
    Preset (IVXFormatPreset::*at)(int);
    ConstPreset (IVXFormatPreset::*constAt)(int) const;
    Preset (IVXFormatPreset::*byCodec)(int);
    ConstPreset (IVXFormatPreset::*constByCodec)(int) const;
    int (IVXFormatPreset::*count)() const;
    int (IVXFormatPreset::*index)() const;
    int (IVXFormatPreset::*setIndex)(int);
    Preset (IVXFormatPreset::*add)(int);
    void (IVXFormatPreset::*removeCodec)(int);
    void (IVXFormatPreset::*removeAt)(int);
    void (IVXFormatPreset::*insert)(Preset, int);
    void (IVXFormatPreset::*move)(int, int);
    Preset (IVXFormatPreset::*current)();
    ConstPreset (IVXFormatPreset::*constCurrent)() const;
};

inline const CodecPresetSide kAudioSide{"Audio",
                                        "audioCodecPresets",
                                        "indexForAudioCodecPresets",
                                        &IVXFormatPreset::AudioCodecPresets,
                                        &IVXFormatPreset::AudioCodecPresets,
                                        &IVXFormatPreset::AudioCodecPreset,
                                        &IVXFormatPreset::AudioCodecPreset,
                                        &IVXFormatPreset::AudioCodecPresetByCodecID,
                                        &IVXFormatPreset::AudioCodecPresetByCodecID,
                                        &IVXFormatPreset::AudioCodecPresetCount,
                                        &IVXFormatPreset::IndexForAudioCodecPresets,
                                        &IVXFormatPreset::SetIndexForAudioCodecPresets,
                                        &IVXFormatPreset::AddAudioCodecPreset,
                                        &IVXFormatPreset::RemoveAudioCodec,
                                        &IVXFormatPreset::RemoveAudioCodecPreset,
                                        &IVXFormatPreset::InsertAudioCodecPreset,
                                        &IVXFormatPreset::MoveAudioCodecPreset,
                                        &IVXFormatPreset::CurrentAudioCodec,
                                        &IVXFormatPreset::CurrentAudioCodec};

inline const CodecPresetSide kVideoSide{"Video",
                                        "videoCodecPresets",
                                        "indexForVideoCodecPresets",
                                        &IVXFormatPreset::VideoCodecPresets,
                                        &IVXFormatPreset::VideoCodecPresets,
                                        &IVXFormatPreset::VideoCodecPreset,
                                        &IVXFormatPreset::VideoCodecPreset,
                                        &IVXFormatPreset::VideoCodecPresetByCodecID,
                                        &IVXFormatPreset::VideoCodecPresetByCodecID,
                                        &IVXFormatPreset::VideoCodecPresetCount,
                                        &IVXFormatPreset::IndexForVideoCodecPresets,
                                        &IVXFormatPreset::SetIndexForVideoCodecPresets,
                                        &IVXFormatPreset::AddVideoCodecPreset,
                                        &IVXFormatPreset::RemoveVideoCodec,
                                        &IVXFormatPreset::RemoveVideoCodecPreset,
                                        &IVXFormatPreset::InsertVideoCodecPreset,
                                        &IVXFormatPreset::MoveVideoCodecPreset,
                                        &IVXFormatPreset::CurrentVideoCodec,
                                        &IVXFormatPreset::CurrentVideoCodec};

/// The list of codec presets as JSON, a codec a letter: the letter's code is the codec's identifier.
inline std::string CodecList(std::string_view letters)
{
    std::string json;
    for (const char letter : letters)
        json += (json.empty() ? R"({"codecID":)" : R"(,{"codecID":)") + std::to_string(letter) + "}";
    return "[" + json + "]";
}

/// A list the other way round: its codecs as letters.
template <class Presets>
std::string Letters(const Presets& presets)
{
    std::string letters;
    for (const auto& preset : presets)
        letters += static_cast<char>(preset->CodecID());
    return letters;
}

/// The members of a format preset that describe one list.
inline std::string Members(const CodecPresetSide& side, std::string_view letters, int index)
{
    return '"' + std::string(side.listKey) + "\":" + CodecList(letters) + ",\"" + side.indexKey +
           "\":" + std::to_string(index);
}

} // namespace Vexlor
