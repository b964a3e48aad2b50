#include "BitrateModel.h"

#include "BitrateTable.h"
#include "ChannelLayouts.h"
#include "SampleFormats.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Vexlor
{

namespace
{

using Grade = IVXCodecs::QualityLevel;

constexpr double kReferenceRate = 30.0;
constexpr double kUsualPixels = 1280.0 * 720.0;
constexpr int kUsualSampleRate = 48000;
constexpr double kLeastKbps = 1.0; // encoders that count in kb/s read less as no bitrate at all

std::size_t IndexOf(Grade level)
{
    return static_cast<std::size_t>(std::clamp(int{level}, 0, int{kGrades} - 1));
}

int ToBitrate(double bitsPerSecond, double most)
{
    return static_cast<int>(
        std::clamp(std::round(bitsPerSecond), 1.0, std::min(most, double(std::numeric_limits<int>::max()))));
}

double PixelsOf(const LadderPoint& point) { return double(point.width) * point.height; }

// Straight lines between the points on logarithmic scales; beyond both ends the cost of a pixel stays.
double AlongLadder(std::span<const LadderPoint> ladder, double pixels)
{
    const auto above =
        std::ranges::find_if(ladder, [pixels](const auto& point) { return PixelsOf(point) > pixels; });
    if (above == ladder.begin() || above == ladder.end())
    {
        const auto& end = above == ladder.end() ? ladder.back() : ladder.front();
        return end.kbps * pixels / PixelsOf(end);
    }
    const auto& from = *(above - 1);
    const double way = std::log(pixels / PixelsOf(from)) / std::log(PixelsOf(*above) / PixelsOf(from));
    return from.kbps * std::pow(above->kbps / from.kbps, way);
}

// Twice the frames cost one and a half times the bits: YouTube's figures for 60 fps beside those for 30.
double RateFactor(double frameRate)
{
    const double rate = std::isfinite(frameRate) && frameRate > 0 ? frameRate : kReferenceRate;
    return std::pow(1.5, std::log2(std::clamp(rate, 1.0, 300.0) / kReferenceRate));
}

// Two more bits a sample cost a quarter more, as YouTube's HDR figures do; chroma samples cost half of what
// luma samples do, which puts 4:2:2 at a fifth more than 4:2:0.
double FormatFactor(int format)
{
    const double depth = std::pow(1.25, (BitDepthOf(format) - 8) / 2.0);
    const auto luma = [](double samples) { return 1.0 + (samples - 1.0) / 2.0; };
    return depth * luma(SamplesPerPixel(format)) / luma(1.5);
}

double PixelsOf(const PictureStream& stream)
{
    return stream.width > 0 && stream.height > 0 ? double(stream.width) * stream.height : kUsualPixels;
}

int SampleRateOf(const SoundStream& stream)
{
    return stream.sampleRate > 0 ? stream.sampleRate : kUsualSampleRate;
}

int ChannelCountOf(const SoundStream& stream) { return stream.layout ? ChannelsOf(stream.layout) : 2; }

// A subwoofer's channel carries next to nothing, which not every encoder makes use of.
int PaidChannelsOf(const SoundStream& stream, const AudioBitrateRow& row)
{
    const auto channels = ChannelCountOf(stream);
    const bool free = channels > 1 && (stream.layout & kLowFrequency) && !row.countsSubwoofer;
    return free ? channels - 1 : channels;
}

double NearestLegal(double kbps, std::span<const int> legal)
{
    if (legal.empty())
        return kbps;
    return *std::ranges::min_element(legal, {}, [kbps](int each) { return std::abs(each - kbps); });
}

double LossyKbps(const AudioBitrateRow& row, const SoundStream& stream, std::size_t grade)
{
    const auto rate = SampleRateOf(stream);
    const auto channels = ChannelCountOf(stream);
    const double bandwidth = std::min(1.0, rate / 44100.0); // hearing ends where 44.1 kHz does
    const double wanted = row.perChannel.at(grade) * bandwidth * PaidChannelsOf(stream, row);
    const double kept =
        std::clamp(wanted, double(row.minPerChannel) * channels, double(row.maxPerChannel) * channels);
    return NearestLegal(std::min(kept, double(row.maxTotal)), LegalKbps(row.codecID, rate, channels));
}

double LosslessKbps(const AudioBitrateRow& row, const CodecCapabilities& codec, const SoundStream& stream)
{
    // A stream told in a format that the codec does not hold is converted to the one offered first.
    const bool held = std::ranges::find(codec.formats, stream.format) != codec.formats.end();
    const int bits = SampleBitsOf(held ? stream.format : codec.formats.front());
    return row.share * SampleRateOf(stream) * ChannelCountOf(stream) * bits / 1000.0;
}

template <class Rate>
Grade NearestGrade(int bitrate, Rate rateOf)
{
    Grade best = Grade::QualityLevelLow;
    const double wanted = std::log(std::max(bitrate, 1));
    const auto distance = [&](Grade level) { return std::abs(std::log(double(rateOf(level))) - wanted); };
    for (const auto level : {Grade::QualityLevelNormal, Grade::QualityLevelHigh, Grade::QualityLevelBest})
        if (distance(level) < distance(best))
            best = level;
    return best;
}

} // namespace

int VideoBitrate(const CodecCapabilities& codec, const PictureStream& stream, Grade level)
{
    const auto* row = FindVideoBitrate(codec.codec->id);
    if (!row)
        return 1;
    const double kbps = AlongLadder(ReferenceLadder(IndexOf(level)), PixelsOf(stream)) *
                        RateFactor(stream.frameRate) * FormatFactor(stream.format) * row->factor;
    return ToBitrate(std::max(kbps, kLeastKbps) * 1000.0, double(row->maxBitrate));
}

int AudioBitrate(const CodecCapabilities& codec, const SoundStream& stream, Grade level)
{
    const auto* row = FindAudioBitrate(codec.codec->id);
    if (!row)
        return 1;
    const double kbps = row->kind == AudioBitrateKind::Lossless ? LosslessKbps(*row, codec, stream)
                                                                : LossyKbps(*row, stream, IndexOf(level));
    return ToBitrate(kbps * 1000.0, std::numeric_limits<int>::max());
}

Grade VideoGrade(const CodecCapabilities& codec, const PictureStream& stream, int bitrate)
{
    return NearestGrade(bitrate, [&](Grade level) { return VideoBitrate(codec, stream, level); });
}

Grade AudioGrade(const CodecCapabilities& codec, const SoundStream& stream, int bitrate)
{
    return NearestGrade(bitrate, [&](Grade level) { return AudioBitrate(codec, stream, level); });
}

std::pair<int, int> VideoBitrateRange(const CodecCapabilities& codec, const PictureStream& stream)
{
    return {VideoBitrate(codec, stream, Grade::QualityLevelLow),
            VideoBitrate(codec, stream, Grade::QualityLevelBest)};
}

std::pair<int, int> AudioBitrateRange(const CodecCapabilities& codec)
{
    const auto* row = FindAudioBitrate(codec.codec->id);
    SoundStream least{codec.sampleRates.front(), codec.layouts.front(), codec.formats.front()};
    auto most = least;
    if (row && row->kind == AudioBitrateKind::Lossless)
    {
        least = {std::ranges::min(codec.sampleRates), std::ranges::min(codec.layouts, {}, ChannelsOf),
                 codec.formats.front()};
        most = {std::ranges::max(codec.sampleRates), std::ranges::max(codec.layouts, {}, ChannelsOf),
                codec.formats.back()};
    }
    return {AudioBitrate(codec, least, Grade::QualityLevelLow),
            AudioBitrate(codec, most, Grade::QualityLevelBest)};
}

} // namespace Vexlor
