#include "SizePlan.h"

#include "MediaMatch.h"
#include "apps/host/Units.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Vexlor::Tool
{

namespace
{

/// Bits a second.
struct BitrateLimits
{
    int least = 0;
    int most = 0;
};

int SoundBitrate(const IVXCodecParameter& audio, IVXCodecs::QualityLevel grade)
{
    return audio.GetCodecs(true)->BestBitrateFor(audio.GetSampleRate(), audio.GetChannelLayout(),
                                                 audio.GetFormat(), grade, {});
}

BitrateLimits Within(BitrateLimits limits, int least, int most)
{
    if (most > 0)
        limits.most = std::min(limits.most, most);
    limits.least = std::min(least > 0 ? least : limits.least, limits.most);
    return limits;
}

BitrateLimits SoundLimits(const IVXCodecParameter& audio, const IVXFormatPreset& preset)
{
    const BitrateLimits limits{SoundBitrate(audio, IVXCodecs::QualityLevelLow),
                               SoundBitrate(audio, IVXCodecs::QualityLevelBest)};
    return Within(limits, preset.MinAudioBitrate(), preset.MaxAudioBitrate());
}

BitrateLimits PictureLimits(const IVXCodecParameter& video, const IVXFormatPreset& preset)
{
    const auto [least, most] = video.GetCodecs(true)->BitrateRangeFor(
        video.GetWidth(), video.GetHeight(), video.GetFrameRate(), video.GetFormat(), {});
    return Within({least, most}, preset.MinVideoBitrate(), preset.MaxVideoBitrate());
}

/// Sets a bitrate that the encoder takes as it is, not above the stream's: some know but a few, and take the
/// nearest.
void TakeWhatIsTaken(IVXCodecParameter& stream)
{
    constexpr int kSteps = 20;
    const int most = stream.GetBitrate();
    int taken = TakenBitrate(stream);
    for (int step = 1; step <= kSteps && taken > most; ++step)
    {
        stream.SetBitrate(most - most / kSteps * step / 2);
        taken = TakenBitrate(stream);
    }
    stream.SetBitrate(taken > most ? most : taken);
}

/// An output whose bitrates are looked for. It is a copy of what was matched.
class Search
{
public:
    Search(const MediaMatch& match, const IVXFormatPreset& preset, std::int64_t wanted)
        : m_preset(preset), m_seconds(match.media.duration), m_wanted(double(wanted)),
          m_output(preset.MatchForSource(match.media.parameter)), m_video(m_output->GetVideoCodecParameter()),
          m_audio(m_output->GetAudioCodecParameter()), m_audioBitrate(m_audio ? m_audio->GetBitrate() : 0)
    {
    }

    SizePlan Plan();

private:
    bool Fits() const { return Estimate().Total().most <= m_wanted; }
    SizeEstimate Estimate() const { return EstimateSize(*m_output, m_seconds); }
    bool Solve(IVXCodecParameter& stream, BitrateLimits limits);
    bool SolveSound() { return Solve(*m_audio, SoundLimits(*m_audio, m_preset)); }
    bool SolvePicture();
    bool SolveWithSide(const std::pair<int, int>& size, int side);
    bool SolveSmaller();
    bool SolveAny();

    const IVXFormatPreset& m_preset;
    double m_seconds;
    double m_wanted;
    std::shared_ptr<IVXFormatParameter> m_output;
    std::shared_ptr<IVXCodecParameter> m_video;
    std::shared_ptr<IVXCodecParameter> m_audio;
    int m_audioBitrate; // as it was matched
    bool m_isSmaller = false;
};

/// Sets the stream's highest bitrate within the limits with which the file fits; false, and the lowest, where
/// it never does.
bool Search::Solve(IVXCodecParameter& stream, BitrateLimits limits)
{
    int fitting = limits.least;
    for (int above = limits.most; fitting < above;)
    {
        const int middle = fitting + (above - fitting + 1) / 2;
        stream.SetBitrate(middle);
        if (Fits())
            fitting = middle;
        else
            above = middle - 1;
    }
    stream.SetBitrate(fitting);
    TakeWhatIsTaken(stream);
    return Fits();
}

/// With the sound as it was matched, then with as little as it can be.
bool Search::SolvePicture()
{
    const auto limits = PictureLimits(*m_video, m_preset);
    if (m_audio)
        m_audio->SetBitrate(m_audioBitrate);
    if (Solve(*m_video, limits))
        return true;
    if (!m_audio || !FollowsBitrate(*m_audio))
        return false;
    m_audio->SetBitrate(std::min(m_audioBitrate, SoundLimits(*m_audio, m_preset).least));
    return Solve(*m_video, limits);
}

/// Solves with a picture whose shorter side is that; false where that is not smaller, or not allowed.
bool Search::SolveWithSide(const std::pair<int, int>& size, int side)
{
    const double share = double(side) / std::min(size.first, size.second);
    if (share >= 1)
        return false;
    const auto [width, height] = m_video->GetCodecs(true)->BestResolutionFor(
        static_cast<int>(size.first * share), static_cast<int>(size.second * share), {});
    if (width >= size.first || width < m_preset.MinWidth() || height < m_preset.MinHeight())
        return false;
    m_video->SetWidth(width);
    m_video->SetHeight(height);
    m_isSmaller = true;
    return SolvePicture();
}

/// Tries usual sizes below the picture's, its shape kept.
bool Search::SolveSmaller()
{
    constexpr std::array kSides{1080, 720, 576, 480, 360, 240, 144};
    const std::pair size(m_video->GetWidth(), m_video->GetHeight());
    return std::ranges::any_of(kSides, [&](int side) { return SolveWithSide(size, side); });
}

bool Search::SolveAny()
{
    if (!m_video)
        return m_audio && SolveSound();
    return SolvePicture() || SolveSmaller();
}

std::string Refusal(const SizePlan& plan, double wanted)
{
    return "a file of " + SizeOfBytes(wanted) + " cannot be had: the smallest that suits takes up to " +
           SizeOfBytes(plan.estimate.Total().most);
}

bool IsKnown(const std::shared_ptr<IVXCodecParameter>& stream) { return !stream || stream->GetCodecs(true); }

SizePlan Search::Plan()
{
    if (!IsKnown(m_video) || !IsKnown(m_audio))
        return {.reason = "a codec of the preset is not known, so its bitrates are not",
                .estimate = Estimate()};
    SizePlan plan;
    if (const auto& leading = m_video ? m_video : m_audio; leading && !FollowsBitrate(*leading))
        return {.isPossible = Fits(),
                .reason = Fits()
                              ? ""
                              : "its codec takes what the content or its profile needs, whatever the bitrate",
                .estimate = Estimate()};
    const int videoBitrate = m_video ? m_video->GetBitrate() : 0;
    plan.isPossible = SolveAny();
    plan.estimate = Estimate();
    if (!plan.isPossible)
        plan.reason = Refusal(plan, m_wanted);
    if (m_isSmaller)
    {
        plan.width = m_video->GetWidth();
        plan.height = m_video->GetHeight();
    }
    if (m_video && m_video->GetBitrate() != videoBitrate)
        plan.videoBitrate = m_video->GetBitrate();
    if (m_audio && m_audio->GetBitrate() != m_audioBitrate)
        plan.audioBitrate = m_audio->GetBitrate();
    return plan;
}

} // namespace

SizePlan PlanSize(const MediaMatch& match, const IVXFormatPreset& preset, std::int64_t wanted)
{
    return Search(match, preset, wanted).Plan();
}

} // namespace Vexlor::Tool
