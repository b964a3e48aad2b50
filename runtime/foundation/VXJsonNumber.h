#pragma once

#include "runtime/foundation/VXJsonNode.h"

#include <bit>
#include <cstring>
#include <optional>

namespace Vexlor
{

/// What a number says: Int64, Uint64 or Double, as which an integer beyond 64 bits reads. Absent where text
/// is no JSON number, or one beyond what a double holds.
JsonItem JsonNumber(std::string_view text);

/// The integer that text is, where it has at most eight digits, as most have. Eight bytes at least can be
/// read wherever it has a digit.
inline std::optional<std::int32_t> ShortInteger(std::string_view text)
{
    constexpr std::uint64_t kZeros = 0x3030303030303030;
    constexpr std::uint64_t kSixMore = 0x7676767676767676; // sets the highest bit of what is more than 9
    constexpr std::uint64_t kHighest = 0x8080808080808080;
    constexpr std::uint64_t kPairs = 0x000000FF000000FF;
    std::uint64_t digits = 0;
    const bool isNegative = text[0] == '-';
    const char* const first = text.data() + (isNegative ? 1 : 0);
    const std::size_t count = text.size() - (isNegative ? 1 : 0);
    if (std::endian::native != std::endian::little || count == 0 || count > sizeof digits)
        return {};
    std::memcpy(&digits, first, sizeof digits);
    digits = (digits ^ kZeros) << (64 - 8 * count); // zeros in front: the first digit is the lowest byte
    if ((((digits + kSixMore) | digits) & kHighest) != 0 || (*first == '0' && count > 1))
        return {};
    digits = digits * 10 + (digits >> 8);
    digits = ((digits & kPairs) * 0x000F424000000064 + (digits >> 16 & kPairs) * 0x0000271000000001) >> 32;
    const auto number = static_cast<std::int32_t>(digits);
    return isNegative ? -number : number;
}

} // namespace Vexlor
