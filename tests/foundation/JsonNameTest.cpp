#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

constexpr std::size_t kLongest = 40; // names are compared and copied by words of several sizes, and by calls

/// A name of each length, changed at each of its places.
template <class Use>
void ForEachPlace(const Use& use)
{
    for (std::size_t size = 1; size <= kLongest; ++size)
        for (std::size_t place = 0; place < size; ++place)
            use(std::string(size, 'a'), place);
}

} // namespace

TEST(JsonName, ThatDiffersInOneLetterIsAnother)
{
    ForEachPlace(
        [](const std::string& name, std::size_t place)
        {
            std::string other = name;
            other[place] = 'b';
            const auto parsed = ParseJson("{\"" + other + "\":1,\"" + name + "\":2}");
            ASSERT_TRUE(parsed);
            ASSERT_EQ(1, parsed->GetValueInt(other));
            ASSERT_EQ(2, parsed->GetValueInt(name));
        });
}

TEST(JsonName, ThatDiffersInOneLetterIsAnotherWhereItIsSet)
{
    ForEachPlace(
        [](const std::string& name, std::size_t place)
        {
            std::string other = name;
            other[place] = 'b';
            const auto built = IVXJsonValue::JsonValueNull();
            built->SetValueInt(other, 1);
            built->SetValueInt(name, 2);
            ASSERT_EQ(1, built->GetValueInt(other));
            ASSERT_EQ("{\"" + other + "\":1,\"" + name + "\":2}", JsonText(*built));
        });
}

TEST(JsonName, WithALetterThatIsEscapedReadsBack)
{
    for (const char letter : {'"', '\\', '\n', '\x01', '\x1F', '\x7F'})
        ForEachPlace(
            [letter](std::string name, std::size_t place)
            {
                name[place] = letter;
                const auto built = IVXJsonValue::JsonValueNull();
                built->SetValueString(name, name);
                ASSERT_EQ(name, built->GetValueString(name));
                const auto parsed = ParseJson(JsonText(*built));
                ASSERT_TRUE(parsed);
                ASSERT_EQ(name, parsed->GetValueString(name));
            });
}

TEST(JsonName, MayBeEmpty)
{
    const auto parsed = ParseJson(R"({"a": 1, "": 2})");
    EXPECT_EQ(2, parsed->GetValueInt(""));
    EXPECT_EQ(1, parsed->GetValueInt("a"));
}

} // namespace Vexlor
