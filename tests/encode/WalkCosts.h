#pragma once

#include <cstddef>
#include <string>

namespace Vexlor
{

class IVXCodecParameter;

/// What is done with pictures up to an area. Sound has none.
struct AreaRow
{
    int area;
    int frames;     ///< at most
    bool isWritten; ///< into files
    int tries;      ///< of each size; what is beyond is left out and counted
};

const AreaRow& AreaOf(const IVXCodecParameter& stream);
/// How many frames of the stream that encoder is given.
int FramesOf(const IVXCodecParameter& stream, const std::string& encoder);
/// Options that make an encoder quick; what it takes stays the same.
std::string QuickOptionsOf(const std::string& encoder);

/// Every how many-th combination is tried: the environment's VX_WALK_STEP, else 1, which is every one.
std::size_t StepOf();

} // namespace Vexlor
