#pragma once

#include "IVXJsonValue.h"
#include "runtime/foundation/VXJsonPieces.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace Vexlor
{

/// One member as it is kept.
struct JsonMember
{
    std::string_view name;  ///< as it stands in a text, without the quotes
    std::string_view value; ///< as it stands in a text; of a child its place only
    const std::shared_ptr<IVXJsonValue>* child = nullptr; ///< where the value is one, never null
};

/// The members of an object in the order in which they were first set, as the text that they become: most
/// objects of a preset document have two or three short members, are written once and never read. So they
/// stand one behind the other in the object itself, which with its counts fills a line of the processor's
/// cache; more text, and children, go elsewhere.
class VXJsonMembers
{
public:
    using Child = std::shared_ptr<IVXJsonValue>;
    using Children = std::vector<Child, JsonPieceAllocator<Child>>;

    VXJsonMembers() = default;
    VXJsonMembers(const VXJsonMembers&) = delete;
    VXJsonMembers& operator=(const VXJsonMembers&) = delete;
    ~VXJsonMembers();

    bool Empty() const { return Text().empty(); }
    /// False when no member has that name.
    bool Find(std::string_view name, JsonMember& member) const;
    /// The member at cursor, which moves on; 0 is the first, false when there is none.
    bool Next(std::size_t& cursor, JsonMember& member) const;

    /// Adds a member, or replaces the one of its name.
    void SetText(std::string_view name, std::string_view value);
    void SetChild(std::string_view name, const Child& child);

    /// The members as they stand in a text without blanks, from cursor up to the next child, which is no part
    /// of it; null where there is none any more. False behind the last member.
    bool NextWritten(std::size_t& cursor, std::string_view& text, const Child*& child) const;
    /// Leaves no member that could be looked up.
    Children TakeChildren();

private:
    struct Far;

    bool IsFar() const { return m_size == kFar; }
    Far& FarPart() const;
    Far& MakeFar();
    std::string_view Text() const;
    const Child& ChildAt(std::string_view place) const;
    bool MayHave(std::size_t hash) const;
    bool FindPlain(std::string_view name, JsonMember& member) const;
    void SetPlain(std::string_view name, std::string_view value);
    void Replace(const JsonMember& member, std::string_view value);

    static constexpr std::uint8_t kFar = 0xFF;
    static constexpr std::size_t kNear = 37;

    std::uint16_t m_names = 0;      // of a near text: a bit for some names, none for what is no member
    std::uint8_t m_size = 0;        // of the text in m_near
    std::array<char, kNear> m_near; // the text; when m_size is kFar the address of the far part
};

} // namespace Vexlor
