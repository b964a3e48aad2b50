#include "BitrateSnapping.h"

#include "BitrateMath.h"
#include "ChannelLayouts.h"
#include "EncoderTable.h"
#include "IVXRational.h"
#include "LevelTable.h"
#include "VXLevels.h"

#include <optional>

namespace Vexlor
{

namespace
{

constexpr double kLeastBitrate = 1000.0; // encoders that count in kb/s read less as no bitrate at all

VXLevelStream LevelStreamOf(int codecID, const PictureStream& stream)
{
    constexpr int kParts = 1000;
    VXLevelStream seen;
    seen.codecID = codecID;
    seen.width = stream.width;
    seen.height = stream.height;
    seen.frameRate =
        IVXRational::MallocRational(static_cast<int>(std::ceil(stream.frameRate * kParts)), kParts);
    return seen;
}

std::optional<LevelLimits> LowestLevel(int codecID, const PictureStream& stream)
{
    return LimitsOf(codecID, IVXCodecs::VXProfileUnknown, SmallestLevel(LevelStreamOf(codecID, stream)));
}

/// The most of the levels that hold the same pictures as one, or of all levels, as far as they are made.
double MostOfLevels(const VideoBitrateRow& row, const std::optional<LevelLimits>& own)
{
    if (row.maxBitrate > 0)
        return double(row.maxBitrate);
    std::int64_t most = 0;
    for (const auto& level : LevelsOf(row.codecID))
        if (!level.onlyRead &&
            (!own || (level.limits.picture == own->picture && level.limits.rate == own->rate)))
            most = std::max(most, level.limits.bitrate);
    return most > 0 ? double(most) : std::numeric_limits<int>::max();
}

/// The most of the encoder that is taken where none is named.
double MostOfEncoder(int codecID)
{
    const auto& encoders = CapabilitiesOf(codecID)->encoders;
    const int most = encoders.empty() ? 0 : FindEncoder(encoders.front()).mostBitrate;
    return most > 0 ? most : std::numeric_limits<int>::max();
}

double MostBitrate(const VideoBitrateRow& row, const std::optional<LevelLimits>& own = {})
{
    return std::min(MostOfLevels(row, own), MostOfEncoder(row.codecID));
}

double Nearest(double bitrate, std::span<const int> legal)
{
    return *std::ranges::min_element(legal, {}, [bitrate](int each) { return std::abs(each - bitrate); });
}

/// Of the bitrates of a codec that has no others than those of its grades.
template <class BitrateOf>
int NearestOfGrades(int wanted, BitrateOf bitrateOf)
{
    return bitrateOf(NearestGrade(wanted, bitrateOf));
}

bool TakesAny(const VideoBitrateRow& row)
{
    return row.kind == VideoBitrateKind::Predicted || row.kind == VideoBitrateKind::Intra;
}

} // namespace

double WithinBounds(const VideoBitrateRow& row, const PictureStream& stream, double bitrate)
{
    return std::clamp(bitrate, kLeastBitrate, MostBitrate(row, LowestLevel(row.codecID, stream)));
}

double WithinBounds(const AudioBitrateRow& row, const SoundStream& stream, double bitrate)
{
    const auto sound = Usual(stream);
    const auto legal = LegalBitrates(row.codecID, sound.sampleRate, sound.layout);
    if (!legal.empty())
        return Nearest(bitrate, legal);
    const double channels = 1000.0 * ChannelsOf(sound.layout);
    const auto bounds = ChannelBoundsOf(row, sound.sampleRate);
    const double most = std::min(bounds.most, row.maxSampleBits * sound.sampleRate / 1000.0);
    const double kept = std::clamp(bitrate, std::min(bounds.least, most) * channels, most * channels);
    return std::clamp(kept, 1000.0 * row.minTotal, 1000.0 * row.maxTotal);
}

int NearestBitrate(const CodecCapabilities& codec, const PictureStream& stream, int profile, int wanted)
{
    const auto* row = FindVideoBitrate(codec.codec->id);
    if (!row || (wanted == 0 && TakesAny(*row)))
        return wanted;
    if (TakesAny(*row))
        return ToBitrate(std::clamp(double(wanted), kLeastBitrate, MostBitrate(*row)));
    if (const int own = ProfileBitrate(row->codecID, profile, stream); own > 0)
        return own;
    return NearestOfGrades(wanted,
                           [&](IVXCodecs::QualityLevel level) { return VideoBitrate(codec, stream, level); });
}

int NearestBitrate(const CodecCapabilities& codec, const SoundStream& stream, int wanted)
{
    const auto* row = FindAudioBitrate(codec.codec->id);
    const bool takesAny =
        row && (row->kind == AudioBitrateKind::Lossy || row->kind == AudioBitrateKind::Speech);
    if (!row || (wanted == 0 && takesAny))
        return wanted;
    if (takesAny)
        return ToBitrate(WithinBounds(*row, stream, wanted));
    return NearestOfGrades(wanted,
                           [&](IVXCodecs::QualityLevel level) { return AudioBitrate(codec, stream, level); });
}

} // namespace Vexlor
