#include "tests/encode/ReadBack.h"

#include "IVXCodecParameter.h"
#include "IVXCodecs.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/ChannelLayouts.h"
#include "runtime/mediacodecs/CodecCapabilities.h"
#include "runtime/mediacodecs/CodecTags.h"
#include "runtime/mediacodecs/FormatTable.h"
#include "runtime/mediacodecs/LevelTable.h"
#include "runtime/mediacodecs/Lookup.h"
#include "runtime/mediacodecs/PixelFormats.h"
#include "runtime/mediacodecs/ProfileFormats.h"
#include "runtime/mediacodecs/ProfileTable.h"
#include "runtime/mediacodecs/StreamLabels.h"
#include "runtime/mediacodecs/VXMediaFile.h"
#include "tests/foundation/TestFolder.h"

extern "C"
{
#include <libavformat/avformat.h>
}

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>

namespace Vexlor
{

namespace
{

// H.264's, the narrowest first; they are told apart by more than the pixels that they hold.
constexpr std::array kH264Profiles{1066, 66, 77, 100, 110, 122, 244};

bool HoldsAllThat(int codecID, int wider, int narrower)
{
    return std::ranges::all_of(
        CapabilitiesOf(codecID)->formats, [&](int format)
        { return !ProfileHolds(codecID, narrower, format) || ProfileHolds(codecID, wider, format); });
}

// Whoever takes the wider one takes this one.
bool IsNarrower(int codecID, const ProfileRow* narrower, const ProfileRow* wider)
{
    if (!narrower || !wider)
        return false;
    if (codecID != VXCodecID_H264)
        return HoldsAllThat(codecID, wider->number, narrower->number) &&
               !HoldsAllThat(codecID, narrower->number, wider->number);
    return std::ranges::find(kH264Profiles, narrower->number) <
           std::ranges::find(kH264Profiles, wider->number);
}

std::string TagText(std::uint32_t tag)
{
    std::array<char, AV_FOURCC_MAX_STRING_SIZE> text{};
    return av_fourcc_make_string(text.data(), tag);
}

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

/// What tells of a label: the number that libavcodec has for it. Labels of ours may share one.
template <class Row>
void CompareLabel(Comparison& comparison, const std::string& property, const Row* made, const Row* read)
{
    if (made && read && made->avNumber != read->avNumber)
        comparison.Compare(property, std::string(made->name), std::string(read->name));
}

// As the encoder was told them. A label that nobody chose is the encoder's, and one that the file does not
// tell is nobody's.
void CompareLabels(Comparison& comparison, const IVXCodecParameter& asked, const IVXCodecParameter& read)
{
    const int codecID = asked.GetCodecID();
    const auto made = FittingLabels(*CapabilitiesOf(codecID), asked, asked.GetFormat());
    const auto* profile = FindRow(ProfilesOf(codecID), &ProfileRow::number, read.GetProfile());
    const auto* level = FindRow(LevelsOf(codecID), &LevelRow::number, read.GetLevel());
    if (asked.GetProfile() != IVXCodecs::VXProfileUnknown)
        CompareLabel(comparison, IsNarrower(codecID, profile, made.profile) ? "narrower profile" : "profile",
                     made.profile, profile);
    if (asked.GetLevel() != IVXCodecs::VXLevelUnknown)
        CompareLabel(comparison, "level", made.level, level);
}

// As the muxer was told it, where it was told one.
void CompareTags(Comparison& comparison, const IVXCodecParameter& asked, const IVXCodecParameter& read,
                 const std::string& container)
{
    const auto* muxer = av_guess_format(std::string(FindFormat(container)->muxer).c_str(), nullptr, nullptr);
    AVCodecParameters encoded{};
    encoded.codec_id = FindCodec(asked.GetCodecID())->avID;
    if (const auto told = WritableTag(*muxer, encoded, asked.GetCodecTag()))
        comparison.Compare("tag", TagText(told), TagText(read.GetCodecTag()));
}

void ComparePictures(Comparison& comparison, const IVXCodecParameter& asked, const IVXCodecParameter& read,
                     double rateTolerance)
{
    comparison.Compare("size", SizeOf(asked), SizeOf(read));
    comparison.Compare("pixel format", PixFormatName(asked.GetFormat()), PixFormatName(read.GetFormat()));
    if (!IsSameRate(asked, read, rateTolerance))
        comparison.Compare("frame rate", RateOf(asked), RateOf(read));
}

// Of lossy sound a decoder's format tells nothing.
constexpr std::array kLossless{VXCodecID_FLAC,    VXCodecID_PCM16,    VXCodecID_ALAC,    VXCodecID_PCM24,
                               VXCodecID_PCM32,   VXCodecID_PCMFloat, VXCodecID_WavPack, VXCodecID_TTA,
                               VXCodecID_PCM16BE, VXCodecID_PCM24BE};

// Interleaved or not is the decoder's business.
std::string SamplesOf(const IVXCodecParameter& sound)
{
    const auto name = SampleFormatName(sound.GetFormat());
    return name.substr(0, name.find(" planar"));
}

std::string LayoutOf(const IVXCodecParameter& sound)
{
    std::ostringstream text;
    text << VXChannelLayoutName(sound.GetChannelLayout()) << " (0x" << std::hex << sound.GetChannelLayout()
         << ')';
    return text.str();
}

void CompareSounds(Comparison& comparison, const IVXCodecParameter& asked, const IVXCodecParameter& read)
{
    comparison.Compare("sample rate", std::to_string(asked.GetSampleRate()),
                       std::to_string(read.GetSampleRate()));
    comparison.Compare("channels", std::to_string(ChannelsOf(asked.GetChannelLayout())),
                       std::to_string(ChannelsOf(read.GetChannelLayout())));
    comparison.Compare("layout", LayoutOf(asked), LayoutOf(read));
    if (std::ranges::find(kLossless, asked.GetCodecID()) != kLossless.end())
        comparison.Compare("sample format", SamplesOf(asked), SamplesOf(read));
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
    CompareLabels(comparison, asked, *read);
    CompareTags(comparison, asked, *read, container);
    return comparison.Taken();
}

} // namespace Vexlor
