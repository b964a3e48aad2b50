#include "runtime/foundation/VXJsonMembers.h"

#include "runtime/foundation/VXJsonEscape.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>

namespace Vexlor
{

namespace
{

// What stands before a member's ,"name":value in one word: fields of a structure would be written one by one
// and read at once, which the processor waits for.
class Header
{
public:
    Header(JsonKind kind, bool isReady, std::size_t nameSize, std::size_t valueSize)
        : m_bits(static_cast<std::uint64_t>(kind) | (isReady ? kReady : 0) | nameSize << kNameShift |
                 static_cast<std::uint64_t>(valueSize) << kValueShift)
    {
    }
    explicit Header(const char* record) { std::memcpy(&m_bits, record, sizeof m_bits); }

    void WriteTo(char* record) const { std::memcpy(record, &m_bits, sizeof m_bits); }

    JsonKind Kind() const { return static_cast<JsonKind>(m_bits & 0xF); }
    /// The member is neither Absent nor does it need escapes.
    bool IsReady() const { return (m_bits & kReady) != 0; }
    std::size_t NameSize() const { return m_bits >> kNameShift & kMostNameSize; }
    /// With the quotes of a string.
    std::size_t ValueSize() const { return m_bits >> kValueShift; }

    static constexpr std::size_t kMostNameSize = (std::size_t{1} << 27) - 1;
    static constexpr std::size_t kMostValueSize = std::numeric_limits<std::uint32_t>::max();

private:
    static constexpr std::uint64_t kReady = 0x10;
    static constexpr unsigned kNameShift = 5;
    static constexpr unsigned kValueShift = 32;

    std::uint64_t m_bits = 0;
};

constexpr std::size_t kBeforeName = sizeof(Header) + 2;
constexpr std::size_t kBehindName = 2;

std::size_t SizeOfRecord(const Header& header)
{
    return kBeforeName + header.NameSize() + kBehindName + header.ValueSize();
}

JsonMember MemberAt(const char* record)
{
    const Header header(record);
    const char* const name = record + kBeforeName;
    std::string_view value(name + header.NameSize() + kBehindName, header.ValueSize());
    const std::string_view written(record + sizeof header, SizeOfRecord(header) - sizeof header);
    if (header.Kind() == JsonKind::String)
        value = value.substr(1, value.size() - 2);
    return {.kind = header.Kind(),
            .name = {name, header.NameSize()},
            .value = value,
            .written = header.IsReady() ? written : std::string_view()};
}

// One of 64 bits for each name: a new one shows by its bit mostly, before any comparison.
std::uint64_t SignOf(std::string_view name)
{
    const auto letter = name.empty() ? '\0' : name.back();
    return std::uint64_t{1} << ((name.size() + std::size_t{7} * static_cast<unsigned char>(letter)) % 64);
}

// Copies the text; says whether it needs no escapes.
bool PutPlain(char* to, std::string_view text)
{
    char escapes = 0;
    for (const char c : text)
    {
        escapes = static_cast<char>(escapes | JsonEscapeOf(c));
        *to++ = c;
    }
    return escapes == 0;
}

} // namespace

bool VXJsonMembers::Next(std::size_t& cursor, JsonMember& member) const
{
    if (cursor == m_size)
        return false;
    member = MemberAt(Bytes() + cursor);
    cursor += SizeOfRecord(Header(Bytes() + cursor));
    return true;
}

bool VXJsonMembers::Find(std::string_view name, JsonMember& member) const
{
    if ((m_names & SignOf(name)) == 0)
        return false;
    const char* record = Bytes();
    const char* const end = record + m_size;
    for (; record != end; record += SizeOfRecord(Header(record)))
        if (std::string_view(record + kBeforeName, Header(record).NameSize()) == name)
        {
            member = MemberAt(record);
            return true;
        }
    return false;
}

void VXJsonMembers::Add(JsonKind kind, std::string_view name, std::string_view value)
{
    const std::size_t valueSize = value.size() + (kind == JsonKind::String ? 2 : 0);
    if (name.size() > Header::kMostNameSize || valueSize > Header::kMostValueSize)
        throw std::length_error("IVXJsonValue: a member's name or value is too long");
    const std::size_t size = kBeforeName + name.size() + kBehindName + valueSize;
    char* const record = Room(size);
    char* const nameAt = record + kBeforeName;
    char* const valueAt = nameAt + name.size() + kBehindName;
    nameAt[-2] = ',';
    nameAt[-1] = '"';
    bool isReady = PutPlain(nameAt, name) && kind != JsonKind::Absent;
    valueAt[-2] = '"';
    valueAt[-1] = ':';
    if (kind == JsonKind::String)
    {
        valueAt[0] = valueAt[valueSize - 1] = '"';
        isReady = PutPlain(valueAt + 1, value) && isReady;
    }
    else
        std::memcpy(valueAt, value.data(), value.size());
    Header(kind, isReady, name.size(), valueSize).WriteTo(record);
    m_size += size;
    m_names |= SignOf(name);
}

void VXJsonMembers::Replace(const JsonMember& member, JsonKind kind, std::string_view value)
{
    VXJsonMembers after;
    JsonMember each;
    for (std::size_t cursor = 0; Next(cursor, each);)
    {
        const bool isIt = each.name.data() == member.name.data();
        after.Add(isIt ? kind : each.kind, each.name, isIt ? value : each.value);
    }
    *this = std::move(after);
}

// Where the next member goes, with room for as many bytes.
char* VXJsonMembers::Room(std::size_t size)
{
    if (m_capacity - m_size < size)
    {
        constexpr std::size_t kLeastOutside = 512;
        const std::size_t capacity = std::max({m_size + size, 2 * m_capacity, kLeastOutside});
        auto outside = std::make_unique_for_overwrite<char[]>(capacity);
        std::memcpy(outside.get(), Bytes(), m_size);
        m_outside = std::move(outside);
        m_capacity = capacity;
    }
    return (m_outside ? m_outside.get() : m_inside.data()) + m_size;
}

} // namespace Vexlor
