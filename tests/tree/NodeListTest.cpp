#include "tests/tree/NodeLists.h"

#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

template <class Family>
class FormatNodeList : public testing::Test
{
protected:
    using Handle = typename Family::Handle;
    using List = NodeList<Family>;

    ScriptedPlatform platform;
};

TYPED_TEST_SUITE(FormatNodeList, Families, FamilyName);

// Reading.

TYPED_TEST(FormatNodeList, CountsAndHandsOutItsElements)
{
    const NodeList<TypeParam> list("ABC");
    EXPECT_EQ(3, list(TypeParam::kCount));
    EXPECT_EQ("B", list.At(1)->Name());
    EXPECT_EQ(list.At(1), (list.Const().*TypeParam::kConstGet)(1));
}

TYPED_TEST(FormatNodeList, HasNothingOutsideItsBounds)
{
    const NodeList<TypeParam> list("ABC");
    for (const int index : {-1, 3, 5, kLowest, kHighest})
    {
        EXPECT_EQ(nullptr, list.At(index)) << index;
        EXPECT_EQ(nullptr, (list.Const().*TypeParam::kConstGet)(index)) << index;
    }
}

TYPED_TEST(FormatNodeList, HasAFirstAndALast)
{
    const NodeList<TypeParam> list("ABC");
    EXPECT_EQ(list.At(0), list(TypeParam::kFirst));
    EXPECT_EQ(list.At(0), (list.Const().*TypeParam::kConstFirst)());
    EXPECT_EQ(list.At(2), list(TypeParam::kLast));
    EXPECT_EQ(list.At(2), (list.Const().*TypeParam::kConstLast)());
}

TYPED_TEST(FormatNodeList, HasOneElementThatIsFirstAndLast)
{
    const NodeList<TypeParam> list("A");
    EXPECT_EQ(list.At(0), list(TypeParam::kFirst));
    EXPECT_EQ(list.At(0), (list.Const().*TypeParam::kConstFirst)());
    EXPECT_EQ(list.At(0), list(TypeParam::kLast));
    EXPECT_EQ(list.At(0), (list.Const().*TypeParam::kConstLast)());
}

TYPED_TEST(FormatNodeList, HasNoFirstOrLastWhenItIsEmpty)
{
    const NodeList<TypeParam> list("");
    EXPECT_EQ(nullptr, list(TypeParam::kFirst));
    EXPECT_EQ(nullptr, (list.Const().*TypeParam::kConstFirst)());
    EXPECT_EQ(nullptr, list(TypeParam::kLast));
    EXPECT_EQ(nullptr, (list.Const().*TypeParam::kConstLast)());
}

TYPED_TEST(FormatNodeList, FindsTheFirstOfAName)
{
    const NodeList<TypeParam> list("ABA");
    EXPECT_EQ(list.At(0), list(TypeParam::kFind, "A"));
    EXPECT_EQ(0, list(TypeParam::kIndexOfName, "A"));
    EXPECT_EQ(1, list(TypeParam::kIndexOfName, "B"));
}

TYPED_TEST(FormatNodeList, FindsNothingOfAnotherName)
{
    const NodeList<TypeParam> list("AB");
    for (const auto& name : {std::string(), std::string("a"), std::string("AB"), std::string("A\0", 2)})
    {
        EXPECT_EQ(nullptr, list(TypeParam::kFind, name)) << name;
        EXPECT_EQ(-1, list(TypeParam::kIndexOfName, name)) << name;
    }
}

TYPED_TEST(FormatNodeList, FindsNamesWithZeroBytes)
{
    const NodeList<TypeParam> list("A");
    const std::string name("A\0B", 3);
    list(TypeParam::kAdd, TypeParam::Make(name));
    EXPECT_EQ(1, list(TypeParam::kIndexOfName, name));
    EXPECT_EQ(list.At(1), list(TypeParam::kFind, name));
}

TYPED_TEST(FormatNodeList, FindsTheFirstWithoutAName)
{
    const NodeList<TypeParam> list("A");
    list(TypeParam::kAdd, TypeParam::Make(""));
    EXPECT_EQ(1, list(TypeParam::kIndexOfName, ""));
}

TYPED_TEST(FormatNodeList, KnowsThePositionOfAnElementByIdentity)
{
    const NodeList<TypeParam> list("AAB");
    EXPECT_EQ(1, list(TypeParam::kIndexOf, list.At(1)));
    EXPECT_EQ(-1, list(TypeParam::kIndexOf, TypeParam::Make("A")));
    EXPECT_EQ(-1, list(TypeParam::kIndexOf, typename TypeParam::Handle()));
}

// Adding.

TYPED_TEST(FormatNodeList, AddAppendsThatVeryElement)
{
    const NodeList<TypeParam> list("AB");
    const auto added = TypeParam::Make("C");
    list(TypeParam::kAdd, added);
    EXPECT_EQ("ABC", list.Text());
    EXPECT_EQ(added, list.At(2));
}

TYPED_TEST(FormatNodeList, AddTakesAnElementTwice)
{
    const NodeList<TypeParam> list("AB");
    list(TypeParam::kAdd, list.At(0));
    EXPECT_EQ("ABA", list.Text());
    EXPECT_EQ(list.At(0), list.At(2));
}

TYPED_TEST(FormatNodeList, AddIgnoresAnEmptyHandle)
{
    const NodeList<TypeParam> list("AB");
    list(TypeParam::kAdd, typename TypeParam::Handle());
    EXPECT_EQ("AB", list.Text());
}

TYPED_TEST(FormatNodeList, SetReplacesTheWholeList)
{
    const NodeList<TypeParam> list("AB");
    const NodeList<TypeParam> other("XYZ");
    list(TypeParam::kSetList, other.Elements());
    EXPECT_EQ("XYZ", list.Text());
    EXPECT_EQ(other.At(0), list.At(0));
}

TYPED_TEST(FormatNodeList, SetLeavesOutEmptyHandles)
{
    const NodeList<TypeParam> list("AB");
    list(TypeParam::kSetList,
         std::vector<typename TypeParam::Handle>{nullptr, TypeParam::Make("X"), nullptr, list.At(0)});
    EXPECT_EQ("XA", list.Text());
}

TYPED_TEST(FormatNodeList, SetOfNothingEmptiesTheList)
{
    const NodeList<TypeParam> list("AB");
    list(TypeParam::kSetList, std::vector<typename TypeParam::Handle>());
    EXPECT_EQ("", list.Text());
}

struct InsertCase
{
    int index;
    const char* one;
    const char* several;
};

const std::vector<InsertCase> kInsertions = {
    {0, "XABC", "XYABC"},       {1, "AXBC", "AXYBC"},        {2, "ABXC", "ABXYC"},  {3, "ABCX", "ABCXY"},
    {4, "ABCX", "ABCXY"},       {99, "ABCX", "ABCXY"},       {-1, "XABC", "XYABC"}, {-4, "XABC", "XYABC"},
    {kLowest, "XABC", "XYABC"}, {kHighest, "ABCX", "ABCXY"},
};

TYPED_TEST(FormatNodeList, InsertClampsThePosition)
{
    for (const auto& test : kInsertions)
    {
        const NodeList<TypeParam> list("ABC");
        list(TypeParam::kInsert, TypeParam::Make("X"), test.index);
        EXPECT_EQ(test.one, list.Text()) << test.index;
    }
}

TYPED_TEST(FormatNodeList, InsertOfSeveralKeepsTheirOrder)
{
    for (const auto& test : kInsertions)
    {
        const NodeList<TypeParam> list("ABC");
        list(TypeParam::kInsertAll, NodeList<TypeParam>("XY").Elements(), test.index);
        EXPECT_EQ(test.several, list.Text()) << test.index;
    }
}

TYPED_TEST(FormatNodeList, InsertIgnoresEmptyHandles)
{
    const NodeList<TypeParam> list("AB");
    list(TypeParam::kInsert, typename TypeParam::Handle(), 1);
    EXPECT_EQ("AB", list.Text());
    list(TypeParam::kInsertAll,
         std::vector<typename TypeParam::Handle>{nullptr, TypeParam::Make("X"), nullptr}, 1);
    EXPECT_EQ("AXB", list.Text());
}

TYPED_TEST(FormatNodeList, InsertOfNoneChangesNothing)
{
    const NodeList<TypeParam> list("AB");
    list(TypeParam::kInsertAll, std::vector<typename TypeParam::Handle>(), 1);
    EXPECT_EQ("AB", list.Text());
}

// Removing.

TYPED_TEST(FormatNodeList, RemoveByNameTakesTheFirst)
{
    const NodeList<TypeParam> list("ABAC");
    const auto second = list.At(2);
    EXPECT_TRUE(list(TypeParam::kRemoveByName, "A"));
    EXPECT_EQ("BAC", list.Text());
    EXPECT_EQ(second, list.At(1));
}

TYPED_TEST(FormatNodeList, RemoveByNameComparesEveryByte)
{
    const NodeList<TypeParam> list("AB");
    for (const auto& name : {std::string(), std::string("a"), std::string("AB"), std::string("A\0", 2)})
        EXPECT_FALSE(list(TypeParam::kRemoveByName, name)) << name;
    EXPECT_EQ("AB", list.Text());
}

TYPED_TEST(FormatNodeList, RemoveTakesThatVeryElement)
{
    const NodeList<TypeParam> list("AAB");
    const auto first = list.At(0);
    EXPECT_TRUE(list(TypeParam::kRemove, list.At(1)));
    EXPECT_EQ("AB", list.Text());
    EXPECT_EQ(first, list.At(0));
}

TYPED_TEST(FormatNodeList, RemoveTakesTheFirstOfTheSameElement)
{
    const NodeList<TypeParam> list("AB");
    list(TypeParam::kAdd, list.At(0));
    EXPECT_TRUE(list(TypeParam::kRemove, list.At(2)));
    EXPECT_EQ("BA", list.Text());
}

TYPED_TEST(FormatNodeList, RemoveOfAStrangerChangesNothing)
{
    const NodeList<TypeParam> list("AB");
    EXPECT_FALSE(list(TypeParam::kRemove, TypeParam::Make("A")));
    EXPECT_FALSE(list(TypeParam::kRemove, typename TypeParam::Handle()));
    EXPECT_EQ("AB", list.Text());
}

TYPED_TEST(FormatNodeList, RemoveAtTakesThePosition)
{
    const NodeList<TypeParam> list("ABC");
    EXPECT_TRUE(list(TypeParam::kRemoveAt, 1));
    EXPECT_EQ("AC", list.Text());
}

TYPED_TEST(FormatNodeList, RemoveAtIgnoresPositionsThatDoNotExist)
{
    const NodeList<TypeParam> list("ABC");
    for (const int index : {-1, 3, kLowest, kHighest})
        EXPECT_FALSE(list(TypeParam::kRemoveAt, index)) << index;
    EXPECT_EQ("ABC", list.Text());
}

struct PositionsCase
{
    std::vector<int> positions;
    bool removed;
    const char* result;
};

const std::vector<PositionsCase> kRemovals = {
    {{}, false, "ABCDE"},
    {{0, 0, 7}, true, "BCDE"},
    {{4, 0, 2}, true, "BD"},
    {{7, -1, 5}, false, "ABCDE"},
    {{-1, 1}, true, "ACDE"},
    {{0, 1, 2, 3, 4}, true, ""},
    {{kLowest, kHighest}, false, "ABCDE"},
};

TYPED_TEST(FormatNodeList, RemoveAtOfSeveralTakesThoseThatExist)
{
    for (const auto& test : kRemovals)
    {
        const NodeList<TypeParam> list("ABCDE");
        EXPECT_EQ(test.removed, list(TypeParam::kRemoveAllAt, test.positions)) << test.result;
        EXPECT_EQ(test.result, list.Text());
    }
}

TYPED_TEST(FormatNodeList, RemoveOfSeveralTakesThoseInTheList)
{
    const NodeList<TypeParam> list("ABCD");
    EXPECT_TRUE(list(TypeParam::kRemoveAll, std::vector{list.At(3), TypeParam::Make("A"), list.At(1)}));
    EXPECT_EQ("AC", list.Text());
}

TYPED_TEST(FormatNodeList, RemoveOfSeveralStrangersChangesNothing)
{
    const NodeList<TypeParam> list("AB");
    EXPECT_FALSE(list(TypeParam::kRemoveAll, std::vector<typename TypeParam::Handle>()));
    EXPECT_FALSE(
        list(TypeParam::kRemoveAll, std::vector{TypeParam::Make("A"), typename TypeParam::Handle()}));
    EXPECT_EQ("AB", list.Text());
}

TYPED_TEST(FormatNodeList, RemoveOfSeveralTakesAnElementAsOftenAsItIsGiven)
{
    const NodeList<TypeParam> list("AB");
    list(TypeParam::kAdd, list.At(0));
    EXPECT_TRUE(list(TypeParam::kRemoveAll, std::vector{list.At(0), list.At(0), list.At(0)}));
    EXPECT_EQ("B", list.Text());
}

TYPED_TEST(FormatNodeList, ClearEmptiesTheList)
{
    const NodeList<TypeParam> list("ABC");
    list(TypeParam::kClear);
    EXPECT_EQ(0, list(TypeParam::kCount));
}

// Silence.

TYPED_TEST(FormatNodeList, SaysNothingAboutWhatItIgnores)
{
    const NodeList<TypeParam> list("ABC");
    list(TypeParam::kInsert, TypeParam::Make("X"), 99);
    list(TypeParam::kRemoveAt, 99);
    list(TypeParam::kRemoveAllAt, std::vector{99});
    list(TypeParam::kRemoveByName, "none");
    list(TypeParam::kMoveAll, std::vector{99}, 99);
    list(TypeParam::kFind, "none");
    static_cast<void>((list.Const().*TypeParam::kConstGet)(99));
    EXPECT_EQ("", this->platform.Log());
}

} // namespace

} // namespace Vexlor
