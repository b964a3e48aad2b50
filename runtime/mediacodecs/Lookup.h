#pragma once

#include <algorithm>
#include <span>
#include <string_view>

namespace Vexlor
{

/// The first row whose column holds the value; null when none does.
template <class Row, class Value>
const Row* FindRow(std::span<const Row> rows, Value Row::*column, const Value& value)
{
    const auto found = std::ranges::find(rows, value, column);
    return found == rows.end() ? nullptr : &*found;
}

/// Calls use with every word of a text whose words are separated by blanks, in order.
template <class Use>
void ForEachWord(std::string_view text, Use use)
{
    while (!text.empty())
    {
        const auto word = text.substr(0, text.find(' '));
        use(word);
        text.remove_prefix(std::min(text.size(), word.size() + 1));
    }
}

/// True when one of the text's words is that word.
inline bool HasWord(std::string_view text, std::string_view word)
{
    bool found = false;
    ForEachWord(text, [&](std::string_view each) { found = found || each == word; });
    return found;
}

} // namespace Vexlor
