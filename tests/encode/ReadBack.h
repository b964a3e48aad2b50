#pragma once

#include <string>
#include <vector>

namespace Vexlor
{

class IVXCodecParameter;

/// How one property of a stream differs from what was written.
struct Difference
{
    std::string property; ///< "size", "layout"
    std::string text;     ///< "layout 5.1 became 5.1(side)"
};

/// Reads the file at that path, and compares its only stream and its container with what was asked for:
/// container, codec, profile, level, tag, and size, pixel format and frame rate, or sample rate, number of
/// channels, layout and, of lossless sound, sample format. A profile or level is compared where one was asked
/// for, as it was made, and where the file tells it. A file that cannot be read differs in "file".
std::vector<Difference> ReadBack(const std::string& path, const std::string& container,
                                 const IVXCodecParameter& asked);
/// The reason why that container, or the codec itself, does not keep that property; empty when it does.
std::string ReasonOf(const Difference& difference, const std::string& container, int codecID);
/// The reasons for which some container or the codec itself does not keep all; each must hold of a walk of
/// all that is offered.
std::vector<std::string> ReasonsFor(int codecID);
/// True when what gave way as an encoder was opened, in OpenEncoder's words, was chosen from a list that
/// knows nothing of the others: a profile, a level, a bitrate of the user's own.
bool IsExpectedToGiveWay(const std::string& change, int codecID, bool hasOfferedBitrate);
/// How far a frame rate may be off in that container, as a share of it.
double RateToleranceOf(const std::string& container);

} // namespace Vexlor
