#include "OutcomeFacts.h"

#include "apps/host/match/SizeEstimate.h"

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

using Stream = std::shared_ptr<const IVXCodecParameter>;

constexpr int kNoBound = -1;
constexpr int kNoBitrate = -1;

QSizeF DisplayedSize(const IVXCodecParameter& stream)
{
    return {double(std::max(stream.GetDisplayWidth(), 0)), double(std::max(stream.GetDisplayHeight(), 0))};
}

/// A size in an output's own pixels as it is displayed.
QSizeF Displayed(int width, int height, const IVXCodecParameter& output)
{
    if (width < 1 || height < 1 || output.GetWidth() < 1 || output.GetHeight() < 1)
        return {};
    return {double(width) * output.GetDisplayWidth() / output.GetWidth(),
            double(height) * output.GetDisplayHeight() / output.GetHeight()};
}

/// Whether bending is seen: a hundredth of a side is not.
bool IsOtherShape(const QSizeF& one, const QSizeF& other)
{
    constexpr double kSeen = 0.01;
    return !one.isEmpty() && !other.isEmpty() &&
           std::abs(one.width() * other.height() / (one.height() * other.width()) - 1) > kSeen;
}

/// Deliberately as matching takes them: a bound of one side alone counts for nothing.
void AddBounds(SizeFacts& facts, const IVXFormatPreset& preset, const IVXCodecParameter& output)
{
    facts.most = Displayed(preset.MaxWidth(), preset.MaxHeight(), output);
    if (!facts.most.isEmpty())
        facts.least = Displayed(preset.MinWidth(), preset.MinHeight(), output);
}

/// Chooses a grade in every codec preset, whichever of them will be used. An entry that was given a bitrate
/// of its own becomes a grade again.
void ChooseGrade(const std::vector<std::shared_ptr<IVXCodecPreset>>& codecs, int grade)
{
    for (const auto& codec : codecs)
        for (int i = 0; i < codec->CodecQualityPresetCount(); ++i)
        {
            const auto quality = codec->CodecQualityPresetAt(i);
            if (quality->QualityValue() != grade)
                continue;
            quality->SetBitrate(kNoBitrate);
            codec->SetIndexForQualityPresets(i);
        }
}

void AddGrade(StreamBitrates& bitrates, int grade, const IVXFormatParameter& output)
{
    const auto place = static_cast<std::size_t>(grade);
    if (const auto video = output.GetVideoCodecParameter())
        bitrates.video.grades[place] = video->GetBitrate();
    if (const auto audio = output.GetAudioCodecParameter())
        bitrates.audio.grades[place] = audio->GetBitrate();
}

/// What the preset makes of the source at each grade: a copy of it is asked.
void AddGrades(StreamBitrates& bitrates, const std::shared_ptr<const IVXFormatParameter>& source,
               const IVXFormatPreset& preset)
{
    const auto copy = preset.Clone();
    for (int grade = 0; grade < BitrateFacts::kGrades; ++grade)
    {
        ChooseGrade(copy->VideoCodecPresets(), grade);
        ChooseGrade(copy->AudioCodecPresets(), grade);
        AddGrade(bitrates, grade, *copy->MatchForSource(source));
    }
}

/// The bounds of a preset for one kind of stream; -1 where there is none.
struct Bounds
{
    int most;
    int least;
};

/// The codec's own range for an output whose picture has that size. It stands in for a bound that the preset
/// does not have.
void AddRange(BitrateFacts& facts, const IVXCodecParameter& output, std::pair<int, int> size)
{
    const auto codecs = output.GetCodecs(true);
    if (!codecs)
        return;
    const auto [low, high] =
        codecs->BitrateRangeFor(size.first, size.second, output.GetFrameRate(), output.GetFormat(), {});
    facts.least = facts.isLeastOfPreset ? facts.least : low;
    facts.most = facts.isMostOfPreset ? facts.most : high;
}

BitrateFacts FactsOf(const Stream& source, const Stream& output, const Bounds& bounds,
                     std::pair<int, int> size)
{
    BitrateFacts facts;
    if (!source || !output)
        return facts;
    facts.source = source->GetBitrate();
    facts.output = output->GetBitrate();
    facts.followsBitrate = Tool::FollowsBitrate(*output);
    facts.isLeastOfPreset = bounds.least != kNoBound;
    facts.isMostOfPreset = bounds.most != kNoBound;
    facts.least = std::max(bounds.least, 0);
    facts.most = std::max(bounds.most, 0);
    AddRange(facts, *output, size);
    return facts;
}

/// The picture that the bitrate is decided for, which the preset's bounds cut only then.
std::pair<int, int> DecidedSize(const Tool::MediaMatch& match, const Stream& output)
{
    const auto unbounded = match.reasons.unbounded;
    return unbounded.first > 0 || !output ? unbounded : std::pair(output->GetWidth(), output->GetHeight());
}

} // namespace

SizeFacts SizeFactsOf(const IVXFormatParameter& source, const IVXFormatParameter* output,
                      const IVXFormatPreset* preset, Tool::PictureFitting fitting)
{
    SizeFacts facts;
    const auto from = source.GetVideoCodecParameter();
    if (!from)
        return facts;
    facts.source = DisplayedSize(*from);
    facts.storedSource = {from->GetWidth(), from->GetHeight()};
    const auto to = output ? output->GetVideoCodecParameter() : nullptr;
    if (!to || !preset)
        return facts;
    const auto fit = Tool::FitPicture(*from, *to, fitting);
    facts.output = DisplayedSize(*to);
    facts.storedOutput = {to->GetWidth(), to->GetHeight()};
    facts.isStretched = fitting == Tool::PictureFitting::Stretch && IsOtherShape(facts.source, facts.output);
    facts.picture = Displayed(fit.width, fit.height, *to);
    AddBounds(facts, *preset, *to);
    return facts;
}

StreamBitrates BitrateFactsOf(const Tool::MediaMatch& match, const IVXFormatPreset& preset)
{
    const auto source = match.SourceStreams();
    const auto output = match.OutputStreams();
    StreamBitrates bitrates{FactsOf(source.video.parameter, output.video.parameter,
                                    {preset.MaxVideoBitrate(), preset.MinVideoBitrate()},
                                    DecidedSize(match, output.video.parameter)),
                            FactsOf(source.audio.parameter, output.audio.parameter,
                                    {preset.MaxAudioBitrate(), preset.MinAudioBitrate()}, {})};
    AddGrades(bitrates, match.media.parameter, preset);
    return bitrates;
}

} // namespace Vexlor::Studio
