#pragma once

#include "tests/encode/CodecChoices.h"

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

class IVXCodecParameter;
class IVXCodecPreset;
class IVXFormatPreset;

/// A container that lists a codec, with its preset of which that codec is the current one.
struct Container
{
    std::string name;
    std::string muxer;  ///< libavformat's
    std::string ending; ///< of a file's name
    std::shared_ptr<IVXFormatPreset> preset;
    std::shared_ptr<IVXCodecPreset> codec; ///< of the preset's list, shared with it

    /// What the preset answers for that codec's stream and AutoSource, within bounds of its bitrate.
    std::shared_ptr<IVXCodecParameter> Match(const BitrateBounds& bounds) const;
    /// What it answers for the picture that has to stand beside that codec's sound; empty where it need not.
    std::shared_ptr<IVXCodecParameter> MatchCompanion() const;
};

/// Every container that can be written here and lists the codec, in the order in which they are offered.
std::vector<Container> ContainersOf(int codecID);

} // namespace Vexlor
