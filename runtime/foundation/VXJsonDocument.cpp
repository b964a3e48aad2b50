#include "runtime/foundation/VXJsonDocument.h"

#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXLargePages.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace Vexlor
{

namespace
{

constexpr std::uint64_t Word(char type) { return static_cast<std::uint64_t>(type) << 56; }

constexpr char Type(std::uint64_t word) { return static_cast<char>(word >> 56); }

constexpr std::uint64_t kNullWord = Word('n');
constexpr std::uint64_t kArrayWord = Word('[');
constexpr VXJsonView kNull(nullptr, &kNullWord);
constexpr VXJsonView kEmptyArray(nullptr, &kArrayWord);

std::shared_ptr<const IVXJsonValue> WithoutOwner(const VXJsonView& view)
{
    return {std::shared_ptr<const void>(), &view};
}

JsonKind KindOf(char type)
{
    switch (type)
    {
    case '{':
        return JsonKind::Object;
    case '[':
        return JsonKind::Array;
    case '"':
        return JsonKind::String;
    case 'l':
        return JsonKind::Int64;
    case 'u':
        return JsonKind::Uint64;
    case 'd':
        return JsonKind::Double;
    case 't':
    case 'f':
        return JsonKind::Bool;
    default:
        return JsonKind::Null;
    }
}

// How many words a value takes, by its type: numbers have their bits in a second one. 0 for containers.
constexpr std::array<std::uint8_t, 256> LengthTable()
{
    std::array<std::uint8_t, 256> table{};
    table.fill(1);
    table['l'] = table['u'] = table['d'] = 2;
    table['{'] = table['['] = 0;
    return table;
}

constexpr auto kLengths = LengthTable();

bool IsContainer(std::uint64_t word) { return kLengths[word >> 56] == 0; }

// The word behind a value; a container says where that is.
const std::uint64_t* Behind(const std::uint64_t* tape, const std::uint64_t* word)
{
    const std::size_t length = kLengths[*word >> 56];
    return length == 0 ? tape + static_cast<std::uint32_t>(*word) : word + length;
}

} // namespace

std::shared_ptr<const IVXJsonValue> JsonNull() { return WithoutOwner(kNull); }

std::shared_ptr<const IVXJsonValue> JsonEmptyArray() { return WithoutOwner(kEmptyArray); }

inline std::string_view VXJsonView::Text(std::uint64_t word) const
{
    constexpr std::uint64_t kPayload = (std::uint64_t{1} << 56) - 1;
    const std::uint8_t* start = m_document->m_document.string_buf.get() + (word & kPayload);
    std::uint32_t length = 0;
    std::memcpy(&length, start, sizeof length);
    return {reinterpret_cast<const char*>(start + sizeof length), length};
}

inline const VXJsonView& VXJsonView::Child(std::size_t index) const
{
    return m_document->m_views[m_first + index];
}

inline const VXJsonView* VXJsonView::FindView(std::string_view name) const
{
    if (!IsA('{') || m_count == 0)
        return nullptr;
    const VXJsonView* child = &Child(0);
    const VXJsonView* const end = child + m_count;
    while (child != end && Text(child->m_word[-1]) != name)
        ++child;
    return child == end ? nullptr : child;
}

std::shared_ptr<const IVXJsonValue> VXJsonView::Handle() const
{
    return {m_document->shared_from_this(), this};
}

JsonItem VXJsonView::Self() const
{
    JsonItem item{.kind = KindOf(Type(*m_word)), .bits = 0, .text = {}, .node = this};
    if (item.kind == JsonKind::String)
        item.text = Text(*m_word);
    else if (item.kind == JsonKind::Bool)
        item.bits = IsA('t');
    else if (item.kind == JsonKind::Int64 || item.kind == JsonKind::Uint64 || item.kind == JsonKind::Double)
        item.bits = m_word[1];
    return item;
}

JsonItem VXJsonView::Find(std::string_view name) const
{
    const VXJsonView* member = FindView(name);
    return member ? member->Self() : JsonItem();
}

bool VXJsonView::Next(std::size_t& cursor, JsonEntry& entry) const
{
    if (cursor == m_count)
        return false;
    const VXJsonView& child = Child(cursor++);
    entry.name = IsA('{') ? Text(child.m_word[-1]) : std::string_view();
    entry.item = child.Self();
    return true;
}

std::shared_ptr<const IVXJsonValue> VXJsonView::operator[](std::string_view name) const
{
    const VXJsonView* member = FindView(name);
    return member ? member->Handle() : JsonNull();
}

std::shared_ptr<const IVXJsonValue> VXJsonView::GetValueArray(std::string_view name) const
{
    const VXJsonView* member = FindView(name);
    return member && member->IsA('[') ? member->Handle() : JsonEmptyArray();
}

int VXJsonView::Size() const { return IsA('[') ? SizeOf(m_count) : 0; }

std::shared_ptr<const IVXJsonValue> VXJsonView::At(int index) const
{
    return index >= 0 && index < Size() ? Child(static_cast<std::size_t>(index)).Handle() : JsonNull();
}

std::shared_ptr<const IVXJsonValue> VXJsonDocument::Root() const { return m_views.front().Handle(); }

simdjson::error_code VXJsonDocument::Parse(std::string_view text)
{
    simdjson::dom::parser parser;
    // simdjson counts the document itself as a level.
    if (const auto error = parser.allocate(text.size(), kJsonMaxDepth + 1))
        return error;
    if (const auto error = m_document.allocate(text.size()))
        return error;
    UseLargePages(m_document.tape.get(), text.size() * sizeof(std::uint64_t));
    UseLargePages(m_document.string_buf.get(), text.size());
    if (const auto error = parser.parse_into_document(m_document, text.data(), text.size(), false).error())
        return error;
    return BuildViews();
}

simdjson::error_code VXJsonDocument::BuildViews()
{
    const std::uint64_t* const tape = m_document.tape.get();
    const auto words = static_cast<std::uint32_t>(tape[0]);
    m_views.reserve(words / 2); // most values take two words and more, with their names or ends
    UseLargePages(m_views.data(), m_views.capacity() * sizeof(VXJsonView));
    m_views.emplace_back(this, tape + 1);
    int depth = 0;
    for (std::size_t parent = 0, nextLevel = 0; parent < m_views.size(); ++parent)
    {
        if (parent == nextLevel)
        {
            nextLevel = m_views.size();
            ++depth;
        }
        if (!IsContainer(*m_views[parent].m_word))
            continue;
        // simdjson does not count an empty container inside the deepest one.
        if (depth > kJsonMaxDepth)
            return simdjson::DEPTH_ERROR;
        AppendChildren(parent);
    }
    return simdjson::SUCCESS;
}

void VXJsonDocument::AppendChildren(std::size_t parent)
{
    const std::uint64_t* const tape = m_document.tape.get();
    const std::uint64_t* const start = m_views[parent].m_word;
    const std::uint64_t* const end = Behind(tape, start) - 1;
    const int name = m_views[parent].IsA('{') ? 1 : 0;
    const std::size_t first = m_views.size();
    for (const std::uint64_t* word = start + 1; word < end; word = Behind(tape, word + name))
        m_views.emplace_back(this, word + name);
    m_views[parent].m_first = static_cast<std::uint32_t>(first);
    m_views[parent].m_count = static_cast<std::uint32_t>(m_views.size() - first);
}

} // namespace Vexlor
