#include "VXLevels.h"

#include "IVXCodecs.h"
#include "IVXRational.h"
#include "LevelTable.h"
#include "Lookup.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <optional>

namespace Vexlor
{

namespace
{

constexpr std::array kUsualSides{4320, 2160, 1440, 1080, 720, 576, 480, 360, 288, 240, 144, 96};
constexpr int kLeastFrameRate = 5;

/// Frames a second in positive terms; 0/1 where the rate is not told.
struct FrameRate
{
    std::uint64_t num = 0;
    std::uint64_t den = 1;
};

FrameRate FrameRateOf(const VXLevelStream& stream)
{
    const auto& rate = stream.frameRate;
    if (!rate || rate->Num() == 0 || rate->Den() == 0 || (rate->Num() > 0) != (rate->Den() > 0))
        return {};
    return {static_cast<std::uint64_t>(std::abs(std::int64_t{rate->Num()})),
            static_cast<std::uint64_t>(std::abs(std::int64_t{rate->Den()}))};
}

std::int64_t CodedSide(int side, int block) { return (std::int64_t{side} + block - 1) / block * block; }

std::uint64_t CodedPicture(const VXLevelStream& stream, const LevelLimits& limits)
{
    return static_cast<std::uint64_t>(CodedSide(stream.width, limits.block) *
                                      CodedSide(stream.height, limits.block));
}

bool HoldsPicture(const VXLevelStream& stream, const LevelLimits& limits)
{
    return stream.width > 0 && stream.height > 0 && CodedSide(stream.width, limits.block) <= limits.width &&
           CodedSide(stream.height, limits.block) <= limits.height &&
           CodedPicture(stream, limits) <= static_cast<std::uint64_t>(limits.picture);
}

std::uint64_t DividedUp(std::uint64_t value, std::uint64_t divisor)
{
    return (value + divisor - 1) / divisor;
}

/// How many frames must become one; 0 for a rate that is not told. Only for a picture that the level holds:
/// its samples a second then stay within 64 bits, whatever the rate's terms.
std::uint64_t FramesIntoOne(const VXLevelStream& stream, const LevelLimits& limits)
{
    const auto [num, den] = FrameRateOf(stream);
    const auto byLuma =
        DividedUp(CodedPicture(stream, limits) * num, static_cast<std::uint64_t>(limits.rate) * den);
    if (limits.frameRate == 0)
        return byLuma;
    return std::max(byLuma, DividedUp(num, static_cast<std::uint64_t>(limits.frameRate) * den));
}

bool HoldsPictures(const VXLevelStream& stream, const LevelLimits& limits)
{
    return HoldsPicture(stream, limits) && FramesIntoOne(stream, limits) <= 1;
}

bool Holds(const VXLevelStream& stream, const LevelLimits& limits)
{
    return HoldsPictures(stream, limits) && stream.bitrate <= limits.bitrate;
}

int FirstToHold(std::span<const LevelRow> levels, const VXLevelStream& stream, VXLevelTiers tiers)
{
    for (const auto& level : levels)
        if ((tiers == VXLevelTiers::Both || !IsHighTier(level.number)) && LevelHolds(level.number, stream))
            return level.number;
    return IVXCodecs::VXLevelUnknown;
}

std::span<const LevelRow> LevelsAbove(int codecID, int level)
{
    const auto levels = LevelsOf(codecID);
    const auto* row = FindRow(levels, &LevelRow::number, level);
    return row ? levels.last(static_cast<std::size_t>(&levels.back() - row)) : levels;
}

// The rate's own terms stay where they can: half of 60000/1001 is 30000/1001.
std::shared_ptr<IVXRational> Divided(FrameRate rate, std::uint64_t divisor)
{
    constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<int>::max());
    const bool whole = rate.num % divisor == 0;
    const FrameRate divided{whole ? rate.num / divisor : rate.num, whole ? rate.den : rate.den * divisor};
    if (divided.num > kMost || divided.den > kMost || divided.num < kLeastFrameRate * divided.den)
        return nullptr;
    return IVXRational::MallocRational(static_cast<int>(divided.num), static_cast<int>(divided.den));
}

using Change = std::optional<VXLevelStream> (*)(const VXLevelStream&, const LevelLimits&);

/// The stream at the level's highest bitrate, if it is beyond it.
VXLevelStream Capped(VXLevelStream stream, const LevelLimits& limits)
{
    stream.bitrate = std::min(stream.bitrate, limits.bitrate);
    return stream;
}

std::optional<VXLevelStream> WithLowerBitrate(const VXLevelStream& stream, const LevelLimits& limits)
{
    return Capped(stream, limits);
}

std::optional<VXLevelStream> WithLowerFrameRate(const VXLevelStream& stream, const LevelLimits& limits)
{
    if (HoldsPictures(stream, limits) || !HoldsPicture(stream, limits))
        return std::nullopt;
    auto changed = Capped(stream, limits);
    changed.frameRate = Divided(FrameRateOf(stream), FramesIntoOne(stream, limits));
    return changed.frameRate ? std::optional(changed) : std::nullopt;
}

/// The picture in its shape, with that shorter side.
VXLevelStream Scaled(VXLevelStream stream, int side)
{
    const auto [shorter, longer] = std::minmax(stream.width, stream.height);
    const auto other = (std::int64_t{longer} * side + shorter) / (2 * std::int64_t{shorter}) * 2;
    const auto scaled = static_cast<int>(std::min<std::int64_t>(other, std::numeric_limits<int>::max()));
    const bool upright = stream.width < stream.height;
    stream.width = upright ? side : scaled;
    stream.height = upright ? scaled : side;
    return stream;
}

std::optional<VXLevelStream> WithLowerSize(const VXLevelStream& stream, const LevelLimits& limits)
{
    if (HoldsPictures(stream, limits))
        return std::nullopt;
    const auto capped = Capped(stream, limits);
    for (const int side : kUsualSides)
        if (side < std::min(stream.width, stream.height))
            if (const auto scaled = Scaled(capped, side); Holds(scaled, limits))
                return scaled;
    return std::nullopt;
}

double PixelRate(const VXLevelStream& stream)
{
    const auto [num, den] = FrameRateOf(stream);
    const double rate = num == 0 ? 1.0 : static_cast<double>(num) / static_cast<double>(den);
    return rate * stream.width * stream.height;
}

double Loss(const VXLevelStream& stream, const VXLevelStream& changed)
{
    const double pixels = 1 - PixelRate(changed) / PixelRate(stream);
    if (stream.bitrate <= 0)
        return pixels;
    return std::max(pixels, 1 - static_cast<double>(changed.bitrate) / static_cast<double>(stream.bitrate));
}

struct LossyRemedy
{
    VXLevelRemedyKind kind;
    Change change;
};

constexpr std::array kLossyRemedies{
    LossyRemedy{VXLevelRemedyKind::LowerBitrate, WithLowerBitrate},
    LossyRemedy{VXLevelRemedyKind::LowerFrameRate, WithLowerFrameRate},
    LossyRemedy{VXLevelRemedyKind::LowerSize, WithLowerSize},
};

void AppendLossyRemedies(std::vector<VXLevelRemedy>& remedies, int level, const VXLevelStream& stream,
                         const LevelLimits& limits)
{
    for (const auto& [kind, change] : kLossyRemedies)
        if (const auto changed = change(stream, limits); changed && Holds(*changed, limits))
            remedies.push_back({kind, level, *changed, Loss(stream, *changed)});
}

} // namespace

bool LevelHolds(int level, const VXLevelStream& stream)
{
    const auto limits = LimitsOf(stream.codecID, stream.profile, level);
    return limits && Holds(stream, *limits);
}

int SmallestLevel(const VXLevelStream& stream, VXLevelTiers tiers)
{
    return FirstToHold(LevelsOf(stream.codecID), stream, tiers);
}

std::vector<VXLevelRemedy> LevelRemedies(int level, const VXLevelStream& stream, VXLevelTiers tiers)
{
    std::vector<VXLevelRemedy> remedies;
    if (stream.width <= 0 || stream.height <= 0 || LevelHolds(level, stream))
        return remedies;
    const int higher = FirstToHold(LevelsAbove(stream.codecID, level), stream, tiers);
    if (higher != IVXCodecs::VXLevelUnknown)
        remedies.push_back({VXLevelRemedyKind::RaiseLevel, higher, stream, 0});
    if (const auto limits = LimitsOf(stream.codecID, stream.profile, level))
        AppendLossyRemedies(remedies, level, stream, *limits);
    std::ranges::stable_sort(remedies, {}, &VXLevelRemedy::loss);
    return remedies;
}

} // namespace Vexlor
