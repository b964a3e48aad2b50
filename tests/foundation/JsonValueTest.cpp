#include "IVXJsonValue.h"

#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>
#include <vector>

namespace Vexlor
{

namespace
{

using Value = std::shared_ptr<const IVXJsonValue>;

// The same document twice: {"text", "no", "yes", "int", ..., "object": {"inner"}, "list": [{"n"}, null],
// "none"}.
Value Parsed()
{
    return ParseJson(R"({"text": "Grüße", "emptyText": "", "yes": true, "no": false, "zero": 0, "int": -7,
        "most": 2147483647, "least": -2147483648, "above": 2147483648, "below": -2147483649,
        "most64": 9223372036854775807, "least64": -9223372036854775808, "object": {"inner": 1},
        "list": [{"n": 1}, null], "emptyList": [], "null": null})");
}

std::shared_ptr<IVXJsonValue> WithInt(std::string_view name, int value)
{
    auto object = IVXJsonValue::JsonValueNull();
    object->SetValueInt(name, value);
    return object;
}

Value Built()
{
    auto value = IVXJsonValue::JsonValueNull();
    value->SetValueString("text", "Grüße");
    value->SetValueString("emptyText", "");
    value->SetValueBool("yes", true);
    value->SetValueBool("no", false);
    value->SetValueInt("zero", 0);
    value->SetValueInt("int", -7);
    value->SetValueInt("most", std::numeric_limits<int>::max());
    value->SetValueInt("least", std::numeric_limits<int>::min());
    value->SetValueInt64("above", 2147483648);
    value->SetValueInt64("below", -2147483649);
    value->SetValueInt64("most64", std::numeric_limits<std::int64_t>::max());
    value->SetValueInt64("least64", std::numeric_limits<std::int64_t>::min());
    value->SetValueObject("object", WithInt("inner", 1));
    value->SetValueArray("list", {WithInt("n", 1), nullptr});
    value->SetValueArray("emptyList", {});
    value->SetValueObject("null", nullptr);
    return value;
}

struct Origin
{
    const char* name;
    Value (*make)();
};

const std::vector<Origin> kOrigins = {{"Parsed", Parsed}, {"Built", Built}};

class JsonValue : public testing::TestWithParam<Origin>
{
protected:
    Value m_value = GetParam().make();
};

bool IsNull(const Value& value) { return value && JsonText(*value) == "null"; }

} // namespace

INSTANTIATE_TEST_SUITE_P(Origins, JsonValue, testing::ValuesIn(kOrigins),
                         [](const auto& test) { return test.param.name; });

TEST_P(JsonValue, GetValueStringAnswersTheText)
{
    EXPECT_EQ("Grüße", m_value->GetValueString("text"));
    EXPECT_EQ("", m_value->GetValueString("emptyText"));
}

TEST_P(JsonValue, GetValueStringIsEmptyForEveryOtherKind)
{
    for (const auto* name : {"absent", "yes", "int", "object", "list", "null"})
        EXPECT_EQ("", m_value->GetValueString(name)) << name;
}

TEST_P(JsonValue, GetValueIntAnswersAll32Bits)
{
    EXPECT_EQ(-7, m_value->GetValueInt("int"));
    EXPECT_EQ(std::numeric_limits<int>::max(), m_value->GetValueInt("most"));
    EXPECT_EQ(std::numeric_limits<int>::min(), m_value->GetValueInt("least"));
}

TEST_P(JsonValue, GetValueIntIsZeroBeyond32Bits)
{
    for (const auto* name : {"above", "below", "most64", "least64"})
        EXPECT_EQ(0, m_value->GetValueInt(name)) << name;
}

TEST_P(JsonValue, GetValueIntIsZeroForEveryOtherKind)
{
    for (const auto* name : {"absent", "yes", "text", "object", "list", "null"})
        EXPECT_EQ(0, m_value->GetValueInt(name)) << name;
}

TEST_P(JsonValue, GetValueInt64AnswersAll64Bits)
{
    EXPECT_EQ(-7, m_value->GetValueInt64("int"));
    EXPECT_EQ(2147483648, m_value->GetValueInt64("above"));
    EXPECT_EQ(std::numeric_limits<std::int64_t>::max(), m_value->GetValueInt64("most64"));
    EXPECT_EQ(std::numeric_limits<std::int64_t>::min(), m_value->GetValueInt64("least64"));
}

TEST_P(JsonValue, GetValueInt64IsZeroForEveryOtherKind)
{
    for (const auto* name : {"absent", "yes", "text", "object", "list", "null"})
        EXPECT_EQ(0, m_value->GetValueInt64(name)) << name;
}

TEST_P(JsonValue, GetValueBoolAnswersTheTruth)
{
    EXPECT_TRUE(m_value->GetValueBool("yes"));
    EXPECT_FALSE(m_value->GetValueBool("no"));
}

TEST_P(JsonValue, GetValueBoolIsFalseForEveryOtherKind)
{
    for (const auto* name : {"absent", "int", "most", "text", "object", "list", "null"})
        EXPECT_FALSE(m_value->GetValueBool(name)) << name;
}

TEST_P(JsonValue, GetValueArrayAnswersTheArray)
{
    EXPECT_EQ(2, m_value->GetValueArray("list")->Size());
    EXPECT_EQ(0, m_value->GetValueArray("emptyList")->Size());
}

TEST_P(JsonValue, GetValueArrayIsAnEmptyArrayForEveryOtherKind)
{
    for (const auto* name : {"absent", "int", "yes", "text", "object", "null"})
    {
        ASSERT_TRUE(m_value->GetValueArray(name)) << name;
        EXPECT_EQ("[]", JsonText(*m_value->GetValueArray(name))) << name;
    }
}

TEST_P(JsonValue, HasKeyTellsMembersOfEveryKind)
{
    for (const auto* name : {"text", "no", "zero", "object", "emptyList", "null"})
        EXPECT_TRUE(m_value->HasKey(name)) << name;
    for (const auto* name : {"absent", "tex", "text ", "Text", "inner", ""})
        EXPECT_FALSE(m_value->HasKey(name)) << name;
}

TEST_P(JsonValue, MembersAreReachedByName)
{
    EXPECT_EQ(1, (*(*m_value)["object"]).GetValueInt("inner"));
    EXPECT_EQ("\"Grüße\"", JsonText(*(*m_value)["text"]));
    EXPECT_EQ("true", JsonText(*(*m_value)["yes"]));
    EXPECT_EQ("-7", JsonText(*(*m_value)["int"]));
    EXPECT_EQ(2, (*m_value)["list"]->Size());
}

TEST_P(JsonValue, AnAbsentMemberIsANullValue)
{
    EXPECT_TRUE(IsNull((*m_value)["absent"]));
    EXPECT_TRUE(IsNull((*m_value)["null"]));
    EXPECT_TRUE(IsNull((*(*m_value)["absent"])["deeper"]));
}

TEST_P(JsonValue, OnlyArraysHaveASize)
{
    EXPECT_EQ(0, m_value->Size());
    for (const auto* name : {"text", "int", "object", "null"})
        EXPECT_EQ(0, (*m_value)[name]->Size()) << name;
}

TEST_P(JsonValue, AtAnswersTheElement)
{
    EXPECT_EQ(1, m_value->GetValueArray("list")->At(0)->GetValueInt("n"));
    EXPECT_TRUE(IsNull(m_value->GetValueArray("list")->At(1)));
}

TEST_P(JsonValue, AtIsANullValueOutsideTheArray)
{
    for (const int index : {-1, 2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_TRUE(IsNull(m_value->GetValueArray("list")->At(index))) << index;
    EXPECT_TRUE(IsNull(m_value->At(0)));
    EXPECT_TRUE(IsNull((*m_value)["text"]->At(0)));
}

TEST_P(JsonValue, ValuesThatAreNoObjectHaveNoMembers)
{
    for (const auto* name : {"text", "int", "list", "null", "absent"})
    {
        const auto value = (*m_value)[name];
        EXPECT_EQ(std::tuple(false, 0, 0),
                  std::tuple(value->HasKey("n"), value->GetValueInt("n"), value->GetValueArray("n")->Size()))
            << name;
        EXPECT_TRUE(IsNull((*value)["n"])) << name;
    }
}

TEST_P(JsonValue, BothOriginsHaveTheSameText) { EXPECT_EQ(JsonText(*Parsed()), JsonText(*m_value)); }

namespace
{

struct NumberCase
{
    const char* name;
    const char* literal;
    int asInt;
    std::int64_t asInt64;
};

constexpr std::int64_t kLeast64 = std::numeric_limits<std::int64_t>::min();

const std::vector<NumberCase> kNumbers = {
    {"Fraction", "2.9", 2, 2},
    {"NegativeFraction", "-2.9", -2, -2},
    {"SmallFraction", "-0.5", 0, 0},
    {"Exponent", "1e3", 1000, 1000},
    {"MinusZero", "-0.0", 0, 0},
    {"FractionAboveMost", "2147483647.9", 2147483647, 2147483647},
    {"FractionBelowLeast", "-2147483648.9", -2147483647 - 1, -2147483648},
    {"FractionBeyond32Bits", "2147483648.0", 0, 2147483648},
    {"FractionBelow32Bits", "-2147483649.0", 0, -2147483649},
    {"LargestDoubleIn64Bits", "9223372036854774784.0", 0, 9223372036854774784},
    {"LeastDoubleIn64Bits", "-9223372036854774784.0", 0, -9223372036854774784},
    {"DoubleBeyond64Bits", "9223372036854775808.0", 0, 0},
    {"HugeDouble", "1e300", 0, 0},
    {"HugeNegativeDouble", "-1e300", 0, 0},
    {"LowestUnsigned", "9223372036854775808", 0, kLeast64},
    {"HighestUnsigned", "18446744073709551615", 0, -1},
    {"BeyondUnsigned", "18446744073709551616", 0, 0},
    {"BelowSigned", "-9223372036854775809", 0, 0},
};

class JsonNumber : public testing::TestWithParam<NumberCase>
{
};

} // namespace

TEST_P(JsonNumber, ReadsAsItsIntegerPartOrAsZero)
{
    const auto value = ParseJson("{\"n\":" + std::string(GetParam().literal) + "}");
    ASSERT_TRUE(value);
    EXPECT_EQ(GetParam().asInt, value->GetValueInt("n"));
    EXPECT_EQ(GetParam().asInt64, value->GetValueInt64("n"));
}

INSTANTIATE_TEST_SUITE_P(Literals, JsonNumber, testing::ValuesIn(kNumbers),
                         [](const auto& test) { return test.param.name; });

} // namespace Vexlor
