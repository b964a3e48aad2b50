#include "DocumentText.h"

#include "apps/host/Failure.h"
#include "apps/host/document/DocumentChanges.h"
#include "apps/host/document/DocumentMerge.h"
#include "apps/host/document/DocumentNames.h"
#include "apps/host/document/Qualities.h"

#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <algorithm>

namespace Vexlor::Studio
{

namespace
{

using Tool::DocumentChanges;
using Tool::DocumentPosition;
using Tool::DocumentTree;
using Tool::JsonQuoted;

// Each category is an object in a list. Deeper ones could not be read again, and take long to write.
constexpr int kMostLevels = kJsonMaxDepth / 2;
constexpr const char* kName = "name";
constexpr const char* kDescription = "description";
constexpr const char* kFaceID = "faceID";
constexpr const char* kEmptyNode = "{\n  \"name\": \"\",\n  \"description\": \"\",\n  \"faceID\": 0,\n"
                                   "  \"formatPresetList\": [],\n  \"childList\": []\n}";

std::string Indented(const std::string& text) { return JsonText(*ParseJson(text), JsonStyle::Indented); }

/// What the library writes of a preset that it has read from that text.
std::string AsWritten(const std::string& text)
{
    const auto json = ParseJson(text);
    const auto preset = IVXFormatPreset::MallocFormatPreset(json);
    Tool::TakeUpQualities(*preset, *json);
    return JsonText(*preset->JsonValue());
}

std::vector<DocumentPosition> ElementsOf(const DocumentTree& tree, DocumentPosition object, const char* list)
{
    std::vector<DocumentPosition> elements;
    tree.ForEachIn(object, list, [&elements](DocumentPosition element) { elements.push_back(element); });
    return elements;
}

std::string ListText(const std::vector<std::string>& elements)
{
    const std::string empty = "[\n]"; // of which each element gets a line
    const DocumentTree tree(empty);
    DocumentChanges changes(tree);
    changes.Refill(0, elements);
    return changes.Text();
}

const void* KeyOf(const PlannedNode& node) { return node.node.get(); }
const void* KeyOf(const PlannedPreset& preset) { return preset.preset.get(); }

/// Writes a plan over the text that the tree was read from.
class PlanWriter
{
public:
    explicit PlanWriter(const DocumentBasis& basis)
        : m_tree(basis.text), m_positions(PositionsOf(basis.plan, m_tree)), m_source(m_tree)
    {
    }

    /// The text of a category, wherever it stood.
    std::string TextOf(const PlannedNode& node) const;
    /// The text of the root, which stays where it is.
    std::string WholeText(const PlannedNode& root) const
    {
        DocumentChanges changes(m_tree);
        Write(root, 0, m_tree, changes);
        return changes.Text();
    }

private:
    std::string TextOf(const PlannedPreset& preset) const;
    std::string NewText(const PlannedNode& node) const { return Written(node, kEmptyNode); }
    std::string Written(const PlannedNode& node, const std::string& text) const;
    void WriteAnew(const PlannedNode& node, DocumentPosition position, DocumentChanges& changes) const;
    void Write(const PlannedNode& node, DocumentPosition position, const DocumentTree& tree,
               DocumentChanges& changes) const;
    static void Write(const PlannedPreset& preset, DocumentPosition position, const DocumentTree& tree,
                      DocumentChanges& changes);
    template <typename Entry>
    void WriteList(const PlannedNode& node, const std::vector<Entry>& entries, const char* list,
                   DocumentPosition position, const DocumentTree& tree, DocumentChanges& changes) const;
    template <typename Entry>
    bool IsAsBefore(const PlannedNode& node, const std::vector<Entry>& entries, const char* list) const;

    const DocumentTree m_tree;
    const ObjectPositions m_positions;
    const DocumentChanges m_source;
};

std::string PlanWriter::TextOf(const PlannedNode& node) const
{
    const auto found = m_positions.find(KeyOf(node));
    return found == m_positions.end() ? NewText(node) : Written(node, m_source.Lifted(found->second));
}

std::string PlanWriter::Written(const PlannedNode& node, const std::string& text) const
{
    const DocumentTree tree(text);
    DocumentChanges changes(tree);
    Write(node, 0, tree, changes);
    return changes.Text();
}

std::string PlanWriter::TextOf(const PlannedPreset& preset) const
{
    const auto found = m_positions.find(KeyOf(preset));
    if (found == m_positions.end())
        return Indented(preset.text);
    const auto text = m_source.Lifted(found->second);
    return preset.text.empty() ? text : Tool::MergedText(text, AsWritten(text), preset.text);
}

void PlanWriter::Write(const PlannedNode& node, DocumentPosition position, const DocumentTree& tree,
                       DocumentChanges& changes) const
{
    if (tree[position].kind != Tool::DocumentKind::Object || tree[position].count == 0)
        return WriteAnew(node, position, changes);
    if (tree.FindText(position, kName).value_or("") != node.name)
        changes.SetMember(position, kName, JsonQuoted(node.name));
    if (tree.FindText(position, kDescription).value_or("") != node.description)
        changes.SetMember(position, kDescription, JsonQuoted(node.description));
    if (tree.FindInteger(position, kFaceID).value_or(0) != node.faceID)
        changes.SetMember(position, kFaceID, std::to_string(node.faceID));
    WriteList(node, node.presets, Tool::kPresetList, position, tree, changes);
    WriteList(node, node.children, Tool::kCategoryList, position, tree, changes);
}

void PlanWriter::Write(const PlannedPreset& preset, DocumentPosition position, const DocumentTree&,
                       DocumentChanges& changes)
{
    if (preset.text.empty())
        return;
    const auto text = changes.Lifted(position);
    const auto merged = Tool::MergedText(text, AsWritten(text), preset.text);
    if (merged != text)
        changes.Replace(position, merged);
}

// Where there is no member yet, or no object, nothing can be put beside one.
void PlanWriter::WriteAnew(const PlannedNode& node, DocumentPosition position, DocumentChanges& changes) const
{
    const bool isEmpty = node.name.empty() && node.description.empty() && node.faceID == 0 &&
                         node.presets.empty() && node.children.empty();
    if (!isEmpty)
        changes.Replace(position, NewText(node));
}

template <typename Entry>
void PlanWriter::WriteList(const PlannedNode& node, const std::vector<Entry>& entries, const char* list,
                           DocumentPosition position, const DocumentTree& tree,
                           DocumentChanges& changes) const
{
    if (IsAsBefore(node, entries, list))
    {
        const auto elements = ElementsOf(tree, position, list);
        for (std::size_t i = 0; i < entries.size(); ++i)
            Write(entries[i], elements[i], tree, changes);
        return;
    }
    std::vector<std::string> texts;
    texts.reserve(entries.size());
    for (const auto& entry : entries)
        texts.push_back(TextOf(entry));
    const auto array = tree.Find(position, list);
    if (array && tree[*array].kind == Tool::DocumentKind::Array)
        changes.Refill(*array, texts);
    else
        changes.SetMember(position, list, ListText(texts));
}

/// True when the list holds what it held in the text, in the same order.
template <typename Entry>
bool PlanWriter::IsAsBefore(const PlannedNode& node, const std::vector<Entry>& entries,
                            const char* list) const
{
    const auto found = m_positions.find(KeyOf(node));
    if (found == m_positions.end())
        return entries.empty();
    const auto elements = ElementsOf(m_tree, found->second, list);
    return std::ranges::equal(entries, elements,
                              [this](const Entry& entry, DocumentPosition element)
                              {
                                  const auto position = m_positions.find(KeyOf(entry));
                                  return position != m_positions.end() && position->second == element;
                              });
}

// As deep as the categories, which their reader bounds.
void Collect(const PlannedNode& plan, DocumentPosition position, const DocumentTree& tree,
             ObjectPositions& positions)
{
    positions.emplace(KeyOf(plan), position);
    const auto presets = ElementsOf(tree, position, Tool::kPresetList);
    for (std::size_t i = 0; i < std::min(presets.size(), plan.presets.size()); ++i)
        positions.emplace(KeyOf(plan.presets[i]), presets[i]);
    const auto children = ElementsOf(tree, position, Tool::kCategoryList);
    for (std::size_t i = 0; i < std::min(children.size(), plan.children.size()); ++i)
        Collect(plan.children[i], children[i], tree, positions);
}

// As deep as it may be.
void RequireReadable(const PlannedNode& plan, int levels)
{
    if (levels == 0)
        throw Tool::Failure("categories are nested too deep for a document");
    for (const auto& child : plan.children)
        RequireReadable(child, levels - 1);
}

} // namespace

ObjectPositions PositionsOf(const PlannedNode& plan, const DocumentTree& tree)
{
    ObjectPositions positions;
    Collect(plan, 0, tree, positions);
    return positions;
}

std::string TextOf(const PlannedNode& plan, const DocumentBasis& basis)
{
    RequireReadable(plan, kMostLevels);
    if (!basis.text.empty())
        return PlanWriter(basis).WholeText(plan);
    const DocumentBasis nothing{"{}"};
    return PlanWriter(nothing).TextOf(plan) + '\n';
}

} // namespace Vexlor::Studio
