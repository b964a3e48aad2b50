#include "apps/host/Failure.h"
#include "apps/host/Json.h"

#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

namespace Vexlor::Tool
{

namespace
{

constexpr int kDeepest = 1024; // levels that the parser takes

/// An object with so many objects one inside of the other.
Json Nested(int levels)
{
    auto value = IVXJsonValue::JsonValueNull();
    value->SetValueInt("innermost", 1);
    for (int i = 1; i < levels; ++i)
    {
        const auto outer = IVXJsonValue::JsonValueNull();
        outer->SetValueObject("inner", value);
        value = outer;
    }
    return value;
}

TEST(JsonDocument, EndsWithALineEnd)
{
    const auto value = IVXJsonValue::JsonValueNull();
    value->SetValueInt("a", 1);
    EXPECT_EQ(JsonDocument(*value), "{\n  \"a\": 1\n}\n");
}

TEST(JsonDocument, OfTheDeepestValueCanBeReadAgain)
{
    EXPECT_NO_THROW(static_cast<void>(ParseJson(JsonDocument(*Nested(kDeepest)))));
}

TEST(JsonDocument, IsRefusedWhereItCouldNotBeReadAgain)
{
    EXPECT_THROW(static_cast<void>(JsonDocument(*Nested(kDeepest + 1))), Failure);
}

} // namespace

} // namespace Vexlor::Tool
