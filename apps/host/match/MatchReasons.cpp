#include "MatchReasons.h"

#include "StreamReasons.h"
#include "apps/host/Stream.h"
#include "apps/host/Text.h"
#include "apps/host/Units.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Vexlor::Tool
{

namespace
{

using Codec = std::shared_ptr<const IVXCodecPreset>;
using CodecList = std::vector<Codec>;

bool HasEncoder(const IVXCodecPreset& preset)
{
    const auto codecs = IVXCodecs::MallocCodecs(preset.CodecID(), true);
    return codecs && !codecs->Names().empty();
}

/// The codec preset that is used, and why.
struct ReasonedCodec
{
    Codec preset;
    MatchStep step;
};

ReasonedCodec FirstUsable(const CodecList& list)
{
    Codec first;
    for (const auto& preset : list)
    {
        if (preset->IsAutoValue())
            continue;
        if (HasEncoder(*preset))
            return {preset, {MatchReason::FirstOfList, "first of the list with an encoder here"}};
        if (!first)
            first = preset;
    }
    return {first, {MatchReason::FirstOfList, "first of the list: none has an encoder here"}};
}

ReasonedCodec ReasonCodec(const Codec& current, const CodecList& list)
{
    if (current && current->IsAutoValue())
        return FirstUsable(list);
    return {current, {MatchReason::Chosen, "chosen in the preset"}};
}

/// Texts of a stream's values, to be compared with what becomes of them.
struct Before
{
    std::vector<std::pair<MatchNumbers, std::string>> values;
};

Before ValuesOf(const IVXCodecParameter& stream, std::span<const MatchRow> rows)
{
    Before before;
    for (const auto& row : rows)
        before.values.emplace_back(row.numbers(stream), row.text(stream));
    return before;
}

/// Whether the bitrate is one of a few, which are the profile's or those that the standard lists.
bool HasFewBitrates(const IVXCodecParameter& stream)
{
    constexpr std::array kFew{VXCodecID_ProRes, VXCodecID_DNxHR, VXCodecID_DNxHD, VXCodecID_DV,
                              VXCodecID_DVNTSC};
    return std::ranges::find(kFew, stream.GetCodecID()) != kFew.end();
}

/// What made the value another when the stream was put into its container.
MatchStep StepInto(MatchValue value, const IVXCodecParameter& stream, const std::string& container)
{
    if (value != MatchValue::Bitrate || !HasFewBitrates(stream))
        return {MatchReason::SetByContainer, "set by the container " + container};
    const auto profile = ProfileText(stream);
    return {MatchReason::Snapped, profile.empty() ? std::string("snapped by the codec")
                                                  : "snapped to that of the profile " + profile};
}

/// Adds to the values that are no longer what they were what did it.
void AddContainer(ReasonedStream& output, const Before& before, std::span<const MatchRow> rows,
                  const std::string& container)
{
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        const auto& [numbers, text] = before.values[i];
        if (rows[i].value == MatchValue::DisplaySize || rows[i].numbers(*output.stream) == numbers)
            continue;
        if (text.empty())
            output.reasons[rows[i].value].clear(); // nothing was left to the encoder after all
        auto step = StepInto(rows[i].value, *output.stream, container);
        step.text += text.empty() ? "" : " from " + text;
        output.Add(rows[i].value, step.reason, step.text);
    }
}

/// Sets the stream of an output, which brings it within what its container takes.
void PutInto(IVXFormatParameter& file, ReasonedStream& output, bool isAudio)
{
    const auto rows = isAudio ? AudioRows() : VideoRows();
    const auto before = ValuesOf(*output.stream, rows);
    if (isAudio)
        file.SetAudioCodecParameter(output.stream);
    else
        file.SetVideoCodecParameter(output.stream);
    output.Add(MatchValue::CodecTag, MatchReason::LeftToEncoder, "left to the container");
    AddContainer(output, before, rows, OneLine(file.FormatName()));
}

// AVI players choose their decoder by the tag.
void ReasonTag(ReasonedStream& output, int codecID, const std::string& container)
{
    const bool isDivX = codecID == VXCodecID_DIVX;
    if (container != VXFormatNameAVI || (!isDivX && codecID != VXCodecID_MPEG4))
        return;
    output.stream->SetCodecTag(isDivX ? IVXCodecParameter::MakeCodecTag('D', 'I', 'V', '5')
                                      : IVXCodecParameter::MakeCodecTag('X', 'V', 'I', 'D'));
    output.reasons[MatchValue::CodecTag] = {
        {MatchReason::SetByContainer, "set by the container " + container}};
}

/// One side within its bounds, and which of them it met.
std::pair<int, std::string> Bounded(int side, int max, int min, const std::string& name)
{
    if (max < side)
        return {max, "at most " + std::to_string(max) + ' ' + name};
    if (side < min)
        return {min, "at least " + std::to_string(min) + ' ' + name};
    return {side, {}};
}

/// Answers the size that the bounds have cut; 0 x 0 where they cut nothing.
std::pair<int, int> ReasonBounds(ReasonedStream& output, const IVXFormatPreset& preset)
{
    if (preset.MaxHeight() <= 0 || preset.MaxWidth() <= 0)
        return {};
    auto& stream = *output.stream;
    const auto [width, wide] = Bounded(stream.GetWidth(), preset.MaxWidth(), preset.MinWidth(), "wide");
    const auto [height, high] = Bounded(stream.GetHeight(), preset.MaxHeight(), preset.MinHeight(), "high");
    if (wide.empty() && high.empty())
        return {};
    const std::pair unbounded(stream.GetWidth(), stream.GetHeight());
    stream.SetWidth(width);
    stream.SetHeight(height);
    const auto between = wide.empty() || high.empty() ? "" : " and ";
    auto text = "bounded by the preset (" + wide + between + high + ')';
    if (const auto before = SizeText(unbounded.first, unbounded.second); !before.empty())
        text.append(" from ").append(before);
    output.Add(MatchValue::Size, MatchReason::Bounded, text);
    return unbounded;
}

ReasonedStream ReasonInto(IVXFormatParameter& file, const ReasonedCodec& codec,
                          const IVXCodecParameter& source, const BitrateBounds& bounds, bool isAudio)
{
    auto output = ReasonStream(*codec.preset, source, bounds);
    output.reasons[MatchValue::Codec] = {codec.step};
    PutInto(file, output, isAudio);
    return output;
}

void ReasonVideo(MatchReasons& reasons, IVXFormatParameter& file, const IVXFormatPreset& preset,
                 const IVXCodecParameter& source)
{
    const auto codec = ReasonCodec(preset.CurrentVideoCodec(), preset.VideoCodecPresets());
    if (!codec.preset)
        return;
    auto output =
        ReasonInto(file, codec, source, {preset.MaxVideoBitrate(), preset.MinVideoBitrate()}, false);
    ReasonTag(output, codec.preset->CodecID(), preset.FormatName());
    reasons.unbounded = ReasonBounds(output, preset);
    output.Add(MatchValue::DisplaySize, MatchReason::Follows, "from size and sample aspect");
    reasons.video = std::move(output.reasons);
}

void ReasonAudio(MatchReasons& reasons, IVXFormatParameter& file, const IVXFormatPreset& preset,
                 const IVXCodecParameter& source)
{
    const auto codec = ReasonCodec(preset.CurrentAudioCodec(), preset.AudioCodecPresets());
    if (codec.preset)
        reasons.audio =
            ReasonInto(file, codec, source, {preset.MaxAudioBitrate(), preset.MinAudioBitrate()}, true)
                .reasons;
}

} // namespace

MatchReasons ReasonsOf(const IVXFormatPreset& preset, const IVXFormatParameter& source)
{
    const auto output = IVXFormatParameter::MallocFormatParameter(preset.FormatName(), preset.FormatHint());
    MatchReasons reasons;
    if (const auto video = source.GetVideoCodecParameter())
        ReasonVideo(reasons, *output, preset, *video);
    if (const auto audio = source.GetAudioCodecParameter())
        ReasonAudio(reasons, *output, preset, *audio);
    reasons.output = output;
    return reasons;
}

const char* ReasonName(MatchReason reason)
{
    switch (reason)
    {
    case MatchReason::Chosen:
        return "chosen";
    case MatchReason::FromSource:
        return "source";
    case MatchReason::FirstOfList:
        return "first";
    case MatchReason::FromModel:
        return "model";
    case MatchReason::Snapped:
        return "snapped";
    case MatchReason::Bounded:
        return "bounded";
    case MatchReason::SetByContainer:
        return "container";
    case MatchReason::LeftToEncoder:
        return "encoder";
    default:
        return "follows";
    }
}

std::string ReasonText(const StreamReasons& reasons, MatchValue value)
{
    const auto found = reasons.find(value);
    std::vector<std::string> texts;
    if (found != reasons.end())
        for (const auto& step : found->second)
            texts.push_back(step.text);
    return Joined(texts, ", ");
}

} // namespace Vexlor::Tool
