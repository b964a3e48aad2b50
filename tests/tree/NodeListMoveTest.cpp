#include "tests/tree/NodeLists.h"

#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

template <class Family>
class FormatNodeListMove : public testing::Test
{
protected:
    using Handle = typename Family::Handle;
    using List = NodeList<Family>;

    ScriptedPlatform platform;
};

TYPED_TEST_SUITE(FormatNodeListMove, Families, FamilyName);

// Moving.

struct MoveCase
{
    int from;
    int to;
    const char* result;
};

const std::vector<MoveCase> kMoves = {
    {0, 2, "BAC"},       {2, 0, "CAB"},        {0, 1, "ABC"},        {0, 3, "BCA"},  {1, 3, "ACB"},
    {1, 0, "BAC"},       {2, 1, "ACB"},        {1, 1, "ABC"},        {2, 3, "ABC"},  {0, 4, "BCA"},
    {0, 99, "BCA"},      {0, kHighest, "BCA"}, {2, kHighest, "ABC"}, {2, -1, "CAB"}, {1, -5, "BAC"},
    {2, kLowest, "CAB"}, {0, kLowest, "ABC"},
};

TYPED_TEST(FormatNodeListMove, MoveCountsTheTargetBeforeTheRemoval)
{
    for (const auto& test : kMoves)
    {
        const NodeList<TypeParam> list("ABC");
        const auto moved = list.At(test.from);
        list(TypeParam::kMove, test.from, test.to);
        EXPECT_EQ(test.result, list.Text()) << test.from << " to " << test.to;
        EXPECT_NE(-1, list(TypeParam::kIndexOf, moved));
    }
}

template <class Family>
bool MoveThrows(const NodeList<Family>& list, int from, int to)
{
    try
    {
        list(Family::kMove, from, to);
        return false;
    }
    catch (const std::out_of_range&)
    {
        return true;
    }
}

TYPED_TEST(FormatNodeListMove, MoveFromOutsideThrows)
{
    const NodeList<TypeParam> list("ABC");
    for (const int from : {3, 4, -1, kLowest, kHighest})
        EXPECT_TRUE(MoveThrows(list, from, 0)) << from;
    EXPECT_EQ("ABC", list.Text());
}

TYPED_TEST(FormatNodeListMove, MoveFromTheCountThrowsWhateverTheTarget)
{
    const NodeList<TypeParam> list("ABC");
    for (const int to : {1, 3, 4, -1, kLowest, kHighest})
        EXPECT_TRUE(MoveThrows(list, 3, to)) << to;
    EXPECT_EQ("ABC", list.Text());
}

TYPED_TEST(FormatNodeListMove, MoveInAnEmptyListThrows)
{
    EXPECT_TRUE(MoveThrows(NodeList<TypeParam>(""), 0, 0));
}

struct MoveAllCase
{
    std::vector<int> positions;
    int to;
    const char* result;
};

const std::vector<MoveAllCase> kMovesOfSeveral = {
    {{0, 2}, 4, "BDACE"},     {{3}, 0, "DABCE"},        {{0}, 5, "BCDEA"},
    {{2, 0, 0}, 4, "BDACE"},  {{4, 0}, 2, "BAECD"},     {{3, 4}, 1, "ADEBC"},
    {{2}, 2, "ABCDE"},        {{4}, 4, "ABCDE"},        {{0, 1}, 2, "ABCDE"},
    {{1, 2}, 2, "ABCDE"},     {{0, 4}, 0, "AEBCD"},     {{0, 1, 2, 3, 4}, 3, "ABCDE"},
    {{1, 3}, 5, "ACEBD"},     {{}, 2, "ABCDE"},         {{7, -1, 5}, 2, "ABCDE"},
    {{7, 0, -1}, 3, "BCADE"}, {{0}, 6, "ABCDE"},        {{4}, -1, "ABCDE"},
    {{4}, kLowest, "ABCDE"},  {{0}, kHighest, "ABCDE"}, {{kLowest, kHighest}, 0, "ABCDE"},
};

TYPED_TEST(FormatNodeListMove, OfSeveralPutsThemBeforeTheAnchor)
{
    for (const auto& test : kMovesOfSeveral)
    {
        const NodeList<TypeParam> list("ABCDE");
        list(TypeParam::kMoveAll, test.positions, test.to);
        EXPECT_EQ(test.result, list.Text()) << testing::PrintToString(test.positions) << " to " << test.to;
    }
}

TYPED_TEST(FormatNodeListMove, OfSeveralKeepsTheElements)
{
    const NodeList<TypeParam> list("ABC");
    const auto elements = list.Elements();
    list(TypeParam::kMoveAll, std::vector{0, 1}, 3);
    EXPECT_EQ((std::vector{elements[2], elements[0], elements[1]}), list.Elements());
}

TYPED_TEST(FormatNodeListMove, OfSeveralInAnEmptyListDoesNothing)
{
    const NodeList<TypeParam> list("");
    list(TypeParam::kMoveAll, std::vector{0}, 0);
    EXPECT_EQ("", list.Text());
}

} // namespace

} // namespace Vexlor
