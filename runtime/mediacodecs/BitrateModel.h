#pragma once

#include "CodecCapabilities.h"
#include "IVXCodecs.h"

#include <cstdint>
#include <utility>

namespace Vexlor
{

class IVXCodecParameter;

/// What a video stream's bitrate follows from. Any values are taken: a side or a rate that is none reads as a
/// usual one, an unknown format as 8-bit 4:2:0.
struct PictureStream
{
    int width;
    int height;
    double frameRate;
    int format;
};

/// The picture of a stream's record, in that pixel format.
PictureStream PictureOf(const IVXCodecParameter& stream, int format);

/// What an audio stream's bitrate follows from; as above, an unknown layout reads as stereo.
struct SoundStream
{
    int sampleRate;
    std::uint64_t layout;
    int format;
};

/// The sound of a stream's record, in that sample format.
SoundStream SoundOf(const IVXCodecParameter& stream, int format);

/// The bitrate of a video codec's stream at a grade, in bits per second, at least 1. Never falls when the
/// grade, the picture or the frame rate grows.
int VideoBitrate(const CodecCapabilities& codec, const PictureStream& stream, IVXCodecs::QualityLevel level);
/// The bitrate of an audio codec's stream at a grade; as above, and one that the codec's standard has.
int AudioBitrate(const CodecCapabilities& codec, const SoundStream& stream, IVXCodecs::QualityLevel level);
/// The bitrate of a profile that has one of its own, whatever the grade; 0 for one that has not.
int ProfileBitrate(int codecID, int profile, const PictureStream& stream);
/// The profile that a bitrate asks for, where profiles have bitrates of their own: that of the grade which it
/// comes nearest to. VXProfileUnknown for other codecs.
int ProfileAtBitrate(const CodecCapabilities& codec, const PictureStream& stream, int bitrate);
/// The grade whose bitrate comes nearest by ratio, the higher one on a tie: Best for a codec without grades.
IVXCodecs::QualityLevel VideoGrade(const CodecCapabilities& codec, const PictureStream& stream, int bitrate);
/// As above.
IVXCodecs::QualityLevel AudioGrade(const CodecCapabilities& codec, const SoundStream& stream, int bitrate);
/// The bitrates from the lowest grade to the highest.
std::pair<int, int> VideoBitrateRange(const CodecCapabilities& codec, const PictureStream& stream);
/// The codec's own range, whatever the sound at hand, which those who ask for it do not know: its grades at
/// the rate and layout offered first; of a codec without grades from the smallest sound that it takes to the
/// largest.
std::pair<int, int> AudioBitrateRange(const CodecCapabilities& codec);

} // namespace Vexlor
