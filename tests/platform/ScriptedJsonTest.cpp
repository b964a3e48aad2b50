#include "tests/platform/ScriptedJson.h"

#include <array>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace Vexlor
{

namespace
{

TEST(ScriptedJson, TextGivesBackWhatJsonRead)
{
    const std::string text = R"({"a":-1.5,"list":[true,null,{"text":"q\"\\"}],"empty":{},"none":[]})";
    EXPECT_EQ(text, Text(Json(text)));
}

TEST(ScriptedJson, SpacesDoNotMatter)
{
    EXPECT_EQ(R"({"width":1,"height":2})", Text(Json("{ \"width\" : 1,\n  \"height\": 2 }")));
}

class ScriptedJsonBadText : public testing::TestWithParam<const char*>
{
};

TEST_P(ScriptedJsonBadText, Throws) { EXPECT_THROW(Json(GetParam()), std::invalid_argument); }

INSTANTIATE_TEST_SUITE_P(Texts, ScriptedJsonBadText,
                         testing::Values("", "{", "[1", "{\"a\"}", "\"a", "1 2", "\"\\x\"", "{a:1}"));

TEST(ScriptedJson, MembersKeepTheOrderInWhichTheyWereFirstSet)
{
    const auto value = IVXJsonValue::JsonValueNull();
    value->SetValueInt("b", 1);
    value->SetValueString("a", "x");
    value->SetValueInt("b", 2);
    EXPECT_EQ(R"({"b":2,"a":"x"})", Text(value));
    EXPECT_EQ((std::vector<std::string>{"b", "a"}), MemberNames(value));
}

TEST(ScriptedJson, AMemberOfAnotherKindReadsAsAbsent)
{
    const auto value = Json(R"({"a": "1", "b": [1]})");
    EXPECT_EQ(0, value->GetValueInt("a"));
    EXPECT_EQ("", value->GetValueString("b"));
    EXPECT_EQ(0, value->GetValueArray("a")->Size());
    EXPECT_FALSE(value->GetValueBool("a"));
}

struct NumberCase
{
    const char* name;
    const char* text;
    int asInt;
    std::int64_t asInt64;
};

class ScriptedJsonNumber : public testing::TestWithParam<NumberCase>
{
};

TEST_P(ScriptedJsonNumber, ReadsAs)
{
    const auto value = Json(GetParam().text);
    EXPECT_EQ(GetParam().asInt, value->GetValueInt("n"));
    EXPECT_EQ(GetParam().asInt64, value->GetValueInt64("n"));
}

const std::array kNumbers{
    NumberCase{"Whole", R"({"n": 42})", 42, 42},
    NumberCase{"Fraction", R"({"n": -1.9})", -1, -1},
    NumberCase{"Exponent", R"({"n": 1e3})", 1000, 1000},
    NumberCase{"BeyondInt", R"({"n": 4294967296})", 0, 4294967296},
    NumberCase{"AllBits", R"({"n": 18446744073709551615})", 0, -1},
    NumberCase{"BeyondInt64", R"({"n": 18446744073709551616})", 0, 0},
};

INSTANTIATE_TEST_SUITE_P(Numbers, ScriptedJsonNumber, testing::ValuesIn(kNumbers),
                         [](const auto& test) { return test.param.name; });

TEST(ScriptedJson, ElementsOutsideAnArrayAreNull)
{
    const auto list = Json("[1]");
    EXPECT_EQ("1", Text(list->At(0)));
    EXPECT_EQ("null", Text(list->At(1)));
    EXPECT_EQ("null", Text(list->At(-1)));
}

TEST(ScriptedJson, AMemberValueIsShared)
{
    const auto outer = IVXJsonValue::JsonValueNull();
    const auto inner = IVXJsonValue::JsonValueNull();
    outer->SetValueObject("inner", inner);
    inner->SetValueInt("n", 1);
    EXPECT_EQ(R"({"inner":{"n":1}})", Text(outer));
}

} // namespace

} // namespace Vexlor
