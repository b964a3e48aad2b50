#include "runtime/foundation/VXJson.h"
#include "runtime/foundation/VXJsonDocument.h"
#include "runtime/foundation/VXJsonEscape.h"
#include "runtime/foundation/VXJsonNode.h"

#include <algorithm>
#include <array>
#include <charconv>

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

// How long the texts in a built value are that are written without blanks: nearly all of its text. Nothing is
// known of what is below a value that is too deep.
class LengthOfParts
{
public:
    explicit LengthOfParts(const JsonItem& root) { Add(root, 1); }

    std::size_t Length() const { return m_length; }

private:
    void Add(const JsonItem& item, std::size_t depth)
    {
        m_isTooDeep = m_isTooDeep || depth > kJsonMaxDepth;
        if (item.kind == JsonKind::Array)
            AddElements(*item.node, depth + 1);
        else if (item.kind == JsonKind::Object)
            AddParts(*item.node, depth + 1);
    }

    void AddElements(const VXJsonNode& node, std::size_t depth)
    {
        JsonEntry entry;
        for (JsonCursor cursor; !m_isTooDeep && node.Next(cursor, entry); ++m_length)
            Add(entry.item, depth);
    }

    void AddParts(const VXJsonNode& node, std::size_t depth)
    {
        constexpr std::size_t kBraces = 2;
        m_length += kBraces;
        JsonPart part;
        for (JsonCursor cursor; !m_isTooDeep && node.NextPart(cursor, part); m_length += part.text.size())
            Add(part.child, depth);
    }

    std::size_t m_length = 0;
    bool m_isTooDeep = false;
};

// Walks a value with a list of open containers instead of calls, so that no depth is too deep.
class TextWriter
{
public:
    explicit TextWriter(JsonStyle style) : m_indented(style == JsonStyle::Indented) {}

    std::string Write(const JsonItem& root)
    {
        if (!m_indented)
            m_text.reserve(LengthOfParts(root).Length());
        WriteWhole(root);
        return m_isTooDeep ? std::string() : std::move(m_text);
    }

private:
    struct Container
    {
        const VXJsonNode* node;
        bool named;
        bool inParts; // its members are at hand as text
        JsonCursor cursor;
    };

    void WriteWhole(const JsonItem& item)
    {
        const std::size_t open = m_open.size();
        WriteItem(item);
        while (m_open.size() > open && !m_isTooDeep)
            WriteNext();
    }

    void WriteItem(const JsonItem& item)
    {
        const bool isContainerText =
            item.kind == JsonKind::Text && (item.text[0] == '{' || item.text[0] == '[');
        if (isContainerText && m_indented)
        {
            const auto value = ParseOwnJson(std::string(item.text), nullptr);
            return WriteWhole(static_cast<const VXJsonNode&>(*value).Self());
        }
        if (item.kind == JsonKind::Array || item.kind == JsonKind::Object)
            Open(*item.node, item.kind == JsonKind::Object);
        else
            AppendScalar(m_text, item);
    }

    void WriteNext()
    {
        Container& container = m_open.back();
        if (container.inParts)
            return WritePart(container);
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

    void WritePart(Container& container)
    {
        JsonPart part;
        if (!container.node->NextPart(container.cursor, part))
            return Close();
        AppendPart(part, m_open.size());
        if (part.child.kind != JsonKind::Absent)
            WriteItem(part.child);
    }

    void AppendPart(const JsonPart& part, std::size_t level)
    {
        CheckDepth(level + static_cast<std::size_t>(part.depth));
        m_text.append(part.text);
    }

    // A value below itself gets too deep as well.
    void CheckDepth(std::size_t depth) { m_isTooDeep = m_isTooDeep || depth > kJsonMaxDepth; }

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
        CheckDepth(m_open.size() + 1);
        m_text += named ? '{' : '[';
        JsonPart part;
        JsonCursor cursor;
        const bool inParts = !m_indented && node.NextPart(cursor, part);
        if (inParts && part.child.kind == JsonKind::Absent)
        {
            AppendPart(part, m_open.size() + 1);
            m_text += '}';
        }
        else
            m_open.push_back({.node = &node, .named = named, .inParts = inParts, .cursor = {}});
    }

    void Close()
    {
        const Container container = m_open.back();
        m_open.pop_back();
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
    bool m_isTooDeep = false;
    std::string m_text;
    std::vector<Container> m_open;
};

} // namespace

std::string JsonText(const IVXJsonValue& value, JsonStyle style)
{
    const auto* node = dynamic_cast<const VXJsonNode*>(&value);
    return TextWriter(style).Write(node ? node->Self() : JsonItem());
}

} // namespace Vexlor
