#include "DocumentNames.h"

#include "DocumentPlaces.h"
#include "apps/host/Failure.h"
#include "apps/host/NameSearch.h"
#include "apps/host/Text.h"

#include <algorithm>
#include <unordered_map>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kRoot = "/";

const char* KindText(DocumentThing thing)
{
    if (thing == DocumentThing::Either)
        return "preset or category";
    return thing == DocumentThing::Preset ? "preset" : "category";
}

} // namespace

DocumentNames::DocumentNames(const DocumentTree& tree) : m_tree(tree)
{
    m_entries.push_back({0, false, kRoot, kRoot, kRoot});
    Collect(0, {}, {});
}

DocumentPosition DocumentNames::Find(const std::string& text, DocumentThing thing) const
{
    const auto isMeant = [thing](const Entry& entry)
    { return thing == DocumentThing::Either || entry.isPreset == (thing == DocumentThing::Preset); };
    if (text == kRoot && thing != DocumentThing::Preset)
        return 0;
    if (text.starts_with('/'))
    {
        const auto value = AtPointer(text);
        const auto entry = std::ranges::find(m_entries, value, &Entry::value);
        if (entry != m_entries.end() && isMeant(*entry))
            return value;
        throw Failure(Quoted(text) + " is no " + KindText(thing));
    }
    std::unordered_map<std::string, int> counts;
    for (const auto& entry : m_entries)
        ++counts[entry.path];
    const DocumentPaths paths(m_tree);
    std::vector<Candidate> candidates;
    std::vector<DocumentPosition> values;
    for (const auto& entry : m_entries)
        if (isMeant(entry) && entry.value != 0)
        {
            const bool isUnique = counts[entry.path] == 1;
            candidates.push_back({isUnique ? entry.path : paths.AsPointer(entry.value),
                                  {entry.path, entry.plain, entry.name}});
            values.push_back(entry.value);
        }
    return values[FindByWholeName(candidates, text, KindText(thing))];
}

std::optional<DocumentPosition> DocumentNames::FindChild(DocumentPosition category,
                                                         const std::string& name) const
{
    std::optional<DocumentPosition> found;
    m_tree.ForEachIn(category, kCategoryList,
                     [&](DocumentPosition child)
                     {
                         if (!found && m_tree.FindText(child, "name").value_or("") == name)
                             found = child;
                     });
    return found;
}

bool DocumentNames::IsTaken(DocumentPosition category, const char* list, const std::string& name) const
{
    bool isTaken = false;
    m_tree.ForEachIn(category, list,
                     [&](DocumentPosition element)
                     { isTaken = isTaken || m_tree.FindText(element, "name").value_or("") == name; });
    return isTaken;
}

std::string DocumentNames::PathOf(DocumentPosition value) const
{
    return std::ranges::find(m_entries, value, &Entry::value)->path;
}

bool DocumentNames::IsPreset(DocumentPosition value) const
{
    return std::ranges::find(m_entries, value, &Entry::value)->isPreset;
}

// As deep as the document is nested, which the parser bounds.
void DocumentNames::Collect(DocumentPosition node, const std::string& path, const std::string& plain)
{
    m_tree.ForEachIn(node, kPresetList, [&](DocumentPosition preset) { Add(preset, true, path, plain); });
    m_tree.ForEachIn(node, kCategoryList,
                     [&](DocumentPosition child)
                     {
                         Add(child, false, path, plain);
                         const auto& entry = m_entries.back();
                         Collect(child, std::string(entry.path + '/'), std::string(entry.plain + '/'));
                     });
}

void DocumentNames::Add(DocumentPosition value, bool isPreset, const std::string& path,
                        const std::string& plain)
{
    const auto name = m_tree.FindText(value, "name").value_or("");
    m_entries.push_back({value, isPreset, path + PathEscaped(name), plain + name, name});
}

DocumentPosition DocumentNames::AtPointer(const std::string& pointer) const
{
    const DocumentPaths paths(m_tree);
    for (const auto& entry : m_entries)
        if (entry.value != 0 && paths.AsPointer(entry.value) == pointer)
            return entry.value;
    throw Failure("nothing stands at " + Quoted(pointer));
}

std::string PathBelow(const std::string& category, const std::string& name)
{
    return category == kRoot ? PathEscaped(name) : category + '/' + PathEscaped(name);
}

std::vector<std::string> NamesOfPath(const std::string& path)
{
    std::vector<std::string> names(1);
    for (std::size_t i = 0; i < path.size(); ++i)
        if (path.compare(i, 2, "\\/") == 0)
        {
            names.back() += '/';
            ++i;
        }
        else if (path[i] == '/')
            names.emplace_back();
        else
            names.back() += path[i];
    return names;
}

} // namespace Vexlor::Tool
