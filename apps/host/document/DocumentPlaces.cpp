#include "DocumentPlaces.h"

#include "apps/host/Text.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr std::size_t kLongestName = 200; // what nobody would type is no part of a path

bool IsFirstByte(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

bool IsElement(const DocumentTree& tree, DocumentPosition value)
{
    return value != 0 && tree[tree[value].parent].kind == DocumentKind::Array;
}

std::string PointerEscaped(const std::string& name)
{
    std::string escaped;
    for (const char letter : name)
        if (letter == '~' || letter == '/')
            escaped += letter == '~' ? "~0" : "~1";
        else
            escaped += letter;
    return escaped;
}

} // namespace

DocumentPlace DocumentPlaces::At(std::size_t offset)
{
    for (; m_offset < offset; ++m_offset)
        if (m_text[m_offset] == '\n')
            m_place = {m_place.line + 1, 1};
        else if (IsFirstByte(m_text[m_offset]))
            ++m_place.column;
    return m_place;
}

std::string DocumentPaths::InNames(DocumentPosition value)
{
    std::vector<std::string> parts;
    while (value != 0)
    {
        const bool isElement = IsElement(m_tree, value);
        parts.push_back(isElement ? ElementText(value) : MemberText(value));
        if (isElement && m_tree[value].parent != 0)
            value = m_tree[value].parent;
        value = m_tree[value].parent;
    }
    std::ranges::reverse(parts);
    return Joined(parts, "/");
}

std::string DocumentPaths::AsPointer(DocumentPosition value) const
{
    std::vector<std::string> parts;
    for (; value != 0; value = m_tree[value].parent)
        parts.push_back('/' + (IsElement(m_tree, value) ? std::to_string(m_tree[value].ordinal)
                                                        : PointerEscaped(m_tree.NameOf(value))));
    std::ranges::reverse(parts);
    return Joined(parts, "");
}

/// The part of an element and of the list that it is in.
std::string DocumentPaths::ElementText(DocumentPosition element)
{
    const auto list = m_tree[element].parent;
    const bool isOfTree = m_tree.IsNamed(list, "childList") || m_tree.IsNamed(list, "formatPresetList");
    const auto name = isOfTree ? NameMember(element) : std::string();
    return name.empty() ? MemberText(list) + '[' + std::to_string(m_tree[element].ordinal) + ']'
                        : PathEscaped(name);
}

std::string DocumentPaths::MemberText(DocumentPosition member) const
{
    const auto size = m_tree[member].nameSize;
    if (size == 0)
        return {};
    return size <= kLongestName ? PathEscaped(m_tree.NameOf(member)) : "…";
}

std::string DocumentPaths::NameMember(DocumentPosition object)
{
    const auto [known, isNew] = m_names.try_emplace(object);
    if (!isNew)
        return known->second;
    const auto name = m_tree.Find(object, "name");
    if (name && m_tree.Source(*name).size() <= kLongestName)
        known->second = m_tree.FindText(object, "name").value_or("");
    return known->second;
}

} // namespace Vexlor::Tool
