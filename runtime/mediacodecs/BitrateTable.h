#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace Vexlor
{

/// Grades of quality of IVXCodecs::QualityLevel.
inline constexpr std::size_t kGrades = 4;

/// One published point of a ladder: what a picture of so many pixels needs at 30 frames a second.
struct LadderPoint
{
    int width;
    int height;
    double kbps;
};

/// How a video codec's bitrate follows from the reference codec's.
struct VideoBitrateRow
{
    int codecID;
    double factor;           ///< against H.264 at the same quality
    std::int64_t maxBitrate; ///< of the codec's highest level, in bits per second
};

/// How the bitrate of a sound stream comes about.
enum class AudioBitrateKind
{
    Lossy,    ///< so much a channel, by grade
    Lossless, ///< a share of the samples' own bitrate, whatever the grade
};

/// One audio codec.
struct AudioBitrateRow
{
    int codecID;
    AudioBitrateKind kind;
    std::array<double, kGrades> perChannel = {}; ///< kb/s of one channel at 44.1 kHz or more
    double share = 1.0;                          ///< of the samples' own bitrate, for a lossless codec
    bool countsSubwoofer = false; ///< whether the subwoofer's channel is given bits as any other
    int minPerChannel = 1;        ///< kb/s
    int maxPerChannel = 100'000;  ///< kb/s
    int maxTotal = 2'000'000;     ///< kb/s
};

/// The points of H.264 at 30 frames a second for a grade from 0 to 3, smallest picture first.
std::span<const LadderPoint> ReferenceLadder(std::size_t grade);
/// The row of a video codec; null when there is none.
const VideoBitrateRow* FindVideoBitrate(int codecID);
/// The row of an audio codec; null when there is none.
const AudioBitrateRow* FindAudioBitrate(int codecID);
/// The only bitrates that the codec's standard has for sound of that kind, in kb/s, lowest first; empty when
/// it has any.
std::span<const int> LegalKbps(int codecID, int sampleRate, int channels);

} // namespace Vexlor
