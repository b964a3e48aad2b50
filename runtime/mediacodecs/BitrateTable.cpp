#include "BitrateTable.h"

#include "Lookup.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

// Low. No ladder is published for it: half of Normal, which at 1080p lies between the two lowest figures of
// the Qt encoder's model (1.5 and 3.5 Mb/s).
constexpr std::array kLow{
    LadderPoint{416, 234, 72},     LadderPoint{640, 360, 182},    LadderPoint{768, 432, 365},
    LadderPoint{960, 540, 1000},   LadderPoint{1280, 720, 1500},  LadderPoint{1920, 1080, 3000},
    LadderPoint{2560, 1440, 6750}, LadderPoint{3840, 2160, 9667},
};

// Normal. Apple, HLS authoring rules for Apple devices, revision of 2025-06-26, H.264 at up to 30
// fps, the lower figure where a size has two. From 1440p on its HEVC figures (8100 and 11600) by HEVC's
// factor.
constexpr std::array kNormal{
    LadderPoint{416, 234, 145},     LadderPoint{640, 360, 365},     LadderPoint{768, 432, 730},
    LadderPoint{960, 540, 2000},    LadderPoint{1280, 720, 3000},   LadderPoint{1920, 1080, 6000},
    LadderPoint{2560, 1440, 13500}, LadderPoint{3840, 2160, 19333},
};

// High. YouTube, recommended upload encoding settings (support.google.com/youtube/answer/1722171), SDR at 24
// to 30 fps; the middle of the range for 2160p (35 to 45) and 4320p (80 to 160).
constexpr std::array kHigh{
    LadderPoint{640, 360, 1000},     LadderPoint{854, 480, 2500},    LadderPoint{1280, 720, 5000},
    LadderPoint{1920, 1080, 8000},   LadderPoint{2560, 1440, 16000}, LadderPoint{3840, 2160, 40000},
    LadderPoint{7680, 4320, 120000},
};

// Best. The Kush gauge, 0.07 bits a pixel times 4 for high motion, at 30 fps.
constexpr std::array kBest{
    LadderPoint{1280, 720, 7741},
    LadderPoint{1920, 1080, 17418},
};

// Factors: HEVC, VP9 and AV1 from Jellyfin's encoder settings; MPEG-2 and VP8 from the ratios in Qt's encoder
// model; MPEG-4 stands between H.264 and MPEG-2, MPEG-1 behind MPEG-2. Highest bitrates: level 6.2 of H.264
// (table A-1), HEVC (table A.8, Main tier), VP9 and AV1 (A.3, Main tier); DivX HD 1080; the largest bit_rate
// field of MPEG-1, (2^18 - 2) x 400; High level of MPEG-2 (table 8-13). VP8 and MPEG-4 have none that
// encoders keep.
constexpr std::array kVideo{
    VideoBitrateRow{VXCodecID_H264, 1.0, 800'000'000},  VideoBitrateRow{VXCodecID_HEVC, 0.6, 240'000'000},
    VideoBitrateRow{VXCodecID_MPEG4, 1.5, 800'000'000}, VideoBitrateRow{VXCodecID_DIVX, 1.5, 20'000'000},
    VideoBitrateRow{VXCodecID_MPEG1, 2.2, 104'856'800}, VideoBitrateRow{VXCodecID_MPEG2, 2.0, 80'000'000},
    VideoBitrateRow{VXCodecID_VP8, 1.0, 800'000'000},   VideoBitrateRow{VXCodecID_VP9, 0.6, 480'000'000},
    VideoBitrateRow{VXCodecID_AV1, 0.5, 160'000'000},
};

// Stereo in common use: AAC 128 to 256 (HLS samples 160, HandBrake 160), MP3 128 to 320 (LAME), MP2 192 to
// 384 (DVB), AC-3 224 (HandBrake), Opus 96 (HandBrake) in FB stereo 64 to 128, Vorbis 160 (HandBrake). Limits
// of a channel: what libopus and libvorbis open with; AAC 6144 bits a frame. FLAC leaves about 60 % of music.
constexpr std::array kAudio{
    AudioBitrateRow{.codecID = VXCodecID_AAC,
                    .kind = AudioBitrateKind::Lossy,
                    .perChannel = {48, 64, 96, 128},
                    .minPerChannel = 8,
                    .maxPerChannel = 256},
    AudioBitrateRow{
        .codecID = VXCodecID_MP3, .kind = AudioBitrateKind::Lossy, .perChannel = {48, 64, 96, 160}},
    AudioBitrateRow{
        .codecID = VXCodecID_MP2, .kind = AudioBitrateKind::Lossy, .perChannel = {64, 96, 128, 192}},
    AudioBitrateRow{
        .codecID = VXCodecID_AC3, .kind = AudioBitrateKind::Lossy, .perChannel = {64, 96, 112, 128}},
    AudioBitrateRow{.codecID = VXCodecID_Opus,
                    .kind = AudioBitrateKind::Lossy,
                    .perChannel = {32, 48, 64, 96},
                    .minPerChannel = 6,
                    .maxPerChannel = 256,
                    .maxTotal = 510},
    AudioBitrateRow{.codecID = VXCodecID_Vorbis,
                    .kind = AudioBitrateKind::Lossy,
                    .perChannel = {48, 64, 96, 160},
                    .countsSubwoofer = true,
                    .minPerChannel = 14,
                    .maxPerChannel = 240},
    AudioBitrateRow{.codecID = VXCodecID_FLAC, .kind = AudioBitrateKind::Lossless, .share = 0.6},
    AudioBitrateRow{.codecID = VXCodecID_PCM16, .kind = AudioBitrateKind::Lossless},
};

// bitrate_index: ISO/IEC 11172-3 2.4.2.3 (MPEG-1), ISO/IEC 13818-3 2.4.2.3 (MPEG-2, half the sample rates).
// At 8 to 12 kHz encoders stop at 64.
constexpr std::array kLayer3{32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
constexpr std::array kLayer3Half{8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};
constexpr std::array kLayer3Quarter{8, 16, 24, 32, 40, 48, 56, 64};
// Layer II has rates for mono only and rates for stereo only: ISO/IEC 11172-3 2.4.2.3, the table of modes.
constexpr std::array kLayer2Mono{32, 48, 56, 64, 80, 96, 112, 128, 160, 192};
constexpr std::array kLayer2Stereo{64, 96, 112, 128, 160, 192, 224, 256, 320, 384};
// frmsizecod: ATSC A/52 table 5.18. Below 224 a five channels encoders refuse.
constexpr std::array kAC3{32,  40,  48,  56,  64,  80,  96,  112, 128, 160,
                          192, 224, 256, 320, 384, 448, 512, 576, 640};

std::span<const int> LegalLayer3(int sampleRate)
{
    if (sampleRate >= 32000)
        return kLayer3;
    return sampleRate >= 16000 ? std::span<const int>(kLayer3Half) : std::span<const int>(kLayer3Quarter);
}

std::span<const int> LegalLayer2(int sampleRate, int channels)
{
    if (sampleRate < 32000)
        return kLayer3Half;
    return channels == 1 ? std::span<const int>(kLayer2Mono) : std::span<const int>(kLayer2Stereo);
}

std::span<const int> LegalAC3(int channels)
{
    const auto least =
        std::ranges::find_if(kAC3, [channels](int kbps) { return kbps * 5 >= 224 * channels; });
    return {least == kAC3.end() ? kAC3.end() - 1 : least, kAC3.end()};
}

} // namespace

std::span<const LadderPoint> ReferenceLadder(std::size_t grade)
{
    constexpr std::array<std::span<const LadderPoint>, kGrades> ladders{kLow, kNormal, kHigh, kBest};
    return ladders.at(grade);
}

const VideoBitrateRow* FindVideoBitrate(int codecID)
{
    return FindRow(std::span<const VideoBitrateRow>(kVideo), &VideoBitrateRow::codecID, codecID);
}

const AudioBitrateRow* FindAudioBitrate(int codecID)
{
    return FindRow(std::span<const AudioBitrateRow>(kAudio), &AudioBitrateRow::codecID, codecID);
}

std::span<const int> LegalKbps(int codecID, int sampleRate, int channels)
{
    switch (codecID)
    {
    case VXCodecID_MP3:
        return LegalLayer3(sampleRate);
    case VXCodecID_MP2:
        return LegalLayer2(sampleRate, channels);
    case VXCodecID_AC3:
        return LegalAC3(channels);
    default:
        return {};
    }
}

} // namespace Vexlor
