#pragma once

#include "BitrateModel.h"
#include "BitrateTable.h"
#include "ChannelLayouts.h"
#include "IVXCodecs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <tuple>

namespace Vexlor
{

inline constexpr std::array kAllGrades{IVXCodecs::QualityLevelLow, IVXCodecs::QualityLevelNormal,
                                       IVXCodecs::QualityLevelHigh, IVXCodecs::QualityLevelBest};

/// A grade as an index; one outside the grades is the nearest of them.
inline std::size_t IndexOf(IVXCodecs::QualityLevel level)
{
    return static_cast<std::size_t>(std::clamp(int{level}, 0, int{kGrades} - 1));
}

/// Sound at a rate and in a layout: usual ones where none is told.
inline SoundStream Usual(SoundStream stream)
{
    constexpr int kUsualSampleRate = 48000;
    stream.sampleRate = stream.sampleRate > 0 ? stream.sampleRate : kUsualSampleRate;
    stream.layout = stream.layout ? stream.layout : kStereo;
    return stream;
}

inline constexpr double kReferenceRate = 30.0; // of the ladders

/// A picture of a size at a rate: usual ones where none is told.
inline PictureStream Usual(PictureStream stream)
{
    if (stream.width <= 0 || stream.height <= 0)
        std::tie(stream.width, stream.height) = std::pair(1280, 720);
    const bool told = std::isfinite(stream.frameRate) && stream.frameRate > 0;
    stream.frameRate = told ? std::clamp(stream.frameRate, 1.0, 300.0) : kReferenceRate;
    return stream;
}

/// A whole number of bits a second, from 1 to most.
inline int ToBitrate(double bitsPerSecond, double most = std::numeric_limits<int>::max())
{
    const double whole = std::clamp(std::round(bitsPerSecond), 1.0, most);
    return static_cast<int>(std::min<double>(whole, std::numeric_limits<int>::max()));
}

/// The grade whose bitrate comes nearest by ratio, the higher one on a tie: a source that has all its grades
/// at one bitrate, as lossless ones have, is as good as can be.
template <class BitrateOf>
IVXCodecs::QualityLevel NearestGrade(int bitrate, BitrateOf bitrateOf)
{
    const double wanted = std::log(std::max(bitrate, 1));
    std::array<double, kGrades> distances{};
    std::ranges::transform(kAllGrades, distances.begin(),
                           [&](IVXCodecs::QualityLevel level)
                           { return std::abs(std::log(double(bitrateOf(level))) - wanted); });
    const auto nearest = std::min_element(distances.rbegin(), distances.rend());
    return kAllGrades.at(static_cast<std::size_t>(distances.rend() - nearest - 1));
}

} // namespace Vexlor
