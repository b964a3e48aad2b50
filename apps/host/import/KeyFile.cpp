#include "KeyFile.h"

#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr std::string_view kBlank = " \t\r";

std::string_view Trimmed(std::string_view text)
{
    const auto begin = text.find_first_not_of(kBlank);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(kBlank) + 1 - begin);
}

/// \s, \n, \t, \r and \\ stand for what a value could not hold otherwise.
std::string Unescaped(std::string_view value)
{
    constexpr std::string_view kLetters = "sntr\\";
    constexpr std::string_view kMeant = " \n\t\r\\";
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i)
    {
        const auto letter =
            value[i] == '\\' && i + 1 < value.size() ? kLetters.find(value[i + 1]) : std::string_view::npos;
        text += letter == std::string_view::npos ? value[i] : kMeant[letter];
        i += letter == std::string_view::npos ? 0 : 1;
    }
    return text;
}

class Reader
{
public:
    void ReadLine(std::string_view line, std::size_t offset)
    {
        const auto text = Trimmed(line);
        ++m_line;
        if (text.empty() || text.front() == '#')
            return;
        const auto begin = offset + static_cast<std::size_t>(text.data() - line.data());
        if (text.front() == '[')
            return OpenGroup(text, begin);
        const auto equals = text.find('=');
        if (equals == std::string_view::npos || equals == 0)
            Fail(Quoted(text.substr(0, 40)) + " is no key=value");
        if (groups.empty())
            Fail("a value stands in front of the first group");
        groups.back().entries.push_back({std::string(Trimmed(text.substr(0, equals))),
                                         Unescaped(Trimmed(text.substr(equals + 1))), begin});
    }

    std::vector<KeyFileGroup> groups;

private:
    void OpenGroup(std::string_view text, std::size_t begin)
    {
        if (text.back() != ']' || text.size() < 3)
            Fail("a group's name ends in ]");
        groups.push_back({std::string(text.substr(1, text.size() - 2)), begin});
    }

    [[noreturn]] void Fail(const std::string& reason) const
    {
        throw Failure(std::to_string(m_line) + ":1: " + reason);
    }

    int m_line = 0;
};

} // namespace

const KeyFileEntry* KeyFileGroup::Find(std::string_view key) const
{
    const auto found = std::find_if(entries.rbegin(), entries.rend(),
                                    [key](const KeyFileEntry& entry) { return entry.key == key; });
    return found == entries.rend() ? nullptr : &*found;
}

std::string KeyFileGroup::ValueOf(std::string_view key) const
{
    const auto* entry = Find(key);
    return entry ? entry->value : std::string();
}

std::vector<KeyFileGroup> ReadKeyFile(std::string_view text)
{
    Reader reader;
    for (std::size_t begin = 0; begin < text.size();)
    {
        const auto end = std::min(text.find('\n', begin), text.size());
        reader.ReadLine(text.substr(begin, end - begin), begin);
        begin = end + 1;
    }
    return std::move(reader.groups);
}

} // namespace Vexlor::Tool
