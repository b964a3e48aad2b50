#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonNode.h"
#include "runtime/foundation/VXUtf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <unordered_set>

namespace Vexlor
{

namespace
{

// The letter behind the backslash, 'u' for a character without one of its own, 0 for one that stands for
// itself and 1 for the bytes of longer characters, which are looked at first.
constexpr std::array<char, 256> EscapeTable()
{
    std::array<char, 256> table{};
    for (std::size_t c = 0; c < 0x20; ++c)
        table.at(c) = 'u';
    for (std::size_t c = 0x80; c < table.size(); ++c)
        table.at(c) = 1;
    table['"'] = '"';
    table['\\'] = '\\';
    table['\b'] = 'b';
    table['\f'] = 'f';
    table['\n'] = 'n';
    table['\r'] = 'r';
    table['\t'] = 't';
    return table;
}

constexpr auto kEscapes = EscapeTable();

char EscapeOf(char c) { return kEscapes.at(static_cast<unsigned char>(c)); }

void AppendEscape(std::string& out, char c)
{
    constexpr std::string_view kHex = "0123456789ABCDEF";
    out += '\\';
    out += EscapeOf(c);
    if (EscapeOf(c) == 'u')
        out.append("00").append(1, kHex[static_cast<unsigned char>(c) >> 4]).append(1, kHex[c & 0xF]);
}

// Appends what stands for the start of text, which is no plain character; answers how many bytes that was.
std::size_t AppendSpecial(std::string& out, std::string_view text)
{
    constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
    if (EscapeOf(text[0]) != 1)
    {
        AppendEscape(out, text[0]);
        return 1;
    }
    const std::size_t length = Utf8Length(text);
    out.append(length == 0 ? kReplacement : text.substr(0, length));
    return length == 0 ? 1 : length;
}

void AppendString(std::string& out, std::string_view text)
{
    out += '"';
    while (!text.empty())
    {
        std::size_t plain = 0;
        while (plain < text.size() && EscapeOf(text[plain]) == 0)
            ++plain;
        out.append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (!text.empty())
            text.remove_prefix(AppendSpecial(out, text));
    }
    out += '"';
}

template <class Number>
void AppendNumber(std::string& out, Number number)
{
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    out.append(digits.data(), end);
}

// Always with a point or an exponent, so that it reads back as a floating-point number.
void AppendDouble(std::string& out, double number)
{
    const std::size_t start = out.size();
    AppendNumber(out, number);
    if (out.find_first_of(".e", start) == std::string::npos)
        out.append(".0");
}

void AppendScalar(std::string& out, const JsonItem& item)
{
    switch (item.kind)
    {
    case JsonKind::Bool:
        out.append(item.bits != 0 ? "true" : "false");
        break;
    case JsonKind::Int64:
        AppendNumber(out, std::bit_cast<std::int64_t>(item.bits));
        break;
    case JsonKind::Uint64:
        AppendNumber(out, item.bits);
        break;
    case JsonKind::Double:
        AppendDouble(out, std::bit_cast<double>(item.bits));
        break;
    case JsonKind::String:
        AppendString(out, item.text);
        break;
    default:
        out.append("null");
    }
}

// Walks a value with a list of open containers instead of calls, so that no depth is too deep.
class TextWriter
{
public:
    explicit TextWriter(JsonStyle style) : m_indented(style == JsonStyle::Indented) {}

    std::string Write(const JsonItem& root)
    {
        WriteItem(root);
        while (!m_open.empty() && !m_isCyclic)
            WriteNext();
        return m_isCyclic ? std::string() : std::move(m_text);
    }

private:
    struct Container
    {
        const VXJsonNode* node;
        bool named;
        JsonCursor cursor;
    };

    void WriteItem(const JsonItem& item)
    {
        if (item.kind == JsonKind::Array || item.kind == JsonKind::Object)
            Open(*item.node, item.kind == JsonKind::Object);
        else
            AppendScalar(m_text, item);
    }

    void WriteNext()
    {
        Container& container = m_open.back();
        const bool isFirst = container.cursor.at == 0;
        JsonEntry entry;
        if (!container.node->Next(container.cursor, entry))
            return Close();
        if (!isFirst)
            m_text += ',';
        StartLine();
        if (container.named)
        {
            AppendString(m_text, entry.name);
            m_text.append(m_indented ? ": " : ":");
        }
        WriteItem(entry.item);
    }

    void Open(const VXJsonNode& node, bool named)
    {
        // Shallow containers are not worth the search: a value below itself gets deep at once.
        if (m_open.size() >= kJsonMaxDepth && !m_deep.insert(&node).second)
            m_isCyclic = true;
        m_text += named ? '{' : '[';
        m_open.push_back({.node = &node, .named = named, .cursor = {}});
    }

    void Close()
    {
        const Container container = m_open.back();
        m_open.pop_back();
        if (m_open.size() >= kJsonMaxDepth)
            m_deep.erase(container.node);
        if (container.cursor.at > 0)
            StartLine();
        m_text += container.named ? '}' : ']';
    }

    void StartLine()
    {
        constexpr std::size_t kBlanks = 2;
        constexpr std::size_t kMostLevels =
            64; // or a deep value's text would grow with the square of its depth
        if (m_indented)
            m_text.append(1, '\n').append(kBlanks * std::min(m_open.size(), kMostLevels), ' ');
    }

    bool m_indented;
    bool m_isCyclic = false;
    std::string m_text;
    std::vector<Container> m_open;
    std::unordered_set<const VXJsonNode*> m_deep; // the open containers beyond the depth that can be read
};

} // namespace

std::string JsonText(const IVXJsonValue& value, JsonStyle style)
{
    const auto* node = dynamic_cast<const VXJsonNode*>(&value);
    return TextWriter(style).Write(node ? node->Self() : JsonItem());
}

} // namespace Vexlor
