#include "VXMediaCodecs.h"

#include "tests/codec/ListFamilies.h"
#include "tests/platform/ScriptedJson.h"
#include "tests/platform/ScriptedPlatform.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>

namespace Vexlor
{

namespace
{

constexpr int kCodec = 7;

void OfferTwoOfEach(ScriptedCodec& codec)
{
    codec.resolutions = {{640, 480}, {320, 240}};
    codec.frameRates = {{30, 1}, {25, 1}};
    codec.sampleRates = {48000, 44100};
    codec.layouts = {3, 4};
    codec.profiles = {{66, "Baseline"}, {100, "High"}};
    codec.levels = {{30, "3.0"}, {31, "3.1"}};
}

/// One family of a preset whose list is A, B, C and whose codec offers nothing of its own.
template <class Family>
class EditableList : public testing::Test
{
protected:
    EditableList() { Fill({1, 2, 3}); }

    void Fill(std::initializer_list<int> numbers)
    {
        while (Count() > 0)
            Remove(0);
        for (const int number : numbers)
            Family::Add(*m_codec, number);
    }

    std::string Letters() const
    {
        std::string letters;
        for (const auto& entry : List())
            letters += static_cast<char>('A' + NumberOf(*entry) - 1);
        return letters;
    }

    auto List() const { return ((*m_codec).*Family::kList)(); }
    auto At(int index) const { return ((*m_codec).*Family::kAt)(index); }
    int Count() const { return ((*m_codec).*Family::kCount)(); }
    void Remove(int index) { ((*m_codec).*Family::kRemove)(index); }
    int Index() const { return ((*m_codec).*Family::kIndex)(); }
    void SetIndex(int index) { ((*m_codec).*Family::kSetIndex)(index); }
    void Move(int from, int to) { ((*m_codec).*Family::kMove)(from, to); }
    auto Current() const { return ((*m_codec).*Family::kCurrent)(); }
    void Insert(const std::vector<std::shared_ptr<typename Family::Preset>>& entries, int position)
    {
        ((*m_codec).*Family::kInsert)(entries, position);
    }

    std::shared_ptr<IVXCodecPreset> m_codec = IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
};

using EditableFamilies = testing::Types<ResolutionFamily, FramerateFamily, SamplerateFamily,
                                        ChannelLayoutFamily, ProfileFamily, LevelFamily>;
TYPED_TEST_SUITE(EditableList, EditableFamilies);

TYPED_TEST(EditableList, AddAppends)
{
    EXPECT_EQ("ABC", this->Letters());
    EXPECT_EQ(3, this->Count());
}

TYPED_TEST(EditableList, AddTakesTheNumbersAsTheyAre)
{
    EXPECT_EQ(TypeParam::kAdded, Text(this->At(0)->JsonValue()));
}

TYPED_TEST(EditableList, IsHandedOutAsACopyOfSharedEntries)
{
    auto list = this->List();
    list.pop_back();
    EXPECT_EQ(3, this->Count());
    EXPECT_EQ(this->At(0), list[0]);
}

TYPED_TEST(EditableList, IsTheSameWhenReadOnly)
{
    const auto list = (std::as_const(*this->m_codec).*TypeParam::kConstList)();
    ASSERT_EQ(3U, list.size());
    EXPECT_EQ(this->At(0), list[0]);
    EXPECT_EQ(this->At(2), list[2]);
}

TYPED_TEST(EditableList, RemoveTakesOneOut)
{
    this->Remove(1);
    EXPECT_EQ("AC", this->Letters());
}

TYPED_TEST(EditableList, RemoveIgnoresPositionsThatDoNotExist)
{
    this->Remove(-1);
    this->Remove(3);
    EXPECT_EQ("ABC", this->Letters());
}

TYPED_TEST(EditableList, RemoveLeavesTheIndex)
{
    this->SetIndex(2);
    this->Remove(0);
    EXPECT_EQ(2, this->Index());
}

TYPED_TEST(EditableList, TheEntryThatMovesIntoThePlaceOfTheCurrentOneIsCurrent)
{
    this->SetIndex(1);
    this->Remove(1);
    EXPECT_EQ(this->At(1), this->Current());
    EXPECT_EQ(3, NumberOf(*this->Current()));
}

TYPED_TEST(EditableList, WithoutTheLastEntryAnIndexOfTheCountHasNoCurrentOne)
{
    this->SetIndex(2);
    this->Remove(2);
    EXPECT_FALSE(this->Current());
}

TYPED_TEST(EditableList, SetIndexStoresPositionsOfTheList)
{
    this->SetIndex(2);
    EXPECT_EQ(2, this->Index());
    this->SetIndex(0);
    EXPECT_EQ(0, this->Index());
}

TYPED_TEST(EditableList, SetIndexIgnoresPositionsThatDoNotExist)
{
    this->SetIndex(1);
    this->SetIndex(3);
    EXPECT_EQ(1, this->Index());
    this->SetIndex(-1);
    EXPECT_EQ(1, this->Index());
}

TYPED_TEST(EditableList, SetIndexOfAnEmptyListDoesNothing)
{
    this->Fill({});
    this->SetIndex(0);
    EXPECT_EQ(0, this->Index());
    EXPECT_FALSE(this->Current());
}

TYPED_TEST(EditableList, TheCurrentEntryIsShared)
{
    this->SetIndex(1);
    EXPECT_EQ(this->At(1), this->Current());
}

TYPED_TEST(EditableList, InsertPutsThoseVeryEntriesBeforeThePosition)
{
    const auto fourth = TypeParam::Make(4);
    this->Insert({fourth, TypeParam::Make(5)}, 1);
    EXPECT_EQ("ADEBC", this->Letters());
    EXPECT_EQ(fourth, this->At(1));
}

TYPED_TEST(EditableList, InsertAtTheCountAppends)
{
    this->Insert({TypeParam::Make(4)}, 3);
    EXPECT_EQ("ABCD", this->Letters());
}

TYPED_TEST(EditableList, InsertOutsideTheListDoesNothing)
{
    this->Insert({TypeParam::Make(4)}, 4);
    this->Insert({TypeParam::Make(4)}, -1);
    EXPECT_EQ("ABC", this->Letters());
}

TYPED_TEST(EditableList, InsertLeavesOutEmptyHandles)
{
    this->Insert({{}, TypeParam::Make(4), {}}, 0);
    EXPECT_EQ("DABC", this->Letters());
}

TYPED_TEST(EditableList, InsertLeavesTheIndex)
{
    this->SetIndex(1);
    this->Insert({TypeParam::Make(4)}, 0);
    EXPECT_EQ(1, this->Index());
}

TYPED_TEST(EditableList, MoveLeavesTheIndex)
{
    this->SetIndex(1);
    this->Move(0, 3);
    EXPECT_EQ(1, this->Index());
}

struct MoveCase
{
    int from;
    int to;
    const char* result;
};

TYPED_TEST(EditableList, MovePutsAnEntryBeforeTheOneAtTheTarget)
{
    for (const auto& [from, to, result] :
         {MoveCase{0, 2, "BAC"}, MoveCase{2, 0, "CAB"}, MoveCase{0, 3, "BCA"}, MoveCase{1, 3, "ACB"},
          MoveCase{2, 1, "ACB"}, MoveCase{0, 1, "ABC"}, MoveCase{2, 3, "ABC"}, MoveCase{1, 1, "ABC"}})
    {
        this->Fill({1, 2, 3});
        this->Move(from, to);
        EXPECT_EQ(result, this->Letters()) << "from " << from << " to " << to;
    }
}

TYPED_TEST(EditableList, MoveIgnoresPositionsBeyondTheCount)
{
    for (const auto& [from, to] : {std::pair(4, 0), std::pair(0, 4), std::pair(-1, 0), std::pair(0, -1),
                                   std::pair(3, 4), std::pair(3, -1), std::pair(3, 3)})
        this->Move(from, to);
    EXPECT_EQ("ABC", this->Letters());
}

TYPED_TEST(EditableList, MoveFromTheCountThrowsAndChangesNothing)
{
    EXPECT_THAT([this] { this->Move(3, 0); },
                testing::ThrowsMessage<std::out_of_range>("invalid vector subscript"));
    EXPECT_EQ("ABC", this->Letters());
}

TYPED_TEST(EditableList, MoveWithinAnEmptyListDoesNothing)
{
    this->Fill({});
    this->Move(0, 0);
    EXPECT_EQ("", this->Letters());
}

TYPED_TEST(EditableList, ResetOfThePresetWithoutACodecEmptiesTheList)
{
    ((*this->m_codec).*TypeParam::kReset)();
    EXPECT_EQ(0, this->Count());
}

TYPED_TEST(EditableList, ResetGivesTheDefaultsOfTheCodecAndLeavesTheIndex)
{
    ScriptedPlatform platform;
    OfferTwoOfEach(platform.Codec(kCodec));
    const auto json = Json(R"({"codecID": 7})");
    json->SetValueInt(TypeParam::kIndexKey, 40);
    this->m_codec = IVXCodecPreset::MallocCodecPreset(json);
    const int index = this->Index();

    ((*this->m_codec).*TypeParam::kReset)();

    EXPECT_EQ(3, this->Count());
    EXPECT_EQ(Written(TypeParam::kDefaults(kCodec)), Written(this->List()));
    EXPECT_EQ(index, this->Index());
}

/// What every list offers, the fixed one of the quality settings too.
template <class Family>
class AnyList : public testing::Test
{
protected:
    AnyList()
    {
        OfferTwoOfEach(m_platform.Codec(kCodec));
        m_codec = IVXCodecPreset::MallocCodecPreset(kCodec);
    }

    int Count() const { return ((*m_codec).*Family::kCount)(); }
    int Index() const { return ((*m_codec).*Family::kIndex)(); }
    void SetIndex(int index) { ((*m_codec).*Family::kSetIndex)(index); }

    ScriptedPlatform m_platform;
    std::shared_ptr<IVXCodecPreset> m_codec;
};

using AllFamilies = testing::Types<ResolutionFamily, FramerateFamily, QualityFamily, SamplerateFamily,
                                   ChannelLayoutFamily, ProfileFamily, LevelFamily>;
TYPED_TEST_SUITE(AnyList, AllFamilies);

TYPED_TEST(AnyList, BothFormsHandOutTheSameEntries)
{
    const auto list = ((*this->m_codec).*TypeParam::kList)();
    const auto readOnly = (std::as_const(*this->m_codec).*TypeParam::kConstList)();
    ASSERT_EQ(static_cast<std::size_t>(this->Count()), list.size());
    EXPECT_TRUE(std::equal(list.begin(), list.end(), readOnly.begin(), readOnly.end()));
}

TYPED_TEST(AnyList, AnEntryByPositionIsThatOfTheList)
{
    const auto list = ((*this->m_codec).*TypeParam::kList)();
    EXPECT_EQ(list[0], ((*this->m_codec).*TypeParam::kAt)(0));
    EXPECT_EQ(list[1], ((*this->m_codec).*TypeParam::kAt)(1));
}

TYPED_TEST(AnyList, StartsWithTheFirstEntryCurrent)
{
    EXPECT_EQ(0, this->Index());
    EXPECT_EQ(((*this->m_codec).*TypeParam::kAt)(0), (std::as_const(*this->m_codec).*TypeParam::kCurrent)());
}

TYPED_TEST(AnyList, SetIndexTakesTheLastPositionAndNoneBeyond)
{
    this->SetIndex(this->Count() - 1);
    this->SetIndex(this->Count());
    this->SetIndex(-1);
    EXPECT_EQ(this->Count() - 1, this->Index());
}

TYPED_TEST(AnyList, OfAPresetWithoutACodecIsEmpty)
{
    const auto none = IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
    EXPECT_EQ(0, ((*none).*TypeParam::kCount)());
    EXPECT_TRUE(((*none).*TypeParam::kList)().empty());
    EXPECT_EQ(0, ((*none).*TypeParam::kIndex)());
    EXPECT_FALSE((std::as_const(*none).*TypeParam::kCurrent)());
}

TEST(CodecPresetLists, OnlyTheResolutionsCheckAPosition)
{
    const auto codec = IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
    codec->AddResolutionPreset(640, 480);
    EXPECT_TRUE(codec->ResolutionPresetAt(0));
    EXPECT_FALSE(codec->ResolutionPresetAt(-1));
    EXPECT_FALSE(codec->ResolutionPresetAt(1));
}

TEST(CodecPresetLists, AnAddedProfileIsNamedByTheCodecLibrary)
{
    ScriptedPlatform platform;
    platform.Codec(kCodec).profiles = {{100, "High"}};
    const auto codec = IVXCodecPreset::MallocCodecPreset(kCodec);
    platform.ForgetCalls();
    codec->AddProfilePreset(100);
    EXPECT_EQ("High", codec->ProfilePresets().back()->Name());
    EXPECT_EQ("MallocCodecs(7, true)\nProfileName(100)\n", platform.CallsText());
}

TEST(CodecPresetLists, AnAddedLevelIsNamedByTheCodecLibrary)
{
    ScriptedPlatform platform;
    platform.Codec(kCodec).levels = {{41, "4.1"}};
    const auto codec = IVXCodecPreset::MallocCodecPreset(kCodec);
    platform.ForgetCalls();
    codec->AddLevelPreset(41);
    EXPECT_EQ("4.1", codec->LevelPresets().back()->Name());
    EXPECT_EQ("MallocCodecs(7, true)\nLevelName(41)\n", platform.CallsText());
}

TEST(CodecPresetLists, AnAddedLayoutKeepsAllItsBits)
{
    const auto codec = IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
    codec->AddChannelLayoutPreset(std::uint64_t{1} << 63U);
    EXPECT_EQ(std::uint64_t{1} << 63U, codec->ChannelLayoutPresetAt(0)->Layout());
}

TEST(CodecPresetLists, ACurrentQualityCanBeEditedInPlace)
{
    ScriptedPlatform platform;
    platform.Codec(kCodec);
    const auto codec = IVXCodecPreset::MallocCodecPreset(kCodec);
    codec->SetIndexForQualityPresets(5);
    codec->CurrentCodecQuality()->SetBitrate(5000);
    EXPECT_EQ(5000, codec->CodecQualityPresetAt(5)->Bitrate());
    EXPECT_EQ(5000, std::as_const(*codec).CurrentCodecQuality()->Bitrate());
}

TEST(CodecPresetLists, BothFormsOfAQualityEntryAreTheSame)
{
    ScriptedPlatform platform;
    platform.Codec(kCodec);
    const auto codec = IVXCodecPreset::MallocCodecPreset(kCodec);
    EXPECT_EQ(codec->CodecQualityPresetAt(2), std::as_const(*codec).CodecQualityPresetAt(2));
}

TEST(CodecPresetLists, SampleFormatsAreReadByPosition)
{
    ScriptedPlatform platform;
    platform.Codec(kCodec).formats = {0, 5};
    const auto codec = IVXCodecPreset::MallocCodecPreset(kCodec);
    const auto formats = std::as_const(*codec).SampleFmtPresets();
    ASSERT_EQ(3U, formats.size());
    EXPECT_EQ(formats[2], codec->SampleFmtPresetAt(2));
    codec->SetIndexForSampleFmts(2);
    EXPECT_EQ(formats[2], codec->CurrentSampleFmt());
}

class SampleFmtIndex : public testing::TestWithParam<int>
{
};

TEST_P(SampleFmtIndex, IsStoredUncheckedAndHasNoCurrentFormatOutsideTheList)
{
    ScriptedPlatform platform;
    platform.Codec(kCodec).formats = {0, 5};
    const auto codec = IVXCodecPreset::MallocCodecPreset(kCodec);
    codec->SetIndexForSampleFmts(GetParam());
    EXPECT_EQ(GetParam(), codec->IndexForSampleFmts());
    EXPECT_FALSE(codec->CurrentSampleFmt());
}

INSTANTIATE_TEST_SUITE_P(Positions, SampleFmtIndex, testing::Values(-5, -1, 3, 99));

} // namespace

} // namespace Vexlor
