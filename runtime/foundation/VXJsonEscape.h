#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace Vexlor
{

// The letter behind the backslash, 'u' for a character without one of its own, 0 for one that stands for
// itself and 1 for the bytes of longer characters, which are looked at first.
constexpr std::array<char, 256> JsonEscapeTable()
{
    std::array<char, 256> table{};
    for (std::size_t c = 0; c < 0x20; ++c)
        table.at(c) = 'u';
    for (std::size_t c = 0x80; c < table.size(); ++c)
        table.at(c) = 1;
    table['"'] = '"';
    table['\\'] = '\\';
    table['\b'] = 'b';
    table['\f'] = 'f';
    table['\n'] = 'n';
    table['\r'] = 'r';
    table['\t'] = 't';
    return table;
}

inline constexpr auto kJsonEscapes = JsonEscapeTable();

inline char JsonEscapeOf(char c) { return kJsonEscapes[static_cast<unsigned char>(c)]; }

/// True when the text is written between quotes as it is.
inline bool IsPlainJson(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return JsonEscapeOf(c) == 0; });
}

} // namespace Vexlor
