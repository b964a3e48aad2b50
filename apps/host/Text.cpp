#include "Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace Vexlor::Tool
{

namespace
{

struct Range
{
    char32_t first;
    char32_t last;
};

// Control characters, line and paragraph separators, and the marks that reorder what follows them.
constexpr std::array kUnprintable{Range{0x00, 0x1F}, Range{0x7F, 0x9F}, Range{0x2028, 0x202E},
                                  Range{0x2066, 0x2069}};

// Ranges of the Unicode Character Database: general category Mn and Cf, and East Asian width W and F, as far
// as names of presets and files are likely to hold them.
constexpr std::array kZeroWidth{Range{0x0300, 0x036F}, Range{0x1AB0, 0x1AFF}, Range{0x200B, 0x200F},
                                Range{0x20D0, 0x20FF}, Range{0xFE00, 0xFE0F}};
constexpr std::array kWide{Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},  Range{0x3041, 0xA4CF},
                           Range{0xAC00, 0xD7A3},   Range{0xF900, 0xFAFF},  Range{0xFE30, 0xFE6F},
                           Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6},  Range{0x1F300, 0x1F64F},
                           Range{0x1F900, 0x1F9FF}, Range{0x20000, 0x3FFFD}};

bool IsIn(char32_t code, std::span<const Range> ranges)
{
    return std::ranges::any_of(ranges, [code](const Range& range)
                               { return code >= range.first && code <= range.last; });
}

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// One character: its number, and the bytes that stand for it, U+FFFD's for a byte that is not UTF-8.
struct Character
{
    char32_t code = 0xFFFD;
    std::string_view bytes = kReplacement;
};

std::size_t LengthByLead(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead < 0xC0 || lead >= 0xF8)
        return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

bool IsScalar(char32_t code, std::size_t length)
{
    constexpr std::array<char32_t, 5> kLowest{0, 0, 0x80, 0x800, 0x10000};
    return code >= kLowest.at(length) && code <= 0x10FFFF && !(code >= 0xD800 && code <= 0xDFFF);
}

Character FirstOf(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    const auto length = LengthByLead(lead);
    if (length == 0 || length > text.size())
        return {};
    char32_t code = length == 1 ? lead : lead & (0x7FU >> length);
    for (const char byte : text.substr(1, length - 1))
    {
        if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80U)
            return {};
        code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return IsScalar(code, length) ? Character{code, text.substr(0, length)} : Character{};
}

template <typename Use>
void ForEachCharacter(std::string_view text, Use use)
{
    while (!text.empty())
    {
        const auto character = FirstOf(text);
        const bool isGood = character.bytes.data() == text.data();
        use(character);
        text.remove_prefix(isGood ? character.bytes.size() : 1);
    }
}

} // namespace

std::string OneLine(std::string_view text)
{
    std::string line;
    ForEachCharacter(text, [&line](const Character& character)
                     { line += IsIn(character.code, kUnprintable) ? kReplacement : character.bytes; });
    return line;
}

int DisplayWidth(std::string_view text)
{
    int width = 0;
    ForEachCharacter(text,
                     [&width](const Character& character) {
                         width += IsIn(character.code, kZeroWidth) ? 0 : IsIn(character.code, kWide) ? 2 : 1;
                     });
    return width;
}

std::string Padded(const std::string& text, int width)
{
    return text + std::string(static_cast<std::size_t>(std::max(width - DisplayWidth(text), 0)), ' ');
}

std::vector<std::string> Entries(std::string_view text)
{
    std::vector<std::string> entries;
    for (auto end = text.find(", "); end != std::string_view::npos; end = text.find(", "))
    {
        entries.emplace_back(text.substr(0, end + 1));
        text.remove_prefix(end + 2);
    }
    entries.emplace_back(text);
    return entries;
}

std::vector<std::string> Wrapped(std::string_view text, int width)
{
    std::vector<std::string> lines;
    for (const auto& entry : Entries(text))
        if (lines.empty() || DisplayWidth(lines.back()) + 1 + DisplayWidth(entry) > width)
            lines.push_back(entry);
        else
            lines.back() += ' ' + entry;
    return lines;
}

std::string Folded(std::string_view text)
{
    std::string folded(text);
    for (auto& letter : folded)
        if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    return folded;
}

std::string Squeezed(std::string_view text)
{
    auto squeezed = Folded(text);
    std::erase(squeezed, ' ');
    return squeezed;
}

std::string Quoted(std::string_view text) { return '"' + OneLine(text) + '"'; }

std::string PathEscaped(std::string_view name)
{
    std::string escaped;
    for (const char letter : name)
    {
        escaped += letter == '/' ? "\\" : "";
        escaped += letter;
    }
    return escaped;
}

std::string Joined(const std::vector<std::string>& parts, std::string_view separator)
{
    std::string text;
    for (const auto& part : parts)
    {
        text += text.empty() ? "" : separator;
        text += part;
    }
    return text;
}

std::string Counted(int count, const std::string& singular, const std::string& plural)
{
    return std::to_string(count) + ' ' + (count == 1 ? singular : plural);
}

} // namespace Vexlor::Tool
