#include "StreamReasons.h"

#include "apps/host/Units.h"

#include "IVXChannelLayoutPreset.h"
#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecs.h"
#include "IVXFrameratePreset.h"
#include "IVXLevelPreset.h"
#include "IVXProfilePreset.h"
#include "IVXRational.h"
#include "IVXResolutionPreset.h"
#include "IVXSampleAspectPreset.h"
#include "IVXSampleFmtPreset.h"
#include "IVXSampleratePreset.h"
#include "VXMediaCodecs.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr auto* kChosen = "chosen in the preset";
constexpr auto* kFromSource = "taken from the source";
constexpr auto* kFirst = "first of the list";
constexpr auto* kLeft = "left to the encoder";

/// One stream on its way from a source through a codec preset.
class Reasoning
{
public:
    Reasoning(const IVXCodecPreset& preset, const IVXCodecParameter& source)
        : m_preset(preset), m_source(source), m_codecs(IVXCodecs::MallocCodecs(preset.CodecID(), true)),
          m_output{IVXCodecParameter::MallocCodecParamter(preset.CodecID()), {}}
    {
    }

    ReasonedStream Reason(const BitrateBounds& bounds);

private:
    template <typename Entry>
    bool StartFrom(MatchValue value, const Entry& entry);
    void Snap(MatchValue value, const std::string& wanted, const std::string& taken);
    void ReasonSize();
    void ReasonFrameRate();
    void ReasonSampleRate();
    void ReasonLayout();
    void ReasonFormat();
    void ReasonLabels();
    template <typename List>
    auto FirstConcrete(MatchValue value, const List& list) -> typename List::value_type;

    const IVXCodecPreset& m_preset;
    const IVXCodecParameter& m_source;
    std::shared_ptr<IVXCodecs> m_codecs;
    ReasonedStream m_output;
};

/// True where the entry is the user's choice; else the source's value is taken.
template <typename Entry>
bool Reasoning::StartFrom(MatchValue value, const Entry& entry)
{
    const bool isChosen = entry && !entry->IsAutoValue();
    m_output.Add(value, isChosen ? MatchReason::Chosen : MatchReason::FromSource,
                 isChosen ? kChosen : kFromSource);
    return isChosen;
}

void Reasoning::Snap(MatchValue value, const std::string& wanted, const std::string& taken)
{
    if (wanted.empty())
        m_output.reasons[value] = {{MatchReason::Snapped, "the codec's usual as none is known"}};
    else if (wanted != taken)
        m_output.Add(value, MatchReason::Snapped, "snapped by the codec from " + wanted);
}

void Reasoning::ReasonSize()
{
    const auto entry = m_preset.CurrentResolution();
    const bool isChosen = StartFrom(MatchValue::Size, entry);
    const int width = isChosen ? entry->Width() : m_source.GetDisplayWidth();
    const int height = isChosen ? entry->Height() : m_source.GetDisplayHeight();
    if (!isChosen && (width != m_source.GetWidth() || height != m_source.GetHeight()))
        m_output.reasons[MatchValue::Size].back().text += " as displayed";
    const auto [bestWidth, bestHeight] = m_codecs->BestResolutionFor(width, height, {});
    m_output.stream->SetWidth(bestWidth);
    m_output.stream->SetHeight(bestHeight);
    Snap(MatchValue::Size, SizeText(width, height), SizeText(bestWidth, bestHeight));
}

template <typename List>
auto Reasoning::FirstConcrete(MatchValue value, const List& list) -> typename List::value_type
{
    const auto found = std::ranges::find_if(list, [](const auto& entry) { return !entry->IsAutoValue(); });
    if (found == list.end())
        return {};
    m_output.reasons[value] = {{MatchReason::FirstOfList, kFirst}};
    return *found;
}

std::string FractionText(const IVXRational& rate)
{
    return std::to_string(rate.Num()) + '/' + std::to_string(rate.Den());
}

/// Where both rates read alike, as fractions.
std::string RateBeside(const IVXRational& rate, const IVXRational& other)
{
    const bool isSame = rate.Num() == other.Num() && rate.Den() == other.Den();
    const auto text = FrameRateText(rate);
    return !isSame && !text.empty() && text == FrameRateText(other) ? FractionText(rate) : text;
}

void Reasoning::ReasonFrameRate()
{
    const auto entry = m_preset.CurrentFramerate();
    const bool isChosen = StartFrom(MatchValue::FrameRate, entry);
    std::shared_ptr<const IVXRational> rate = m_source.GetFrameRate();
    if (isChosen)
        rate = entry->Framerate();
    if (rate->GetDoubleValue() == 0.0) // nobody told
        if (const auto first = FirstConcrete(MatchValue::FrameRate, m_preset.FrameratePresets()))
            rate = first->Framerate();
    const std::shared_ptr<const IVXRational> best = m_codecs->BestFrameRateForInput(rate, {});
    m_output.stream->SetFramePerSecond(best);
    Snap(MatchValue::FrameRate, RateBeside(*rate, *best), RateBeside(*best, *rate));
}

std::string RateText(int rate) { return rate < 1 ? std::string() : VXMediaCodecFormatSamplerate(rate); }

void Reasoning::ReasonSampleRate()
{
    const auto entry = m_preset.CurrentSamplerate();
    const bool isChosen = StartFrom(MatchValue::SampleRate, entry);
    const int rate = isChosen ? entry->Samplerate() : m_source.GetSampleRate();
    const int best = m_codecs->BestSampleRateForInput(rate, {});
    m_output.stream->SetSampleRate(best);
    Snap(MatchValue::SampleRate, rate == best ? RateText(best) : RateText(rate), RateText(best));
}

void Reasoning::ReasonLayout()
{
    const auto entry = m_preset.CurrentChannelLayout();
    const bool isChosen = StartFrom(MatchValue::ChannelLayout, entry);
    const auto layout = isChosen ? entry->Layout() : m_source.GetChannelLayout();
    const auto best = m_codecs->BestChannelLayoutForInput(layout, {});
    m_output.stream->SetChannelLayout(best);
    Snap(MatchValue::ChannelLayout, LayoutText(layout), LayoutText(best));
}

void Reasoning::ReasonFormat()
{
    std::shared_ptr<const IVXSampleFmtPreset> entry = m_preset.CurrentSampleFmt();
    if (entry && !entry->IsAutoValue())
        m_output.Add(MatchValue::Format, MatchReason::Chosen, kChosen);
    else if (const auto first = FirstConcrete(MatchValue::Format, m_preset.SampleFmtPresets()))
        entry = first;
    else
        m_output.Add(MatchValue::Format, MatchReason::LeftToEncoder, kLeft);
    m_output.stream->SetFormat(entry ? entry->Format() : VXPixFormat_None);
}

void Reasoning::ReasonLabels()
{
    auto& stream = *m_output.stream;
    if (const auto profile = m_preset.CurrentPrefile())
        stream.SetProfile(profile->Profile());
    if (const auto level = m_preset.CurrentLevel())
        stream.SetLevel(level->Level());
    stream.SetAspectRatio(m_preset.AspectPreset()->Ratio());
    const auto add = [this](MatchValue value, bool isTold) {
        m_output.Add(value, isTold ? MatchReason::Chosen : MatchReason::LeftToEncoder,
                     isTold ? kChosen : kLeft);
    };
    add(MatchValue::Profile, stream.GetProfile() != IVXCodecs::VXProfileUnknown);
    add(MatchValue::Level, stream.GetLevel() != IVXCodecs::VXLevelUnknown);
    m_output.Add(MatchValue::SampleAspect, MatchReason::Chosen,
                 kChosen + (" (" + m_preset.AspectPreset()->AspectName()) + ')');
}

ReasonedStream Reasoning::Reason(const BitrateBounds& bounds)
{
    if (m_codecs && m_codecs->GetCodecType() == VXCodecTypeVideo)
    {
        ReasonSize();
        ReasonFrameRate();
    }
    else if (m_codecs)
    {
        ReasonSampleRate();
        ReasonLayout();
    }
    ReasonFormat();
    ReasonBitrate(m_output, m_preset, m_source, bounds);
    ReasonLabels();
    return std::move(m_output);
}

} // namespace

ReasonedStream ReasonStream(const IVXCodecPreset& preset, const IVXCodecParameter& source,
                            const BitrateBounds& bounds)
{
    return Reasoning(preset, source).Reason(bounds);
}

} // namespace Vexlor::Tool
