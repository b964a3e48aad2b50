#include "tests/format/TwoLists.h"

#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

std::string NameOfSide(const testing::TestParamInfo<const CodecPresetSide*>& test)
{
    return test.param->name;
}

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
