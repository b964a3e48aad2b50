#include "Commands.h"

#include "Table.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"

#include "IVXCodecPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

namespace Vexlor::Tool
{

namespace
{

std::string CodecsText(const IVXFormatPreset& preset)
{
    std::vector<std::string> names;
    for (const auto& codec : {preset.CurrentVideoCodec(), preset.CurrentAudioCodec()})
        if (codec)
            names.push_back(codec->Name());
    return Joined(names, ", ");
}

int CountPresets(const IVXFormatNode& node)
{
    int count = node.FormatPresetCount();
    for (const auto& child : node.GetChildList())
        count += CountPresets(*child);
    return count;
}

// As deep as the document is nested, which the parser bounds.
void AddNode(Table& table, const IVXFormatNode& node, const std::string& indent)
{
    table.Add({{indent + node.Name() + " (" + std::to_string(CountPresets(node)) + ')', true}});
    const auto inner = indent + "  ";
    for (int i = 0; i < node.FormatPresetCount(); ++i)
    {
        const auto preset = node.GetFormatPreset(i);
        table.Add({inner + preset->Name(), preset->FormatName(), CodecsText(*preset)});
    }
    for (const auto& child : node.GetChildList())
        AddNode(table, *child, inner);
}

std::string Paths(const Catalogue& catalogue)
{
    std::string paths;
    for (const auto& entry : catalogue.entries)
        paths += OneLine(entry.path) + '\n';
    return paths;
}

} // namespace

std::string TreeCommand(const Request& request, const Catalogue& catalogue, const Style& style)
{
    if (request.asJson)
        return JsonDocument(*catalogue.root->JsonValue());
    if (request.asPaths)
        return Paths(catalogue);
    Table table;
    AddNode(table, *catalogue.root, {});
    return table.Text(style);
}

} // namespace Vexlor::Tool
