#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace Vexlor
{

/// What a stream of a level may be. A coded side is a whole number of blocks; sizes and luma rates count it
/// so.
struct LevelLimits
{
    int block;            ///< luma samples
    std::int64_t picture; ///< luma samples a picture
    std::int64_t rate;    ///< luma samples a second
    int width;            ///< luma samples
    int height;           ///< luma samples
    int frameRate;        ///< frames a second, however small they are; 0: any
    std::int64_t bitrate; ///< bits a second
    std::int64_t buffer;  ///< bits that a decoder holds before they are due; 0: not told
};

/// One level of one codec. Numbers are the standard's own where it has one, and stand in preset documents.
struct LevelRow
{
    int number;
    int avNumber;          ///< libavcodec's number
    std::string_view name; ///< display name: "4.1"
    /// Text of the encoder's own level option; empty: avNumber is what is set.
    std::string_view option;
    LevelLimits limits;    ///< of a profile that has none of its own
    bool onlyRead = false; ///< made by none of the encoders
};

/// True for a number of the High tier, where the standard has two.
constexpr bool IsHighTier(int level) { return level >= 1000; }

/// True for a codec whose levels bound the average bitrate, not the highest.
bool LevelsCountAverage(int codecID);
/// The levels of a codec of ours, lowest first; empty for a codec without levels.
std::span<const LevelRow> LevelsOf(int codecID);
/// The number of a level of libavcodec's, of the main tier where there are two; VXLevelUnknown when it has
/// none.
int LevelNumberOf(int codecID, int avLevel);
/// What a level allows a profile; empty when the codec or the profile does not have that level. A profile
/// that is not known is taken as the codec's plainest.
std::optional<LevelLimits> LimitsOf(int codecID, int profile, int level);

} // namespace Vexlor
