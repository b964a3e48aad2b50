#pragma once

#include "Json.h"

#include <memory>
#include <string>

namespace Vexlor
{
class IVXCodecParameter;
class IVXFormatParameter;
} // namespace Vexlor

namespace Vexlor::Tool
{

/// One stream of a source or of an output, or none.
struct Stream
{
    std::shared_ptr<const IVXCodecParameter> parameter; ///< empty for no stream
    std::string codec;                                  ///< the codec's display name
};

/// The video and the audio stream of a file.
struct Streams
{
    Stream video;
    Stream audio;
};

/// The streams of an output, named by their codecs.
Streams StreamsOf(const IVXFormatParameter& output);

/// The name of the stream's pixel format; as all names here it is the number's digits where a number has no
/// name, and empty where the number says that nothing is known.
std::string PixelFormatText(const IVXCodecParameter& video);
/// The name of the stream's sample format.
std::string SampleFormatText(const IVXCodecParameter& audio);
/// The name of the profile.
std::string ProfileText(const IVXCodecParameter& stream);
/// The name of the level.
std::string LevelText(const IVXCodecParameter& stream);
/// "XVID"; hexadecimal digits where the tag is no text.
std::string CodecTagText(const IVXCodecParameter& stream);

/// Everything known of the video stream; null for no stream.
Json VideoJson(const Stream& video);
/// Everything known of the audio stream; null for no stream.
Json AudioJson(const Stream& audio);

} // namespace Vexlor::Tool
