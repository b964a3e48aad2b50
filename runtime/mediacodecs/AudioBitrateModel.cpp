#include "BitrateModel.h"

#include "BitrateMath.h"
#include "BitrateSnapping.h"
#include "ChannelLayouts.h"
#include "IVXCodecParameter.h"
#include "SampleFormats.h"

namespace Vexlor
{

namespace
{

using Grade = IVXCodecs::QualityLevel;

constexpr int kBlockBytes = 1024; // what libavcodec makes unless told otherwise
constexpr int kSamplesPerByte = 2;

int ChannelCountOf(const SoundStream& stream) { return ChannelsOf(stream.layout); }

// A subwoofer's channel carries next to nothing, which not every encoder makes use of.
int PaidChannelsOf(const SoundStream& stream, const AudioBitrateRow& row)
{
    const auto channels = ChannelCountOf(stream);
    const bool free = channels > 1 && (stream.layout & kLowFrequency) && !row.countsSubwoofer;
    return free ? channels - 1 : channels;
}

double LossyBitrate(const AudioBitrateRow& row, const SoundStream& stream, std::size_t grade)
{
    const double bandwidth = std::min(1.0, stream.sampleRate / 44100.0); // hearing ends where 44.1 kHz does
    const double kbps = row.perChannel.at(grade) * bandwidth * PaidChannelsOf(stream, row);
    return WithinBounds(row, stream, 1000.0 * kbps);
}

double StoredBitrate(const AudioBitrateRow& row, const CodecCapabilities& codec, const SoundStream& stream)
{
    // A stream told in a format that the codec does not hold is converted to the one offered first.
    const bool held = std::ranges::find(codec.formats, AVSampleFormatOf(stream.format), AVSampleFormatOf) !=
                      codec.formats.end();
    const int told = SampleBitsOf(held ? stream.format : codec.formats.front());
    const int bits = row.bits > 0 ? row.bits : std::min(told, row.maxBits);
    return row.share * stream.sampleRate * ChannelCountOf(stream) * bits;
}

double BlockBitrate(const AudioBitrateRow& row, const SoundStream& stream)
{
    const int channels = std::min(ChannelCountOf(stream), 2);
    const int bytes = kBlockBytes - row.blockHeader * channels;
    const int samples = bytes * kSamplesPerByte / channels + row.headerSamples;
    return 8.0 * kBlockBytes * stream.sampleRate / samples;
}

// The modes of the highest sample rate that is not above the stream's; the lowest where all are.
double SpeechBitrate(const AudioBitrateRow& row, const SoundStream& stream, std::size_t grade)
{
    const SpeechModes* best = nullptr;
    for (const auto& modes : ListedSpeech())
        if (modes.codecID == row.codecID && (!best || modes.sampleRate <= stream.sampleRate))
            best = &modes;
    return best ? best->bitrates.at(grade) : 1.0;
}

double Bitrate(const AudioBitrateRow& row, const CodecCapabilities& codec, const SoundStream& stream,
               std::size_t grade)
{
    switch (row.kind)
    {
    case AudioBitrateKind::Stored:
        return StoredBitrate(row, codec, stream);
    case AudioBitrateKind::Blocks:
        return BlockBitrate(row, stream);
    case AudioBitrateKind::Speech:
        return SpeechBitrate(row, stream, grade);
    default:
        return LossyBitrate(row, stream, grade);
    }
}

/// The smallest and the largest sound that a codec takes.
std::pair<SoundStream, SoundStream> Extremes(const CodecCapabilities& codec)
{
    const auto [leastRate, mostRate] = std::ranges::minmax(codec.sampleRates);
    const auto [leastLayout, mostLayout] = std::ranges::minmax(codec.layouts, {}, ChannelsOf);
    const auto [leastFormat, mostFormat] = std::ranges::minmax(codec.formats, {}, SampleBitsOf);
    return {{leastRate, leastLayout, leastFormat}, {mostRate, mostLayout, mostFormat}};
}

} // namespace

SoundStream SoundOf(const IVXCodecParameter& stream, int format)
{
    return {stream.GetSampleRate(), stream.GetChannelLayout(), format};
}

int AudioBitrate(const CodecCapabilities& codec, const SoundStream& stream, Grade level)
{
    const auto* row = FindAudioBitrate(codec.codec->id);
    return row ? ToBitrate(Bitrate(*row, codec, Usual(stream), IndexOf(level))) : 1;
}

Grade AudioGrade(const CodecCapabilities& codec, const SoundStream& stream, int bitrate)
{
    return NearestGrade(bitrate, [&](Grade level) { return AudioBitrate(codec, stream, level); });
}

std::pair<int, int> AudioBitrateRange(const CodecCapabilities& codec)
{
    const SoundStream usual{codec.sampleRates.front(), codec.layouts.front(), codec.formats.front()};
    const auto low = AudioBitrate(codec, usual, Grade::QualityLevelLow);
    const auto high = AudioBitrate(codec, usual, Grade::QualityLevelBest);
    if (low < high)
        return {low, high};
    const auto [least, most] = Extremes(codec);
    return {AudioBitrate(codec, least, Grade::QualityLevelLow),
            AudioBitrate(codec, most, Grade::QualityLevelBest)};
}

} // namespace Vexlor
