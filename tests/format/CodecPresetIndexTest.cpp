#include "tests/format/TwoLists.h"

#include "tests/platform/ScriptedPlatform.h"

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

// The current index.

struct IndexCase
{
    const char* name;
    const char* letters;
    int index;
    int stored;
};

class CodecPresetIndex : public testing::TestWithParam<std::tuple<const CodecPresetSide*, IndexCase>>
{
};

TEST_P(CodecPresetIndex, IsClampedAndAnswered)
{
    const auto& [side, test] = GetParam();
    const TwoLists list(*side, test.letters, 0);
    EXPECT_EQ(test.stored, list(side->setIndex, test.index));
    EXPECT_EQ(test.letters + (" " + std::to_string(test.stored)), list.Text());
}

const std::vector<IndexCase> kIndices = {
    {"First", "ABC", 0, 0},        {"Last", "ABC", 2, 2},           {"Count", "ABC", 3, 2},
    {"Beyond", "AB", 9, 1},        {"Highest", "ABC", kHighest, 2}, {"Negative", "AB", -5, 0},
    {"Lowest", "ABC", kLowest, 0}, {"FirstOfNone", "", 0, -1},      {"NegativeOfNone", "", -5, -1},
    {"BeyondNone", "", 9, -1},
};
INSTANTIATE_TEST_SUITE_P(Indices, CodecPresetIndex, testing::Combine(kSides, testing::ValuesIn(kIndices)),
                         NameOfCase<IndexCase>);

class LoadedCodecPresetIndex : public testing::TestWithParam<std::tuple<const CodecPresetSide*, IndexCase>>
{
};

TEST_P(LoadedCodecPresetIndex, IsClampedFromAboveOnly)
{
    const auto& [side, test] = GetParam();
    const TwoLists list(*side, test.letters, test.index);
    EXPECT_EQ(test.letters + (" " + std::to_string(test.stored)), list.Text());
}

const std::vector<IndexCase> kLoadedIndices = {
    {"First", "ABC", 0, 0},          {"Last", "ABC", 2, 2},
    {"Count", "ABC", 3, 2},          {"Beyond", "ABC", 7, 2},
    {"Highest", "ABC", kHighest, 2}, {"None", "ABC", -1, -1},
    {"Negative", "ABC", -3, -3},     {"Lowest", "ABC", kLowest, kLowest},
    {"FirstOfNone", "", 0, -1},      {"BeyondNone", "", 7, -1},
    {"NegativeOfNone", "", -3, -3},
};
INSTANTIATE_TEST_SUITE_P(Indices, LoadedCodecPresetIndex,
                         testing::Combine(kSides, testing::ValuesIn(kLoadedIndices)), NameOfCase<IndexCase>);

// Removing.

struct RemoveCase
{
    const char* name;
    const char* letters;
    int index;
    int removed; ///< a position or a codec
    const char* result;
};

class RemoveCodecPresetAt : public testing::TestWithParam<std::tuple<const CodecPresetSide*, RemoveCase>>
{
};

TEST_P(RemoveCodecPresetAt, ClampsTheIndex)
{
    const auto& [side, test] = GetParam();
    const TwoLists list(*side, test.letters, test.index);
    list(side->removeAt, test.removed);
    EXPECT_EQ(test.result, list.Text());
}

const std::vector<RemoveCase> kRemovedPositions = {
    {"First", "ABC", 0, 0, "BC 0"},
    {"KeepsThePositionNotTheEntry", "ABC", 1, 0, "BC 1"},
    {"LastWhileCurrent", "ABC", 2, 2, "AB 1"},
    {"BeforeTheLastCurrent", "ABC", 2, 0, "BC 1"},
    {"BehindTheCurrent", "ABC", 0, 2, "AB 0"},
    {"TheOnlyOne", "A", 0, 0, " -1"},
    {"KeepsANegativeIndex", "ABC", -3, 0, "BC -3"},
    {"Count", "ABC", 1, 3, "ABC 1"},
    {"Negative", "ABC", 1, -1, "ABC 1"},
    {"Lowest", "ABC", 1, kLowest, "ABC 1"},
    {"Highest", "ABC", 1, kHighest, "ABC 1"},
    {"OfNone", "", 0, 0, " -1"},
};
INSTANTIATE_TEST_SUITE_P(Positions, RemoveCodecPresetAt,
                         testing::Combine(kSides, testing::ValuesIn(kRemovedPositions)),
                         NameOfCase<RemoveCase>);

class RemoveCodecPresetOf : public testing::TestWithParam<std::tuple<const CodecPresetSide*, RemoveCase>>
{
};

TEST_P(RemoveCodecPresetOf, RemovesTheFirstOfThatCodec)
{
    const auto& [side, test] = GetParam();
    const TwoLists list(*side, test.letters, test.index);
    list(side->removeCodec, test.removed);
    EXPECT_EQ(test.result, list.Text());
}

const std::vector<RemoveCase> kRemovedCodecs = {
    {"FirstOfTwo", "ABCA", 1, 'A', "BCA 1"},
    {"ClampsTheIndex", "ABCA", 3, 'B', "ACA 2"},
    {"TheOnlyOne", "A", 0, 'A', " -1"},
    {"Unknown", "ABC", 2, 'D', "ABC 2"},
    {"KeepsANegativeIndex", "ABC", -3, 'A', "BC -3"},
    {"OfNone", "", 0, 'A', " -1"},
};
INSTANTIATE_TEST_SUITE_P(Codecs, RemoveCodecPresetOf,
                         testing::Combine(kSides, testing::ValuesIn(kRemovedCodecs)), NameOfCase<RemoveCase>);

// Inserting and moving.

class InsertCodecPreset : public testing::TestWithParam<std::tuple<const CodecPresetSide*, RemoveCase>>
{
};

TEST_P(InsertCodecPreset, KeepsTheIndex)
{
    const auto& [side, test] = GetParam();
    const ScriptedPlatform platform;
    const TwoLists list(*side, test.letters, test.index);
    list(side->insert, IVXCodecPreset::MallocCodecPreset('N'), test.removed);
    EXPECT_EQ(test.result, list.Text());
}

const std::vector<RemoveCase> kInsertions = {
    {"First", "ABC", 1, 0, "NABC 1"},         {"Between", "ABC", 1, 2, "ABNC 1"},
    {"AtTheEnd", "ABC", 1, 3, "ABCN 1"},      {"Beyond", "ABC", 1, 4, "ABC 1"},
    {"Highest", "ABC", 1, kHighest, "ABC 1"}, {"Negative", "ABC", 1, -1, "ABC 1"},
    {"Lowest", "ABC", 1, kLowest, "ABC 1"},   {"IntoNone", "", 0, 0, "N -1"},
};
INSTANTIATE_TEST_SUITE_P(Positions, InsertCodecPreset,
                         testing::Combine(kSides, testing::ValuesIn(kInsertions)), NameOfCase<RemoveCase>);

} // namespace

} // namespace Vexlor
