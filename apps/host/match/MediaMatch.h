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

/// Whether a container of that name is not written for sound alone, which it cuts to the frames of a picture.
bool NeedsPicture(const std::string& container);

} // namespace Vexlor::Tool
