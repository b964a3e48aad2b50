#include "catalog/presets/Preset.h"

#include <array>

namespace Vexlor::Catalog
{

namespace
{

// Theirs to fill.
constexpr std::array kGroups{
    Group{"Customised", "", "Presets of your own", Icons::CategoryFaceIDCustomize},
    Group{"Recently Used", "", "What you chose last", Icons::CategoryFaceIDRecentList},
};

} // namespace

std::span<const Group> UserGroups() { return kGroups; }

} // namespace Vexlor::Catalog
