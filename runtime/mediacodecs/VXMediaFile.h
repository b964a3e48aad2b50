#pragma once

#include "VXMediaCodecsExport.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Vexlor
{

class IVXFormatParameter;

/// What a media file holds, as far as a converter has to know.
struct VXMediaFile
{
    /// The container and the file's best video and audio stream; empty when the file could not be read.
    ///
    /// The container has its name of ours, or libavformat's where we have none. A codec without an identifier
    /// of ours is VXCodecID_None; the rest of its record is filled in, so that presets match it all the same.
    std::shared_ptr<IVXFormatParameter> parameter;
    /// "path: reason", one line without an end, when the file could not be read; else empty.
    std::string error;
    /// Display name of the video codec, known to us or not; empty without a video stream.
    std::string videoCodec;
    /// Display name of the audio codec; as above.
    std::string audioCodec;
    /// Number of the video stream in the file, from 0; -1 without one.
    int videoStream = -1;
    /// Number of the audio stream; as above.
    int audioStream = -1;
    /// Length in seconds; 0 when unknown.
    double duration = 0;
    /// Size in bytes.
    std::int64_t size = 0;
};

/// How much a file may cost before it is given up: a file from outside is made to be read cheaply or for
/// ever.
struct VXMediaFileLimits
{
    /// Bytes that are read. The index of a film of many hours takes a few dozen MiB.
    std::int64_t bytes = std::int64_t{256} << 20;
    /// Seconds, asked for between reads and packets; below a millisecond none.
    double seconds = 30;
    /// Streams; those of a transport stream beyond them are left out, other files are refused.
    int streams = 256;
    /// Pixels of a picture that is decoded to know its format; a larger one keeps what its header tells.
    std::int64_t pixels = std::int64_t{1} << 26;
};

/// Reads the parameters of the media file at that path, which is UTF-8 and never more than a file name: no
/// address, no pattern, no list.
///
/// The size is the stored frame's; the display size counts the sample aspect ratio and a rotation by quarter
/// turns. The frame rate is the average, else the container's, else 0/1. A bitrate that the stream does not
/// tell is its share of the container's; 0 when that is unknown, too. Cover pictures, still pictures and
/// playlists are not video. Of a file that is cut off, what its beginning tells is answered, if that
/// describes the streams. A file that costs more than the limits is refused, with the reason; so is one whose
/// tables would take memory out of proportion to its size.
///
/// Nothing is written to stderr: while it reads, FFmpeg's own log function is silenced for the whole process;
/// a log function that the host has set stays in place and receives every line. Safe in several threads at
/// once.
VX_MEDIACODECS_API VXMediaFile ReadMediaFile(const std::string& path, const VXMediaFileLimits& limits = {});

} // namespace Vexlor
