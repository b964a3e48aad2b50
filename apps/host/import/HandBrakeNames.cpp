#include "HandBrakeNames.h"

#include "apps/host/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

namespace Vexlor::Tool
{

namespace
{

struct NamePair
{
    std::string_view name;
    std::string_view ours;
};

constexpr std::array kContainers{
    NamePair{"av_mp4", "MP4"}, NamePair{"mp4", "MP4"},    NamePair{"m4v", "M4V"},
    NamePair{"av_mkv", "MKV"}, NamePair{"mkv", "MKV"},    NamePair{"av_webm", "WEBM"},
    NamePair{"webm", "WEBM"},  NamePair{"av_mov", "MOV"}, NamePair{"mov", "MOV"}};

constexpr std::string_view k10 = "YUV 4:2:0 10-bit";
constexpr std::string_view k12 = "YUV 4:2:0 12-bit";

constexpr std::array kEncoders{
    HandBrakeEncoder{"x264", "H.264"},
    HandBrakeEncoder{"x264_10bit", "H.264", k10},
    HandBrakeEncoder{"x265", "HEVC"},
    HandBrakeEncoder{"x265_10bit", "HEVC", k10},
    HandBrakeEncoder{"x265_12bit", "HEVC", k12},
    HandBrakeEncoder{"svt_av1", "AV1"},
    HandBrakeEncoder{"svt_av1_10bit", "AV1", k10},
    HandBrakeEncoder{"mpeg4", "MPEG-4"},
    HandBrakeEncoder{"mpeg2", "MPEG-2"},
    HandBrakeEncoder{"VP8", "VP8"},
    HandBrakeEncoder{"VP9", "VP9"},
    HandBrakeEncoder{"VP9_10bit", "VP9", k10},
    HandBrakeEncoder{"theora", "Theora"},
    HandBrakeEncoder{"ffv1", "FFV1"},
    HandBrakeEncoder{"nvenc_h264", "H.264", {}, true},
    HandBrakeEncoder{"nvenc_h265", "HEVC", {}, true},
    HandBrakeEncoder{"nvenc_h265_10bit", "HEVC", k10, true},
    HandBrakeEncoder{"nvenc_av1", "AV1", {}, true},
    HandBrakeEncoder{"nvenc_av1_10bit", "AV1", k10, true},
    HandBrakeEncoder{"qsv_h264", "H.264", {}, true},
    HandBrakeEncoder{"qsv_h265", "HEVC", {}, true},
    HandBrakeEncoder{"qsv_h265_10bit", "HEVC", k10, true},
    HandBrakeEncoder{"qsv_av1", "AV1", {}, true},
    HandBrakeEncoder{"qsv_av1_10bit", "AV1", k10, true},
    HandBrakeEncoder{"vce_h264", "H.264", {}, true},
    HandBrakeEncoder{"vce_h265", "HEVC", {}, true},
    HandBrakeEncoder{"vce_h265_10bit", "HEVC", k10, true},
    HandBrakeEncoder{"vce_av1", "AV1", {}, true},
    HandBrakeEncoder{"vt_h264", "H.264", {}, true},
    HandBrakeEncoder{"vt_h265", "HEVC", {}, true},
    HandBrakeEncoder{"vt_h265_10bit", "HEVC", k10, true},
    HandBrakeEncoder{"mf_h264", "H.264", {}, true},
    HandBrakeEncoder{"mf_h265", "HEVC", {}, true},
    HandBrakeEncoder{"mf_av1", "AV1", {}, true},
};

constexpr std::array kAudioCodecs{
    NamePair{"av_aac", "AAC"},      NamePair{"aac", "AAC"},     NamePair{"ca_aac", "AAC"},
    NamePair{"fdk_aac", "AAC"},     NamePair{"faac", "AAC"},    NamePair{"ca_haac", "HE-AAC"},
    NamePair{"fdk_haac", "HE-AAC"}, NamePair{"mp2", "MP2"},     NamePair{"mp3", "MP3"},
    NamePair{"lame", "MP3"},        NamePair{"ac3", "AC-3"},    NamePair{"ffac3", "AC-3"},
    NamePair{"eac3", "E-AC-3"},     NamePair{"dts", "DTS"},     NamePair{"opus", "Opus"},
    NamePair{"vorbis", "Vorbis"},   NamePair{"flac16", "FLAC"}, NamePair{"flac24", "FLAC"},
    NamePair{"flac", "FLAC"},       NamePair{"alac16", "ALAC"}, NamePair{"alac24", "ALAC"},
    NamePair{"alac", "ALAC"},
};

constexpr std::array kMixes{
    HandBrakeMix{"mono", "Mono"},
    HandBrakeMix{"left_only", "Mono", false},
    HandBrakeMix{"right_only", "Mono", false},
    HandBrakeMix{"stereo", "Stereo"},
    HandBrakeMix{"dpl1", "Stereo", false},
    HandBrakeMix{"dpl2", "Stereo", false},
    HandBrakeMix{"5point1", "5.1"},
    HandBrakeMix{"6point1", "6.1"},
    HandBrakeMix{"7point1", "7.1"},
};

constexpr std::array kProfiles{
    NamePair{"high10", "High 10"},
    NamePair{"high422", "High 4:2:2"},
    NamePair{"high444", "High 4:4:4 Predictive"},
    NamePair{"main10", "Main 10"},
    NamePair{"main12", "Main 12"},
    NamePair{"main422-10", "Main 4:2:2 10"},
    NamePair{"main422-12", "Main 4:2:2 12"},
    NamePair{"main444-8", "Main 4:4:4"},
    NamePair{"main444-10", "Main 4:4:4 10"},
    NamePair{"main444-12", "Main 4:4:4 12"},
};

/// Where the grades end on an encoder's scale, whose first number is the best one. HandBrake's documentation
/// on quality recommends 18 to 22 for SD, 20 to 24 for 1080p and 22 to 28 for 2160p of x264 and x265: the
/// middle of that is High here. The scales of others are stretched alike.
struct QualityScale
{
    std::string_view encoder; ///< what its name begins with
    double best;
    double high;
    double normal;
};

constexpr std::array kScales{
    QualityScale{"x264", 18, 22, 27},      QualityScale{"x265", 18, 22, 27},
    QualityScale{"nvenc_h", 20, 24, 30},   QualityScale{"qsv_h", 20, 24, 30},
    QualityScale{"vce_h", 20, 24, 30},     QualityScale{"svt_av1", 22, 30, 38},
    QualityScale{"nvenc_av1", 22, 30, 38}, QualityScale{"qsv_av1", 22, 30, 38},
    QualityScale{"vce_av1", 22, 30, 38},   QualityScale{"VP", 22, 30, 38},
    QualityScale{"mpeg", 3, 6, 10},
};

struct Reason
{
    std::string_view begin; ///< of a member's name
    std::string_view why;
};

constexpr std::string_view kFilter = "a preset here has no filters and crops nothing";
constexpr std::string_view kEncoder = "a setting of the encoder, of which a preset here has none";
constexpr std::string_view kTracks = "which tracks of the source are taken is no matter of a preset here";
constexpr std::string_view kMuxer = "a setting of the container, of which a preset here has none";

// The first that fits holds.
constexpr std::array kReasons{
    Reason{"Subtitle", "a preset here has no subtitles"},
    Reason{"AudioLanguage", kTracks},
    Reason{"AudioTrackSelection", kTracks},
    Reason{"AudioCopyMask", "nothing is passed through here"},
    Reason{"AudioSecondaryEncoderMode", "an output has one sound track"},
    Reason{"AudioAutomaticNaming", kTracks},
    Reason{"AudioTrackNam", kTracks},
    Reason{"AudioTrackGain", "a preset here does not change how loud the sound is"},
    Reason{"AudioTrackDRC", "a preset here does not change how loud the sound is"},
    Reason{"AudioNormalize", "a preset here does not change how loud the sound is"},
    Reason{"Audio", kEncoder},
    Reason{"PictureItuPAR", "samples are square, or have the chosen shape"},
    Reason{"PictureDAR", "samples are square, or have the chosen shape"},
    Reason{"PictureModulus", "sides are what the codec takes"},
    Reason{"PictureUseMaximumSize", "pictures are made as large as the source and the bounds say"},
    Reason{"PictureAllowUpscaling", "pictures are made as large as the source and the bounds say"},
    Reason{"PictureForce", "bounds are not reached by scaling up"},
    Reason{"Picture", kFilter},
    Reason{"VideoGrayScale", kFilter},
    Reason{"VideoColor", "colours are the source's"},
    Reason{"VideoScaler", kFilter},
    Reason{"VideoHW", "decoding is no matter of a preset here"},
    Reason{"Video", kEncoder},
    Reason{"x264", kEncoder},
    Reason{"x265", kEncoder},
    Reason{"lavc", kEncoder},
    Reason{"Mp4", kMuxer},
    Reason{"Optimize", kMuxer},
    Reason{"AlignAVStart", kMuxer},
    Reason{"InlineParameterSets", kMuxer},
    Reason{"Chapter", "a preset here has no chapters"},
    Reason{"Metadata", "a preset here has no metadata"},
    Reason{"Passthru", "a preset here has no metadata"},
};

constexpr std::array<std::string_view, 33> kRead{
    "PresetName",
    "PresetDescription",
    "FileFormat",
    "VideoEncoder",
    "VideoQualityType",
    "VideoQualitySlider",
    "VideoAvgBitrate",
    "VideoProfile",
    "VideoLevel",
    "VideoFramerate",
    "VideoFramerateMode",
    "PictureWidth",
    "PictureHeight",
    "PicturePAR",
    "PicturePARWidth",
    "PicturePARHeight",
    "AudioList",
    "AudioEncoderFallback",
    "AudioEncoder",
    "AudioBitrate",
    "AudioMixdown",
    "AudioSamplerate",
    "AudioTrackQuality",
    "AudioTrackQualityEnable",
    "AudioTrack",
    "Type",
    "Default",
    "Folder",
    "FolderOpen",
    "UsesPictureFilters",
    "UsesPictureSettings",
    "PresetDisabled",
    "PictureKeepRatio",
};

template <typename Rows>
std::string OursOf(const Rows& rows, std::string_view name)
{
    const auto found = std::ranges::find(rows, name, [](const auto& row) { return row.name; });
    return found == rows.end() ? std::string() : std::string(found->ours);
}

template <typename Rows>
auto FindNamed(const Rows& rows, std::string_view name)
{
    const auto found = std::ranges::find(rows, name, [](const auto& row) { return row.name; });
    return found == rows.end() ? nullptr : &*found;
}

} // namespace

std::string HandBrakeContainer(std::string_view name) { return OursOf(kContainers, name); }

const HandBrakeEncoder* HandBrakeVideoEncoder(std::string_view name) { return FindNamed(kEncoders, name); }

std::string HandBrakeAudioCodec(std::string_view name) { return OursOf(kAudioCodecs, name); }

const HandBrakeMix* HandBrakeMixdown(std::string_view name) { return FindNamed(kMixes, name); }

std::string HandBrakeProfile(std::string_view name)
{
    if (name == "auto")
        return {};
    const auto ours = OursOf(kProfiles, name);
    return ours.empty() ? std::string(name) : ours;
}

std::string HandBrakeLevel(std::string_view name)
{
    if (name == "auto")
        return {};
    return std::string(name.ends_with(".0") ? name.substr(0, name.size() - 2) : name);
}

std::string HandBrakeGrade(std::string_view encoder, double quality)
{
    const auto scale = std::ranges::find_if(kScales, [encoder](const QualityScale& row)
                                            { return encoder.starts_with(row.encoder); });
    if (scale == kScales.end())
        return {};
    if (quality <= scale->high)
        return quality <= scale->best ? "Best" : "High";
    return quality <= scale->normal ? "Normal" : "Low";
}

std::string HandBrakeSampleRate(std::string_view text, std::optional<double> number)
{
    constexpr double kLargestInKilohertz = 1000;
    if (number && *number <= 0)
        return {};
    if (number)
        return DecimalText(*number) + (*number < kLargestInKilohertz ? "kHz" : "Hz");
    if (text.empty() || text == "auto")
        return {};
    const bool isInHertz = text.size() > 3 && text.find('.') == std::string_view::npos;
    return std::string(text) + (isInHertz ? "Hz" : "kHz");
}

bool IsLossless(std::string_view codec) { return codec == "FLAC" || codec == "ALAC"; }

bool IsHandBrakeMemberRead(std::string_view name) { return std::ranges::find(kRead, name) != kRead.end(); }

std::string HandBrakeReason(std::string_view name)
{
    const auto reason =
        std::ranges::find_if(kReasons, [name](const Reason& row) { return name.starts_with(row.begin); });
    return reason == kReasons.end() ? "nothing is known of it" : std::string(reason->why);
}

std::string WholeText(double number)
{
    constexpr double kMost = std::numeric_limits<int>::max();
    return std::to_string(static_cast<int>(std::clamp(std::isnan(number) ? 0.0 : number, -kMost, kMost)));
}

std::string DecimalText(double number)
{
    std::array<char, 32> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "%.7g", number));
    return text.data();
}

} // namespace Vexlor::Tool
