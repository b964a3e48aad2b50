#pragma once

#include "runtime/foundation/VXJsonNode.h"

#include <array>
#include <string>
#include <string_view>

namespace Vexlor
{

/// One member as it is kept: its value's text or bits, or for a container the number of a child.
struct JsonMember
{
    std::string_view name;
    JsonKind kind = JsonKind::Absent;
    std::uint64_t bits = 0;
    std::string_view text;
};

/// The members of an object in the order in which they were first set, one behind the other in one buffer:
/// most objects of a preset document have two or three short members, for which a list of strings costs many
/// times the memory and the time.
class VXJsonMembers
{
public:
    bool Empty() const { return m_bytes.empty(); }
    bool Find(std::string_view name, JsonMember& member) const;
    /// The member at cursor, which moves on; 0 is the first, false when there is none.
    bool Next(std::size_t& cursor, JsonMember& member) const;
    /// Adds the member, or replaces the one of its name; answers the kind and bits of that one.
    JsonMember Set(const JsonMember& member);

private:
    std::string m_bytes;
};

} // namespace Vexlor
