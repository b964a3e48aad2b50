#include "runtime/foundation/VXJson.h"

#include "IVXJsonValue.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

std::shared_ptr<const IVXJsonValue> Parse(std::string_view text)
{
    std::string error;
    auto value = ParseJson(text, &error);
    EXPECT_EQ("", error);
    return value ? value : IVXJsonValue::JsonValueNull();
}

} // namespace

TEST(JsonParse, TakesEveryKindOfDocument)
{
    for (const auto* text : {"null", "true", "false", "0", "-1", "1.5", "\"\"", "\"x\"", "[]", "{}"})
        EXPECT_EQ(text, JsonText(*Parse(text)));
}

TEST(JsonParse, ReadsATextThatIsHandedOverAlike)
{
    for (const std::string text :
         {"7", "[1]", R"({"a":"b\nc","d":[true,-2.5e3]})", "\xEF\xBB\xBF{}", " [ 12345678 ] "})
    {
        const auto value = ParseJsonInPlace(text);
        ASSERT_TRUE(value) << text;
        EXPECT_EQ(JsonText(*Parse(text)), JsonText(*value));
    }
}

TEST(JsonParse, RefusesATextThatIsHandedOverAlike)
{
    for (const std::string text : {"", "[", "{\"a\" 1}", "[1,\n 2,]", "\"\\x\""})
    {
        std::string copied;
        std::string handedOver;
        EXPECT_FALSE(ParseJson(text, &copied));
        EXPECT_FALSE(ParseJsonInPlace(text, &handedOver));
        EXPECT_EQ(copied, handedOver);
    }
}

TEST(JsonParse, TakesBlanksAround)
{
    EXPECT_EQ("{\"a\":[1]}", JsonText(*Parse(" \r\n\t{ \"a\" : [ 1 ] } \n")));
}

TEST(JsonParse, TakesBlanksBehindEveryToken)
{
    EXPECT_EQ(
        R"({"a":12,"b":-3,"c":"x ","d":[true,null,1.5,"y"]})",
        JsonText(*Parse("{ \"a\" : 12 , \"b\"\n:\r-3\t, \"c\" : \"x \" , \"d\" : [ true , null\n, 1.5 , "
                        "\"y\" ] } ")));
}

TEST(JsonParse, IntegersOfEveryLengthAreExact)
{
    std::string digits;
    for (const char digit : std::string_view("1234567890123456789"))
    {
        digits += digit;
        for (const auto& number : {digits, '-' + digits})
        {
            EXPECT_EQ(number, JsonText(*Parse(number)));
            const auto value = Parse("{\"n\": " + number + "}");
            EXPECT_EQ(std::stoll(number), value->GetValueInt64("n"));
            EXPECT_EQ(number, JsonText(*(*value)["n"]));
        }
    }
}

TEST(JsonParse, EscapeSequencesAreResolvedEverywhere)
{
    const auto value = Parse(R"({"\\a": "\u0022\u00e9\ud83d\ude00", "b": ["\\\"", "plain", {"\t": "\/"}]})");
    EXPECT_EQ("\"é😀", value->GetValueString("\\a"));
    EXPECT_EQ(R"({"\\a":"\"é😀","b":["\\\"","plain",{"\t":"/"}]})", JsonText(*value));
}

TEST(JsonParse, TakesAByteOrderMark) { EXPECT_EQ("[1]", JsonText(*Parse("\xEF\xBB\xBF[1]"))); }

TEST(JsonParse, TakesATextThatEndsWhereItsMemoryEnds)
{
    const std::vector<char> exact{'[', '1', ']'};
    EXPECT_EQ("[1]", JsonText(*Parse({exact.data(), exact.size()})));
}

TEST(JsonParse, TheTextMayGoAfterwards)
{
    std::string text = R"({"name": "value"})";
    const auto value = Parse(text);
    text.assign(text.size(), '#');
    EXPECT_EQ("value", value->GetValueString("name"));
}

TEST(JsonParse, AHandleKeepsTheDocument)
{
    auto document = Parse(R"({"a": [{"b": "deep"}]})");
    const auto inner = document->GetValueArray("a")->At(0);
    document.reset();
    EXPECT_EQ("deep", inner->GetValueString("b"));
}

TEST(JsonParse, TheFirstOfSeveralMembersIsFound)
{
    const auto value = Parse(R"({"a": "first", "a": ["second"], "b": 1, "a": 3})");
    EXPECT_EQ("first", value->GetValueString("a"));
    EXPECT_EQ("\"first\"", JsonText(*(*value)["a"]));
    EXPECT_EQ(0, value->GetValueArray("a")->Size());
    EXPECT_EQ(0, value->GetValueInt("a"));
    EXPECT_TRUE(value->HasKey("a"));
}

TEST(JsonParse, NamesAreComparedUnescaped)
{
    EXPECT_EQ(1, Parse(R"({"\u0061\n\u00e9": 1})")->GetValueInt("a\né"));
    EXPECT_EQ(2, Parse(R"({"a\u0000b": 2})")->GetValueInt({"a\0b", 3}));
    EXPECT_FALSE(Parse(R"({"a\u0000b": 2})")->HasKey("a"));
}

TEST(JsonParse, TheEmptyNameIsAName)
{
    EXPECT_EQ(1, Parse(R"({"": 1})")->GetValueInt(""));
    EXPECT_FALSE(Parse(R"({"a": 1})")->HasKey(""));
}

TEST(JsonParse, MembersOfInnerObjectsAreNotOuterOnes)
{
    const auto value = Parse(R"({"a": {"b": 1}, "c": [{"d": 2}]})");
    EXPECT_FALSE(value->HasKey("b"));
    EXPECT_FALSE(value->HasKey("d"));
    EXPECT_EQ(1, (*value)["a"]->GetValueInt("b"));
}

TEST(JsonParse, ElementsKeepTheirOrder)
{
    const auto list = Parse(R"({"a": [[1], {"x": [7, 8]}, "s", 4, [[], [5]]]})")->GetValueArray("a");
    ASSERT_EQ(5, list->Size());
    EXPECT_EQ("[1]", JsonText(*list->At(0)));
    EXPECT_EQ("8", JsonText(*list->At(1)->GetValueArray("x")->At(1)));
    EXPECT_EQ("\"s\"", JsonText(*list->At(2)));
    EXPECT_EQ("4", JsonText(*list->At(3)));
    EXPECT_EQ("[5]", JsonText(*list->At(4)->At(1)));
}

TEST(JsonParse, IntegersBeyond64BitsBecomeFloatingPoint)
{
    EXPECT_EQ("[18446744073709551616.0,1.2345678901234568e+29,\"18446744073709551616\"]",
              JsonText(*Parse(
                  R"([18446744073709551616, 123456789012345678901234567890, "18446744073709551616"])")));
}

TEST(JsonParse, IntegersBeyond64BitsReadAsZero)
{
    const auto value = Parse(R"({"above": 18446744073709551616, "below": -9223372036854775809, "after": 5})");
    EXPECT_EQ(0, value->GetValueInt64("above"));
    EXPECT_EQ(0, value->GetValueInt64("below"));
    EXPECT_EQ(0, value->GetValueInt("below"));
    EXPECT_EQ(5, value->GetValueInt("after"));
}

TEST(JsonParse, NumbersTooSmallAreZero) { EXPECT_EQ("[0.0]", JsonText(*Parse("[1e-999]"))); }

TEST(JsonParse, SettingAMemberOfAParsedValueDoesNothing)
{
    const auto value = std::const_pointer_cast<IVXJsonValue>(Parse(R"({"a": 1})"));
    value->SetValueInt("a", 2);
    value->SetValueInt64("a", 2);
    value->SetValueBool("b", true);
    value->SetValueString("c", "text");
    value->SetValueObject("d", IVXJsonValue::JsonValueNull());
    value->SetValueArray("e", {});
    EXPECT_EQ("{\"a\":1}", JsonText(*value));
}

} // namespace Vexlor
