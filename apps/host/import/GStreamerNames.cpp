#include "GStreamerNames.h"

#include <algorithm>
#include <array>

namespace Vexlor::Tool
{

namespace
{

/// Caps and what they are. An empty field asks for nothing; a value that is not in the caps fits none.
struct Row
{
    std::string_view media;
    std::string_view field;
    std::string_view value;
    std::string_view ours;
};

constexpr std::array kContainers{
    Row{"video/quicktime", "variant", "iso", "MP4"},
    Row{"video/quicktime", "variant", "iso-fragmented", "MP4"},
    Row{"video/quicktime", "variant", "3gpp", "3GP"},
    Row{"video/quicktime", {}, {}, "MOV"},
    Row{"audio/x-m4a", {}, {}, "M4A"},
    Row{"application/x-3gp", {}, {}, "3GP"},
    Row{"video/x-matroska", {}, {}, "MKV"},
    Row{"audio/x-matroska", {}, {}, "MKA"},
    Row{"video/webm", {}, {}, "WEBM"},
    Row{"audio/webm", {}, {}, "WEBM"},
    Row{"video/x-msvideo", {}, {}, "AVI"},
    Row{"video/x-flv", {}, {}, "FLV"},
    Row{"video/mpegts", {}, {}, "TS"},
    Row{"video/mpeg", "systemstream", "true", "MPG"},
    Row{"application/mxf", {}, {}, "MXF"},
    Row{"application/x-id3", {}, {}, "MP3"},
    Row{"application/x-apetag", {}, {}, "MP3"},
    Row{"audio/x-wav", {}, {}, "WAV"},
    Row{"audio/x-aiff", {}, {}, "AIFF"},
    Row{"audio/x-caf", {}, {}, "CAF"},
    Row{"image/gif", {}, {}, "GIF"},
};

constexpr std::array kCodecs{
    Row{"video/x-h264", {}, {}, "H.264"},
    Row{"video/x-h265", {}, {}, "HEVC"},
    Row{"video/x-av1", {}, {}, "AV1"},
    Row{"video/x-vp8", {}, {}, "VP8"},
    Row{"video/x-vp9", {}, {}, "VP9"},
    Row{"video/mpeg", "mpegversion", "4", "MPEG-4"},
    Row{"video/mpeg", "mpegversion", "2", "MPEG-2"},
    Row{"video/mpeg", "mpegversion", "1", "MPEG-1"},
    Row{"video/x-divx", {}, {}, "DivX"},
    Row{"video/x-xvid", {}, {}, "MPEG-4"},
    Row{"video/x-theora", {}, {}, "Theora"},
    Row{"video/x-h263", {}, {}, "H.263"},
    Row{"video/x-h261", {}, {}, "H.261"},
    Row{"video/x-wmv", "wmvversion", "1", "WMV 7"},
    Row{"video/x-wmv", "wmvversion", "2", "WMV 8"},
    Row{"video/x-flash-video", {}, {}, "Sorenson Spark"},
    Row{"video/x-prores", {}, {}, "ProRes"},
    Row{"video/x-ffv", {}, {}, "FFV1"},
    Row{"image/jpeg", {}, {}, "MJPEG"},
    Row{"image/gif", {}, {}, "GIF"},
    Row{"image/webp", {}, {}, "WebP"},
    Row{"audio/mpeg", "mpegversion", "4", "AAC"},
    Row{"audio/mpeg", "mpegversion", "2", "AAC"},
    Row{"audio/mpeg", "layer", "3", "MP3"},
    Row{"audio/mpeg", "layer", "2", "MP2"},
    Row{"audio/x-vorbis", {}, {}, "Vorbis"},
    Row{"audio/x-opus", {}, {}, "Opus"},
    Row{"audio/x-flac", {}, {}, "FLAC"},
    Row{"audio/x-alac", {}, {}, "ALAC"},
    Row{"audio/x-ac3", {}, {}, "AC-3"},
    Row{"audio/x-eac3", {}, {}, "E-AC-3"},
    Row{"audio/x-dts", {}, {}, "DTS"},
    Row{"audio/x-speex", {}, {}, "Speex"},
    Row{"audio/x-wavpack", {}, {}, "WavPack"},
    Row{"audio/x-tta", {}, {}, "TTA"},
    Row{"audio/x-wma", "wmaversion", "1", "WMA 1"},
    Row{"audio/x-wma", "wmaversion", "2", "WMA 2"},
    Row{"audio/x-alaw", {}, {}, "A-law"},
    Row{"audio/x-mulaw", {}, {}, "mu-law"},
    Row{"audio/x-raw", "format", "S16LE", "PCM 16-bit"},
    Row{"audio/x-raw", "format", "S24LE", "PCM 24-bit"},
    Row{"audio/x-raw", "format", "S32LE", "PCM 32-bit"},
    Row{"audio/x-raw", "format", "F32LE", "PCM 32-bit float"},
    Row{"audio/x-raw", "format", "S16BE", "PCM 16-bit big-endian"},
    Row{"audio/x-raw", "format", "S24BE", "PCM 24-bit big-endian"},
};

struct Pair
{
    std::string_view name;
    std::string_view ours;
};

constexpr std::array kContainersOfCodecs{Pair{"MP3", "MP3"},    Pair{"FLAC", "FLAC"}, Pair{"Opus", "OPUS"},
                                         Pair{"Vorbis", "OGG"}, Pair{"Speex", "OGG"}, Pair{"AAC", "AAC"},
                                         Pair{"AC-3", "AC3"},   Pair{"GIF", "GIF"},   Pair{"WebP", "WEBP"}};

constexpr std::array kLayouts{Pair{"1", "Mono"}, Pair{"2", "Stereo"}, Pair{"6", "5.1"}, Pair{"8", "7.1"}};

constexpr std::array kProfiles{Pair{"high-4:4:4", "High 4:4:4 Predictive"}, Pair{"high-4:2:2", "High 4:2:2"},
                               Pair{"main-422-10", "Main 4:2:2 10"}, Pair{"main-444", "Main 4:4:4"}};

template <typename Rows>
std::string OursOf(const Rows& rows, std::string_view name)
{
    const auto found = std::ranges::find(rows, name, &Pair::name);
    return found == rows.end() ? std::string() : std::string(found->ours);
}

template <typename Rows>
std::string Fitting(const Rows& rows, const StreamCaps& caps)
{
    const auto found = std::ranges::find_if(
        rows, [&caps](const Row& row)
        { return row.media == caps.media && (row.field.empty() || caps.TextOf(row.field) == row.value); });
    return found == rows.end() ? std::string() : std::string(found->ours);
}

} // namespace

std::string GStreamerContainer(const StreamCaps& caps, bool hasVideo)
{
    if (caps.media == "application/ogg" || caps.media == "video/ogg" || caps.media == "audio/ogg")
        return hasVideo ? "OGV" : "OGG";
    if (caps.media == "video/x-ms-asf")
        return hasVideo ? "WMV" : "WMA";
    return Fitting(kContainers, caps);
}

std::string GStreamerCodec(const StreamCaps& caps) { return Fitting(kCodecs, caps); }

std::string GStreamerContainerOf(std::string_view codec) { return OursOf(kContainersOfCodecs, codec); }

std::string GStreamerProfile(const std::string& name)
{
    auto ours = OursOf(kProfiles, name);
    if (!ours.empty())
        return ours;
    ours = name;
    std::ranges::replace(ours, '-', ' ');
    return ours;
}

std::string GStreamerLayout(std::string_view channels) { return OursOf(kLayouts, channels); }

bool IsOfTheCodec(std::string_view field)
{
    constexpr std::array<std::string_view, 9> kFields{"mpegversion", "layer",      "systemstream",
                                                      "variant",     "wmvversion", "wmaversion",
                                                      "format",      "layout",     "parsed"};
    return std::ranges::find(kFields, field) != kFields.end();
}

} // namespace Vexlor::Tool
