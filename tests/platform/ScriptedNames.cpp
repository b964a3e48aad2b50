#include "IVXRational.h"
#include "VXMediaCodecs.h"

#include "tests/platform/ScriptedCall.h"
#include "tests/platform/ScriptedPlatform.h"

namespace Vexlor
{

namespace
{

std::shared_ptr<IVXRational> Ratio(const char* function, int kind, TVStandNorm norm, TVAspectType aspect)
{
    ScriptedPlatform::Record(CallText(function, norm, aspect));
    return IVXRational::MallocRational(kind + 10 * norm + aspect, 100);
}

} // namespace

std::vector<std::string> VXMediaCodecSupportOutputAllMediaFormats()
{
    const auto* platform = ScriptedPlatform::Current();
    return platform ? platform->ListedFormats() : std::vector<std::string>();
}

std::string VXMediaCodecFormatResolution(int width, int height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

std::string VXMediaCodecFormatSamplerate(int samplerate) { return std::to_string(samplerate) + " Hz"; }

std::string VXChannelLayoutName(std::uint64_t layout) { return "layout " + std::to_string(layout); }

std::string PixFormatName(int format) { return "pixel format " + std::to_string(format); }

std::string SampleFormatName(int format) { return "sample format " + std::to_string(format); }

std::shared_ptr<IVXRational> VXMediaCodecDVDSampleAspectRatio(TVStandNorm norm, TVAspectType aspect)
{
    return Ratio("VXMediaCodecDVDSampleAspectRatio", 100, norm, aspect);
}

std::shared_ptr<IVXRational> VXMediaCodecDVHDSampleAspectRatio(TVStandNorm norm, TVAspectType aspect)
{
    return Ratio("VXMediaCodecDVHDSampleAspectRatio", 200, norm, aspect);
}

std::shared_ptr<IVXRational> VXMediaCodecDVHD720PSampleAspectRatio(TVStandNorm norm, TVAspectType aspect)
{
    return Ratio("VXMediaCodecDVHD720PSampleAspectRatio", 300, norm, aspect);
}

} // namespace Vexlor
