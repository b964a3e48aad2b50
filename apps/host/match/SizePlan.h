#pragma once

#include "SizeEstimate.h"

#include <string>

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Tool
{

struct MediaMatch;

/// How an output comes to a wanted size.
struct SizePlan
{
    bool isPossible = false;
    std::string reason = {}; ///< why it is not possible; empty where it is
    // What to set; 0 for what stays, or is not there.
    int videoBitrate = 0;
    int audioBitrate = 0;
    int width = 0; ///< of a smaller picture, without which it is not possible
    int height = 0;
    SizeEstimate estimate = {}; ///< with all that set; where it is not possible, of the smallest there is
};

/// Solves an output's bitrates so that the file is not larger than wanted, whatever the encoders make of it.
/// The source's length must be known.
///
/// The sound keeps its bitrate unless the picture would fall below the lowest that suits it; then the sound
/// takes the lowest that suits it, too, and then the picture's size goes down. The preset's bounds are kept.
SizePlan PlanSize(const MediaMatch& match, const IVXFormatPreset& preset, std::int64_t wanted);

} // namespace Vexlor::Tool
