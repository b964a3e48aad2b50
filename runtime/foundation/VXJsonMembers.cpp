#include "runtime/foundation/VXJsonMembers.h"

#include "runtime/foundation/VXJsonEscape.h"

#include <algorithm>
#include <bitset>
#include <cstring>
#include <string>
#include <utility>

namespace Vexlor
{

namespace
{

// Begins the place of a child, whose number follows. No text holds this character: it is escaped.
constexpr char kChildMark = '\1';
constexpr std::size_t kChildSize = 1 + sizeof(std::size_t);

// Room for a codec preset's members at once.
constexpr std::size_t kFarText = 768;

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

std::size_t ValueLength(std::string_view text)
{
    if (text[0] == kChildMark)
        return kChildSize;
    return text[0] == '"' ? StringLength(text) : text.find(',');
}

// What stands around a name and its value: quotes, colon and comma.
constexpr std::size_t kMarks = 4;

char* Put(char* to, std::string_view text) { return std::ranges::copy(text, to).out; }

void PutMember(char* to, std::string_view name, std::string_view value)
{
    *to++ = '"';
    to = Put(to, name);
    *to++ = '"';
    *to++ = ':';
    to = Put(to, value);
    *to = ',';
}

// A number below kHashes that differs for most names. Four of their letters do, and need no loop.
constexpr std::size_t kHashes = 256;

std::size_t HashOf(std::string_view name)
{
    if (name.empty())
        return 0;
    const auto letter = [&](std::size_t at) { return std::size_t{static_cast<unsigned char>(name[at])}; };
    const std::size_t half = name.size() / 2;
    return (letter(0) + 7 * letter(half / 2) + 31 * letter(half) + 127 * letter(name.size() - 1) +
            3 * name.size()) %
           kHashes;
}

std::uint16_t NearBit(std::size_t hash) { return static_cast<std::uint16_t>(1U << hash % 16); }

// The name as it is kept.
std::string EscapedName(std::string_view name)
{
    std::string text;
    AppendJsonString(text, name);
    return text.substr(1, text.size() - 2);
}

} // namespace

struct VXJsonMembers::Far
{
    std::string text;
    Children children;
    std::bitset<kHashes> names; // of the names' hashes: a name without one is no member's
};

VXJsonMembers::~VXJsonMembers()
{
    if (IsFar())
        delete &FarPart();
}

VXJsonMembers::Far& VXJsonMembers::FarPart() const
{
    Far* far = nullptr;
    std::memcpy(&far, m_near.data(), sizeof(void*));
    return *far;
}

VXJsonMembers::Far& VXJsonMembers::MakeFar()
{
    if (IsFar())
        return FarPart();
    auto far = std::make_unique<Far>();
    far->text.reserve(kFarText);
    far->text = Text();
    std::size_t cursor = 0;
    JsonMember member;
    while (Next(cursor, member))
        far->names.set(HashOf(member.name));
    m_size = kFar;
    Far* const address = far.release();
    std::memcpy(m_near.data(), &address, sizeof(void*));
    return *address;
}

std::string_view VXJsonMembers::Text() const
{
    return IsFar() ? std::string_view(FarPart().text) : std::string_view(m_near.data(), m_size);
}

VXJsonMembers::Children VXJsonMembers::TakeChildren()
{
    return IsFar() ? std::move(FarPart().children) : Children();
}

const VXJsonMembers::Child& VXJsonMembers::ChildAt(std::string_view place) const
{
    std::size_t child = 0;
    std::memcpy(&child, place.data() + 1, sizeof child);
    return FarPart().children[child];
}

bool VXJsonMembers::NextWritten(std::size_t& cursor, std::string_view& text, const Child*& child) const
{
    const std::string_view rest = Text().substr(cursor);
    const std::size_t place = IsFar() ? rest.find(kChildMark) : std::string_view::npos;
    const bool isLast = place == std::string_view::npos;
    text = rest.substr(0, isLast && !rest.empty() ? rest.size() - 1 : place); // without the last comma
    child = isLast ? nullptr : &ChildAt(rest.substr(place));
    cursor += isLast ? rest.size() : place + kChildSize;
    return !rest.empty();
}

bool VXJsonMembers::Next(std::size_t& cursor, JsonMember& member) const
{
    const std::string_view rest = Text().substr(cursor);
    if (rest.empty())
        return false;
    const std::size_t name = StringLength(rest);
    member.name = rest.substr(1, name - 2);
    member.value = rest.substr(name + 1, ValueLength(rest.substr(name + 1)));
    member.child = nullptr;
    if (member.value[0] == kChildMark)
        member.child = &ChildAt(member.value);
    cursor += member.name.size() + member.value.size() + kMarks;
    return true;
}

bool VXJsonMembers::MayHave(std::size_t hash) const
{
    return IsFar() ? FarPart().names.test(hash) : (m_names & NearBit(hash)) != 0;
}

bool VXJsonMembers::FindPlain(std::string_view name, JsonMember& member) const
{
    std::size_t cursor = 0;
    while (Next(cursor, member))
        if (member.name == name)
            return true;
    return false;
}

bool VXJsonMembers::Find(std::string_view name, JsonMember& member) const
{
    if (IsPlainJsonText(name))
        return MayHave(HashOf(name)) && FindPlain(name, member);
    const std::string escaped = EscapedName(name);
    return MayHave(HashOf(escaped)) && FindPlain(escaped, member);
}

void VXJsonMembers::Replace(const JsonMember& member, std::string_view value)
{
    const auto at = static_cast<std::size_t>(member.value.data() - Text().data());
    Far& far = MakeFar();
    far.text.replace(at, member.value.size(), value);
    if (member.child)
        far.children[static_cast<std::size_t>(member.child - far.children.data())].reset();
}

void VXJsonMembers::SetPlain(std::string_view name, std::string_view value)
{
    const std::size_t hash = HashOf(name);
    if (JsonMember before; MayHave(hash) && FindPlain(name, before))
        return Replace(before, value);
    const std::size_t size = name.size() + value.size() + kMarks;
    if (!IsFar() && m_size + size <= kNear)
    {
        PutMember(m_near.data() + m_size, name, value);
        m_names |= NearBit(hash);
        m_size = static_cast<std::uint8_t>(m_size + size);
        return;
    }
    Far& far = MakeFar();
    far.text.resize(far.text.size() + size);
    PutMember(far.text.data() + far.text.size() - size, name, value);
    far.names.set(hash);
}

void VXJsonMembers::SetText(std::string_view name, std::string_view value)
{
    return IsPlainJsonText(name) ? SetPlain(name, value) : SetPlain(EscapedName(name), value);
}

void VXJsonMembers::SetChild(std::string_view name, const Child& child)
{
    auto& children = MakeFar().children;
    if (JsonMember before; Find(name, before) && before.child)
    {
        children[static_cast<std::size_t>(before.child - children.data())] = child;
        return;
    }
    std::array<char, kChildSize> place{kChildMark};
    const std::size_t number = children.size();
    std::memcpy(place.data() + 1, &number, sizeof number);
    children.push_back(child);
    SetText(name, {place.data(), place.size()});
}

} // namespace Vexlor
