#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonEscape.h"
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

void AppendEscape(std::string& out, char c)
{
    constexpr std::string_view kHex = "0123456789ABCDEF";
    out += '\\';
    out += JsonEscapeOf(c);
    if (JsonEscapeOf(c) == 'u')
        out.append("00").append(1, kHex[static_cast<unsigned char>(c) >> 4]).append(1, kHex[c & 0xF]);
}

// Appends what stands for the start of text, which is no plain character; answers how many bytes that was.
std::size_t AppendSpecial(std::string& out, std::string_view text)
{
    constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
    if (JsonEscapeOf(text[0]) != 1)
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
        while (plain < text.size() && JsonEscapeOf(text[plain]) == 0)
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
    case JsonKind::Array: // one that stands written already
        out.append(item.text);
        break;
    default:
        out.append("null");
    }
}

// Walks a value with a list of open containers instead of calls, so that no depth is too deep.
class TextWriter
{
public:
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
        if (item.node)
            Open(*item.node, item.kind == JsonKind::Object);
        else
            AppendScalar(m_text, item);
    }

    void WriteNext()
    {
        Container& container = m_open.back();
        container.node->AppendReady(container.cursor, m_text);
        const bool isFirst = container.cursor.at == 0;
        JsonEntry entry;
        if (!container.node->Next(container.cursor, entry))
            return Close();
        if (!isFirst)
            m_text += ',';
        if (container.named)
        {
            AppendString(m_text, entry.name);
            m_text += ':';
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
        m_text += container.named ? '}' : ']';
    }

    bool m_isCyclic = false;
    std::string m_text;
    std::vector<Container> m_open;
    std::unordered_set<const VXJsonNode*> m_deep; // the open containers beyond the depth that can be read
};

// The string that compact text begins with, from quote to quote.
std::string_view StringAt(std::string_view compact)
{
    std::size_t end = 1;
    while (compact[end] != '"')
        end += compact[end] == '\\' ? 2 : 1;
    return compact.substr(0, end + 1);
}

// What stays on its line whatever is in it: a string, an empty container.
std::string_view WholeAt(std::string_view compact)
{
    if (compact.front() == '"')
        return StringAt(compact);
    const bool isEmpty = compact.starts_with("{}") || compact.starts_with("[]");
    return compact.substr(0, isEmpty ? 2 : 0);
}

void StartLine(std::string& out, std::size_t level)
{
    constexpr std::size_t kBlanks = 2;
    constexpr std::size_t kMostLevels = 64; // or a deep value's text would grow with the square of its depth
    out.append(1, '\n').append(kBlanks * std::min(level, kMostLevels), ' ');
}

// Our own compact text with a line for each member and element.
std::string Indented(std::string_view compact)
{
    std::string out;
    std::size_t level = 0;
    for (std::size_t at = 0; at < compact.size(); ++at)
    {
        const char c = compact[at];
        if (const auto whole = WholeAt(compact.substr(at)); !whole.empty())
        {
            out.append(whole);
            at += whole.size() - 1;
            continue;
        }
        if (c == '}' || c == ']')
            StartLine(out, --level);
        out += c;
        if (c == '{' || c == '[')
            StartLine(out, ++level);
        else if (c == ',')
            StartLine(out, level);
        else if (c == ':')
            out += ' ';
    }
    return out;
}

} // namespace

std::string JsonText(const IVXJsonValue& value, JsonStyle style)
{
    const auto* node = dynamic_cast<const VXJsonNode*>(&value);
    auto text = TextWriter().Write(node ? node->Self() : JsonItem());
    return style == JsonStyle::Indented ? Indented(text) : text;
}

} // namespace Vexlor
