#include "runtime/foundation/VXJson.h"

#include "IVXJsonValue.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <vector>

namespace Vexlor
{

namespace
{

using namespace std::string_view_literals;

struct ErrorCase
{
    const char* name;
    std::string_view text;
    std::string_view error;
};

const std::vector<ErrorCase> kErrors = {
    {"Empty", "", "1:1: the document is empty"},
    {"BlanksOnly", " \n\t ", "2:3: the document is empty"},
    {"OrderMarkOnly", "\xEF\xBB\xBF", "1:1: the document is empty"},
    {"OrderMarkIsNoColumn", "\xEF\xBB\xBFx", "1:1: no JSON value"},
    {"TwoDocuments", "{} {}", "1:4: more text behind the end of the document"},
    {"TextBehind", "[1]]", "1:4: more text behind the end of the document"},
    {"NulInFront", "\0{}"sv, "1:1: a zero byte, which no JSON text has"},
    {"NulBetween", "[1,\0 2]"sv, "1:4: a zero byte, which no JSON text has"},
    {"NulBehind", "[1]\0"sv, "1:4: more text behind the end of the document"},
    {"MissingComma", "{\n  \"a\": 1\n  \"b\": 2\n}", "3:3: missing comma or closing brace"},
    {"MissingCommaInArray", "[1 2]", "1:4: missing comma or closing bracket"},
    {"MissingColon", R"({"a" 1})", "1:6: missing colon behind a member name"},
    {"MissingName", "{1: 2}", "1:2: missing member name"},
    {"TrailingComma", "{\"a\": 1,\n}", "2:1: missing member name"},
    {"TrailingCommaInArray", "[1,\n]", "2:1: no JSON value"},
    {"WrongBracket", "[1}", "1:3: missing comma or closing bracket"},
    {"OpenObject", "{\"a\": 1", "1:8: unexpected end of the document"},
    {"OpenArray", "[1,", "1:4: unexpected end of the document"},
    {"OpenString", "\"abc", "1:5: missing closing quote"},
    {"OpenStringInObject", R"({"a": "b})", "1:10: missing closing quote"},
    {"UnknownWord", "{\"a\": nul}", "1:7: no JSON value"},
    {"Undefined", "undefined", "1:1: no JSON value"},
    {"NotANumber", "[NaN]", "1:2: no JSON value"},
    {"SingleQuotes", "{'a': 1}", "1:2: missing member name"},
    {"Comment", "// a\n{}", "1:1: no JSON value"},
    {"LeadingZero", "[01]", "1:3: missing comma or closing bracket"},
    {"NegativeLeadingZero", "[-012]", "1:4: missing comma or closing bracket"},
    {"MinusOnly", "[-]", "1:3: no JSON value"},
    {"DigitsAndLetters", "[12a]", "1:4: missing comma or closing bracket"},
    {"EscapesBeforeTheFault", R"({"\n\u00e9": "\u0022", x})", "1:24: missing member name"},
    {"LeadingPlus", "[+1]", "1:2: no JSON value"},
    {"NoFraction", "[1.]", "1:4: missing digits behind the decimal point"},
    {"NoExponent", "[1e]", "1:4: missing digits of the exponent"},
    {"NumberTooLarge", "[1,\n 1e999]", "2:2: number too large"},
    {"NegativeNumberTooLarge", "[-1e309]", "1:2: number too large"},
    {"UnknownEscape", R"("a\x")", "1:3: unknown escape sequence"},
    {"ShortEscape", R"("\u12")", "1:2: \\u without four hexadecimal digits"},
    {"LineEndInString", "\"a\nb\"", "1:3: control character in a string"},
    {"NulInString", "\"a\0b\""sv, "1:3: control character in a string"},
    {"HighSurrogateAlone", R"("ab\ud83d")", "1:4: unpaired surrogate"},
    {"HighSurrogateTwice", R"("\ud83d\ud83d")", "1:2: unpaired surrogate"},
    {"LowSurrogateAlone", "[\"\\\\\\ud83d\\ude00\",\n\"x\\udc00\"]", "2:3: unpaired surrogate"},
    {"LowSurrogateBesideLongInteger", R"([123456789012345678901, "\udc00"])", "1:26: unpaired surrogate"},
    {"NotUtf8", "[\"\xFF\"]", "1:3: not valid UTF-8"},
    {"CutUtf8", "\"\xE6\xBC\"", "1:2: not valid UTF-8"},
    {"OverlongUtf8", "\"\xC0\x80\"", "1:2: not valid UTF-8"},
    {"SurrogateInUtf8", "\"\xED\xA0\x80\"", "1:2: not valid UTF-8"},
    {"BeyondUnicode", "\"\xF4\x90\x80\x80\"", "1:2: not valid UTF-8"},
    {"ColumnsAreCharacters", "[\"漢字\", x]", "1:8: no JSON value"},
    {"TabIsOneColumn", "\t\tx", "1:3: no JSON value"},
    {"CarriageReturns", "[\r\n1,\r\nx]", "3:1: no JSON value"},
};

class JsonError : public testing::TestWithParam<ErrorCase>
{
};

std::string ErrorOf(std::string_view text)
{
    std::string error;
    EXPECT_FALSE(ParseJson(text, &error));
    return error;
}

bool HasPlaceAndReason(const std::string& error)
{
    int line = 0;
    int column = 0;
    char letter = 0;
    const bool hasAll = std::sscanf(error.c_str(), "%d:%d: %c", &line, &column, &letter) == 3;
    return hasAll && line > 0 && column > 0 && error.find("not valid JSON") == std::string::npos;
}

// A document with up to three bytes changed.
std::string Broken(std::mt19937& random)
{
    constexpr std::string_view kBytes = "{}[]\":,\\u0dxe-+. \n\x01\xFF\x80";
    std::string text =
        R"({"a": [1, -2.5e3, 12345678901234567890123, "x\u00e9\ud83d\ude00漢"], "b": {"c": null}})";
    for (auto changes = 1 + random() % 3; changes > 0; --changes)
        text[random() % text.size()] = kBytes[random() % kBytes.size()];
    return text;
}

} // namespace

TEST_P(JsonError, NamesPlaceAndReason) { EXPECT_EQ(GetParam().error, ErrorOf(GetParam().text)); }

INSTANTIATE_TEST_SUITE_P(Texts, JsonError, testing::ValuesIn(kErrors),
                         [](const auto& test) { return test.param.name; });

TEST(JsonErrors, ErrorMayBeLeftOut) { EXPECT_FALSE(ParseJson("{")); }

TEST(JsonErrors, ErrorIsLeftAloneAfterASuccess)
{
    std::string error = "before";
    EXPECT_TRUE(ParseJson("{}", &error));
    EXPECT_EQ("before", error);
}

// Whatever the parser refuses, the slow reading finds a reason of its own for.
TEST(JsonErrors, EveryBrokenTextHasAPlaceAndAReason)
{
    std::mt19937 random(1); // the same texts at every run
    int refused = 0;
    for (int round = 0; round < 5000; ++round)
    {
        const std::string text = Broken(random);
        std::string error;
        if (ParseJson(text, &error))
            continue;
        ++refused;
        ASSERT_TRUE(HasPlaceAndReason(error)) << text << '\n' << error;
    }
    EXPECT_GT(refused, 1000);
}

TEST(JsonErrors, EveryTextCutShortIsRefused)
{
    const std::string whole = R"({"a": [1, true, "x\ud83d\ude00漢"], "b": {"c": null}})";
    ASSERT_TRUE(ParseJson(whole));
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_NE("", ErrorOf(whole.substr(0, size)));
}

} // namespace Vexlor
