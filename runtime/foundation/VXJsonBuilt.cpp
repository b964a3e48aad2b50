#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonEscape.h"
#include "runtime/foundation/VXJsonHandles.h"
#include "runtime/foundation/VXJsonMembers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <typeinfo>
#include <utility>

namespace Vexlor
{

namespace
{

constexpr std::string_view kTrue = "true";
constexpr std::string_view kFalse = "false";

// A child, of whatever kind: the child itself knows.
constexpr JsonKind kChild = JsonKind::Absent;

template <class Class>
bool IsA(const IVXJsonValue& value)
{
    return typeid(value) == typeid(Class);
}

JsonItem ItemOf(const JsonHandle& handle);
void SettleArraysOf(const JsonHandle& handle);
std::shared_ptr<const IVXJsonValue> Readable(const JsonHandle& handle);

// Appends a value as compact text: a settled array, or an object with no more than so many levels of objects.
// False, and perhaps a part, when it is something else, when some of it is not at hand as text, and when
// somebody else holds it, who may change it.
bool WriteDown(const JsonHandle& handle, std::string& text, int levels);

JsonItem ScalarItem(JsonKind kind, std::string_view value)
{
    JsonItem item{.kind = kind, .bits = 0, .text = {}, .node = nullptr};
    std::int64_t number = 0;
    switch (kind)
    {
    case JsonKind::String:
        item.text = value;
        break;
    case JsonKind::Bool:
        item.bits = value == kTrue;
        break;
    default:
        std::from_chars(value.data(), value.data() + value.size(), number);
        item.bits = std::bit_cast<std::uint64_t>(number);
    }
    return item;
}

// A scalar member as it was when it was looked up.
class VXJsonScalar final : public VXJsonReadOnly<VXJsonScalar>
{
public:
    VXJsonScalar(JsonKind kind, std::string_view value) : m_kind(kind), m_value(value) {}

    JsonItem Self() const override { return ScalarItem(m_kind, m_value); }

private:
    JsonKind m_kind;
    std::string m_value;
};

class VXJsonArray final : public VXJsonReadOnly<VXJsonArray>
{
public:
    explicit VXJsonArray(JsonHandles elements) : m_elements(std::move(elements)) {}
    VXJsonArray(const VXJsonArray&) = delete;
    VXJsonArray& operator=(const VXJsonArray&) = delete;
    ~VXJsonArray() { LetGoOf(std::move(m_elements)); }

    JsonItem Self() const override
    {
        const bool isText = !m_text.empty();
        return {.kind = JsonKind::Array, .bits = 0, .text = m_text, .node = isText ? nullptr : this};
    }
    bool Next(JsonCursor& cursor, JsonEntry& entry) const override
    {
        if (cursor.at == m_elements.size())
            return false;
        entry.item = ItemOf(m_elements[cursor.at++]);
        return true;
    }

    int Size() const override { return SizeOf(m_elements.size()); }
    std::shared_ptr<const IVXJsonValue> At(int index) const override
    {
        return index >= 0 && index < Size() ? Readable(m_elements[static_cast<std::size_t>(index)])
                                            : JsonNull();
    }

    /// Keeps the array as the text that it will be written as, if nobody else holds an element; for whoever
    /// holds the only handle to it. A document is built in a fraction of the memory so, and of the time that
    /// takes.
    void Settle()
    {
        // Longer ones stay as they are, or the text would be copied once more at every level of a tree.
        constexpr std::size_t kMostText = 65536;
        constexpr int kLevels = 2;
        constexpr std::size_t kUsualText = 40; // of an element
        std::string text;
        text.reserve(kUsualText * m_elements.size());
        for (const auto& element : m_elements)
            if (text.size() > kMostText ||
                !WriteDown(element, text.append(1, text.empty() ? '[' : ','), kLevels))
                return;
        m_text = std::move(text.append(1, ']'));
        m_elements.clear();
    }

    /// Empty until it is settled.
    const std::string& Text() const { return m_text; }

private:
    JsonHandles m_elements;
    std::string m_text;
};

// Null until the first member is set.
class VXJsonObject final : public VXJsonGetters<VXJsonObject>
{
public:
    VXJsonObject() = default;
    VXJsonObject(const VXJsonObject&) = delete;
    VXJsonObject& operator=(const VXJsonObject&) = delete;
    ~VXJsonObject()
    {
        if (m_children)
            LetGoOf(std::move(*m_children));
    }

    JsonBits FindBits(std::string_view name) const
    {
        const JsonItem item = Find(name);
        return {item.kind, item.bits};
    }
    std::string_view FindText(std::string_view name) const { return Find(name).text; }

    JsonItem Self() const override
    {
        if (m_members.Empty())
            return {.kind = JsonKind::Null, .bits = 0, .text = {}, .node = nullptr};
        return {.kind = JsonKind::Object, .bits = 0, .text = {}, .node = this};
    }

    bool Next(JsonCursor& cursor, JsonEntry& entry) const override
    {
        JsonMember member;
        if (!m_members.Next(cursor.at, member))
            return false;
        entry = {.name = member.name, .item = Item(member)};
        return true;
    }
    void AppendReady(JsonCursor& cursor, std::string& text) const override;

    /// Appends the object as compact text; false, and perhaps a part, when that takes more than its scalars
    /// and settled arrays.
    bool WriteDown(std::string& text, int levels) const;
    /// Settles the arrays that nobody else holds: it is this value's turn to be put into another one.
    void SettleArrays();

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const override;
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const override
    {
        return Find(name).kind == JsonKind::Array ? (*this)[name] : JsonEmptyArray();
    }

    void SetValueInt(std::string_view name, int value) override { SetValueInt64(name, value); }
    void SetValueInt64(std::string_view name, std::int64_t value) override
    {
        std::array<char, std::numeric_limits<std::int64_t>::digits10 + 2> digits{};
        const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        Set(JsonKind::Int64, name, {digits.data(), static_cast<std::size_t>(end - digits.data())});
    }
    void SetValueBool(std::string_view name, bool value) override
    {
        Set(JsonKind::Bool, name, value ? kTrue : kFalse);
    }
    void SetValueString(std::string_view name, const std::string& value) override
    {
        Set(JsonKind::String, name, value);
    }
    void SetValueObject(std::string_view name, const JsonHandle& value) override;
    void SetValueArray(std::string_view name, const JsonHandles& values) override
    {
        if (values.empty())
            return Set(JsonKind::Array, name, "[]");
        std::ranges::for_each(values, SettleArraysOf);
        SetValueObject(name, std::make_shared<VXJsonArray>(values));
    }

private:
    // The value of a member that is a child is its place among the children.
    JsonHandle& Child(const JsonMember& member) const
    {
        std::size_t place = 0;
        std::from_chars(member.value.data(), member.value.data() + member.value.size(), place);
        return (*m_children)[place];
    }

    JsonItem Find(std::string_view name) const
    {
        JsonMember member;
        return m_members.Find(name, member) ? Item(member) : JsonItem();
    }

    JsonItem Item(const JsonMember& member) const
    {
        return member.kind == kChild ? ItemOf(Child(member)) : ScalarItem(member.kind, member.value);
    }

    void Set(JsonKind kind, std::string_view name, std::string_view value);

    VXJsonMembers m_members;
    std::unique_ptr<JsonHandles> m_children; // most objects have none
};

void VXJsonObject::AppendReady(JsonCursor& cursor, std::string& text) const
{
    JsonMember member;
    for (std::size_t next = cursor.at; m_members.Next(next, member) && !member.written.empty();)
    {
        text.append(member.written.substr(cursor.at == 0 ? 1 : 0));
        cursor.at = next;
    }
}

std::shared_ptr<const IVXJsonValue> VXJsonObject::operator[](std::string_view name) const
{
    JsonMember member;
    if (!m_members.Find(name, member))
        return JsonNull();
    if (member.kind == kChild)
        return Readable(Child(member));
    if (member.kind == JsonKind::Array)
        return JsonEmptyArray();
    return std::make_shared<VXJsonScalar>(member.kind, member.value);
}

void VXJsonObject::Set(JsonKind kind, std::string_view name, std::string_view value)
{
    JsonMember before;
    if (!m_members.Find(name, before))
        return m_members.Add(kind, name, value);
    const JsonHandle replaced = before.kind == kChild ? std::exchange(Child(before), nullptr) : nullptr;
    m_members.Replace(before, kind, value);
}

void VXJsonObject::SetValueObject(std::string_view name, const JsonHandle& value)
{
    JsonMember before;
    if (m_members.Find(name, before) && before.kind == kChild)
    {
        SettleArraysOf(value);
        Child(before) = value;
        return;
    }
    SettleArraysOf(value);
    if (!m_children)
        m_children = std::make_unique<JsonHandles>();
    m_children->push_back(value);
    Set(kChild, name, std::to_string(m_children->size() - 1));
}

bool VXJsonObject::WriteDown(std::string& text, int levels) const
{
    if (m_members.Empty())
        return false;
    text += '{';
    JsonCursor cursor;
    JsonMember member;
    for (AppendReady(cursor, text); m_members.Next(cursor.at, member); AppendReady(cursor, text))
    {
        if (member.kind != kChild || !IsPlainJson(member.name))
            return false;
        text.append(text.back() == '{' ? "\"" : ",\"").append(member.name).append("\":");
        if (!Vexlor::WriteDown(Child(member), text, levels))
            return false;
    }
    text += '}';
    return true;
}

void VXJsonObject::SettleArrays()
{
    if (!m_children)
        return;
    for (const auto& child : *m_children)
        if (child.use_count() == 1 && IsA<VXJsonArray>(*child))
            static_cast<VXJsonArray&>(*child).Settle();
}

bool WriteDown(const JsonHandle& handle, std::string& text, int levels)
{
    if (handle.use_count() != 1)
        return false;
    if (IsA<VXJsonArray>(*handle))
    {
        const auto& array = static_cast<const VXJsonArray&>(*handle).Text();
        text.append(array);
        return !array.empty();
    }
    return levels > 0 && IsA<VXJsonObject>(*handle) &&
           static_cast<const VXJsonObject&>(*handle).WriteDown(text, levels - 1);
}

void SettleArraysOf(const JsonHandle& handle)
{
    if (handle && IsA<VXJsonObject>(*handle))
        static_cast<VXJsonObject&>(*handle).SettleArrays();
}

std::shared_ptr<const IVXJsonValue> Readable(const JsonHandle& handle)
{
    if (!handle)
        return JsonNull();
    const JsonItem item = IsA<VXJsonArray>(*handle) ? ItemOf(handle) : JsonItem();
    if (!item.text.empty())
        return ParseJson(item.text);
    return handle;
}

JsonItem ItemOf(const JsonHandle& handle)
{
    if (!handle)
        return {.kind = JsonKind::Null, .bits = 0, .text = {}, .node = nullptr};
    if (IsA<VXJsonObject>(*handle)) // nearly always, and far cheaper to ask than the cast
        return static_cast<const VXJsonObject&>(*handle).Self();
    const auto* node = dynamic_cast<const VXJsonNode*>(handle.get());
    return node ? node->Self() : ItemOf(nullptr);
}

} // namespace

std::shared_ptr<IVXJsonValue> IVXJsonValue::JsonValueNull() { return std::make_shared<VXJsonObject>(); }

} // namespace Vexlor
