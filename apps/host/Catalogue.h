#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Vexlor
{
class IVXFormatNode;
class IVXFormatPreset;
} // namespace Vexlor

namespace Vexlor::Tool
{

/// A format preset and where it stands in the tree.
struct CatalogueEntry
{
    std::string path;  ///< the names from below the root down, "/" in between and "\/" inside of them
    std::string plain; ///< the same with "/" inside names as it is
    std::shared_ptr<const IVXFormatPreset> preset;
};

/// The tree of presets that a command works on.
struct Catalogue
{
    std::string origin; ///< the document, or the tool itself for the built-in tree: how messages begin
    std::shared_ptr<const IVXFormatNode> root;
    std::vector<CatalogueEntry> entries; ///< every format preset, in the tree's order
};

/// The tree of that document, or the built-in one. Throws Failure for a document that cannot be read or that
/// holds no format preset.
Catalogue LoadCatalogue(const std::optional<std::string>& document);

/// The format preset of that path, or of an unambiguous part of it. Throws Failure.
const CatalogueEntry& FindPreset(const Catalogue& catalogue, const std::string& text);

} // namespace Vexlor::Tool
