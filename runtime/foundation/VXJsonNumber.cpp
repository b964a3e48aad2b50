#include "runtime/foundation/VXJsonNumber.h"

#include <simdjson.h>

#include <charconv>

namespace Vexlor
{

namespace
{

// Takes the digits that text begins with; answers whether there are any.
bool SkipDigits(std::string_view& text)
{
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count > 0;
}

bool Skip(std::string_view& text, std::string_view oneOf)
{
    const bool isThere = !text.empty() && oneOf.find(text[0]) != std::string_view::npos;
    text.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

// By the grammar of RFC 8259, section 6.
bool IsNumber(std::string_view text)
{
    Skip(text, "-");
    if (!Skip(text, "0") && !SkipDigits(text))
        return false;
    if (Skip(text, ".") && !SkipDigits(text))
        return false;
    if (Skip(text, "eE"))
    {
        Skip(text, "+-");
        if (!SkipDigits(text))
            return false;
    }
    return text.empty();
}

template <class Number>
std::optional<Number> Read(std::string_view text)
{
    Number number{};
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

// The standard library does not tell what is too small, which is 0, from what is too large.
std::optional<double> ReadExtreme(std::string_view text)
{
    simdjson::dom::parser parser;
    double number = 0;
    const auto error = parser.parse(text.data(), text.size()).get(number);
    return error == simdjson::SUCCESS ? std::optional(number) : std::nullopt;
}

std::optional<double> ReadDouble(std::string_view text)
{
    const auto number = Read<double>(text);
    return number ? number : ReadExtreme(text);
}

JsonItem Item(JsonKind kind, std::uint64_t bits)
{
    return {.kind = kind, .bits = bits, .text = {}, .node = {}};
}

} // namespace

JsonItem JsonNumber(std::string_view text)
{
    if (!IsNumber(text))
        return {};
    if (const auto number = Read<std::int64_t>(text))
        return Item(JsonKind::Int64, std::bit_cast<std::uint64_t>(*number));
    if (const auto number = Read<std::uint64_t>(text))
        return Item(JsonKind::Uint64, *number);
    const auto number = ReadDouble(text);
    return number ? Item(JsonKind::Double, std::bit_cast<std::uint64_t>(*number)) : JsonItem();
}

} // namespace Vexlor
