#include "Catalogue.h"

#include "Failure.h"
#include "NameSearch.h"
#include "Text.h"
#include "apps/host/document/Qualities.h"
#include "catalog/DefaultTree.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr auto* kTool = "vxpresets";

// As deep as the document is nested, which the parser bounds.
void Collect(const IVXFormatNode& node, const std::string& path, const std::string& plain,
             std::vector<CatalogueEntry>& entries)
{
    for (int i = 0; i < node.FormatPresetCount(); ++i)
    {
        const auto preset = node.GetFormatPreset(i);
        entries.push_back({path + PathEscaped(preset->Name()), plain + preset->Name(), preset});
    }
    for (const auto& child : node.GetChildList())
        Collect(*child, path + PathEscaped(child->Name()) + '/', plain + child->Name() + '/', entries);
}

std::shared_ptr<const IVXJsonValue> ReadDocument(const std::string& path)
{
    std::string error;
    auto json = ReadJsonFile(path, &error);
    if (!json)
        throw Failure(error);
    return json;
}

Catalogue CatalogueOf(const std::string& origin, const std::shared_ptr<const IVXFormatNode>& root)
{
    Catalogue catalogue{origin, root, {}};
    Collect(*root, {}, {}, catalogue.entries);
    return catalogue;
}

} // namespace

Catalogue LoadCatalogue(const std::optional<std::string>& document)
{
    if (!document)
        return CatalogueOf(kTool, Catalog::DefaultTree());
    const auto json = ReadDocument(*document);
    const auto root = IVXFormatNode::MallocFormatNode(json);
    TakeUpQualities(*root, *json);
    auto catalogue = CatalogueOf(*document, root);
    if (!catalogue.entries.empty())
        return catalogue;
    const bool isObject = JsonText(*json).starts_with('{');
    throw Failure(*document + (isObject ? ": holds no format preset" : ": is not a JSON object"));
}

const CatalogueEntry& FindPreset(const Catalogue& catalogue, const std::string& text)
{
    std::vector<Candidate> candidates;
    for (const auto& entry : catalogue.entries)
        candidates.push_back({entry.path, {entry.path, entry.plain, entry.preset->Name()}});
    return catalogue.entries[FindByName(candidates, text, "preset", catalogue.origin)];
}

} // namespace Vexlor::Tool
