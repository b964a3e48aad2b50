#pragma once

#include "CodecTable.h"

#include <array>
#include <cstdint>
#include <span>

namespace Vexlor
{

/// Grades of quality of IVXCodecs::QualityLevel.
inline constexpr std::size_t kGrades = 4;

/// One point of a ladder: what a picture of so many pixels needs at 30 frames a second.
struct LadderPoint
{
    int width;
    int height;
    double kbps;
};

/// What a codec needs at one grade: the points of a ladder, smallest picture first, each so many times.
struct GradeLadder
{
    std::span<const LadderPoint> points;
    double factor = 1.0;
};

/// How the bitrate of a video stream comes about.
enum class VideoBitrateKind
{
    Predicted, ///< ladders for 8-bit 4:2:0; the more frames a second, the less one costs
    Intra,     ///< ladders; every frame costs the same
    Profiled,  ///< as Intra, but the ladder is that of a profile, which the grade chooses: GradeProfiles
    Lossless,  ///< a share of the pixels' own bitrate, whatever the grade
    Listed,    ///< the rows of ListedBitrates
};

/// One video codec.
struct VideoBitrateRow
{
    int codecID;
    VideoBitrateKind kind = VideoBitrateKind::Predicted;
    std::array<GradeLadder, kGrades> grades = {};
    double factor = 1.0; ///< against the codec whose ladders these are
    int bits = 0;        ///< of a pixel as it is stored, for a lossless codec; 0: those of its format
    double share = 1.0;  ///< of the pixels' own bitrate, for a lossless codec
    std::int64_t maxBitrate =
        0; ///< bits a second; 0: the most that a level of the codec's allows, if it has levels
};

/// What pictures of one profile need, whatever they show.
struct ProfileLadder
{
    int codecID;
    int profile;
    GradeLadder ladder;
};

/// The profiles of a codec of kind Profiled that hold one pixel format, by grade.
struct GradeProfiles
{
    int codecID;
    int format;
    std::array<int, kGrades> profiles;
};

/// The only bitrates of a codec for one size, format and frame rate.
struct ListedBitrate
{
    int codecID;
    int format;
    PictureSize size;
    double frameRate;                  ///< the lowest that the row is for
    std::array<int, kGrades> bitrates; ///< bits a second
};

/// How the bitrate of a sound stream comes about.
enum class AudioBitrateKind
{
    Lossy,  ///< so much a channel, by grade
    Stored, ///< a share of the samples' own bitrate, whatever the grade
    Blocks, ///< blocks of one length, each of 4 bits a sample behind a header
    Speech, ///< the modes of ListedSpeech
};

/// One audio codec.
struct AudioBitrateRow
{
    int codecID;
    AudioBitrateKind kind = AudioBitrateKind::Lossy;
    std::array<double, kGrades> perChannel = {}; ///< kb/s of one channel at 44.1 kHz or more
    bool countsSubwoofer = false;   ///< whether the subwoofer's channel is given bits as any other
    double minPerChannel = 1;       ///< kb/s; by sample rate where ChannelBounds has rows
    double maxPerChannel = 100'000; ///< kb/s; as above
    double maxSampleBits = 1'000;   ///< of one channel's sample
    int minTotal = 1;               ///< kb/s
    int maxTotal = 2'000'000;       ///< kb/s
    double share = 1.0;             ///< of the samples' own bitrate, for Stored
    int bits = 0;                   ///< of a stored sample; 0: those of the sample format
    int maxBits = 32;               ///< of a stored sample, where the sample format has more
    int blockHeader = 0;            ///< bytes a channel, for Blocks
    int headerSamples = 0;          ///< samples that a header holds, for Blocks
};

/// What one channel may have from a sample rate on, in kb/s.
struct ChannelBounds
{
    int codecID;
    int sampleRate;
    double least;
    double most;
};

/// The modes of a speech codec at one sample rate, by grade.
struct SpeechModes
{
    int codecID;
    int sampleRate;
    std::array<int, kGrades> bitrates; ///< bits a second
};

/// The row of a video codec; null when there is none.
const VideoBitrateRow* FindVideoBitrate(int codecID);
/// The ladder of a profile; null when it has none of its own.
const GradeLadder* FindProfileLadder(int codecID, int profile);
/// The profiles by grade; null for a format that the codec has none for, and for a codec of another kind.
const GradeProfiles* FindGradeProfiles(int codecID, int format);
/// The rows of all codecs of kind Listed; of one codec and format by size, then by frame rate, both rising.
std::span<const ListedBitrate> ListedBitrates();
/// The row of an audio codec; null when there is none.
const AudioBitrateRow* FindAudioBitrate(int codecID);
/// What one channel of a lossy codec may have at a sample rate, in kb/s.
ChannelBounds ChannelBoundsOf(const AudioBitrateRow& row, int sampleRate);
/// The rows of all codecs of kind Speech; of one codec by sample rate, rising.
std::span<const SpeechModes> ListedSpeech();
/// The only bitrates that the codec's standard has for sound of that kind and that its encoders take, in bits
/// per second, lowest first; empty when it has any.
std::span<const int> LegalBitrates(int codecID, int sampleRate, std::uint64_t layout);

} // namespace Vexlor
