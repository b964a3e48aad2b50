#include "BitrateModel.h"

#include "BitrateMath.h"
#include "BitrateSnapping.h"
#include "IVXCodecParameter.h"
#include "IVXRational.h"

namespace Vexlor
{

namespace
{

using Grade = IVXCodecs::QualityLevel;

double PixelsOf(const LadderPoint& point) { return double(point.width) * point.height; }

double PixelsOf(const PictureStream& stream) { return double(stream.width) * stream.height; }

// Straight lines between the points on logarithmic scales; beyond both ends the cost of a pixel stays.
double AlongLadder(std::span<const LadderPoint> ladder, double pixels)
{
    const auto above =
        std::ranges::find_if(ladder, [pixels](const auto& point) { return PixelsOf(point) > pixels; });
    if (above == ladder.begin() || above == ladder.end())
    {
        const auto& end = above == ladder.end() ? ladder.back() : ladder.front();
        return end.kbps * pixels / PixelsOf(end);
    }
    const auto& from = *(above - 1);
    const double way = std::log(pixels / PixelsOf(from)) / std::log(PixelsOf(*above) / PixelsOf(from));
    return from.kbps * std::pow(above->kbps / from.kbps, way);
}

// Twice the frames cost one and a half times the bits: YouTube's figures for 60 fps beside those for 30, and
// Google's for VP9 from 1440p on. Frames that are coded alone all cost the same.
double RateFactor(const VideoBitrateRow& row, double frameRate)
{
    const double rate = frameRate / kReferenceRate;
    return row.kind == VideoBitrateKind::Predicted ? std::pow(1.5, std::log2(rate)) : rate;
}

// Chroma samples cost half of what luma samples do, which puts 4:2:2 at a fifth more than 4:2:0.
double SampleCost(double samplesPerPixel) { return 1.0 + (samplesPerPixel - 1.0) / 2.0; }

double ChromaFactor(int format) { return SampleCost(SamplesPerPixel(format)) / SampleCost(1.5); }

// Two more bits a sample cost a quarter more, as YouTube's HDR figures do.
double DepthFactor(const VideoBitrateRow& row, int format)
{
    return row.kind == VideoBitrateKind::Predicted ? std::pow(1.25, (BitDepthOf(format) - 8) / 2.0) : 1.0;
}

double Along(const GradeLadder& ladder, const PictureStream& stream)
{
    return 1000.0 * AlongLadder(ladder.points, PixelsOf(stream)) * ladder.factor;
}

double LadderBitrate(const VideoBitrateRow& row, const PictureStream& stream, std::size_t grade)
{
    return Along(row.grades.at(grade), stream) * row.factor * RateFactor(row, stream.frameRate) *
           ChromaFactor(stream.format) * DepthFactor(row, stream.format);
}

const GradeProfiles* ProfilesFor(const CodecCapabilities& codec, int format)
{
    const auto* told = FindGradeProfiles(codec.codec->id, format);
    return told ? told : FindGradeProfiles(codec.codec->id, codec.formats.front());
}

double BitrateOfProfile(const CodecCapabilities& codec, const PictureStream& stream, std::size_t grade)
{
    const auto* row = ProfilesFor(codec, stream.format);
    return row ? ProfileBitrate(row->codecID, row->profiles.at(grade), stream) : 0.0;
}

double LosslessBitrate(const VideoBitrateRow& row, const PictureStream& stream)
{
    const double bits = row.bits > 0 ? row.bits : SamplesPerPixel(stream.format) * BitDepthOf(stream.format);
    return row.share * bits * PixelsOf(stream) * stream.frameRate;
}

bool HasRows(int codecID, int format)
{
    return std::ranges::any_of(ListedBitrates(), [&](const auto& each)
                               { return each.codecID == codecID && each.format == format; });
}

// The largest size and then the highest frame rate that are not above the stream's; the lowest where all are.
double BitrateOfList(const CodecCapabilities& codec, const PictureStream& stream, std::size_t grade)
{
    const int codecID = codec.codec->id;
    const int format = HasRows(codecID, stream.format) ? stream.format : codec.formats.front();
    const ListedBitrate* best = nullptr;
    for (const auto& row : ListedBitrates())
    {
        if (row.codecID != codecID || row.format != format)
            continue;
        const bool isLarger = best && row.size != best->size;
        const bool fits = isLarger ? double(row.size.width) * row.size.height <= PixelsOf(stream)
                                   : row.frameRate <= stream.frameRate;
        if (!best || fits)
            best = &row;
    }
    return best ? best->bitrates.at(grade) : 0.0;
}

double Bitrate(const VideoBitrateRow& row, const CodecCapabilities& codec, const PictureStream& stream,
               std::size_t grade)
{
    switch (row.kind)
    {
    case VideoBitrateKind::Lossless:
        return LosslessBitrate(row, stream);
    case VideoBitrateKind::Profiled:
        return BitrateOfProfile(codec, stream, grade);
    case VideoBitrateKind::Listed:
        return BitrateOfList(codec, stream, grade);
    default:
        return LadderBitrate(row, stream, grade);
    }
}

} // namespace

PictureStream PictureOf(const IVXCodecParameter& stream, int format)
{
    return {stream.GetWidth(), stream.GetHeight(), stream.GetFrameRate()->GetDoubleValue(), format};
}

int VideoBitrate(const CodecCapabilities& codec, const PictureStream& stream, Grade level)
{
    const auto* row = FindVideoBitrate(codec.codec->id);
    if (!row)
        return 1;
    const auto usual = Usual(stream);
    return ToBitrate(WithinBounds(*row, usual, Bitrate(*row, codec, usual, IndexOf(level))));
}

int ProfileBitrate(int codecID, int profile, const PictureStream& stream)
{
    const auto* ladder = FindProfileLadder(codecID, profile);
    const auto usual = Usual(stream);
    return ladder ? ToBitrate(Along(*ladder, usual) * usual.frameRate / kReferenceRate) : 0;
}

int ProfileAtBitrate(const CodecCapabilities& codec, const PictureStream& stream, int bitrate)
{
    const auto* row = ProfilesFor(codec, stream.format);
    return row ? row->profiles.at(IndexOf(VideoGrade(codec, stream, bitrate))) : IVXCodecs::VXProfileUnknown;
}

Grade VideoGrade(const CodecCapabilities& codec, const PictureStream& stream, int bitrate)
{
    return NearestGrade(bitrate, [&](Grade level) { return VideoBitrate(codec, stream, level); });
}

std::pair<int, int> VideoBitrateRange(const CodecCapabilities& codec, const PictureStream& stream)
{
    return {VideoBitrate(codec, stream, Grade::QualityLevelLow),
            VideoBitrate(codec, stream, Grade::QualityLevelBest)};
}

} // namespace Vexlor
