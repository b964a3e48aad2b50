#include "tests/encode/WalkCosts.h"

#include "IVXCodecParameter.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>
#include <string_view>

namespace Vexlor
{

namespace
{

constexpr int kAllFrames = 10;
constexpr int kMost = std::numeric_limits<int>::max();

// Up to 1080p everything is tried. Of larger sizes a few combinations are, and above 4K one is opened and
// encoded, no more: everything in every container would take as long as all the rest together.
constexpr std::array kAreas{
    AreaRow{1920 * 1088, kAllFrames, true, kMost},
    AreaRow{4096 * 2304, 3, true, 4},
    AreaRow{kMost, 1, false, 1},
};

struct QuickRow
{
    std::string_view encoder;
    std::string_view options = {};
    int frames = kAllFrames;
};

// The last three have no quick way, and hardly more to show in the tenth frame than in the third: each stands
// for itself or, of FFV1, is coded as the one before.
constexpr std::array kQuick{
    QuickRow{"libx264", "preset=ultrafast:8x8dct=1:coder=cabac:bf=1"},
    QuickRow{"libx265", "preset=ultrafast"},
    QuickRow{"libsvtav1", "preset=12:svtav1-params=lp=1"},
    QuickRow{"libvpx", "deadline=realtime:cpu-used=8:lag-in-frames=0"},
    QuickRow{"libvpx-vp9", "deadline=realtime:cpu-used=8:lag-in-frames=0"},
    QuickRow{.encoder = "prores_ks", .frames = 3},
    QuickRow{.encoder = "ffv1", .options = "threads=1", .frames = 3},
    QuickRow{.encoder = "libwebp_anim", .options = "compression_level=0", .frames = 3},
};

QuickRow QuickWayOf(std::string_view encoder)
{
    const auto* row = std::ranges::find(kQuick, encoder, &QuickRow::encoder);
    return row == kQuick.end() ? QuickRow{encoder} : *row;
}

} // namespace

const AreaRow& AreaOf(const IVXCodecParameter& stream)
{
    const int area = stream.GetWidth() * stream.GetHeight();
    return *std::ranges::find_if(kAreas, [area](const auto& row) { return area <= row.area; });
}

int FramesOf(const IVXCodecParameter& stream, const std::string& encoder)
{
    return std::min(AreaOf(stream).frames, QuickWayOf(encoder).frames);
}

std::size_t StepOf()
{
    const char* step = std::getenv("VX_WALK_STEP");
    return std::max<std::size_t>(1, step ? std::strtoul(step, nullptr, 10) : 1);
}

std::string QuickOptionsOf(const std::string& encoder) { return std::string(QuickWayOf(encoder).options); }

} // namespace Vexlor
