#include "Units.h"

#include "IVXCodecs.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include <array>
#include <cstdio>

namespace Vexlor::Tool
{

std::string BitrateText(int bitrate)
{
    constexpr int kMega = 1'000'000;
    constexpr int kKilo = 1'000;
    if (bitrate < 1)
        return {};
    if (bitrate < kKilo)
        return std::to_string(bitrate) + " b/s";
    const bool isMega = bitrate >= kMega;
    std::array<char, 32> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), isMega ? "%.2f Mb/s" : "%.4g kb/s",
                                    static_cast<double>(bitrate) / (isMega ? kMega : kKilo)));
    return text.data();
}

std::string FrameRateText(const IVXRational& rate)
{
    return rate.IsValid() && rate.Num() != 0 ? rate.FormatAsFramerate() : std::string();
}

std::string RatioText(const IVXRational& ratio)
{
    if (!ratio.IsValid() || ratio.Num() == 0)
        return {};
    return std::to_string(ratio.Num()) + ':' + std::to_string(ratio.Den());
}

std::string SizeText(int width, int height)
{
    return width > 0 && height > 0 ? VXMediaCodecFormatResolution(width, height) : std::string();
}

std::string LayoutText(std::uint64_t layout)
{
    return layout == 0 ? std::string() : VXChannelLayoutName(layout);
}

std::vector<std::string> CodecNames(const std::vector<int>& codecIDs)
{
    std::vector<std::string> names;
    names.reserve(codecIDs.size());
    for (const int codecID : codecIDs)
        names.push_back(IVXCodecs::DefaultCodecName(codecID, true));
    return names;
}

} // namespace Vexlor::Tool
