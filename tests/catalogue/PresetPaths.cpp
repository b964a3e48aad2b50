#include "PresetPaths.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "catalog/DefaultTree.h"

namespace Vexlor
{

namespace
{

void Collect(const IVXFormatNode& node, const std::string& category, const std::string& path,
             std::vector<PlacedPreset>& presets)
{
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        presets.push_back({category, path + node.GetFormatPreset(i)->Name(), node.GetFormatPreset(i)});
    for (const auto& child : node.GetChildList())
        Collect(*child, category.empty() ? child->Name() : category, path + child->Name() + '/', presets);
}

} // namespace

std::vector<PlacedPreset> DefaultPresets()
{
    std::vector<PlacedPreset> presets;
    const std::shared_ptr<const IVXFormatNode> root = Catalog::DefaultTree();
    Collect(*root, {}, {}, presets);
    return presets;
}

} // namespace Vexlor
