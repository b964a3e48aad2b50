#include "tests/platform/ScriptedJson.h"

#include "tests/platform/ScriptedJsonValue.h"

#include <array>
#include <cstdio>
#include <stdexcept>

namespace Vexlor
{

namespace
{

using Value = ScriptedJsonValue;

/// Reads one document. Escapes of a code point by number are not among what tests write, and are refused.
class Parser
{
public:
    explicit Parser(std::string_view text) : m_text(text) {}

    Value::Handle Document()
    {
        auto value = Any();
        Skip();
        if (m_position != m_text.size())
            Fail("text behind the document");
        return value;
    }

private:
    Value::Handle Any();
    Value::Handle Array();
    Value::Handle Object();
    Value::Content Number();
    std::string String();
    char Escaped();

    [[noreturn]] void Fail(const char* reason) const
    {
        throw std::invalid_argument(std::string(reason) + " at " + std::to_string(m_position));
    }

    void Skip()
    {
        while (m_position < m_text.size() && std::string_view(" \n\r\t").find(m_text[m_position]) != kNowhere)
            ++m_position;
    }

    char Peek()
    {
        Skip();
        return m_position < m_text.size() ? m_text[m_position] : '\0';
    }

    bool Take(std::string_view token)
    {
        Skip();
        if (!m_text.substr(m_position).starts_with(token))
            return false;
        m_position += token.size();
        return true;
    }

    void Expect(std::string_view token)
    {
        if (!Take(token))
            Fail("something else expected");
    }

    char Next()
    {
        if (m_position == m_text.size())
            Fail("the text ends too early");
        return m_text[m_position++];
    }

    static Value::Handle Made(Value::Content content) { return std::make_shared<Value>(std::move(content)); }

    static constexpr auto kNowhere = std::string_view::npos;

    std::string_view m_text;
    std::size_t m_position = 0;
};

Value::Handle Parser::Any()
{
    if (Take("null"))
        return Made({});
    if (Take("true"))
        return Made(true);
    if (Take("false"))
        return Made(false);
    switch (Peek())
    {
    case '{':
        return Object();
    case '[':
        return Array();
    case '"':
        return Made(String());
    default:
        return Made(Number());
    }
}

Value::Handle Parser::Array()
{
    Value::Array elements;
    Expect("[");
    if (!Take("]"))
    {
        do
            elements.push_back(Any());
        while (Take(","));
        Expect("]");
    }
    return Made(std::move(elements));
}

Value::Handle Parser::Object()
{
    auto object = std::make_shared<Value>(Value::Object());
    Expect("{");
    if (!Take("}"))
    {
        do
        {
            const auto name = String();
            Expect(":");
            object->SetMember(name, Any());
        } while (Take(","));
        Expect("}");
    }
    return object;
}

Value::Content Parser::Number()
{
    const auto start = m_position;
    m_position = std::min(m_text.find_first_not_of("+-.0123456789eE", start), m_text.size());
    if (m_position == start)
        Fail("no value");
    return Value::Number{std::string(m_text.substr(start, m_position - start))};
}

std::string Parser::String()
{
    std::string text;
    Expect("\"");
    for (char next = Next(); next != '"'; next = Next())
        text += next == '\\' ? Escaped() : next;
    return text;
}

char Parser::Escaped()
{
    constexpr std::string_view kNames = "\"\\/bfnrt";
    constexpr std::string_view kCharacters = "\"\\/\b\f\n\r\t";
    const auto which = kNames.find(Next());
    if (which == kNowhere)
        Fail("unknown escape");
    return kCharacters[which];
}

std::string Quoted(const std::string& text)
{
    std::string quoted = "\"";
    for (const char character : text)
    {
        if (character == '"' || character == '\\')
            quoted += '\\';
        if (static_cast<unsigned char>(character) >= 0x20)
        {
            quoted += character;
            continue;
        }
        std::array<char, 8> escape{};
        std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(character));
        quoted += escape.data();
    }
    return quoted + '"';
}

struct Writer
{
    std::string operator()(std::monostate /*null*/) const { return "null"; }
    std::string operator()(bool truth) const { return truth ? "true" : "false"; }
    std::string operator()(const Value::Number& number) const { return number.literal; }
    std::string operator()(const std::string& text) const { return Quoted(text); }

    std::string operator()(const Value::Array& elements) const
    {
        std::string text = "[";
        for (const auto& element : elements)
            text.append(text.size() > 1 ? "," : "").append(Text(element));
        return text + ']';
    }

    std::string operator()(const Value::Object& members) const
    {
        std::string text = "{";
        for (const auto& [name, value] : members)
            text.append(text.size() > 1 ? "," : "").append(Quoted(name)).append(":").append(Text(value));
        return text + '}';
    }
};

} // namespace

std::shared_ptr<IVXJsonValue> Json(std::string_view text) { return Parser(text).Document(); }

std::string Text(const std::shared_ptr<const IVXJsonValue>& value)
{
    return value ? std::visit(Writer(), static_cast<const Value&>(*value).Value()) : "none";
}

std::vector<std::string> MemberNames(const std::shared_ptr<const IVXJsonValue>& value)
{
    std::vector<std::string> names;
    if (!value)
        return names;
    if (const auto* members = std::get_if<Value::Object>(&static_cast<const Value&>(*value).Value()))
        for (const auto& member : *members)
            names.push_back(member.first);
    return names;
}

} // namespace Vexlor
