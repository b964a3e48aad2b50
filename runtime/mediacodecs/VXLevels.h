#pragma once

#include "VXMediaCodecsExport.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Vexlor
{

class IVXRational;

/// A video stream, as far as the levels of its codec look at it.
struct VXLevelStream
{
    /// A codec without levels fits none.
    int codecID = 0;
    /// One of the codec's profiles; VXProfileUnknown is taken as its plainest.
    int profile = -99;
    /// Pixels. A picture without a size fits no level.
    int width = 0;
    /// Pixels.
    int height = 0;
    /// Frames a second. Empty, invalid or not above 0: only the picture's size counts.
    std::shared_ptr<const IVXRational> frameRate;
    /// Bits a second: the highest rate that the stream is encoded to, for VP9 the average. 0: any.
    std::int64_t bitrate = 0;
};

/// Which levels are searched, where a standard has two tiers of them (HEVC, AV1).
enum class VXLevelTiers : int
{
    Both,
    Main, ///< what most players of consumers take
};

/// True when a stream of that level may be like this one.
///
/// H.264: ITU-T H.264 table A-1, sides up to the root of eight times the picture, 172 frames a second, the
/// bitrate of the VCL (a NAL stream may have a fifth more), times 1.25 for High, 3 for High 10, 4 for High
/// 4:2:2 and 4:4:4. HEVC: ITU-T H.265 tables A.8 to A.10, alike, 300 frames a second. VP9:
/// webmproject.org/vp9/levels. AV1: bitstream, annex A.3, whose High tier is known here and made by no
/// encoder of ours. MPEG-4: ISO/IEC 14496-2 annex N. MPEG-2: ISO/IEC 13818-2 tables 8-11 to 8-13. Sides are
/// counted in whole blocks: 1080 lines of H.264 are 1088. What depends on the encoder's choices (reference
/// frames, slices, tiles) is not looked at. False for a level that the codec or profile does not have.
VX_MEDIACODECS_API bool LevelHolds(int level, const VXLevelStream& stream);

/// The lowest level that holds the stream, a level's Main tier before its High tier; VXLevelUnknown when none
/// does.
VX_MEDIACODECS_API int SmallestLevel(const VXLevelStream& stream, VXLevelTiers tiers = VXLevelTiers::Both);

/// What is changed so that a level holds a stream.
enum class VXLevelRemedyKind : int
{
    RaiseLevel,     ///< the lowest level above that holds the stream as it is
    LowerBitrate,   ///< to the level's highest
    LowerFrameRate, ///< every second, third … frame is kept; never below 5 frames a second
    LowerSize,      ///< to a usual shorter side, 1080, 720, 576 …; the shape is kept, the sides are even
};

/// One way to make a level hold a stream, with the numbers that it comes to.
struct VXLevelRemedy
{
    /// What is changed. A lower frame rate or size also brings the bitrate down to the level's highest.
    VXLevelRemedyKind kind = VXLevelRemedyKind::RaiseLevel;
    /// The level that holds the stream below.
    int level = -99;
    /// The stream after the change.
    VXLevelStream stream;
    /// The share lost, 0 to 1: of the bits or of the pixels a second, whichever is larger; 0 for a raised
    /// level.
    double loss = 0;
};

/// The ways to make a level hold a stream that is beyond it, the least loss first; of equal ones the kind
/// that is named first. Every one of them holds when applied alone. Empty when the level holds the stream
/// already, or nothing helps.
VX_MEDIACODECS_API std::vector<VXLevelRemedy> LevelRemedies(int level, const VXLevelStream& stream,
                                                            VXLevelTiers tiers = VXLevelTiers::Both);

} // namespace Vexlor
