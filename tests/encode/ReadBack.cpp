#include "tests/encode/ReadBack.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/CodecTable.h"
#include "runtime/mediacodecs/PixelFormats.h"
#include "runtime/mediacodecs/VXMediaFile.h"
#include "tests/foundation/TestFolder.h"

#include <array>
#include <cmath>

namespace Vexlor
{

namespace
{

std::string SizeOf(const IVXCodecParameter& picture)
{
    return std::to_string(picture.GetWidth()) + 'x' + std::to_string(picture.GetHeight());
}

std::string RateOf(const IVXCodecParameter& picture)
{
    const auto rate = picture.GetFrameRate();
    return std::to_string(rate->Num()) + '/' + std::to_string(rate->Den());
}

bool IsSameRate(const IVXCodecParameter& asked, const IVXCodecParameter& read, double tolerance)
{
    const double wanted = asked.GetFrameRate()->GetDoubleValue();
    return std::abs(read.GetFrameRate()->GetDoubleValue() - wanted) <= wanted * tolerance;
}

/// Collects what differs.
class Comparison
{
public:
    void Compare(const std::string& property, const std::string& asked, const std::string& read)
    {
        if (asked != read)
            m_differences.push_back({property, property + ' ' + asked + " became " + read});
    }
    std::vector<Difference> Taken() { return std::move(m_differences); }

private:
    std::vector<Difference> m_differences;
};

void ComparePictures(Comparison& comparison, const IVXCodecParameter& asked, const IVXCodecParameter& read,
                     double rateTolerance)
{
    comparison.Compare("size", SizeOf(asked), SizeOf(read));
    if (!IsSameRate(asked, read, rateTolerance))
        comparison.Compare("frame rate", RateOf(asked), RateOf(read));
}

void CompareSounds(Comparison& comparison, const IVXCodecParameter& asked, const IVXCodecParameter& read)
{
    comparison.Compare("sample rate", std::to_string(asked.GetSampleRate()),
                       std::to_string(read.GetSampleRate()));
    comparison.Compare("channels", std::to_string(ChannelsOf(asked.GetChannelLayout())),
                       std::to_string(ChannelsOf(read.GetChannelLayout())));
    comparison.Compare("layout", VXChannelLayoutName(asked.GetChannelLayout()),
                       VXChannelLayoutName(read.GetChannelLayout()));
}

int Number24(const std::string& bytes, std::size_t at)
{
    const auto byte = [&](std::size_t offset) { return static_cast<unsigned char>(bytes[at + offset]); };
    return byte(0) | byte(1) << 8 | byte(2) << 16;
}

// libavformat writes animated WebP but does not read it, so the header is read here: its flag of animation
// and the size of the canvas (RFC 9649 2.7).
std::vector<Difference> ReadWebP(const std::string& path, const IVXCodecParameter& asked)
{
    constexpr std::size_t kHeaderSize = 30;
    constexpr int kAnimation = 2;
    const auto bytes = ContentOf(path);
    if (bytes.size() < kHeaderSize || bytes.substr(8, 8) != "WEBPVP8X" || (bytes[20] & kAnimation) == 0)
        return {{"file", "is no animated WebP"}};
    Comparison comparison;
    comparison.Compare("size", SizeOf(asked),
                       std::to_string(Number24(bytes, 24) + 1) + 'x' +
                           std::to_string(Number24(bytes, 27) + 1));
    return comparison.Taken();
}

} // namespace

std::vector<Difference> ReadBack(const std::string& path, const std::string& container,
                                 const IVXCodecParameter& asked)
{
    if (asked.GetCodecID() == VXCodecID_WebP)
        return ReadWebP(path, asked);
    const auto file = ReadMediaFile(path);
    if (!file.error.empty())
        return {{"file", "cannot be read: " + file.error.substr(path.size() + 2)}};
    const bool isVideo = asked.GetCodecType() == VXCodecTypeVideo;
    const auto read =
        isVideo ? file.parameter->GetVideoCodecParameter() : file.parameter->GetAudioCodecParameter();
    if (!read)
        return {{"file", "holds no such stream"}};
    Comparison comparison;
    comparison.Compare("container", container, file.parameter->FormatName());
    comparison.Compare("codec", std::string(FindCodec(asked.GetCodecID())->name),
                       isVideo ? file.videoCodec : file.audioCodec);
    if (isVideo)
        ComparePictures(comparison, asked, *read, RateToleranceOf(container));
    else
        CompareSounds(comparison, asked, *read);
    return comparison.Taken();
}

} // namespace Vexlor
