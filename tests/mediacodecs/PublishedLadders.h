#pragma once

#include "IVXCodecs.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/PixelFormats.h"

#include <array>
#include <vector>

namespace Vexlor
{

/// One figure that somebody publishes, in kb/s; two where a range is given.
struct PublishedPoint
{
    int width;
    int height;
    double low;
    double high = low;
};

/// One column of a published table.
struct PublishedLadder
{
    const char* name;
    const char* title; ///< as the report has it
    int codecID;
    int format;
    double frameRate;
    std::vector<PublishedPoint> points;
    /// The grades of which one has every point, the lowest and the highest; the same one where that has all.
    IVXCodecs::QualityLevel from;
    IVXCodecs::QualityLevel to = from;
};

/// Every table of bitrates that the model is held against. Where a table has two figures for one size, it is
/// two ladders: a grade has one figure.
inline const std::vector<PublishedLadder>& PublishedLadders()
{
    using enum IVXCodecs::QualityLevel;
    constexpr int k420 = VXPixFormat_YUV420P;
    constexpr int k422 = kPixFormatYUV422P;
    constexpr int k422x10 = kPixFormatYUV422P10;
    constexpr double k24 = 24000 / 1001.0;
    constexpr double k30 = 30000 / 1001.0;
    constexpr double k60 = 60000 / 1001.0;
    static const std::vector<PublishedLadder> s_all{
        // support.google.com/youtube/answer/1722171
        {"YouTube30",
         "YouTube upload, SDR",
         VXCodecID_H264,
         k420,
         30,
         {{640, 360, 1000},
          {854, 480, 2500},
          {1280, 720, 5000},
          {1920, 1080, 8000},
          {2560, 1440, 16000},
          {3840, 2160, 35000, 45000},
          {7680, 4320, 80000, 160000}},
         QualityLevelHigh},
        {"YouTube60",
         "YouTube upload, SDR",
         VXCodecID_H264,
         k420,
         60,
         {{640, 360, 1500},
          {854, 480, 4000},
          {1280, 720, 7500},
          {1920, 1080, 12000},
          {2560, 1440, 24000},
          {3840, 2160, 53000, 68000},
          {7680, 4320, 120000, 240000}},
         QualityLevelHigh},
        {"YouTubeHDR30",
         "YouTube upload, HDR",
         VXCodecID_H264,
         kPixFormatYUV420P10,
         30,
         {{1280, 720, 6500},
          {1920, 1080, 10000},
          {2560, 1440, 20000},
          {3840, 2160, 44000, 56000},
          {7680, 4320, 100000, 200000}},
         QualityLevelHigh},
        {"YouTubeHDR60",
         "YouTube upload, HDR",
         VXCodecID_H264,
         kPixFormatYUV420P10,
         60,
         {{1280, 720, 9500},
          {1920, 1080, 15000},
          {2560, 1440, 30000},
          {3840, 2160, 66000, 85000},
          {7680, 4320, 150000, 300000}},
         QualityLevelHigh},
        // HLS authoring rules for Apple devices, revision of 2025-06-26, average bitrates
        {"AppleH264",
         "Apple HLS, H.264, lower figures",
         VXCodecID_H264,
         k420,
         30,
         {{416, 234, 145},
          {640, 360, 365},
          {768, 432, 730},
          {960, 540, 2000},
          {1280, 720, 3000},
          {1920, 1080, 6000}},
         QualityLevelNormal},
        {"AppleH264Higher",
         "Apple HLS, H.264, higher figures",
         VXCodecID_H264,
         k420,
         30,
         {{768, 432, 1100}, {1280, 720, 4500}, {1920, 1080, 7800}},
         QualityLevelHigh},
        {"AppleHEVC540",
         "Apple HLS, HEVC, lowest of three",
         VXCodecID_HEVC,
         k420,
         30,
         {{960, 540, 600}},
         QualityLevelLow},
        {"AppleHEVC",
         "Apple HLS, HEVC, lower figures",
         VXCodecID_HEVC,
         k420,
         30,
         {{640, 360, 145},
          {768, 432, 300},
          {960, 540, 900},
          {1280, 720, 2400},
          {1920, 1080, 4500},
          {2560, 1440, 8100},
          {3840, 2160, 11600}},
         QualityLevelNormal},
        {"AppleHEVCHigher",
         "Apple HLS, HEVC, higher figures",
         VXCodecID_HEVC,
         k420,
         30,
         {{960, 540, 1600}, {1280, 720, 3400}, {1920, 1080, 5800}, {3840, 2160, 16800}},
         QualityLevelHigh},
        // developers.google.com/media/vp9/settings. Leaner at 720p and 1080p than at other sizes, beside
        // H.264's.
        {"LowQualityVP9",
         "Google VP9 VOD, low quality",
         VXCodecID_VP9,
         k420,
         30,
         {{640, 480, 512}},
         QualityLevelNormal},
        {"GoogleVP930",
         "Google VP9 VOD",
         VXCodecID_VP9,
         k420,
         30,
         {{320, 240, 150},
          {640, 360, 276},
          {640, 480, 750},
          {1280, 720, 1024},
          {1920, 1080, 1800},
          {2560, 1440, 6000},
          {3840, 2160, 12000}},
         QualityLevelLow,
         QualityLevelHigh},
        {"GoogleVP960",
         "Google VP9 VOD",
         VXCodecID_VP9,
         k420,
         60,
         {{1280, 720, 1800}, {1920, 1080, 3000}, {2560, 1440, 9000}, {3840, 2160, 18000}},
         QualityLevelLow,
         QualityLevelNormal},
        // The services of OBS Studio. What the service takes at most, not what it recommends: at 1080p as
        // little as Apple's lower figure, at 360p as much as YouTube's, and no grade is both.
        {"FacebookLive30",
         "Facebook Live, most",
         VXCodecID_H264,
         k420,
         30,
         {{640, 360, 1000}, {852, 480, 2000}, {1280, 720, 4000}, {1920, 1080, 6000}},
         QualityLevelNormal,
         QualityLevelHigh},
        {"FacebookLive60",
         "Facebook Live, most",
         VXCodecID_H264,
         k420,
         60,
         {{640, 360, 1500}, {852, 480, 3000}, {1280, 720, 6000}, {1920, 1080, 9000}},
         QualityLevelNormal,
         QualityLevelHigh},
        // Philips and Sony, Video CD, 1993
        {"VCDNTSC", "Video CD", VXCodecID_MPEG1, k420, k30, {{352, 240, 1150}}, QualityLevelHigh},
        {"VCDPAL", "Video CD", VXCodecID_MPEG1, k420, 25, {{352, 288, 1150}}, QualityLevelHigh},
        // Apple ProRes White Paper, January 2020: at other rates than those of the model's own points
        {"ProResHQ24",
         "Apple ProRes HQ",
         VXCodecID_ProRes,
         k422x10,
         k24,
         {{1280, 720, 88000}, {1920, 1080, 176000}, {3840, 2160, 707000}},
         QualityLevelBest},
        {"ProRes42250",
         "Apple ProRes 422",
         VXCodecID_ProRes,
         k422x10,
         50,
         {{1280, 720, 122000}, {1920, 1080, 245000}, {3840, 2160, 983000}},
         QualityLevelHigh},
        {"ProResProxy60",
         "Apple ProRes Proxy",
         VXCodecID_ProRes,
         k422x10,
         k60,
         {{1280, 720, 45000}, {1920, 1080, 91000}, {3840, 2160, 363000}},
         QualityLevelLow},
        {"ProRes4444",
         "Apple ProRes 4444",
         VXCodecID_ProRes,
         kPixFormatYUV444P10,
         k30,
         {{1920, 1080, 330000}},
         QualityLevelHigh},
        {"ProResXQ",
         "Apple ProRes 4444 XQ",
         VXCodecID_ProRes,
         kPixFormatYUV444P10,
         k30,
         {{1920, 1080, 500000}},
         QualityLevelBest},
        // Avid, bandwidth tables of the DNxHR codec, August 2015: bytes a frame, by the rate
        {"DNxHRLB25",
         "Avid DNxHR LB",
         VXCodecID_DNxHR,
         k422,
         25,
         {{2048, 1080, 40141}, {3840, 2160, 149914}},
         QualityLevelLow},
        {"DNxHRSQ50",
         "Avid DNxHR SQ",
         VXCodecID_DNxHR,
         k422,
         50,
         {{2048, 1080, 257229}, {3840, 2160, 963379}},
         QualityLevelNormal},
        {"DNxHRHQX24",
         "Avid DNxHR HQX",
         VXCodecID_DNxHR,
         k422x10,
         k24,
         {{2048, 1080, 186200}, {3840, 2160, 698440}},
         QualityLevelHigh},
        {"DNxHR44430",
         "Avid DNxHR 444",
         VXCodecID_DNxHR,
         kPixFormatYUV444P10,
         k30,
         {{2048, 1080, 465497}, {3840, 2160, 1747080}},
         QualityLevelHigh},
    };
    return s_all;
}

} // namespace Vexlor
