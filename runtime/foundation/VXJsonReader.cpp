#include "runtime/foundation/VXJsonReader.h"

#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonNumber.h"
#include "runtime/foundation/VXLargePages.h"

#include <simdjson.h>

#include <new>
#include <utility>

namespace Vexlor
{

namespace
{

std::uint32_t Narrow(std::size_t offset) { return static_cast<std::uint32_t>(offset); }

std::string_view WithoutBlanksBehind(std::string_view token)
{
    return token.substr(0, token.find_last_not_of(" \n\r\t") + 1);
}

bool IsScalar(std::string_view token)
{
    return token == "true" || token == "false" || token == "null" ||
           JsonNumber(token).kind != JsonKind::Absent;
}

// Each step is told at which token it begins, and answers at which the next one does: kept in the object, the
// place would be waited for at each token.
class Reader
{
public:
    Reader(const VXJsonIndex& index, const VXJsonDocument& document, JsonContent& content)
        : m_index(index), m_document(document), m_content(content), m_backslash(index.Text().find('\\'))
    {
    }

    bool Read()
    {
        std::size_t place = 0;
        do
            place = GoOn(ReadValue(place));
        while (!m_open.empty() && !m_hasFault);
        if (m_hasFault || place != m_index.Count())
            return false;
        m_content.views.push_back(m_views.front());
        return true;
    }

    // What strings say is never longer than what stands for it.
    void Unescape(char* text)
    {
        for (const auto token : m_escaped)
            Unescaped(token).copy(text + (token.data() - m_index.Text().data()) + 1, token.size());
    }

private:
    // A container whose end is still to come.
    struct Open
    {
        bool isMember;     // or an element
        std::size_t first; // its first child among the members or views that wait
    };

    // At the end of the tokens nothing goes on.
    std::size_t Fault()
    {
        m_hasFault = true;
        return m_index.Count();
    }

    // A scalar, or containers up to their first value.
    std::size_t ReadValue(std::size_t place)
    {
        for (;;)
        {
            const char first = m_index.First(place);
            if (first != '{' && first != '[')
                return ReadScalar(place);
            const bool isObject = first == '{';
            if (!Begin(isObject))
                return Fault();
            ++place;
            if (m_index.First(place) == (isObject ? '}' : ']'))
                return place;
            if (isObject)
                place = ReadName(place);
        }
    }

    bool Begin(bool isObject)
    {
        m_open.push_back({.isMember = m_isInObject, .first = isObject ? m_members.size() : m_views.size()});
        m_isInObject = isObject;
        return m_open.size() <= kJsonMaxDepth;
    }

    // What stands behind a value, up to the next one.
    std::size_t GoOn(std::size_t place)
    {
        while (!m_open.empty())
        {
            const bool isObject = m_isInObject;
            const char behind = m_index.First(place);
            if (behind == ',')
                return isObject ? ReadName(place + 1) : place + 1;
            if (behind != (isObject ? '}' : ']'))
                return Fault();
            End();
            ++place;
        }
        return place;
    }

    std::size_t ReadName(std::size_t place)
    {
        if (m_index.First(place) != '"' || m_index.First(place + 1) != ':')
            return Fault();
        m_members.push_back({.name = Narrow(m_index.Offset(place) + 1),
                             .nameLength = Narrow(StringLength(place)),
                             .value = 0,
                             .length = 0});
        return place + 2;
    }

    std::size_t ReadScalar(std::size_t place)
    {
        constexpr std::size_t kQuotes = 2;
        if (place == m_index.Count())
            return Fault();
        const std::string_view token = m_index.Token(place);
        if (m_index.First(place) == '"')
            Put(m_index.Offset(place), StringLength(place) + kQuotes);
        else if (const auto number = ShortInteger(token))
            Put(static_cast<std::uint32_t>(*number), JsonDocumentMember::kInteger);
        else if (const auto trimmed = WithoutBlanksBehind(token); IsScalar(trimmed))
            Put(m_index.Offset(place), trimmed.size());
        else
            return Fault();
        return place + 1;
    }

    // How long it is what the string says.
    std::size_t StringLength(std::size_t place)
    {
        constexpr std::size_t kQuotes = 2;
        std::string_view token = m_index.Token(place);
        while (token.back() != '"')
            token.remove_suffix(1);
        // Backslashes stand in strings only; elsewhere they are no JSON.
        const std::size_t end = m_index.Offset(place + 1);
        if (m_backslash >= end)
            return token.size() - kQuotes;
        m_backslash = m_index.Text().find('\\', end);
        m_escaped.push_back(token);
        return Unescaped(token).size();
    }

    std::string_view Unescaped(std::string_view token)
    {
        std::string_view text;
        const auto error = m_parser.parse(token.data(), token.size(), false).get(text);
        if (error == simdjson::MEMALLOC)
            throw std::bad_alloc();
        m_hasFault = m_hasFault || error != simdjson::SUCCESS;
        return text;
    }

    // A scalar, as a member has it.
    void Put(std::size_t value, std::size_t length)
    {
        if (m_isInObject)
        {
            m_members.back().value = Narrow(value);
            m_members.back().length = Narrow(length);
        }
        else
            m_views.emplace_back(m_document, JsonKind::Text, value, length);
    }

    void End()
    {
        const Open container = m_open.back();
        m_open.pop_back();
        if (std::exchange(m_isInObject, container.isMember))
            EndObject(container.first);
        else
            EndArray(container.first);
    }

    void EndObject(std::size_t first)
    {
        const VXJsonView view(m_document, JsonKind::Object, m_content.members.size(),
                              m_members.size() - first);
        Keep(m_members, first, m_content.members);
        Put(view);
    }

    // As a member it stands before its elements, which are read behind it.
    void EndArray(std::size_t first)
    {
        const bool isMember = m_isInObject;
        const VXJsonView view(m_document, JsonKind::Array, m_content.views.size() + (isMember ? 1 : 0),
                              m_views.size() - first);
        if (isMember)
            Put(view);
        Keep(m_views, first, m_content.views);
        if (!isMember)
            Put(view);
    }

    void Put(const VXJsonView& view)
    {
        if (!m_isInObject)
            return m_views.push_back(view);
        m_members.back().value = Narrow(m_content.views.size());
        m_content.views.push_back(view);
    }

    // The children stand next to each other now and for good.
    template <class Child>
    static void Keep(std::vector<Child>& waiting, std::size_t first, std::vector<Child>& content)
    {
        const auto begin = waiting.begin() + static_cast<std::ptrdiff_t>(first);
        content.insert(content.end(), begin, waiting.end());
        waiting.erase(begin, waiting.end());
    }

    const VXJsonIndex& m_index;
    const VXJsonDocument& m_document;
    JsonContent& m_content;
    // Children of containers that are open.
    std::vector<JsonDocumentMember> m_members;
    std::vector<VXJsonView> m_views;
    std::vector<Open> m_open;
    bool m_isInObject = false;      // as opposed to an array: the innermost that is open
    simdjson::dom::parser m_parser; // of strings with escape sequences
    std::vector<std::string_view> m_escaped;
    std::size_t m_backslash; // where the next one is in the text
    bool m_hasFault = false;
};

} // namespace

bool ReadContent(const VXJsonIndex& index, char* text, const VXJsonDocument& document, JsonContent& content)
{
    constexpr std::size_t kTokensAView = 8; // most have as many, with their members
    constexpr std::size_t kTokensAMember = 4;
    content.members.reserve(index.Count() / kTokensAMember);
    UseLargePages(content.members.data(), content.members.capacity() * sizeof(JsonDocumentMember));
    content.views.reserve(index.Count() / kTokensAView);
    UseLargePages(content.views.data(), content.views.capacity() * sizeof(VXJsonView));
    Reader reader(index, document, content);
    if (!reader.Read())
        return false;
    reader.Unescape(text);
    return true;
}

} // namespace Vexlor
