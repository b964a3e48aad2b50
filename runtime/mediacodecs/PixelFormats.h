#pragma once

#include <span>
#include <string_view>

extern "C"
{
#include <libavutil/pixfmt.h>
}

namespace Vexlor
{

/// One pixel format that has a number of ours. Numbers stand in preset documents and are never given again.
struct PixelFormatRow
{
    int format; ///< VXPixFormat_..., or kPixFormat...
    AVPixelFormat avFormat;
    std::string_view name; ///< display name
};

inline constexpr int kPixFormatYUV422P = 1;
inline constexpr int kPixFormatYUV444P = 2;
inline constexpr int kPixFormatYUV411P = 4;
inline constexpr int kPixFormatYUVJ420P = 10;
inline constexpr int kPixFormatYUVJ422P = 11;
inline constexpr int kPixFormatYUVJ444P = 12;
inline constexpr int kPixFormatYUV420P10 = 20;
inline constexpr int kPixFormatYUV422P10 = 21;
inline constexpr int kPixFormatYUV444P10 = 22;
inline constexpr int kPixFormatYUV420P12 = 30;
inline constexpr int kPixFormatYUV422P12 = 31;
inline constexpr int kPixFormatYUV444P12 = 32;
inline constexpr int kPixFormatYUV420P16 = 46;
inline constexpr int kPixFormatYUV422P16 = 47;
inline constexpr int kPixFormatYUV444P16 = 48;
inline constexpr int kPixFormatYUVA420P = 50;
inline constexpr int kPixFormatYUVA444P10 = 54;
inline constexpr int kPixFormatGray8 = 80;
inline constexpr int kPixFormatGray16 = 83;
inline constexpr int kPixFormatBGRA = 93;
inline constexpr int kPixFormatGBRP = 96;
inline constexpr int kPixFormatGBRP10 = 97;
inline constexpr int kPixFormatGBRP12 = 98;
inline constexpr int kPixFormatPAL8 = 100;
inline constexpr int kPixFormatBGR0 = 104;
inline constexpr int kPixFormatRGB8 = 107;
inline constexpr int kPixFormatBGR8 = 108;
inline constexpr int kPixFormatGBRP16 = 112;

/// Every pixel format with a number of ours, in the order of the numbers.
std::span<const PixelFormatRow> PixelFormatTable();
/// The number of a pixel format of libavutil's; VXPixFormat_None when it has none.
int PixelFormatOf(AVPixelFormat avFormat);
/// libavutil's pixel format of a number; AV_PIX_FMT_NONE when the number is not known.
AVPixelFormat AVPixelFormatOf(int format);
/// Bits of one sample; 8 for a number that is not known.
int BitDepthOf(int format);
/// Samples of one pixel, chroma counted: 1.5 for 4:2:0, 2 for 4:2:2, 3 for 4:4:4 and RGB; 1.5 for a number
/// that is not known.
double SamplesPerPixel(int format);
/// Sides of the block of pixels that shares one chroma sample: (2, 2) for 4:2:0; (1, 1) for a number that is
/// not known.
struct ChromaBlock
{
    int width = 1;
    int height = 1;
};
ChromaBlock ChromaBlockOf(int format);

} // namespace Vexlor
