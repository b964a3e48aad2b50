#pragma once

extern "C"
{
#include <libavformat/avformat.h>
}

#include <memory>
#include <span>
#include <string>

namespace Vexlor
{

class IVXCodecParameter;

/// The streams of a file, in the file's order.
std::span<AVStream* const> StreamsOf(const AVFormatContext& context);
/// True for a cover picture, which libavformat shows as a video stream of one frame.
bool IsAttachedPicture(const AVStream& stream);

/// The streams that a file is converted from.
struct BestStreams
{
    AVStream* video = nullptr; ///< null when there is none
    AVStream* audio =
        nullptr; ///< the one that goes with the picture before any other; null when there is none
    bool hasUnreadable = false; ///< some stream of picture or sound tells no size, or no sample rate
};

/// The best of the streams that tell what they are; a cover picture is none. The others count as of no kind
/// from then on.
BestStreams FindBestStreams(AVFormatContext& context);

/// The parameters of a video stream. A codec without an identifier of ours has VXCodecID_None; everything
/// else of it is told, so that a preset can match its size and rate.
std::shared_ptr<IVXCodecParameter> VideoSource(AVFormatContext& context, AVStream& stream, int bitrate);
/// The parameters of an audio stream; as above. A stream that tells only its number of channels has their
/// usual layout.
std::shared_ptr<IVXCodecParameter> AudioSource(const AVStream& stream, int bitrate);
/// The codec's display name: ours, or libavcodec's where we have none.
std::string SourceCodecName(const AVStream& stream);

} // namespace Vexlor
