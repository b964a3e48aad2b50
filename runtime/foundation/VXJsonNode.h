#pragma once

#include "IVXJsonValue.h"
#include "runtime/foundation/VXJsonEscape.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{

enum class JsonKind : std::uint8_t
{
    Absent,
    Null,
    Bool,
    Int64,
    Uint64, ///< beyond what a signed integer holds
    Double,
    String,
    Text, ///< a value as it stands in a text; looked up, a string only
    Array,
    Object,
};

class VXJsonNode;

/// What stands behind a member's name or at an element's place: a scalar itself, or where to find a
/// container.
struct JsonItem
{
    JsonKind kind = JsonKind::Absent;
    std::uint64_t bits = 0;           ///< of Bool, Int64, Uint64 and Double
    std::string_view text;            ///< of String and Text
    const VXJsonNode* node = nullptr; ///< of Array and Object
};

struct JsonEntry
{
    std::string_view name; ///< empty for an element
    JsonItem item;
    bool isNameAsWritten = false; ///< the name is as it stands in a text
};

/// A piece of an object's text.
struct JsonPart
{
    std::string_view text; ///< members as they stand between the braces, without blanks
    JsonItem child;        ///< the value that follows the text; Absent at the end
    int depth = 0;         ///< how deep containers in the text are nested
};

/// A place between the elements or members of a container; the first one to begin with.
struct JsonCursor
{
    std::size_t at = 0;
    std::size_t child = 0; ///< how many containers stand before it, where that is of use
};

/// Null and the empty array; they belong to no document and need no owner.
std::shared_ptr<const IVXJsonValue> JsonNull();
std::shared_ptr<const IVXJsonValue> JsonEmptyArray();

/// What parsed and built values have in common beyond their interface: they can be walked. A scalar unless
/// the derived class says more.
class VXJsonNode : public IVXJsonValue
{
public:
    virtual JsonItem Self() const = 0;
    /// The element or member at cursor, which moves on; false when there is none.
    virtual bool Next(JsonCursor& /*cursor*/, JsonEntry& /*entry*/) const { return false; }
    /// The members at cursor as text, where that is at hand, up to the next child; the cursor moves on, and
    /// must not be used for both. False behind the last, and where they have to be written one by one.
    virtual bool NextPart(JsonCursor& /*cursor*/, JsonPart& /*part*/) const { return false; }

    std::shared_ptr<const IVXJsonValue> operator[](std::string_view) const override { return JsonNull(); }
    std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view) const override
    {
        return JsonEmptyArray();
    }
    int Size() const override { return 0; }
    std::shared_ptr<const IVXJsonValue> At(int) const override { return JsonNull(); }

protected:
    ~VXJsonNode() = default;
};

/// The integer part of a finite number; 0 where Integer cannot hold it.
template <class Integer>
Integer IntegerPart(double number)
{
    // Both bounds are outside the range: -2^63 may stand for any literal that rounds to it.
    constexpr auto kLowest = static_cast<double>(std::numeric_limits<Integer>::min());
    constexpr auto kBelow = sizeof(Integer) < sizeof(std::int64_t) ? kLowest - 1 : kLowest;
    return number > kBelow && number < -kLowest ? static_cast<Integer>(number) : 0;
}

/// A count of elements as the interface tells it.
inline int SizeOf(std::size_t count)
{
    return static_cast<int>(std::min<std::size_t>(count, std::numeric_limits<int>::max()));
}

/// The getters, once for both kinds of values: Derived::Find tells what a name stands for.
template <class Derived>
class VXJsonGetters : public VXJsonNode
{
public:
    bool HasKey(std::string_view name) const final { return Item(name).kind != JsonKind::Absent; }

    std::string GetValueString(std::string_view name) const final
    {
        const JsonItem item = Item(name);
        if (item.kind != JsonKind::Text)
            return std::string(item.text);
        return UnescapedJsonText(item.text.substr(1, item.text.size() - 2));
    }

    int GetValueInt(std::string_view name) const final
    {
        const JsonItem item = Item(name);
        if (item.kind == JsonKind::Double)
            return IntegerPart<int>(std::bit_cast<double>(item.bits));
        const auto value = std::bit_cast<std::int64_t>(item.bits);
        return item.kind == JsonKind::Int64 && value == static_cast<int>(value) ? static_cast<int>(value) : 0;
    }

    std::int64_t GetValueInt64(std::string_view name) const final
    {
        const JsonItem item = Item(name);
        if (item.kind == JsonKind::Double)
            return IntegerPart<std::int64_t>(std::bit_cast<double>(item.bits));
        const bool isInteger = item.kind == JsonKind::Int64 || item.kind == JsonKind::Uint64;
        return isInteger ? std::bit_cast<std::int64_t>(item.bits) : 0;
    }

    bool GetValueBool(std::string_view name) const final
    {
        const JsonItem item = Item(name);
        return item.kind == JsonKind::Bool && item.bits != 0;
    }

protected:
    ~VXJsonGetters() = default;

private:
    JsonItem Item(std::string_view name) const { return static_cast<const Derived&>(*this).Find(name); }
};

/// A value that only reads: setting members on it does nothing.
template <class Derived>
class VXJsonReadOnly : public VXJsonGetters<Derived>
{
public:
    static JsonItem Find(std::string_view /*name*/) { return {}; }

    void SetValueInt(std::string_view, int) final {}
    void SetValueInt64(std::string_view, std::int64_t) final {}
    void SetValueBool(std::string_view, bool) final {}
    void SetValueString(std::string_view, const std::string&) final {}
    void SetValueObject(std::string_view, const std::shared_ptr<IVXJsonValue>&) final {}
    void SetValueArray(std::string_view, const std::vector<std::shared_ptr<IVXJsonValue>>&) final {}

protected:
    ~VXJsonReadOnly() = default;
};

} // namespace Vexlor
