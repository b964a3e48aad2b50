#include "StreamCaps.h"

#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr std::string_view kBlank = " \t\r\n";

/// A cursor over the text.
class Reader
{
public:
    explicit Reader(std::string_view text) : m_text(text) {}

    bool IsAtEnd()
    {
        SkipBlanks();
        return m_at == m_text.size();
    }

    bool Take(char letter)
    {
        SkipBlanks();
        if (m_at == m_text.size() || m_text[m_at] != letter)
            return false;
        ++m_at;
        return true;
    }

    void Expect(char letter)
    {
        if (!Take(letter))
            Fail(std::string("expected ") + letter);
    }

    /// What stands up to one of the ends.
    std::string Word(std::string_view ends)
    {
        SkipBlanks();
        const auto end = std::min(m_text.find_first_of(ends, m_at), m_text.size());
        std::string word(m_text.substr(m_at, end - m_at));
        m_at = end;
        word.resize(word.find_last_not_of(kBlank) + 1);
        if (word.empty())
            Fail("expected a word");
        return word;
    }

    std::string QuotedWord()
    {
        std::string word;
        for (; m_at < m_text.size() && m_text[m_at] != '"'; ++m_at)
        {
            if (m_text[m_at] == '\\' && m_at + 1 < m_text.size())
                ++m_at;
            word += m_text[m_at];
        }
        Expect('"');
        return word;
    }

    [[noreturn]] void Fail(const std::string& reason) const
    {
        throw Failure(reason + " at " + Quoted(m_text.substr(m_at, 20)));
    }

private:
    void SkipBlanks() { m_at = std::min(m_text.find_first_not_of(kBlank, m_at), m_text.size()); }

    std::string_view m_text;
    std::size_t m_at = 0;
};

/// One text, without the type in front of it: "(string)high".
std::string ReadScalar(Reader& reader)
{
    if (reader.Take('('))
    {
        reader.Word(")");
        reader.Expect(')');
    }
    return reader.Take('"') ? reader.QuotedWord() : reader.Word(",;]}");
}

CapsValue ReadSeveral(Reader& reader, CapsValue::Kind kind, char end)
{
    CapsValue value{kind};
    do
        value.texts.push_back(ReadScalar(reader));
    while (reader.Take(','));
    reader.Expect(end);
    // The third number of a range is its step.
    if (kind == CapsValue::Kind::Range && (value.texts.size() < 2 || value.texts.size() > 3))
        reader.Fail("a range has two ends");
    return value;
}

CapsValue ReadValue(Reader& reader)
{
    if (reader.Take('('))
    {
        reader.Word(")");
        reader.Expect(')');
    }
    if (reader.Take('{'))
        return ReadSeveral(reader, CapsValue::Kind::Choice, '}');
    if (reader.Take('['))
        return ReadSeveral(reader, CapsValue::Kind::Range, ']');
    return {CapsValue::Kind::Single, {ReadScalar(reader)}};
}

StreamCaps ReadStructure(Reader& reader)
{
    StreamCaps caps{reader.Word(",;")};
    caps.media.resize(std::min(caps.media.find('('), caps.media.size())); // features of memory
    while (reader.Take(','))
    {
        auto name = reader.Word("=,;");
        reader.Expect('=');
        caps.fields.push_back({std::move(name), ReadValue(reader)});
    }
    return caps;
}

} // namespace

const CapsValue* StreamCaps::Find(std::string_view name) const
{
    const auto found = std::ranges::find(fields, name, &CapsField::name);
    return found == fields.end() ? nullptr : &found->value;
}

std::string StreamCaps::TextOf(std::string_view name) const
{
    const auto* value = Find(name);
    return value && value->kind == CapsValue::Kind::Single ? value->texts.front() : std::string();
}

std::vector<StreamCaps> ReadCaps(std::string_view text)
{
    Reader reader(text);
    std::vector<StreamCaps> alternatives;
    do
        alternatives.push_back(ReadStructure(reader));
    while (reader.Take(';') && !reader.IsAtEnd());
    if (!reader.IsAtEnd())
        reader.Fail("expected ; or the end");
    return alternatives;
}

} // namespace Vexlor::Tool
