#include "FormatTable.h"

#include "ChannelLayouts.h"
#include "CodecCapabilities.h"
#include "Lookup.h"
#include "PixelFormats.h"
#include "VXMediaCodecs.h"

#include <array>
#include <cctype>

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/avstring.h>
#include <libavutil/macros.h>
}

namespace Vexlor
{

namespace
{

template <int... kIDs>
constexpr std::array<int, sizeof...(kIDs)> kCodecs{kIDs...};

template <int... kHz>
constexpr std::array<int, sizeof...(kHz)> kRates{kHz...};

constexpr int kH264 = VXCodecID_H264;
constexpr int kHEVC = VXCodecID_HEVC;
constexpr int kMPEG4 = VXCodecID_MPEG4;
constexpr int kDIVX = VXCodecID_DIVX;
constexpr int kMPEG1 = VXCodecID_MPEG1;
constexpr int kMPEG2 = VXCodecID_MPEG2;
constexpr int kVP8 = VXCodecID_VP8;
constexpr int kVP9 = VXCodecID_VP9;
constexpr int kAV1 = VXCodecID_AV1;
constexpr int kTheora = VXCodecID_Theora;
constexpr int kH263 = VXCodecID_H263;
constexpr int kH261 = VXCodecID_H261;
constexpr int kWMV1 = VXCodecID_WMV1;
constexpr int kWMV2 = VXCodecID_WMV2;
constexpr int kMSMPEG4 = VXCodecID_MSMPEG4;
constexpr int kFLV1 = VXCodecID_FLV1;
constexpr int kMJPEG = VXCodecID_MJPEG;
constexpr int kProRes = VXCodecID_ProRes;
constexpr int kDNxHD = VXCodecID_DNxHD;
constexpr int kDNxHR = VXCodecID_DNxHR;
constexpr int kDV = VXCodecID_DV;
constexpr int kDVNTSC = VXCodecID_DVNTSC;
constexpr int kFFV1 = VXCodecID_FFV1;
constexpr int kGIF = VXCodecID_GIF;
constexpr int kWebP = VXCodecID_WebP;
constexpr int kAAC = VXCodecID_AAC;
constexpr int kMP3 = VXCodecID_MP3;
constexpr int kMP2 = VXCodecID_MP2;
constexpr int kAC3 = VXCodecID_AC3;
constexpr int kOpus = VXCodecID_Opus;
constexpr int kVorbis = VXCodecID_Vorbis;
constexpr int kFLAC = VXCodecID_FLAC;
constexpr int kPCM16 = VXCodecID_PCM16;
constexpr int kHEAAC = VXCodecID_HEAAC;
constexpr int kEAC3 = VXCodecID_EAC3;
constexpr int kDTS = VXCodecID_DTS;
constexpr int kALAC = VXCodecID_ALAC;
constexpr int kWMA1 = VXCodecID_WMA1;
constexpr int kWMA2 = VXCodecID_WMA2;
constexpr int kPCM24 = VXCodecID_PCM24;
constexpr int kPCM32 = VXCodecID_PCM32;
constexpr int kPCMFloat = VXCodecID_PCMFloat;
constexpr int kALaw = VXCodecID_ALaw;
constexpr int kMuLaw = VXCodecID_MuLaw;
constexpr int kADPCM = VXCodecID_ADPCM;
constexpr int kADPCMMS = VXCodecID_ADPCMMS;
constexpr int kSpeex = VXCodecID_Speex;
constexpr int kAMRNB = VXCodecID_AMRNB;
constexpr int kAMRWB = VXCodecID_AMRWB;
constexpr int kWavPack = VXCodecID_WavPack;
constexpr int kTTA = VXCodecID_TTA;
constexpr int kPCM16BE = VXCodecID_PCM16BE;
constexpr int kPCM24BE = VXCodecID_PCM24BE;

// The object type of MP3 in MP4 has no half sample rates below MPEG-2's: libavformat's movenc.c.
constexpr std::array kMP3InMP4{
    StreamLimit{.codecs = kCodecs<kMP3>, .sampleRates = kRates<48000, 44100, 32000, 24000, 22050, 16000>}};

// SoundRate has two bits, so 5.5, 11, 22 or 44 kHz: the FLV chapter of the Flash video format, version 10.1,
// E.4.2.1. Players read 48 kHz out of the stream itself, and libavformat writes it so.
constexpr std::array kMP3InFLV{
    StreamLimit{.codecs = kCodecs<kMP3>, .sampleRates = kRates<44100, 48000, 22050, 11025>}};

// Edit units of SMPTE ST 377-1 as libavformat's mxfenc.c counts them: rates of television, sound at 48 kHz.
constexpr std::array kTelevisionRates{AVRational{60, 1}, AVRational{60000, 1001}, AVRational{50, 1},
                                      AVRational{30, 1}, AVRational{30000, 1001}, AVRational{25, 1},
                                      AVRational{24, 1}, AVRational{24000, 1001}};
// Of MPEG-2 it has labels for Main and 4:2:2 alone, and none for Low level.
constexpr std::array kMPEG2ProfilesInMXF{4, 128};
constexpr std::array kMPEG2LevelsInMXF{8, 6, 4};
constexpr std::array kMXFLimits{
    StreamLimit{.codecs = kCodecs<kMPEG2>, .profiles = kMPEG2ProfilesInMXF, .levels = kMPEG2LevelsInMXF},
    StreamLimit{.codecs = kCodecs<kProRes, kDNxHR, kH264>, .frameRates = kTelevisionRates},
    StreamLimit{.codecs = kCodecs<kPCM16, kPCM24>, .sampleRates = kRates<48000>}};

// Audio auxiliary data, IEC 61834-2: two channels of 16 bits.
constexpr std::array kStereoOnly{kStereo};
constexpr std::array kDVLimits{StreamLimit{
    .codecs = kCodecs<kPCM16>, .sampleRates = kRates<48000, 44100, 32000>, .layouts = kStereoOnly}};

// DVD-Video: the sizes go with the television system; MPEG-2 has 9.8 Mb/s at most, MPEG-1 1.856 and the
// smallest size alone. Sound has 48 kHz, AC-3 448 kb/s at most, MPEG audio 384, DTS 1536.
constexpr std::array kRates25{AVRational{25, 1}};
constexpr std::array kRates2997{AVRational{30000, 1001}};
constexpr std::array kRatesOfDVD{AVRational{25, 1}, AVRational{30000, 1001}};
constexpr std::array kDVD625{PictureSize{720, 576}, PictureSize{704, 576}, PictureSize{352, 576},
                             PictureSize{352, 288}};
constexpr std::array kDVD525{PictureSize{720, 480}, PictureSize{704, 480}, PictureSize{352, 480},
                             PictureSize{352, 240}};
constexpr std::array kSystemsOfDVD{PictureSystem{kRates25, kDVD625}, PictureSystem{kRates2997, kDVD525}};
constexpr std::array kSystemsOfMPEG1{PictureSystem{kRates25, std::span(kDVD625).last(1)},
                                     PictureSystem{kRates2997, std::span(kDVD525).last(1)}};
constexpr std::array kOnly420{VXPixFormat_YUV420P};
constexpr std::array kMainProfile{4};
constexpr std::array kMainLevel{8};
constexpr std::array kVOBLimits{
    StreamLimit{.codecs = kCodecs<kMPEG2>,
                .frameRates = kRatesOfDVD,
                .systems = kSystemsOfDVD,
                .formats = kOnly420,
                .profiles = kMainProfile,
                .levels = kMainLevel,
                .mostBitrate = 9'800'000},
    StreamLimit{.codecs = kCodecs<kMPEG1>,
                .frameRates = kRatesOfDVD,
                .systems = kSystemsOfMPEG1,
                .mostBitrate = 1'856'000},
    StreamLimit{.codecs = kCodecs<kAC3>, .sampleRates = kRates<48000>, .mostBitrate = 448'000},
    StreamLimit{.codecs = kCodecs<kMP2>, .sampleRates = kRates<48000>, .mostBitrate = 384'000},
    StreamLimit{.codecs = kCodecs<kDTS>, .sampleRates = kRates<48000>, .mostBitrate = 1'536'000}};

// Blu-ray Disc: High or Main profile, 40 Mb/s at most, with the pictures at 50 and 60 Hz of AVCHD
// Progressive; HEVC is that of Ultra HD Blu-ray. Where a disc has interlaced pictures only, at 25 and 29.97
// Hz, a whole picture is two fields of one moment.
constexpr std::array kRatesOfBluRay{AVRational{60000, 1001}, AVRational{50, 1}, AVRational{30000, 1001},
                                    AVRational{25, 1},       AVRational{24, 1}, AVRational{24000, 1001}};
constexpr std::array kRatesOfFilm{AVRational{24, 1}, AVRational{24000, 1001}};
constexpr std::array kRatesOfMotion{AVRational{60000, 1001}, AVRational{50, 1}};
constexpr std::array kHighDefinition{PictureSize{1920, 1080}, PictureSize{1280, 720}};
constexpr std::array kBluRay625{PictureSize{1920, 1080}, PictureSize{720, 576}};
constexpr std::array kBluRay525{PictureSize{1920, 1080}, PictureSize{720, 480}};
constexpr std::array kSystemsOfBluRay{
    PictureSystem{kRatesOfFilm, kHighDefinition}, PictureSystem{kRatesOfMotion, kHighDefinition},
    PictureSystem{kRates25, kBluRay625}, PictureSystem{kRates2997, kBluRay525}};
// No level of MPEG-2 holds 1080 lines fifty times a second.
constexpr std::array kSystemsOfMPEG2OnBluRay{
    PictureSystem{kRatesOfFilm, kHighDefinition},
    PictureSystem{kRatesOfMotion, std::span(kHighDefinition).last(1)}, PictureSystem{kRates25, kBluRay625},
    PictureSystem{kRates2997, kBluRay525}};
constexpr std::array kRatesOfUltraHD{AVRational{60, 1}, AVRational{60000, 1001}, AVRational{50, 1},
                                     AVRational{25, 1}, AVRational{24, 1},       AVRational{24000, 1001}};
constexpr std::array kUltraHD{PictureSize{3840, 2160}, PictureSize{1920, 1080}};
constexpr std::array kSystemsOfUltraHD{PictureSystem{kRatesOfUltraHD, kUltraHD}};
constexpr std::array k420OfUltraHD{VXPixFormat_YUV420P, kPixFormatYUV420P10};
constexpr std::array kMainAndHigh{100, 77};
constexpr std::array kMainAndMain10{2, 1};
constexpr std::array kMainProfileAtHighLevel{4, 6, 8};
constexpr std::array kM2TSLimits{StreamLimit{.codecs = kCodecs<kH264>,
                                             .frameRates = kRatesOfBluRay,
                                             .systems = kSystemsOfBluRay,
                                             .formats = kOnly420,
                                             .profiles = kMainAndHigh,
                                             .mostBitrate = 40'000'000},
                                 StreamLimit{.codecs = kCodecs<kMPEG2>,
                                             .frameRates = kRatesOfBluRay,
                                             .systems = kSystemsOfMPEG2OnBluRay,
                                             .formats = kOnly420,
                                             .profiles = kMainProfile,
                                             .levels = kMainProfileAtHighLevel,
                                             .mostBitrate = 40'000'000},
                                 StreamLimit{.codecs = kCodecs<kHEVC>,
                                             .frameRates = kRatesOfUltraHD,
                                             .systems = kSystemsOfUltraHD,
                                             .formats = k420OfUltraHD,
                                             .profiles = kMainAndMain10,
                                             .mostBitrate = 100'000'000},
                                 StreamLimit{.codecs = kCodecs<kAC3, kEAC3, kDTS>,
                                             .sampleRates = kRates<48000>,
                                             .mostBitrate = 1'536'000}};

// Apple's players take HEVC whose parameter sets stand in the sample description alone, 'hvc1' of
// ISO/IEC 14496-15 8.4.1; libavformat writes 'hev1' unless it is told.
constexpr std::array kHEVCOfApple{CodecTag{kHEVC, MKTAG('h', 'v', 'c', '1')}};
// AVI players choose their decoder by these; libavformat's own FMP4 is known to few. DX50 is what DivX 5
// writes.
constexpr std::array kMPEG4InAVI{CodecTag{kMPEG4, MKTAG('X', 'V', 'I', 'D')},
                                 CodecTag{kDIVX, MKTAG('D', 'X', '5', '0')}};

// MPG is written by the muxer of MPEG-2 program streams; the one named "mpeg" makes MPEG-1 system streams.
constexpr std::array kFormats{
    FormatRow{.name = "MP4",
              .muxer = "mp4",
              .demuxer = "mp4",
              .endings = "mp4",
              .videoCodecs = kCodecs<kH264, kHEVC, kAV1, kVP9, kMPEG4>,
              .audioCodecs = kCodecs<kAAC, kHEAAC, kMP3, kAC3, kEAC3, kOpus, kALAC>,
              .limits = kMP3InMP4,
              .tags = kHEVCOfApple},
    FormatRow{.name = "MOV",
              .muxer = "mov",
              .demuxer = "mov",
              .endings = "mov qt",
              .videoCodecs =
                  kCodecs<kH264, kHEVC, kProRes, kDNxHR, kDNxHD, kMJPEG, kDV, kDVNTSC, kMPEG4, kMPEG2, kH263>,
              .audioCodecs = kCodecs<kAAC, kHEAAC, kALAC, kPCM16, kPCM24, kPCM32, kPCMFloat, kMP3, kAC3,
                                     kEAC3, kPCM16BE, kPCM24BE, kALaw, kMuLaw>,
              .tags = kHEVCOfApple},
    FormatRow{
        .name = "MKV",
        .muxer = "matroska",
        .demuxer = "matroska",
        .endings = "mkv",
        .videoCodecs =
            kCodecs<kH264, kHEVC, kAV1, kVP9, kVP8, kMPEG4, kMPEG2, kMPEG1, kFFV1, kProRes, kTheora, kMJPEG>,
        .audioCodecs = kCodecs<kAAC, kHEAAC, kOpus, kMP3, kAC3, kEAC3, kDTS, kFLAC, kVorbis, kMP2, kPCM16,
                               kPCM24, kPCM32, kPCMFloat, kALAC, kWavPack, kTTA>},
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
              .videoCodecs = kCodecs<kMPEG4, kDIVX, kH264, kMSMPEG4, kMJPEG, kMPEG2, kMPEG1, kDV, kDVNTSC,
                                     kFFV1, kWMV2, kWMV1, kH263, kH261>,
              .audioCodecs = kCodecs<kMP3, kAC3, kPCM16, kMP2, kAAC, kDTS, kPCM24, kPCMFloat, kADPCMMS,
                                     kADPCM, kALaw, kMuLaw, kWMA2, kWMA1>,
              .tags = kMPEG4InAVI},
    FormatRow{.name = VXFormatNameMPG,
              .muxer = "vob",
              .demuxer = "mpeg",
              .endings = "mpg mpeg",
              .videoCodecs = kCodecs<kMPEG2, kMPEG1>,
              .audioCodecs = kCodecs<kMP2, kAC3, kMP3>},
    FormatRow{.name = "M4V",
              .muxer = "ipod",
              .demuxer = "mp4",
              .endings = "m4v",
              .videoCodecs = kCodecs<kH264, kMPEG4>,
              .audioCodecs = kCodecs<kAAC, kHEAAC, kAC3, kALAC>},
    FormatRow{.name = "VOB",
              .muxer = "dvd",
              .demuxer = "mpeg",
              .endings = "vob",
              .videoCodecs = kCodecs<kMPEG2, kMPEG1>,
              .audioCodecs = kCodecs<kAC3, kMP2, kDTS>,
              .limits = kVOBLimits},
    FormatRow{.name = "TS",
              .muxer = "mpegts",
              .demuxer = "mpegts",
              .endings = "ts",
              .videoCodecs = kCodecs<kH264, kHEVC, kMPEG2, kMPEG4, kMPEG1>,
              .audioCodecs = kCodecs<kAAC, kHEAAC, kAC3, kEAC3, kMP2, kMP3, kDTS>},
    FormatRow{.name = "M2TS",
              .muxer = "mpegts",
              .demuxer = "mpegts",
              .endings = "m2ts mts",
              .videoCodecs = kCodecs<kH264, kHEVC, kMPEG2>,
              .audioCodecs = kCodecs<kAC3, kEAC3, kDTS>,
              .limits = kM2TSLimits},
    FormatRow{.name = "WMV",
              .muxer = "asf",
              .demuxer = "asf",
              .endings = "wmv",
              .videoCodecs = kCodecs<kWMV2, kWMV1, kMSMPEG4>,
              .audioCodecs = kCodecs<kWMA2, kWMA1>},
    FormatRow{.name = "ASF",
              .muxer = "asf",
              .demuxer = "asf",
              .endings = "asf",
              .videoCodecs = kCodecs<kWMV2, kWMV1, kMSMPEG4, kMPEG4>,
              .audioCodecs = kCodecs<kWMA2, kWMA1, kMP3, kPCM16, kAC3>},
    FormatRow{.name = "FLV",
              .muxer = "flv",
              .demuxer = "flv",
              .endings = "flv",
              .videoCodecs = kCodecs<kH264, kFLV1>,
              .audioCodecs = kCodecs<kAAC, kHEAAC, kMP3>,
              .limits = kMP3InFLV},
    FormatRow{.name = "F4V",
              .muxer = "f4v",
              .demuxer = "mov",
              .endings = "f4v",
              .videoCodecs = kCodecs<kH264>,
              .audioCodecs = kCodecs<kAAC, kHEAAC, kMP3>,
              .limits = kMP3InMP4},
    FormatRow{.name = "3GP",
              .muxer = "3gp",
              .demuxer = "3gp",
              .endings = "3gp",
              .videoCodecs = kCodecs<kH264, kMPEG4, kH263>,
              .audioCodecs = kCodecs<kAAC, kHEAAC, kAMRNB, kAMRWB>},
    FormatRow{.name = "OGV",
              .muxer = "ogv",
              .demuxer = "ogg",
              .endings = "ogv",
              .videoCodecs = kCodecs<kTheora>,
              .audioCodecs = kCodecs<kVorbis, kOpus, kFLAC, kSpeex>},
    FormatRow{.name = "MXF",
              .muxer = "mxf",
              .demuxer = "mxf",
              .endings = "mxf",
              .videoCodecs = kCodecs<kMPEG2, kDNxHD, kDNxHR, kProRes, kH264, kDV, kDVNTSC>,
              .audioCodecs = kCodecs<kPCM16, kPCM24>,
              .limits = kMXFLimits,
              .needsPicture = true},
    FormatRow{.name = "DV",
              .muxer = "dv",
              .demuxer = "dv",
              .endings = "dv dif",
              .videoCodecs = kCodecs<kDV, kDVNTSC>,
              .audioCodecs = kCodecs<kPCM16>,
              .limits = kDVLimits,
              .needsPicture = true},
    FormatRow{.name = "GIF",
              .muxer = "gif",
              .demuxer = "gif",
              .endings = "gif",
              .videoCodecs = kCodecs<kGIF>,
              .audioCodecs = {}},
    FormatRow{.name = "WEBP",
              .muxer = "webp",
              .demuxer = "webp_pipe",
              .endings = "webp",
              .videoCodecs = kCodecs<kWebP>,
              .audioCodecs = {}},
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
              .audioCodecs = kCodecs<kAAC, kHEAAC, kALAC>},
    FormatRow{.name = "AAC",
              .muxer = "adts",
              .demuxer = "aac",
              .endings = "aac",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kAAC, kHEAAC>},
    FormatRow{.name = "WAV",
              .muxer = "wav",
              .demuxer = "wav",
              .endings = "wav",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kPCM16, kPCM24, kPCM32, kPCMFloat, kADPCMMS, kADPCM, kALaw, kMuLaw>},
    FormatRow{.name = "WMA",
              .muxer = "asf",
              .demuxer = "asf",
              .endings = "wma",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kWMA2, kWMA1>},
    FormatRow{.name = "FLAC",
              .muxer = "flac",
              .demuxer = "flac",
              .endings = "flac",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kFLAC>},
    FormatRow{.name = "OGG",
              .muxer = "ogg",
              .demuxer = "ogg",
              .endings = "ogg oga spx",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kVorbis, kOpus, kFLAC, kSpeex>},
    FormatRow{.name = "OPUS",
              .muxer = "opus",
              .demuxer = "ogg",
              .endings = "opus",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kOpus>},
    FormatRow{.name = "AC3",
              .muxer = "ac3",
              .demuxer = "ac3",
              .endings = "ac3",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kAC3>},
    FormatRow{.name = "AIFF",
              .muxer = "aiff",
              .demuxer = "aiff",
              .endings = "aiff aif",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kPCM16BE, kPCM24BE>},
    FormatRow{.name = "CAF",
              .muxer = "caf",
              .demuxer = "caf",
              .endings = "caf",
              .videoCodecs = {},
              .audioCodecs =
                  kCodecs<kALAC, kPCM16, kPCM24, kPCM32, kPCMFloat, kPCM16BE, kPCM24BE, kALaw, kMuLaw>},
    FormatRow{.name = "MKA",
              .muxer = "matroska",
              .demuxer = "matroska",
              .endings = "mka",
              .videoCodecs = {},
              .audioCodecs = kCodecs<kAAC, kHEAAC, kOpus, kMP3, kAC3, kEAC3, kDTS, kFLAC, kVorbis, kMP2,
                                     kPCM16, kPCM24, kPCM32, kPCMFloat, kALAC, kWavPack, kTTA>},
};

const AVOutputFormat* MuxerOf(const FormatRow& format)
{
    return av_guess_format(std::string(format.muxer).c_str(), nullptr, nullptr);
}

// A muxer that cannot tell is asked no further: the row says what players accept of it.
bool Takes(const AVOutputFormat* muxer, const CodecRow& codec)
{
    return avformat_query_codec(muxer, codec.avID, FF_COMPLIANCE_NORMAL) != 0;
}

bool CanWrite(const AVOutputFormat* muxer, int codecID)
{
    const auto* capabilities = CapabilitiesOf(codecID);
    return capabilities && !capabilities->encoders.empty() && Takes(muxer, *capabilities->codec);
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
        if (!WritableCodecs(format, format.videoCodecs).empty() ||
            !WritableCodecs(format, format.audioCodecs).empty())
            names.emplace_back(format.name);
    return names;
}

std::vector<int> WritableCodecs(const FormatRow& format, std::span<const int> codecs)
{
    std::vector<int> taken;
    if (const auto* muxer = MuxerOf(format))
        std::ranges::copy_if(codecs, std::back_inserter(taken),
                             [muxer](int codecID) { return CanWrite(muxer, codecID); });
    return taken;
}

bool HasEndingOf(const FormatRow& format, std::string_view path)
{
    const auto ending = LowerEnding(path);
    return std::ranges::any_of(kFormats, [&](const FormatRow& row)
                               { return row.demuxer == format.demuxer && HasWord(row.endings, ending); });
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
