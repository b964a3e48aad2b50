#pragma once

#include "IVXJsonValue.h"
#include "runtime/foundation/VXJsonPieces.h"

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{

using JsonChild = std::shared_ptr<IVXJsonValue>;
using JsonChildren = std::vector<JsonChild, JsonPieceAllocator<JsonChild>>;

/// One member as it is kept.
struct JsonMember
{
    std::string_view name;            ///< as it stands in a text, without the quotes
    std::string_view value;           ///< as it stands in a text; empty for a child
    const JsonChild* child = nullptr; ///< where the value is one, never an empty handle
};

/// Appends the text of a child that can change no more, and raises depth to how deep that is nested. False
/// where the child has no such text; what was appended then is of no use.
using JsonFinish = bool (*)(std::string& text, const JsonChild& child, int& depth);

/// What stands around a name and its value: two quotes, a colon, and the comma behind each member.
inline constexpr std::size_t kJsonMarks = 4;

/// Copies a text, mostly a few letters, and answers where it ends: a call would cost more than those.
inline char* PutText(char* to, std::string_view text)
{
    const std::size_t size = text.size();
    const auto bothEnds = [&]<class Word>(Word first, Word last)
    {
        std::memcpy(&first, text.data(), sizeof first);
        std::memcpy(&last, text.data() + size - sizeof last, sizeof last);
        std::memcpy(to, &first, sizeof first);
        std::memcpy(to + size - sizeof last, &last, sizeof last);
    };
    if (size > 2 * sizeof(std::uint64_t))
        std::memcpy(to, text.data(), size);
    else if (size >= sizeof(std::uint64_t))
        bothEnds(std::uint64_t{}, std::uint64_t{});
    else if (size >= sizeof(std::uint32_t))
        bothEnds(std::uint32_t{}, std::uint32_t{});
    else if (size >= sizeof(std::uint16_t))
        bothEnds(std::uint16_t{}, std::uint16_t{});
    else if (size > 0)
        *to = text[0];
    return to + size;
}

/// Writes a member; room for its name, its value and the marks lies at to.
inline void PutJsonMember(char* to, std::string_view name, std::string_view value)
{
    *to++ = '"';
    to = PutText(to, name);
    *to++ = '"';
    *to++ = ':';
    to = PutText(to, value);
    *to = ',';
}

/// A number that differs for most names: four of the letters do, and need no loop.
inline std::size_t JsonNameHash(std::string_view name)
{
    if (name.empty())
        return 0;
    const auto letter = [&](std::size_t at) { return std::size_t{static_cast<unsigned char>(name[at])}; };
    const std::size_t half = name.size() / 2;
    return letter(0) + 7 * letter(half / 2) + 31 * letter(half) + 127 * letter(name.size() - 1) +
           3 * name.size();
}

/// Any number of members: the text that they become, with a gap at each value that is a child. A child that
/// is finished becomes text as well, and fills its gap. Names are given as they stand in a text.
class VXJsonManyMembers
{
public:
    VXJsonManyMembers();
    VXJsonManyMembers(const VXJsonManyMembers&) = delete;
    VXJsonManyMembers& operator=(const VXJsonManyMembers&) = delete;
    ~VXJsonManyMembers() = default;

    /// Drops all members; what room they had stays.
    void Clear() noexcept;
    /// How many bytes they have, used or not.
    std::size_t Room() const
    {
        return m_text.capacity() + m_places.capacity() * sizeof(Place) + m_gaps.capacity() * sizeof(Gap);
    }

    std::size_t Count() const { return m_places.size(); }
    JsonMember At(std::size_t index) const;
    /// Where the member of that name is; Count() when there is none.
    std::size_t Find(std::string_view name) const { return Find(name, JsonNameHash(name)); }

    /// Adds a member, or replaces the one of its name.
    void Set(std::string_view name, std::string_view value);
    void Set(std::string_view name, const JsonChild& child);
    /// For a value that is a container: how deep it is nested.
    void RaiseTextDepth(int depth) { m_textDepth = std::max(m_textDepth, depth); }
    /// Asks, once, whether the member that was added last is a child that is finished.
    void FinishLast(JsonFinish finish);

    /// As those of VXJsonMembers.
    bool NextWritten(std::size_t& cursor, std::string_view& text, const JsonChild*& child) const;
    bool HasChildren() const { return !m_gaps.empty(); }
    JsonChildren TakeChildren();
    void DropChildren() noexcept { m_gaps.clear(); }
    int TextDepth() const { return m_textDepth; }
    /// The object's whole text, but for a comma in place of the closing brace; empty while it has children.
    std::string_view Whole() const { return m_gaps.empty() ? std::string_view(m_text) : std::string_view(); }

private:
    struct Place
    {
        std::size_t start;
        std::size_t nameSize;
        std::size_t hash;
    };
    struct Gap
    {
        std::size_t index; // of the member
        JsonChild child;
    };

    static constexpr std::size_t kHashes = 256;

    void Append(std::string_view name, std::size_t hash, std::string_view value);
    void Replace(std::size_t index, std::string_view value);
    std::size_t Find(std::string_view name, std::size_t hash) const;
    std::string_view Name(const Place& place) const;
    std::size_t ValueStart(std::size_t index) const;
    std::size_t ValueEnd(std::size_t index) const;
    std::size_t FindGap(std::size_t index) const;

    std::string m_text = "{";
    std::vector<Place> m_places;
    std::vector<Gap> m_gaps;       // in the order of the members
    std::bitset<kHashes> m_hashes; // of all names: one without a bit is no member's
    int m_textDepth = 0;
    bool m_isLastNew = false; // nobody asked yet whether it is finished
};

} // namespace Vexlor
