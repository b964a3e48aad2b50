#include "FormatLimits.h"

#include "BitrateControl.h"
#include "BitrateModel.h"
#include "BitrateSnapping.h"
#include "BitrateTable.h"
#include "FormatTable.h"
#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXRational.h"
#include "LevelTable.h"
#include "Lookup.h"
#include "ProfileTable.h"
#include "Snapping.h"
#include "StreamLabels.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <span>
#include <vector>

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
    stream.SetFormat(FitLabel(stream.GetFormat(), VXPixFormat_None, limit.formats));
    stream.SetProfile(FitLabel(stream.GetProfile(), IVXCodecs::VXProfileUnknown, limit.profiles));
    stream.SetLevel(FitLabel(stream.GetLevel(), IVXCodecs::VXLevelUnknown, limit.levels));
}

// How much a motion shows that it was made for another rate. Pictures shown twice, or every second one left
// out, show it least: 50 becomes 25 rather than 29.97.
double Judder(double from, double to)
{
    constexpr std::array kTimes{1.0, 2.0, 3.0, 4.0, 1.0 / 2, 1.0 / 3, 1.0 / 4};
    constexpr double kUneven = 100; // what counts before the number of times
    double least = std::numeric_limits<double>::max();
    for (const double times : kTimes)
        least =
            std::min(least, kUneven * std::abs(std::log2(from * times / to)) + std::abs(std::log2(times)));
    return least;
}

void FitFrameRate(IVXCodecParameter& stream, std::span<const AVRational> rates)
{
    if (rates.empty())
        return;
    const auto told = stream.GetFrameRate();
    const VideoLimits any{.min = {}, .max = {}};
    const auto from = av_q2d(SnapFrameRate({told->Num(), told->Den()}, any));
    const auto fitting =
        *std::ranges::min_element(rates, {}, [from](AVRational rate) { return Judder(from, av_q2d(rate)); });
    stream.SetFramePerSecond(IVXRational::MallocRational(fitting.num, fitting.den));
}

bool HasRate(const PictureSystem& system, const IVXRational& rate)
{
    return std::ranges::any_of(system.rates, [&](AVRational each)
                               { return each.num == rate.Num() && each.den == rate.Den(); });
}

// Pictures of television's standard definition fill a screen of 4:3 or, where they have its full width, 16:9.
AVRational AspectOnScreen(PictureSize size, double shape)
{
    constexpr int kFullWidth = 704;
    const double between = std::sqrt(4.0 / 3 * 16.0 / 9);
    const bool isWide = size.width >= kFullWidth && shape > between;
    return av_mul_q(isWide ? AVRational{16, 9} : AVRational{4, 3}, AVRational{size.height, size.width});
}

// A shape of samples that somebody chose stays.
void FitAspect(IVXCodecParameter& stream, double shape)
{
    constexpr int kMostLines = 576;
    const auto chosen = stream.GetAspectRatio();
    if (chosen->Num() != chosen->Den() || stream.GetHeight() > kMostLines)
        return;
    const auto aspect = AspectOnScreen({stream.GetWidth(), stream.GetHeight()}, shape);
    stream.SetAspectRatio(IVXRational::MallocRational(aspect.num, aspect.den));
}

void FitSize(IVXCodecParameter& stream, std::span<const PictureSystem> systems)
{
    const auto system = std::ranges::find_if(systems, [&](const auto& each)
                                             { return HasRate(each, *stream.GetFrameRate()); });
    if (system == systems.end())
        return;
    const VideoLimits sizes{.min = {}, .max = {}, .sizes = system->sizes};
    const PictureSize before{stream.GetWidth(), stream.GetHeight()};
    const auto size = SnapSize(before, sizes, {});
    stream.SetWidth(size.width);
    stream.SetHeight(size.height);
    FitAspect(stream, before.height > 0 ? static_cast<double>(before.width) / before.height : 0);
}

/// A stream's bitrates at the grades, as the model answers them.
std::vector<int> GradesOf(const IVXCodecParameter& stream)
{
    std::vector<int> grades;
    const auto* codec = CapabilitiesOf(stream.GetCodecID());
    for (int grade = IVXCodecs::QualityLevelLow; codec && grade <= IVXCodecs::QualityLevelBest; ++grade)
    {
        const auto level = static_cast<IVXCodecs::QualityLevel>(grade);
        grades.push_back(codec->codec->type == VXCodecTypeVideo
                             ? VideoBitrate(*codec, PictureOf(stream, stream.GetFormat()), level)
                             : AudioBitrate(*codec, SoundOf(stream, stream.GetFormat()), level));
    }
    return grades;
}

// Pitch and bandwidth are heard by ratio: 44.1 kHz is nearer to 32 kHz than 22.05 kHz is.
int NearestByRatio(int wanted, std::span<const int> rates)
{
    const auto distance = [wanted](int rate)
    { return std::abs(std::log(static_cast<double>(rate) / wanted)); };
    return wanted > 0 ? *std::ranges::min_element(rates, {}, distance) : rates.front();
}

void FitSound(IVXCodecParameter& stream, const StreamLimit& limit)
{
    if (!limit.sampleRates.empty())
        stream.SetSampleRate(NearestByRatio(stream.GetSampleRate(), limit.sampleRates));
    if (!limit.layouts.empty())
        stream.SetChannelLayout(SnapLayout(stream.GetChannelLayout(), limit.layouts));
}

// A bitrate of the model's stays of its grade; any other stays itself, as far as the codec has it.
int FollowedBitrate(const IVXCodecParameter& stream, int bitrate, const std::vector<int>& before)
{
    const auto after = GradesOf(stream);
    const auto grade = std::ranges::find(before, bitrate);
    if (grade != before.end())
        return after.at(static_cast<std::size_t>(grade - before.begin()));
    const auto& codec = *CapabilitiesOf(stream.GetCodecID());
    const int format = stream.GetFormat();
    return codec.codec->type == VXCodecTypeVideo
               ? NearestBitrate(codec, PictureOf(stream, format), stream.GetProfile(), bitrate)
               : NearestBitrate(codec, SoundOf(stream, format), bitrate);
}

// No more than the level that is chosen has, or the bound would make it give way.
int MostWithinLevel(const IVXCodecParameter& stream, int most)
{
    const auto level = LimitsOf(stream.GetCodecID(), stream.GetProfile(), stream.GetLevel());
    if (!level || LevelsCountAverage(stream.GetCodecID()))
        return most;
    return static_cast<int>(
        std::clamp<std::int64_t>(level->bitrate, std::min(stream.GetBitrate(), most), most));
}

// Players count the highest bitrate, not the average; a constant one is its own highest.
void BoundPicture(IVXCodecParameter& stream, int most)
{
    const auto* codec = CapabilitiesOf(stream.GetCodecID());
    const bool isPicture = codec && codec->codec->type == VXCodecTypeVideo;
    if (isPicture && stream.GetMaxBitrate() <= 0 && stream.GetBitrateMode() != kConstantBitrate)
        stream.SetMaxBitrate(MostWithinLevel(stream, most));
}

void FitBitrate(IVXCodecParameter& stream, const StreamLimit& limit, const std::vector<int>& before)
{
    const auto most = limit.mostBitrate > 0 ? limit.mostBitrate : std::numeric_limits<int>::max();
    if (GradesOf(stream) != before && stream.GetBitrate() > 0)
        stream.SetBitrate(FollowedBitrate(stream, stream.GetBitrate(), before));
    stream.SetBitrate(std::min(stream.GetBitrate(), most));
    stream.SetMaxBitrate(std::min(stream.GetMaxBitrate(), most));
    stream.SetMinBitrate(std::min(stream.GetMinBitrate(), most));
    if (limit.mostBitrate > 0)
        BoundPicture(stream, limit.mostBitrate);
}

void Fit(IVXCodecParameter& stream, const StreamLimit& limit)
{
    const auto before = GradesOf(stream);
    FitLabels(stream, limit);
    FitFrameRate(stream, limit.frameRates);
    FitSize(stream, limit.systems);
    FitSound(stream, limit);
    FitBitrate(stream, limit, before);
}

// Where profiles have bitrates of their own, and where a standard lists all there are, encoders take no
// other.
void FitListedBitrate(IVXCodecParameter& stream)
{
    const auto* codec = CapabilitiesOf(stream.GetCodecID());
    const auto* row = FindVideoBitrate(stream.GetCodecID());
    const bool isListed =
        row && (row->kind == VideoBitrateKind::Profiled || row->kind == VideoBitrateKind::Listed);
    if (!codec || !isListed || stream.GetBitrate() <= 0)
        return;
    const auto labels = FittingLabels(*codec, stream, stream.GetFormat());
    const int profile = labels.profile ? labels.profile->number : IVXCodecs::VXProfileUnknown;
    stream.SetBitrate(
        NearestBitrate(*codec, PictureOf(stream, stream.GetFormat()), profile, stream.GetBitrate()));
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
        if (std::ranges::find(limit.codecs, stream.GetCodecID()) != limit.codecs.end())
            Fit(stream, limit);
    FitListedBitrate(stream);
}

} // namespace Vexlor
