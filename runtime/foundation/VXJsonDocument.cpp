#include "runtime/foundation/VXJsonDocument.h"

#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonNumber.h"
#include "runtime/foundation/VXJsonReader.h"

#include <cstring>

namespace Vexlor
{

namespace
{

// A value that belongs to no document.
class Constant final : public VXJsonReadOnly<Constant>
{
public:
    constexpr explicit Constant(JsonKind kind) : m_kind(kind) {}

    JsonItem Self() const override { return {.kind = m_kind, .bits = 0, .text = {}, .node = this}; }

private:
    JsonKind m_kind;
};

constexpr Constant kNull(JsonKind::Null);
constexpr Constant kEmptyArray(JsonKind::Array);

std::shared_ptr<const IVXJsonValue> WithoutOwner(const Constant& value)
{
    return {std::shared_ptr<const void>(), &value};
}

// The first character of what stands in the text tells what it is.
inline JsonItem ItemAt(const char* text, std::size_t length)
{
    switch (text[0])
    {
    case '"':
        return {.kind = JsonKind::String, .bits = 0, .text = {text + 1, length - 2}, .node = nullptr};
    case 't':
        return {.kind = JsonKind::Bool, .bits = 1, .text = {}, .node = nullptr};
    case 'f':
        return {.kind = JsonKind::Bool, .bits = 0, .text = {}, .node = nullptr};
    case 'n':
        return {.kind = JsonKind::Null, .bits = 0, .text = {}, .node = nullptr};
    default:
        return JsonNumber({text, length});
    }
}

inline JsonItem ItemOf(const char* text, std::uint32_t value, std::uint32_t length)
{
    if (length != JsonDocumentMember::kInteger)
        return ItemAt(text + value, length);
    const std::int64_t number = static_cast<std::int32_t>(value);
    return {.kind = JsonKind::Int64, .bits = static_cast<std::uint64_t>(number), .text = {}, .node = nullptr};
}

template <class Bytes>
Bytes Load(const char* from)
{
    Bytes bytes{};
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

// Of at least as many bytes as Bytes has, and at most twice as many.
template <class Bytes>
bool IsSame(const char* a, const char* b, std::size_t size)
{
    const std::size_t last = size - sizeof(Bytes);
    return ((Load<Bytes>(a) ^ Load<Bytes>(b)) | (Load<Bytes>(a + last) ^ Load<Bytes>(b + last))) == 0;
}

// Names are compared by the hundred thousand, and most are too short to be worth a call.
inline bool IsSameName(std::string_view a, std::string_view b)
{
    const std::size_t size = a.size();
    if (size != b.size())
        return false;
    if (size > 2 * sizeof(std::uint64_t) || size < sizeof(std::uint16_t))
        return a == b;
    if (size >= sizeof(std::uint64_t))
        return IsSame<std::uint64_t>(a.data(), b.data(), size);
    return size >= sizeof(std::uint32_t) ? IsSame<std::uint32_t>(a.data(), b.data(), size)
                                         : IsSame<std::uint16_t>(a.data(), b.data(), size);
}

} // namespace

std::shared_ptr<const IVXJsonValue> JsonNull() { return WithoutOwner(kNull); }

std::shared_ptr<const IVXJsonValue> JsonEmptyArray() { return WithoutOwner(kEmptyArray); }

inline const char* VXJsonView::Text() const { return m_document->m_text.data(); }

inline const VXJsonView& VXJsonView::View(std::size_t number) const
{
    return m_document->m_content.views[number];
}

inline const JsonDocumentMember* VXJsonView::FindMember(std::string_view name) const
{
    if (m_kind != JsonKind::Object)
        return nullptr;
    const char* const text = Text();
    const JsonDocumentMember* const first = m_document->m_content.members.data() + m_first;
    for (const auto* member = first; member != first + m_count; ++member)
        if (IsSameName(name, {text + member->name, member->nameLength}))
            return member;
    return nullptr;
}

std::shared_ptr<const IVXJsonValue> VXJsonView::Handle() const
{
    return {m_document->shared_from_this(), this};
}

inline JsonItem VXJsonView::Item(const JsonDocumentMember& member) const
{
    return member.IsContainer() ? View(member.value).Self() : ItemOf(Text(), member.value, member.length);
}

inline JsonItem VXJsonView::Find(std::string_view name) const
{
    const auto* const member = FindMember(name);
    return member ? Item(*member) : JsonItem();
}

JsonItem VXJsonView::Self() const
{
    if (m_kind == JsonKind::Text)
        return ItemOf(Text(), m_first, m_count);
    return {.kind = m_kind, .bits = 0, .text = {}, .node = this};
}

bool VXJsonView::Next(JsonCursor& cursor, JsonEntry& entry) const
{
    if (m_kind == JsonKind::Text || cursor.at == m_count)
        return false;
    const std::size_t at = m_first + cursor.at++;
    if (m_kind == JsonKind::Array)
    {
        entry = {.name = {}, .item = View(at).Self()};
        return true;
    }
    const auto& member = m_document->m_content.members[at];
    entry = {.name = {Text() + member.name, member.nameLength}, .item = Item(member)};
    return true;
}

std::shared_ptr<const IVXJsonValue> VXJsonView::operator[](std::string_view name) const
{
    // A scalar member has no view of its own; whoever wants a handle to it gets one.
    struct Scalar
    {
        std::shared_ptr<const VXJsonDocument> document;
        VXJsonView view;
    };
    const auto* const member = FindMember(name);
    if (!member)
        return JsonNull();
    if (member->IsContainer())
        return View(member->value).Handle();
    auto scalar = std::make_shared<Scalar>(
        Scalar{m_document->shared_from_this(), {*m_document, JsonKind::Text, member->value, member->length}});
    return {scalar, &scalar->view};
}

std::shared_ptr<const IVXJsonValue> VXJsonView::GetValueArray(std::string_view name) const
{
    const auto* const member = FindMember(name);
    const bool isArray = member && member->IsContainer() && View(member->value).m_kind == JsonKind::Array;
    // An empty one needs no owner.
    return isArray && View(member->value).m_count > 0 ? View(member->value).Handle() : JsonEmptyArray();
}

int VXJsonView::Size() const { return m_kind == JsonKind::Array ? SizeOf(m_count) : 0; }

std::shared_ptr<const IVXJsonValue> VXJsonView::At(int index) const
{
    return index >= 0 && index < Size() ? View(m_first + static_cast<std::size_t>(index)).Handle()
                                        : JsonNull();
}

bool VXJsonDocument::Read(std::string text)
{
    m_size = text.size();
    m_text = std::move(text);
    m_text.append(kJsonRoom, ' ');
    VXJsonIndex index;
    return index.Read(Text()) && ReadContent(index, m_text.data(), *this, m_content);
}

std::shared_ptr<const IVXJsonValue> VXJsonDocument::Root() const { return m_content.views.back().Handle(); }

} // namespace Vexlor
