#pragma once

#include "catalog/presets/Preset.h"

#include <map>
#include <memory>
#include <string_view>

namespace Vexlor
{
class IVXFormatPreset;
}

namespace Vexlor::Catalog
{

/// Makes format presets of the rows of the catalogue's source.
class PresetBuilder
{
public:
    /// A new format preset of the row, with the offer's codecs and their own lists as far as the row's bounds
    /// leave them; empty where the container cannot be written here. A codec without an encoder here is on
    /// offer all the same, as the row has it.
    std::shared_ptr<IVXFormatPreset> Build(const Preset& row, Offer offer);

private:
    std::shared_ptr<IVXFormatPreset> Fresh(std::string_view container);

    std::map<std::string_view, std::shared_ptr<IVXFormatPreset>> m_containers; ///< as the library makes them
};

} // namespace Vexlor::Catalog
