#include "PixelFormats.h"

#include "Lookup.h"
#include "VXMediaCodecs.h"

#include <array>

extern "C"
{
#include <libavutil/pixdesc.h>
}

namespace Vexlor
{

namespace
{

// 8 bits a sample where the name says nothing; the native byte order of libavutil's formats is meant.
constexpr std::array kPixelFormats{
    PixelFormatRow{VXPixFormat_YUV420P, AV_PIX_FMT_YUV420P, "YUV 4:2:0"},
    PixelFormatRow{kPixFormatYUV422P, AV_PIX_FMT_YUV422P, "YUV 4:2:2"},
    PixelFormatRow{kPixFormatYUV444P, AV_PIX_FMT_YUV444P, "YUV 4:4:4"},
    PixelFormatRow{3, AV_PIX_FMT_YUV440P, "YUV 4:4:0"},
    PixelFormatRow{kPixFormatYUV411P, AV_PIX_FMT_YUV411P, "YUV 4:1:1"},
    PixelFormatRow{5, AV_PIX_FMT_YUV410P, "YUV 4:1:0"},
    PixelFormatRow{kPixFormatYUVJ420P, AV_PIX_FMT_YUVJ420P, "YUV 4:2:0 full range"},
    PixelFormatRow{kPixFormatYUVJ422P, AV_PIX_FMT_YUVJ422P, "YUV 4:2:2 full range"},
    PixelFormatRow{kPixFormatYUVJ444P, AV_PIX_FMT_YUVJ444P, "YUV 4:4:4 full range"},
    PixelFormatRow{13, AV_PIX_FMT_YUVJ440P, "YUV 4:4:0 full range"},
    PixelFormatRow{14, AV_PIX_FMT_YUVJ411P, "YUV 4:1:1 full range"},
    PixelFormatRow{kPixFormatYUV420P10, AV_PIX_FMT_YUV420P10, "YUV 4:2:0 10-bit"},
    PixelFormatRow{kPixFormatYUV422P10, AV_PIX_FMT_YUV422P10, "YUV 4:2:2 10-bit"},
    PixelFormatRow{kPixFormatYUV444P10, AV_PIX_FMT_YUV444P10, "YUV 4:4:4 10-bit"},
    PixelFormatRow{23, AV_PIX_FMT_YUV440P10, "YUV 4:4:0 10-bit"},
    PixelFormatRow{kPixFormatYUV420P12, AV_PIX_FMT_YUV420P12, "YUV 4:2:0 12-bit"},
    PixelFormatRow{kPixFormatYUV422P12, AV_PIX_FMT_YUV422P12, "YUV 4:2:2 12-bit"},
    PixelFormatRow{kPixFormatYUV444P12, AV_PIX_FMT_YUV444P12, "YUV 4:4:4 12-bit"},
    PixelFormatRow{33, AV_PIX_FMT_YUV440P12, "YUV 4:4:0 12-bit"},
    PixelFormatRow{40, AV_PIX_FMT_YUV420P9, "YUV 4:2:0 9-bit"},
    PixelFormatRow{41, AV_PIX_FMT_YUV422P9, "YUV 4:2:2 9-bit"},
    PixelFormatRow{42, AV_PIX_FMT_YUV444P9, "YUV 4:4:4 9-bit"},
    PixelFormatRow{43, AV_PIX_FMT_YUV420P14, "YUV 4:2:0 14-bit"},
    PixelFormatRow{44, AV_PIX_FMT_YUV422P14, "YUV 4:2:2 14-bit"},
    PixelFormatRow{45, AV_PIX_FMT_YUV444P14, "YUV 4:4:4 14-bit"},
    PixelFormatRow{kPixFormatYUV420P16, AV_PIX_FMT_YUV420P16, "YUV 4:2:0 16-bit"},
    PixelFormatRow{kPixFormatYUV422P16, AV_PIX_FMT_YUV422P16, "YUV 4:2:2 16-bit"},
    PixelFormatRow{kPixFormatYUV444P16, AV_PIX_FMT_YUV444P16, "YUV 4:4:4 16-bit"},
    PixelFormatRow{kPixFormatYUVA420P, AV_PIX_FMT_YUVA420P, "YUV 4:2:0 with alpha"},
    PixelFormatRow{51, AV_PIX_FMT_YUVA422P, "YUV 4:2:2 with alpha"},
    PixelFormatRow{52, AV_PIX_FMT_YUVA444P, "YUV 4:4:4 with alpha"},
    PixelFormatRow{53, AV_PIX_FMT_YUVA422P10, "YUV 4:2:2 10-bit with alpha"},
    PixelFormatRow{kPixFormatYUVA444P10, AV_PIX_FMT_YUVA444P10, "YUV 4:4:4 10-bit with alpha"},
    PixelFormatRow{55, AV_PIX_FMT_YUVA444P12, "YUV 4:4:4 12-bit with alpha"},
    PixelFormatRow{56, AV_PIX_FMT_YUVA444P16, "YUV 4:4:4 16-bit with alpha"},
    PixelFormatRow{60, AV_PIX_FMT_NV12, "YUV 4:2:0 semi-planar"},
    PixelFormatRow{61, AV_PIX_FMT_NV21, "YUV 4:2:0 semi-planar, V first"},
    PixelFormatRow{62, AV_PIX_FMT_NV16, "YUV 4:2:2 semi-planar"},
    PixelFormatRow{63, AV_PIX_FMT_P010, "YUV 4:2:0 10-bit semi-planar"},
    PixelFormatRow{64, AV_PIX_FMT_P016, "YUV 4:2:0 16-bit semi-planar"},
    PixelFormatRow{70, AV_PIX_FMT_YUYV422, "YUV 4:2:2 packed, Y first"},
    PixelFormatRow{71, AV_PIX_FMT_UYVY422, "YUV 4:2:2 packed, U first"},
    PixelFormatRow{kPixFormatGray8, AV_PIX_FMT_GRAY8, "Gray"},
    PixelFormatRow{81, AV_PIX_FMT_GRAY10, "Gray 10-bit"},
    PixelFormatRow{82, AV_PIX_FMT_GRAY12, "Gray 12-bit"},
    PixelFormatRow{kPixFormatGray16, AV_PIX_FMT_GRAY16, "Gray 16-bit"},
    PixelFormatRow{84, AV_PIX_FMT_MONOBLACK, "Black and white"},
    PixelFormatRow{85, AV_PIX_FMT_MONOWHITE, "Black and white, inverted"},
    PixelFormatRow{90, AV_PIX_FMT_RGB24, "RGB"},
    PixelFormatRow{91, AV_PIX_FMT_BGR24, "BGR"},
    PixelFormatRow{92, AV_PIX_FMT_RGBA, "RGB with alpha"},
    PixelFormatRow{kPixFormatBGRA, AV_PIX_FMT_BGRA, "BGR with alpha"},
    PixelFormatRow{94, AV_PIX_FMT_ARGB, "RGB with alpha first"},
    PixelFormatRow{95, AV_PIX_FMT_ABGR, "BGR with alpha first"},
    PixelFormatRow{kPixFormatGBRP, AV_PIX_FMT_GBRP, "RGB planar"},
    PixelFormatRow{kPixFormatGBRP10, AV_PIX_FMT_GBRP10, "RGB planar 10-bit"},
    PixelFormatRow{kPixFormatGBRP12, AV_PIX_FMT_GBRP12, "RGB planar 12-bit"},
    PixelFormatRow{99, AV_PIX_FMT_GBRAP, "RGB planar with alpha"},
    PixelFormatRow{kPixFormatPAL8, AV_PIX_FMT_PAL8, "Palette of 256 colors"},
    PixelFormatRow{101, AV_PIX_FMT_RGB48, "RGB 16-bit"},
    PixelFormatRow{102, AV_PIX_FMT_RGBA64, "RGB 16-bit with alpha"},
    PixelFormatRow{103, AV_PIX_FMT_RGB0, "RGB, padded"},
    PixelFormatRow{kPixFormatBGR0, AV_PIX_FMT_BGR0, "BGR, padded"},
    PixelFormatRow{105, AV_PIX_FMT_RGB565, "RGB 5-6-5"},
    PixelFormatRow{106, AV_PIX_FMT_RGB555, "RGB 5-5-5"},
    PixelFormatRow{kPixFormatRGB8, AV_PIX_FMT_RGB8, "RGB 3-3-2"},
    PixelFormatRow{kPixFormatBGR8, AV_PIX_FMT_BGR8, "BGR 2-3-3"},
    PixelFormatRow{109, AV_PIX_FMT_GBRAP10, "RGB planar 10-bit with alpha"},
    PixelFormatRow{110, AV_PIX_FMT_GBRAP12, "RGB planar 12-bit with alpha"},
    PixelFormatRow{111, AV_PIX_FMT_GBRP14, "RGB planar 14-bit"},
    PixelFormatRow{kPixFormatGBRP16, AV_PIX_FMT_GBRP16, "RGB planar 16-bit"},
};

const AVPixFmtDescriptor* DescriptorOf(int format) { return av_pix_fmt_desc_get(AVPixelFormatOf(format)); }

} // namespace

std::span<const PixelFormatRow> PixelFormatTable() { return kPixelFormats; }

int PixelFormatOf(AVPixelFormat avFormat)
{
    const auto* row = FindRow(PixelFormatTable(), &PixelFormatRow::avFormat, avFormat);
    return row ? row->format : VXPixFormat_None;
}

AVPixelFormat AVPixelFormatOf(int format)
{
    const auto* row = FindRow(PixelFormatTable(), &PixelFormatRow::format, format);
    return row ? row->avFormat : AV_PIX_FMT_NONE;
}

int BitDepthOf(int format)
{
    const auto* descriptor = DescriptorOf(format);
    return descriptor ? descriptor->comp[0].depth : 8;
}

double SamplesPerPixel(int format)
{
    const auto* descriptor = DescriptorOf(format);
    if (!descriptor)
        return 1.5;
    if (descriptor->nb_components < 3)
        return 1.0;
    const auto block = ChromaBlockOf(format);
    return 1.0 + 2.0 / (block.width * block.height);
}

ChromaBlock ChromaBlockOf(int format)
{
    const auto* descriptor = DescriptorOf(format);
    if (!descriptor)
        return {};
    return {1 << descriptor->log2_chroma_w, 1 << descriptor->log2_chroma_h};
}

std::string PixFormatName(int format)
{
    const auto* row = FindRow(PixelFormatTable(), &PixelFormatRow::format, format);
    return row ? std::string(row->name) : std::string();
}

} // namespace Vexlor
