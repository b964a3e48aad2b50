#include "CodecTable.h"

#include "ChannelLayouts.h"
#include "FFmpegCompat.h"
#include "Lookup.h"
#include "PixelFormats.h"
#include "SampleFormats.h"
#include "VXMediaCodecs.h"

#include <array>
#include <unordered_map>

extern "C"
{
#include <libavutil/macros.h>
}

namespace Vexlor
{

namespace
{

template <int... kFormats>
constexpr std::array<int, sizeof...(kFormats)> kOffered{kFormats...};

template <int... kHz>
constexpr std::array<int, sizeof...(kHz)> kRates{kHz...};

template <std::uint64_t... kMasks>
constexpr std::array<std::uint64_t, sizeof...(kMasks)> kLayouts{kMasks...};

constexpr int k420 = VXPixFormat_YUV420P;
constexpr int k422 = kPixFormatYUV422P;
constexpr int k444 = kPixFormatYUV444P;
constexpr int k420x10 = kPixFormatYUV420P10;
constexpr int k422x10 = kPixFormatYUV422P10;
constexpr int k444x10 = kPixFormatYUV444P10;
constexpr int k420x12 = kPixFormatYUV420P12;
constexpr int k422x12 = kPixFormatYUV422P12;
constexpr int k444x12 = kPixFormatYUV444P12;

constexpr int k420x16 = kPixFormatYUV420P16;
constexpr int k422x16 = kPixFormatYUV422P16;
constexpr int k444x16 = kPixFormatYUV444P16;

template <PictureSize... kSizes>
constexpr std::array<PictureSize, sizeof...(kSizes)> kOnlySizes{kSizes...};

// Pictures of level 6.2: ITU-T H.264 table A-1 (139,264 macroblocks), H.265 table A.8, VP9 levels, AV1 annex
// A.3.
constexpr std::int64_t kLevel62Area = 35'651'584;

// Where the standard's own limit is beyond what libavutil addresses: av_image_check_size refuses 2^28 pixels,
// with a margin of 128 added to each side.
constexpr PictureSize kAnySize{16384, 16384};
constexpr std::int64_t kAnyArea = 16128LL * 16128;

// frame_rate_code: ISO/IEC 11172-2 2.4.3.2, ISO/IEC 13818-2 table 6-4. Offered highest first.
constexpr std::array kCodedRates{AVRational{60, 1}, AVRational{60000, 1001}, AVRational{50, 1},
                                 AVRational{30, 1}, AVRational{30000, 1001}, AVRational{25, 1},
                                 AVRational{24, 1}, AVRational{24000, 1001}};

// The picture clock of ITU-T H.261 3.1 and H.263 3.1.
constexpr AVRational kPictureClock{30000, 1001};

// Delays are whole hundredths of a second (GIF89a, section 23); viewers show a delay of one as one of ten.
// Those of seven and nine are left out: libavformat reads them back as 57/4 and 133/12.
constexpr std::array kDelays{AVRational{50, 1}, AVRational{100, 3}, AVRational{25, 1}, AVRational{20, 1},
                             AVRational{50, 3}, AVRational{25, 2},  AVRational{10, 1}, AVRational{5, 1},
                             AVRational{2, 1},  AVRational{1, 1}};

// The frame rates for which DNxHD's bitrates are published: SMPTE ST 2019-1, annex.
constexpr std::array kStudioRates{AVRational{60, 1},       AVRational{60000, 1001}, AVRational{50, 1},
                                  AVRational{30000, 1001}, AVRational{25, 1},       AVRational{24, 1},
                                  AVRational{24000, 1001}};

constexpr std::array kRate25{AVRational{25, 1}};
constexpr std::array kRate2997{AVRational{30000, 1001}};

// Sample rates stand as a user is offered them: from 48 kHz down, then the ones that only studios want.
constexpr auto kMPEG1Rates = kRates<48000, 44100, 32000>;
constexpr auto kMPEG2Rates = kRates<48000, 44100, 32000, 24000, 22050, 16000>;
constexpr auto kMPEG25Rates = kRates<48000, 44100, 32000, 24000, 22050, 16000, 12000, 11025, 8000>;
constexpr auto kOpusRates = kRates<48000, 24000, 16000, 12000, 8000>;
constexpr auto kAACRates =
    kRates<48000, 44100, 32000, 24000, 22050, 16000, 12000, 11025, 8000, 64000, 88200, 96000>;
constexpr auto kVorbisRates = kRates<48000, 44100, 32000, 24000, 22050, 16000, 11025, 8000>;
constexpr auto kLosslessRates =
    kRates<48000, 44100, 32000, 24000, 22050, 16000, 11025, 8000, 88200, 96000, 176400, 192000>;

constexpr auto kDTSRates = kRates<48000, 44100, 32000, 24000, 22050, 16000>;
constexpr auto kSBRRates = kRates<48000, 44100, 32000, 24000, 22050, 16000>;
constexpr auto kWMARates = kRates<48000, 44100, 32000, 22050, 16000, 11025, 8000>;
// G.711 codes 8 kHz; the others are those that WAV files of it have.
constexpr auto kTelephoneRates = kRates<8000, 16000, 11025, 22050, 32000, 44100, 48000>;
constexpr auto kSpeexRates = kRates<32000, 16000, 8000>;
constexpr auto kNarrowband = kRates<8000>;
constexpr auto kWideband = kRates<16000>;

constexpr auto kMonoOnly = kLayouts<kMono>;
constexpr auto kMonoStereo = kLayouts<kMono, kStereo>; // as speech is offered
constexpr auto kStereoMono = kLayouts<kStereo, kMono>;
// channelConfiguration 1 to 6: ISO/IEC 14496-3 table 1.19. The seventh, 7.1 (wide), is read back as one of
// three layouts, as the decoder likes.
constexpr auto kAACLayouts = kLayouts<kStereo, kMono, kLayout30, kLayout40, kLayout50, kLayout51>;
// acmod and lfeon: ATSC A/52 table 5.8.
constexpr auto kAC3Layouts = kLayouts<kStereo, kMono, kLayout21, kLayout30, kLayout30Back, kLayout31,
                                      kLayout40, kQuadSide, kLayout41, kLayout50Side, kLayout51Side>;
// AMODE: ETSI TS 102 114 table 5-4, those of them that libavcodec's encoder has.
constexpr auto kDTSLayouts = kLayouts<kStereo, kMono, kQuadSide, kLayout50Side, kLayout51Side>;
// Channel mapping family 1, RFC 7845 5.1.1.2; Vorbis I, 4.3.9, has the same.
constexpr auto kXiphLayouts =
    kLayouts<kStereo, kMono, kLayout30, kQuad, kLayout50, kLayout51, kLayout61, kLayout71>;
// Channel assignment: RFC 9639 9.1.3.
constexpr auto kFLACLayouts =
    kLayouts<kStereo, kMono, kLayout30, kQuad, kLayout50, kLayout51, kLayout61, kLayout71>;
// ALACChannelLayoutTags of ALAC's reference: one to eight channels in MPEG's order.
constexpr auto kALACLayouts =
    kLayouts<kStereo, kMono, kLayout30, kLayout40, kLayout50, kLayout51, kLayout61Back, kLayout71Wide>;
// A TTA file tells the number of channels alone; what the decoder takes three, four and six for.
constexpr auto kTTALayouts = kLayouts<kStereo, kMono, kLayout21, kQuad, kLayout51>;
constexpr auto kWaveLayouts = kLayouts<kStereo, kMono, kLayout21, kLayout30, kLayout40, kQuad, kLayout50,
                                       kLayout51, kLayout61, kLayout71>;

// Encoders of graphics cards are left out: being compiled in does not say that a card is there to open them.
// Those of macOS and Windows for H.264 do without one.
constexpr std::array kTable{
    CodecRow{.id = VXCodecID_H264,
             .name = "H.264",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_H264,
             .encoders = "libx264 libopenh264 h264_videotoolbox h264_mf",
             .formats = kOffered<k420, k420x10, k422, k422x10, k444, k444x10, kPixFormatGray8>,
             .video = {.min = {16, 16}, .max = {16384, 16384}, .maxArea = kLevel62Area}},
    CodecRow{.id = VXCodecID_HEVC,
             .name = "HEVC",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_HEVC,
             .encoders = "libx265 libkvazaar",
             .formats = kOffered<k420, k420x10, k422, k422x10, k444, k444x10, k420x12, k422x12, k444x12>,
             .video = {.min = {16, 16}, .max = {16384, 16384}, .maxArea = kLevel62Area}},
    CodecRow{.id = VXCodecID_MPEG4, // sizes have 13 bits, time increments 16: ISO/IEC 14496-2 6.2.3
             .name = "MPEG-4",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_MPEG4,
             .encoders = "mpeg4 libxvid",
             .formats = kOffered<k420>,
             .video = {.min = {16, 16}, .max = {8190, 8190}, .maxRate = {120, 1}, .maxRateTerm = 65535}},
    CodecRow{.id = VXCodecID_DIVX, // the HD 1080 profile of DivX players
             .name = "DivX",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_MPEG4,
             .encoders = "mpeg4 libxvid",
             .formats = kOffered<k420>,
             .video = {.min = {16, 16}, .max = {1920, 1080}, .maxRate = {30, 1}, .maxRateTerm = 65535}},
    CodecRow{.id = VXCodecID_MPEG1, // sizes have 12 bits: ISO/IEC 11172-2 2.4.2.3
             .name = "MPEG-1",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_MPEG1VIDEO,
             .encoders = "mpeg1video",
             .formats = kOffered<k420>,
             .video = {.min = {16, 16},
                       .max = {4094, 4094},
                       .minRate = {24000, 1001},
                       .maxRate = {60, 1},
                       .rates = kCodedRates}},
    CodecRow{.id = VXCodecID_MPEG2, // High level: ISO/IEC 13818-2 table 8-11
             .name = "MPEG-2",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_MPEG2VIDEO,
             .encoders = "mpeg2video",
             .formats = kOffered<k420, k422>,
             .video = {.min = {16, 16},
                       .max = {1920, 1088},
                       .minRate = {24000, 1001},
                       .maxRate = {60, 1},
                       .rates = kCodedRates}},
    CodecRow{.id = VXCodecID_VP8, // sizes have 14 bits: RFC 6386 9.1
             .name = "VP8",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_VP8,
             .encoders = "libvpx",
             .formats = kOffered<k420>,
             .video = {.min = {16, 16}, .max = {16382, 16382}}},
    CodecRow{.id = VXCodecID_VP9,
             .name = "VP9",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_VP9,
             .encoders = "libvpx-vp9",
             .formats = kOffered<k420, k420x10, k422, k422x10, k444, k444x10, k420x12, k422x12, k444x12>,
             .video = {.min = {16, 16}, .max = {16384, 16384}, .maxArea = kLevel62Area}},
    CodecRow{.id = VXCodecID_AV1, // the smallest picture is the one of SVT-AV1
             .name = "AV1",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_AV1,
             .encoders = "libsvtav1 libaom-av1 librav1e",
             .formats = kOffered<k420, k420x10, k422, k422x10, k444, k444x10, k420x12, k422x12, k444x12>,
             .video = {.min = {64, 64}, .max = {16384, 8704}, .maxArea = kLevel62Area, .maxRate = {240, 1}}},

    CodecRow{.id = VXCodecID_Theora, // sizes have 20 bits: Theora I, 6.2
             .name = "Theora",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_THEORA,
             .encoders = "libtheora",
             .formats = kOffered<k420, k422, k444>,
             .video = {.min = {16, 16}, .max = kAnySize, .maxArea = kAnyArea}},
    CodecRow{
        .id = VXCodecID_H263, // source formats: ITU-T H.263 table 1
        .name = "H.263",
        .type = VXCodecTypeVideo,
        .avID = AV_CODEC_ID_H263,
        .encoders = "h263",
        .formats = kOffered<k420>,
        .video = {.min = {128, 96},
                  .max = {1408, 1152},
                  .sizes = kOnlySizes<PictureSize{1408, 1152}, PictureSize{704, 576}, PictureSize{352, 288},
                                      PictureSize{176, 144}, PictureSize{128, 96}>,
                  .maxRate = kPictureClock}},
    CodecRow{.id = VXCodecID_H261, // ITU-T H.261 3.1
             .name = "H.261",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_H261,
             .encoders = "h261",
             .formats = kOffered<k420>,
             .video = {.min = {176, 144},
                       .max = {352, 288},
                       .sizes = kOnlySizes<PictureSize{352, 288}, PictureSize{176, 144}>,
                       .maxRate = kPictureClock}},
    CodecRow{.id = VXCodecID_WMV1, // no limit is published; MPEG-4's is taken for its kin
             .name = "WMV 7",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_WMV1,
             .encoders = "wmv1",
             .formats = kOffered<k420>,
             .video = {.min = {16, 16}, .max = {8190, 8190}, .maxRate = {120, 1}}},
    CodecRow{.id = VXCodecID_WMV2, // as above
             .name = "WMV 8",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_WMV2,
             .encoders = "wmv2",
             .formats = kOffered<k420>,
             .video = {.min = {16, 16}, .max = {8190, 8190}, .maxRate = {120, 1}}},
    CodecRow{.id = VXCodecID_MSMPEG4, // as above
             .name = "MS MPEG-4 V3",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_MSMPEG4V3,
             .encoders = "msmpeg4",
             .formats = kOffered<k420>,
             .video = {.min = {16, 16}, .max = {8190, 8190}, .maxRate = {120, 1}}},
    CodecRow{.id = VXCodecID_FLV1, // sizes have 16 bits: SWF file format, chapter 14, H.263 video packet
             .name = "Sorenson Spark",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_FLV1,
             .encoders = "flv",
             .formats = kOffered<k420>,
             .video = {.min = {16, 16}, .max = kAnySize, .maxArea = kAnyArea, .maxRate = {120, 1}}},
    CodecRow{.id =
                 VXCodecID_MJPEG, // sizes have 16 bits: ITU-T T.81 B.2.2; JFIF's samples have the full range
             .name = "MJPEG",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_MJPEG,
             .encoders = "mjpeg",
             .formats = kOffered<kPixFormatYUVJ420P, kPixFormatYUVJ422P, kPixFormatYUVJ444P>,
             .video = {.min = {16, 16}, .max = kAnySize, .maxArea = kAnyArea}},
    CodecRow{.id = VXCodecID_ProRes, // sizes have 16 bits: SMPTE RDD 36, 5.1.1
             .name = "ProRes",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_PRORES,
             .encoders = "prores_ks",
             .formats = kOffered<k422x10, k444x10, kPixFormatYUVA444P10>,
             .video = {.min = {16, 16}, .max = kAnySize, .maxArea = kAnyArea},
             .needsProfile = true},
    // The two rasters of SMPTE ST 2019-1 that are coded both with 8 and with 10 bits; 1440 x 1080 and
    // 960 x 720 have 8 only.
    CodecRow{.id = VXCodecID_DNxHD,
             .name = "DNxHD",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_DNXHD,
             .encoders = "dnxhd",
             .formats = kOffered<k422, k422x10>,
             .video = {.min = {1280, 720},
                       .max = {1920, 1080},
                       .sizes = kOnlySizes<PictureSize{1920, 1080}, PictureSize{1280, 720}>,
                       .minRate = {24000, 1001},
                       .maxRate = {60, 1},
                       .rates = kStudioRates}},
    CodecRow{.id = VXCodecID_DNxHR, // the smallest picture is libavcodec's; sizes have 16 bits
             .name = "DNxHR",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_DNXHD,
             .encoders = "dnxhd",
             .formats = kOffered<k422, k422x10, k444x10>,
             .video = {.min = {256, 120}, .max = kAnySize, .maxArea = kAnyArea},
             .needsProfile = true},
    // Size and rate go together, IEC 61834 and SMPTE 314M; a user chooses one, so each system has its row.
    CodecRow{.id = VXCodecID_DV,
             .name = "DV",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_DVVIDEO,
             .encoders = "dvvideo",
             .formats = kOffered<k420, kPixFormatYUV411P, k422>,
             .video = {.min = {720, 576},
                       .max = {720, 576},
                       .sizes = kOnlySizes<PictureSize{720, 576}>,
                       .minRate = {25, 1},
                       .maxRate = {25, 1},
                       .rates = kRate25}},
    CodecRow{.id = VXCodecID_FFV1, // sizes are the container's: RFC 9043, 4.2
             .name = "FFV1",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_FFV1,
             .encoders = "ffv1",
             .formats = kOffered<k420, k422, k444, k420x10, k422x10, k444x10, k420x12, k422x12, k444x12,
                                 k420x16, k422x16, k444x16, kPixFormatGray8, kPixFormatGray16, kPixFormatBGR0,
                                 kPixFormatBGRA, kPixFormatGBRP10, kPixFormatGBRP12, kPixFormatGBRP16>,
             .video = {.min = {16, 16}, .max = kAnySize, .maxArea = kAnyArea}},
    CodecRow{.id = VXCodecID_GIF, // sizes have 16 bits: GIF89a, section 18
             .name = "GIF",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_GIF,
             .encoders = "gif",
             .formats = kOffered<kPixFormatPAL8, kPixFormatRGB8, kPixFormatBGR8, kPixFormatGray8>,
             .video = {.min = {1, 1},
                       .max = kAnySize,
                       .maxArea = kAnyArea,
                       .minRate = {1, 1},
                       .maxRate = {50, 1},
                       .rates = kDelays}},
    CodecRow{.id = VXCodecID_WebP, // sizes of a frame have 14 bits: RFC 9649, 2.5
             .name = "WebP",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_WEBP,
             .encoders = "libwebp_anim",
             .formats = kOffered<k420, kPixFormatYUVA420P, kPixFormatBGRA>,
             .video = {.min = {1, 1}, .max = {16383, 16383}, .maxArea = kAnyArea, .maxRate = {60, 1}}},
    CodecRow{.id = VXCodecID_DVNTSC, // see DV; 4:2:2 is that of SMPTE 314M at 50 Mb/s
             .name = "DV NTSC",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_DVVIDEO,
             .encoders = "dvvideo",
             .formats = kOffered<kPixFormatYUV411P, k422>,
             .video = {.min = {720, 480},
                       .max = {720, 480},
                       .sizes = kOnlySizes<PictureSize{720, 480}>,
                       .minRate = {30000, 1001},
                       .maxRate = {30000, 1001},
                       .rates = kRate2997}},

    CodecRow{.id = VXCodecID_AAC,
             .name = "AAC",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_AAC,
             .encoders = "aac_at libfdk_aac aac",
             .formats = kOffered<kSampleFormatFLTP, kSampleFormatS16>,
             .audio = {kAACRates, kAACLayouts}},
    CodecRow{.id = VXCodecID_MP3,
             .name = "MP3",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_MP3,
             .encoders = "libmp3lame libshine",
             .formats = kOffered<kSampleFormatFLTP, kSampleFormatS16P, kSampleFormatS32P>,
             .audio = {kMPEG25Rates, kStereoMono}},
    CodecRow{.id = VXCodecID_MP2,
             .name = "MP2",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_MP2,
             .encoders = "libtwolame mp2",
             .formats = kOffered<kSampleFormatS16, kSampleFormatFLTP>,
             .audio = {kMPEG2Rates, kStereoMono}},
    CodecRow{.id = VXCodecID_AC3,
             .name = "AC-3",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_AC3,
             .encoders = "ac3 ac3_fixed",
             .formats = kOffered<kSampleFormatFLTP, kSampleFormatS32P>,
             .audio = {kMPEG1Rates, kAC3Layouts}},
    CodecRow{.id = VXCodecID_Opus,
             .name = "Opus",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_OPUS,
             .encoders = "libopus",
             .formats = kOffered<VXSampleFormat_FLT, kSampleFormatS16>,
             .audio = {kOpusRates, kXiphLayouts}},
    CodecRow{.id = VXCodecID_Vorbis,
             .name = "Vorbis",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_VORBIS,
             .encoders = "libvorbis",
             .formats = kOffered<kSampleFormatFLTP>,
             .audio = {kVorbisRates, kXiphLayouts}},
    CodecRow{.id = VXCodecID_FLAC,
             .name = "FLAC",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_FLAC,
             .encoders = "flac",
             .formats = kOffered<kSampleFormatS16, kSampleFormatS24>,
             .audio = {kLosslessRates, kFLACLayouts}},
    CodecRow{.id = VXCodecID_PCM16,
             .name = "PCM 16-bit",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_PCM_S16LE,
             .encoders = "pcm_s16le",
             .formats = kOffered<kSampleFormatS16>,
             .audio = {kLosslessRates, kWaveLayouts}},
    CodecRow{.id = VXCodecID_HEAAC,
             .name = "HE-AAC",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_AAC,
             .encoders = "aac_at libfdk_aac",
             .formats = kOffered<kSampleFormatS16, kSampleFormatFLTP>,
             .audio = {kSBRRates, kAACLayouts},
             .needsProfile = true},
    CodecRow{.id = VXCodecID_EAC3,
             .name = "E-AC-3",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_EAC3,
             .encoders = "eac3",
             .formats = kOffered<kSampleFormatFLTP>,
             .audio = {kMPEG1Rates, kAC3Layouts}},
    CodecRow{.id = VXCodecID_DTS,
             .name = "DTS",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_DTS,
             .encoders = "dca",
             .formats = kOffered<kSampleFormatS32>,
             .audio = {kDTSRates, kDTSLayouts}},
    CodecRow{.id = VXCodecID_ALAC,
             .name = "ALAC",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_ALAC,
             .encoders = "alac",
             .formats = kOffered<kSampleFormatS16P, kSampleFormatS24P>,
             .audio = {kLosslessRates, kALACLayouts}},
    CodecRow{.id = VXCodecID_WMA1,
             .name = "WMA 1",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_WMAV1,
             .encoders = "wmav1",
             .formats = kOffered<kSampleFormatFLTP>,
             .audio = {kWMARates, kStereoMono}},
    CodecRow{.id = VXCodecID_WMA2,
             .name = "WMA 2",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_WMAV2,
             .encoders = "wmav2",
             .formats = kOffered<kSampleFormatFLTP>,
             .audio = {kWMARates, kStereoMono}},
    CodecRow{.id = VXCodecID_PCM24,
             .name = "PCM 24-bit",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_PCM_S24LE,
             .encoders = "pcm_s24le",
             .formats = kOffered<kSampleFormatS24>,
             .audio = {kLosslessRates, kWaveLayouts}},
    CodecRow{.id = VXCodecID_PCM32,
             .name = "PCM 32-bit",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_PCM_S32LE,
             .encoders = "pcm_s32le",
             .formats = kOffered<kSampleFormatS32>,
             .audio = {kLosslessRates, kWaveLayouts}},
    CodecRow{.id = VXCodecID_PCMFloat,
             .name = "PCM 32-bit float",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_PCM_F32LE,
             .encoders = "pcm_f32le",
             .formats = kOffered<VXSampleFormat_FLT>,
             .audio = {kLosslessRates, kWaveLayouts}},
    CodecRow{.id = VXCodecID_ALaw,
             .name = "A-law",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_PCM_ALAW,
             .encoders = "pcm_alaw",
             .formats = kOffered<kSampleFormatS16>,
             .audio = {kTelephoneRates, kMonoStereo}},
    CodecRow{.id = VXCodecID_MuLaw,
             .name = "mu-law",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_PCM_MULAW,
             .encoders = "pcm_mulaw",
             .formats = kOffered<kSampleFormatS16>,
             .audio = {kTelephoneRates, kMonoStereo}},
    CodecRow{.id = VXCodecID_ADPCM,
             .name = "IMA ADPCM",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_ADPCM_IMA_WAV,
             .encoders = "adpcm_ima_wav",
             .formats = kOffered<kSampleFormatS16P>,
             .audio = {kVorbisRates, kStereoMono}},
    CodecRow{.id = VXCodecID_ADPCMMS,
             .name = "Microsoft ADPCM",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_ADPCM_MS,
             .encoders = "adpcm_ms",
             .formats = kOffered<kSampleFormatS16>,
             .audio = {kVorbisRates, kStereoMono}},
    CodecRow{.id = VXCodecID_Speex,
             .name = "Speex",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_SPEEX,
             .encoders = "libspeex",
             .formats = kOffered<kSampleFormatS16>,
             .audio = {kSpeexRates, kMonoStereo}},
    CodecRow{.id = VXCodecID_AMRNB,
             .name = "AMR-NB",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_AMR_NB,
             .encoders = "libopencore_amrnb",
             .formats = kOffered<kSampleFormatS16>,
             .audio = {kNarrowband, kMonoOnly}},
    CodecRow{.id = VXCodecID_AMRWB,
             .name = "AMR-WB",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_AMR_WB,
             .encoders = "libvo_amrwbenc",
             .formats = kOffered<kSampleFormatS16>,
             .audio = {kWideband, kMonoOnly}},
    CodecRow{.id = VXCodecID_WavPack,
             .name = "WavPack",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_WAVPACK,
             .encoders = "wavpack",
             .formats = kOffered<kSampleFormatS16P, kSampleFormatS32P, kSampleFormatFLTP>,
             .audio = {kLosslessRates, kWaveLayouts}},
    CodecRow{.id = VXCodecID_TTA,
             .name = "TTA",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_TTA,
             .encoders = "tta",
             .formats = kOffered<kSampleFormatS16, kSampleFormatS24>,
             .audio = {kLosslessRates, kTTALayouts}},
    CodecRow{.id = VXCodecID_PCM16BE,
             .name = "PCM 16-bit big-endian",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_PCM_S16BE,
             .encoders = "pcm_s16be",
             .formats = kOffered<kSampleFormatS16>,
             .audio = {kLosslessRates, kWaveLayouts}},
    CodecRow{.id = VXCodecID_PCM24BE,
             .name = "PCM 24-bit big-endian",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_PCM_S24BE,
             .encoders = "pcm_s24be",
             .formats = kOffered<kSampleFormatS24>,
             .audio = {kLosslessRates, kWaveLayouts}},
};

// Codecs that share one of libavcodec's with the row before them.

// The tags that DivX encoders of versions 4 and later write into AVI files.
constexpr std::array kDivXTags{MKTAG('D', 'I', 'V', 'X'), MKTAG('d', 'i', 'v', 'x'),
                               MKTAG('D', 'X', '5', '0'), MKTAG('D', 'I', 'V', '5')};

bool IsDivX(const AVCodecParameters& stream)
{
    return stream.codec_id == AV_CODEC_ID_MPEG4 &&
           std::ranges::find(kDivXTags, stream.codec_tag) != kDivXTags.end();
}

bool IsDVOf60Fields(const AVCodecParameters& stream)
{
    return stream.codec_id == AV_CODEC_ID_DVVIDEO && stream.height == 480;
}

bool IsDNxHR(const AVCodecParameters& stream)
{
    return stream.codec_id == AV_CODEC_ID_DNXHD && stream.profile >= VX_AV_PROFILE(DNXHR_LB);
}

bool IsHEAAC(const AVCodecParameters& stream)
{
    return stream.codec_id == AV_CODEC_ID_AAC &&
           (stream.profile == VX_AV_PROFILE(AAC_HE) || stream.profile == VX_AV_PROFILE(AAC_HE_V2));
}

std::unordered_map<int, const CodecRow*> RowsByID()
{
    std::unordered_map<int, const CodecRow*> rows;
    for (const auto& row : CodecTable())
        rows.emplace(row.id, &row);
    return rows;
}

} // namespace

std::span<const CodecRow> CodecTable() { return kTable; }

const CodecRow* FindCodec(int codecID)
{
    // Never destroyed: whatever lives as long as the program may still ask at its end.
    static const auto& s_rows = *new auto(RowsByID());
    const auto found = s_rows.find(codecID);
    return found == s_rows.end() ? nullptr : found->second;
}

int CodecIDOf(const AVCodecParameters& stream)
{
    if (IsDivX(stream))
        return VXCodecID_DIVX;
    if (IsDVOf60Fields(stream))
        return VXCodecID_DVNTSC;
    if (IsDNxHR(stream))
        return VXCodecID_DNxHR;
    if (IsHEAAC(stream))
        return VXCodecID_HEAAC;
    const auto* row = FindRow(CodecTable(), &CodecRow::avID, stream.codec_id);
    return row ? row->id : VXCodecID_None;
}

} // namespace Vexlor
