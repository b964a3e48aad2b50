#include "IVXFormatPreset.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

using Codec = std::shared_ptr<const IVXCodecPreset>;

bool HasEncoder(const IVXCodecPreset& preset)
{
    const auto codecs = IVXCodecs::MallocCodecs(preset.CodecID(), true);
    return codecs && !codecs->Names().empty();
}

// AVI players choose their decoder by this tag, not by what the stream says of itself.
void TagForAVI(IVXCodecParameter& video, int codecID)
{
    if (codecID == VXCodecID_DIVX)
        video.SetCodecTag(IVXCodecParameter::MakeCodecTag('D', 'I', 'V', '5'));
    else if (codecID == VXCodecID_MPEG4)
        video.SetCodecTag(IVXCodecParameter::MakeCodecTag('X', 'V', 'I', 'D'));
}

// A lower bound of 0 is none, which a size never lies below.
int Limited(int size, int max, int min)
{
    if (max < size)
        return max;
    return size < min ? min : size;
}

/// The current preset or, where that is no codec, the one that stands in for it.
Codec OrSecond(const Codec& current, const Codec& second)
{
    return current && current->IsAutoValue() ? second : current;
}

std::shared_ptr<IVXCodecParameter> DefaultParameter(const Codec& preset)
{
    return preset ? preset->DefaultCodecParameter(-1, -1) : nullptr;
}

} // namespace

std::shared_ptr<IVXFormatParameter>
IVXFormatPreset::MatchForSource(const std::shared_ptr<const IVXFormatParameter>& source) const
{
    auto output = IVXFormatParameter::MallocFormatParameter(FormatName(), FormatHint());
    if (!source)
        return output;
    MatchVideo(*output, *source);
    LimitSize(*output);
    MatchAudio(*output, *source);
    return output;
}

void IVXFormatPreset::MatchVideo(IVXFormatParameter& output, const IVXFormatParameter& source) const
{
    const auto stream = source.GetVideoCodecParameter();
    if (!stream)
        return output.SetVideoCodecParameter(nullptr);
    auto preset = CurrentVideoCodec();
    if (preset && preset->IsAutoValue())
        preset = UsableCodecPreset(false);
    if (!preset)
        return;
    output.SetVideoCodecParameter(preset->MatchForSource(stream, MaxVideoBitrate(), MinVideoBitrate()));
    if (const auto video = output.GetVideoCodecParameter(); video && FormatName() == VXFormatNameAVI)
        TagForAVI(*video, preset->CodecID());
}

void IVXFormatPreset::MatchAudio(IVXFormatParameter& output, const IVXFormatParameter& source) const
{
    const auto stream = source.GetAudioCodecParameter();
    if (!stream)
        return output.SetAudioCodecParameter(nullptr);
    auto preset = CurrentAudioCodec();
    if (preset && preset->IsAutoValue())
        preset = UsableCodecPreset(true);
    if (preset)
        output.SetAudioCodecParameter(preset->MatchForSource(stream, MaxAudioBitrate(), MinAudioBitrate()));
}

// Each side alone: the picture's shape is deliberately not kept, a device's limits are.
void IVXFormatPreset::LimitSize(IVXFormatParameter& output) const
{
    const auto video = output.GetVideoCodecParameter();
    if (!video || MaxHeight() <= 0 || MaxWidth() <= 0)
        return;
    const int width = Limited(video->GetWidth(), MaxWidth(), MinWidth());
    if (width != video->GetWidth())
        video->SetWidth(width);
    const int height = Limited(video->GetHeight(), MaxHeight(), MinHeight());
    if (height != video->GetHeight())
        video->SetHeight(height);
}

std::shared_ptr<const IVXCodecPreset> IVXFormatPreset::UsableCodecPreset(bool audio) const
{
    Codec first;
    for (const auto& preset : audio ? AudioCodecPresets() : VideoCodecPresets())
    {
        if (preset->IsAutoValue())
            continue;
        if (HasEncoder(*preset))
            return preset;
        if (!first)
            first = preset;
    }
    return first;
}

std::shared_ptr<IVXFormatParameter> IVXFormatPreset::DefaultFormatParameter() const
{
    auto output = IVXFormatParameter::MallocFormatParameter(FormatName(), FormatHint());
    // Lists with a no-codec entry have it in front and a real codec behind it.
    output->SetVideoCodecParameter(DefaultParameter(OrSecond(CurrentVideoCodec(), VideoCodecPreset(1))));
    output->SetAudioCodecParameter(DefaultParameter(OrSecond(CurrentAudioCodec(), AudioCodecPreset(1))));
    return output;
}

} // namespace Vexlor
