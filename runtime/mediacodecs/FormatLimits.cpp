#include "FormatLimits.h"

#include "BitrateModel.h"
#include "FormatTable.h"
#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXRational.h"
#include "Lookup.h"
#include "Snapping.h"

#include <algorithm>

namespace Vexlor
{

namespace
{

/// The label itself where it is taken or none is chosen, else the first one that is taken.
int FitLabel(int label, int unknown, std::span<const int> taken)
{
    const bool fits = label == unknown || taken.empty() || std::ranges::find(taken, label) != taken.end();
    return fits ? label : taken.front();
}

void FitLabels(IVXCodecParameter& stream, const StreamLimit& limit)
{
    stream.SetProfile(FitLabel(stream.GetProfile(), IVXCodecs::VXProfileUnknown, limit.profiles));
    stream.SetLevel(FitLabel(stream.GetLevel(), IVXCodecs::VXLevelUnknown, limit.levels));
}

void FitFrameRate(IVXCodecParameter& stream, const StreamLimit& limit)
{
    if (limit.frameRates.empty())
        return;
    const auto rate = stream.GetFrameRate();
    const VideoLimits rates{.min = {}, .max = {}, .rates = limit.frameRates};
    const auto fitting = SnapFrameRate({rate->Num(), rate->Den()}, rates);
    stream.SetFramePerSecond(IVXRational::MallocRational(fitting.num, fitting.den));
}

SoundStream SoundOf(const IVXCodecParameter& stream)
{
    return {stream.GetSampleRate(), stream.GetChannelLayout(), stream.GetFormat()};
}

// Where sound of one kind has one bitrate, as PCM has, sound of another kind has another.
void FollowSound(IVXCodecParameter& stream, const CodecCapabilities& codec)
{
    const auto sound = SoundOf(stream);
    const int bitrate = AudioBitrate(codec, sound, IVXCodecs::QualityLevelLow);
    if (bitrate == AudioBitrate(codec, sound, IVXCodecs::QualityLevelBest))
        stream.SetBitrate(bitrate);
}

void FitSound(IVXCodecParameter& stream, const StreamLimit& limit)
{
    const auto before = SoundOf(stream);
    if (!limit.sampleRates.empty())
        stream.SetSampleRate(SnapSampleRate(before.sampleRate, limit.sampleRates));
    if (!limit.layouts.empty())
        stream.SetChannelLayout(SnapLayout(before.layout, limit.layouts));
    const auto after = SoundOf(stream);
    const auto* codec = CapabilitiesOf(stream.GetCodecID());
    if (codec && (after.sampleRate != before.sampleRate || after.layout != before.layout))
        FollowSound(stream, *codec);
}

void FitTag(IVXCodecParameter& stream, const FormatRow& format)
{
    const auto* row = FindRow(format.tags, &CodecTag::codecID, stream.GetCodecID());
    if (row && stream.GetCodecTag() == 0)
        stream.SetCodecTag(row->tag);
}

} // namespace

void FitIntoContainer(IVXCodecParameter& stream, std::string_view formatName)
{
    const auto* format = FindFormat(formatName);
    if (!format)
        return;
    FitTag(stream, *format);
    for (const auto& limit : format->limits)
    {
        if (std::ranges::find(limit.codecs, stream.GetCodecID()) == limit.codecs.end())
            continue;
        FitLabels(stream, limit);
        FitFrameRate(stream, limit);
        FitSound(stream, limit);
    }
}

} // namespace Vexlor
