#pragma once

#include "runtime/foundation/VXJsonNode.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace Vexlor
{

/// One member as it is kept.
struct JsonMember
{
    JsonKind kind = JsonKind::Absent;
    std::string_view name;
    std::string_view value; ///< of a string its text, of Absent whatever was added, else JSON text
    std::string_view
        written; ///< a comma and the member as JSON text; empty for Absent and where it takes escapes
};

/// The members of an object in the order in which they were first set, one behind the other in one buffer and
/// as far as possible as the text that they will be written as. Most objects of a preset document have two or
/// three short members: those lie inside the object, which needs no other memory then.
class VXJsonMembers
{
public:
    bool Empty() const { return m_size == 0; }
    /// Where a cursor is behind the last member.
    std::size_t Size() const { return m_size; }
    /// The member of that name; false when there is none.
    bool Find(std::string_view name, JsonMember& member) const;
    /// The member at cursor, which moves on; 0 is the first, false when there is none.
    bool Next(std::size_t& cursor, JsonMember& member) const;
    /// Adds a member behind the others. A name has less than 128 MiB, a value less than 4 GiB.
    void Add(JsonKind kind, std::string_view name, std::string_view value);
    /// Puts another value in a member's place.
    void Replace(const JsonMember& member, JsonKind kind, std::string_view value);

private:
    const char* Bytes() const { return m_outside ? m_outside.get() : m_inside.data(); }
    char* Room(std::size_t size);

    static constexpr std::size_t kInside = 48;

    std::uint64_t m_names = 0; // a bit for each, several may share one
    std::size_t m_size = 0;
    std::size_t m_capacity = kInside;
    std::unique_ptr<char[]> m_outside;
    std::array<char, kInside> m_inside{};
};

} // namespace Vexlor
