#include "runtime/foundation/VXJsonNode.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace Vexlor
{

namespace
{

using Handle = std::shared_ptr<IVXJsonValue>; // an empty one stands for null
using Handles = std::vector<Handle>;
using Value = std::variant<std::int64_t, bool, std::string, Handle>;

struct Member
{
    std::string name;
    Value value;
};

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

JsonItem ItemOf(const Handle& handle)
{
    const auto* node = dynamic_cast<const VXJsonNode*>(handle.get());
    return node ? node->Self() : JsonItem{.kind = JsonKind::Null, .bits = 0, .text = {}, .node = nullptr};
}

JsonItem ItemOf(const Value& value)
{
    if (const auto* number = std::get_if<std::int64_t>(&value))
        return {.kind = JsonKind::Int64,
                .bits = std::bit_cast<std::uint64_t>(*number),
                .text = {},
                .node = nullptr};
    if (const auto* text = std::get_if<std::string>(&value))
        return {.kind = JsonKind::String, .bits = 0, .text = *text, .node = nullptr};
    if (const auto* handle = std::get_if<Handle>(&value))
        return ItemOf(*handle);
    return {.kind = JsonKind::Bool, .bits = std::get<bool>(value), .text = {}, .node = nullptr};
}

std::shared_ptr<const IVXJsonValue> OrNull(const Handle& handle)
{
    return handle ? std::shared_ptr<const IVXJsonValue>(handle) : JsonNull();
}

// A scalar member as it was when it was looked up.
class VXJsonScalar final : public VXJsonReadOnly<VXJsonScalar>
{
public:
    explicit VXJsonScalar(Value value) : m_value(std::move(value)) {}

    static JsonItem Find(std::string_view) { return {}; }

    JsonItem Self() const override { return ItemOf(m_value); }
    std::size_t Count() const override { return 0; }
    JsonItem ItemAt(std::size_t) const override { return {}; }
    std::string_view NameAt(std::size_t) const override { return {}; }

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view) const override { return JsonNull(); }
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view) const override
    {
        return JsonEmptyArray();
    }
    int Size() const override { return 0; }
    std::shared_ptr<const IVXJsonValue> At(int) const override { return JsonNull(); }

private:
    Value m_value;
};

class VXJsonArray final : public VXJsonReadOnly<VXJsonArray>
{
public:
    explicit VXJsonArray(Handles elements) : m_elements(std::move(elements)) {}
    VXJsonArray(const VXJsonArray&) = delete;
    VXJsonArray& operator=(const VXJsonArray&) = delete;
    ~VXJsonArray() { LetGo(std::move(m_elements)); }

    static JsonItem Find(std::string_view) { return {}; }

    JsonItem Self() const override { return {.kind = JsonKind::Array, .bits = 0, .text = {}, .node = this}; }
    std::size_t Count() const override { return m_elements.size(); }
    JsonItem ItemAt(std::size_t index) const override { return ItemOf(m_elements[index]); }
    std::string_view NameAt(std::size_t) const override { return {}; }

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view) const override { return JsonNull(); }
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view) const override
    {
        return JsonEmptyArray();
    }
    int Size() const override
    {
        constexpr std::size_t kMost = std::numeric_limits<int>::max();
        return static_cast<int>(std::min(m_elements.size(), kMost));
    }
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
    ~VXJsonObject();

    JsonItem Find(std::string_view name) const
    {
        const Member* member = FindMember(name);
        return member ? ItemOf(member->value) : JsonItem();
    }

    JsonItem Self() const override
    {
        const auto kind = m_members.empty() ? JsonKind::Null : JsonKind::Object;
        return {.kind = kind, .bits = 0, .text = {}, .node = this};
    }
    std::size_t Count() const override { return m_members.size(); }
    JsonItem ItemAt(std::size_t index) const override { return ItemOf(m_members[index].value); }
    std::string_view NameAt(std::size_t index) const override { return m_members[index].name; }

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const override;
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const override;
    int Size() const override { return 0; }
    std::shared_ptr<const IVXJsonValue> At(int) const override { return JsonNull(); }

    void SetValueInt(std::string_view name, int value) override { Set(name, std::int64_t{value}); }
    void SetValueInt64(std::string_view name, std::int64_t value) override { Set(name, value); }
    void SetValueBool(std::string_view name, bool value) override { Set(name, value); }
    void SetValueString(std::string_view name, const std::string& value) override { Set(name, value); }
    void SetValueObject(std::string_view name, const Handle& value) override { Set(name, value); }
    void SetValueArray(std::string_view name, const Handles& values) override
    {
        Set(name, Handle(std::make_shared<VXJsonArray>(values)));
    }

private:
    const Member* FindMember(std::string_view name) const
    {
        const auto member = std::ranges::find(m_members, name, &Member::name);
        return member == m_members.end() ? nullptr : &*member;
    }

    void Set(std::string_view name, Value value)
    {
        constexpr std::size_t kUsual = 4;
        const auto member = std::ranges::find(m_members, name, &Member::name);
        if (member != m_members.end())
        {
            member->value = std::move(value);
            return;
        }
        if (m_members.empty())
            m_members.reserve(kUsual);
        m_members.push_back({std::string(name), std::move(value)});
    }

    std::vector<Member> m_members;
};

VXJsonObject::~VXJsonObject()
{
    Handles children;
    for (Member& member : m_members)
        if (auto* child = std::get_if<Handle>(&member.value))
            children.push_back(std::move(*child));
    if (!children.empty())
        LetGo(std::move(children));
}

std::shared_ptr<const IVXJsonValue> VXJsonObject::operator[](std::string_view name) const
{
    const Member* member = FindMember(name);
    if (!member)
        return JsonNull();
    if (const auto* child = std::get_if<Handle>(&member->value))
        return OrNull(*child);
    return std::make_shared<VXJsonScalar>(member->value);
}

std::shared_ptr<const IVXJsonValue> VXJsonObject::GetValueArray(std::string_view name) const
{
    const Member* member = FindMember(name);
    return member && ItemOf(member->value).kind == JsonKind::Array ? (*this)[name] : JsonEmptyArray();
}

} // namespace

std::shared_ptr<IVXJsonValue> IVXJsonValue::JsonValueNull() { return std::make_shared<VXJsonObject>(); }

} // namespace Vexlor
