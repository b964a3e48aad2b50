#include "runtime/foundation/VXJsonManyMembers.h"

#include <algorithm>
#include <utility>

namespace Vexlor
{

namespace
{

// Room for most codec presets at once, in a block that malloc keeps at hand.
constexpr std::size_t kFirstText = 1000;
constexpr std::size_t kFirstPlaces = 24;

// For one element more.
template <class Element>
void MakeRoom(std::vector<Element>& elements)
{
    if (elements.size() == elements.capacity())
        elements.reserve(2 * elements.size() + 1);
}

// Opens the gap at the end of a text, and closes it again unless what was put there is kept.
class LastGap
{
public:
    explicit LastGap(std::string& text) : m_text(text), m_end(text.size() - 1) { text.pop_back(); }
    LastGap(const LastGap&) = delete;
    LastGap& operator=(const LastGap&) = delete;
    ~LastGap()
    {
        m_text.resize(m_end);
        m_text += ','; // it had room before
    }

    void Keep() { m_end = m_text.size(); }

private:
    std::string& m_text;
    std::size_t m_end;
};

} // namespace

VXJsonManyMembers::VXJsonManyMembers()
{
    m_text.reserve(kFirstText);
    m_places.reserve(kFirstPlaces);
}

void VXJsonManyMembers::Clear() noexcept
{
    m_text.resize(1);
    m_places.clear();
    m_gaps.clear();
    m_hashes.reset();
    m_textDepth = 0;
    m_isLastNew = false;
}

inline std::string_view VXJsonManyMembers::Name(const Place& place) const
{
    return std::string_view(m_text).substr(place.start + 1, place.nameSize);
}

std::size_t VXJsonManyMembers::ValueStart(std::size_t index) const
{
    return m_places[index].start + m_places[index].nameSize + kJsonMarks - 1;
}

std::size_t VXJsonManyMembers::ValueEnd(std::size_t index) const
{
    return (index + 1 == Count() ? m_text.size() : m_places[index + 1].start) - 1;
}

// The gap of that member or behind it.
std::size_t VXJsonManyMembers::FindGap(std::size_t index) const
{
    const auto gap = std::ranges::lower_bound(m_gaps, index, {}, &Gap::index);
    return static_cast<std::size_t>(gap - m_gaps.begin());
}

JsonMember VXJsonManyMembers::At(std::size_t index) const
{
    const std::size_t start = ValueStart(index);
    const std::size_t gap = FindGap(index);
    const bool isChild = gap < m_gaps.size() && m_gaps[gap].index == index;
    return {.name = Name(m_places[index]),
            .value = std::string_view(m_text).substr(start, ValueEnd(index) - start),
            .child = isChild ? &m_gaps[gap].child : nullptr};
}

std::size_t VXJsonManyMembers::Find(std::string_view name, std::size_t hash) const
{
    if (!m_hashes.test(hash % kHashes))
        return Count();
    const auto isIt = [&](const Place& place) { return place.hash == hash && Name(place) == name; };
    return static_cast<std::size_t>(std::ranges::find_if(m_places, isIt) - m_places.begin());
}

inline void VXJsonManyMembers::Append(std::string_view name, std::size_t hash, std::string_view value)
{
    MakeRoom(m_places); // so that what follows the text cannot fail
    const std::size_t start = m_text.size();
    m_text.resize(start + name.size() + value.size() + kJsonMarks);
    PutJsonMember(m_text.data() + start, name, value);
    m_places.push_back({.start = start, .nameSize = name.size(), .hash = hash});
    m_hashes.set(hash % kHashes);
    m_isLastNew = false;
}

void VXJsonManyMembers::Set(std::string_view name, std::string_view value)
{
    const std::size_t hash = JsonNameHash(name);
    const std::size_t index = Find(name, hash);
    index == Count() ? Append(name, hash, value) : Replace(index, value);
}

void VXJsonManyMembers::Set(std::string_view name, const JsonChild& child)
{
    MakeRoom(m_gaps);
    const std::size_t hash = JsonNameHash(name);
    const std::size_t index = Find(name, hash);
    if (index == Count())
    {
        Append(name, hash, std::string_view());
        m_gaps.push_back({.index = index, .child = child});
        m_isLastNew = true;
        return;
    }
    Replace(index, std::string_view());
    m_gaps.insert(m_gaps.begin() + static_cast<std::ptrdiff_t>(FindGap(index)),
                  {.index = index, .child = child});
}

void VXJsonManyMembers::Replace(std::size_t index, std::string_view value)
{
    const std::size_t start = ValueStart(index);
    const std::size_t size = ValueEnd(index) - start;
    m_text.replace(start, size, value);
    for (std::size_t behind = index + 1; behind < Count(); ++behind)
        m_places[behind].start += value.size() - size;
    if (const auto gap = FindGap(index); gap < m_gaps.size() && m_gaps[gap].index == index)
        m_gaps.erase(m_gaps.begin() + static_cast<std::ptrdiff_t>(gap));
}

void VXJsonManyMembers::FinishLast(JsonFinish finish)
{
    if (!std::exchange(m_isLastNew, false))
        return;
    int depth = m_textDepth;
    LastGap gap(m_text);
    if (!finish(m_text, m_gaps.back().child, depth))
        return;
    gap.Keep();
    m_textDepth = depth;
    m_gaps.pop_back();
}

bool VXJsonManyMembers::NextWritten(std::size_t& cursor, std::string_view& text,
                                    const JsonChild*& child) const
{
    if (cursor > m_gaps.size())
        return false;
    const bool isLast = cursor == m_gaps.size();
    const std::size_t start = cursor == 0 ? 1 : ValueStart(m_gaps[cursor - 1].index);
    const std::size_t end = isLast ? m_text.size() - 1 : ValueStart(m_gaps[cursor].index);
    text = std::string_view(m_text).substr(start, end - start);
    child = isLast ? nullptr : &m_gaps[cursor].child;
    ++cursor;
    return true;
}

JsonChildren VXJsonManyMembers::TakeChildren()
{
    JsonChildren children;
    children.reserve(m_gaps.size());
    for (auto& gap : m_gaps)
        children.push_back(std::move(gap.child));
    return children;
}

} // namespace Vexlor
