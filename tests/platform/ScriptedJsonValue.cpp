#include "tests/platform/ScriptedJsonValue.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace Vexlor
{

namespace
{

using Value = ScriptedJsonValue;

Value::Handle Made(Value::Content content) { return std::make_shared<Value>(std::move(content)); }

Value::Handle OrNull(const Value::Handle& value) { return value ? value : Made({}); }

template <class Result>
std::optional<Result> Whole(const std::string& literal)
{
    Result result{};
    const auto* end = literal.data() + literal.size();
    const auto [stop, error] = std::from_chars(literal.data(), end, result);
    if (error != std::errc() || stop != end)
        return {};
    return result;
}

std::int64_t IntegerPart(const std::string& literal)
{
    constexpr double kLimit = 9223372036854775808.0; // 2^63
    const double value = std::trunc(Whole<double>(literal).value_or(0));
    return value >= -kLimit && value < kLimit ? static_cast<std::int64_t>(value) : 0;
}

std::int64_t Integer(const std::string& literal)
{
    if (const auto value = Whole<std::int64_t>(literal))
        return *value;
    if (const auto value = Whole<std::uint64_t>(literal))
        return static_cast<std::int64_t>(*value);
    return IntegerPart(literal);
}

} // namespace

std::shared_ptr<IVXJsonValue> IVXJsonValue::JsonValueNull() { return Made({}); }

void ScriptedJsonValue::SetMember(std::string_view name, Handle value)
{
    if (!std::holds_alternative<Object>(m_content))
        m_content = Object();
    auto& members = std::get<Object>(m_content);
    const auto known = std::ranges::find(members, name, &Member::first);
    if (known != members.end())
        known->second = std::move(value);
    else
        members.emplace_back(name, std::move(value));
}

const ScriptedJsonValue::Handle* ScriptedJsonValue::Find(std::string_view name) const
{
    const auto* members = std::get_if<Object>(&m_content);
    if (!members)
        return nullptr;
    const auto member = std::ranges::find(*members, name, &Member::first);
    return member != members->end() ? &member->second : nullptr;
}

template <class Kind>
const Kind* ScriptedJsonValue::FindAs(std::string_view name) const
{
    const auto* member = Find(name);
    return member ? std::get_if<Kind>(&static_cast<const ScriptedJsonValue&>(**member).m_content) : nullptr;
}

std::shared_ptr<const IVXJsonValue> ScriptedJsonValue::operator[](std::string_view name) const
{
    const auto* member = Find(name);
    return member ? *member : Made({});
}

std::string ScriptedJsonValue::GetValueString(std::string_view name) const
{
    const auto* text = FindAs<std::string>(name);
    return text ? *text : std::string();
}

int ScriptedJsonValue::GetValueInt(std::string_view name) const
{
    const auto* number = FindAs<Number>(name);
    if (!number || Whole<std::uint64_t>(number->literal) > std::uint64_t{std::numeric_limits<int>::max()})
        return 0;
    const auto value = Integer(number->literal);
    return value == static_cast<int>(value) ? static_cast<int>(value) : 0;
}

std::int64_t ScriptedJsonValue::GetValueInt64(std::string_view name) const
{
    const auto* number = FindAs<Number>(name);
    return number ? Integer(number->literal) : 0;
}

bool ScriptedJsonValue::GetValueBool(std::string_view name) const
{
    const auto* truth = FindAs<bool>(name);
    return truth && *truth;
}

std::shared_ptr<const IVXJsonValue> ScriptedJsonValue::GetValueArray(std::string_view name) const
{
    return FindAs<Array>(name) ? *Find(name) : Made(Array());
}

int ScriptedJsonValue::Size() const
{
    const auto* elements = std::get_if<Array>(&m_content);
    return elements ? static_cast<int>(elements->size()) : 0;
}

std::shared_ptr<const IVXJsonValue> ScriptedJsonValue::At(int index) const
{
    if (index < 0 || index >= Size())
        return Made({});
    return std::get<Array>(m_content)[static_cast<std::size_t>(index)];
}

void ScriptedJsonValue::SetValueInt(std::string_view name, int value)
{
    SetMember(name, Made(Number{std::to_string(value)}));
}

void ScriptedJsonValue::SetValueInt64(std::string_view name, std::int64_t value)
{
    SetMember(name, Made(Number{std::to_string(value)}));
}

void ScriptedJsonValue::SetValueBool(std::string_view name, bool value) { SetMember(name, Made(value)); }

void ScriptedJsonValue::SetValueString(std::string_view name, const std::string& value)
{
    SetMember(name, Made(value));
}

void ScriptedJsonValue::SetValueObject(std::string_view name, const Handle& value)
{
    SetMember(name, OrNull(value));
}

void ScriptedJsonValue::SetValueArray(std::string_view name, const std::vector<Handle>& values)
{
    Array elements;
    for (const auto& value : values)
        elements.push_back(OrNull(value));
    SetMember(name, Made(std::move(elements)));
}

} // namespace Vexlor
