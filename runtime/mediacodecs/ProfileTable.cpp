#include "ProfileTable.h"

#include "FFmpegCompat.h"
#include "IVXCodecs.h"
#include "Lookup.h"
#include "VXMediaCodecs.h"

#include <array>

namespace Vexlor
{

namespace
{

// profile_idc, ITU-T H.264 A.2; 1000 is added where constraint_set1_flag narrows it, 2000 where pictures are
// intra only.
constexpr std::array kH264Profiles{
    ProfileRow{66, VX_AV_PROFILE(H264_BASELINE), "Baseline", "libx264", "baseline"},
    ProfileRow{1066, VX_AV_PROFILE(H264_CONSTRAINED_BASELINE), "Constrained Baseline",
               "libopenh264 h264_videotoolbox", "constrained_baseline"},
    ProfileRow{88, VX_AV_PROFILE(H264_EXTENDED), "Extended", ""},
    ProfileRow{77, VX_AV_PROFILE(H264_MAIN), "Main", "libx264 libopenh264 h264_videotoolbox", "main"},
    ProfileRow{100, VX_AV_PROFILE(H264_HIGH), "High", "libx264 libopenh264 h264_videotoolbox", "high"},
    ProfileRow{110, VX_AV_PROFILE(H264_HIGH_10), "High 10", "libx264", "high10"},
    ProfileRow{2110, VX_AV_PROFILE(H264_HIGH_10_INTRA), "High 10 Intra", ""},
    ProfileRow{122, VX_AV_PROFILE(H264_HIGH_422), "High 4:2:2", "libx264", "high422"},
    ProfileRow{2122, VX_AV_PROFILE(H264_HIGH_422_INTRA), "High 4:2:2 Intra", ""},
    ProfileRow{244, VX_AV_PROFILE(H264_HIGH_444_PREDICTIVE), "High 4:4:4 Predictive", "libx264", "high444"},
    ProfileRow{2244, VX_AV_PROFILE(H264_HIGH_444_INTRA), "High 4:4:4 Intra", ""},
    ProfileRow{44, VX_AV_PROFILE(H264_CAVLC_444), "CAVLC 4:4:4 Intra", ""},
};

// general_profile_idc, ITU-T H.265 A.3; the range extensions share number 4 and are told apart by 400 and a
// counter.
constexpr std::array kHEVCProfiles{
    ProfileRow{1, VX_AV_PROFILE(HEVC_MAIN), "Main", "libx265 libkvazaar hevc_videotoolbox", "main"},
    ProfileRow{2, VX_AV_PROFILE(HEVC_MAIN_10), "Main 10", "libx265 hevc_videotoolbox", "main10"},
    ProfileRow{3, VX_AV_PROFILE(HEVC_MAIN_STILL_PICTURE), "Main Still Picture", ""},
    ProfileRow{4, VX_AV_PROFILE(HEVC_REXT), "Range Extensions", ""},
    ProfileRow{401, VX_AV_PROFILE(HEVC_REXT), "Main 12", "libx265", "main12"},
    ProfileRow{402, VX_AV_PROFILE(HEVC_REXT), "Main 4:2:2 10", "libx265", "main422-10"},
    ProfileRow{403, VX_AV_PROFILE(HEVC_REXT), "Main 4:2:2 12", "libx265", "main422-12"},
    ProfileRow{404, VX_AV_PROFILE(HEVC_REXT), "Main 4:4:4", "libx265", "main444-8"},
    ProfileRow{405, VX_AV_PROFILE(HEVC_REXT), "Main 4:4:4 10", "libx265", "main444-10"},
    ProfileRow{406, VX_AV_PROFILE(HEVC_REXT), "Main 4:4:4 12", "libx265", "main444-12"},
};

// The upper four bits of profile_and_level_indication, ISO/IEC 14496-2 annex G.
constexpr std::array kMPEG4Profiles{
    ProfileRow{0, VX_AV_PROFILE(MPEG4_SIMPLE), "Simple", "mpeg4 libxvid"},
    ProfileRow{15, VX_AV_PROFILE(MPEG4_ADVANCED_SIMPLE), "Advanced Simple", "mpeg4 libxvid"},
};

// profile_and_level_indication, ISO/IEC 13818-2 tables 8-2 and 8-5; 4:2:2 is told by the escape bit, 128.
constexpr std::array kMPEG2Profiles{
    ProfileRow{5, VX_AV_PROFILE(MPEG2_SIMPLE), "Simple", "mpeg2video"},
    ProfileRow{4, VX_AV_PROFILE(MPEG2_MAIN), "Main", "mpeg2video"},
    ProfileRow{3, VX_AV_PROFILE(MPEG2_SNR_SCALABLE), "SNR Scalable", ""},
    ProfileRow{2, VX_AV_PROFILE(MPEG2_SS), "Spatially Scalable", ""},
    ProfileRow{1, VX_AV_PROFILE(MPEG2_HIGH), "High", ""},
    ProfileRow{128, VX_AV_PROFILE(MPEG2_422), "4:2:2", "mpeg2video"},
};

// Profile, VP9 bitstream, 7.2.
constexpr std::array kVP9Profiles{
    ProfileRow{0, VX_AV_PROFILE(VP9_0), "Profile 0", "libvpx-vp9"},
    ProfileRow{1, VX_AV_PROFILE(VP9_1), "Profile 1", "libvpx-vp9"},
    ProfileRow{2, VX_AV_PROFILE(VP9_2), "Profile 2", "libvpx-vp9"},
    ProfileRow{3, VX_AV_PROFILE(VP9_3), "Profile 3", "libvpx-vp9"},
};

// seq_profile, AV1 bitstream, A.2.
constexpr std::array kAV1Profiles{
    ProfileRow{0, VX_AV_PROFILE(AV1_MAIN), "Main", "libsvtav1 libaom-av1 librav1e"},
    ProfileRow{1, VX_AV_PROFILE(AV1_HIGH), "High", "libaom-av1"},
    ProfileRow{2, VX_AV_PROFILE(AV1_PROFESSIONAL), "Professional", "libaom-av1"},
};

// Audio object type, ISO/IEC 14496-3 table 1.17.
constexpr std::array kAACProfiles{
    ProfileRow{2, VX_AV_PROFILE(AAC_LOW), "LC", "aac_at libfdk_aac aac"},
    ProfileRow{5, VX_AV_PROFILE(AAC_HE), "HE", "aac_at libfdk_aac"},
    ProfileRow{29, VX_AV_PROFILE(AAC_HE_V2), "HE v2", "aac_at libfdk_aac"},
    ProfileRow{1, VX_AV_PROFILE(AAC_MAIN), "Main", ""},
    ProfileRow{3, VX_AV_PROFILE(AAC_SSR), "SSR", ""},
    ProfileRow{4, VX_AV_PROFILE(AAC_LTP), "LTP", ""},
    ProfileRow{23, VX_AV_PROFILE(AAC_LD), "LD", ""},
    ProfileRow{39, VX_AV_PROFILE(AAC_ELD), "ELD", ""},
};

// level_idc, ITU-T H.264 table A-1.
constexpr std::array kH264Levels{
    LevelRow{10, 10, "1", "1"},     LevelRow{9, 9, "1b", "1b"},     LevelRow{11, 11, "1.1", "1.1"},
    LevelRow{12, 12, "1.2", "1.2"}, LevelRow{13, 13, "1.3", "1.3"}, LevelRow{20, 20, "2", "2"},
    LevelRow{21, 21, "2.1", "2.1"}, LevelRow{22, 22, "2.2", "2.2"}, LevelRow{30, 30, "3", "3"},
    LevelRow{31, 31, "3.1", "3.1"}, LevelRow{32, 32, "3.2", "3.2"}, LevelRow{40, 40, "4", "4"},
    LevelRow{41, 41, "4.1", "4.1"}, LevelRow{42, 42, "4.2", "4.2"}, LevelRow{50, 50, "5", "5"},
    LevelRow{51, 51, "5.1", "5.1"}, LevelRow{52, 52, "5.2", "5.2"}, LevelRow{60, 60, "6", "6"},
    LevelRow{61, 61, "6.1", "6.1"}, LevelRow{62, 62, "6.2", "6.2"},
};

// general_level_idc (30 times the level), ITU-T H.265 table A.8; 1000 is added for the High tier.
constexpr std::array kHEVCLevels{
    LevelRow{30, 30, "1", "level-idc=1:high-tier=0"},
    LevelRow{60, 60, "2", "level-idc=2:high-tier=0"},
    LevelRow{63, 63, "2.1", "level-idc=2.1:high-tier=0"},
    LevelRow{90, 90, "3", "level-idc=3:high-tier=0"},
    LevelRow{93, 93, "3.1", "level-idc=3.1:high-tier=0"},
    LevelRow{120, 120, "4", "level-idc=4:high-tier=0"},
    LevelRow{1120, 120, "4 High", "level-idc=4:high-tier=1"},
    LevelRow{123, 123, "4.1", "level-idc=4.1:high-tier=0"},
    LevelRow{1123, 123, "4.1 High", "level-idc=4.1:high-tier=1"},
    LevelRow{150, 150, "5", "level-idc=5:high-tier=0"},
    LevelRow{1150, 150, "5 High", "level-idc=5:high-tier=1"},
    LevelRow{153, 153, "5.1", "level-idc=5.1:high-tier=0"},
    LevelRow{1153, 153, "5.1 High", "level-idc=5.1:high-tier=1"},
    LevelRow{156, 156, "5.2", "level-idc=5.2:high-tier=0"},
    LevelRow{1156, 156, "5.2 High", "level-idc=5.2:high-tier=1"},
    LevelRow{180, 180, "6", "level-idc=6:high-tier=0"},
    LevelRow{1180, 180, "6 High", "level-idc=6:high-tier=1"},
    LevelRow{183, 183, "6.1", "level-idc=6.1:high-tier=0"},
    LevelRow{1183, 183, "6.1 High", "level-idc=6.1:high-tier=1"},
    LevelRow{186, 186, "6.2", "level-idc=6.2:high-tier=0"},
    LevelRow{1186, 186, "6.2 High", "level-idc=6.2:high-tier=1"},
};

// The lower four bits of profile_and_level_indication, Advanced Simple, ISO/IEC 14496-2 annex G.
constexpr std::array kMPEG4Levels{LevelRow{0, 0, "0"}, LevelRow{1, 1, "1"},  LevelRow{2, 2, "2"},
                                  LevelRow{3, 3, "3"}, LevelRow{7, 7, "3b"}, LevelRow{4, 4, "4"},
                                  LevelRow{5, 5, "5"}};

// Level identification, ISO/IEC 13818-2 table 8-3: the higher the level, the lower its number.
constexpr std::array kMPEG2Levels{LevelRow{10, 10, "Low"}, LevelRow{8, 8, "Main"},
                                  LevelRow{6, 6, "High 1440"}, LevelRow{4, 4, "High"}};

// Ten times the level, as the codec configuration box of VP9 in MP4 has it.
constexpr std::array kVP9Levels{
    LevelRow{10, 10, "1", "1"},     LevelRow{11, 11, "1.1", "1.1"}, LevelRow{20, 20, "2", "2"},
    LevelRow{21, 21, "2.1", "2.1"}, LevelRow{30, 30, "3", "3"},     LevelRow{31, 31, "3.1", "3.1"},
    LevelRow{40, 40, "4", "4"},     LevelRow{41, 41, "4.1", "4.1"}, LevelRow{50, 50, "5", "5"},
    LevelRow{51, 51, "5.1", "5.1"}, LevelRow{52, 52, "5.2", "5.2"}, LevelRow{60, 60, "6", "6"},
    LevelRow{61, 61, "6.1", "6.1"}, LevelRow{62, 62, "6.2", "6.2"},
};

// seq_level_idx, AV1 bitstream, A.3; the indices left out are reserved.
constexpr std::array kAV1Levels{
    LevelRow{0, 0, "2.0"},   LevelRow{1, 1, "2.1"},   LevelRow{4, 4, "3.0"},   LevelRow{5, 5, "3.1"},
    LevelRow{8, 8, "4.0"},   LevelRow{9, 9, "4.1"},   LevelRow{12, 12, "5.0"}, LevelRow{13, 13, "5.1"},
    LevelRow{14, 14, "5.2"}, LevelRow{15, 15, "5.3"}, LevelRow{16, 16, "6.0"}, LevelRow{17, 17, "6.1"},
    LevelRow{18, 18, "6.2"}, LevelRow{19, 19, "6.3"},
};

struct CodecProfiles
{
    int codecID;
    std::span<const ProfileRow> profiles;
    std::span<const LevelRow> levels;
};

constexpr std::array kCodecs{
    CodecProfiles{VXCodecID_H264, kH264Profiles, kH264Levels},
    CodecProfiles{VXCodecID_HEVC, kHEVCProfiles, kHEVCLevels},
    CodecProfiles{VXCodecID_MPEG4, kMPEG4Profiles, kMPEG4Levels},
    CodecProfiles{VXCodecID_DIVX, kMPEG4Profiles, kMPEG4Levels},
    CodecProfiles{VXCodecID_MPEG2, kMPEG2Profiles, kMPEG2Levels},
    CodecProfiles{VXCodecID_VP9, kVP9Profiles, kVP9Levels},
    CodecProfiles{VXCodecID_AV1, kAV1Profiles, kAV1Levels},
    CodecProfiles{VXCodecID_AAC, kAACProfiles, {}},
};

const CodecProfiles* FindCodecProfiles(int codecID)
{
    return FindRow(std::span<const CodecProfiles>(kCodecs), &CodecProfiles::codecID, codecID);
}

} // namespace

std::span<const ProfileRow> ProfilesOf(int codecID)
{
    const auto* codec = FindCodecProfiles(codecID);
    return codec ? codec->profiles : std::span<const ProfileRow>();
}

std::span<const LevelRow> LevelsOf(int codecID)
{
    const auto* codec = FindCodecProfiles(codecID);
    return codec ? codec->levels : std::span<const LevelRow>();
}

int ProfileNumberOf(int codecID, int avProfile)
{
    const auto* row = FindRow(ProfilesOf(codecID), &ProfileRow::avNumber, avProfile);
    return row ? row->number : IVXCodecs::VXProfileUnknown;
}

int LevelNumberOf(int codecID, int avLevel)
{
    const auto* row = FindRow(LevelsOf(codecID), &LevelRow::avNumber, avLevel);
    return row ? row->number : IVXCodecs::VXLevelUnknown;
}

} // namespace Vexlor
