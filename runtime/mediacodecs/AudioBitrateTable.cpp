#include "BitrateTable.h"

#include "ChannelLayouts.h"
#include "Lookup.h"
#include "VXMediaCodecs.h"

namespace Vexlor
{

namespace
{

using enum AudioBitrateKind;

constexpr std::array kAudio{
    // Every published figure is within 15 % of a grade: for a channel 64 (Media3; the HLS sample of Shaka in
    // mono and 5.1), 80 (HandBrake; Shaka in stereo), 102 and 128 (YouTube in 5.1 and mono; Jellyfin's most),
    // 192 (YouTube in stereo). A frame of a channel, 1024 samples, has 6144
    // bits at most, ISO/IEC 14496-3 4.5.3.1.
    AudioBitrateRow{.codecID = VXCodecID_AAC,
                    .perChannel = {48, 72, 112, 192},
                    .minPerChannel = 8,
                    .maxPerChannel = 256,
                    .maxSampleBits = 6},
    // HandBrake 32; CoreAudio takes 12 to 40, fdk-aac as much as 64 in mono.
    AudioBitrateRow{
        .codecID = VXCodecID_HEAAC, .perChannel = {16, 24, 32, 40}, .minPerChannel = 12, .maxPerChannel = 40},
    // What most files in stereo have, 128 and 192; HandBrake's 160 is between. 320 is the most.
    AudioBitrateRow{.codecID = VXCodecID_MP3, .perChannel = {48, 64, 96, 160}},
    // DVB's usual 192 and 256 in stereo, VCD's 224 between them; 384 is the most.
    AudioBitrateRow{.codecID = VXCodecID_MP2, .perChannel = {64, 96, 128, 192}},
    // Shaka 92, 192, 384 and HandBrake 96, 224, 640 in mono, stereo and 5.1; 640 is the most.
    AudioBitrateRow{.codecID = VXCodecID_AC3, .perChannel = {77, 96, 112, 128}},
    // HandBrake takes no less than 44.8, 224 for five channels; Shaka has 64 in mono, 160 in stereo, and in
    // 5.1 less than that, 192; Best is AC-3's 640. Frames have 128 bits a sample at most: 4096 at 32 kHz.
    AudioBitrateRow{
        .codecID = VXCodecID_EAC3, .perChannel = {54, 72, 96, 128}, .minPerChannel = 44.8, .maxTotal = 4096},
    // A DVD's two, 768 and 1536 in 5.1 (ETSI TS 102 114, annex on DVD), and two steps between.
    AudioBitrateRow{.codecID = VXCodecID_DTS, .perChannel = {153.6, 204.8, 256, 307.2}},
    // HandBrake 96 in stereo; Xiph 48 to 64 for music in mono, 128 to 256 for 5.1. libopus takes 6 to 256 a
    // channel; a stream of one or two can have 510, RFC 6716 2.1.1, and sound of more has more streams.
    AudioBitrateRow{
        .codecID = VXCodecID_Opus, .perChannel = {32, 48, 64, 96}, .minPerChannel = 6, .maxPerChannel = 255},
    // HandBrake 80, which is quality 5 of libvorbis at 44.1 kHz; qualities 2, 7 and 9 beside it.
    AudioBitrateRow{.codecID = VXCodecID_Vorbis, .perChannel = {48, 80, 112, 160}, .countsSubwoofer = true},
    // Windows Media Audio's choices for 44.1 kHz in stereo. libavcodec's encoders take nothing below 24.
    AudioBitrateRow{
        .codecID = VXCodecID_WMA1, .perChannel = {32, 48, 64, 96}, .minTotal = 25, .maxTotal = 192},
    AudioBitrateRow{
        .codecID = VXCodecID_WMA2, .perChannel = {32, 48, 64, 96}, .minTotal = 25, .maxTotal = 192},

    AudioBitrateRow{.codecID = VXCodecID_Speex, .kind = Speech},
    AudioBitrateRow{.codecID = VXCodecID_AMRNB, .kind = Speech},
    AudioBitrateRow{.codecID = VXCodecID_AMRWB, .kind = Speech},

    // An estimate of ours for all lossless codecs, which differ by less than music does: three fifths are
    // left.
    AudioBitrateRow{.codecID = VXCodecID_FLAC, .kind = Stored, .share = 0.6, .maxBits = 24},
    AudioBitrateRow{.codecID = VXCodecID_ALAC, .kind = Stored, .share = 0.6, .maxBits = 24},
    AudioBitrateRow{.codecID = VXCodecID_TTA, .kind = Stored, .share = 0.6, .maxBits = 24},
    AudioBitrateRow{.codecID = VXCodecID_WavPack, .kind = Stored, .share = 0.6},

    AudioBitrateRow{.codecID = VXCodecID_PCM16, .kind = Stored, .bits = 16},
    AudioBitrateRow{.codecID = VXCodecID_PCM24, .kind = Stored, .bits = 24},
    AudioBitrateRow{.codecID = VXCodecID_PCM32, .kind = Stored, .bits = 32},
    AudioBitrateRow{.codecID = VXCodecID_PCMFloat, .kind = Stored, .bits = 32},
    AudioBitrateRow{.codecID = VXCodecID_PCM16BE, .kind = Stored, .bits = 16},
    AudioBitrateRow{.codecID = VXCodecID_PCM24BE, .kind = Stored, .bits = 24},
    AudioBitrateRow{.codecID = VXCodecID_ALaw, .kind = Stored, .bits = 8},
    AudioBitrateRow{.codecID = VXCodecID_MuLaw, .kind = Stored, .bits = 8},
    // Multimedia Data Standards Update, Microsoft, April 1994: the headers of both kinds of blocks.
    AudioBitrateRow{.codecID = VXCodecID_ADPCM, .kind = Blocks, .blockHeader = 4, .headerSamples = 1},
    AudioBitrateRow{.codecID = VXCodecID_ADPCMMS, .kind = Blocks, .blockHeader = 7, .headerSamples = 2},
};

// What libvorbis takes, as HandBrake has it, but for the least from 32 kHz on: channels that are not coupled
// want 32. It refuses less and more.
constexpr std::array kChannelBounds{
    ChannelBounds{VXCodecID_Vorbis, 0, 14, 32},
    ChannelBounds{VXCodecID_Vorbis, 16000, 22, 86},
    ChannelBounds{VXCodecID_Vorbis, 32000, 32, 190},
    ChannelBounds{VXCodecID_Vorbis, 44100, 32, 240},
};

constexpr std::array kSpeech{
    // The Speex Codec Manual 1.2, tables 9.2 and 10.1: qualities 4, 6, 8 and 10. Above 16 kHz 1.8 kb/s more.
    SpeechModes{VXCodecID_Speex, 8000, {8000, 11000, 15000, 24600}},
    SpeechModes{VXCodecID_Speex, 16000, {12800, 20600, 27800, 42200}},
    SpeechModes{VXCodecID_Speex, 32000, {14600, 22400, 29600, 44000}},
    // 3GPP TS 26.071 and 26.171: four of the eight and nine modes, the highest among them.
    SpeechModes{VXCodecID_AMRNB, 8000, {5900, 7950, 10200, 12200}},
    SpeechModes{VXCodecID_AMRWB, 16000, {8850, 12650, 18250, 23850}},
};

// All of their modes, in the same tables and in 3GPP TS 26.071 table 1 and 26.171 table 1.
constexpr std::array kSpeexNarrow{3950, 5950, 8000, 11000, 15000, 18200, 24600};
constexpr std::array kSpeexWide{3950, 5750, 7750, 9800, 12800, 16800, 20600, 23800, 27800, 34200, 42200};
constexpr std::array kSpeexUltraWide{5750,  7550,  9550,  11600, 14600, 18600,
                                     22400, 25600, 29600, 36000, 44000};
constexpr std::array kAMRNarrow{4750, 5150, 5900, 6700, 7400, 7950, 10200, 12200};
constexpr std::array kAMRWide{6600, 8850, 12650, 14250, 15850, 18250, 19850, 23050, 23850};

template <int... kKbps>
constexpr std::array<int, sizeof...(kKbps)> kRates{kKbps * 1000 ...};

// bitrate_index: ISO/IEC 11172-3 2.4.2.3 (MPEG-1), ISO/IEC 13818-3 2.4.2.3 (MPEG-2, half the sample rates).
// At 8 to 12 kHz encoders stop at 64.
constexpr auto kLayer3 = kRates<32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320>;
constexpr auto kLayer3Half = kRates<8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160>;
constexpr auto kLayer3Quarter = kRates<8, 16, 24, 32, 40, 48, 56, 64>;
// Layer II has rates for mono only and rates for stereo only: ISO/IEC 11172-3 2.4.2.3, the table of modes.
constexpr auto kLayer2Mono = kRates<32, 48, 56, 64, 80, 96, 112, 128, 160, 192>;
constexpr auto kLayer2Stereo = kRates<64, 96, 112, 128, 160, 192, 224, 256, 320, 384>;
// frmsizecod: ATSC A/52 table 5.18.
constexpr auto kAC3 =
    kRates<32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384, 448, 512, 576, 640>;
// RATE: ETSI TS 102 114 table 5-7; 1411.2 is that of a compact disc.
constexpr std::array kDTS{32'000,    56'000,    64'000,    96'000,    112'000,   128'000,
                          192'000,   224'000,   256'000,   320'000,   384'000,   448'000,
                          512'000,   576'000,   640'000,   768'000,   960'000,   1'024'000,
                          1'152'000, 1'280'000, 1'344'000, 1'408'000, 1'411'200, 1'472'000,
                          1'536'000, 1'920'000, 2'048'000, 3'072'000, 3'840'000};

std::span<const int> From(std::span<const int> rates, double least)
{
    const auto first = std::ranges::find_if(rates, [least](int rate) { return rate >= least; });
    return {first == rates.end() ? first - 1 : first, rates.end()};
}

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

// Below 224 a five channels encoders refuse.
std::span<const int> LegalAC3(int channels) { return From(kAC3, 224'000.0 * channels / 5); }

// What a frame of 512 samples holds beside the samples themselves, as libavcodec's encoder counts it.
std::span<const int> LegalDTS(int sampleRate, std::uint64_t layout)
{
    const bool hasSubwoofer = (layout & kLowFrequency) != 0;
    const int full = ChannelsOf(layout) - (hasSubwoofer ? 1 : 0);
    const double bits = 132 + (493 + 28 * 32) * full + (hasSubwoofer ? 72 : 0);
    return From(kDTS, bits * sampleRate / 512);
}

std::span<const int> LegalSpeex(int sampleRate)
{
    if (sampleRate < 16000)
        return kSpeexNarrow;
    return sampleRate < 32000 ? std::span<const int>(kSpeexWide) : std::span<const int>(kSpeexUltraWide);
}

} // namespace

const AudioBitrateRow* FindAudioBitrate(int codecID)
{
    return FindRow(std::span<const AudioBitrateRow>(kAudio), &AudioBitrateRow::codecID, codecID);
}

ChannelBounds ChannelBoundsOf(const AudioBitrateRow& row, int sampleRate)
{
    ChannelBounds bounds{row.codecID, 0, row.minPerChannel, row.maxPerChannel};
    for (const auto& each : kChannelBounds)
        if (each.codecID == row.codecID && each.sampleRate <= sampleRate)
            bounds = each;
    return bounds;
}

std::span<const SpeechModes> ListedSpeech() { return kSpeech; }

std::span<const int> LegalBitrates(int codecID, int sampleRate, std::uint64_t layout)
{
    switch (codecID)
    {
    case VXCodecID_MP3:
        return LegalLayer3(sampleRate);
    case VXCodecID_MP2:
        return LegalLayer2(sampleRate, ChannelsOf(layout));
    case VXCodecID_AC3:
        return LegalAC3(ChannelsOf(layout));
    case VXCodecID_DTS:
        return LegalDTS(sampleRate, layout);
    case VXCodecID_Speex:
        return LegalSpeex(sampleRate);
    case VXCodecID_AMRNB:
        return kAMRNarrow;
    case VXCodecID_AMRWB:
        return kAMRWide;
    default:
        return {};
    }
}

} // namespace Vexlor
