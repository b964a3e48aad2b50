#include "FfmpegFilters.h"

#include "apps/host/Text.h"

#include "IVXCodecParameter.h"
#include "IVXRational.h"
#include "runtime/mediacodecs/VXEncoderSettings.h"

#include <bit>
#include <vector>

namespace Vexlor::Tool
{

namespace
{

constexpr std::uint64_t kMono = 4;
constexpr std::uint64_t kStereo = 3;

std::string Ratio(const IVXRational& ratio, char separator)
{
    return std::to_string(ratio.Num()) + separator + std::to_string(ratio.Den());
}

std::string Size(int width, int height) { return std::to_string(width) + ':' + std::to_string(height); }

bool IsYUV(const std::string& format) { return format.starts_with("yuv") || format.starts_with("gray"); }

std::string Scale(const PictureFit& fit, const VXEncoderSettings& settings)
{
    const auto range = settings.isFullRange ? ":out_range=pc" : ":out_range=tv";
    return "scale=" + Size(fit.width, fit.height) + (IsYUV(settings.format) ? range : "");
}

// The program's own conversion has no palette but that of a cube.
std::string Format(const std::string& format)
{
    return format == "pal8" ? "split[a][b];[a]palettegen[p];[b][p]paletteuse" : "format=" + format;
}

} // namespace

std::string PictureFilters(const IVXCodecParameter& source, const IVXCodecParameter& output,
                           const VXEncoderSettings& settings, PictureFitting fitting)
{
    const auto fit = FitPicture(source, output, fitting);
    const auto frame = Size(output.GetWidth(), output.GetHeight());
    std::vector<std::string> filters{"fps=" + Ratio(*output.GetFrameRate(), '/'), Scale(fit, settings)};
    if (fit.isCropped)
        filters.push_back("crop=" + frame);
    if (fit.isPadded)
        filters.push_back("pad=" + frame + ":(ow-iw)/2:(oh-ih)/2");
    filters.push_back("setsar=" + Ratio(*output.GetAspectRatio(), '/'));
    filters.push_back(Format(settings.format));
    return Joined(filters, ",");
}

std::string SoundFilters(const IVXCodecParameter& source, const IVXCodecParameter& output,
                         const VXEncoderSettings& settings)
{
    std::vector<std::string> filters;
    if (std::popcount(output.GetChannelLayout()) < std::popcount(source.GetChannelLayout()))
        filters.emplace_back("aresample=rematrix_maxval=1");
    else if (source.GetChannelLayout() == kMono && output.GetChannelLayout() == kStereo)
        filters.emplace_back("pan=stereo|c0=c0|c1=c0");
    filters.push_back("aformat=sample_fmts=" + settings.format + ":sample_rates=" +
                      std::to_string(output.GetSampleRate()) + ":channel_layouts=" + settings.layout);
    return Joined(filters, ",");
}

} // namespace Vexlor::Tool
