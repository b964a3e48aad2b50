#pragma once

#include "VXFoundationExport.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{

/// One JSON value: an object, an array or a scalar.
///
/// Readers never fail: a member that is absent, or of another kind than asked for, answers with the default
/// that each getter names. Values that come out of a document are read only and stay valid as long as any
/// handle into the document lives; values made by JsonValueNull are written through the setters, which keep
/// members in the order in which they were first set. Texts are UTF-8.
class VX_FOUNDATION_API IVXJsonValue
{
public:
    /// A fresh null value; it becomes an object with the first member that is set on it. Never empty.
    static std::shared_ptr<IVXJsonValue> JsonValueNull();

    /// The member of that name, or a null value when this is no object or has no such member. Never empty.
    virtual std::shared_ptr<const IVXJsonValue> operator[](std::string_view name) const = 0;
    /// True when this is an object with a member of that name, whatever the member's kind.
    virtual bool HasKey(std::string_view name) const = 0;

    /// The member's text; empty when absent.
    virtual std::string GetValueString(std::string_view name) const = 0;
    /// The member's integer, a fraction cut off; 0 when absent or outside 32 bits.
    virtual int GetValueInt(std::string_view name) const = 0;
    /// The member's integer, a fraction cut off; 0 when absent or outside 64 bits. A positive number that
    /// needs the 64th bit is taken bit for bit, so that 64-bit masks survive.
    virtual std::int64_t GetValueInt64(std::string_view name) const = 0;
    /// The member's truth value; false when absent.
    virtual bool GetValueBool(std::string_view name) const = 0;
    /// The member array; an empty array when absent. Never an empty handle.
    virtual std::shared_ptr<const IVXJsonValue> GetValueArray(std::string_view name) const = 0;

    /// Number of elements of an array; 0 for every other kind.
    virtual int Size() const = 0;
    /// The element at index of an array; a null value when index is outside [0, Size()). Never empty.
    virtual std::shared_ptr<const IVXJsonValue> At(int index) const = 0;

    /// Sets or replaces a member by an integer. Like every setter it turns a null value into an object.
    virtual void SetValueInt(std::string_view name, int value) = 0;
    /// Sets or replaces a member by a 64-bit integer.
    virtual void SetValueInt64(std::string_view name, std::int64_t value) = 0;
    /// Sets or replaces a member by a truth value.
    virtual void SetValueBool(std::string_view name, bool value) = 0;
    /// Sets or replaces a member by a text, which is copied.
    virtual void SetValueString(std::string_view name, const std::string& value) = 0;
    /// Sets or replaces a member by a value, which is shared, not copied; an empty handle sets null. Whoever
    /// changes the value later on does so through a handle that was kept.
    virtual void SetValueObject(std::string_view name, const std::shared_ptr<IVXJsonValue>& value) = 0;
    /// Sets or replaces a member by an array of values, which are shared; an empty handle among them is null.
    virtual void SetValueArray(std::string_view name,
                               const std::vector<std::shared_ptr<IVXJsonValue>>& values) = 0;

protected:
    ~IVXJsonValue() = default;
};

} // namespace Vexlor
