#include "Promises.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/VXMediaFile.h"

#include <array>
#include <cmath>
#include <string_view>

namespace Vexlor
{

namespace
{

// MPEG-2 and discs tell the shape of the screen, from which the samples' own follows but for the columns at
// the edges that a tube did not show.
constexpr double kShapeTolerance = .03;

double SampleShapeOf(const IVXCodecParameter& stream)
{
    const auto ratio = stream.GetAspectRatio();
    return ratio && ratio->IsValid() && ratio->Num() > 0 ? ratio->GetDoubleValue() : 1;
}

void CompareNames(std::vector<Difference>& differences, const std::string& property, const std::string& asked,
                  const std::string& read)
{
    if (asked != read)
        differences.push_back({property, property + ' ' + asked + " became " + read});
}

void ComparePictures(std::vector<Difference>& differences, const IVXCodecParameter& asked,
                     const IVXCodecParameter& read)
{
    const auto codecs = asked.GetCodecs(true);
    CompareNames(differences, "pixel format", PixFormatName(asked.GetFormat()),
                 PixFormatName(read.GetFormat()));
    if (asked.GetProfile() != IVXCodecs::VXProfileUnknown)
        CompareNames(differences, "profile", codecs->ProfileName(asked.GetProfile()),
                     codecs->ProfileName(read.GetProfile()));
    if (asked.GetLevel() != IVXCodecs::VXLevelUnknown)
        CompareNames(differences, "level", codecs->LevelName(asked.GetLevel()),
                     codecs->LevelName(read.GetLevel()));
    const double shape = SampleShapeOf(asked);
    if (std::abs(SampleShapeOf(read) - shape) > shape * kShapeTolerance)
        CompareNames(differences, "sample aspect", std::to_string(shape),
                     std::to_string(SampleShapeOf(read)));
}

/// What nobody can keep.
struct ExcuseRow
{
    int codecID;
    std::string_view property;
    std::string_view begin; ///< of the difference's text
    std::string_view reason;
};

constexpr std::array kExcuses{
    ExcuseRow{VXCodecID_ProRes, "bitrate", "", "the profile tells the bitrate, and is chosen after it"},
    ExcuseRow{VXCodecID_DNxHR, "bitrate", "", "the profile tells the bitrate, and is chosen after it"},
    ExcuseRow{VXCodecID_GIF, "bitrate", "", "the size tells the bitrate, and is bounded after it"},
    ExcuseRow{VXCodecID_GIF, "pixel format", "", "FFmpeg reads palettes as the colors in them"},
    ExcuseRow{VXCodecID_ProRes, "pixel format", "pixel format YUV 4:4:4 10-bit became YUV 4:4:4 12-bit",
              "FFmpeg reads every 4444 as one of twelve bits"},
    ExcuseRow{VXCodecID_H264, "profile", "profile Baseline became Constrained Baseline",
              "libx264 knows no more of Baseline than its constrained part"},
};

} // namespace

std::string ExcuseOf(const Difference& difference, const std::string& container, int codecID)
{
    for (const auto& row : kExcuses)
        if (row.codecID == codecID && row.property == difference.property &&
            difference.text.starts_with(row.begin))
            return std::string(row.reason);
    return ReasonOf(difference, container, codecID);
}

std::vector<Difference> BrokenPromises(const std::string& path, const std::string& container,
                                       const IVXCodecParameter& asked)
{
    auto differences = ReadBack(path, container, asked);
    const auto file = ReadMediaFile(path);
    if (file.parameter && asked.GetCodecType() == VXCodecTypeVideo)
        if (const auto read = file.parameter->GetVideoCodecParameter())
            ComparePictures(differences, asked, *read);
    return differences;
}

} // namespace Vexlor
