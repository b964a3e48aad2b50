#include "CodecTable.h"

#include "ChannelLayouts.h"
#include "Lookup.h"
#include "PixelFormats.h"
#include "SampleFormats.h"
#include "VXMediaCodecs.h"

#include <array>

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

// Pictures of level 6.2: ITU-T H.264 table A-1 (139,264 macroblocks), H.265 table A.8, VP9 levels, AV1 annex
// A.3.
constexpr std::int64_t kLevel62Area = 35'651'584;

// frame_rate_code: ISO/IEC 11172-2 2.4.3.2, ISO/IEC 13818-2 table 6-4. Offered highest first.
constexpr std::array kCodedRates{AVRational{60, 1}, AVRational{60000, 1001}, AVRational{50, 1},
                                 AVRational{30, 1}, AVRational{30000, 1001}, AVRational{25, 1},
                                 AVRational{24, 1}, AVRational{24000, 1001}};

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

constexpr auto kStereoMono = kLayouts<kStereo, kMono>;
// channelConfiguration: ISO/IEC 14496-3 table 1.19.
constexpr auto kAACLayouts =
    kLayouts<kStereo, kMono, kLayout30, kLayout40, kLayout50, kLayout51, kLayout71Wide>;
// acmod and lfeon: ATSC A/52 table 5.8.
constexpr auto kAC3Layouts = kLayouts<kStereo, kMono, kLayout21, kLayout30, kLayout30Back, kLayout31,
                                      kLayout40, kQuadSide, kLayout41, kLayout50Side, kLayout51Side>;
// Channel mapping family 1, RFC 7845 5.1.1.2; Vorbis I, 4.3.9, has the same.
constexpr auto kXiphLayouts =
    kLayouts<kStereo, kMono, kLayout30, kQuad, kLayout50, kLayout51, kLayout61, kLayout71>;
// Channel assignment: RFC 9639 9.1.3.
constexpr auto kFLACLayouts =
    kLayouts<kStereo, kMono, kLayout30, kQuad, kLayout50, kLayout51, kLayout61, kLayout71>;
constexpr auto kWaveLayouts = kLayouts<kStereo, kMono, kLayout21, kLayout30, kLayout40, kQuad, kLayout50,
                                       kLayout51, kLayout61, kLayout71>;

// Encoders of graphics cards are left out: being compiled in does not say that a card is there to open them.
constexpr std::array kTable{
    CodecRow{.id = VXCodecID_H264,
             .name = "H.264",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_H264,
             .encoders = "libx264 libopenh264 h264_videotoolbox h264_mf",
             .formats = kOffered<k420, k422, k444, k420x10, k422x10, k444x10, kPixFormatGray8>,
             .video = {.min = {16, 16}, .max = {16384, 16384}, .maxArea = kLevel62Area}},
    CodecRow{.id = VXCodecID_HEVC,
             .name = "HEVC",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_HEVC,
             .encoders = "libx265 libkvazaar hevc_videotoolbox hevc_mf",
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
                       .max = {1920, 1152},
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
             .formats = kOffered<k420, k422, k444, k420x10, k422x10, k444x10, k420x12, k422x12, k444x12>,
             .video = {.min = {16, 16}, .max = {16384, 16384}, .maxArea = kLevel62Area}},
    CodecRow{.id = VXCodecID_AV1, // the smallest picture is the one of SVT-AV1
             .name = "AV1",
             .type = VXCodecTypeVideo,
             .avID = AV_CODEC_ID_AV1,
             .encoders = "libsvtav1 libaom-av1 librav1e",
             .formats = kOffered<k420, k420x10, k422, k422x10, k444, k444x10, k420x12, k422x12, k444x12>,
             .video = {.min = {64, 64}, .max = {16384, 8704}, .maxArea = kLevel62Area, .maxRate = {240, 1}}},

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
             .encoders = "mp2 libtwolame",
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
             .formats = kOffered<kSampleFormatS16, kSampleFormatS32>,
             .audio = {kLosslessRates, kFLACLayouts}},
    CodecRow{.id = VXCodecID_PCM16,
             .name = "PCM 16-bit",
             .type = VXCodecTypeAudio,
             .avID = AV_CODEC_ID_PCM_S16LE,
             .encoders = "pcm_s16le",
             .formats = kOffered<kSampleFormatS16>,
             .audio = {kLosslessRates, kWaveLayouts}},
};

// The tags that DivX encoders of versions 4 and later write into AVI files.
constexpr std::array kDivXTags{MKTAG('D', 'I', 'V', 'X'), MKTAG('d', 'i', 'v', 'x'),
                               MKTAG('D', 'X', '5', '0'), MKTAG('D', 'I', 'V', '5')};

} // namespace

std::span<const CodecRow> CodecTable() { return kTable; }

const CodecRow* FindCodec(int codecID) { return FindRow(CodecTable(), &CodecRow::id, codecID); }

int CodecIDOf(AVCodecID avID, std::uint32_t tag)
{
    if (avID == AV_CODEC_ID_MPEG4 && std::ranges::find(kDivXTags, tag) != kDivXTags.end())
        return VXCodecID_DIVX;
    const auto* row = FindRow(CodecTable(), &CodecRow::avID, avID);
    return row ? row->id : VXCodecID_None;
}

} // namespace Vexlor
