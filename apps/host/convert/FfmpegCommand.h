#pragma once

#include "PictureFit.h"

#include <string>
#include <vector>

namespace Vexlor::Tool
{

struct MediaMatch;

/// What the ffmpeg program is started with.
struct FfmpegCommand
{
    std::vector<std::string> inputs;  ///< "-i" and the source
    std::vector<std::string> streams; ///< what is encoded, and how
    std::string output;
    /// What of the match gives way to the encoders, a sentence each.
    std::vector<std::string> changes;

    /// Everything behind the program's name.
    std::vector<std::string> Arguments() const;
};

/// The arguments that make the ffmpeg program encode exactly what was matched, from the source file of that
/// path into the output file of that path. Throws Failure where that cannot be encoded or written here.
///
/// Pictures are turned upright, which the program does by itself, brought to their frame rate and into their
/// frame. Sound of fewer channels than the source's is mixed so that it never clips; mono sound is as loud
/// in both channels of stereo as it was.
FfmpegCommand FfmpegCommandFor(const MediaMatch& match, const std::string& source, const std::string& output,
                               PictureFitting fitting);

/// The words as a shell takes them, on one line.
std::string ShellText(const std::vector<std::string>& words);

} // namespace Vexlor::Tool
