#pragma once

#include "runtime/foundation/VXJsonManyMembers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Vexlor
{

/// The members of an object in the order in which they were first set, as the text that they become: most
/// objects of a preset document have two or three short members, are written once and never read. So they
/// stand one behind the other in the object itself, which with its counts fills two lines of the processor's
/// cache; more text, and children, go elsewhere.
class VXJsonMembers
{
public:
    VXJsonMembers() = default;
    VXJsonMembers(const VXJsonMembers&) = delete;
    VXJsonMembers& operator=(const VXJsonMembers&) = delete;
    ~VXJsonMembers();

    bool Empty() const { return m_size == 0; }
    /// How deep containers that became text are nested.
    int TextDepth() const { return IsFar() ? Far().TextDepth() : 0; }
    /// False when no member has that name.
    bool Find(std::string_view name, JsonMember& member) const;
    /// The member at cursor, which moves on; 0 is the first, false when there is none.
    bool Next(std::size_t& cursor, JsonMember& member) const;

    /// Adds a member, or replaces the one of its name.
    void SetText(std::string_view name, std::string_view value);
    void SetChild(std::string_view name, const JsonChild& child);
    void SetEmptyArray(std::string_view name);
    /// See VXJsonManyMembers.
    void FinishLast(JsonFinish finish)
    {
        if (IsFar())
            Far().FinishLast(finish);
    }

    /// The members as they stand in a text without blanks, from cursor up to the next child, which is no part
    /// of it; null where there is none any more. False behind the last member.
    bool NextWritten(std::size_t& cursor, std::string_view& text, const JsonChild*& child) const;
    /// See VXJsonManyMembers; also empty while there is no member.
    std::string_view Whole() const { return IsFar() ? Far().Whole() : Near(); }
    bool HasChildren() const { return IsFar() && Far().HasChildren(); }
    /// Both leave members that must not be looked up any more. Dropping needs no memory.
    JsonChildren TakeChildren() { return IsFar() ? Far().TakeChildren() : JsonChildren(); }
    void DropChildren() noexcept
    {
        if (IsFar())
            Far().DropChildren();
    }

private:
    bool IsFar() const { return m_size == kFar; }
    VXJsonManyMembers& Far() const;
    VXJsonManyMembers& MakeFar();
    std::string_view Near() const { return {m_near.data(), m_size}; }
    bool FindPlain(std::string_view name, JsonMember& member) const;
    bool FindNear(std::string_view name, JsonMember& member) const;
    bool AppendNear(std::string_view name, std::string_view value);
    void SetPlain(std::string_view name, std::string_view value);

    static constexpr std::uint8_t kFar = 0xFF;
    static constexpr std::size_t kNear = 101;

    std::uint16_t m_names = 0;      // of a near text: a bit for some names, none for what is no member
    std::uint8_t m_size = 0;        // of the text in m_near, which begins with a brace
    std::array<char, kNear> m_near; // the text; when m_size is kFar the address of the many members
};

} // namespace Vexlor
