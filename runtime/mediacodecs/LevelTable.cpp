#include "LevelTable.h"

#include "IVXCodecs.h"
#include "Lookup.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <array>

namespace Vexlor
{

namespace
{

constexpr int kMacroblock = 16;
constexpr int kMacroblockSize = kMacroblock * kMacroblock;

constexpr bool kOnlyRead = true;

/// The longest side of a picture where the standard bounds it by the root of eight times the picture.
constexpr int RootOfEight(std::int64_t picture)
{
    auto side = 8 * picture;
    while (side * side > 8 * picture)
        side = (side + 8 * picture / side) / 2;
    return static_cast<int>(side);
}

// Each standard's columns in its own order. H.264's and HEVC's bounds of frames a second are 1/fR.
constexpr LevelLimits H264(std::int64_t rate, std::int64_t picture, std::int64_t kbps, std::int64_t kbits)
{
    const int side = kMacroblock * RootOfEight(picture);
    return {kMacroblock, picture * kMacroblockSize, rate * kMacroblockSize, side, side, 172, kbps * 1000,
            kbits * 1000};
}

constexpr LevelLimits HEVC(std::int64_t picture, std::int64_t rate, std::int64_t kbps, std::int64_t kbits)
{
    constexpr int kSmallestBlock = 8;
    const int side = RootOfEight(picture);
    return {kSmallestBlock, picture, rate, side, side, 300, kbps * 1000, kbits * 1000};
}

// MaxBR and MaxCPB are the same number in all levels but the first.
constexpr LevelLimits HEVC(std::int64_t picture, std::int64_t rate, std::int64_t kbps)
{
    return HEVC(picture, rate, kbps, kbps);
}

constexpr LevelLimits MPEG4(std::int64_t picture, std::int64_t rate, std::int64_t kbps, std::int64_t buffer)
{
    constexpr int kSide = (1 << 13) - kMacroblock; // 13 bits in the stream
    constexpr int kBufferUnit = 16384;
    return {kMacroblock, picture * kMacroblockSize, rate * kMacroblockSize, kSide, kSide, 0,
            kbps * 1000, buffer * kBufferUnit};
}

constexpr LevelLimits MPEG2(int width, int height, int frameRate, std::int64_t rate, std::int64_t kbps,
                            std::int64_t buffer)
{
    return {kMacroblock, std::int64_t{width} * height, rate, width, height, frameRate, kbps * 1000, buffer};
}

constexpr LevelLimits VP9(std::int64_t rate, std::int64_t picture, int side, std::int64_t kbps)
{
    return {1, picture, rate, side, side, 0, kbps * 1000, 0};
}

constexpr LevelLimits AV1(std::int64_t picture, int width, int height, std::int64_t rate, int frameRate,
                          std::int64_t kbps)
{
    return {1, picture, rate, width, height, frameRate, kbps * 1000, 0};
}

// clang-format off

// level_idc, ITU-T H.264 table A-1 with its MaxMBPS, MaxFS, MaxBR and MaxCPB (here of the VCL, which is the
// lower).
constexpr std::array kH264Levels{
    LevelRow{10, 10, "1", "1", H264(1485, 99, 64, 175)},
    LevelRow{9, 9, "1b", "1b", H264(1485, 99, 128, 350)},
    LevelRow{11, 11, "1.1", "1.1", H264(3000, 396, 192, 500)},
    LevelRow{12, 12, "1.2", "1.2", H264(6000, 396, 384, 1000)},
    LevelRow{13, 13, "1.3", "1.3", H264(11880, 396, 768, 2000)},
    LevelRow{20, 20, "2", "2", H264(11880, 396, 2000, 2000)},
    LevelRow{21, 21, "2.1", "2.1", H264(19800, 792, 4000, 4000)},
    LevelRow{22, 22, "2.2", "2.2", H264(20250, 1620, 4000, 4000)},
    LevelRow{30, 30, "3", "3", H264(40500, 1620, 10000, 10000)},
    LevelRow{31, 31, "3.1", "3.1", H264(108000, 3600, 14000, 14000)},
    LevelRow{32, 32, "3.2", "3.2", H264(216000, 5120, 20000, 20000)},
    LevelRow{40, 40, "4", "4", H264(245760, 8192, 20000, 25000)},
    LevelRow{41, 41, "4.1", "4.1", H264(245760, 8192, 50000, 62500)},
    LevelRow{42, 42, "4.2", "4.2", H264(522240, 8704, 50000, 62500)},
    LevelRow{50, 50, "5", "5", H264(589824, 22080, 135000, 135000)},
    LevelRow{51, 51, "5.1", "5.1", H264(983040, 36864, 240000, 240000)},
    LevelRow{52, 52, "5.2", "5.2", H264(2073600, 36864, 240000, 240000)},
    LevelRow{60, 60, "6", "6", H264(4177920, 139264, 240000, 240000)},
    LevelRow{61, 61, "6.1", "6.1", H264(8355840, 139264, 480000, 480000)},
    LevelRow{62, 62, "6.2", "6.2", H264(16711680, 139264, 800000, 800000)},
};

// general_level_idc (30 times the level), ITU-T H.265 tables A.8 and A.9 with their MaxLumaPs, MaxLumaSr,
// MaxBR and MaxCPB; 1000 is added for the High tier.
constexpr std::array kHEVCLevels{
    LevelRow{30, 30, "1", "level-idc=1:high-tier=0", HEVC(36864, 552960, 128, 350)},
    LevelRow{60, 60, "2", "level-idc=2:high-tier=0", HEVC(122880, 3686400, 1500)},
    LevelRow{63, 63, "2.1", "level-idc=2.1:high-tier=0", HEVC(245760, 7372800, 3000)},
    LevelRow{90, 90, "3", "level-idc=3:high-tier=0", HEVC(552960, 16588800, 6000)},
    LevelRow{93, 93, "3.1", "level-idc=3.1:high-tier=0", HEVC(983040, 33177600, 10000)},
    LevelRow{120, 120, "4", "level-idc=4:high-tier=0", HEVC(2228224, 66846720, 12000)},
    LevelRow{1120, 120, "4 High", "level-idc=4:high-tier=1", HEVC(2228224, 66846720, 30000)},
    LevelRow{123, 123, "4.1", "level-idc=4.1:high-tier=0", HEVC(2228224, 133693440, 20000)},
    LevelRow{1123, 123, "4.1 High", "level-idc=4.1:high-tier=1", HEVC(2228224, 133693440, 50000)},
    LevelRow{150, 150, "5", "level-idc=5:high-tier=0", HEVC(8912896, 267386880, 25000)},
    LevelRow{1150, 150, "5 High", "level-idc=5:high-tier=1", HEVC(8912896, 267386880, 100000)},
    LevelRow{153, 153, "5.1", "level-idc=5.1:high-tier=0", HEVC(8912896, 534773760, 40000)},
    LevelRow{1153, 153, "5.1 High", "level-idc=5.1:high-tier=1", HEVC(8912896, 534773760, 160000)},
    LevelRow{156, 156, "5.2", "level-idc=5.2:high-tier=0", HEVC(8912896, 1069547520, 60000)},
    LevelRow{1156, 156, "5.2 High", "level-idc=5.2:high-tier=1", HEVC(8912896, 1069547520, 240000)},
    LevelRow{180, 180, "6", "level-idc=6:high-tier=0", HEVC(35651584, 1069547520, 60000)},
    LevelRow{1180, 180, "6 High", "level-idc=6:high-tier=1", HEVC(35651584, 1069547520, 240000)},
    LevelRow{183, 183, "6.1", "level-idc=6.1:high-tier=0", HEVC(35651584, 2139095040, 120000)},
    LevelRow{1183, 183, "6.1 High", "level-idc=6.1:high-tier=1", HEVC(35651584, 2139095040, 480000)},
    LevelRow{186, 186, "6.2", "level-idc=6.2:high-tier=0", HEVC(35651584, 4278190080, 240000)},
    LevelRow{1186, 186, "6.2 High", "level-idc=6.2:high-tier=1", HEVC(35651584, 4278190080, 800000)},
};

// The lower four bits of profile_and_level_indication, Advanced Simple, ISO/IEC 14496-2 annex G; macroblocks a
// picture and a second, kb/s and units of the VBV buffer, of its annex N.
constexpr std::array kMPEG4Levels{
    LevelRow{0, 0, "0", {}, MPEG4(99, 2970, 128, 10)},
    LevelRow{1, 1, "1", {}, MPEG4(99, 2970, 128, 10)},
    LevelRow{2, 2, "2", {}, MPEG4(396, 5940, 384, 40)},
    LevelRow{3, 3, "3", {}, MPEG4(396, 11880, 768, 40)},
    LevelRow{7, 7, "3b", {}, MPEG4(396, 11880, 1500, 65)},
    LevelRow{4, 4, "4", {}, MPEG4(792, 23760, 3000, 80)},
    LevelRow{5, 5, "5", {}, MPEG4(1620, 48600, 8000, 112)},
    LevelRow{6, 6, "6", {}, MPEG4(3600, 108000, 12000, 248)}, // Simple alone
};

// Level identification, ISO/IEC 13818-2 table 8-3: the higher the level, the lower its number. Limits of the
// Main profile, tables 8-11 (2nd edition: 1088 lines, not 1152), 8-12, 8-13 and, for the buffer, 8-14.
constexpr std::array kMPEG2Levels{
    LevelRow{10, 10, "Low", {}, MPEG2(352, 288, 30, 3041280, 4000, 475136)},
    LevelRow{8, 8, "Main", {}, MPEG2(720, 576, 30, 10368000, 15000, 1835008)},
    LevelRow{6, 6, "High 1440", {}, MPEG2(1440, 1088, 60, 47001600, 60000, 7340032)},
    LevelRow{4, 4, "High", {}, MPEG2(1920, 1088, 60, 62668800, 80000, 9781248)},
};

// Ten times the level, as the codec configuration box of VP9 in MP4 has it. Limits: webmproject.org/vp9/levels,
// the same in libwebm's vp9_level_stats.cc; the bitrate is the average.
constexpr std::array kVP9Levels{
    LevelRow{10, 10, "1", "1", VP9(829440, 36864, 512, 200)},
    LevelRow{11, 11, "1.1", "1.1", VP9(2764800, 73728, 768, 800)},
    LevelRow{20, 20, "2", "2", VP9(4608000, 122880, 960, 1800)},
    LevelRow{21, 21, "2.1", "2.1", VP9(9216000, 245760, 1344, 3600)},
    LevelRow{30, 30, "3", "3", VP9(20736000, 552960, 2048, 7200)},
    LevelRow{31, 31, "3.1", "3.1", VP9(36864000, 983040, 2752, 12000)},
    LevelRow{40, 40, "4", "4", VP9(83558400, 2228224, 4160, 18000)},
    LevelRow{41, 41, "4.1", "4.1", VP9(160432128, 2228224, 4160, 30000)},
    LevelRow{50, 50, "5", "5", VP9(311951360, 8912896, 8384, 60000)},
    LevelRow{51, 51, "5.1", "5.1", VP9(588251136, 8912896, 8384, 120000)},
    LevelRow{52, 52, "5.2", "5.2", VP9(1176502272, 8912896, 8384, 180000)},
    LevelRow{60, 60, "6", "6", VP9(1176502272, 35651584, 16832, 180000)},
    LevelRow{61, 61, "6.1", "6.1", VP9(2353004544, 35651584, 16832, 240000)},
    LevelRow{62, 62, "6.2", "6.2", VP9(4706009088, 35651584, 16832, 480000)},
};

// seq_level_idx, AV1 bitstream, A.3; the indices left out are reserved. MaxPicSize, MaxHSize, MaxVSize,
// MaxDisplayRate, MaxHeaderRate (a frame has a header at least), MainMbps and HighMbps; 1000 is added for the
// High tier, which SVT-AV1 1.4 writes for no stream. The option is one of SVT-AV1's own.
constexpr std::array kAV1Levels{
    LevelRow{0, 0, "2.0", "level=20", AV1(147456, 2048, 1152, 4423680, 150, 1500)},
    LevelRow{1, 1, "2.1", "level=21", AV1(278784, 2816, 1584, 8363520, 150, 3000)},
    LevelRow{4, 4, "3.0", "level=30", AV1(665856, 4352, 2448, 19975680, 150, 6000)},
    LevelRow{5, 5, "3.1", "level=31", AV1(1065024, 5504, 3096, 31950720, 150, 10000)},
    LevelRow{8, 8, "4.0", "level=40", AV1(2359296, 6144, 3456, 70778880, 300, 12000)},
    LevelRow{1008, 8, "4.0 High", {}, AV1(2359296, 6144, 3456, 70778880, 300, 30000), kOnlyRead},
    LevelRow{9, 9, "4.1", "level=41", AV1(2359296, 6144, 3456, 141557760, 300, 20000)},
    LevelRow{1009, 9, "4.1 High", {}, AV1(2359296, 6144, 3456, 141557760, 300, 50000), kOnlyRead},
    LevelRow{12, 12, "5.0", "level=50", AV1(8912896, 8192, 4352, 267386880, 300, 30000)},
    LevelRow{1012, 12, "5.0 High", {}, AV1(8912896, 8192, 4352, 267386880, 300, 100000), kOnlyRead},
    LevelRow{13, 13, "5.1", "level=51", AV1(8912896, 8192, 4352, 534773760, 300, 40000)},
    LevelRow{1013, 13, "5.1 High", {}, AV1(8912896, 8192, 4352, 534773760, 300, 160000), kOnlyRead},
    LevelRow{14, 14, "5.2", "level=52", AV1(8912896, 8192, 4352, 1069547520, 300, 60000)},
    LevelRow{1014, 14, "5.2 High", {}, AV1(8912896, 8192, 4352, 1069547520, 300, 240000), kOnlyRead},
    LevelRow{15, 15, "5.3", "level=53", AV1(8912896, 8192, 4352, 1069547520, 300, 60000)},
    LevelRow{1015, 15, "5.3 High", {}, AV1(8912896, 8192, 4352, 1069547520, 300, 240000), kOnlyRead},
    LevelRow{16, 16, "6.0", "level=60", AV1(35651584, 16384, 8704, 1069547520, 300, 60000)},
    LevelRow{1016, 16, "6.0 High", {}, AV1(35651584, 16384, 8704, 1069547520, 300, 240000), kOnlyRead},
    LevelRow{17, 17, "6.1", "level=61", AV1(35651584, 16384, 8704, 2139095040, 300, 100000)},
    LevelRow{1017, 17, "6.1 High", {}, AV1(35651584, 16384, 8704, 2139095040, 300, 480000), kOnlyRead},
    LevelRow{18, 18, "6.2", "level=62", AV1(35651584, 16384, 8704, 4278190080, 300, 160000)},
    LevelRow{1018, 18, "6.2 High", {}, AV1(35651584, 16384, 8704, 4278190080, 300, 800000), kOnlyRead},
    LevelRow{19, 19, "6.3", "level=63", AV1(35651584, 16384, 8704, 4278190080, 300, 160000)},
    LevelRow{1019, 19, "6.3 High", {}, AV1(35651584, 16384, 8704, 4278190080, 300, 800000), kOnlyRead},
};

struct CodecLevels
{
    int codecID;
    std::span<const LevelRow> levels;
};

constexpr std::array kCodecs{
    CodecLevels{VXCodecID_H264, kH264Levels},
    CodecLevels{VXCodecID_HEVC, kHEVCLevels},
    CodecLevels{VXCodecID_MPEG4, kMPEG4Levels},
    CodecLevels{VXCodecID_DIVX, kMPEG4Levels},
    CodecLevels{VXCodecID_MPEG2, kMPEG2Levels},
    CodecLevels{VXCodecID_VP9, kVP9Levels},
    CodecLevels{VXCodecID_AV1, kAV1Levels},
};

/// Limits that hold for one profile in place of the level's own. A profile with rows here has those levels
/// alone.
struct ProfileLimits
{
    int codecID;
    int profile;
    int level;
    LevelLimits limits;
};

// MPEG-4 Simple: ISO/IEC 14496-2 annex N (level 4 is its 4a). MPEG-2: as above; High's luma rates are those of
// its 4:2:2 pictures, the lower ones.
constexpr std::array kProfileLimits{
    ProfileLimits{VXCodecID_MPEG4, 0, 0, MPEG4(99, 1485, 64, 10)},
    ProfileLimits{VXCodecID_MPEG4, 0, 1, MPEG4(99, 1485, 64, 10)},
    ProfileLimits{VXCodecID_MPEG4, 0, 2, MPEG4(396, 5940, 128, 40)},
    ProfileLimits{VXCodecID_MPEG4, 0, 3, MPEG4(396, 11880, 384, 40)},
    ProfileLimits{VXCodecID_MPEG4, 0, 4, MPEG4(1200, 36000, 4000, 80)},
    ProfileLimits{VXCodecID_MPEG4, 0, 5, MPEG4(1620, 40500, 8000, 112)},
    ProfileLimits{VXCodecID_MPEG4, 0, 6, MPEG4(3600, 108000, 12000, 248)},
    ProfileLimits{VXCodecID_MPEG2, 5, 8, MPEG2(720, 576, 30, 10368000, 15000, 1835008)},
    ProfileLimits{VXCodecID_MPEG2, 1, 8, MPEG2(720, 576, 30, 11059200, 20000, 2441216)},
    ProfileLimits{VXCodecID_MPEG2, 1, 6, MPEG2(1440, 1088, 60, 47001600, 80000, 9781248)},
    ProfileLimits{VXCodecID_MPEG2, 1, 4, MPEG2(1920, 1088, 60, 62668800, 100000, 12222464)},
    ProfileLimits{VXCodecID_MPEG2, 128, 8, MPEG2(720, 608, 30, 11059200, 50000, 9437184)},
    ProfileLimits{VXCodecID_MPEG2, 128, 4, MPEG2(1920, 1088, 60, 62668800, 300000, 47185920)},
};

/// A level that one profile lacks, which has the limits of the levels themselves.
struct MissingLevel
{
    int codecID;
    int profile;
    int level;
    friend constexpr bool operator==(const MissingLevel&, const MissingLevel&) = default;
};

constexpr std::array kMissingLevels{MissingLevel{VXCodecID_MPEG4, 15, 6}};

/// Thousandths of the level's bitrate and buffer that a profile may use; 1000 for a profile without a row.
struct BitrateFactor
{
    int codecID;
    int profile;
    int factor;
};

// cpbBrVclFactor, ITU-T H.264 table A-2; CpbVclFactor, ITU-T H.265 table A.10; BitrateProfileFactor, AV1
// bitstream, A.3.
constexpr std::array kBitrateFactors{
    BitrateFactor{VXCodecID_H264, 100, 1250},
    BitrateFactor{VXCodecID_H264, 110, 3000},
    BitrateFactor{VXCodecID_H264, 2110, 3000},
    BitrateFactor{VXCodecID_H264, 122, 4000},
    BitrateFactor{VXCodecID_H264, 2122, 4000},
    BitrateFactor{VXCodecID_H264, 244, 4000},
    BitrateFactor{VXCodecID_H264, 2244, 4000},
    BitrateFactor{VXCodecID_H264, 44, 4000},
    BitrateFactor{VXCodecID_HEVC, 401, 1500},
    BitrateFactor{VXCodecID_HEVC, 402, 1667},
    BitrateFactor{VXCodecID_HEVC, 403, 2000},
    BitrateFactor{VXCodecID_HEVC, 404, 2000},
    BitrateFactor{VXCodecID_HEVC, 405, 2500},
    BitrateFactor{VXCodecID_HEVC, 406, 3000},
    BitrateFactor{VXCodecID_AV1, 1, 2000},
    BitrateFactor{VXCodecID_AV1, 2, 3000},
};

// clang-format on

/// DivX is MPEG-4 under another name.
int StandardOf(int codecID) { return codecID == VXCodecID_DIVX ? VXCodecID_MPEG4 : codecID; }

int FactorOf(int codecID, int profile)
{
    const auto row = std::ranges::find_if(kBitrateFactors, [&](const auto& each)
                                          { return each.codecID == codecID && each.profile == profile; });
    return row == kBitrateFactors.end() ? 1000 : row->factor;
}

/// The profile itself, or the plainest where that has limits of its own: Simple of MPEG-4.
int KnownProfile(int codecID, int profile)
{
    constexpr int kSimple = 0;
    return codecID == VXCodecID_MPEG4 && profile == IVXCodecs::VXProfileUnknown ? kSimple : profile;
}

bool HasOwnLimits(int codecID, int profile)
{
    return std::ranges::any_of(kProfileLimits, [&](const auto& each)
                               { return each.codecID == codecID && each.profile == profile; });
}

std::optional<LevelLimits> OwnLimits(int codecID, int profile, int level)
{
    for (const auto& row : kProfileLimits)
        if (row.codecID == codecID && row.profile == profile && row.level == level)
            return row.limits;
    return std::nullopt;
}

} // namespace

std::span<const LevelRow> LevelsOf(int codecID)
{
    const auto* codec = FindRow(std::span<const CodecLevels>(kCodecs), &CodecLevels::codecID, codecID);
    return codec ? codec->levels : std::span<const LevelRow>();
}

bool LevelsCountAverage(int codecID) { return codecID == VXCodecID_VP9; }

int LevelNumberOf(int codecID, int avLevel)
{
    const auto* row = FindRow(LevelsOf(codecID), &LevelRow::avNumber, avLevel);
    return row ? row->number : IVXCodecs::VXLevelUnknown;
}

std::optional<LevelLimits> LimitsOf(int codecID, int profile, int level)
{
    const int standard = StandardOf(codecID);
    profile = KnownProfile(standard, profile);
    if (HasOwnLimits(standard, profile))
        return OwnLimits(standard, profile, level);
    const auto* row = FindRow(LevelsOf(standard), &LevelRow::number, level);
    if (!row ||
        std::ranges::find(kMissingLevels, MissingLevel{standard, profile, level}) != kMissingLevels.end())
        return std::nullopt;
    auto limits = row->limits;
    const int factor = FactorOf(standard, profile);
    limits.bitrate = limits.bitrate * factor / 1000;
    limits.buffer = limits.buffer * factor / 1000;
    return limits;
}

} // namespace Vexlor
