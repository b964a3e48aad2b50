#include "DocumentEdit.h"

#include "DocumentChanges.h"
#include "apps/host/Failure.h"
#include "apps/host/NameSearch.h"
#include "apps/host/Text.h"

#include "IVXArtworkImageMgr.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kOwnCategory = "Customised";

// As JsonText indents one.
std::string ListText(const std::vector<std::string>& elements)
{
    std::string text;
    for (const auto& element : elements)
    {
        text += text.empty() ? "[\n  " : ",\n  ";
        for (const char letter : element)
            text += letter == '\n' ? std::string("\n  ") : std::string(1, letter);
    }
    return text + "\n]";
}

void RequireName(const std::string& name)
{
    if (name.empty())
        throw Failure("the name is empty");
    RequireUtf8(name);
}

const char* ListOf(bool isPreset) { return isPreset ? kPresetList : kCategoryList; }

} // namespace

std::string EmptyCategory(const std::string& name, int faceID)
{
    const auto node = IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>());
    node->SetName(name);
    node->SetFaceID(faceID);
    return JsonText(*node->JsonValue(), JsonStyle::Indented);
}

DocumentEdit::DocumentEdit(std::string text) : m_text(std::make_unique<std::string>(std::move(text))) {}

// The last change of a long document is not read again.
void DocumentEdit::Read()
{
    if (m_names)
        return;
    m_tree = std::make_unique<DocumentTree>(*m_text);
    m_names = std::make_unique<DocumentNames>(*m_tree);
}

void DocumentEdit::Make(const Change& change)
{
    DocumentChanges changes(*m_tree);
    change(changes);
    if (changes.IsEmpty())
        return;
    auto text = std::make_unique<std::string>(changes.Text());
    m_names.reset();
    m_tree.reset();
    m_text = std::move(text);
}

EditOutcome DocumentEdit::AddCategory(const std::string& path, const PresetSettings& settings,
                                      const EditPlace& place, bool mayMakeParents)
{
    Read();
    EditOutcome outcome{"added", path};
    const auto text = EmptyCategory(NamesOfPath(path).back(), 0);
    AddElement(path, kCategoryList, WithCategorySettings(text, settings, outcome.settings), place,
               mayMakeParents);
    return outcome;
}

EditOutcome DocumentEdit::AddPreset(const std::string& path, const std::string& preset,
                                    const PresetSettings& settings, const EditPlace& place,
                                    bool mayMakeParents)
{
    Read();
    EditOutcome outcome{"added", path};
    const auto text = WithName(preset, NamesOfPath(path).back());
    AddElement(path, kPresetList, WithSettings(text, settings, outcome.settings), place, mayMakeParents);
    return outcome;
}

void DocumentEdit::AddElement(const std::string& path, const char* list, const std::string& element,
                              const EditPlace& place, bool mayMakeParents)
{
    auto names = NamesOfPath(path);
    std::ranges::for_each(names, RequireName);
    const auto name = names.back();
    names.pop_back();
    const auto parent = FindParent(names, mayMakeParents);
    if (parent.missing.empty())
    {
        RequireFree(parent.category, list, name);
        return Make([&](DocumentChanges& changes)
                    { InsertInto(changes, parent.category, list, {element}, place); });
    }
    // From the inside out: what is added stands in what is made for it.
    auto text = element;
    const char* innerList = list;
    auto missing = parent.missing;
    std::ranges::reverse(missing);
    for (const auto& outer : missing)
    {
        const auto category = EmptyCategory(outer, 0);
        const DocumentTree tree(category);
        DocumentChanges changes(tree);
        changes.Insert(*tree.Find(0, innerList), 0, {text});
        text = changes.Text();
        innerList = kCategoryList;
    }
    Make([&](DocumentChanges& changes) { InsertInto(changes, parent.category, kCategoryList, {text}, {}); });
}

EditOutcome DocumentEdit::Remove(const std::string& path, bool mayHoldMore)
{
    Read();
    const auto value = m_names->Find(path, DocumentThing::Either);
    if (value == 0)
        throw Failure("the root cannot be removed");
    const bool isPreset = m_names->IsPreset(value);
    const auto presets = m_tree->CountIn(value, kPresetList);
    const auto children = m_tree->CountIn(value, kCategoryList);
    if (!isPreset && !mayHoldMore && presets + children > 0)
        throw Failure(Quoted(path) +
                      " is not empty: " + Counted(static_cast<int>(presets), "preset", "presets") + ", " +
                      Counted(static_cast<int>(children), "category", "categories") +
                      "; --recursive removes them too");
    EditOutcome outcome{"removed", m_names->PathOf(value)};
    Make([&](DocumentChanges& changes)
         { changes.Remove((*m_tree)[value].parent, {(*m_tree)[value].ordinal}); });
    return outcome;
}

EditOutcome DocumentEdit::Move(const std::string& path, const std::optional<std::string>& category,
                               const EditPlace& place)
{
    Read();
    const auto value = m_names->Find(path, DocumentThing::Either);
    if (value == 0)
        throw Failure("the root cannot be moved");
    const auto from = CategoryOf(value);
    const auto target = category ? m_names->Find(*category, DocumentThing::Category) : from;
    if (Holds(value, target))
        throw Failure(Quoted(path) + " cannot be moved into itself");
    const auto* list = ListOf(m_names->IsPreset(value));
    const auto name = NameOf(value);
    if (target != from)
        RequireFree(target, list, name);
    EditOutcome outcome{"moved", PathBelow(m_names->PathOf(target), name), m_names->PathOf(value)};
    const auto ordinal = (*m_tree)[value].ordinal;
    const auto to = OrdinalOf(target, list, place);
    if (target == from && (to == ordinal || to == ordinal + 1))
        return outcome; // there it is
    Make(
        [&](DocumentChanges& changes)
        {
            const auto text = changes.Lifted(value);
            InsertInto(changes, target, list, {text}, place);
            changes.Remove((*m_tree)[value].parent, {ordinal});
        });
    return outcome;
}

EditOutcome DocumentEdit::Rename(const std::string& path, const std::string& name)
{
    Read();
    RequireName(name);
    const auto value = m_names->Find(path, DocumentThing::Either);
    EditOutcome outcome{"renamed", name, m_names->PathOf(value)};
    if (value != 0)
    {
        const auto category = CategoryOf(value);
        if (NameOf(value) != name)
            RequireFree(category, ListOf(m_names->IsPreset(value)), name);
        outcome.path = PathBelow(m_names->PathOf(category), name);
    }
    Make([&](DocumentChanges& changes) { changes.SetMember(value, "name", JsonQuoted(name)); });
    return outcome;
}

EditOutcome DocumentEdit::Clone(const std::string& path, const std::optional<std::string>& category,
                                const std::optional<std::string>& name, const PresetSettings& settings)
{
    Read();
    const auto value = m_names->Find(path, DocumentThing::Either);
    if (value == 0)
        throw Failure("the root cannot be cloned");
    const bool isPreset = m_names->IsPreset(value);
    EditOutcome outcome{"cloned", {}, m_names->PathOf(value)};
    auto text = DocumentChanges(*m_tree).Lifted(value);
    text = isPreset ? WithSettings(text, settings, outcome.settings)
                    : WithCategorySettings(text, settings, outcome.settings);
    const auto oldName = NameOf(value);
    if (name)
        RequireName(*name);
    const auto target = category ? m_names->Find(*category, DocumentThing::Category) : OwnCategory();
    if (name)
        RequireFree(target, ListOf(isPreset), *name);
    const auto newName = name ? *name : FreeName(target, ListOf(isPreset), oldName);
    text = WithName(text, newName);
    outcome.path = PathBelow(m_names->PathOf(target), newName);
    Make([&](DocumentChanges& changes) { InsertInto(changes, target, ListOf(isPreset), {text}, {}); });
    return outcome;
}

EditOutcome DocumentEdit::Set(const std::string& path, const PresetSettings& settings)
{
    Read();
    const auto value = m_names->Find(path, DocumentThing::Either);
    EditOutcome outcome{"set", m_names->PathOf(value)};
    if (!m_names->IsPreset(value))
    {
        const auto members = WithCategorySettings("{}", settings, outcome.settings);
        const DocumentTree tree(members);
        tree.ForEach(0,
                     [&](DocumentPosition member)
                     {
                         const auto name = tree.NameOf(member);
                         const std::string text(tree.Source(member));
                         Read();
                         Make([&](DocumentChanges& changes) { changes.SetMember(value, name, text); });
                     });
        return outcome;
    }
    Make([&](DocumentChanges& changes)
         { changes.Replace(value, WithSettings(changes.Lifted(value), settings, outcome.settings)); });
    return outcome;
}

DocumentEdit::Parent DocumentEdit::FindParent(const std::vector<std::string>& names,
                                              bool mayMakeParents) const
{
    Parent parent{0, {}};
    for (const auto& name : names)
        if (const auto child =
                parent.missing.empty() ? m_names->FindChild(parent.category, name) : std::nullopt)
            parent.category = *child;
        else
            parent.missing.push_back(name);
    if (!parent.missing.empty() && !mayMakeParents)
        throw Failure("no category " +
                      Quoted(PathBelow(m_names->PathOf(parent.category), parent.missing.front())));
    return parent;
}

void DocumentEdit::InsertInto(DocumentChanges& changes, DocumentPosition category, const char* list,
                              const std::vector<std::string>& elements, const EditPlace& place) const
{
    if (elements.empty())
        return;
    const auto ordinal = OrdinalOf(category, list, place);
    const auto array = m_tree->Find(category, list);
    if (!array)
        return changes.SetMember(category, list, ListText(elements));
    if ((*m_tree)[*array].kind != DocumentKind::Array)
        throw Failure(std::string(list) + " of " + Quoted(m_names->PathOf(category)) + " is no list");
    changes.Insert(*array, ordinal, elements);
}

std::uint32_t DocumentEdit::OrdinalOf(DocumentPosition category, const char* list,
                                      const EditPlace& place) const
{
    const auto end = m_tree->CountIn(category, list);
    if (!place.before && !place.after)
        return place.isFirst ? 0 : end;
    std::vector<Candidate> siblings;
    m_tree->ForEachIn(category, list,
                      [&](DocumentPosition element) {
                          siblings.push_back({NameOf(element), {NameOf(element)}});
                      });
    const auto& name = place.before ? *place.before : *place.after;
    const auto found = FindByWholeName(siblings, name, "sibling");
    return static_cast<std::uint32_t>(found) + (place.before ? 0 : 1);
}

void DocumentEdit::RequireFree(DocumentPosition category, const char* list, const std::string& name) const
{
    if (m_names->IsTaken(category, list, name))
        throw Failure(Quoted(PathBelow(m_names->PathOf(category), name)) + " is there already");
}

std::string DocumentEdit::FreeName(DocumentPosition category, const char* list, const std::string& name) const
{
    auto free = name;
    for (int number = 2; m_names->IsTaken(category, list, free); ++number)
        free = name + ' ' + std::to_string(number);
    return free;
}

bool DocumentEdit::Holds(DocumentPosition value, DocumentPosition inner) const
{
    return inner >= value && inner < (*m_tree)[value].next;
}

// An element's list stands in it.
DocumentPosition DocumentEdit::CategoryOf(DocumentPosition value) const
{
    return (*m_tree)[(*m_tree)[value].parent].parent;
}

/// The category of the user's own presets, by its icon or its name; made where it is missing.
DocumentPosition DocumentEdit::OwnCategory()
{
    const auto find = [this]
    {
        std::optional<DocumentPosition> found = m_names->FindChild(0, kOwnCategory);
        m_tree->ForEachIn(0, kCategoryList,
                          [&](DocumentPosition child)
                          {
                              if (m_tree->FindInteger(child, "faceID") ==
                                  IVXArtworkImageMgr::CategoryFaceIDCustomize)
                                  found = child;
                          });
        return found;
    };
    if (!find())
        Make(
            [&](DocumentChanges& changes)
            {
                InsertInto(changes, 0, kCategoryList,
                           {EmptyCategory(kOwnCategory, IVXArtworkImageMgr::CategoryFaceIDCustomize)}, {});
            });
    Read();
    return *find();
}

std::string DocumentEdit::NameOf(DocumentPosition value) const
{
    return m_tree->FindText(value, "name").value_or("");
}

} // namespace Vexlor::Tool
