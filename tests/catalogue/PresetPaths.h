#pragma once

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

class IVXFormatPreset;

/// A format preset of the default tree and where it stands.
struct PlacedPreset
{
    std::string category; ///< the one below the root
    std::string path;     ///< names with a slash in between
    std::shared_ptr<const IVXFormatPreset> preset;
};

/// All of them, in the order of the tree.
std::vector<PlacedPreset> DefaultPresets();

} // namespace Vexlor
