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

QSizeF DisplayedSize(const IVXCodecParameter& stream)
{
    return QSizeF(std::max(stream.GetDisplayWidth(), 0), std::max(stream.GetDisplayHeight(), 0));
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

/// Chooses a grade in every codec preset, whichever of them will be used.
void ChooseGrade(const std::vector<std::shared_ptr<IVXCodecPreset>>& codecs, int grade)
{
    for (const auto& codec : codecs)
        for (int i = 0; i < codec->CodecQualityPresetCount(); ++i)
        {
            const auto quality = std::as_const(*codec).CodecQualityPresetAt(i);
            if (!quality->IsCustom() && quality->QualityValue() == grade)
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

BitrateFacts FactsOf(const Stream& source, const Stream& output, int most, int least)
{
    BitrateFacts facts;
    if (!source || !output)
        return facts;
    facts.source = source->GetBitrate();
    facts.output = output->GetBitrate();
    facts.followsBitrate = Tool::FollowsBitrate(*output);
    facts.isLeastOfPreset = least != kNoBound;
    facts.isMostOfPreset = most != kNoBound;
    facts.least = least;
    facts.most = most;
    const auto codecs = output->GetCodecs(true);
    if (!codecs)
        return facts;
    const auto [low, high] = codecs->BitrateRangeFor(output->GetWidth(), output->GetHeight(),
                                                     output->GetFrameRate(), output->GetFormat(), {});
    facts.least = facts.isLeastOfPreset ? least : low;
    facts.most = facts.isMostOfPreset ? most : high;
    return facts;
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

StreamBitrates BitrateFactsOf(const std::shared_ptr<const IVXFormatParameter>& source,
                              const IVXFormatParameter& output, const IVXFormatPreset& preset)
{
    StreamBitrates bitrates{FactsOf(source->GetVideoCodecParameter(), output.GetVideoCodecParameter(),
                                    preset.MaxVideoBitrate(), preset.MinVideoBitrate()),
                            FactsOf(source->GetAudioCodecParameter(), output.GetAudioCodecParameter(),
                                    preset.MaxAudioBitrate(), preset.MinAudioBitrate())};
    AddGrades(bitrates, source, preset);
    return bitrates;
}

} // namespace Vexlor::Studio
