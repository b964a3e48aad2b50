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
    ProfileRow{1, VX_AV_PROFILE(HEVC_MAIN), "Main", "libx265 libkvazaar", "main"},
    ProfileRow{2, VX_AV_PROFILE(HEVC_MAIN_10), "Main 10", "libx265", "main10"},
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

// The six members of the family as the encoder numbers them; SMPTE RDD 36 leaves them to the container's tag:
// apco, apcs, apcn, apch, ap4h, ap4x. The one without an addition to its name is what is made without a
// choice and without a bitrate.
constexpr std::array kProResProfiles{
    ProfileRow{2, VX_AV_PROFILE(PRORES_STANDARD), "Standard", "prores_ks", "standard"},
    ProfileRow{3, VX_AV_PROFILE(PRORES_HQ), "HQ", "prores_ks", "hq"},
    ProfileRow{1, VX_AV_PROFILE(PRORES_LT), "LT", "prores_ks", "lt"},
    ProfileRow{0, VX_AV_PROFILE(PRORES_PROXY), "Proxy", "prores_ks", "proxy"},
    ProfileRow{4, VX_AV_PROFILE(PRORES_4444), "4444", "prores_ks", "4444"},
    ProfileRow{5, VX_AV_PROFILE(PRORES_XQ), "4444 XQ", "prores_ks", "4444xq"},
};

// Compression identifiers 1274 down to 1270, SMPTE ST 2019-1; the numbers are libavcodec's. SQ stands before
// LB: what is made without a choice and without a bitrate is for viewing, not for a proxy.
constexpr std::array kDNxHRProfiles{
    ProfileRow{2, VX_AV_PROFILE(DNXHR_SQ), "SQ", "dnxhd", "dnxhr_sq"},
    ProfileRow{1, VX_AV_PROFILE(DNXHR_LB), "LB", "dnxhd", "dnxhr_lb"},
    ProfileRow{3, VX_AV_PROFILE(DNXHR_HQ), "HQ", "dnxhd", "dnxhr_hq"},
    ProfileRow{4, VX_AV_PROFILE(DNXHR_HQX), "HQX", "dnxhd", "dnxhr_hqx"},
    ProfileRow{5, VX_AV_PROFILE(DNXHR_444), "444", "dnxhd", "dnxhr_444"},
};

// Audio object type, ISO/IEC 14496-3 table 1.17.
constexpr std::array kAACProfiles{
    ProfileRow{2, VX_AV_PROFILE(AAC_LOW), "LC", "aac_at libfdk_aac aac"},
    ProfileRow{5, VX_AV_PROFILE(AAC_HE), "HE", ""}, // made as the codec that it is
    ProfileRow{29, VX_AV_PROFILE(AAC_HE_V2), "HE v2", ""},
    ProfileRow{1, VX_AV_PROFILE(AAC_MAIN), "Main", ""},
    ProfileRow{3, VX_AV_PROFILE(AAC_SSR), "SSR", ""},
    ProfileRow{4, VX_AV_PROFILE(AAC_LTP), "LTP", ""},
    ProfileRow{23, VX_AV_PROFILE(AAC_LD), "LD", ""},
    ProfileRow{39, VX_AV_PROFILE(AAC_ELD), "ELD", ""},
};

constexpr std::array kHEAACProfiles{
    ProfileRow{5, VX_AV_PROFILE(AAC_HE), "HE", "aac_at libfdk_aac"},
    ProfileRow{29, VX_AV_PROFILE(AAC_HE_V2), "HE v2", "aac_at libfdk_aac"},
};

struct CodecProfiles
{
    int codecID;
    std::span<const ProfileRow> profiles;
};

constexpr std::array kCodecs{
    CodecProfiles{VXCodecID_H264, kH264Profiles},     CodecProfiles{VXCodecID_HEVC, kHEVCProfiles},
    CodecProfiles{VXCodecID_MPEG4, kMPEG4Profiles},   CodecProfiles{VXCodecID_DIVX, kMPEG4Profiles},
    CodecProfiles{VXCodecID_MPEG2, kMPEG2Profiles},   CodecProfiles{VXCodecID_VP9, kVP9Profiles},
    CodecProfiles{VXCodecID_AV1, kAV1Profiles},       CodecProfiles{VXCodecID_AAC, kAACProfiles},
    CodecProfiles{VXCodecID_ProRes, kProResProfiles}, CodecProfiles{VXCodecID_DNxHR, kDNxHRProfiles},
    CodecProfiles{VXCodecID_HEAAC, kHEAACProfiles},
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

int ProfileNumberOf(int codecID, int avProfile)
{
    const auto* row = FindRow(ProfilesOf(codecID), &ProfileRow::avNumber, avProfile);
    return row ? row->number : IVXCodecs::VXProfileUnknown;
}

} // namespace Vexlor
