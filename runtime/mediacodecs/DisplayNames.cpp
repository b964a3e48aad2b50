#include "DisplayNames.h"

#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <array>
#include <charconv>
#include <cmath>

namespace Vexlor
{

namespace
{

std::shared_ptr<IVXRational> Ratio(TVAspectType aspect, int wide, int wideDen, int narrow, int narrowDen)
{
    return aspect == TVAspectType4x3 ? IVXRational::MallocRational(narrow, narrowDen)
                                     : IVXRational::MallocRational(wide, wideDen);
}

} // namespace

std::string FormatDecimal(double value, int maxDecimals)
{
    if (!std::isfinite(value))
        return std::isnan(value) ? "nan" : std::signbit(value) ? "-inf" : "inf";
    std::array<char, 512> text{}; // the largest double has 309 digits
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, maxDecimals)
            .ptr;
    std::string decimal(text.data(), end);
    if (decimal.find('.') != std::string::npos)
        decimal.erase(decimal.find_last_not_of('0') + 1);
    if (decimal.ends_with('.'))
        decimal.pop_back();
    return decimal;
}

std::string VXMediaCodecFormatResolution(int width, int height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

std::string VXMediaCodecFormatSamplerate(int samplerate)
{
    return FormatDecimal(samplerate / 1000.0, 3) + " kHz";
}

// Of the two ways to read 720 samples, the one of ITU-R BT.601: 704 of them show the picture's full width.
// The figures are those of ITU-T H.264 table E-1.
std::shared_ptr<IVXRational> VXMediaCodecDVDSampleAspectRatio(TVStandNorm norm, TVAspectType aspect)
{
    return norm == TVStandNormNTSC ? Ratio(aspect, 40, 33, 10, 11) : Ratio(aspect, 16, 11, 12, 11);
}

// The screen's shape divided by the frame's: SMPTE 370M stores 1280 x 1080 samples at 60 Hz, 1440 x 1080 at
// 50 Hz.
std::shared_ptr<IVXRational> VXMediaCodecDVHDSampleAspectRatio(TVStandNorm norm, TVAspectType aspect)
{
    return norm == TVStandNormNTSC ? Ratio(aspect, 3, 2, 9, 8) : Ratio(aspect, 4, 3, 1, 1);
}

// As above; SMPTE 370M stores 960 x 720 samples at both rates.
std::shared_ptr<IVXRational> VXMediaCodecDVHD720PSampleAspectRatio(TVStandNorm /*norm*/, TVAspectType aspect)
{
    return Ratio(aspect, 4, 3, 1, 1);
}

} // namespace Vexlor
