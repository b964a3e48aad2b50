#pragma once

#include "MatchReasons.h"
#include "apps/host/Stream.h"

#include "runtime/mediacodecs/VXMediaFile.h"

namespace Vexlor::Tool
{

/// A source, and what it becomes in a format preset.
struct MediaMatch
{
    VXMediaFile media;
    std::shared_ptr<const IVXFormatParameter> output;
    MatchReasons reasons;

    /// The streams of the source.
    Streams SourceStreams() const;
    /// The streams of the output.
    Streams OutputStreams() const { return StreamsOf(*output); }
};

/// Reads the media file at that path. Throws Failure.
VXMediaFile ReadSource(const std::string& path);
/// Matches a source that was read.
MediaMatch MatchMedia(VXMediaFile media, const IVXFormatPreset& preset);

/// Why the streams that are left of a source make no file of that container: "DV needs a picture"; empty
/// where they do.
std::string StreamObstacle(const IVXFormatParameter& output);

} // namespace Vexlor::Tool
