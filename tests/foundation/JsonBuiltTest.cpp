#include "IVXJsonValue.h"

#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

std::shared_ptr<IVXJsonValue> Null() { return IVXJsonValue::JsonValueNull(); }

} // namespace

TEST(JsonBuilt, AFreshValueIsNull)
{
    EXPECT_EQ("null", JsonText(*Null()));
    EXPECT_EQ(0, Null()->Size());
    EXPECT_NE(Null(), Null());
}

TEST(JsonBuilt, MembersKeepTheOrderInWhichTheyWereFirstSet)
{
    const auto value = Null();
    for (const auto* name : {"z", "a", "m", "longer than what fits beside", "", "b"})
        value->SetValueInt(name, 1);
    EXPECT_EQ(R"({"z":1,"a":1,"m":1,"longer than what fits beside":1,"":1,"b":1})", JsonText(*value));
}

TEST(JsonBuilt, ReplacingKeepsThePlaceAndMayChangeTheKind)
{
    const auto value = Null();
    value->SetValueInt("a", 1);
    value->SetValueInt("b", 2);
    value->SetValueString("a", "text");
    EXPECT_EQ(R"({"a":"text","b":2})", JsonText(*value));
    value->SetValueArray("a", {});
    value->SetValueBool("b", true);
    EXPECT_EQ(R"({"a":[],"b":true})", JsonText(*value));
}

TEST(JsonBuilt, ChildrenAreShared)
{
    const auto child = Null();
    const auto value = Null();
    value->SetValueObject("child", child);
    value->SetValueArray("list", {child});
    child->SetValueInt("later", 1);
    EXPECT_EQ(R"({"child":{"later":1},"list":[{"later":1}]})", JsonText(*value));
    EXPECT_EQ(child, (*value)["child"]);
    EXPECT_EQ(child, value->GetValueArray("list")->At(0));
}

TEST(JsonBuilt, TheListOfElementsIsCopied)
{
    std::vector elements{Null()};
    const auto value = Null();
    value->SetValueArray("list", elements);
    elements.clear();
    EXPECT_EQ("{\"list\":[null]}", JsonText(*value));
}

TEST(JsonBuilt, EmptyHandlesAreNull)
{
    const auto value = Null();
    value->SetValueObject("object", nullptr);
    value->SetValueArray("list", {nullptr, Null()});
    EXPECT_EQ(R"({"object":null,"list":[null,null]})", JsonText(*value));
    EXPECT_TRUE((*value)["object"]);
    EXPECT_TRUE(value->GetValueArray("list")->At(0));
}

TEST(JsonBuilt, AScalarMemberIsHandedOutAsItWas)
{
    const auto value = Null();
    value->SetValueString("a", "before");
    const auto member = (*value)["a"];
    value->SetValueString("a", "after");
    EXPECT_EQ("\"before\"", JsonText(*member));
}

TEST(JsonBuilt, NamesAndTextsAreCopied)
{
    const auto value = Null();
    std::string name = "name";
    std::string text = "text";
    value->SetValueString(name, text);
    name = text = "####";
    EXPECT_EQ(R"({"name":"text"})", JsonText(*value));
}

TEST(JsonBuilt, NamesMayHoldANul)
{
    const auto value = Null();
    value->SetValueInt(std::string_view("a\0b", 3), 1);
    EXPECT_FALSE(value->HasKey("a"));
    EXPECT_EQ(R"({"a\u0000b":1})", JsonText(*value));
}

TEST(JsonBuilt, TakesPartsOfADocument)
{
    const auto value = Null();
    value->SetValueObject("part", std::const_pointer_cast<IVXJsonValue>(ParseJson(R"({"a": [1.5, "x"]})")));
    EXPECT_EQ(R"({"part":{"a":[1.5,"x"]}})", JsonText(*value));
    EXPECT_EQ(2, (*value)["part"]->GetValueArray("a")->Size());
}

} // namespace Vexlor
