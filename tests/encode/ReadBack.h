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
/// container, codec, size and frame rate, or container, codec, sample rate, number of channels and layout. A
/// file that cannot be read differs in "file".
std::vector<Difference> ReadBack(const std::string& path, const std::string& container,
                                 const IVXCodecParameter& asked);
/// The reason why that container, or the codec itself, does not keep that property; empty when it does.
std::string ReasonOf(const Difference& difference, const std::string& container, int codecID);
/// How far a frame rate may be off in that container, as a share of it.
double RateToleranceOf(const std::string& container);

} // namespace Vexlor
