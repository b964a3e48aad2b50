#pragma once

#include "ListText.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{
class IVXCodecs;
}

namespace Vexlor::Tool
{

/// A codec that a container takes, and what the codec library knows of it.
struct Codec
{
    int id;
    std::shared_ptr<const IVXCodecs> model;

    bool IsVideo() const;
    std::string Type() const; ///< "video" or "audio"
};

/// Every codec that a container takes, by its number.
std::vector<Codec> AllCodecs();

/// What the codec accepts, a list for each kind of value; kinds without a value are left out.
std::vector<NamedList> Accepts(const Codec& codec);
/// The lists' ends: "16 x 16 to 1920 x 1152, up to 60 fps".
std::string Summary(const Codec& codec);

/// Display names of the pixel or sample formats, of the profiles and of the levels.
std::vector<std::string> FormatNames(const Codec& codec);
std::vector<std::string> ProfileNames(const Codec& codec);
std::vector<std::string> LevelNames(const Codec& codec);
/// Display names of the channel layouts.
std::vector<std::string> LayoutNames(const Codec& codec);

/// Each value's text, in order.
template <typename Values, typename Display>
std::vector<std::string> TextsOf(const Values& values, Display display)
{
    std::vector<std::string> texts;
    texts.reserve(values.size());
    for (const auto& value : values)
        texts.push_back(display(value));
    return texts;
}

} // namespace Vexlor::Tool
