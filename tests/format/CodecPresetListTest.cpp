#include "tests/format/CodecPresetSide.h"

#include "tests/platform/ScriptedPlatform.h"

#include <gmock/gmock.h>

#include <limits>
#include <stdexcept>
#include <tuple>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

/// A format preset with a list under test and, on the other side, the list XYZ that must stay as it is.
class TwoLists
{
public:
    TwoLists(const CodecPresetSide& side, std::string_view letters, int index)
        : m_side(side), m_other(side.name == kAudioSide.name ? kVideoSide : kAudioSide),
          m_preset(IVXFormatPreset::MallocFormatPreset(
              Json("{" + Members(side, letters, index) + "," + Members(m_other, "XYZ", 1) + "}")))
    {
    }

    template <class Operation, class... Arguments>
    auto operator()(Operation operation, Arguments... arguments) const
    {
        return ((*m_preset).*operation)(arguments...);
    }

    const IVXFormatPreset& Const() const { return *m_preset; }

    /// "ABC 1": the list and its index. Complains when the other list has changed.
    std::string Text() const
    {
        EXPECT_EQ("XYZ 1", TextOf(m_other)) << "the other list";
        return TextOf(m_side);
    }

private:
    std::string TextOf(const CodecPresetSide& side) const
    {
        return Letters((*this)(side.presets)) + " " + std::to_string((*this)(side.index));
    }

    const CodecPresetSide& m_side;
    const CodecPresetSide& m_other;
    std::shared_ptr<IVXFormatPreset> m_preset;
};

std::string NameOfSide(const testing::TestParamInfo<const CodecPresetSide*>& test)
{
    return test.param->name;
}

template <class Case>
std::string NameOfCase(const testing::TestParamInfo<std::tuple<const CodecPresetSide*, Case>>& test)
{
    return std::string(std::get<0>(test.param)->name) + std::get<1>(test.param).name;
}

const auto kSides = testing::Values(&kAudioSide, &kVideoSide);

class CodecPresetList : public testing::TestWithParam<const CodecPresetSide*>
{
protected:
    static TwoLists List(std::string_view letters, int index) { return {*GetParam(), letters, index}; }
    static const CodecPresetSide& Side() { return *GetParam(); }

    ScriptedPlatform platform;
};
INSTANTIATE_TEST_SUITE_P(Sides, CodecPresetList, kSides, NameOfSide);

// Reading.

TEST_P(CodecPresetList, HandsOutACopyOfSharedEntries)
{
    const auto list = List("ABC", 0);
    auto copy = list(Side().presets);
    ASSERT_EQ(3U, copy.size());
    EXPECT_EQ(list(Side().at, 1), copy[1]);
    copy.clear();
    EXPECT_EQ("ABC 0", list.Text());
}

TEST_P(CodecPresetList, HandsOutTheSameEntriesToReadOnly)
{
    const auto list = List("ABC", 0);
    const auto entries = (list.Const().*Side().constPresets)();
    EXPECT_EQ("ABC", Letters(entries));
    EXPECT_EQ(list(Side().at, 2), entries[2]);
    EXPECT_EQ(list(Side().at, 2), (list.Const().*Side().constAt)(2));
}

TEST_P(CodecPresetList, CountsItsEntries)
{
    EXPECT_EQ(3, List("ABC", 0)(Side().count));
    EXPECT_EQ(0, List("", 0)(Side().count));
}

TEST_P(CodecPresetList, HasNothingOutsideItsBounds)
{
    const auto list = List("ABC", 0);
    for (const int index : {-1, 3, kLowest, kHighest})
    {
        EXPECT_EQ(nullptr, list(Side().at, index)) << index;
        EXPECT_EQ(nullptr, (list.Const().*Side().constAt)(index)) << index;
    }
}

TEST_P(CodecPresetList, FindsNothingByCodec)
{
    const auto list = List("ABC", 0);
    for (const int codecID : {int{'A'}, 0, 1, -1})
    {
        EXPECT_EQ(nullptr, list(Side().byCodec, codecID)) << codecID;
        EXPECT_EQ(nullptr, (list.Const().*Side().constByCodec)(codecID)) << codecID;
    }
}

TEST_P(CodecPresetList, HasACurrentEntry)
{
    for (const int index : {0, 1, 2})
    {
        const auto list = List("ABC", index);
        EXPECT_EQ(list(Side().at, index), list(Side().current));
        EXPECT_EQ(list(Side().at, index), (list.Const().*Side().constCurrent)());
    }
}

TEST_P(CodecPresetList, HasNoCurrentEntryAtANegativeIndex)
{
    const auto list = List("ABC", -3);
    EXPECT_EQ(nullptr, list(Side().current));
    EXPECT_EQ(nullptr, (list.Const().*Side().constCurrent)());
}

TEST_P(CodecPresetList, HasNoCurrentEntryWhenItIsEmpty)
{
    const auto list = List("", 0);
    EXPECT_EQ(nullptr, list(Side().current));
    EXPECT_EQ(nullptr, (list.Const().*Side().constCurrent)());
}

// Adding.

TEST_P(CodecPresetList, AddAppendsAndAnswersTheNewEntry)
{
    const auto list = List("AB", 1);
    const auto added = list(Side().add, int{'C'});
    EXPECT_EQ("ABC 1", list.Text());
    EXPECT_EQ(list(Side().at, 2), added);
}

TEST_P(CodecPresetList, AddToAnEmptyListMakesTheEntryCurrent)
{
    const auto list = List("", 0);
    ASSERT_EQ(" -1", list.Text());
    EXPECT_NE(nullptr, list(Side().add, int{'C'}));
    EXPECT_EQ("C 0", list.Text());
}

TEST_P(CodecPresetList, AddTurnsNoIndexIntoTheFirstEvenWhereThereAreEntries)
{
    const auto list = List("AB", -1);
    list(Side().add, int{'C'});
    EXPECT_EQ("ABC 0", list.Text());
}

TEST_P(CodecPresetList, AddKeepsAnyOtherNegativeIndex)
{
    const auto list = List("AB", -2);
    list(Side().add, int{'C'});
    EXPECT_EQ("ABC -2", list.Text());
}

TEST_P(CodecPresetList, AddFillsInTheDefaultsOfTheCodec)
{
    platform.Codec('C').name = "Codec C";
    platform.Codec('C').sampleRates = {44100, 48000};
    const auto added = List("", 0)(Side().add, int{'C'});
    EXPECT_EQ("Codec C", added->Name());
    EXPECT_EQ(3, added->SampleratePresetCount());
}

TEST_P(CodecPresetList, AddTakesNoCodecToo)
{
    EXPECT_TRUE(List("", 0)(Side().add, VXCodecID_None)->IsAutoValue());
}

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

TEST_P(CodecPresetList, InsertSharesTheEntry)
{
    const auto list = List("AB", 0);
    const auto entry = IVXCodecPreset::MallocCodecPreset('N');
    list(Side().insert, entry, 1);
    EXPECT_EQ(entry, list(Side().at, 1));
}

TEST_P(CodecPresetList, InsertIgnoresAnEmptyHandle)
{
    const auto list = List("AB", 0);
    list(Side().insert, std::shared_ptr<IVXCodecPreset>(), 1);
    EXPECT_EQ("AB 0", list.Text());
}

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

TEST_P(CodecPresetList, MoveFromTheCountThrows)
{
    const auto list = List("ABC", 1);
    EXPECT_THROW(list(Side().move, 3, 0), std::out_of_range);
    EXPECT_THROW(list(Side().move, 3, 2), std::out_of_range);
    EXPECT_EQ("ABC 1", list.Text());
}

TEST_P(CodecPresetList, MoveKeepsTheEntry)
{
    const auto list = List("ABC", 0);
    const auto first = list(Side().at, 0);
    list(Side().move, 0, 3);
    EXPECT_EQ(first, list(Side().at, 2));
}

} // namespace

} // namespace Vexlor
