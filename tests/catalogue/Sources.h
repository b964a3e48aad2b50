#pragma once

#include "IVXSampleAspectPreset.h"
#include "VXMediaCodecs.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace Vexlor
{

class IVXFormatParameter;

/// The parameters of a file that nobody needs to have: its pictures, its sound, or both.
struct SourceRow
{
    std::string_view name;
    struct
    {
        int codec = VXCodecID_None; ///< none: no pictures
        int width = 0;
        int height = 0;
        int rateNum = 25;
        int rateDen = 1;
        int format = VXPixFormat_YUV420P;
        int sampleNum = 1;
        int sampleDen = 1;
        int kilobits = 0; ///< 0: not known
    } picture = {};
    struct
    {
        int codec = VXCodecID_None; ///< none: no sound
        int rate = 0;
        std::uint64_t layout = 0;
        int kilobits = 0;
    } sound = {};
};

/// Forty of them; the first nine are those that every preset is tried with for real.
std::span<const SourceRow> Sources();
inline constexpr std::size_t kEncodedSources = 9;

std::shared_ptr<const IVXFormatParameter> ParameterOf(const SourceRow& row);
/// "H.264 1920x1080 30/1 YUV 4:2:0 1:1 8000k + AAC 48000 Stereo 192k".
std::string OutlineOf(const SourceRow& row);

} // namespace Vexlor
