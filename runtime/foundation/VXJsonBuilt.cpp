#include "runtime/foundation/VXJsonMembers.h"

#include <iterator>
#include <typeinfo>
#include <utility>

namespace Vexlor
{

namespace
{

using Handle = std::shared_ptr<IVXJsonValue>; // an empty one stands for null
using Handles = std::vector<Handle>;

// Lets go of children without the destructors of deep values calling each other: the first of them on this
// thread empties a list in a loop, those that it runs only add to that list.
void LetGo(Handles children)
{
    thread_local Handles* waiting = nullptr;
    if (waiting)
    {
        std::ranges::move(children, std::back_inserter(*waiting));
        return;
    }
    waiting = &children;
    while (!children.empty())
    {
        const Handle last = std::move(children.back());
        children.pop_back();
    }
    waiting = nullptr;
}

std::shared_ptr<const IVXJsonValue> OrNull(const Handle& handle)
{
    return handle ? std::shared_ptr<const IVXJsonValue>(handle) : JsonNull();
}

JsonItem ItemOf(const Handle& handle);

// A scalar member as it was when it was looked up.
class VXJsonScalar final : public VXJsonReadOnly<VXJsonScalar>
{
public:
    explicit VXJsonScalar(const JsonMember& member)
        : m_kind(member.kind), m_bits(member.bits), m_text(member.text)
    {
    }

    JsonItem Self() const override { return {.kind = m_kind, .bits = m_bits, .text = m_text, .node = this}; }

private:
    JsonKind m_kind;
    std::uint64_t m_bits;
    std::string m_text;
};

class VXJsonArray final : public VXJsonReadOnly<VXJsonArray>
{
public:
    explicit VXJsonArray(Handles elements) : m_elements(std::move(elements)) {}
    VXJsonArray(const VXJsonArray&) = delete;
    VXJsonArray& operator=(const VXJsonArray&) = delete;
    ~VXJsonArray() { LetGo(std::move(m_elements)); }

    JsonItem Self() const override { return {.kind = JsonKind::Array, .bits = 0, .text = {}, .node = this}; }
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
        return index >= 0 && index < Size() ? OrNull(m_elements[static_cast<std::size_t>(index)])
                                            : JsonNull();
    }

private:
    Handles m_elements;
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
        if (!m_children.empty())
            LetGo(std::move(m_children));
    }

    JsonItem Find(std::string_view name) const
    {
        JsonMember member;
        return m_members.Find(name, member) ? Item(member) : JsonItem();
    }

    JsonItem Self() const override
    {
        const auto kind = m_members.Empty() ? JsonKind::Null : JsonKind::Object;
        return {.kind = kind, .bits = 0, .text = {}, .node = this};
    }

    bool Next(JsonCursor& cursor, JsonEntry& entry) const override
    {
        JsonMember member;
        if (!m_members.Next(cursor.at, member))
            return false;
        entry = {.name = member.name, .item = Item(member)};
        return true;
    }

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const override;
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const override
    {
        return Find(name).kind == JsonKind::Array ? (*this)[name] : JsonEmptyArray();
    }

    void SetValueInt(std::string_view name, int value) override { SetValueInt64(name, value); }
    void SetValueInt64(std::string_view name, std::int64_t value) override
    {
        Set({.name = name, .kind = JsonKind::Int64, .bits = std::bit_cast<std::uint64_t>(value), .text = {}});
    }
    void SetValueBool(std::string_view name, bool value) override
    {
        Set({.name = name, .kind = JsonKind::Bool, .bits = value, .text = {}});
    }
    void SetValueString(std::string_view name, const std::string& value) override
    {
        Set({.name = name, .kind = JsonKind::String, .bits = 0, .text = value});
    }
    void SetValueObject(std::string_view name, const Handle& value) override;
    void SetValueArray(std::string_view name, const Handles& values) override
    {
        SetValueObject(name, std::make_shared<VXJsonArray>(values));
    }

private:
    static constexpr JsonKind kChild = JsonKind::Object; // of whatever kind: the child itself knows

    JsonItem Item(const JsonMember& member) const
    {
        if (member.kind == kChild)
            return ItemOf(m_children[member.bits]);
        return {.kind = member.kind, .bits = member.bits, .text = member.text, .node = nullptr};
    }

    void Set(const JsonMember& member)
    {
        const JsonMember before = m_members.Set(member);
        if (before.kind == kChild)
            m_children[before.bits].reset();
    }

    VXJsonMembers m_members;
    Handles m_children;
};

std::shared_ptr<const IVXJsonValue> VXJsonObject::operator[](std::string_view name) const
{
    JsonMember member;
    if (!m_members.Find(name, member))
        return JsonNull();
    if (member.kind == kChild)
        return OrNull(m_children[member.bits]);
    return std::make_shared<VXJsonScalar>(member);
}

void VXJsonObject::SetValueObject(std::string_view name, const Handle& value)
{
    JsonMember before;
    if (m_members.Find(name, before) && before.kind == kChild)
    {
        m_children[before.bits] = value;
        return;
    }
    m_children.push_back(value);
    Set({.name = name, .kind = kChild, .bits = m_children.size() - 1, .text = {}});
}

JsonItem ItemOf(const Handle& handle)
{
    if (!handle)
        return {.kind = JsonKind::Null, .bits = 0, .text = {}, .node = nullptr};
    const IVXJsonValue& value = *handle;
    if (typeid(value) == typeid(VXJsonObject)) // nearly always, and far cheaper to ask than the cast
        return static_cast<const VXJsonObject&>(value).Self();
    const auto* node = dynamic_cast<const VXJsonNode*>(&value);
    return node ? node->Self() : ItemOf(nullptr);
}

} // namespace

std::shared_ptr<IVXJsonValue> IVXJsonValue::JsonValueNull() { return std::make_shared<VXJsonObject>(); }

} // namespace Vexlor
