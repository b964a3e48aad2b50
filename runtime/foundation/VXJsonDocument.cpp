#include "runtime/foundation/VXJsonDocument.h"

#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXLargePages.h"
#include "runtime/foundation/VXPrefetch.h"

#include <algorithm>
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

bool IsContainer(std::uint64_t word) { return Type(word) == '{' || Type(word) == '['; }

// The word behind a value. Numbers have their bits in a second word; a container says where it ends. Asked as
// questions, whose answers the processor guesses: it need not wait for one word to find the next.
const std::uint64_t* Behind(const std::uint64_t* tape, const std::uint64_t* word)
{
    switch (Type(*word))
    {
    case '{':
    case '[':
        return tape + static_cast<std::uint32_t>(*word);
    case 'l':
    case 'u':
    case 'd':
        return word + 2;
    default:
        return word + 1;
    }
}

} // namespace

std::shared_ptr<const IVXJsonValue> JsonNull() { return WithoutOwner(kNull); }

std::shared_ptr<const IVXJsonValue> JsonEmptyArray() { return WithoutOwner(kEmptyArray); }

inline const std::uint64_t* VXJsonView::Tape() const { return m_document->m_document.tape.get(); }

// The last word of a container.
inline const std::uint64_t* VXJsonView::End() const { return Behind(Tape(), m_word) - 1; }

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

inline VXJsonView::Member VXJsonView::FindMember(std::string_view name) const
{
    if (!IsA('{'))
        return {};
    const std::uint64_t* const tape = Tape();
    const std::uint64_t* const end = End();
    Member member{.name = m_word + 1, .containersBefore = 0};
    while (member.name != end && Text(*member.name) != name)
    {
        member.containersBefore += IsContainer(member.name[1]) ? 1 : 0;
        member.name = Behind(tape, member.name + 1);
    }
    return member.name == end ? Member() : member;
}

std::shared_ptr<const IVXJsonValue> VXJsonView::Handle() const
{
    return {m_document->shared_from_this(), this};
}

// A scalar member has no view of its own; whoever wants a handle to it gets one.
std::shared_ptr<const IVXJsonValue> VXJsonView::ScalarHandle(const std::uint64_t* word) const
{
    struct Scalar
    {
        std::shared_ptr<const VXJsonDocument> document;
        VXJsonView view;
    };
    auto scalar = std::make_shared<Scalar>(Scalar{m_document->shared_from_this(), {m_document, word}});
    return {scalar, &scalar->view};
}

// The scalar itself, or the view of the child of that number.
inline JsonItem VXJsonView::ItemAt(const std::uint64_t* word, std::size_t child) const
{
    JsonItem item{.kind = KindOf(Type(*word)), .bits = 0, .text = {}, .node = nullptr};
    if (item.kind == JsonKind::String)
        item.text = Text(*word);
    else if (item.kind == JsonKind::Bool)
        item.bits = Type(*word) == 't';
    else if (item.kind == JsonKind::Int64 || item.kind == JsonKind::Uint64 || item.kind == JsonKind::Double)
        item.bits = word[1];
    else if (item.kind != JsonKind::Null)
        item.node = &Child(child);
    return item;
}

JsonItem VXJsonView::Self() const
{
    if (!IsContainer(*m_word))
        return ItemAt(m_word, 0);
    return {.kind = KindOf(Type(*m_word)), .bits = 0, .text = {}, .node = this};
}

JsonItem VXJsonView::Find(std::string_view name) const
{
    const Member member = FindMember(name);
    return member.name ? ItemAt(member.name + 1, member.containersBefore) : JsonItem();
}

bool VXJsonView::Next(JsonCursor& cursor, JsonEntry& entry) const
{
    return IsA('{') ? NextMember(cursor, entry) : NextElement(cursor, entry);
}

bool VXJsonView::NextMember(JsonCursor& cursor, JsonEntry& entry) const
{
    const std::uint64_t* const name = m_word + 1 + cursor.at;
    if (name == End())
        return false;
    entry = {.name = Text(*name), .item = ItemAt(name + 1, cursor.child)};
    cursor.child += IsContainer(name[1]) ? 1 : 0;
    cursor.at = static_cast<std::size_t>(Behind(Tape(), name + 1) - (m_word + 1));
    return true;
}

bool VXJsonView::NextElement(JsonCursor& cursor, JsonEntry& entry) const
{
    if (cursor.at == m_count)
        return false;
    entry = {.name = {}, .item = Child(cursor.at++).Self()};
    return true;
}

std::shared_ptr<const IVXJsonValue> VXJsonView::operator[](std::string_view name) const
{
    const Member member = FindMember(name);
    if (!member.name)
        return JsonNull();
    return IsContainer(member.name[1]) ? Child(member.containersBefore).Handle()
                                       : ScalarHandle(member.name + 1);
}

std::shared_ptr<const IVXJsonValue> VXJsonView::GetValueArray(std::string_view name) const
{
    const Member member = FindMember(name);
    const bool isArray = member.name && Type(member.name[1]) == '[';
    return isArray ? Child(member.containersBefore).Handle() : JsonEmptyArray();
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
    m_views.reserve(words / 4); // most take four words and more, with their members or ends
    UseLargePages(m_views.data(), m_views.capacity() * sizeof(VXJsonView));
    m_views.emplace_back(this, tape + 1);
    // Children follow their parent at once, while its part of the tape is still at hand.
    std::vector<Siblings> open{{.next = 0, .end = 1}};
    while (!open.empty())
    {
        if (open.back().next == open.back().end)
        {
            open.pop_back();
            continue;
        }
        const std::size_t parent = open.back().next++;
        if (!IsContainer(*m_views[parent].m_word))
            continue;
        // simdjson does not count an empty container inside the deepest one.
        if (open.size() > kJsonMaxDepth)
            return simdjson::DEPTH_ERROR;
        AppendChildren(parent);
        if (const auto& view = m_views[parent]; view.m_count > 0)
            open.push_back({.next = view.m_first, .end = std::size_t{view.m_first} + view.m_count});
    }
    return simdjson::SUCCESS;
}

void VXJsonDocument::AppendChildren(std::size_t parent)
{
    // Most of the time here goes by waiting for the tape, which is larger than the caches.
    constexpr std::ptrdiff_t kAhead = 256;
    const std::uint64_t* const tape = m_document.tape.get();
    const std::uint64_t* const behindAll = tape + static_cast<std::uint32_t>(*tape);
    const std::uint64_t* const end = m_views[parent].End();
    const bool isArray = m_views[parent].IsA('[');
    const int name = isArray ? 0 : 1;
    const std::size_t first = m_views.size();
    for (const std::uint64_t* word = m_views[parent].m_word + 1; word != end; word = Behind(tape, word))
    {
        word += name;
        Prefetch(word + std::min(kAhead, behindAll - word));
        if (isArray || IsContainer(*word))
            m_views.emplace_back(this, word);
    }
    m_views[parent].m_first = static_cast<std::uint32_t>(first);
    m_views[parent].m_count = static_cast<std::uint32_t>(m_views.size() - first);
}

} // namespace Vexlor
