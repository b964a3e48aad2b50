#pragma once

#include "MatchReasons.h"

namespace Vexlor
{
class IVXCodecPreset;
}

namespace Vexlor::Tool
{

/// A stream of an output in the making, and why it is so.
struct ReasonedStream
{
    std::shared_ptr<IVXCodecParameter> stream;
    StreamReasons reasons;

    /// Adds a step to the value's way.
    void Add(MatchValue value, MatchReason reason, const std::string& text)
    {
        reasons[value].push_back({reason, text});
    }
};

/// The bounds of a format preset for one kind of stream; -1 where there is none.
struct BitrateBounds
{
    int max = -1;
    int min = -1;
};

/// The stream that a codec preset makes of a source's, as IVXCodecPreset::MatchForSource.
ReasonedStream ReasonStream(const IVXCodecPreset& preset, const IVXCodecParameter& source,
                            const BitrateBounds& bounds);

/// Decides the bitrates of a stream whose other values are there.
void ReasonBitrate(ReasonedStream& output, const IVXCodecPreset& preset, const IVXCodecParameter& source,
                   const BitrateBounds& bounds);

} // namespace Vexlor::Tool
