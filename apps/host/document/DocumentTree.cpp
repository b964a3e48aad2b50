#include "DocumentTree.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <charconv>

namespace Vexlor::Tool
{

namespace
{

using Size = rapidjson::SizeType;

/// Makes values of what the parser meets.
class Builder final : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Builder>
{
public:
    Builder(std::string_view text, const rapidjson::MemoryStream& stream, std::vector<DocumentValue>& values)
        : m_text(text), m_stream(stream), m_values(values)
    {
    }

    bool Null() { return AddScalar(DocumentKind::Null); }
    bool Bool(bool /*value*/) { return AddScalar(DocumentKind::Bool); }
    bool RawNumber(const char* digits, Size length, bool /*copy*/)
    {
        const auto isInteger =
            std::string_view(digits, length).find_first_of(".eE") == std::string_view::npos;
        return AddScalar(isInteger ? DocumentKind::Integer : DocumentKind::Fraction);
    }
    bool String(const char* /*text*/, Size /*length*/, bool /*copy*/)
    {
        return AddScalar(DocumentKind::Text);
    }
    bool Key(const char* /*name*/, Size /*length*/, bool /*copy*/)
    {
        m_name = BeginOfToken();
        m_end = m_stream.Tell();
        m_nameSize = m_end - m_name;
        return true;
    }
    bool StartArray() { return Open(DocumentKind::Array); }
    bool EndArray(Size /*count*/) { return Close(); }
    bool StartObject() { return Open(DocumentKind::Object); }
    bool EndObject(Size /*count*/) { return Close(); }

private:
    // Between the end of what was met last and the beginning of what is met now.
    std::size_t BeginOfToken() const { return m_text.find_first_not_of(" \t\r\n,:", m_end); }

    DocumentValue& Add(DocumentKind kind)
    {
        DocumentValue value;
        value.kind = kind;
        value.begin = static_cast<std::uint32_t>(BeginOfToken());
        value.name = static_cast<std::uint32_t>(m_name);
        value.nameSize = static_cast<std::uint32_t>(m_nameSize);
        if (!m_open.empty())
        {
            value.parent = m_open.back();
            value.ordinal = m_values[value.parent].count++;
        }
        m_name = 0;
        m_nameSize = 0;
        return m_values.emplace_back(value);
    }

    void End(DocumentValue& value) const
    {
        value.end = static_cast<std::uint32_t>(m_end);
        value.next = static_cast<DocumentPosition>(m_values.size());
    }

    bool AddScalar(DocumentKind kind)
    {
        auto& value = Add(kind);
        m_end = m_stream.Tell();
        End(value);
        return true;
    }

    bool Open(DocumentKind kind)
    {
        m_end = Add(kind).begin + 1;
        m_open.push_back(static_cast<DocumentPosition>(m_values.size() - 1));
        return true;
    }

    bool Close()
    {
        m_end = BeginOfToken() + 1;
        End(m_values[m_open.back()]);
        m_open.pop_back();
        return true;
    }

    std::string_view m_text;
    const rapidjson::MemoryStream& m_stream;
    std::vector<DocumentValue>& m_values;
    std::vector<DocumentPosition> m_open;
    std::size_t m_end = 0;
    std::size_t m_name = 0;
    std::size_t m_nameSize = 0;
};

struct TextReader final : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, TextReader>
{
    bool String(const char* content, Size length, bool /*copy*/)
    {
        text.assign(content, length);
        return true;
    }

    std::string text;
};

std::string Unquoted(std::string_view quoted)
{
    if (quoted.find('\\') == std::string_view::npos)
        return std::string(quoted.substr(1, quoted.size() - 2));
    rapidjson::MemoryStream stream(quoted.data(), quoted.size());
    rapidjson::Reader reader;
    TextReader content;
    reader.Parse(stream, content);
    return content.text;
}

template <typename Number>
std::optional<Number> NumberIn(std::string_view text)
{
    Number number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = end == text.data() + text.size();
    return fault == std::errc() && isWhole ? std::optional(number) : std::nullopt;
}

} // namespace

DocumentTree::DocumentTree(std::string_view text) : m_text(text)
{
    constexpr std::size_t kBytesOfValue =
        24; // in documents as they are written; one allocation is enough then
    m_values.reserve(text.size() / kBytesOfValue);
    rapidjson::MemoryStream stream(text.data(), text.size());
    Builder builder(text, stream, m_values);
    rapidjson::Reader reader;
    reader.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag>(stream, builder);
}

std::string_view DocumentTree::Source(DocumentPosition value) const
{
    const auto& place = m_values[value];
    return m_text.substr(place.begin, place.end - place.begin);
}

std::string DocumentTree::NameOf(DocumentPosition value) const
{
    return Unquoted(m_text.substr(m_values[value].name, m_values[value].nameSize));
}

bool DocumentTree::IsNamed(DocumentPosition value, std::string_view name) const
{
    const auto& place = m_values[value];
    if (place.nameSize == name.size() + 2)
        return m_text.substr(place.name + 1, name.size()) == name;
    return place.nameSize > name.size() + 2 &&
           m_text.substr(place.name, place.nameSize).find('\\') != std::string_view::npos &&
           NameOf(value) == name;
}

std::optional<DocumentPosition> DocumentTree::Find(DocumentPosition object, std::string_view name) const
{
    if (m_values[object].kind != DocumentKind::Object)
        return {};
    for (auto value = object + 1; value < m_values[object].next; value = m_values[value].next)
        if (IsNamed(value, name))
            return value;
    return {};
}

std::optional<std::int64_t> DocumentTree::FindInteger(DocumentPosition object, std::string_view name) const
{
    const auto value = Find(object, name);
    if (!value || m_values[*value].kind != DocumentKind::Integer)
        return {};
    if (const auto number = NumberIn<std::int64_t>(Source(*value)))
        return number;
    const auto mask = NumberIn<std::uint64_t>(Source(*value));
    return mask ? std::optional(static_cast<std::int64_t>(*mask)) : std::nullopt;
}

std::optional<std::string> DocumentTree::FindText(DocumentPosition object, std::string_view name) const
{
    const auto value = Find(object, name);
    const bool isText = value && m_values[*value].kind == DocumentKind::Text;
    return isText ? std::optional(Unquoted(Source(*value))) : std::nullopt;
}

std::uint32_t DocumentTree::CountIn(DocumentPosition object, std::string_view name) const
{
    const auto list = Find(object, name);
    return list && m_values[*list].kind == DocumentKind::Array ? m_values[*list].count : 0;
}

} // namespace Vexlor::Tool
