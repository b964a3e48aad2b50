#include "IVXCodecPreset.h"

#include "presets/VXWrapping.h"

#include "IVXCodecParameter.h"
#include "IVXCodecQualityPreset.h"
#include "IVXCodecs.h"
#include "IVXLogConfig.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

constexpr int kNotGiven = -1;
constexpr int kConstantBitrate = 1;
constexpr int kHighestLevel = IVXCodecs::QualityLevelBest;

void SetCustomBitrate(IVXCodecParameter& output, const IVXCodecQualityPreset& quality)
{
    const int bitrate = quality.Bitrate();
    output.SetBitrateMode(quality.Mode());
    output.SetBitrate(bitrate);
    output.SetMaxBitrate(bitrate);
    output.SetMinBitrate(quality.Mode() == kConstantBitrate ? bitrate : quality.MinBitrate());
}

/// The grade of the source's own bitrate; the second one where that cannot be told.
IVXCodecs::QualityLevel LevelOfSource(const IVXCodecParameter* source)
{
    if (!source || source->GetBitrate() == 0)
        return IVXCodecs::QualityLevelNormal;
    const auto codecs = source->GetCodecs(true);
    if (!codecs)
        return IVXCodecs::QualityLevelNormal;
    if (source->GetCodecType() == VXCodecTypeVideo)
        return codecs->EstQualityWithBitrate(source->GetBitrate(), source->GetWidth(), source->GetHeight(),
                                             source->GetFrameRate(), source->GetFormat(), {});
    return codecs->EstQualityWithBitrate(source->GetBitrate(), source->GetSampleRate(),
                                         source->GetChannelLayout(), source->GetFormat(), {});
}

int BitrateOfModel(const IVXCodecs& codecs, const IVXCodecParameter& output, IVXCodecs::QualityLevel level)
{
    if (const auto bitrates = codecs.SupportedBitrates(); !bitrates.empty())
        return bitrates.back();
    if (codecs.GetCodecType() == VXCodecTypeVideo)
        return codecs.BestBitrateFor(output.GetWidth(), output.GetHeight(), output.GetFrameRate(),
                                     output.GetFormat(), level, {});
    return codecs.BestBitrateFor(output.GetSampleRate(), output.GetChannelLayout(), output.GetFormat(), level,
                                 {});
}

/// The lowest level gives the lower bound, the highest the upper, the others the thirds in between. The
/// codec's own range stands in for a bound that is not given.
int BitrateWithinBounds(const IVXCodecs& codecs, const IVXCodecParameter& output, int level, int maxBitrate,
                        int minBitrate)
{
    // Asked with a picture's arguments for audio codecs too, deliberately: they answer with their own range.
    const auto [low, high] = codecs.BitrateRangeFor(output.GetWidth(), output.GetHeight(),
                                                    output.GetFrameRate(), output.GetFormat(), {});
    const int min = minBitrate == kNotGiven ? low : minBitrate;
    const int max = maxBitrate == kNotGiven ? high : maxBitrate;
    if (max > min)
        return WrappingSum(min, WrappingProduct(WrappingDifference(max, min), level) / kHighestLevel);
    IVXLogConfig::Printf("IVXCodecPreset:MatchForQuality:(Error)maxbr <= minbr\n");
    return WrappingDifference(min, low) < WrappingDifference(high, max) ? min : max;
}

} // namespace

void IVXCodecPreset::MatchForQuality(Output& output, const Source& source, int maxBitrate,
                                     int minBitrate) const
{
    const auto quality = CurrentCodecQuality();
    if (quality && quality->IsCustom())
        return SetCustomBitrate(*output, *quality);
    const bool isAuto = !quality || quality->IsAutoValue();
    const auto level = isAuto ? LevelOfSource(source.get()) : quality->QualityLevel();

    const auto codecs = IVXCodecs::MallocCodecs(CodecID(), true);
    if (!codecs)
        return;
    const bool isBounded = maxBitrate != kNotGiven || minBitrate != kNotGiven;
    const int bitrate = isBounded ? BitrateWithinBounds(*codecs, *output, level, maxBitrate, minBitrate)
                                  : BitrateOfModel(*codecs, *output, level);
    if (bitrate < 1)
        IVXLogConfig::Printf("IVXCodecPreset:MatchForQuality:(Error)bitrate == %d\n", bitrate);
    output->SetBitrate(bitrate);
}

} // namespace Vexlor
