#include "runtime/foundation/VXJsonDocument.h"
#include "runtime/foundation/VXJsonEscape.h"
#include "runtime/foundation/VXJsonLetGo.h"
#include "runtime/foundation/VXJsonMembers.h"
#include "runtime/foundation/VXJsonNode.h"
#include "runtime/foundation/VXJsonPieces.h"
#include "runtime/foundation/VXPrefetch.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <charconv>
#include <typeinfo>
#include <utility>

namespace Vexlor
{

namespace
{

using Handle = JsonChild; // an empty one stands for null
using Handles = JsonChildren;

// How many elements ahead a value is asked for, of which there are more than the caches hold.
constexpr std::size_t kSoon = 8;

// What finished children may become at most: a text that is copied while it is at hand, and that can be read.
constexpr std::size_t kLongFinished = 64000;
constexpr int kDeepFinished = 16;

std::shared_ptr<const IVXJsonValue> OrNull(const Handle& handle)
{
    return handle ? std::shared_ptr<const IVXJsonValue>(handle) : JsonNull();
}

JsonItem ItemOf(const Handle& handle);
template <class Value, class... Arguments>
std::shared_ptr<Value> MakeValue(const Arguments&... arguments)
{
    return std::allocate_shared<Value>(JsonPieceAllocator<Value>(), arguments...);
}

bool IsContainer(std::string_view text) { return text.front() == '{' || text.front() == '['; }

// Where the text of a finished child goes.
struct Finished
{
    std::string& text;
    std::size_t most; // how long that may get

    bool Append(std::string_view part) const
    {
        const bool fits = text.size() + part.size() <= most;
        if (fits)
            text.append(part);
        return fits;
    }
};

bool Finish(const Finished& out, const Handle& handle, int& depth);

bool FinishChild(std::string& text, const Handle& child, int& depth)
{
    return Finish({.text = text, .most = text.size() + kLongFinished}, child, depth);
}

// A text that stands for a member, as what it says. A string is left as it stands: only few need a copy.
JsonItem ItemOf(std::string_view text)
{
    if (IsContainer(text))
        return {.kind = text.front() == '[' ? JsonKind::Array : JsonKind::Object,
                .bits = 0,
                .text = {},
                .node = nullptr};
    if (text.front() == '"')
        return {.kind = JsonKind::Text, .bits = 0, .text = text, .node = nullptr};
    if (text == "true" || text == "false")
        return {.kind = JsonKind::Bool, .bits = text == "true", .text = {}, .node = nullptr};
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return {
        .kind = JsonKind::Int64, .bits = std::bit_cast<std::uint64_t>(number), .text = {}, .node = nullptr};
}

// A scalar member as it was when it was looked up.
class VXJsonScalar final : public VXJsonReadOnly<VXJsonScalar>
{
public:
    explicit VXJsonScalar(std::string_view text) : m_text(text) {}

    JsonItem Self() const override
    {
        return {.kind = JsonKind::Text, .bits = 0, .text = m_text, .node = nullptr};
    }

private:
    std::string m_text;
};

class VXJsonArray final : public VXJsonReadOnly<VXJsonArray>
{
public:
    explicit VXJsonArray(const std::vector<Handle>& elements) : m_elements(elements.begin(), elements.end())
    {
    }
    VXJsonArray(const VXJsonArray&) = delete;
    VXJsonArray& operator=(const VXJsonArray&) = delete;
    ~VXJsonArray()
    {
        LetGo([this] { m_elements.clear(); }, [this] { return std::move(m_elements); });
    }

    JsonItem Self() const override { return {.kind = JsonKind::Array, .bits = 0, .text = {}, .node = this}; }
    bool Next(JsonCursor& cursor, JsonEntry& entry) const override
    {
        if (cursor.at == m_elements.size())
            return false;
        if (m_elements.size() - cursor.at > kSoon)
            Prefetch(m_elements[cursor.at + kSoon].get());
        entry.item = ItemOf(m_elements[cursor.at++]);
        return true;
    }

    int Size() const override { return SizeOf(m_elements.size()); }
    bool AppendFinished(const Finished& out, int& depth) const
    {
        int inner = 0;
        char before = '[';
        for (const auto& element : m_elements)
        {
            out.text += std::exchange(before, ',');
            if (!Finish(out, element, inner))
                return false;
        }
        out.text += ']';
        depth = std::max(depth, inner + 1);
        return true;
    }

    std::shared_ptr<const IVXJsonValue> At(int index) const override
    {
        return index >= 0 && index < Size() ? OrNull(m_elements[static_cast<std::size_t>(index)])
                                            : JsonNull();
    }

private:
    Handles m_elements;
};

// A member without a look at what its text stands for.
JsonItem WrittenItem(const JsonMember& member)
{
    if (member.child)
        return ItemOf(*member.child);
    return {.kind = JsonKind::Text, .bits = 0, .text = member.value, .node = nullptr};
}

// Null until the first member is set.
class VXJsonObject final : public VXJsonGetters<VXJsonObject>
{
public:
    VXJsonObject();
    VXJsonObject(const VXJsonObject&) = delete;
    VXJsonObject& operator=(const VXJsonObject&) = delete;
    ~VXJsonObject()
    {
        if (m_members.HasChildren())
            LetGo([this] { m_members.DropChildren(); }, [this] { return m_members.TakeChildren(); });
    }

    JsonItem Find(std::string_view name) const
    {
        JsonMember member;
        if (!m_members.Find(name, member))
            return {};
        return member.child ? ItemOf(*member.child) : ItemOf(member.value);
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
        entry = {.name = member.name, .item = WrittenItem(member), .isNameAsWritten = true};
        return true;
    }

    bool NextPart(JsonCursor& cursor, JsonPart& part) const override
    {
        const Handle* child = nullptr;
        if (!m_members.NextWritten(cursor.at, part.text, child))
            return false;
        part.child = child ? ItemOf(*child) : JsonItem();
        part.depth = m_members.TextDepth();
        return true;
    }

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const override
    {
        JsonMember member;
        if (!m_members.Find(name, member))
            return JsonNull();
        if (member.child)
            return OrNull(*member.child);
        return IsContainer(member.value) ? ParseOwnJson(std::string(member.value), nullptr)
                                         : MakeValue<VXJsonScalar>(member.value);
    }
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const override
    {
        return Find(name).kind == JsonKind::Array ? (*this)[name] : JsonEmptyArray();
    }

    void SetValueInt(std::string_view name, int value) override { SetNumber(name, value); }
    void SetValueInt64(std::string_view name, std::int64_t value) override { SetNumber(name, value); }
    void SetValueBool(std::string_view name, bool value) override
    {
        FinishLast();
        m_members.SetText(name, value ? "true" : "false");
    }
    void SetValueString(std::string_view name, const std::string& value) override
    {
        FinishLast();
        std::string text;
        AppendJsonString(text, value);
        m_members.SetText(name, text);
    }
    void SetValueObject(std::string_view name, const Handle& value) override
    {
        FinishLast();
        m_members.SetChild(name, value);
    }
    void SetValueArray(std::string_view name, const std::vector<Handle>& values) override
    {
        FinishLast();
        if (values.empty())
            m_members.SetEmptyArray(name);
        else
            m_members.SetChild(name, MakeValue<VXJsonArray>(values));
    }

    bool AppendFinished(const Finished& out, int& depth) const
    {
        if (m_members.Empty())
            return out.Append("null");
        depth = std::max(depth, m_members.TextDepth() + 1);
        const auto whole = m_members.Whole();
        if (whole.empty() || depth > kDeepFinished || !out.Append(whole))
            return false;
        out.text.back() = '}';
        return true;
    }

private:
    template <class Number>
    void SetNumber(std::string_view name, Number value)
    {
        FinishLast();
        std::array<char, std::numeric_limits<Number>::digits10 + 2> digits;
        const auto* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        m_members.SetText(name, {digits.data(), static_cast<std::size_t>(end - digits.data())});
    }

    // Whoever builds a value is done with a child when the next member is set.
    void FinishLast() { m_members.FinishLast(&FinishChild); }

    VXJsonMembers m_members;
};

// Not in the class, or all of an object would be set to 0 first.
VXJsonObject::VXJsonObject() = default;

// Writes a value that nobody else holds, and that so can change no more.
bool Finish(const Finished& out, const Handle& handle, int& depth)
{
    if (!handle)
        return out.Append("null");
    if (handle.use_count() != 1)
        return false;
    std::atomic_thread_fence(std::memory_order_acquire); // what others did before they let go of it
    const IVXJsonValue& value = *handle;
    if (typeid(value) == typeid(VXJsonObject))
        return static_cast<const VXJsonObject&>(value).AppendFinished(out, depth);
    return typeid(value) == typeid(VXJsonArray) &&
           static_cast<const VXJsonArray&>(value).AppendFinished(out, depth);
}

JsonItem ItemOf(const Handle& handle)
{
    if (!handle)
        return {.kind = JsonKind::Null, .bits = 0, .text = {}, .node = nullptr};
    const IVXJsonValue& value = *handle;
    if (typeid(value) == typeid(VXJsonObject)) // nearly always, and far cheaper to ask than the cast
        return static_cast<const VXJsonObject&>(value).Self();
    const auto* node = dynamic_cast<const VXJsonNode*>(&value);
    return node ? node->Self() : ItemOf(Handle());
}

} // namespace

std::shared_ptr<IVXJsonValue> IVXJsonValue::JsonValueNull() { return MakeValue<VXJsonObject>(); }

} // namespace Vexlor
