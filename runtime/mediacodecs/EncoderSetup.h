#pragma once

extern "C"
{
#include <libavcodec/avcodec.h>
}

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Vexlor
{

class IVXCodecParameter;

struct CloseEncoder
{
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
};
using EncoderContext = std::unique_ptr<AVCodecContext, CloseEncoder>;

/// What an encoder is told beyond the stream's parameters.
struct EncoderWish
{
    std::string encoder = {};  ///< libavcodec's name; empty: the preferred one that is here
    bool globalHeader = false; ///< the container keeps the codec's headers, as AVFMT_GLOBALHEADER says
    std::string options = {};  ///< the encoder's own, in libavcodec's words: "preset=fast:threads=2"
};

/// An encoder that is ready for its first frame, or the reason why it is not.
struct EncoderSetup
{
    EncoderContext context;           ///< empty when it could not be opened
    std::string complaint;            ///< "libx264: Invalid argument"; empty when it is open
    std::vector<std::string> changes; ///< what of the parameters gave way, a sentence each
};

/// Opens an encoder for a stream of those parameters, as matching answers them.
///
/// Size, frame rate, sample rate and layout are what the stream is and never change. Where what is asked for
/// beyond them excludes itself, the label gives way: a sample format that the encoder lacks to one that it
/// has, a profile that cannot hold the format to the first that can, a level that cannot hold the stream to
/// the lowest that can, a bitrate that the codec cannot have to the nearest that it can. A constant bitrate
/// has its bounds at itself; bounds, and those of a level that is chosen where none are told, are kept over
/// the buffer of the level. Frames are to be made as the context says. The time base is one frame, or one
/// sample.
///
/// SVT-AV1 tells stderr what it does unless the environment has SVT_LOG=1, and waits for ever when it is
/// closed in the middle of a stream: it has to see a frame and the end.
EncoderSetup OpenEncoder(const IVXCodecParameter& stream, const EncoderWish& wish);

/// An encoder that is told all and not yet open.
struct PreparedEncoder : EncoderSetup
{
    /// What it is told beside the context, by libavcodec's names.
    std::vector<std::pair<std::string, std::string>> options;
};

/// Tells an encoder the same as OpenEncoder, and leaves it there.
PreparedEncoder PrepareEncoder(const IVXCodecParameter& stream, const EncoderWish& wish);

} // namespace Vexlor
