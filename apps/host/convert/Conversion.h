#pragma once

#include "FfmpegCommand.h"

#include <cstdint>
#include <functional>

namespace Vexlor::Tool
{

/// How far a conversion is.
struct ConversionProgress
{
    double done = 0;        ///< seconds of the output
    double duration = 0;    ///< seconds of the source; 0 when unknown
    double speed = 0;       ///< seconds of the output a second; 0 when unknown
    std::int64_t bytes = 0; ///< of the output

    /// From 0 to 1; 0 when unknown.
    double Share() const;
    /// Seconds until it is done; below 0 when unknown.
    double Left() const;
};

/// Is told about every tenth of a second how far it is, and answers whether to go on.
using ConversionWatch = std::function<bool(const ConversionProgress& progress)>;

/// How the output comes to its file.
struct ConversionTarget
{
    std::string source;
    std::string output;
    bool overwrites = false;
    double duration = 0; ///< of the source, in seconds; 0 when unknown
};

/// What a conversion leaves.
struct ConversionResult
{
    bool isStopped = false; ///< because the watch wanted it: there is no output
    std::int64_t bytes = 0;
    double seconds = 0;                ///< that it took
    std::vector<std::string> messages; ///< what the program complained of although it went on
};

/// Runs the ffmpeg program and gives its output the file's name when all went well; else what was there
/// stays, and nothing is left behind. Throws Failure, with the program's own words where it failed.
ConversionResult Convert(FfmpegCommand command, const ConversionTarget& target, const ConversionWatch& watch);

} // namespace Vexlor::Tool
