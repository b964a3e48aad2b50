#include "runtime/foundation/VXUtf8.h"

#include <algorithm>
#include <array>

namespace Vexlor
{

namespace
{

// First bytes, how long their characters are and what may follow at once (RFC 3629, section 4); every further
// byte is 80 to BF.
struct LeadRow
{
    unsigned char first;
    unsigned char last;
    std::size_t length;
    unsigned char lowestSecond;
    unsigned char highestSecond;
};

constexpr std::array kLeads{
    LeadRow{0x00, 0x7F, 1, 0x00, 0x00}, LeadRow{0xC2, 0xDF, 2, 0x80, 0xBF},
    LeadRow{0xE0, 0xE0, 3, 0xA0, 0xBF}, LeadRow{0xE1, 0xEC, 3, 0x80, 0xBF},
    LeadRow{0xED, 0xED, 3, 0x80, 0x9F}, LeadRow{0xEE, 0xEF, 3, 0x80, 0xBF},
    LeadRow{0xF0, 0xF0, 4, 0x90, 0xBF}, LeadRow{0xF1, 0xF3, 4, 0x80, 0xBF},
    LeadRow{0xF4, 0xF4, 4, 0x80, 0x8F},
};

unsigned char Byte(char c) { return static_cast<unsigned char>(c); }

} // namespace

std::size_t Utf8Length(std::string_view text)
{
    if (text.empty())
        return 0;
    const auto isLead = [&](const LeadRow& row)
    { return Byte(text[0]) >= row.first && Byte(text[0]) <= row.last; };
    const auto* row = std::ranges::find_if(kLeads, isLead);
    if (row == kLeads.end() || row->length > text.size())
        return 0;
    if (row->length == 1)
        return 1;
    if (Byte(text[1]) < row->lowestSecond || Byte(text[1]) > row->highestSecond)
        return 0;
    const auto isFollowing = [](char c) { return (Byte(c) & 0xC0) == 0x80; };
    return std::ranges::all_of(text.substr(2, row->length - 2), isFollowing) ? row->length : 0;
}

} // namespace Vexlor
