#include "runtime/foundation/VXJsonMembers.h"

#include "runtime/foundation/VXJsonEscape.h"
#include "runtime/foundation/VXJsonSpareMembers.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

namespace Vexlor
{

namespace
{

// Whether an odd number of backslashes stands before that place.
bool IsEscaped(std::string_view text, std::size_t at)
{
    std::size_t start = at;
    while (text[start - 1] == '\\')
        --start;
    return (at - start) % 2 != 0;
}

// The length of the string that text begins with, quotes and all.
std::size_t StringLength(std::string_view text)
{
    std::size_t end = text.find('"', 1);
    while (IsEscaped(text, end))
        end = text.find('"', end + 1);
    return end + 1;
}

// The length of a scalar, which a comma follows.
std::size_t ScalarLength(std::string_view text)
{
    return text[0] == '"' ? StringLength(text) : text.find(',');
}

// The few names of one object mostly differ in length or first letter.
std::uint16_t NearBit(std::string_view name)
{
    const std::size_t first = name.empty() ? 0 : static_cast<unsigned char>(name[0]);
    return static_cast<std::uint16_t>(1U << (name.size() ^ first) % 16);
}

// The name as it is kept.
std::string EscapedName(std::string_view name)
{
    std::string text;
    AppendJsonString(text, name);
    return text.substr(1, text.size() - 2);
}

} // namespace

VXJsonMembers::~VXJsonMembers()
{
    if (IsFar())
        GiveJsonMembers(&Far());
}

VXJsonManyMembers& VXJsonMembers::Far() const
{
    VXJsonManyMembers* far = nullptr;
    std::memcpy(&far, m_near.data(), sizeof(void*));
    return *far;
}

VXJsonManyMembers& VXJsonMembers::MakeFar()
{
    if (IsFar())
        return Far();
    std::unique_ptr<VXJsonManyMembers, decltype(&GiveJsonMembers)> far(TakeJsonMembers(), &GiveJsonMembers);
    std::size_t cursor = 0;
    JsonMember member;
    while (Next(cursor, member))
        far->Set(member.name, member.value);
    m_size = kFar;
    VXJsonManyMembers* const address = far.release();
    std::memcpy(m_near.data(), &address, sizeof(void*));
    return *address;
}

bool VXJsonMembers::Next(std::size_t& cursor, JsonMember& member) const
{
    if (IsFar())
    {
        const bool isMember = cursor < Far().Count();
        if (isMember)
            member = Far().At(cursor++);
        return isMember;
    }
    if (cursor + 1 >= m_size)
        return false;
    const std::string_view rest = Near().substr(cursor + 1);
    const std::size_t name = StringLength(rest);
    member.name = rest.substr(1, name - 2);
    member.value = rest.substr(name + 1, ScalarLength(rest.substr(name + 1)));
    cursor += member.name.size() + member.value.size() + kJsonMarks;
    return true;
}

bool VXJsonMembers::NextWritten(std::size_t& cursor, std::string_view& text, const JsonChild*& child) const
{
    if (IsFar())
        return Far().NextWritten(cursor, text, child);
    if (Empty() || cursor > 0)
        return false;
    cursor = m_size;
    text = Near().substr(1, m_size - 2U);
    child = nullptr;
    return true;
}

bool VXJsonMembers::FindPlain(std::string_view name, JsonMember& member) const
{
    if (!IsFar())
        return (m_names & NearBit(name)) != 0 && FindNear(name, member);
    const std::size_t index = Far().Find(name);
    const bool isMember = index < Far().Count();
    if (isMember)
        member = Far().At(index);
    return isMember;
}

bool VXJsonMembers::FindNear(std::string_view name, JsonMember& member) const
{
    std::size_t cursor = 0;
    while (Next(cursor, member))
        if (member.name == name)
            return true;
    return false;
}

bool VXJsonMembers::Find(std::string_view name, JsonMember& member) const
{
    return IsPlainJsonText(name) ? FindPlain(name, member) : FindPlain(EscapedName(name), member);
}

inline bool VXJsonMembers::AppendNear(std::string_view name, std::string_view value)
{
    const std::size_t start = std::max<std::size_t>(m_size, 1);
    const std::size_t end = start + name.size() + value.size() + kJsonMarks;
    const std::uint16_t bit = NearBit(name);
    JsonMember before;
    if (IsFar() || end > kNear || ((m_names & bit) != 0 && FindNear(name, before)))
        return false;
    m_near[0] = '{';
    PutJsonMember(m_near.data() + start, name, value);
    m_names |= bit;
    m_size = static_cast<std::uint8_t>(end);
    return true;
}

inline void VXJsonMembers::SetPlain(std::string_view name, std::string_view value)
{
    if (!AppendNear(name, value))
        MakeFar().Set(name, value);
}

void VXJsonMembers::SetText(std::string_view name, std::string_view value)
{
    return IsPlainJsonText(name) ? SetPlain(name, value) : SetPlain(EscapedName(name), value);
}

void VXJsonMembers::SetChild(std::string_view name, const JsonChild& child)
{
    if (!child)
        return SetText(name, "null");
    IsPlainJsonText(name) ? MakeFar().Set(name, child) : MakeFar().Set(EscapedName(name), child);
}

void VXJsonMembers::SetEmptyArray(std::string_view name)
{
    constexpr std::string_view kArray = "[]";
    auto& far = MakeFar();
    IsPlainJsonText(name) ? far.Set(name, kArray) : far.Set(EscapedName(name), kArray);
    far.RaiseTextDepth(1);
}

} // namespace Vexlor
