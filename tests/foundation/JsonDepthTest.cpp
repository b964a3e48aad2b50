#include "runtime/foundation/VXJson.h"

#include "IVXJsonValue.h"

#include <gtest/gtest.h>

#include <utility>

namespace Vexlor
{

namespace
{

constexpr std::size_t kFar = 100000;

std::string Times(std::size_t count, std::string_view text)
{
    std::string result;
    for (std::size_t time = 0; time < count; ++time)
        result += text;
    return result;
}

std::string Arrays(std::size_t depth, std::string_view inside = "")
{
    return Times(depth, "[").append(inside) + Times(depth, "]");
}

std::shared_ptr<IVXJsonValue> Object(std::string_view name, const std::shared_ptr<IVXJsonValue>& value)
{
    auto object = IVXJsonValue::JsonValueNull();
    object->SetValueObject(name, value);
    return object;
}

std::shared_ptr<IVXJsonValue> Below(std::size_t levels, std::shared_ptr<IVXJsonValue> value)
{
    for (std::size_t level = 0; level < levels; ++level)
        value = Object("a", value);
    return value;
}

std::shared_ptr<IVXJsonValue> DeepObject(std::size_t depth)
{
    return Below(depth, IVXJsonValue::JsonValueNull());
}

// Objects of that depth; on each level something follows the one below.
std::shared_ptr<IVXJsonValue> Finished(std::size_t depth)
{
    auto value = IVXJsonValue::JsonValueNull();
    for (std::size_t level = 0; level < depth; ++level)
    {
        auto outer = IVXJsonValue::JsonValueNull();
        outer->SetValueObject("a", std::exchange(value, nullptr));
        outer->SetValueInt("b", 1);
        value = std::move(outer);
    }
    return value;
}

std::shared_ptr<IVXJsonValue> DeepArrays(std::size_t depth)
{
    auto value = IVXJsonValue::JsonValueNull();
    for (std::size_t level = 0; level < depth; ++level)
    {
        auto object = IVXJsonValue::JsonValueNull();
        object->SetValueArray("a", {value});
        value = std::move(object);
    }
    return value;
}

} // namespace

TEST(JsonDepth, TheDeepestTextReadsBack)
{
    for (const auto* inside : {"", "1", "\"x\""})
    {
        const auto text = Arrays(kJsonMaxDepth, inside);
        const auto value = ParseJson(text);
        ASSERT_TRUE(value);
        EXPECT_EQ(text, JsonText(*value));
    }
}

TEST(JsonDepth, OneLevelMoreIsRefused)
{
    for (const auto* inside : {"", "1", "{}"})
    {
        std::string error;
        EXPECT_FALSE(ParseJson(Arrays(kJsonMaxDepth + 1, inside), &error));
        EXPECT_EQ("1:1025: nested deeper than 1024 levels", error);
    }
}

TEST(JsonDepth, MembersCountAsElementsDo)
{
    std::string error;
    EXPECT_FALSE(ParseJson(Times(600, "{\"a\":[\n") + Times(600, "]}"), &error));
    EXPECT_EQ("513:1: nested deeper than 1024 levels", error);
}

TEST(JsonDepth, TheDepthIsToldBeforeWhatFollows)
{
    std::string error;
    EXPECT_FALSE(ParseJson(Times(kFar, "["), &error));
    EXPECT_EQ("1:1025: nested deeper than 1024 levels", error);
}

TEST(JsonDepth, BreadthIsNoDepth)
{
    const auto value = ParseJson(Times(1, "[").append(Times(kFar, "[[]],")).append("[[]]]"));
    ASSERT_TRUE(value);
    EXPECT_EQ(static_cast<int>(kFar) + 1, value->Size());
}

TEST(JsonDepth, TheDeepestBuiltValueReadsBack)
{
    for (const auto& value : {DeepObject(kJsonMaxDepth), DeepArrays(kJsonMaxDepth / 2)})
    {
        const auto text = JsonText(*value);
        const auto reread = ParseJson(text);
        ASSERT_TRUE(reread);
        EXPECT_EQ(text, JsonText(*reread));
    }
}

TEST(JsonDepth, WhatIsFinishedCountsAsWell)
{
    for (const std::size_t levels : {1U, 2U, 10U, 15U, 16U, 17U, 40U, 1000U})
    {
        const auto inside = Finished(levels);
        const auto deepest = Below(kJsonMaxDepth - levels, inside);
        EXPECT_TRUE(ParseJson(JsonText(*deepest))) << levels;
        EXPECT_EQ("", JsonText(*Object("a", deepest))) << levels;
    }
}

TEST(JsonDepth, WhatCouldNotBeReadBackHasNoText)
{
    const auto list = IVXJsonValue::JsonValueNull();
    list->SetValueArray("a", {DeepObject(kJsonMaxDepth - 1)});
    for (const auto& value : {DeepObject(kJsonMaxDepth + 1), list, DeepArrays(kFar)})
        for (const auto style : {JsonStyle::Compact, JsonStyle::Indented})
            EXPECT_EQ("", JsonText(*value, style));
}

TEST(JsonDepth, ABuiltValueOfAnyDepthIsDestroyed)
{
    std::weak_ptr<IVXJsonValue> whole = DeepArrays(kFar);
    EXPECT_TRUE(whole.expired());
}

TEST(JsonDepth, TheIndentedTextOfADeepValueStaysInProportion)
{
    const auto text = JsonText(*DeepObject(kJsonMaxDepth), JsonStyle::Indented);
    EXPECT_LT(kJsonMaxDepth, text.size());
    EXPECT_GT(300 * kJsonMaxDepth, text.size());
}

TEST(JsonDepth, AReplacedDeepValueIsDestroyed)
{
    const auto value = Object("a", DeepObject(kFar));
    value->SetValueInt("a", 1);
    EXPECT_EQ("{\"a\":1}", JsonText(*value));
}

TEST(JsonDepth, APartOfADeepValueOutlivesTheWhole)
{
    auto part = DeepObject(3);
    static_cast<void>(Object("whole", Object("b", part)));
    EXPECT_EQ("{\"a\":{\"a\":{\"a\":null}}}", JsonText(*part));
}

TEST(JsonDepth, AValueBelowItselfHasNoText)
{
    const auto value = IVXJsonValue::JsonValueNull();
    value->SetValueArray("twice", {value, value});
    EXPECT_EQ("", JsonText(*value));
    value->SetValueInt("twice", 0); // or it would hold itself for ever
}

TEST(JsonDepth, AValueInTwoPlacesIsWrittenTwice)
{
    const auto leaf = DeepObject(kJsonMaxDepth - 2);
    const auto value = IVXJsonValue::JsonValueNull();
    value->SetValueArray("twice", {leaf, leaf});
    EXPECT_EQ("{\"twice\":[" + JsonText(*leaf) + ',' + JsonText(*leaf) + "]}", JsonText(*value));
}

} // namespace Vexlor
