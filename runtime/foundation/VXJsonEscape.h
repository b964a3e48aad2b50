#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace Vexlor
{

/// Appends text as a JSON string, in its quotes; bytes that are no UTF-8 become U+FFFD.
void AppendJsonString(std::string& out, std::string_view text);

/// Whether one of eight bytes does not stand in a JSON string as it is, or belongs to a longer character: by
/// arithmetic on all of them at once. A byte below another borrows from its highest bit, and one that was
/// equal is 0 after the exclusive or.
inline bool HasJsonSpecial(std::uint64_t bytes)
{
    constexpr std::uint64_t kEach = 0x0101010101010101;
    const std::uint64_t controls = bytes - kEach * 0x20;
    const std::uint64_t quotes = (bytes ^ kEach * '"') - kEach;
    const std::uint64_t backslashes = (bytes ^ kEach * '\\') - kEach;
    return ((bytes | controls | quotes | backslashes) & kEach * 0x80) != 0;
}

/// Whether text stands in a JSON string as it is, and is ASCII. A few letters need no loop over them.
inline bool IsPlainJsonText(std::string_view text)
{
    const auto load = [&text]<class Word>(std::size_t at, Word word)
    {
        std::memcpy(&word, text.data() + at, sizeof word);
        return std::uint64_t{word};
    };
    constexpr std::size_t kWord = sizeof(std::uint64_t);
    constexpr std::size_t kHalf = sizeof(std::uint32_t);
    constexpr std::size_t kQuarter = sizeof(std::uint16_t);
    constexpr std::uint64_t kBlanks = 0x2020202020202020; // where there are no letters
    const std::size_t size = text.size();
    if (size < kQuarter)
        return size == 0 || !HasJsonSpecial(load(0, std::uint8_t{}) | kBlanks << 8);
    if (size < kHalf)
        return !HasJsonSpecial(load(0, std::uint16_t{}) | load(size - kQuarter, std::uint16_t{}) << 16 |
                               kBlanks << 32);
    if (size < kWord)
        return !HasJsonSpecial(load(0, std::uint32_t{}) | load(size - kHalf, std::uint32_t{}) << 32);
    for (std::size_t at = 0; at < size - kWord; at += kWord)
        if (HasJsonSpecial(load(at, std::uint64_t{})))
            return false;
    return !HasJsonSpecial(load(size - kWord, std::uint64_t{}));
}

/// The text that AppendJsonString was given, from what stands between the quotes.
std::string UnescapedJsonText(std::string_view text);

} // namespace Vexlor
