#include "DocumentEdit.h"

#include "DocumentChanges.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

namespace Vexlor::Tool
{

namespace
{

// As deep as what is added is nested, which its reader bounds.
void CollectPresets(const IVXFormatNode& node, const std::string& path, std::vector<EditOutcome>& outcomes)
{
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        outcomes.push_back({"added", PathBelow(path, node.GetFormatPreset(i)->Name())});
    for (const auto& child : node.GetChildList())
        CollectPresets(*child, PathBelow(path, child->Name()), outcomes);
}

} // namespace

std::vector<EditOutcome> DocumentEdit::AddAll(const IVXFormatNode& node)
{
    Read();
    std::vector<EditOutcome> outcomes;
    Make([&](DocumentChanges& changes) { Absorb(changes, 0, node, outcomes); });
    return outcomes;
}

// As deep as the categories that are there already.
void DocumentEdit::Absorb(DocumentChanges& changes, DocumentPosition category, const IVXFormatNode& node,
                          std::vector<EditOutcome>& outcomes) const
{
    std::vector<std::string> presets;
    for (int i = 0; i < node.FormatPresetCount(); ++i)
    {
        const auto preset = node.GetFormatPreset(i);
        const auto name = FreeName(category, kPresetList, preset->Name());
        presets.push_back(WithName(JsonText(*preset->JsonValue(), JsonStyle::Indented), name));
        outcomes.push_back({"added", PathBelow(m_names->PathOf(category), name)});
    }
    std::vector<std::string> categories;
    for (const auto& child : node.GetChildList())
        if (const auto same = m_names->FindChild(category, child->Name()))
            Absorb(changes, *same, *child, outcomes);
        else
        {
            categories.push_back(JsonText(*child->JsonValue(), JsonStyle::Indented));
            CollectPresets(*child, PathBelow(m_names->PathOf(category), child->Name()), outcomes);
        }
    InsertInto(changes, category, kPresetList, presets, {});
    InsertInto(changes, category, kCategoryList, categories, {});
}

} // namespace Vexlor::Tool
