#pragma once

#include "VXMediaCodecsExport.h"

#include <string>
#include <utility>
#include <vector>

namespace Vexlor
{

class IVXCodecParameter;

/// What the ffmpeg program is told so that it encodes a stream as the runtime itself would.
struct VXEncoderSettings
{
    /// The encoder's name: "libx264".
    std::string encoder;
    /// Options of libavcodec with their values, as they stand behind a dash: "b" with "6000000".
    std::vector<std::pair<std::string, std::string>> options;
    /// The pixel or sample format that frames must have: "yuv420p", "fltp".
    std::string format;
    /// The channel layout that they must have: "stereo"; empty for pictures.
    std::string layout;
    /// True where samples of pictures go from 0 to the largest number.
    bool isFullRange = false;
    /// What of the parameters gave way, a sentence each.
    std::vector<std::string> changes;
    /// Why the stream cannot be encoded, one line; empty when it can.
    std::string complaint;
};

/// The settings of the preferred encoder that is here for a stream, as matching answers it.
VX_MEDIACODECS_API VXEncoderSettings EncoderSettingsFor(const IVXCodecParameter& stream);

/// The muxer of libavformat's that writes the container of that name: "mp4"; empty for one that is not known.
VX_MEDIACODECS_API std::string MuxerFor(const std::string& formatName);

/// Whether that container is not written for sound alone.
VX_MEDIACODECS_API bool NeedsPicture(const std::string& formatName);

/// Whether the file's name ends as files of that container, or of one that is read alike, usually do, in
/// whatever case; true for a container that is not known.
VX_MEDIACODECS_API bool IsNamedAs(const std::string& formatName, const std::string& path);

/// The codec tag that this muxer is told for a stream: "XVID", or digits where it is no text; empty where the
/// muxer chooses.
VX_MEDIACODECS_API std::string MuxerTagFor(const std::string& formatName, const IVXCodecParameter& stream);

/// Options that this muxer is told with their values, as those of an encoder; often none.
VX_MEDIACODECS_API std::vector<std::pair<std::string, std::string>>
MuxerOptionsFor(const std::string& formatName);

} // namespace Vexlor
