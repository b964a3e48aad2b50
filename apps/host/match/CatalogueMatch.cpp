#include "CatalogueMatch.h"

#include "MediaMatch.h"
#include "apps/host/Stream.h"
#include "apps/host/Text.h"
#include "apps/host/Units.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <set>
#include <tuple>
#include <utility>

namespace Vexlor::Tool
{

namespace
{

// What a change costs beside the share of the pixels and of the channels that it loses. A stream that is left
// out costs 1, so that it comes after everything that keeps it.
constexpr double kStreamLost = 1;
constexpr double kPictureShare = 0.8;
constexpr double kSoundShare = 0.4;
constexpr double kAnotherFormat = 0.02;
constexpr double kAnotherCodec = 0.01;
constexpr double kNoticed = 0.01; // less of a size or a rate is no change

/// One source's streams beside a preset's.
class Comparison
{
public:
    Comparison(const Streams& source, const Streams& output, PresetMatch& match)
        : m_source(source), m_output(output), m_match(match)
    {
    }

    void Compare();

private:
    void CompareVideo(const Stream& source, const Stream& output);
    void CompareAudio(const Stream& source, const Stream& output);
    void CompareCodec(const Stream& source, const Stream& output);
    void ComparePictures(const IVXCodecParameter& source, const IVXCodecParameter& output);
    bool IsLost(const Stream& source, const Stream& output, const char* name);
    void Change(const std::string& from, const std::string& to, double loss);

    const Streams& m_source;
    const Streams& m_output;
    PresetMatch& m_match;
};

void Comparison::Change(const std::string& from, const std::string& to, double loss)
{
    m_match.fit = PresetFit::Changed;
    m_match.texts.push_back((from.empty() ? "unknown" : from) + " to " + to);
    m_match.loss += std::max(loss, 0.0);
}

bool Comparison::IsLost(const Stream& source, const Stream& output, const char* name)
{
    if (!source.parameter || output.parameter)
        return !source.parameter;
    m_match.fit = PresetFit::Changed;
    m_match.texts.push_back(std::string("no ") + name);
    m_match.loss += kStreamLost;
    return true;
}

void Comparison::CompareCodec(const Stream& source, const Stream& output)
{
    if (source.parameter->GetCodecID() != output.parameter->GetCodecID() ||
        source.parameter->GetCodecID() == VXCodecID_None)
        Change(source.codec, output.codec, kAnotherCodec);
}

bool Differ(double one, double other)
{
    return std::abs(one - other) > kNoticed * std::max(std::abs(one), std::abs(other));
}

double LostShare(double from, double to) { return from > 0 ? 1 - std::min(to / from, 1.0) : 0; }

double PixelsOf(const IVXCodecParameter& video)
{
    return double(video.GetDisplayWidth()) * video.GetDisplayHeight();
}

void Comparison::ComparePictures(const IVXCodecParameter& source, const IVXCodecParameter& output)
{
    const auto from = source.GetFrameRate();
    const auto to = output.GetFrameRate();
    if (Differ(source.GetDisplayWidth(), output.GetDisplayWidth()) ||
        Differ(source.GetDisplayHeight(), output.GetDisplayHeight()))
        Change(SizeText(source.GetDisplayWidth(), source.GetDisplayHeight()),
               SizeText(output.GetDisplayWidth(), output.GetDisplayHeight()),
               kAnotherFormat + kPictureShare * LostShare(PixelsOf(source), PixelsOf(output)));
    if (from->Num() != 0 && from->IsValid() && Differ(from->GetDoubleValue(), to->GetDoubleValue()))
        Change(FrameRateText(*from), FrameRateText(*to),
               kAnotherFormat + kPictureShare * LostShare(from->GetDoubleValue(), to->GetDoubleValue()));
    if (source.GetFormat() != VXPixFormat_None && output.GetFormat() != VXPixFormat_None &&
        source.GetFormat() != output.GetFormat())
        Change(PixelFormatText(source), PixelFormatText(output), kAnotherFormat);
}

void Comparison::CompareVideo(const Stream& source, const Stream& output)
{
    if (IsLost(source, output, "video"))
        return;
    CompareCodec(source, output);
    ComparePictures(*source.parameter, *output.parameter);
}

void Comparison::CompareAudio(const Stream& source, const Stream& output)
{
    if (IsLost(source, output, "audio"))
        return;
    CompareCodec(source, output);
    const auto& from = *source.parameter;
    const auto& to = *output.parameter;
    if (from.GetSampleRate() != to.GetSampleRate())
        Change(VXMediaCodecFormatSamplerate(from.GetSampleRate()),
               VXMediaCodecFormatSamplerate(to.GetSampleRate()),
               kAnotherFormat + kSoundShare * LostShare(from.GetSampleRate(), to.GetSampleRate()));
    if (from.GetChannelLayout() != to.GetChannelLayout())
        Change(LayoutText(from.GetChannelLayout()), LayoutText(to.GetChannelLayout()),
               kAnotherFormat + kSoundShare * LostShare(std::popcount(from.GetChannelLayout()),
                                                        std::popcount(to.GetChannelLayout())));
}

void Comparison::Compare()
{
    CompareVideo(m_source.video, m_output.video);
    CompareAudio(m_source.audio, m_output.audio);
}

/// Why nothing can be made of the output here, one reason a text.
std::vector<std::string> Obstacles(const IVXFormatParameter& file, const Streams& output,
                                   const std::set<std::string>& containers)
{
    std::vector<std::string> obstacles;
    if (!containers.contains(file.FormatName()))
        obstacles.push_back("the container " + Quoted(file.FormatName()) + " cannot be written here");
    if (auto obstacle = StreamObstacle(file); !obstacle.empty())
        obstacles.push_back(std::move(obstacle));
    for (const auto* stream : {&output.video, &output.audio})
    {
        const auto codecs = stream->parameter ? stream->parameter->GetCodecs(true) : nullptr;
        if (stream->parameter && !codecs)
            obstacles.push_back("codec " + std::to_string(stream->parameter->GetCodecID()) + " is not known");
        else if (codecs && codecs->Names().empty())
            obstacles.push_back(stream->codec + " has no encoder here");
    }
    return obstacles;
}

PresetMatch MatchEntry(const CatalogueEntry& entry, const VXMediaFile& media, const Streams& source,
                       const std::set<std::string>& containers)
{
    PresetMatch match;
    match.entry = &entry;
    match.output = entry.preset->MatchForSource(media.parameter);
    const auto output = StreamsOf(*match.output);
    match.texts = Obstacles(*match.output, output, containers);
    if (match.texts.empty())
        Comparison(source, output, match).Compare();
    else
        match.fit = PresetFit::Impossible;
    return match;
}

} // namespace

std::vector<PresetMatch> MatchCatalogue(const VXMediaFile& media, const Catalogue& catalogue)
{
    const std::shared_ptr<const IVXFormatParameter> file = media.parameter;
    const Streams source{{file->GetVideoCodecParameter(), media.videoCodec},
                         {file->GetAudioCodecParameter(), media.audioCodec}};
    const auto names = VXMediaCodecSupportOutputAllMediaFormats();
    const std::set<std::string> containers(names.begin(), names.end());
    std::vector<PresetMatch> matches;
    matches.reserve(catalogue.entries.size());
    for (const auto& entry : catalogue.entries)
        matches.push_back(MatchEntry(entry, media, source, containers));
    std::ranges::stable_sort(matches, {},
                             [](const PresetMatch& match) { return std::tuple(match.fit, match.loss); });
    return matches;
}

const char* FitName(PresetFit fit)
{
    switch (fit)
    {
    case PresetFit::Untouched:
        return "untouched";
    case PresetFit::Changed:
        return "changed";
    default:
        return "impossible";
    }
}

} // namespace Vexlor::Tool
