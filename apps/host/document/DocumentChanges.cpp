#include "DocumentChanges.h"

#include "apps/host/Json.h"
#include "runtime/foundation/VXJson.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kOneLevel = "  ";
constexpr const char* kOneLine = " "; // in place of a line's end and indentation

bool IsOnLines(std::string_view blanks) { return blanks.find('\n') != std::string_view::npos; }

std::string LineEndOf(std::string_view text)
{
    const auto end = text.find('\n');
    if (end == std::string_view::npos)
        return {};
    return end > 0 && text[end - 1] == '\r' ? "\r\n" : "\n";
}

/// The text with its lines as far in as its place is, or on one line.
std::string Fitted(const std::string& text, const std::string& blanks)
{
    std::string fitted;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        if (text[at] != '\n')
            fitted += text[at];
        else if (IsOnLines(blanks))
            fitted += blanks;
        else
        {
            fitted += at > 0 && text[at - 1] == ',' ? kOneLine : "";
            at = text.find_first_not_of(' ', at + 1) - 1; // a closing bracket at the latest
        }
    }
    return fitted;
}

std::string JoinedElements(const std::vector<std::string>& elements, const std::string& blanks)
{
    std::string text;
    for (const auto& element : elements)
        text += (text.empty() ? "" : ',' + blanks) + Fitted(element, blanks);
    return text;
}

} // namespace

std::string JsonQuoted(const std::string& text) { return JsonText(*JsonElement(text)); }

DocumentChanges::DocumentChanges(const DocumentTree& tree) : m_tree(tree), m_lineEnd(LineEndOf(tree.Text()))
{
}

void DocumentChanges::Replace(DocumentPosition value, const std::string& text)
{
    const auto indent = OuterBlanks(value);
    Add(m_tree[value].begin, m_tree[value].end, Fitted(text, indent));
}

void DocumentChanges::Insert(DocumentPosition array, std::uint32_t ordinal,
                             const std::vector<std::string>& elements)
{
    const auto old = Inside(array);
    if (elements.empty())
        return;
    if (old.empty())
        return Refill(array, elements);
    const auto blanks = InnerBlanks(array);
    const auto text = JoinedElements(elements, blanks);
    if (ordinal == 0)
        return Add(m_tree[old.front()].begin, m_tree[old.front()].begin, text + ',' + blanks);
    const auto before = old[std::min<std::size_t>(ordinal, old.size()) - 1];
    Add(m_tree[before].end, m_tree[before].end, ',' + blanks + text);
}

// Elements that stand together go together, each run with one of the commas beside it.
void DocumentChanges::Remove(DocumentPosition array, const std::set<std::uint32_t>& ordinals)
{
    const auto old = Inside(array);
    const auto isGone = [&](std::size_t i) { return ordinals.contains(static_cast<std::uint32_t>(i)); };
    for (std::size_t first = 0; first < old.size(); ++first)
    {
        if (!isGone(first))
            continue;
        auto behind = first;
        while (behind < old.size() && isGone(behind))
            ++behind;
        if (first > 0)
            Add(m_tree[old[first - 1]].end, m_tree[old[behind - 1]].end, {});
        else if (behind < old.size())
            Add(m_tree[old[first]].begin, m_tree[old[behind]].begin, {});
        else
            Add(m_tree[array].begin, m_tree[array].end, "[]");
        first = behind;
    }
}

void DocumentChanges::Refill(DocumentPosition array, const std::vector<std::string>& elements)
{
    const auto inner = InnerBlanks(array);
    const auto text = JoinedElements(elements, inner);
    const auto close = IsOnLines(inner) ? OuterBlanks(array) : std::string();
    Add(m_tree[array].begin, m_tree[array].end,
        elements.empty() ? "[]" : '[' + (IsOnLines(inner) ? inner : "") + text + close + ']');
}

void DocumentChanges::SetMember(DocumentPosition object, const std::string& name, const std::string& text)
{
    if (const auto member = m_tree.Find(object, name))
        return Replace(*member, text);
    const auto inner = InnerBlanks(object);
    const auto member = JsonQuoted(name) + ": " + Fitted(text, inner);
    const auto old = Inside(object);
    if (!old.empty())
        return Add(m_tree[old.back()].end, m_tree[old.back()].end, ',' + inner + member);
    const bool isOnLines = IsOnLines(inner);
    Add(m_tree[object].begin, m_tree[object].end,
        '{' + (isOnLines ? inner : "") + member + (isOnLines ? OuterBlanks(object) : "") + '}');
}

std::string DocumentChanges::Lifted(DocumentPosition value) const
{
    const auto indent = OuterBlanks(value);
    std::string text(m_tree.Source(value));
    if (!IsOnLines(indent))
        return text;
    for (auto at = text.find(indent); at != std::string::npos; at = text.find(indent, at + 1))
        text.replace(at, indent.size(), 1, '\n');
    return text;
}

std::string DocumentChanges::Text() const
{
    auto changes = m_changes;
    std::ranges::stable_sort(changes, {}, &Change::begin);
    const auto old = m_tree.Text();
    std::string text;
    text.reserve(old.size());
    std::size_t done = 0;
    for (const auto& change : changes)
    {
        text.append(old.substr(done, change.begin - done)).append(change.text);
        done = change.end;
    }
    return text.append(old.substr(done));
}

void DocumentChanges::Add(std::size_t begin, std::size_t end, std::string text)
{
    m_changes.push_back({begin, end, std::move(text)});
}

std::vector<DocumentPosition> DocumentChanges::Inside(DocumentPosition container) const
{
    std::vector<DocumentPosition> values;
    m_tree.ForEach(container, [&values](DocumentPosition value) { values.push_back(value); });
    return values;
}

/// What the line of that byte begins with.
std::string DocumentChanges::Indentation(std::size_t offset) const
{
    const auto before = m_tree.Text().substr(0, offset);
    const auto end = before.rfind('\n');
    const auto line = before.substr(end == std::string_view::npos ? 0 : end + 1);
    return std::string(line.substr(0, line.find_first_not_of(" \t")));
}

bool DocumentChanges::StartsLine(std::size_t offset) const
{
    const auto before = m_tree.Text().substr(0, offset);
    const auto last = before.find_last_not_of(" \t");
    return last != std::string_view::npos && before[last] == '\n';
}

/// What stands in front of the last value in it, or would.
std::string DocumentChanges::InnerBlanks(DocumentPosition container) const
{
    if (m_tree[container].count == 0)
        return m_lineEnd.empty() ? kOneLine : OuterBlanks(container) + kOneLevel;
    const auto& last = m_tree[Inside(container).back()];
    const auto begin = last.nameSize > 0 ? last.name : last.begin;
    return StartsLine(begin) ? m_lineEnd + Indentation(begin) : kOneLine;
}

/// The end of a line and what the line begins with on which a value begins.
std::string DocumentChanges::OuterBlanks(DocumentPosition value) const
{
    return m_lineEnd.empty() ? kOneLine : m_lineEnd + Indentation(m_tree[value].begin);
}

} // namespace Vexlor::Tool
