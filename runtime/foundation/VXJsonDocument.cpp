#include "runtime/foundation/VXJsonDocument.h"

#include "runtime/foundation/VXJson.h"

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

bool IsStart(std::uint64_t word) { return Type(word) == '{' || Type(word) == '['; }

bool IsEnd(std::uint64_t word) { return Type(word) == '}' || Type(word) == ']'; }

// Numbers have their bits there.
bool HasSecondWord(std::uint64_t word)
{
    const char type = Type(word);
    return type == 'l' || type == 'u' || type == 'd';
}

// The word behind a value; a container says where it ends.
const std::uint64_t* Behind(const std::uint64_t* tape, const std::uint64_t* word)
{
    if (IsStart(*word))
        return tape + static_cast<std::uint32_t>(*word);
    return word + (HasSecondWord(*word) ? 2 : 1);
}

// How many children a container has; the tape holds no more than 24 bits of it.
std::size_t LeastChildren(std::uint64_t container) { return (container >> 32) & 0xFFFFFF; }

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

inline std::shared_ptr<const IVXJsonValue> VXJsonView::Handle() const
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

JsonItem VXJsonView::ItemAt(std::size_t index) const { return Child(index).Self(); }

std::string_view VXJsonView::NameAt(std::size_t index) const { return Text(Child(index).m_word[-1]); }

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

int VXJsonView::Size() const
{
    constexpr std::uint32_t kMost = std::numeric_limits<int>::max();
    return IsA('[') ? static_cast<int>(std::min(m_count, kMost)) : 0;
}

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
    if (const auto error = parser.parse_into_document(m_document, text.data(), text.size(), false).error())
        return error;
    return BuildViews();
}

simdjson::error_code VXJsonDocument::BuildViews()
{
    std::size_t count = 1;
    // An empty container inside the deepest one is no level to simdjson, but it is one to us.
    if (Depth(count) > kJsonMaxDepth)
        return simdjson::DEPTH_ERROR;
    m_views.reserve(count);
    m_views.emplace_back(this, m_document.tape.get() + 1);
    for (std::size_t parent = 0; parent < m_views.size(); ++parent)
        AppendChildren(parent);
    return simdjson::SUCCESS;
}

// How deep the containers are nested; adds to count how many values they hold, as far as they tell.
int VXJsonDocument::Depth(std::size_t& count) const
{
    const std::uint64_t* const tape = m_document.tape.get();
    const std::uint64_t* const end = tape + static_cast<std::uint32_t>(tape[0]) - 1;
    int depth = 0;
    int deepest = 0;
    for (const std::uint64_t* word = tape + 1; word < end; word += HasSecondWord(*word) ? 2 : 1)
        if (IsStart(*word))
        {
            count += LeastChildren(*word);
            deepest = std::max(deepest, ++depth);
        }
        else if (IsEnd(*word))
            --depth;
    return deepest;
}

void VXJsonDocument::AppendChildren(std::size_t parent)
{
    const std::uint64_t* const start = m_views[parent].m_word;
    if (!IsStart(*start))
        return;
    const std::uint64_t* const tape = m_document.tape.get();
    const std::uint64_t* const end = Behind(tape, start) - 1;
    const int name = m_views[parent].IsA('{') ? 1 : 0;
    const std::size_t first = m_views.size();
    for (const std::uint64_t* word = start + 1; word < end; word = Behind(tape, word + name))
        m_views.emplace_back(this, word + name);
    m_views[parent].m_first = static_cast<std::uint32_t>(first);
    m_views[parent].m_count = static_cast<std::uint32_t>(m_views.size() - first);
}

} // namespace Vexlor
