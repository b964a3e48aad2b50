#include "BitrateTable.h"

#include "Lookup.h"
#include "PixelFormats.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

using Grades = std::array<GradeLadder, kGrades>;
using enum VideoBitrateKind;

// ---- H.264 ------------------------------------------------------------------------------------------------

// Normal. Apple, HLS authoring rules for Apple devices, revision of 2025-06-26, H.264 at up to 30
// fps, the lower figure where a size has two. Above 1080p its HEVC figures: at 1440p (8100) by 1/0.75, as its
// two stand at 1080p, at 2160p (11600) by 1/0.6, the factor of HEVC in Jellyfin's encoder settings.
constexpr std::array kH264Normal{
    LadderPoint{416, 234, 145},     LadderPoint{640, 360, 365},     LadderPoint{768, 432, 730},
    LadderPoint{960, 540, 2000},    LadderPoint{1280, 720, 3000},   LadderPoint{1920, 1080, 6000},
    LadderPoint{2560, 1440, 10800}, LadderPoint{3840, 2160, 19333},
};

// Low. Two thirds of Normal, Apple's own step where it has two figures for one size: 730 and 1100, 3000 and
// 4500 in H.264, 600 and 900, 2400 and 3400 in HEVC. (The Kush gauge for low motion, 0.07 bits a pixel, is
// within 9 % of it at 720p and 1080p.)
constexpr double kLow = 2.0 / 3.0;

// High. YouTube, recommended upload encoding settings (support.google.com/youtube/answer/1722171, read in
// 2026), SDR at 24 to 30 fps, the middle of the range at 2160p (35 to 45) and 4320p (80 to 160). Three sizes
// stand between it and others: 432p and 720p are Apple's higher figures for them, of the table above (YouTube
// has none for 432p, and 5000 for 720p), 480p is within 15 % both of YouTube (2500, 4000 at 60 fps) and of
// Facebook Live (2000).
constexpr std::array kH264High{
    LadderPoint{640, 360, 1000},    LadderPoint{768, 432, 1100},     LadderPoint{854, 480, 2280},
    LadderPoint{1280, 720, 4500},   LadderPoint{1920, 1080, 8000},   LadderPoint{2560, 1440, 16000},
    LadderPoint{3840, 2160, 40000}, LadderPoint{7680, 4320, 120000},
};

// Best. The Kush gauge (Kush Amerasinghe, H.264 For The Rest Of Us) for high motion: 4 times 0.07 bits
// a pixel, at 30 fps.
constexpr std::array kBest{LadderPoint{1280, 720, 7741}, LadderPoint{1920, 1080, 17418}};

constexpr Grades kH264{GradeLadder{kH264Normal, kLow}, {kH264Normal}, {kH264High}, {kBest}};

// ---- HEVC -------------------------------------------------------------------------------------------------

// Normal. As H.264's, the table for HEVC: the lower figure, at 540p, which has three, the middle one.
constexpr std::array kHEVCNormal{
    LadderPoint{640, 360, 145},     LadderPoint{768, 432, 300},    LadderPoint{960, 540, 900},
    LadderPoint{1280, 720, 2400},   LadderPoint{1920, 1080, 4500}, LadderPoint{2560, 1440, 8100},
    LadderPoint{3840, 2160, 11600},
};

// High. The same table, the higher figure. Below 540p H.264's by Jellyfin's 0.6.
constexpr std::array kHEVCHigh{
    LadderPoint{640, 360, 600},   LadderPoint{854, 480, 1368},   LadderPoint{960, 540, 1600},
    LadderPoint{1280, 720, 3400}, LadderPoint{1920, 1080, 5800}, LadderPoint{3840, 2160, 16800},
};

// Best. The Kush gauge with the constant for HEVC of sporv.com's corollaries to it, 0.0482.
constexpr double kBestOfHEVC = 0.0482 / 0.07;

constexpr Grades kHEVC{GradeLadder{kHEVCNormal, kLow}, {kHEVCNormal}, {kHEVCHigh}, {kBest, kBestOfHEVC}};

// ---- VP9 and AV1 ------------------------------------------------------------------------------------------

// A grade is to look the same in every codec, so H.264's ladders by 0.6, the factor of VP9 in Jellyfin's
// encoder settings, are the base. Google, VP9 recommended settings
// (developers.google.com/media/vp9/settings, read in 2026), average bitrate for VOD at 24 to 30 fps, has a
// third of Apple's H.264 at 720p and 1080p, three quarters of it at 360p and more than it at 240p and 480p:
// it aims lower where most is watched. Its figures are therefore found at other grades by the size, and a
// point near one leans its way, by no more than brings it within 15 %: Low has 720p (1024) and 1080p
// (1800); Normal 360p (276), 480p of low quality (512), 1440p (6000) and 2160p (12000); High 240p (150) and
// 480p of medium quality (750). At 1440p a pixel of Low costs as much as at 1080p, not more as it would by
// H.264's ladder (4320).
constexpr std::array kVP9Low{
    LadderPoint{640, 360, 146},    LadderPoint{640, 480, 252},    LadderPoint{960, 540, 800},
    LadderPoint{1280, 720, 1170},  LadderPoint{1920, 1080, 2060}, LadderPoint{2560, 1440, 3650},
    LadderPoint{3840, 2160, 7733},
};
constexpr std::array kVP9Normal{
    LadderPoint{640, 360, 240},     LadderPoint{640, 480, 440},    LadderPoint{960, 540, 1200},
    LadderPoint{1280, 720, 1800},   LadderPoint{1920, 1080, 3600}, LadderPoint{2560, 1440, 6480},
    LadderPoint{3840, 2160, 11600},
};
// Without Apple's figure for 432p, which is less than Google's here.
constexpr std::array kVP9High{
    LadderPoint{320, 240, 170},    LadderPoint{640, 360, 600},     LadderPoint{640, 480, 652},
    LadderPoint{854, 480, 1368},   LadderPoint{1280, 720, 2700},   LadderPoint{1920, 1080, 4800},
    LadderPoint{2560, 1440, 9600}, LadderPoint{3840, 2160, 24000}, LadderPoint{7680, 4320, 72000},
};
constexpr double kBestOfVP9 = 0.6;

constexpr Grades kVP9{GradeLadder{kVP9Low}, {kVP9Normal}, {kVP9High}, {kBest, kBestOfVP9}};

// Nobody publishes a ladder of AV1: VP9's, by the factors 0.5 and 0.6 that Jellyfin has for the two.
constexpr double kAV1AgainstVP9 = 0.5 / 0.6;

constexpr Grades kAV1{GradeLadder{kVP9Low, kAV1AgainstVP9},
                      {kVP9Normal, kAV1AgainstVP9},
                      {kVP9High, kAV1AgainstVP9},
                      {kBest, kBestOfVP9* kAV1AgainstVP9}};

// ---- MPEG-2 and MPEG-4 ------------------------------------------------------------------------------------

// Normal. 480p: Apple, Compressor 4 manual, "About choosing the bit rates": two hours on a DVD. 1080p: twice
// H.264's, as in the Qt encoder's model (0.8, 1.5, 3.5, 6, 10 against 0.4, 0.75, 1.75, 3, 5 bits).
constexpr std::array kMPEG2Normal{LadderPoint{720, 480, 3500}, LadderPoint{1920, 1080, 12000}};

// High. 1080p: what a television channel carries, ATSC A/53. 480p: between Normal and Best so that MPEG-1
// comes within 15 % of VCD's 1150 at 352 x 240 and 352 x 288.
constexpr std::array kMPEG2High{LadderPoint{720, 480, 5000}, LadderPoint{1920, 1080, 19390}};

// Best. 480p: the most that the same manual recommends for a DVD. 1080p: what camcorders of XDCAM EX record
// at their HQ setting (Sony, PMW-EX1R operating manual); twice the Kush gauge for high motion is 34.8.
constexpr std::array kMPEG2Best{LadderPoint{720, 480, 8000}, LadderPoint{1920, 1080, 35000}};

constexpr Grades kMPEG2{GradeLadder{kMPEG2Normal, kLow}, {kMPEG2Normal}, {kMPEG2High}, {kMPEG2Best}};

// Normal. 360p: a film of 100 minutes on a compact disc of 700 MB beside MP3 at 128 kb/s leaves 850. 1080p:
// half again H.264's, since the codec stands halfway between H.264 and MPEG-2.
constexpr std::array kMPEG4Normal{LadderPoint{640, 360, 850}, LadderPoint{1920, 1080, 9000}};

// High. Half again YouTube's figures for H.264.
constexpr std::array kMPEG4High{
    LadderPoint{640, 360, 1500},
    LadderPoint{1280, 720, 6750},
    LadderPoint{1920, 1080, 12000},
};

// Best. The most that players of DivX's profiles Home Theater and HD 1080 take on average.
constexpr std::array kMPEG4Best{LadderPoint{720, 480, 4854}, LadderPoint{1920, 1080, 20000}};

constexpr Grades kMPEG4{GradeLadder{kMPEG4Normal, kLow}, {kMPEG4Normal}, {kMPEG4High}, {kMPEG4Best}};

// ---- Codecs of whole frames -------------------------------------------------------------------------------

// Published at 29.97 fps; a frame costs the same at every rate.
constexpr double kPer30 = 1001.0 / 1000.0;

// Apple ProRes White Paper, January 2020, target data rates: Proxy, LT, 422 and HQ. 4444 and 4444 XQ, without
// alpha, are to HQ at every size as they are at 1080p.
constexpr std::array kProResProxy{LadderPoint{720, 486, 12000}, LadderPoint{1280, 720, 23000},
                                  LadderPoint{1920, 1080, 45000}, LadderPoint{3840, 2160, 182000}};
constexpr std::array kProResLT{LadderPoint{720, 486, 29000}, LadderPoint{1280, 720, 51000},
                               LadderPoint{1920, 1080, 102000}, LadderPoint{3840, 2160, 410000}};
constexpr std::array kProRes422{LadderPoint{720, 486, 42000}, LadderPoint{1280, 720, 73000},
                                LadderPoint{1920, 1080, 147000}, LadderPoint{3840, 2160, 589000}};
constexpr std::array kProResHQ{LadderPoint{720, 486, 63000}, LadderPoint{1280, 720, 110000},
                               LadderPoint{1920, 1080, 220000}, LadderPoint{3840, 2160, 884000}};
constexpr double kProRes4444 = 330.0 / 220.0;
constexpr double kProResXQ = 500.0 / 220.0;

// Avid, bandwidth tables of the DNxHR codec, August 2015: LB, SQ and HQ. HQX has the figures of HQ, and 444
// twice those.
constexpr std::array kDNxHRLB{LadderPoint{1920, 1080, 45000}, LadderPoint{3840, 2160, 179700}};
constexpr std::array kDNxHRSQ{LadderPoint{1920, 1080, 145000}, LadderPoint{3840, 2160, 577500}};
constexpr std::array kDNxHRHQ{LadderPoint{1920, 1080, 220000}, LadderPoint{3840, 2160, 873100}};
constexpr double kDNxHR444 = 2.0;

// By the numbers of the profile table.
constexpr std::array kProfileLadders{
    ProfileLadder{VXCodecID_ProRes, 0, {kProResProxy, kPer30}},
    ProfileLadder{VXCodecID_ProRes, 1, {kProResLT, kPer30}},
    ProfileLadder{VXCodecID_ProRes, 2, {kProRes422, kPer30}},
    ProfileLadder{VXCodecID_ProRes, 3, {kProResHQ, kPer30}},
    ProfileLadder{VXCodecID_ProRes, 4, {kProResHQ, kPer30* kProRes4444}},
    ProfileLadder{VXCodecID_ProRes, 5, {kProResHQ, kPer30* kProResXQ}},
    ProfileLadder{VXCodecID_DNxHR, 1, {kDNxHRLB, kPer30}},
    ProfileLadder{VXCodecID_DNxHR, 2, {kDNxHRSQ, kPer30}},
    ProfileLadder{VXCodecID_DNxHR, 3, {kDNxHRHQ, kPer30}},
    ProfileLadder{VXCodecID_DNxHR, 4, {kDNxHRHQ, kPer30}},
    ProfileLadder{VXCodecID_DNxHR, 5, {kDNxHRHQ, kPer30* kDNxHR444}},
};

// The format offered first stands first: it is taken for one that the codec does not have.
constexpr std::array kGradeProfiles{
    GradeProfiles{VXCodecID_ProRes, kPixFormatYUV422P10, {0, 1, 2, 3}}, // Proxy, LT, Standard, HQ
    GradeProfiles{VXCodecID_ProRes, kPixFormatYUV444P10, {4, 4, 4, 5}}, // 4444, at Best 4444 XQ
    GradeProfiles{VXCodecID_ProRes, kPixFormatYUVA444P10, {4, 4, 4, 5}},
    GradeProfiles{VXCodecID_DNxHR, kPixFormatYUV422P, {1, 2, 3, 3}},   // LB, SQ, HQ
    GradeProfiles{VXCodecID_DNxHR, kPixFormatYUV422P10, {4, 4, 4, 4}}, // HQX
    GradeProfiles{VXCodecID_DNxHR, kPixFormatYUV444P10, {5, 5, 5, 5}}, // 444
};

// G. K. Wallace, The JPEG Still Picture Compression Standard, Communications of the ACM, April 1991: up to
// 0.5 bits a pixel are of moderate to good quality, up to 0.75 good to very good, up to 1.5 excellent, and 2
// cannot be told from the original.
constexpr std::array kBitAPixel{LadderPoint{1920, 1080, 62208}};

constexpr Grades kJPEG{
    GradeLadder{kBitAPixel, 0.5}, {kBitAPixel, 0.75}, {kBitAPixel, 1.5}, {kBitAPixel, 2.0}};

// ---- The codecs -------------------------------------------------------------------------------------------

constexpr std::int64_t kNoMaximum = 2'147'483'647; // none that encoders keep

constexpr std::array kVideo{
    VideoBitrateRow{.codecID = VXCodecID_H264, .grades = kH264},
    VideoBitrateRow{.codecID = VXCodecID_HEVC, .grades = kHEVC},
    // Its levels end at 720 x 576; encoders do not.
    VideoBitrateRow{.codecID = VXCodecID_MPEG4, .grades = kMPEG4, .maxBitrate = kNoMaximum},
    // MPEG-4 for players; HD 1080 is the largest of their profiles.
    VideoBitrateRow{.codecID = VXCodecID_DIVX, .grades = kMPEG4, .maxBitrate = 20'000'000},
    // What MPEG-2 has more is for interlaced pictures.
    // The largest bit_rate field, ISO/IEC 11172-2 2.4.3.2, is (2^18 - 2) x 400.
    VideoBitrateRow{.codecID = VXCodecID_MPEG1, .grades = kMPEG2, .maxBitrate = 104'856'800},
    VideoBitrateRow{.codecID = VXCodecID_MPEG2, .grades = kMPEG2},
    // The Qt encoder's model gives VP8, Theora and MPEG-4 the figures of H.264. VP8, whose tools are those of
    // H.264's Baseline, keeps them; Theora, which lacks them as MPEG-4 does, has those of MPEG-4 here.
    VideoBitrateRow{.codecID = VXCodecID_VP8, .grades = kH264},
    VideoBitrateRow{.codecID = VXCodecID_VP9, .grades = kVP9},
    VideoBitrateRow{.codecID = VXCodecID_AV1, .grades = kAV1},
    VideoBitrateRow{.codecID = VXCodecID_Theora, .grades = kMPEG4},
    // MPEG-4 without B-frames and quarter samples, to which an estimate of ours gives a quarter. Level 70,
    // ITU-T H.263 annex X.
    VideoBitrateRow{.codecID = VXCodecID_H263, .grades = kMPEG4, .factor = 1.25, .maxBitrate = 16'384'000},
    // H.263 was made to need half of what H.261 needs. 30 times 64 kb/s, ITU-T H.261 1.
    VideoBitrateRow{.codecID = VXCodecID_H261, .grades = kMPEG4, .factor = 2.5, .maxBitrate = 1'920'000},
    // Drafts of MPEG-4 without B-frames and quarter samples, as H.263; WMV 8 has made up for it.
    VideoBitrateRow{.codecID = VXCodecID_WMV1, .grades = kMPEG4, .factor = 1.25},
    VideoBitrateRow{.codecID = VXCodecID_WMV2, .grades = kMPEG4},
    VideoBitrateRow{.codecID = VXCodecID_MSMPEG4, .grades = kMPEG4, .factor = 1.25},
    // H.263 with other headers.
    VideoBitrateRow{.codecID = VXCodecID_FLV1, .grades = kMPEG4, .factor = 1.25},

    VideoBitrateRow{.codecID = VXCodecID_MJPEG, .kind = Intra, .grades = kJPEG},
    VideoBitrateRow{.codecID = VXCodecID_ProRes, .kind = Profiled},
    VideoBitrateRow{.codecID = VXCodecID_DNxHR, .kind = Profiled},
    // Google, An image format for the Web (developers.google.com/speed/webp): 25 to 34 % smaller than JPEG.
    VideoBitrateRow{.codecID = VXCodecID_WebP, .kind = Intra, .grades = kJPEG, .factor = 0.7},
    VideoBitrateRow{.codecID = VXCodecID_DNxHD, .kind = Listed},
    VideoBitrateRow{.codecID = VXCodecID_DV, .kind = Listed},
    VideoBitrateRow{.codecID = VXCodecID_DVNTSC, .kind = Listed},
    // Estimates of ours: half is left of camera pictures, and of their colour indices. Neither has grades.
    VideoBitrateRow{.codecID = VXCodecID_FFV1, .kind = Lossless, .share = 0.5},
    VideoBitrateRow{.codecID = VXCodecID_GIF, .kind = Lossless, .bits = 8, .share = 0.5},
};

// ---- Codecs that have few bitrates ------------------------------------------------------------------------

constexpr int k420 = VXPixFormat_YUV420P;
constexpr int k411 = kPixFormatYUV411P;
constexpr int k422 = kPixFormatYUV422P;
constexpr int k422x10 = kPixFormatYUV422P10;

constexpr double k24 = 23.976; // and the whole rate above, which has the same bitrates
constexpr double k30 = 29.97;
constexpr double k60 = 59.94;

constexpr PictureSize k720p{1280, 720};
constexpr PictureSize k1080p{1920, 1080};
constexpr PictureSize kNTSC{720, 480};
constexpr PictureSize kPAL{720, 576};

constexpr ListedBitrate DNxHD(int format, PictureSize size, double rate, int lower, int higher)
{
    return {VXCodecID_DNxHD,
            format,
            size,
            rate,
            {lower * 1'000'000, lower * 1'000'000, higher * 1'000'000, higher * 1'000'000}};
}

constexpr ListedBitrate DV(int codecID, int format, PictureSize size, double rate, int bitrate)
{
    return {codecID, format, size, rate, {bitrate, bitrate, bitrate, bitrate}};
}

constexpr std::array kListed{
    // SMPTE ST 2019-1, the compression identifiers of 720p and 1080p, in Mb/s; libavcodec's encoder opens
    // with no others. Two for each frame rate with 8 bits, one with 10, for which libavcodec leaves out
    // what 29.97
    // fps have (110, 220) and takes the rate of 25 in their place. The third of 1080p, 36 to 90, is left out:
    // it is less than the lower one of 720p, and DNxHR LB does the same.
    DNxHD(k422, k720p, k24, 60, 90),
    DNxHD(k422, k720p, k30, 75, 110),
    DNxHD(k422, k720p, 50, 120, 180),
    DNxHD(k422, k720p, k60, 145, 220),
    DNxHD(k422, k1080p, k24, 115, 175),
    DNxHD(k422, k1080p, 25, 120, 185),
    DNxHD(k422, k1080p, k30, 145, 220),
    DNxHD(k422, k1080p, 50, 240, 365),
    DNxHD(k422, k1080p, k60, 290, 440),
    DNxHD(k422x10, k720p, k24, 90, 90),
    DNxHD(k422x10, k720p, 50, 180, 180),
    DNxHD(k422x10, k720p, k60, 220, 220),
    DNxHD(k422x10, k1080p, k24, 175, 175),
    DNxHD(k422x10, k1080p, 25, 185, 185),
    DNxHD(k422x10, k1080p, 50, 365, 365),
    DNxHD(k422x10, k1080p, k60, 440, 440),
    // IEC 61834, SMPTE 314M: 12 sequences a frame at 25 fps, 10 at 29.97, each of 150 blocks of 80 bytes, in
    // which sound and captions have their place beside 25 Mb/s of picture; twice as many for 4:2:2.
    DV(VXCodecID_DV, k420, kPAL, 25, 28'800'000),
    DV(VXCodecID_DV, k411, kPAL, 25, 28'800'000),
    DV(VXCodecID_DV, k422, kPAL, 25, 57'600'000),
    DV(VXCodecID_DVNTSC, k411, kNTSC, k30, 28'771'229),
    DV(VXCodecID_DVNTSC, k422, kNTSC, k30, 57'542'458),
};

} // namespace

const VideoBitrateRow* FindVideoBitrate(int codecID)
{
    return FindRow(std::span<const VideoBitrateRow>(kVideo), &VideoBitrateRow::codecID, codecID);
}

const GradeLadder* FindProfileLadder(int codecID, int profile)
{
    for (const auto& row : kProfileLadders)
        if (row.codecID == codecID && row.profile == profile)
            return &row.ladder;
    return nullptr;
}

const GradeProfiles* FindGradeProfiles(int codecID, int format)
{
    for (const auto& row : kGradeProfiles)
        if (row.codecID == codecID && row.format == format)
            return &row;
    return nullptr;
}

std::span<const ListedBitrate> ListedBitrates() { return kListed; }

} // namespace Vexlor
