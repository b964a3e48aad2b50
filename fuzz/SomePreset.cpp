#include "fuzz/SomePreset.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXCodecs.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "IVXSampleAspectPreset.h"
#include "VXMediaCodecs.h"

#include <array>
#include <map>
#include <stdexcept>

namespace Vexlor
{

namespace
{

constexpr int kMostEdits = 24;

/// One of so many, or now and then any integer, in the list or out of it.
int SomeIndex(ChoiceReader& choices, int count)
{
    return choices.Below(4) == 0 ? choices.Integer() : choices.Below(count);
}

/// A move, which is refused where it is from the count.
template <class Move>
void Attempt(Move move)
{
    try
    {
        move();
    }
    catch (const std::out_of_range&)
    {
    }
}

/// As made for the codec, from a copy that is kept: making one asks the codec library for everything.
std::shared_ptr<IVXCodecPreset> SomeCodecPreset(ChoiceReader& choices)
{
    static std::map<int, std::shared_ptr<const IVXCodecPreset>> s_made;
    const int codecID = choices.Below(8) == 0 ? VXCodecID_None : SomeCodec(choices);
    if (!IVXCodecs::MallocCodecs(codecID, true))
        return IVXCodecPreset::MallocCodecPreset(codecID);
    auto& made = s_made[codecID];
    if (!made)
        made = IVXCodecPreset::MallocCodecPreset(codecID);
    return made->Clone();
}

void AddVideoCodec(IVXFormatPreset& preset, ChoiceReader& choices)
{
    const auto codec = SomeCodecPreset(choices);
    preset.InsertVideoCodecPreset(codec, SomeIndex(choices, preset.VideoCodecPresetCount() + 1));
    preset.SetIndexForVideoCodecPresets(0);
}

void AddAudioCodec(IVXFormatPreset& preset, ChoiceReader& choices)
{
    const auto codec = SomeCodecPreset(choices);
    preset.InsertAudioCodecPreset(codec, SomeIndex(choices, preset.AudioCodecPresetCount() + 1));
    preset.SetIndexForAudioCodecPresets(0);
}

void AddEntry(IVXCodecPreset& preset, ChoiceReader& choices)
{
    const int first = choices.Integer();
    const int second = choices.Integer();
    switch (choices.Below(6))
    {
    case 0:
        return preset.AddResolutionPreset(first, second);
    case 1:
        return preset.AddFrameratePreset(first, second);
    case 2:
        return preset.AddSampleratePreset(first);
    case 3:
        return preset.AddChannelLayoutPreset(choices.Bits(8));
    case 4:
        return preset.AddProfilePreset(first);
    default:
        return preset.AddLevelPreset(first);
    }
}

void RemoveEntry(IVXCodecPreset& preset, ChoiceReader& choices)
{
    constexpr std::array kRemovals{
        &IVXCodecPreset::RemoveResolutionPreset, &IVXCodecPreset::RemoveFrameratePreset,
        &IVXCodecPreset::RemoveSampleratePreset, &IVXCodecPreset::RemoveChannelLayoutPreset,
        &IVXCodecPreset::RemoveProfilePreset,    &IVXCodecPreset::RemoveLevelPreset};
    const auto removal = kRemovals[static_cast<std::size_t>(choices.Below(kRemovals.size()))];
    (preset.*removal)(SomeIndex(choices, 16));
}

void MoveEntry(IVXCodecPreset& preset, ChoiceReader& choices)
{
    constexpr std::array kMoves{
        &IVXCodecPreset::MoveResolutionPreset, &IVXCodecPreset::MoveFrameratePreset,
        &IVXCodecPreset::MoveSampleratePreset, &IVXCodecPreset::MoveChannelLayoutPreset,
        &IVXCodecPreset::MoveProfilePreset,    &IVXCodecPreset::MoveLevelPreset};
    const auto move = kMoves[static_cast<std::size_t>(choices.Below(kMoves.size()))];
    const int from = SomeIndex(choices, 16);
    const int to = SomeIndex(choices, 16);
    Attempt([&] { (preset.*move)(from, to); });
}

void Choose(IVXCodecPreset& preset, ChoiceReader& choices)
{
    constexpr std::array kChoosers{
        &IVXCodecPreset::SetIndexForResolutionPreset,     &IVXCodecPreset::SetIndexForFrameratePresets,
        &IVXCodecPreset::SetIndexForQualityPresets,       &IVXCodecPreset::SetIndexForSampleratePresets,
        &IVXCodecPreset::SetIndexForChannelLayoutPresets, &IVXCodecPreset::SetIndexForProfilesPresets,
        &IVXCodecPreset::SetIndexForLevelPresets,         &IVXCodecPreset::SetIndexForSampleFmts};
    const auto chooser = kChoosers[static_cast<std::size_t>(choices.Below(kChoosers.size()))];
    (preset.*chooser)(SomeIndex(choices, 32));
}

void SetQuality(IVXCodecPreset& preset, ChoiceReader& choices)
{
    preset.SetIndexForQualityPresets(choices.Below(6));
    if (const auto quality = preset.CurrentCodecQuality())
    {
        quality->SetMode(choices.Integer());
        quality->SetBitrate(choices.Integer());
        quality->SetMinBitrate(choices.Integer());
        quality->SetMaxBitrate(choices.Integer());
    }
}

void SetRatio(IVXSampleAspectPreset& aspect, ChoiceReader& choices)
{
    const int num = choices.Integer();
    aspect.SetRatio(num, choices.Integer());
}

void EditCodec(IVXCodecPreset& preset, ChoiceReader& choices)
{
    switch (choices.Below(6))
    {
    case 0:
        return AddEntry(preset, choices);
    case 1:
        return RemoveEntry(preset, choices);
    case 2:
        return SetQuality(preset, choices);
    case 4:
        return MoveEntry(preset, choices);
    case 3:
        preset.AspectPreset()->SetAspectType(
            static_cast<IVXSampleAspectPreset::AspectPresetType>(choices.Integer()));
        return SetRatio(*preset.AspectPreset(), choices);
    default:
        return Choose(preset, choices);
    }
}

void SetBound(IVXFormatPreset& preset, ChoiceReader& choices)
{
    constexpr std::array kBounds{&IVXFormatPreset::SetMaxWidth,        &IVXFormatPreset::SetMinWidth,
                                 &IVXFormatPreset::SetMaxHeight,       &IVXFormatPreset::SetMinHeight,
                                 &IVXFormatPreset::SetMaxVideoBitrate, &IVXFormatPreset::SetMinVideoBitrate,
                                 &IVXFormatPreset::SetMaxAudioBitrate, &IVXFormatPreset::SetMinAudioBitrate};
    (preset.*kBounds[static_cast<std::size_t>(choices.Below(kBounds.size()))])(choices.Integer());
}

/// The list of codecs that a step works on, of pictures or of sound.
struct CodecListSteps
{
    int (IVXFormatPreset::*choose)(int index);
    void (IVXFormatPreset::*remove)(int index);
    void (IVXFormatPreset::*move)(int from, int to);
    void (*add)(IVXFormatPreset& preset, ChoiceReader& choices);
};

constexpr std::array kCodecLists{
    CodecListSteps{&IVXFormatPreset::SetIndexForVideoCodecPresets, &IVXFormatPreset::RemoveVideoCodecPreset,
                   &IVXFormatPreset::MoveVideoCodecPreset, &AddVideoCodec},
    CodecListSteps{&IVXFormatPreset::SetIndexForAudioCodecPresets, &IVXFormatPreset::RemoveAudioCodecPreset,
                   &IVXFormatPreset::MoveAudioCodecPreset, &AddAudioCodec}};

void EditCodecList(IVXFormatPreset& preset, const CodecListSteps& list, ChoiceReader& choices)
{
    switch (choices.Below(4))
    {
    case 0:
        return list.add(preset, choices);
    case 1:
        return (preset.*list.remove)(SomeIndex(choices, 4));
    case 2:
    {
        const int from = SomeIndex(choices, 4);
        const int to = SomeIndex(choices, 4);
        return Attempt([&] { (preset.*list.move)(from, to); });
    }
    default:
        (preset.*list.choose)(SomeIndex(choices, 16));
    }
}

void EditFormat(IVXFormatPreset& preset, ChoiceReader& choices)
{
    const auto kind = choices.Below(8);
    if (kind == 0)
        return SetBound(preset, choices);
    if (kind < 4)
        return EditCodecList(preset, kCodecLists[static_cast<std::size_t>(choices.Below(2))], choices);
    if (const auto codec = choices.Below(2) == 0 ? preset.CurrentVideoCodec() : preset.CurrentAudioCodec())
        EditCodec(*codec, choices);
}

} // namespace

int SomeCodec(ChoiceReader& choices)
{
    constexpr std::array kKnown{VXCodecID_H264, VXCodecID_HEVC, VXCodecID_MPEG2, VXCodecID_MPEG4,
                                VXCodecID_DIVX, VXCodecID_VP9,  VXCodecID_DV,    VXCodecID_ProRes,
                                VXCodecID_GIF,  VXCodecID_AAC,  VXCodecID_MP3,   VXCodecID_Opus,
                                VXCodecID_DTS,  VXCodecID_FLAC, VXCodecID_PCM16, VXCodecID_AMRNB};
    if (choices.Below(8) == 0)
        return choices.Integer();
    return kKnown[static_cast<std::size_t>(choices.Below(kKnown.size()))];
}

std::shared_ptr<IVXFormatPreset> SomePreset(ChoiceReader& choices)
{
    static const auto s_names = VXMediaCodecSupportOutputAllMediaFormats();
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("formatName",
                         s_names[static_cast<std::size_t>(choices.Below(static_cast<int>(s_names.size())))]);
    auto preset = IVXFormatPreset::MallocFormatPreset(json);
    AddVideoCodec(*preset, choices);
    AddAudioCodec(*preset, choices);
    const int edits = choices.Below(kMostEdits);
    for (int i = 0; i < edits; ++i)
        EditFormat(*preset, choices);
    return preset;
}

} // namespace Vexlor
