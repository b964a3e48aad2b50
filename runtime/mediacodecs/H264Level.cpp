#include "H264Level.h"

#include "LevelTable.h"
#include "VXMediaCodecs.h"

extern "C"
{
#include <libavcodec/codec_par.h>
}

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>

namespace Vexlor
{

namespace
{

using Bytes = std::span<const std::uint8_t>;

bool IsSequence(Bytes bytes)
{
    constexpr unsigned kKind = 0x1F;
    constexpr unsigned kSequence = 7;
    return bytes[0] == 0 && bytes[1] == 0 && bytes[2] == 1 && (bytes[3] & kKind) == kSequence;
}

// Profile, constraints and level: behind the version of a configuration box, or behind the first start code
// of a sequence.
Bytes LabelsOf(Bytes headers)
{
    constexpr std::size_t kStartCode = 4;
    constexpr std::size_t kLabels = 3;
    if (headers.size() > kLabels && headers.front() == 1)
        return headers.subspan(1, kLabels);
    for (; headers.size() >= kStartCode + kLabels; headers = headers.subspan(1))
        if (IsSequence(headers))
            return headers.subspan(kStartCode, kLabels);
    return {};
}

// In the profiles that are older than the level, 1b is 1.1 with a constraint: ITU-T H.264 7.4.2.1.1. They are
// Baseline, Main and Extended.
bool Is1b(Bytes labels)
{
    constexpr std::array<std::uint8_t, 3> kOldProfiles{66, 77, 88};
    constexpr unsigned kConstraintSet3 = 0x10;
    constexpr unsigned kLevel11 = 11;
    return !labels.empty() && std::ranges::find(kOldProfiles, labels[0]) != kOldProfiles.end() &&
           (labels[1] & kConstraintSet3) != 0 && labels[2] == kLevel11;
}

} // namespace

int H264LevelOf(const AVCodecParameters& stream)
{
    constexpr int k1b = 9;
    const auto size = stream.extradata ? static_cast<std::size_t>(std::max(0, stream.extradata_size)) : 0;
    return LevelNumberOf(VXCodecID_H264, Is1b(LabelsOf({stream.extradata, size})) ? k1b : stream.level);
}

} // namespace Vexlor
