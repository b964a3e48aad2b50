#include "IVXCodecPreset.h"

#include "IVXChannelLayoutPreset.h"
#include "IVXCodecParameter.h"
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

// The user's choice wins; where it is Auto, or there is none, the source's value takes its place, and without
// a source the first concrete value on offer. What results is snapped to what the codec accepts before it is
// written.

namespace Vexlor
{

namespace
{

template <typename Handle>
bool IsOpen(const Handle& preset)
{
    return !preset || preset->IsAutoValue();
}

/// The first entry that is not Auto; where there is none, the fallback.
template <typename Preset>
std::shared_ptr<const Preset> FirstConcrete(const std::vector<std::shared_ptr<const Preset>>& list,
                                            std::shared_ptr<const Preset> fallback)
{
    const auto found = std::ranges::find_if(list, [](const auto& preset) { return !preset->IsAutoValue(); });
    return found != list.end() ? *found : fallback;
}

bool IsZero(const IVXRational& rate) { return rate.GetDoubleValue() == 0.0; }

} // namespace

std::shared_ptr<IVXCodecParameter>
IVXCodecPreset::MatchForSource(const std::shared_ptr<const IVXCodecParameter>& source, int maxBitrate,
                               int minBitrate) const
{
    auto output = IVXCodecParameter::MallocCodecParamter(CodecID());
    MatchForType(output, source);
    MatchForFormat(output);
    MatchForQuality(output, source, maxBitrate, minBitrate);
    SetProfileLevelAspect(output);
    return output;
}

std::shared_ptr<IVXCodecParameter> IVXCodecPreset::DefaultCodecParameter(int maxBitrate, int minBitrate) const
{
    auto output = IVXCodecParameter::MallocCodecParamter(CodecID());
    MatchForType(output, nullptr);
    MatchForQuality(output, nullptr, maxBitrate, minBitrate);
    SetProfileLevelAspect(output);
    // Deliberately not from the format list: without a source there is nothing to be true to.
    const auto codecs = IVXCodecs::MallocCodecs(CodecID(), true);
    const int type = codecs ? codecs->GetCodecType() : VXCodecTypeUnknown;
    if (type == VXCodecTypeVideo)
        output->SetFormat(VXPixFormat_YUV420P);
    else if (type == VXCodecTypeAudio)
        output->SetFormat(VXSampleFormat_FLT);
    return output;
}

void IVXCodecPreset::MatchForType(Output& output, const Source& source) const
{
    const auto codecs = IVXCodecs::MallocCodecs(CodecID(), true);
    if (!codecs)
        return;
    if (codecs->GetCodecType() == VXCodecTypeVideo)
    {
        MatchForResolution(output, source);
        MatchForFramerate(output, source);
    }
    else
    {
        MatchForSamplerate(output, source);
        MatchForChannelLayout(output, source);
    }
}

void IVXCodecPreset::MatchForResolution(Output& output, const Source& source) const
{
    auto current = CurrentResolution();
    if (IsOpen(current) && !source)
        current = FirstConcrete(ResolutionPresets(), current);
    int width = current ? current->Width() : 0;
    int height = current ? current->Height() : 0;
    if (IsOpen(current) && source)
    {
        width = source->GetDisplayWidth();
        height = source->GetDisplayHeight();
    }

    const auto codecs = IVXCodecs::MallocCodecs(CodecID(), true);
    if (!codecs)
        return;
    const auto [bestWidth, bestHeight] = codecs->BestResolutionFor(width, height, {});
    output->SetWidth(bestWidth);
    output->SetHeight(bestHeight);
}

void IVXCodecPreset::MatchForFramerate(Output& output, const Source& source) const
{
    const auto current = CurrentFramerate();
    std::shared_ptr<const IVXRational> rate = current ? current->Framerate() : IVXRational::MallocRational();
    if (IsOpen(current) && source)
        rate = source->GetFrameRate();
    // A rate of zero is one that nobody told, whoever it came from.
    if ((IsOpen(current) && !source) || !rate || IsZero(*rate))
        if (const auto concrete = FirstConcrete(FrameratePresets(), {}))
            rate = concrete->Framerate();

    if (const auto codecs = IVXCodecs::MallocCodecs(CodecID(), true))
        output->SetFramePerSecond(codecs->BestFrameRateForInput(rate, {}));
}

void IVXCodecPreset::MatchForSamplerate(Output& output, const Source& source) const
{
    auto current = CurrentSamplerate();
    if (IsOpen(current) && !source)
        current = FirstConcrete(SampleratePresets(), current);
    int rate = current ? current->Samplerate() : 0;
    if (IsOpen(current) && source)
        rate = source->GetSampleRate();

    if (const auto codecs = IVXCodecs::MallocCodecs(CodecID(), true))
        output->SetSampleRate(codecs->BestSampleRateForInput(rate, {}));
}

void IVXCodecPreset::MatchForChannelLayout(Output& output, const Source& source) const
{
    auto current = CurrentChannelLayout();
    if (IsOpen(current) && !source)
        current = FirstConcrete(ChannelLayoutPresets(), current);
    std::uint64_t layout = current ? current->Layout() : 0;
    if (IsOpen(current) && source)
        layout = source->GetChannelLayout();

    if (const auto codecs = IVXCodecs::MallocCodecs(CodecID(), true))
        output->SetChannelLayout(codecs->BestChannelLayoutForInput(layout, {}));
}

// No format is asked of the source: an Auto entry gives way to the first concrete one, and where there is
// none, none is what is written.
void IVXCodecPreset::MatchForFormat(Output& output) const
{
    std::shared_ptr<const IVXSampleFmtPreset> current = CurrentSampleFmt();
    if (IsOpen(current))
        current = FirstConcrete(SampleFmtPresets(), current);
    output->SetFormat(current ? current->Format() : VXPixFormat_None);
}

void IVXCodecPreset::SetProfileLevelAspect(Output& output) const
{
    if (const auto profile = CurrentPrefile())
        output->SetProfile(profile->Profile());
    if (const auto level = CurrentLevel())
        output->SetLevel(level->Level());
    output->SetAspectRatio(AspectPreset()->Ratio());
}

} // namespace Vexlor
