#include "runtime/foundation/VXJson.h"

#include "IVXJsonValue.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

namespace Vexlor
{

namespace
{

std::string Rewritten(std::string_view text, JsonStyle style = JsonStyle::Compact)
{
    const auto value = ParseJson(text);
    return value ? JsonText(*value, style) : "refused";
}

std::shared_ptr<IVXJsonValue> WithText(const std::string& text)
{
    auto value = IVXJsonValue::JsonValueNull();
    value->SetValueString("t", text);
    return value;
}

std::string RoundTrip(const std::string& text)
{
    const auto value = ParseJson(JsonText(*WithText(text)));
    return value ? value->GetValueString("t") : "refused";
}

std::string Utf8(char32_t c)
{
    const auto byte = [](char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    if (c < 0x80)
        return {byte(c)};
    if (c < 0x800)
        return {byte(0xC0 | c >> 6), byte(0x80 | (c & 0x3F))};
    if (c < 0x10000)
        return {byte(0xE0 | c >> 12), byte(0x80 | (c >> 6 & 0x3F)), byte(0x80 | (c & 0x3F))};
    return {byte(0xF0 | c >> 18), byte(0x80 | (c >> 12 & 0x3F)), byte(0x80 | (c >> 6 & 0x3F)),
            byte(0x80 | (c & 0x3F))};
}

} // namespace

TEST(JsonText, CompactHasNoBlanks)
{
    EXPECT_EQ(R"({"a":[1,{"b":null}],"c":{},"d":[]})",
              Rewritten(R"( {"a" : [1, {"b": null}], "c": { }, "d": [ ]} )"));
}

TEST(JsonText, IndentedHasALineForEachMemberAndElement)
{
    EXPECT_EQ(R"({
  "a": [
    1,
    {
      "b": null
    }
  ],
  "c": {},
  "d": []
})",
              Rewritten(R"({"a":[1,{"b":null}],"c":{},"d":[]})", JsonStyle::Indented));
}

TEST(JsonText, IndentedReadsBackTheSame)
{
    const auto* text = R"({"a":[1,{"b":null},[[]]],"c":{"d":"x"}})";
    EXPECT_EQ(text, Rewritten(Rewritten(text, JsonStyle::Indented)));
}

TEST(JsonText, IntegersOf64BitsAreExact)
{
    for (const auto* number :
         {"0", "-1", "2147483647", "-2147483648", "9007199254740993", "9223372036854775807",
          "-9223372036854775808", "9223372036854775808", "18446744073709551615"})
        EXPECT_EQ(number, Rewritten(number));
}

TEST(JsonText, BuiltIntegersAreExactAtEveryBit)
{
    for (int bit = 0; bit < 64; ++bit)
    {
        const auto number = static_cast<std::int64_t>(std::uint64_t{1} << bit);
        const auto value = IVXJsonValue::JsonValueNull();
        value->SetValueInt64("n", number);
        EXPECT_EQ("{\"n\":" + std::to_string(number) + '}', JsonText(*value));
        EXPECT_EQ(number, ParseJson(JsonText(*value))->GetValueInt64("n"));
    }
}

TEST(JsonText, DoublesAreTheShortestTextThatReadsBack)
{
    for (const auto* number : {"0.1", "-2.25", "5e-324", "1.7976931348623157e+308", "0.30000000000000004"})
        EXPECT_EQ(number, Rewritten(number));
    EXPECT_EQ("[0.1,5e-324,1e+22]", Rewritten("[0.1000000000000000055, 4.9e-324, 1e22]"));
}

TEST(JsonText, DoublesStayDoubles)
{
    EXPECT_EQ("[1.0,-0.0,1e+05,1234567.0]", Rewritten("[1.0, -0.0, 1e5, 1234567.0]"));
}

TEST(JsonText, TheLocaleDoesNotMatter)
{
    const auto* before = std::setlocale(LC_NUMERIC, nullptr);
    const std::string kept = before ? before : "C";
    for (const auto* locale : {"de_DE.UTF-8", "fr_FR.UTF-8", "C"})
    {
        std::setlocale(LC_NUMERIC, locale); // one that is not installed leaves the one before
        EXPECT_EQ("[1234567.5,1000000]", Rewritten("[1234567.5, 1000000]")) << locale;
    }
    std::setlocale(LC_NUMERIC, kept.c_str());
}

TEST(JsonText, ControlCharactersAreEscaped)
{
    EXPECT_EQ(R"({"t":"\"\\/\b\f\n\r\t\u0000\u0001\u001F )"
              "\x7F\"}",
              JsonText(*WithText(std::string("\"\\/\b\f\n\r\t\0\x01\x1F \x7F", 13))));
}

TEST(JsonText, EveryCharacterSurvives)
{
    for (char32_t block = 0; block < 0x110000; block += 0x400)
    {
        std::string text;
        for (char32_t c = block; c < block + 0x400; ++c)
            text += c >= 0xD800 && c < 0xE000 ? "" : Utf8(c);
        EXPECT_EQ(text, RoundTrip(text)) << "from U+" << std::hex << static_cast<std::uint32_t>(block);
    }
}

TEST(JsonText, BytesThatAreNoUtf8AreReplaced)
{
    EXPECT_EQ("a�b", RoundTrip("a\xFF"
                               "b"));
    EXPECT_EQ("��", RoundTrip("\xC0\x80"));
    EXPECT_EQ("漢��", RoundTrip("漢\xE6\xBC"));
    EXPECT_EQ("���", RoundTrip("\xED\xA0\x80"));
    EXPECT_EQ("����", RoundTrip("\xF4\x90\x80\x80"));
}

TEST(JsonText, EveryPairOfBytesGivesReadableText)
{
    for (int first = 0; first < 256; ++first)
        for (int second = 0; second < 256; ++second)
        {
            const std::string text{static_cast<char>(first), static_cast<char>(second)};
            ASSERT_TRUE(ParseJson(JsonText(*WithText(text)))) << first << ' ' << second;
        }
}

TEST(JsonText, NamesAreWrittenAsTexts)
{
    const auto value = IVXJsonValue::JsonValueNull();
    value->SetValueInt("a\"\n\xFF", 1);
    EXPECT_EQ("{\"a\\\"\\n�\":1}", JsonText(*value));
}

} // namespace Vexlor
