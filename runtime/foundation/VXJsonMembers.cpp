#include "runtime/foundation/VXJsonMembers.h"

#include <cstring>

namespace Vexlor
{

namespace
{

// What stands before the bytes of a member's name and text.
struct Header
{
    std::uint64_t bits = 0; // a string's length
    std::size_t nameSize = 0;
    JsonKind kind = JsonKind::Absent;
};

constexpr std::size_t kHeaderSize = sizeof(Header::bits) + sizeof(Header::nameSize) + sizeof(Header::kind);

template <class Field>
char* Put(char* to, Field field)
{
    std::memcpy(to, &field, sizeof field);
    return to + sizeof field;
}

template <class Field>
const char* Take(const char* from, Field& field)
{
    std::memcpy(&field, from, sizeof field);
    return from + sizeof field;
}

std::array<char, kHeaderSize> HeaderOf(const JsonMember& member)
{
    std::array<char, kHeaderSize> bytes{};
    char* to =
        Put(bytes.data(), member.kind == JsonKind::String ? std::uint64_t{member.text.size()} : member.bits);
    to = Put(to, member.name.size());
    Put(to, member.kind);
    return bytes;
}

} // namespace

bool VXJsonMembers::Next(std::size_t& cursor, JsonMember& member) const
{
    if (cursor == m_bytes.size())
        return false;
    Header header;
    const char* from = Take(m_bytes.data() + cursor, header.bits);
    from = Take(from, header.nameSize);
    from = Take(from, header.kind);
    member.name = {from, header.nameSize};
    member.kind = header.kind;
    member.bits = header.bits;
    member.text = {from + header.nameSize, header.kind == JsonKind::String ? header.bits : 0};
    cursor += kHeaderSize + member.name.size() + member.text.size();
    return true;
}

bool VXJsonMembers::Find(std::string_view name, JsonMember& member) const
{
    std::size_t cursor = 0;
    while (Next(cursor, member))
        if (member.name == name)
            return true;
    return false;
}

JsonMember VXJsonMembers::Set(const JsonMember& member)
{
    // Two short members, in a block of the size that the object itself takes.
    constexpr std::size_t kUsualSize = 47;
    const auto header = HeaderOf(member);
    JsonMember before;
    if (Find(member.name, before))
    {
        const auto start = static_cast<std::size_t>(before.name.data() - m_bytes.data()) - kHeaderSize;
        m_bytes.replace(start + kHeaderSize + before.name.size(), before.text.size(), member.text);
        m_bytes.replace(start, kHeaderSize, header.data(), kHeaderSize);
        return {.name = {}, .kind = before.kind, .bits = before.bits, .text = {}};
    }
    if (m_bytes.empty())
        m_bytes.reserve(kUsualSize);
    m_bytes.append(header.data(), kHeaderSize).append(member.name).append(member.text);
    return {};
}

} // namespace Vexlor
