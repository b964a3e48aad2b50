#include "fuzz/ChoiceReader.h"
#include "fuzz/Require.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "IVXRational.h"
#include "IVXSampleAspectPreset.h"
#include "VXMediaCodecs.h"
#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXLogSink.h"

#include <array>
#include <map>
#include <sstream>

// Any preset with any current entries and bounds takes any source: what it answers is the same each time,
// keeps the preset and the source as they were, lies within the preset's size and is what the codec itself
// accepts.

namespace
{

using namespace Vexlor;

constexpr int kMostEdits = 24;

using Parameter = std::shared_ptr<IVXCodecParameter>;

/// A codec that the runtime knows, or any number.
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
    preset.InsertVideoCodecPreset(SomeCodecPreset(choices),
                                  choices.Below(preset.VideoCodecPresetCount() + 1));
    preset.SetIndexForVideoCodecPresets(0);
}

void AddAudioCodec(IVXFormatPreset& preset, ChoiceReader& choices)
{
    preset.InsertAudioCodecPreset(SomeCodecPreset(choices),
                                  choices.Below(preset.AudioCodecPresetCount() + 1));
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
    (preset.*kRemovals[static_cast<std::size_t>(choices.Below(kRemovals.size()))])(choices.Below(16));
}

void Choose(IVXCodecPreset& preset, ChoiceReader& choices)
{
    constexpr std::array kChoosers{
        &IVXCodecPreset::SetIndexForResolutionPreset,     &IVXCodecPreset::SetIndexForFrameratePresets,
        &IVXCodecPreset::SetIndexForQualityPresets,       &IVXCodecPreset::SetIndexForSampleratePresets,
        &IVXCodecPreset::SetIndexForChannelLayoutPresets, &IVXCodecPreset::SetIndexForProfilesPresets,
        &IVXCodecPreset::SetIndexForLevelPresets,         &IVXCodecPreset::SetIndexForSampleFmts};
    const auto chooser = kChoosers[static_cast<std::size_t>(choices.Below(kChoosers.size()))];
    (preset.*chooser)(choices.Below(4) == 0 ? choices.Integer() : choices.Below(32));
}

void SetQuality(IVXCodecPreset& preset, ChoiceReader& choices)
{
    preset.SetIndexForQualityPresets(choices.Below(6));
    if (const auto quality = preset.CurrentCodecQuality())
    {
        quality->SetMode(choices.Integer());
        quality->SetBitrate(choices.Integer());
        quality->SetMinBitrate(choices.Integer());
    }
}

void EditCodec(IVXCodecPreset& preset, ChoiceReader& choices)
{
    switch (choices.Below(5))
    {
    case 0:
        return AddEntry(preset, choices);
    case 1:
        return RemoveEntry(preset, choices);
    case 2:
        return SetQuality(preset, choices);
    case 3:
        preset.AspectPreset()->SetAspectType(
            static_cast<IVXSampleAspectPreset::AspectPresetType>(choices.Integer()));
        return preset.AspectPreset()->SetRatio(choices.Integer(), choices.Integer());
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

void EditFormat(IVXFormatPreset& preset, ChoiceReader& choices)
{
    switch (choices.Below(8))
    {
    case 0:
        SetBound(preset, choices);
        break;
    case 1:
        preset.SetIndexForVideoCodecPresets(choices.Below(16));
        break;
    case 2:
        preset.SetIndexForAudioCodecPresets(choices.Below(16));
        break;
    case 3:
        AddVideoCodec(preset, choices);
        break;
    case 4:
        AddAudioCodec(preset, choices);
        break;
    case 5:
        preset.RemoveAudioCodecPreset(choices.Below(4));
        break;
    default:
        if (const auto codec =
                choices.Below(2) == 0 ? preset.CurrentVideoCodec() : preset.CurrentAudioCodec())
            EditCodec(*codec, choices);
    }
}

/// A preset with a few codecs; one of everything that its container takes would cost a fuzzer most of its
/// time.
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

Parameter SomeStream(ChoiceReader& choices)
{
    if (choices.Below(8) == 0)
        return {};
    auto stream = IVXCodecParameter::MallocCodecParamter(SomeCodec(choices));
    stream->SetWidth(choices.Integer());
    stream->SetHeight(choices.Integer());
    stream->SetFramePerSecond(IVXRational::MallocRational(choices.Integer(), choices.Integer()));
    stream->SetAspectRatio(IVXRational::MallocRational(choices.Integer(), choices.Integer()));
    stream->SetFormat(choices.Integer());
    stream->SetBitrate(choices.Integer());
    stream->SetSampleRate(choices.Integer());
    stream->SetChannelLayout(choices.Bits(8));
    return stream;
}

std::string Text(const std::shared_ptr<const IVXRational>& rational)
{
    return std::to_string(rational->Num()) + '/' + std::to_string(rational->Den());
}

std::string Text(const std::shared_ptr<const IVXCodecParameter>& stream)
{
    if (!stream)
        return "none";
    std::ostringstream text;
    text << stream->GetCodecID() << ' ' << stream->GetCodecTag() << ' ' << stream->GetWidth() << 'x'
         << stream->GetHeight() << ' ' << Text(stream->GetAspectRatio()) << ' '
         << Text(stream->GetFrameRate()) << ' ' << stream->GetFormat() << ' ' << stream->GetProfile() << ' '
         << stream->GetLevel() << ' ' << stream->GetBitrate() << ' ' << stream->GetMinBitrate() << ' '
         << stream->GetMaxBitrate() << ' ' << stream->GetBitrateMode() << ' ' << stream->GetSampleRate()
         << ' ' << stream->GetChannelLayout();
    return text.str();
}

std::string Text(const IVXFormatParameter& parameter)
{
    return parameter.FormatName() + ' ' + parameter.FormatHint() + '\n' +
           Text(parameter.GetVideoCodecParameter()) + '\n' + Text(parameter.GetAudioCodecParameter());
}

/// What a codec snapped to its own stays where it is when it is snapped again.
void CheckAccepted(const IVXCodecParameter& output, bool isSizeLimited)
{
    const auto codecs = output.GetCodecs(true);
    if (!codecs)
        return;
    if (codecs->GetCodecType() == VXCodecTypeVideo)
    {
        const std::pair size(output.GetWidth(), output.GetHeight());
        Require(isSizeLimited || codecs->BestResolutionFor(size.first, size.second, {}) == size);
        Require(Text(codecs->BestFrameRateForInput(output.GetFrameRate(), {})) ==
                Text(output.GetFrameRate()));
        return;
    }
    Require(codecs->BestSampleRateForInput(output.GetSampleRate(), {}) == output.GetSampleRate());
    Require(codecs->BestChannelLayoutForInput(output.GetChannelLayout(), {}) == output.GetChannelLayout());
}

/// Where the bounds cross, either may be the answer.
void CheckLimited(int size, int max, int min)
{
    Require(max < min ? size == max || size == min : size <= max && size >= min);
}

void CheckOutput(const IVXFormatPreset& preset, const IVXFormatParameter& source,
                 const IVXFormatParameter& output)
{
    Require(output.FormatName() == preset.FormatName());
    const auto video = output.GetVideoCodecParameter();
    const auto audio = output.GetAudioCodecParameter();
    Require(!video || source.GetVideoCodecParameter());
    Require(!audio || source.GetAudioCodecParameter());
    const bool isSizeLimited = preset.MaxWidth() > 0 && preset.MaxHeight() > 0;
    if (video)
        CheckAccepted(*video, isSizeLimited);
    if (video && isSizeLimited)
    {
        CheckLimited(video->GetWidth(), preset.MaxWidth(), preset.MinWidth());
        CheckLimited(video->GetHeight(), preset.MaxHeight(), preset.MinHeight());
    }
    if (audio)
        CheckAccepted(*audio, false);
}

void Check(const IVXFormatPreset& preset, const std::shared_ptr<const IVXFormatParameter>& source)
{
    const auto presetBefore = JsonText(*preset.JsonValue());
    const auto sourceBefore = Text(*source);
    const auto output = preset.MatchForSource(source);
    CheckOutput(preset, *source, *output);
    Require(Text(*preset.MatchForSource(source)) == Text(*output));
    Require(Text(*preset.Clone()->MatchForSource(source)) == Text(*output));
    Require(Text(*preset.DefaultFormatParameter()) == Text(*preset.Clone()->DefaultFormatParameter()));
    Require(JsonText(*preset.JsonValue()) == presetBefore);
    Require(Text(*source) == sourceBefore);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    static const auto s_log = SetLogSink([](IVXLogConfig::LogLevel, std::string_view) {});
    ChoiceReader choices(bytes, size);
    const auto preset = SomePreset(choices);
    const auto source = IVXFormatParameter::MallocFormatParameter("", "");
    source->SetVideoCodecParameter(SomeStream(choices));
    source->SetAudioCodecParameter(SomeStream(choices));
    Check(*preset, source);
    return 0;
}
