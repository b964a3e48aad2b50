#include "SizeEstimate.h"

#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "VXMediaCodecs.h"
#include "runtime/mediacodecs/VXEncoderSettings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace Vexlor::Tool
{

namespace
{

/// What a container adds.
struct ContainerRow
{
    std::string_view name;
    double fixed;     ///< bytes of the file
    double second;    ///< bytes a second
    double picture;   ///< bytes a picture
    double packet;    ///< bytes a packet of sound
    double share = 0; ///< of what is in it
};

// Headers and tables of each container as libavformat writes them: sample tables of MP4 (ISO/IEC 14496-12),
// blocks of Matroska (RFC 9559), chunks with their index (AVI), packets of 188 bytes with tables ten times a
// second (ISO/IEC 13818-1), packs of 2048 bytes (as above), tags of 15 bytes (FLV), packets of 3200 (ASF),
// pages (RFC 3533), pages of 512 bytes (SMPTE ST 377-1); room for tags (FLAC).
constexpr std::array kContainers{
    ContainerRow{"MP4", 1500, 0, 16, 6},
    ContainerRow{"MOV", 1500, 0, 16, 6},
    ContainerRow{"M4V", 1500, 0, 16, 6},
    ContainerRow{"M4A", 1500, 0, 16, 6},
    ContainerRow{"3GP", 1500, 0, 16, 6},
    ContainerRow{"F4V", 1500, 0, 16, 6},
    ContainerRow{"MKV", 1000, 20, 9, 9},
    ContainerRow{"WEBM", 1000, 20, 9, 9},
    ContainerRow{"MKA", 1000, 20, 9, 9},
    ContainerRow{"AVI", 6000, 0, 24, 24},
    ContainerRow{"TS", 1000, 3800, 110, 30, 0.022},
    ContainerRow{"M2TS", 1000, 3800, 110, 30, 0.022},
    ContainerRow{"MPG", 4000, 500, 20, 10, 0.02},
    ContainerRow{"VOB", 4000, 500, 20, 10, 0.02},
    ContainerRow{"FLV", 500, 0, 20, 16},
    ContainerRow{"WMV", 5000, 0, 20, 20, 0.02},
    ContainerRow{"ASF", 5000, 0, 20, 20, 0.02},
    ContainerRow{"WMA", 5000, 0, 20, 20, 0.02},
    ContainerRow{"OGV", 4000, 0, 4, 4, 0.01},
    ContainerRow{"OGG", 4000, 0, 4, 4, 0.01},
    ContainerRow{"MXF", 10000, 0, 800, 300},
    ContainerRow{"AAC", 0, 0, 0, 7},
    ContainerRow{"FLAC", 8300, 0, 0, 0},
    ContainerRow{"MP3", 500, 0, 0, 0},
};
constexpr ContainerRow kPlain{"", 100, 0, 20, 0};

constexpr double kBitsOfByte = 8;
constexpr double kSamplesOfPacket = 1024;

/// How far a stream may be off its bitrate, as shares of it.
struct Spread
{
    double least;
    double most;
    double start = 0; ///< seconds of the bitrate that a stream may take beyond it, however short it is
    double end = 0;   ///< seconds of it that a stream may lack
};

constexpr Spread kAsLong{1, 1, 0.1, 0.1}; // streams of a source end a packet or two apart
constexpr Spread kConstant{0.95, 1.03, 0.1};
constexpr Spread kVariableSound{0.75, 1.06, 0.1};
constexpr Spread kVariablePicture{0.6, 1.1, 1};
constexpr Spread kLossless{0.05, 1.4};
constexpr Spread kOfProfile{0.4, 1.1}; // simple pictures do not use it up

constexpr std::array kStored{VXCodecID_PCM16,   VXCodecID_PCM24,   VXCodecID_PCM32, VXCodecID_PCMFloat,
                             VXCodecID_PCM16BE, VXCodecID_PCM24BE, VXCodecID_ALaw,  VXCodecID_MuLaw,
                             VXCodecID_ADPCM,   VXCodecID_ADPCMMS, VXCodecID_DV,    VXCodecID_DVNTSC};
constexpr std::array kAlwaysConstant{VXCodecID_MP3,   VXCodecID_MP2,   VXCodecID_AC3,  VXCodecID_EAC3,
                                     VXCodecID_DTS,   VXCodecID_WMA1,  VXCodecID_WMA2, VXCodecID_AMRNB,
                                     VXCodecID_AMRWB, VXCodecID_DNxHD, VXCodecID_DNxHR};
constexpr std::array kOfContent{VXCodecID_FFV1, VXCodecID_FLAC, VXCodecID_ALAC, VXCodecID_WavPack,
                                VXCodecID_TTA,  VXCodecID_GIF,  VXCodecID_WebP};

constexpr std::array kProfiled{VXCodecID_ProRes, VXCodecID_DNxHR};

template <typename List>
bool Holds(const List& list, int codecID)
{
    return std::ranges::find(list, codecID) != list.end();
}

Spread SpreadOf(const IVXCodecParameter& stream)
{
    constexpr int kConstantMode = 1;
    const int codec = stream.GetCodecID();
    if (Holds(kStored, codec))
        return kAsLong;
    if (Holds(kOfContent, codec))
        return kLossless;
    if (codec == VXCodecID_ProRes)
        return kOfProfile;
    if (Holds(kAlwaysConstant, codec) || stream.GetBitrateMode() == kConstantMode)
        return kConstant;
    return stream.GetCodecType() == VXCodecTypeVideo ? kVariablePicture : kVariableSound;
}

SizeRange RangeOf(const IVXCodecParameter& stream, double seconds)
{
    const auto spread = SpreadOf(stream);
    const bool isOfProfile = Holds(kProfiled, stream.GetCodecID());
    const double perSecond = (isOfProfile ? TakenBitrate(stream) : stream.GetBitrate()) / kBitsOfByte;
    return {perSecond * std::max(seconds * spread.least - spread.end, 0.0), perSecond * seconds,
            perSecond * (seconds * spread.most + spread.start)};
}

double PicturesOf(const IVXCodecParameter& video, double seconds)
{
    const double rate = video.GetFrameRate()->GetDoubleValue();
    return std::isfinite(rate) && rate > 0 ? rate * seconds : 0;
}

double ContainerSize(const IVXFormatParameter& output, double seconds, double streams)
{
    const auto* found = std::ranges::find(kContainers, output.FormatName(), &ContainerRow::name);
    const auto& row = found == kContainers.end() ? kPlain : *found;
    double size = row.fixed + row.second * seconds + row.share * streams;
    if (const auto video = output.GetVideoCodecParameter())
        size += row.picture * PicturesOf(*video, seconds);
    if (const auto audio = output.GetAudioCodecParameter())
        size += row.packet * seconds * audio->GetSampleRate() / kSamplesOfPacket;
    return size;
}

} // namespace

bool FollowsBitrate(const IVXCodecParameter& stream)
{
    const int codec = stream.GetCodecID();
    return !Holds(kStored, codec) && !Holds(kOfContent, codec) && !Holds(kProfiled, codec);
}

int TakenBitrate(const IVXCodecParameter& stream)
{
    for (const auto& [option, value] : EncoderSettingsFor(stream).options)
        if (option == "b")
            return std::atoi(value.c_str());
    return stream.GetBitrate();
}

SizeRange SizeEstimate::Total() const
{
    constexpr double kLeast = 0.5; // of what the container is thought to add
    constexpr double kMost = 1.1;
    return {video.least + audio.least + kLeast * container, video.likely + audio.likely + container,
            video.most + audio.most + kMost * container};
}

SizeEstimate EstimateSize(const IVXFormatParameter& output, double seconds)
{
    SizeEstimate estimate;
    if (const auto video = output.GetVideoCodecParameter())
        estimate.video = RangeOf(*video, seconds);
    if (const auto audio = output.GetAudioCodecParameter())
        estimate.audio = RangeOf(*audio, seconds);
    estimate.container = ContainerSize(output, seconds, estimate.video.likely + estimate.audio.likely);
    return estimate;
}

std::int64_t SizeOfText(const std::string& text)
{
    struct Unit
    {
        std::string_view name;
        double bytes;
    };
    constexpr std::array kUnits{Unit{"", 1},         Unit{"b", 1},        Unit{"k", 1e3},
                                Unit{"kb", 1e3},     Unit{"m", 1e6},      Unit{"mb", 1e6},
                                Unit{"g", 1e9},      Unit{"gb", 1e9},     Unit{"ki", 1024},
                                Unit{"kib", 1024},   Unit{"mi", 1 << 20}, Unit{"mib", 1 << 20},
                                Unit{"gi", 1 << 30}, Unit{"gib", 1 << 30}};
    constexpr double kMost = 1e15;
    char* end = nullptr;
    const double number = std::strtod(text.c_str(), &end);
    const auto name = Folded(std::string_view(end).substr(
        std::min(std::string_view(end).find_first_not_of(' '), std::string_view(end).size())));
    const auto* unit = std::ranges::find(kUnits, name, &Unit::name);
    const double bytes = unit == kUnits.end() ? 0 : number * unit->bytes;
    if (end == text.c_str() || !(bytes >= 1 && bytes <= kMost))
        throw WrongUsage("--target: " + Quoted(text) + " is no size; sizes are as 25MB, 700MiB, 1.5GB");
    return static_cast<std::int64_t>(bytes);
}

std::string SizeOfBytes(double bytes)
{
    struct Unit
    {
        double bytes;
        const char* format;
    };
    constexpr std::array kUnits{Unit{1e9, "%.2f GB"}, Unit{1e6, "%.2f MB"}, Unit{1e3, "%.0f kB"}};
    std::array<char, 32> text{};
    for (const auto& unit : kUnits)
        if (bytes >= unit.bytes * 0.9995)
        {
            static_cast<void>(std::snprintf(text.data(), text.size(), unit.format, bytes / unit.bytes));
            return text.data();
        }
    return std::to_string(std::llround(bytes)) + " bytes";
}

} // namespace Vexlor::Tool
