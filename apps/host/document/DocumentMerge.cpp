#include "DocumentMerge.h"

#include "DocumentChanges.h"
#include "DocumentTree.h"
#include "runtime/foundation/VXJson.h"

#include "IVXJsonValue.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

/// A value in the document, in what was read of it, and in what that has become.
struct Versions
{
    DocumentPosition text;
    DocumentPosition before;
    DocumentPosition after;
};

class Merge
{
public:
    Merge(const std::string& text, const std::string& before, const std::string& after)
        : m_text(text), m_before(before), m_after(after), m_changes(m_text)
    {
    }

    std::string Text()
    {
        MergeValue({0, 0, 0});
        return m_changes.Text();
    }

private:
    void MergeValue(const Versions& value);
    void MergeObject(const Versions& object);
    void MergeMember(const Versions& object, DocumentPosition member);
    bool IsReadOtherwise(const Versions& member) const;
    void MergeArray(const Versions& array);
    void MatchElements(const Versions& array);

    std::string NewText(DocumentPosition after) const
    {
        return JsonText(*ParseJson(m_after.Source(after)), JsonStyle::Indented);
    }

    const DocumentTree m_text;
    const DocumentTree m_before;
    const DocumentTree m_after;
    DocumentChanges m_changes;
};

std::vector<DocumentPosition> Elements(const DocumentTree& tree, DocumentPosition array)
{
    std::vector<DocumentPosition> elements;
    tree.ForEach(array, [&elements](DocumentPosition element) { elements.push_back(element); });
    return elements;
}

void Merge::MergeValue(const Versions& value)
{
    if (m_before.Source(value.before) == m_after.Source(value.after))
        return;
    const auto kind = m_text[value.text].kind;
    const bool isAlike = m_before[value.before].kind == kind && m_after[value.after].kind == kind;
    if (isAlike && kind == DocumentKind::Object)
        MergeObject(value);
    else if (isAlike && kind == DocumentKind::Array)
        MergeArray(value);
    else
        m_changes.Replace(value.text, NewText(value.after));
}

void Merge::MergeObject(const Versions& object)
{
    m_after.ForEach(object.after, [&](DocumentPosition member) { MergeMember(object, member); });
}

void Merge::MergeMember(const Versions& object, DocumentPosition member)
{
    const auto name = m_after.NameOf(member);
    const auto before = m_before.Find(object.before, name);
    const auto text = m_text.Find(object.text, name);
    const bool isSame = before && m_before.Source(*before) == m_after.Source(member);
    if (text && before && IsReadOtherwise({*text, *before, member}))
        m_changes.Replace(*text, NewText(member));
    else if (text && before)
        MergeValue({*text, *before, member});
    else if (!isSame)
        m_changes.SetMember(object.text, name, NewText(member));
}

// A list that was completed while it was read, and the index that moved with it, go together: in an object
// that changes both are written as they were read.
bool Merge::IsReadOtherwise(const Versions& member) const
{
    const auto& text = m_text[member.text];
    const auto& before = m_before[member.before];
    if (text.kind != before.kind)
        return false;
    if (text.kind == DocumentKind::Integer)
        return m_text.Source(member.text) != m_before.Source(member.before);
    return text.kind == DocumentKind::Array && text.count != before.count;
}

void Merge::MergeArray(const Versions& array)
{
    const auto text = Elements(m_text, array.text);
    const auto before = Elements(m_before, array.before);
    const auto after = Elements(m_after, array.after);
    if (text.size() != before.size() || before.size() > after.size())
        return MatchElements(array);
    const auto isSame = [&](DocumentPosition one, DocumentPosition other)
    { return m_before.Source(one) == m_after.Source(other); };
    const bool isAppended = before.size() < after.size() && !before.empty();
    if (before.size() != after.size() &&
        !(isAppended && std::equal(before.begin(), before.end(), after.begin(), isSame)))
        return MatchElements(array);
    for (std::size_t i = 0; i < before.size(); ++i)
        MergeValue({text[i], before[i], after[i]});
    std::vector<std::string> added;
    for (std::size_t i = before.size(); i < after.size(); ++i)
        added.push_back(NewText(after[i]));
    m_changes.Insert(array.text, static_cast<std::uint32_t>(before.size()), added);
}

// What stays is taken from the document, wherever it goes.
void Merge::MatchElements(const Versions& array)
{
    const auto text = Elements(m_text, array.text);
    auto before = Elements(m_before, array.before);
    if (text.size() != before.size())
        before.clear();
    std::vector<bool> isUsed(before.size());
    std::vector<std::string> elements;
    m_after.ForEach(array.after,
                    [&](DocumentPosition element)
                    {
                        std::size_t i = 0;
                        while (i < before.size() &&
                               (isUsed[i] || m_before.Source(before[i]) != m_after.Source(element)))
                            ++i;
                        const bool isKept = i < before.size();
                        elements.push_back(isKept ? m_changes.Lifted(text[i]) : NewText(element));
                        if (isKept)
                            isUsed[i] = true;
                    });
    m_changes.Refill(array.text, elements);
}

} // namespace

std::string MergedText(const std::string& text, const std::string& before, const std::string& after)
{
    return Merge(text, before, after).Text();
}

} // namespace Vexlor::Tool
