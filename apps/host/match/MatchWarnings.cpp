#include "MatchWarnings.h"

#include "MediaMatch.h"
#include "apps/host/Units.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"

#include <algorithm>
#include <cmath>

namespace Vexlor::Tool
{

namespace
{

using Warnings = std::vector<MatchWarning>;

constexpr double kNoticed = 0.01; // of a size, a shape, a bitrate

void WarnOfFile(Warnings& warnings, const MediaMatch& match)
{
    const bool isAudio = !match.SourceStreams().video.parameter;
    if (const auto obstacle = StreamObstacle(*match.output); !obstacle.empty())
        warnings.push_back({MatchWarningKind::NoFile, isAudio, obstacle + ": no file can be made"});
}

void WarnOfEncoder(Warnings& warnings, const Stream& output, bool isAudio)
{
    if (!output.parameter)
        return;
    const auto codecs = output.parameter->GetCodecs(true);
    if (!codecs)
        warnings.push_back({MatchWarningKind::NoEncoder, isAudio,
                            "the preset's codec " + std::to_string(output.parameter->GetCodecID()) +
                                " is not known; the preset stays as it is"});
    else if (codecs->Names().empty())
        warnings.push_back(
            {MatchWarningKind::NoEncoder, isAudio,
             output.codec + " has no encoder here; the preset stays as it is and cannot be encoded"});
}

VXLevelStream LevelStreamOf(const IVXCodecParameter& video)
{
    VXLevelStream stream;
    stream.codecID = video.GetCodecID();
    stream.profile = video.GetProfile();
    stream.width = video.GetWidth();
    stream.height = video.GetHeight();
    stream.frameRate = video.GetFrameRate();
    stream.bitrate = std::max(video.GetBitrate(), video.GetMaxBitrate());
    return stream;
}

std::string BitrateOf(const VXLevelStream& stream) { return BitrateText(static_cast<int>(stream.bitrate)); }

std::string LossText(double loss)
{
    const auto percent = std::lround(loss * 100);
    return percent < 1 ? "" : " (" + std::to_string(percent) + " % less)";
}

std::string RemedyText(const VXLevelRemedy& remedy, const VXLevelStream& asked, const IVXCodecs& codecs)
{
    const auto& stream = remedy.stream;
    switch (remedy.kind)
    {
    case VXLevelRemedyKind::LowerBitrate:
        return "lower the bitrate to " + BitrateOf(stream) + LossText(remedy.loss);
    case VXLevelRemedyKind::LowerFrameRate:
        return "lower the frame rate to " + FrameRateText(*stream.frameRate) + LossText(remedy.loss);
    case VXLevelRemedyKind::LowerSize:
        return "lower the size to " + SizeText(stream.width, stream.height) +
               (stream.bitrate < asked.bitrate ? " and the bitrate to " + BitrateOf(stream) : std::string()) +
               LossText(remedy.loss);
    default:
        return "raise the level to " + codecs.LevelName(remedy.level);
    }
}

void WarnOfLevel(Warnings& warnings, const Stream& output)
{
    if (!output.parameter || output.parameter->GetLevel() == IVXCodecs::VXLevelUnknown)
        return;
    const auto& video = *output.parameter;
    const auto codecs = video.GetCodecs(true);
    const auto stream = LevelStreamOf(video);
    if (!codecs || LevelHolds(video.GetLevel(), stream))
        return;
    MatchWarning warning{MatchWarningKind::LevelTooLow, false,
                         "level " + LevelText(video) + " is too low for " +
                             SizeText(stream.width, stream.height) + " at " +
                             FrameRateText(*stream.frameRate) + " and " + BitrateOf(stream)};
    for (const auto& remedy : LevelRemedies(video.GetLevel(), stream))
        warning.remedies.push_back({remedy, RemedyText(remedy, stream, *codecs)});
    warnings.push_back(std::move(warning));
}

void WarnOfBitrate(Warnings& warnings, const Stream& source, const Stream& output, bool isAudio)
{
    if (!source.parameter || !output.parameter || source.parameter->GetBitrate() < 1 ||
        output.parameter->GetBitrate() <= source.parameter->GetBitrate() * (1 + kNoticed))
        return;
    warnings.push_back({MatchWarningKind::BitrateAboveSource, isAudio,
                        "the bitrate " + BitrateText(output.parameter->GetBitrate()) +
                            " is above the source's " + BitrateText(source.parameter->GetBitrate())});
}

// How much larger the picture is drawn, its shape kept.
double Enlargement(const IVXCodecParameter& source, const IVXCodecParameter& output)
{
    if (source.GetDisplayWidth() < 1 || source.GetDisplayHeight() < 1)
        return 1;
    return std::min(double(output.GetDisplayWidth()) / source.GetDisplayWidth(),
                    double(output.GetDisplayHeight()) / source.GetDisplayHeight());
}

std::string DisplayText(const IVXCodecParameter& stream)
{
    return SizeText(stream.GetDisplayWidth(), stream.GetDisplayHeight());
}

void WarnOfSize(Warnings& warnings, const Stream& source, const Stream& output)
{
    if (source.parameter && output.parameter &&
        Enlargement(*source.parameter, *output.parameter) > 1 + kNoticed)
        warnings.push_back({MatchWarningKind::Enlarged, false,
                            "the picture is enlarged from " + DisplayText(*source.parameter) + " to " +
                                DisplayText(*output.parameter)});
}

void WarnOfShape(Warnings& warnings, const MediaMatch& match, const Stream& output)
{
    const auto [width, height] = match.reasons.unbounded;
    if (!output.parameter || width < 1 || height < 1)
        return;
    const double before = double(width) / height;
    const double after = double(output.parameter->GetWidth()) / output.parameter->GetHeight();
    if (std::abs(after / before - 1) > kNoticed)
        warnings.push_back({MatchWarningKind::ShapeChanged, false,
                            "the bounds change the frame's shape from " + SizeText(width, height) + " to " +
                                SizeText(output.parameter->GetWidth(), output.parameter->GetHeight())});
}

} // namespace

std::vector<MatchWarning> WarningsOf(const MediaMatch& match)
{
    const auto source = match.SourceStreams();
    const auto output = match.OutputStreams();
    Warnings warnings;
    WarnOfFile(warnings, match);
    WarnOfEncoder(warnings, output.video, false);
    WarnOfEncoder(warnings, output.audio, true);
    WarnOfLevel(warnings, output.video);
    WarnOfShape(warnings, match, output.video);
    WarnOfSize(warnings, source.video, output.video);
    WarnOfBitrate(warnings, source.video, output.video, false);
    WarnOfBitrate(warnings, source.audio, output.audio, true);
    return warnings;
}

const char* WarningName(MatchWarningKind kind)
{
    switch (kind)
    {
    case MatchWarningKind::NoFile:
        return "noFile";
    case MatchWarningKind::NoEncoder:
        return "noEncoder";
    case MatchWarningKind::LevelTooLow:
        return "levelTooLow";
    case MatchWarningKind::BitrateAboveSource:
        return "bitrateAboveSource";
    case MatchWarningKind::Enlarged:
        return "enlarged";
    default:
        return "shapeChanged";
    }
}

const char* RemedyName(VXLevelRemedyKind kind)
{
    switch (kind)
    {
    case VXLevelRemedyKind::LowerBitrate:
        return "lowerBitrate";
    case VXLevelRemedyKind::LowerFrameRate:
        return "lowerFrameRate";
    case VXLevelRemedyKind::LowerSize:
        return "lowerSize";
    default:
        return "raiseLevel";
    }
}

} // namespace Vexlor::Tool
