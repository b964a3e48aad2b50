#include "IVXJsonValue.h"

#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <thread>

namespace Vexlor
{

namespace
{

std::shared_ptr<IVXJsonValue> Null() { return IVXJsonValue::JsonValueNull(); }

std::shared_ptr<IVXJsonValue> WithText(const std::string& text)
{
    auto value = Null();
    value->SetValueString("text", text);
    return value;
}

// A list whose value is put into others: nobody can change it any more, but who holds an element.
std::shared_ptr<IVXJsonValue> Nested(const std::vector<std::shared_ptr<IVXJsonValue>>& list)
{
    const auto inner = Null();
    inner->SetValueArray("list", list);
    const auto outer = Null();
    outer->SetValueArray("inners", {inner});
    auto outermost = Null();
    outermost->SetValueArray("outers", {outer});
    return outermost;
}

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

TEST(JsonBuilt, ScalarsReadAsTheyWereSet)
{
    const auto value = Null();
    value->SetValueInt("int", -1);
    value->SetValueInt64("lowest", std::numeric_limits<std::int64_t>::min());
    value->SetValueBool("yes", true);
    value->SetValueBool("no", false);
    EXPECT_EQ(-1, value->GetValueInt("int"));
    EXPECT_EQ(std::numeric_limits<std::int64_t>::min(), value->GetValueInt64("lowest"));
    EXPECT_TRUE(value->GetValueBool("yes"));
    EXPECT_FALSE(value->GetValueBool("no"));
    EXPECT_EQ("", value->GetValueString("int"));
    EXPECT_EQ(0, value->GetValueInt("yes"));
    EXPECT_FALSE(value->GetValueBool("int"));
}

TEST(JsonBuilt, TextsWithEscapesReadAsTheyWereSet)
{
    for (const std::string text : {"", "\"", "\\", "a\\\"b\\\\", "\\u0041", "\b\f\n\r\t\x1F\x01/",
                                   "ü€\U0001F600", "\",\"b\":1", "a,b:c"})
    {
        const auto value = Null();
        value->SetValueString("before", text);
        value->SetValueString("text", text);
        value->SetValueInt("behind", 7);
        EXPECT_EQ(text, value->GetValueString("text"));
        EXPECT_EQ(7, value->GetValueInt("behind"));
        EXPECT_EQ(text, ParseJson(JsonText(*value))->GetValueString("text"));
    }
}

TEST(JsonBuilt, NamesWithEscapesAreFound)
{
    const auto value = Null();
    for (const auto* name : {"\"", "\\", "a\"b", "b", ":5,", ",\"b", "ü", "\n"})
        value->SetValueString(name, name);
    value->SetValueString("a\"b", "again");
    EXPECT_EQ("again", value->GetValueString("a\"b"));
    EXPECT_EQ("b", value->GetValueString("b"));
    EXPECT_EQ("\n", value->GetValueString("\n"));
    EXPECT_FALSE(value->HasKey("\\\""));
}

TEST(JsonBuilt, TextThatIsNoUtf8ReadsAsItIsWritten)
{
    const auto value = Null();
    value->SetValueString("text", "a\xFF");
    EXPECT_EQ("a\xEF\xBF\xBD", value->GetValueString("text"));
}

TEST(JsonBuilt, AnObjectTakesAnyNumberOfMembers)
{
    const auto value = Null();
    for (int i = 0; i < 500; ++i)
        value->SetValueInt("member " + std::to_string(i), i);
    for (int i = 0; i < 500; ++i)
        EXPECT_EQ(i, value->GetValueInt("member " + std::to_string(i)));
    EXPECT_FALSE(value->HasKey("member 500"));
}

TEST(JsonBuilt, ALongTextTakesThePlaceOfAShortOne)
{
    const auto value = Null();
    value->SetValueInt("a", 1);
    value->SetValueInt("b", 2);
    value->SetValueString("a", std::string(1000, 'x'));
    EXPECT_EQ(R"({"a":")" + std::string(1000, 'x') + R"(","b":2})", JsonText(*value));
}

TEST(JsonBuilt, AReplacedChildIsLetGo)
{
    const auto value = Null();
    value->SetValueObject("child", Null());
    const std::weak_ptr first = (*value)["child"];
    value->SetValueObject("child", Null());
    EXPECT_TRUE(first.expired());
    const std::weak_ptr second = (*value)["child"];
    value->SetValueInt("child", 1);
    EXPECT_TRUE(second.expired());
}

TEST(JsonBuilt, ValuesMayDieOnAnotherThread)
{
    std::vector<std::shared_ptr<IVXJsonValue>> values;
    std::thread([&] { std::generate_n(std::back_inserter(values), 10'000, [] { return WithText("x"); }); })
        .join();
    EXPECT_EQ("x", values.back()->GetValueString("text"));
    std::thread([taken = std::move(values)]() mutable { taken.clear(); }).join();
}

TEST(JsonBuilt, AFinishedListReadsAsBefore)
{
    const auto value = Nested({WithText("a"), WithText("b")});
    const auto outer = value->GetValueArray("outers")->At(0);
    const auto list = outer->GetValueArray("inners")->At(0)->GetValueArray("list");
    EXPECT_EQ(2, list->Size());
    EXPECT_EQ("b", list->At(1)->GetValueString("text"));
    EXPECT_EQ(R"({"inners":[{"list":[{"text":"a"},{"text":"b"}]}]})", JsonText(*outer));
}

TEST(JsonBuilt, AFinishedListIsIndentedAsAnyOther)
{
    EXPECT_EQ(
        "{\n  \"outers\": [\n    {\n      \"inners\": [\n        {\n          \"list\": [\n"
        "            {\n              \"text\": \"{[,:\"\n            }\n          ]\n        }\n      ]\n"
        "    }\n  ]\n}",
        JsonText(*Nested({WithText("{[,:")}), JsonStyle::Indented));
}

TEST(JsonBuilt, QuotesInAListAreNoEndOfAText)
{
    const auto value = Nested({WithText("a\"{\\")});
    EXPECT_EQ(R"({"outers":[{"inners":[{"list":[{"text":"a\"{\\"}]}]}]})", JsonText(*value));
    const auto indented = ParseJson(JsonText(*value, JsonStyle::Indented));
    EXPECT_EQ(JsonText(*value), JsonText(*indented));
}

TEST(JsonBuilt, AnElementThatIsHeldCanStillBeChanged)
{
    const auto element = WithText("before");
    const auto value = Nested({element});
    element->SetValueString("text", "after");
    EXPECT_EQ(R"({"outers":[{"inners":[{"list":[{"text":"after"}]}]}]})", JsonText(*value));
}

TEST(JsonBuilt, AMemberOfAFinishedListCanBeReplaced)
{
    const auto inner = Null();
    inner->SetValueArray("list", {WithText("a")});
    const auto outer = Null();
    outer->SetValueArray("inners", {inner});
    inner->SetValueInt("list", 1);
    EXPECT_EQ(R"({"inners":[{"list":1}]})", JsonText(*outer));
}

TEST(JsonBuilt, ChildrenThatNobodyHoldsReadAsTheyWereSet)
{
    const auto value = Null();
    value->SetValueObject("object", WithText("a"));
    value->SetValueArray("list", {WithText("b"), nullptr, Null()});
    value->SetValueArray("nothing", {});
    value->SetValueInt("behind", 1);
    EXPECT_EQ(R"({"object":{"text":"a"},"list":[{"text":"b"},null,null],"nothing":[],"behind":1})",
              JsonText(*value));
    EXPECT_EQ("a", (*value)["object"]->GetValueString("text"));
    EXPECT_EQ(3, value->GetValueArray("list")->Size());
    EXPECT_EQ("b", (*value)["list"]->At(0)->GetValueString("text"));
    EXPECT_EQ(0, value->GetValueArray("nothing")->Size());
}

TEST(JsonBuilt, AFinishedChildIsOfNoOtherKind)
{
    const auto value = Null();
    value->SetValueObject("object", WithText("1"));
    value->SetValueArray("list", {WithText("true")});
    value->SetValueInt("behind", 1);
    for (const auto* name : {"object", "list"})
    {
        EXPECT_TRUE(value->HasKey(name));
        EXPECT_EQ("", value->GetValueString(name));
        EXPECT_EQ(0, value->GetValueInt64(name));
        EXPECT_FALSE(value->GetValueBool(name));
    }
    EXPECT_EQ(0, value->GetValueArray("object")->Size());
}

TEST(JsonBuilt, AChildThatIsHeldStaysShared)
{
    const auto child = WithText("before");
    const auto element = Null();
    const auto value = Null();
    value->SetValueObject("child", child);
    value->SetValueArray("list", {element});
    value->SetValueInt("behind", 1);
    child->SetValueString("text", "after");
    element->SetValueInt("later", 2);
    EXPECT_EQ(R"({"child":{"text":"after"},"list":[{"later":2}],"behind":1})", JsonText(*value));
    EXPECT_EQ(child, (*value)["child"]);
}

TEST(JsonBuilt, AFinishedChildCanBeReplaced)
{
    const auto value = Null();
    for (const auto* name : {"a", "b", "c"})
        value->SetValueObject(name, WithText(name));
    const auto later = Null();
    value->SetValueInt("a", 1);
    value->SetValueObject("b", later);
    later->SetValueBool("late", true);
    EXPECT_EQ(R"({"a":1,"b":{"late":true},"c":{"text":"c"}})", JsonText(*value));
    EXPECT_EQ("c", (*value)["c"]->GetValueString("text"));
}

TEST(JsonBuilt, FinishedChildrenAreIndentedAsAnyOther)
{
    const auto value = Null();
    value->SetValueArray("list", {WithText("[{,"), Null()});
    value->SetValueArray("nothing", {});
    value->SetValueInt("behind", 1);
    EXPECT_EQ("{\n  \"list\": [\n    {\n      \"text\": \"[{,\"\n    },\n    null\n  ],\n  \"nothing\": [],\n"
              "  \"behind\": 1\n}",
              JsonText(*value, JsonStyle::Indented));
}

TEST(JsonBuilt, ALongListReadsAsAShortOne)
{
    const auto value = Null();
    std::vector<std::shared_ptr<IVXJsonValue>> list;
    std::generate_n(std::back_inserter(list), 10'000, [] { return WithText("an element of many"); });
    value->SetValueArray("list", list);
    list.clear();
    value->SetValueInt("behind", 1);
    EXPECT_EQ(10'000, value->GetValueArray("list")->Size());
    EXPECT_EQ(JsonText(*ParseJson(JsonText(*value))), JsonText(*value));
    EXPECT_EQ(JsonText(*value, JsonStyle::Indented),
              JsonText(*ParseJson(JsonText(*value)), JsonStyle::Indented));
}

} // namespace Vexlor
