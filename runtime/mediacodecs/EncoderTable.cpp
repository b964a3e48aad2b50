#include "EncoderTable.h"

#include "Lookup.h"

#include <array>
#include <span>

namespace Vexlor
{

namespace
{

// Names as in libavcodec's own option tables (ffmpeg -h encoder=...). x265 and SVT-AV1 take their own options
// as one text; x265 writes what it does to stderr unless it is told otherwise.
constexpr std::array kEncoders{
    EncoderRow{.encoder = "libx264", .profileOption = "profile", .levelOption = "level"},
    EncoderRow{.encoder = "libopenh264", .profileOption = "profile"},
    EncoderRow{.encoder = "h264_videotoolbox",
               .profileOption = "profile",
               .levelOption = "level",
               .always = "allow_sw=1"},
    EncoderRow{.encoder = "libx265",
               .profileOption = "profile",
               .levelOption = "x265-params",
               .always = "x265-params=log-level=none"},
    EncoderRow{.encoder = "libvpx-vp9", .levelOption = "level"},
    EncoderRow{.encoder = "libsvtav1",
               .levelOption = "svtav1-params",
               .isUnbounded = true,
               .mostBitrate = 100'000'000},
    EncoderRow{.encoder = "h261", .hasNoFilling = true}, // "stuffing too large", of still pictures
    EncoderRow{.encoder = "libopus", .constant = "vbr=off"},
    EncoderRow{.encoder = "prores_ks", .profileOption = "profile"},
    EncoderRow{.encoder = "dnxhd", .profileOption = "profile"},
    EncoderRow{.encoder = "mjpeg", .fullRange = true},
    // Measured with libwebp 1.2.4 on a photograph and on a drawing, to come near the bitrates of the grades.
    EncoderRow{.encoder = "libwebp_anim", .qualities = {40, 60, 80, 90}},
};

} // namespace

EncoderRow FindEncoder(std::string_view encoder)
{
    const auto* row = FindRow(std::span<const EncoderRow>(kEncoders), &EncoderRow::encoder, encoder);
    return row ? *row : EncoderRow{.encoder = encoder};
}

} // namespace Vexlor
