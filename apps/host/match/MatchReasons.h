#pragma once

#include "MatchValues.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Vexlor
{
class IVXFormatParameter;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Tool
{

/// Where a value of an output comes from, or what changed it on the way.
enum class MatchReason : int
{
    Chosen,      ///< the preset's current entry
    FromSource,  ///< the source's
    FirstOfList, ///< the first concrete entry of the preset's list
    FromModel,   ///< the codec's model of bitrates
    Snapped,     ///< by the codec
    Bounded,     ///< by the format preset
    SetByContainer,
    LeftToEncoder, ///< or to the container: nothing is told
    Follows,       ///< from another value
};

/// One step on the way to a value.
struct MatchStep
{
    MatchReason reason;
    std::string text; ///< the step in words: "snapped by the codec from 44.1 kHz"
};

/// The steps to each value of a stream, in their order; a value that the stream does not have has none.
using StreamReasons = std::map<MatchValue, std::vector<MatchStep>>;

/// Why an output is what it is.
struct MatchReasons
{
    StreamReasons video;
    StreamReasons audio;
    /// Width and height of the picture before the format preset's bounds cut it; 0 x 0 where they did not.
    std::pair<int, int> unbounded;
    /// The output as the reasons add up to it, found apart from matching and never different from it.
    std::shared_ptr<const IVXFormatParameter> output;
};

/// Why IVXFormatPreset::MatchForSource answers what it does for that source.
MatchReasons ReasonsOf(const IVXFormatPreset& preset, const IVXFormatParameter& source);

/// The reason's name for programs: "snapped".
const char* ReasonName(MatchReason reason);
/// The value's steps on one line; empty where there are none.
std::string ReasonText(const StreamReasons& reasons, MatchValue value);

} // namespace Vexlor::Tool
