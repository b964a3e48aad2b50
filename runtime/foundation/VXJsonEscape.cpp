#include "runtime/foundation/VXJsonEscape.h"

#include "runtime/foundation/VXUtf8.h"

#include <array>

namespace Vexlor
{

namespace
{

// The letter behind the backslash, 'u' for a character without one of its own, 0 for one that stands for
// itself and 1 for the bytes of longer characters, which are looked at first.
constexpr std::array<char, 256> EscapeTable()
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

constexpr auto kEscapes = EscapeTable();
constexpr std::string_view kHex = "0123456789ABCDEF";

char EscapeOf(char c) { return kEscapes[static_cast<unsigned char>(c)]; }

std::size_t PlainLength(std::string_view text)
{
    std::size_t plain = 0;
    while (plain < text.size() && EscapeOf(text[plain]) == 0)
        ++plain;
    return plain;
}

void AppendEscape(std::string& out, char c)
{
    out += '\\';
    out += EscapeOf(c);
    if (EscapeOf(c) == 'u')
        out.append("00").append(1, kHex[static_cast<unsigned char>(c) >> 4]).append(1, kHex[c & 0xF]);
}

// Appends what stands for the start of text, which is no plain character; answers how many bytes that was.
std::size_t AppendSpecial(std::string& out, std::string_view text)
{
    constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
    if (EscapeOf(text[0]) != 1)
    {
        AppendEscape(out, text[0]);
        return 1;
    }
    const std::size_t length = Utf8Length(text);
    out.append(length == 0 ? kReplacement : text.substr(0, length));
    return length == 0 ? 1 : length;
}

// The character behind a backslash that AppendEscape wrote; "u00XX" is the longest.
char Unescaped(std::string_view escape)
{
    if (escape[0] == 'u')
        return static_cast<char>(kHex.find(escape[3]) * 16 + kHex.find(escape[4]));
    std::size_t c = 0;
    while (kEscapes.at(c) != escape[0])
        ++c;
    return static_cast<char>(c);
}

} // namespace

void AppendJsonString(std::string& out, std::string_view text)
{
    out += '"';
    while (!text.empty())
    {
        const std::size_t plain = PlainLength(text);
        out.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (!text.empty())
            text.remove_prefix(AppendSpecial(out, text));
    }
    out += '"';
}

std::string UnescapedJsonText(std::string_view text)
{
    constexpr std::size_t kLongest = 6;
    std::string out;
    for (std::size_t at = text.find('\\'); at != std::string_view::npos; at = text.find('\\'))
    {
        const auto escape = text.substr(at + 1, kLongest - 1);
        out.append(text.substr(0, at)).append(1, Unescaped(escape));
        text.remove_prefix(at + (escape[0] == 'u' ? kLongest : 2));
    }
    return out.append(text);
}

} // namespace Vexlor
