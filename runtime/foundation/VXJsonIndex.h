#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace Vexlor
{

/// Where the tokens of a JSON text begin: brackets, colons, commas, and the first characters of strings,
/// numbers and words. A place is the number of a token; between tokens stand blanks only.
class VXJsonIndex
{
public:
    static constexpr std::size_t kMostBytes = 0xFFFFFFFF;

    /// Finds the tokens of a text of at most kMostBytes, with kJsonRoom blanks behind it. False where there
    /// is none, a string is not closed or has a control character, or anything is not UTF-8.
    bool Read(std::string_view text);

    std::string_view Text() const { return {m_text, m_size}; }
    std::size_t Count() const { return m_count; }
    /// Where the token begins; the end of the text for Count().
    std::size_t Offset(std::size_t place) const { return m_offsets[place]; }
    /// The first character of a token; a blank for Count().
    char First(std::size_t place) const { return m_text[m_offsets[place]]; }
    /// The token, and blanks behind it.
    std::string_view Token(std::size_t place) const
    {
        return {m_text + m_offsets[place], std::size_t{m_offsets[place + 1]} - m_offsets[place]};
    }

private:
    const char* m_text = nullptr;
    std::size_t m_size = 0;
    std::unique_ptr<std::uint32_t[]> m_offsets;
    std::size_t m_count = 0;
};

} // namespace Vexlor
