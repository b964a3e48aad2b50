#include "FormatTable.h"

#include "CodecTable.h"
#include "Lookup.h"
#include "VXMediaCodecs.h"

#include <array>
#include <cctype>

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avstring.h>
}

namespace Vexlor
{

namespace
{

template <int... kIDs>
constexpr std::array<int, sizeof...(kIDs)> kCodecs{kIDs...};

constexpr int kH264 = VXCodecID_H264;
constexpr int kHEVC = VXCodecID_HEVC;
constexpr int kMPEG4 = VXCodecID_MPEG4;
constexpr int kDIVX = VXCodecID_DIVX;
constexpr int kMPEG1 = VXCodecID_MPEG1;
constexpr int kMPEG2 = VXCodecID_MPEG2;
constexpr int kVP8 = VXCodecID_VP8;
constexpr int kVP9 = VXCodecID_VP9;
constexpr int kAV1 = VXCodecID_AV1;
constexpr int kAAC = VXCodecID_AAC;
constexpr int kMP3 = VXCodecID_MP3;
constexpr int kMP2 = VXCodecID_MP2;
constexpr int kAC3 = VXCodecID_AC3;
constexpr int kOpus = VXCodecID_Opus;
constexpr int kVorbis = VXCodecID_Vorbis;
constexpr int kFLAC = VXCodecID_FLAC;
constexpr int kPCM16 = VXCodecID_PCM16;

// MPG is written by the muxer of MPEG-2 program streams; the one named "mpeg" makes MPEG-1 system streams.
constexpr std::array kFormats{
    FormatRow{.name = "MP4",
              .muxer = "mp4",
              .demuxer = "mp4",
              .endings = "mp4 m4v",
              .videoCodecs = kCodecs<kH264, kHEVC, kAV1, kVP9, kMPEG4, kMPEG2, kMPEG1>,
              .audioCodecs = kCodecs<kAAC, kMP3, kAC3, kOpus, kFLAC, kMP2>},
    FormatRow{.name = "MOV",
              .muxer = "mov",
              .demuxer = "mov",
              .endings = "mov qt",
              .videoCodecs = kCodecs<kH264, kHEVC, kMPEG4, kMPEG2>,
              .audioCodecs = kCodecs<kAAC, kPCM16, kMP3, kAC3>},
    FormatRow{.name = "MKV",
              .muxer = "matroska",
              .demuxer = "matroska",
              .endings = "mkv mka",
              .videoCodecs = kCodecs<kH264, kHEVC, kAV1, kVP9, kVP8, kMPEG4, kDIVX, kMPEG2, kMPEG1>,
              .audioCodecs = kCodecs<kAAC, kOpus, kMP3, kAC3, kFLAC, kVorbis, kMP2, kPCM16>},
    FormatRow{.name = "WEBM",
              .muxer = "webm",
              .demuxer = "webm",
              .endings = "webm",
              .videoCodecs = kCodecs<kVP9, kAV1, kVP8>,
              .audioCodecs = kCodecs<kOpus, kVorbis>},
    FormatRow{.name = VXFormatNameAVI,
              .muxer = "avi",
              .demuxer = "avi",
              .endings = "avi divx",
              .videoCodecs = kCodecs<kMPEG4, kDIVX, kH264, kMPEG2, kMPEG1>,
              .audioCodecs = kCodecs<kMP3, kAC3, kPCM16, kMP2, kAAC>},
    FormatRow{.name = VXFormatNameMPG,
              .muxer = "vob",
              .demuxer = "mpeg",
              .endings = "mpg mpeg vob",
              .videoCodecs = kCodecs<kMPEG2, kMPEG1>,
              .audioCodecs = kCodecs<kMP2, kAC3, kMP3>},
    FormatRow{.name = "MP3",
              .muxer = "mp3",
              .demuxer = "mp3",
              .endings = "mp3",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kMP3>},
    FormatRow{.name = "M4A",
              .muxer = "ipod",
              .demuxer = "m4a",
              .endings = "m4a m4b",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kAAC>},
    FormatRow{.name = "WAV",
              .muxer = "wav",
              .demuxer = "wav",
              .endings = "wav",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kPCM16>},
    FormatRow{.name = "FLAC",
              .muxer = "flac",
              .demuxer = "flac",
              .endings = "flac",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kFLAC>},
    FormatRow{.name = "OGG",
              .muxer = "ogg",
              .demuxer = "ogg",
              .endings = "ogg oga opus",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kVorbis, kOpus, kFLAC>},
};

const AVOutputFormat* MuxerOf(const FormatRow& format)
{
    return av_guess_format(std::string(format.muxer).c_str(), nullptr, nullptr);
}

// A muxer that cannot tell is asked no further: the row says what players accept of it.
bool Takes(const AVOutputFormat* muxer, int codecID)
{
    const auto* codec = FindCodec(codecID);
    return codec && avformat_query_codec(muxer, codec->avID, FF_COMPLIANCE_NORMAL) != 0;
}

std::string LowerEnding(std::string_view path)
{
    const auto dot = path.find_last_of("./\\");
    if (dot == std::string_view::npos || path[dot] != '.')
        return {};
    std::string ending(path.substr(dot + 1));
    for (auto& letter : ending)
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return ending;
}

bool ReadBy(const FormatRow& format, const AVInputFormat& demuxer)
{
    return av_match_name(std::string(format.demuxer).c_str(), demuxer.name) != 0;
}

} // namespace

std::span<const FormatRow> FormatTable() { return kFormats; }

const FormatRow* FindFormat(std::string_view name) { return FindRow(FormatTable(), &FormatRow::name, name); }

std::vector<std::string> WritableFormats()
{
    std::vector<std::string> names;
    for (const auto& format : kFormats)
        if (MuxerOf(format))
            names.emplace_back(format.name);
    return names;
}

std::vector<int> WritableCodecs(const FormatRow& format, std::span<const int> codecs)
{
    std::vector<int> taken;
    if (const auto* muxer = MuxerOf(format))
        std::ranges::copy_if(codecs, std::back_inserter(taken),
                             [muxer](int codecID) { return Takes(muxer, codecID); });
    return taken;
}

std::string FormatNameOf(const AVInputFormat& demuxer, std::string_view path)
{
    const auto ending = LowerEnding(path);
    const FormatRow* first = nullptr;
    for (const auto& format : kFormats)
    {
        if (!ReadBy(format, demuxer))
            continue;
        if (HasWord(format.endings, ending))
            return std::string(format.name);
        first = first ? first : &format;
    }
    return first ? std::string(first->name) : std::string();
}

std::vector<std::string> VXMediaCodecSupportOutputAllMediaFormats() { return WritableFormats(); }

} // namespace Vexlor
