#include "runtime/foundation/VXJsonDocument.h"

#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXLargePages.h"

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

JsonBits BitsAt(const std::uint64_t* word)
{
    switch (Type(*word))
    {
    case 'l':
        return {JsonKind::Int64, word[1]};
    case '"':
        return {JsonKind::String, 0};
    case '{':
        return {JsonKind::Object, 0};
    case '[':
        return {JsonKind::Array, 0};
    case 'u':
        return {JsonKind::Uint64, word[1]};
    case 'd':
        return {JsonKind::Double, word[1]};
    case 't':
        return {JsonKind::Bool, 1};
    case 'f':
        return {JsonKind::Bool, 0};
    default:
        return {JsonKind::Null, 0};
    }
}

std::shared_ptr<const IVXJsonValue> WithoutOwner(const VXJsonView& view)
{
    return {std::shared_ptr<const void>(), &view};
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
    if (IsContainer(*word))
        return Child(child).Self();
    const auto [kind, bits] = BitsAt(word);
    const auto text = kind == JsonKind::String ? Text(*word) : std::string_view();
    return {.kind = kind, .bits = bits, .text = text, .node = nullptr};
}

JsonItem VXJsonView::Self() const
{
    if (!IsContainer(*m_word))
        return ItemAt(m_word, 0);
    return {.kind = BitsAt(m_word).kind, .bits = 0, .text = {}, .node = this};
}

JsonBits VXJsonView::FindBits(std::string_view name) const
{
    const Member member = FindMember(name);
    return member.name ? BitsAt(member.name + 1) : JsonBits();
}

std::string_view VXJsonView::FindText(std::string_view name) const
{
    const Member member = FindMember(name);
    return member.name && Type(member.name[1]) == '"' ? Text(member.name[1]) : std::string_view();
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

std::shared_ptr<const IVXJsonValue> VXJsonDocument::Root() const { return m_views.back().Handle(); }

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

// Walks the tape once, from front to back. A view is pending until its container ends: then all of the
// container's children are there and take their places, next to each other.
simdjson::error_code VXJsonDocument::BuildViews()
{
    const std::uint64_t* const tape = m_document.tape.get();
    const std::uint64_t* const end = tape + static_cast<std::uint32_t>(*tape) - 1;
    m_views.reserve(static_cast<std::size_t>(end - tape) / 4); // most take four words and more
    UseLargePages(m_views.data(), m_views.capacity() * sizeof(VXJsonView));
    std::vector<VXJsonView> pending;
    std::vector<OpenContainer> open;
    for (const std::uint64_t* word = tape + 1; word != end;)
    {
        const bool isMember = !open.empty() && open.back().isObject;
        if (isMember && Type(*word) != '}')
            ++word; // its name
        switch (Type(*word))
        {
        case '{':
        case '[':
            // simdjson does not count an empty container inside the deepest one.
            if (open.size() == kJsonMaxDepth)
                return simdjson::DEPTH_ERROR;
            open.push_back({.word = word, .children = pending.size(), .isObject = Type(*word) == '{'});
            ++word;
            break;
        case '}':
        case ']':
            Close(open.back(), pending);
            open.pop_back();
            ++word;
            break;
        default:
            if (!isMember)
                pending.emplace_back(this, word);
            word = Behind(tape, word);
        }
    }
    m_views.push_back(pending.front());
    return simdjson::SUCCESS;
}

void VXJsonDocument::Close(const OpenContainer& container, std::vector<VXJsonView>& pending)
{
    VXJsonView view(this, container.word);
    view.m_first = static_cast<std::uint32_t>(m_views.size());
    view.m_count = static_cast<std::uint32_t>(pending.size() - container.children);
    const auto children = pending.begin() + static_cast<std::ptrdiff_t>(container.children);
    m_views.insert(m_views.end(), children, pending.end());
    pending.erase(children, pending.end());
    pending.push_back(view);
}

} // namespace Vexlor
