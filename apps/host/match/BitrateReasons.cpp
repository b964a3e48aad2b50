#include "StreamReasons.h"

#include "apps/host/Units.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "presets/VXWrapping.h"

namespace Vexlor::Tool
{

namespace
{

constexpr int kNotGiven = -1;
constexpr int kConstant = 1;

using Grade = IVXCodecs::QualityLevel;

/// A grade, and why it is that one.
struct ReasonedGrade
{
    Grade grade = IVXCodecs::QualityLevelNormal;
    std::string why;
};

Grade GradeOf(const IVXCodecs& codecs, const IVXCodecParameter& stream)
{
    if (stream.GetCodecType() == VXCodecTypeVideo)
        return codecs.EstQualityWithBitrate(stream.GetBitrate(), stream.GetWidth(), stream.GetHeight(),
                                            stream.GetFrameRate(), stream.GetFormat(), {});
    return codecs.EstQualityWithBitrate(stream.GetBitrate(), stream.GetSampleRate(),
                                        stream.GetChannelLayout(), stream.GetFormat(), {});
}

ReasonedGrade SourceGrade(const IVXCodecParameter& source)
{
    if (source.GetBitrate() == 0)
        return {IVXCodecs::QualityLevelNormal, "as the source's bitrate is not known"};
    const auto codecs = source.GetCodecs(true);
    if (!codecs)
        return {IVXCodecs::QualityLevelNormal, "as the source's codec is not known"};
    return {GradeOf(*codecs, source), "the source's grade"};
}

ReasonedGrade GradeFor(const IVXCodecQualityPreset* quality, const IVXCodecParameter& source)
{
    if (!quality || quality->IsAutoValue())
        return SourceGrade(source);
    return {quality->QualityLevel(), "chosen in the preset"};
}

int ModelBitrate(const IVXCodecs& codecs, const IVXCodecParameter& output, Grade grade)
{
    if (codecs.GetCodecType() == VXCodecTypeVideo)
        return codecs.BestBitrateFor(output.GetWidth(), output.GetHeight(), output.GetFrameRate(),
                                     output.GetFormat(), grade, {});
    return codecs.BestBitrateFor(output.GetSampleRate(), output.GetChannelLayout(), output.GetFormat(), grade,
                                 {});
}

int ReasonByModel(ReasonedStream& output, const IVXCodecs& codecs, const ReasonedGrade& grade)
{
    if (const auto fixed = codecs.SupportedBitrates(); !fixed.empty())
    {
        output.Add(MatchValue::Bitrate, MatchReason::FromModel, "the codec's highest fixed bitrate");
        return fixed.back();
    }
    const int bitrate = ModelBitrate(codecs, *output.stream, grade.grade);
    const bool isOnly = ModelBitrate(codecs, *output.stream, IVXCodecs::QualityLevelLow) ==
                        ModelBitrate(codecs, *output.stream, IVXCodecs::QualityLevelBest);
    output.Add(MatchValue::Bitrate, MatchReason::FromModel,
               isOnly ? "from the model: the same at every grade"
                      : "from the model at " + IVXCodecs::QualityLevelName(grade.grade) + " (" + grade.why +
                            ')');
    return bitrate;
}

std::string BoundsText(const BitrateBounds& bounds)
{
    if (bounds.max == kNotGiven)
        return "at least " + BitrateText(bounds.min);
    if (bounds.min == kNotGiven)
        return "at most " + BitrateText(bounds.max);
    return BitrateText(bounds.min) + " to " + BitrateText(bounds.max);
}

int ReasonByBounds(ReasonedStream& output, const IVXCodecs& codecs, const ReasonedGrade& grade,
                   const BitrateBounds& bounds)
{
    const auto& stream = *output.stream;
    const auto [low, high] = codecs.BitrateRangeFor(stream.GetWidth(), stream.GetHeight(),
                                                    stream.GetFrameRate(), stream.GetFormat(), {});
    const int min = bounds.min == kNotGiven ? low : bounds.min;
    const int max = bounds.max == kNotGiven ? high : bounds.max;
    const auto text = "bounded by the preset (" + BoundsText(bounds) + ')';
    if (max > min)
    {
        output.Add(MatchValue::Bitrate, MatchReason::Bounded,
                   text + " at " + IVXCodecs::QualityLevelName(grade.grade) + " (" + grade.why + ')');
        return WrappingSum(min, WrappingProduct(WrappingDifference(max, min), grade.grade) /
                                    IVXCodecs::QualityLevelBest);
    }
    output.Add(MatchValue::Bitrate, MatchReason::Bounded,
               text + " against the codec's " + BoundsText({high, low}));
    return WrappingDifference(min, low) < WrappingDifference(high, max) ? min : max;
}

void ReasonCustom(ReasonedStream& output, const IVXCodecQualityPreset& quality)
{
    const bool isConstant = quality.Mode() == kConstant;
    auto& stream = *output.stream;
    stream.SetBitrateMode(quality.Mode());
    stream.SetBitrate(quality.Bitrate());
    stream.SetMaxBitrate(quality.Bitrate());
    stream.SetMinBitrate(isConstant ? quality.Bitrate() : quality.MinBitrate());
    output.Add(MatchValue::BitrateMode, MatchReason::Chosen, "chosen in the preset");
    output.Add(MatchValue::Bitrate, MatchReason::Chosen, "chosen in the preset");
    output.Add(MatchValue::MaxBitrate, MatchReason::Follows, "a bitrate chosen is its own highest");
    output.Add(MatchValue::MinBitrate, isConstant ? MatchReason::Follows : MatchReason::Chosen,
               isConstant ? "a constant bitrate is its own lowest" : "chosen in the preset");
}

} // namespace

void ReasonBitrate(ReasonedStream& output, const IVXCodecPreset& preset, const IVXCodecParameter& source,
                   const BitrateBounds& bounds)
{
    const auto quality = preset.CurrentCodecQuality();
    if (quality && quality->IsCustom())
        return ReasonCustom(output, *quality);
    const auto codecs = IVXCodecs::MallocCodecs(preset.CodecID(), true);
    if (!codecs)
        return;
    const auto grade = GradeFor(quality.get(), source);
    const bool isBounded = bounds.max != kNotGiven || bounds.min != kNotGiven;
    output.stream->SetBitrate(isBounded ? ReasonByBounds(output, *codecs, grade, bounds)
                                        : ReasonByModel(output, *codecs, grade));
    output.Add(MatchValue::BitrateMode, MatchReason::Follows, "as no bitrate is chosen");
}

} // namespace Vexlor::Tool
