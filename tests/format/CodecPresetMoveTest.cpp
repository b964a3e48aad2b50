#include "tests/format/TwoLists.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <tuple>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

struct MoveCase
{
    const char* name;
    int from;
    int to;
    const char* result;
};

class MoveCodecPreset : public testing::TestWithParam<std::tuple<const CodecPresetSide*, MoveCase>>
{
};

TEST_P(MoveCodecPreset, KeepsTheIndex)
{
    const auto& [side, test] = GetParam();
    const TwoLists list(*side, "ABC", 1);
    list(side->move, test.from, test.to);
    EXPECT_EQ(std::string(test.result) + " 1", list.Text());
}

const std::vector<MoveCase> kMoves = {
    {"ToTheEnd", 0, 3, "BCA"},
    {"ToTheFront", 2, 0, "CAB"},
    {"Forward", 0, 2, "BAC"},
    {"ForwardByOneIsNothing", 0, 1, "ABC"},
    {"LastToTheEndIsNothing", 2, 3, "ABC"},
    {"MiddleToTheEnd", 1, 3, "ACB"},
    {"BackwardByOne", 1, 0, "BAC"},
    {"LastBackwardByOne", 2, 1, "ACB"},
    {"OntoItself", 1, 1, "ABC"},
    {"CountOntoItself", 3, 3, "ABC"},
    {"ToBeyond", 0, 4, "ABC"},
    {"FromBeyond", 4, 0, "ABC"},
    {"FromCountToBeyond", 3, 4, "ABC"},
    {"FromNegative", -1, 0, "ABC"},
    {"ToNegative", 2, -1, "ABC"},
    {"FromLowest", kLowest, 2, "ABC"},
    {"ToHighest", 0, kHighest, "ABC"},
    {"FromHighest", kHighest, 0, "ABC"},
    {"ToLowest", 0, kLowest, "ABC"},
};
INSTANTIATE_TEST_SUITE_P(Moves, MoveCodecPreset, testing::Combine(kSides, testing::ValuesIn(kMoves)),
                         NameOfCase<MoveCase>);

} // namespace

} // namespace Vexlor
