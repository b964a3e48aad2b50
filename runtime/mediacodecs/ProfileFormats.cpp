#include "ProfileFormats.h"

#include "ChannelLayouts.h"
#include "PixelFormats.h"
#include "VXMediaCodecs.h"

#include <algorithm>
#include <array>

extern "C"
{
#include <libavutil/pixdesc.h>
}

namespace Vexlor
{

namespace
{

/// The chroma that a profile holds beside that of the rows before it.
enum class Chroma : int
{
    Gray,
    Is420,
    Is422,
    Is444,
};

/// What the pixels of one profile may be.
struct ProfileFormatRow
{
    int codecID;
    int profile;
    Chroma leastChroma;
    Chroma mostChroma;
    int leastBits;
    int mostBits;
};

// H.264: ITU-T H.264 A.2. HEVC: ITU-T H.265 A.3.2 to A.3.5. MPEG-2: ISO/IEC 13818-2 tables 8-5 and 8-13.
// VP9: bitstream 7.2. AV1: bitstream A.2. ProRes: SMPTE RDD 36, 5.1.1. DNxHR: SMPTE ST 2019-1 table 2.
// ProRes, DNxHR: what prores_ks and dnxhd have, who take ten bits for twelve.
constexpr std::array kRows{
    ProfileFormatRow{VXCodecID_H264, 66, Chroma::Is420, Chroma::Is420, 8, 8},
    ProfileFormatRow{VXCodecID_H264, 1066, Chroma::Is420, Chroma::Is420, 8, 8},
    ProfileFormatRow{VXCodecID_H264, 77, Chroma::Is420, Chroma::Is420, 8, 8},
    ProfileFormatRow{VXCodecID_H264, 100, Chroma::Gray, Chroma::Is420, 8, 8},
    ProfileFormatRow{VXCodecID_H264, 110, Chroma::Gray, Chroma::Is420, 8, 10},
    ProfileFormatRow{VXCodecID_H264, 122, Chroma::Gray, Chroma::Is422, 8, 10},
    ProfileFormatRow{VXCodecID_H264, 244, Chroma::Gray, Chroma::Is444, 8, 14},
    ProfileFormatRow{VXCodecID_HEVC, 1, Chroma::Is420, Chroma::Is420, 8, 8},
    ProfileFormatRow{VXCodecID_HEVC, 2, Chroma::Is420, Chroma::Is420, 8, 10},
    ProfileFormatRow{VXCodecID_HEVC, 401, Chroma::Gray, Chroma::Is420, 8, 12},
    ProfileFormatRow{VXCodecID_HEVC, 402, Chroma::Gray, Chroma::Is422, 8, 10},
    ProfileFormatRow{VXCodecID_HEVC, 403, Chroma::Gray, Chroma::Is422, 8, 12},
    ProfileFormatRow{VXCodecID_HEVC, 404, Chroma::Gray, Chroma::Is444, 8, 8},
    ProfileFormatRow{VXCodecID_HEVC, 405, Chroma::Gray, Chroma::Is444, 8, 10},
    ProfileFormatRow{VXCodecID_HEVC, 406, Chroma::Gray, Chroma::Is444, 8, 12},
    ProfileFormatRow{VXCodecID_MPEG2, 5, Chroma::Is420, Chroma::Is420, 8, 8},
    ProfileFormatRow{VXCodecID_MPEG2, 4, Chroma::Is420, Chroma::Is420, 8, 8},
    ProfileFormatRow{VXCodecID_MPEG2, 128, Chroma::Is420, Chroma::Is422, 8, 8},
    ProfileFormatRow{VXCodecID_VP9, 0, Chroma::Is420, Chroma::Is420, 8, 8},
    ProfileFormatRow{VXCodecID_VP9, 1, Chroma::Is422, Chroma::Is444, 8, 8},
    ProfileFormatRow{VXCodecID_VP9, 2, Chroma::Is420, Chroma::Is420, 10, 12},
    ProfileFormatRow{VXCodecID_VP9, 3, Chroma::Is422, Chroma::Is444, 10, 12},
    ProfileFormatRow{VXCodecID_AV1, 0, Chroma::Gray, Chroma::Is420, 8, 10},
    ProfileFormatRow{VXCodecID_AV1, 1, Chroma::Is444, Chroma::Is444, 8, 10},
    ProfileFormatRow{VXCodecID_AV1, 2, Chroma::Gray, Chroma::Is444, 8, 12},
    ProfileFormatRow{VXCodecID_ProRes, 0, Chroma::Is422, Chroma::Is422, 10, 10},
    ProfileFormatRow{VXCodecID_ProRes, 1, Chroma::Is422, Chroma::Is422, 10, 10},
    ProfileFormatRow{VXCodecID_ProRes, 2, Chroma::Is422, Chroma::Is422, 10, 10},
    ProfileFormatRow{VXCodecID_ProRes, 3, Chroma::Is422, Chroma::Is422, 10, 10},
    ProfileFormatRow{VXCodecID_ProRes, 4, Chroma::Is444, Chroma::Is444, 10, 12},
    ProfileFormatRow{VXCodecID_ProRes, 5, Chroma::Is444, Chroma::Is444, 10, 12},
    ProfileFormatRow{VXCodecID_DNxHR, 1, Chroma::Is422, Chroma::Is422, 8, 8},
    ProfileFormatRow{VXCodecID_DNxHR, 2, Chroma::Is422, Chroma::Is422, 8, 8},
    ProfileFormatRow{VXCodecID_DNxHR, 3, Chroma::Is422, Chroma::Is422, 8, 8},
    ProfileFormatRow{VXCodecID_DNxHR, 4, Chroma::Is422, Chroma::Is422, 10, 10},
    ProfileFormatRow{VXCodecID_DNxHR, 5, Chroma::Is444, Chroma::Is444, 10, 10},
};

Chroma ChromaOf(int format)
{
    const auto* descriptor = av_pix_fmt_desc_get(AVPixelFormatOf(format));
    if (descriptor && descriptor->nb_components < 3)
        return Chroma::Gray;
    const auto [width, height] = ChromaBlockOf(format);
    if (height > 1)
        return Chroma::Is420;
    return width > 1 ? Chroma::Is422 : Chroma::Is444;
}

} // namespace

bool ProfileHolds(int codecID, int profile, int format)
{
    const auto row = std::ranges::find_if(kRows, [&](const auto& each)
                                          { return each.codecID == codecID && each.profile == profile; });
    if (row == kRows.end())
        return true;
    const auto chroma = ChromaOf(format);
    const int bits = BitDepthOf(format);
    return chroma >= row->leastChroma && chroma <= row->mostChroma && bits >= row->leastBits &&
           bits <= row->mostBits;
}

// Parametric stereo: ISO/IEC 14496-3 8.6.4, whose payload stands in a mono element.
bool ProfileHoldsLayout(int codecID, int profile, std::uint64_t layout)
{
    constexpr int kHEv2 = 29;
    return codecID != VXCodecID_HEAAC || profile != kHEv2 || layout == kStereo;
}

} // namespace Vexlor
