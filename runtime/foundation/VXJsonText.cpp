#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonEscape.h"
#include "runtime/foundation/VXJsonNode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <unordered_set>

namespace Vexlor
{

namespace
{

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
        AppendJsonString(out, item.text);
        break;
    case JsonKind::Text:
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
            WriteName(entry);
        WriteItem(entry.item);
    }

    void WriteName(const JsonEntry& entry)
    {
        if (entry.isNameAsWritten)
            m_text.append(1, '"').append(entry.name).append(1, '"');
        else
            AppendJsonString(m_text, entry.name);
        m_text.append(m_indented ? ": " : ":");
    }

    void Open(const VXJsonNode& node, bool named)
    {
        if (const auto members = m_indented ? std::string_view() : node.WrittenMembers(); !members.empty())
        {
            m_text.append(1, '{').append(members.substr(0, members.size() - 1)).append(1, '}');
            return;
        }
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
