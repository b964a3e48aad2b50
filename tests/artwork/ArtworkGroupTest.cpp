#include "IVXArtworkImageGroup.h"

#include "tests/artwork/ArtworkBytes.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace Vexlor
{

namespace
{

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

std::shared_ptr<IVXArtworkImageGroup> NewGroup() { return IVXArtworkImageGroup::MallocArtworkImageGroup(); }

TEST(ArtworkImageGroup, ANewOneIsEmptyAndSevenBytesLong)
{
    const auto group = NewGroup();
    EXPECT_TRUE(group->IsEmpty());
    EXPECT_EQ((Bytes{'I', 'G', 0, 0, 0, 0, 0}), BytesOf(*group->ToData()));
}

TEST(ArtworkImageGroup, IsNotEmptyWithAPicture) { EXPECT_FALSE(GroupOf("red")->IsEmpty()); }

TEST(ArtworkImageGroup, KeepsTheFirstPictureOfAPlace)
{
    const auto group = GroupOf("first");
    group->SetArtworkImage(Picture("second"), 0, 0);
    EXPECT_EQ("0.0=first", TextOf(group));
}

TEST(ArtworkImageGroup, StoresACopyOfThePicture)
{
    const auto group = NewGroup();
    const auto picture = Picture("red");
    group->SetArtworkImage(picture, 1, 2);
    picture->FromData(DataOf(StoredPicture("blue")));
    EXPECT_NE(picture, group->GetArtworkImage(1, 2));
    EXPECT_EQ("1.2=red", TextOf(group));
}

TEST(ArtworkImageGroup, HandsOutThePictureItHolds)
{
    const auto group = GroupOf("red");
    EXPECT_EQ(group->GetArtworkImage(0, 0), group->GetArtworkImage(0, 0));
}

TEST(ArtworkImageGroup, KeepsAFormatThatNobodyKnows)
{
    const auto group = NewGroup();
    const auto future = static_cast<IVXArtworkImage::ArtworkImageFormat>(5);
    group->SetArtworkImage(IVXArtworkImage::MallocArtworkImage(nullptr, 0, future), 0, 0);
    EXPECT_EQ(future, group->GetArtworkImage(0, 0)->Format());
    EXPECT_EQ(0U, group->GetArtworkImage(0, 0)->Size());
}

TEST(ArtworkImageGroup, HasNoPictureElsewhere)
{
    const auto group = GroupOf("red");
    EXPECT_EQ(nullptr, group->GetArtworkImage(0, 1));
    EXPECT_EQ(nullptr, group->GetArtworkImage(1, 0));
}

TEST(ArtworkImageGroup, TakesNoEmptyHandle)
{
    const auto group = NewGroup();
    group->SetArtworkImage(nullptr, 0, 0);
    EXPECT_TRUE(group->IsEmpty());
}

TEST(ArtworkImageGroup, AKeyIsTenTimesTheVariantPlusTheMode)
{
    const auto group = NewGroup();
    group->SetArtworkImage(Picture("red"), 0, 12);
    EXPECT_EQ("1.2=red", TextOf(group));
}

struct KeyCase
{
    const char* name;
    int variant;
    int mode;
    int key;
};

class ArtworkImageGroupKey : public testing::TestWithParam<KeyCase>
{
};

TEST_P(ArtworkImageGroupKey, IsKeptWrittenAndReadBack)
{
    const auto [name, variant, mode, key] = GetParam();
    const auto group = NewGroup();
    group->SetArtworkImage(Picture("red"), variant, mode);
    const auto blob = group->ToData();
    EXPECT_EQ(BlobOf({{key, StoredPicture("red")}}), BytesOf(*blob));
    const auto read = NewGroup();
    read->FromData(blob);
    ASSERT_NE(nullptr, read->GetArtworkImage(variant, mode));
    EXPECT_EQ("red", TextOf(*read->GetArtworkImage(variant, mode)));
}

constexpr std::array kKeys{
    KeyCase{"NormalFirst", 0, 0, 0},        KeyCase{"SelectedLast", 2, 3, 23},
    KeyCase{"NoVariantOfAnIcon", 3, 0, 30}, KeyCase{"NoModeOfAnIcon", 1, 4, 14},
    KeyCase{"Negative", 0, -1, -1},         KeyCase{"Greatest", 0, kMost, kMost},
    KeyCase{"Least", 0, kLeast, kLeast},    KeyCase{"Wraps", kMost, 0, -10},
};
INSTANTIATE_TEST_SUITE_P(Places, ArtworkImageGroupKey, testing::ValuesIn(kKeys),
                         [](const auto& test) { return test.param.name; });

TEST(ArtworkImageGroup, WritesPicturesInAscendingOrderOfKeys)
{
    const auto group = NewGroup();
    group->SetArtworkImage(Picture("twelve"), 1, 2);
    group->SetArtworkImage(Picture("one"), 0, 1);
    group->SetArtworkImage(Picture("minus one"), 0, -1);
    EXPECT_EQ(
        BlobOf({{-1, StoredPicture("minus one")}, {1, StoredPicture("one")}, {12, StoredPicture("twelve")}}),
        BytesOf(*group->ToData()));
}

TEST(ArtworkImageGroup, WritesANewBufferEachTime)
{
    const auto group = GroupOf("red");
    const auto first = group->ToData();
    first->Bytes()[0] = 'X';
    EXPECT_EQ(BlobOf("red"), BytesOf(*group->ToData()));
}

TEST(ArtworkImageGroup, ReadsPicturesInAnyOrderOfKeys)
{
    const auto group = NewGroup();
    group->FromData(DataOf(BlobOf({{21, StoredPicture("b")}, {3, StoredPicture("a")}})));
    EXPECT_EQ("0.3=a 2.1=b", TextOf(group));
}

TEST(ArtworkImageGroup, KeepsTheFirstPictureOfAKeyThatABlobRepeats)
{
    const auto group = NewGroup();
    group->FromData(DataOf(BlobOf({{1, StoredPicture("first")}, {1, StoredPicture("second")}})));
    EXPECT_EQ("0.1=first", TextOf(group));
}

TEST(ArtworkImageGroup, WritesAKeyThatABlobRepeatsOnce)
{
    const auto group = NewGroup();
    group->FromData(DataOf(BlobOf({{1, StoredPicture("first")}, {1, StoredPicture("second")}})));
    EXPECT_EQ(BlobOf({{1, StoredPicture("first")}}), BytesOf(*group->ToData()));
}

TEST(ArtworkImageGroup, ReadingReplacesAllPictures)
{
    const auto group = GroupOf("old");
    group->FromData(DataOf(BlobOf({{11, StoredPicture("new")}})));
    EXPECT_EQ("1.1=new", TextOf(group));
}

TEST(ArtworkImageGroup, ReadsItsOwnBlobAgain)
{
    const auto group = GroupOf("red");
    group->FromData(group->ToData());
    EXPECT_EQ("0.0=red", TextOf(group));
}

TEST(ArtworkImageGroup, PassesOverBytesBehindTheCountedPictures)
{
    const auto group = NewGroup();
    group->FromData(DataOf(Joined({BlobOf("red"), BytesOf("rest")})));
    EXPECT_EQ("0.0=red", TextOf(group));
}

TEST(ArtworkImageGroup, APictureOfNoBytesIsAPicture)
{
    const auto group = NewGroup();
    group->FromData(DataOf(BlobOf({{2, {}}})));
    EXPECT_EQ("0.2=", TextOf(group));
}

TEST(ArtworkImageGroup, AnEmptyHandleLeavesItEmptyAndSaysNothing)
{
    const ScriptedPlatform platform;
    const auto group = GroupOf("old");
    group->FromData(nullptr);
    EXPECT_TRUE(group->IsEmpty());
    EXPECT_EQ("", platform.Log());
}

struct BlobCase
{
    const char* name;
    Bytes blob;
};

class ArtworkImageGroupFlag : public testing::TestWithParam<BlobCase>
{
};

TEST_P(ArtworkImageGroupFlag, IsLoggedAndLeavesTheGroupEmpty)
{
    const ScriptedPlatform platform;
    const auto group = GroupOf("old");
    group->FromData(DataOf(GetParam().blob));
    EXPECT_TRUE(group->IsEmpty());
    EXPECT_EQ("VXArtworkImageGroup->FromData->Error:Data flag Error", platform.Log());
    EXPECT_FALSE(platform.LogLines().at(0).level);
}

INSTANTIATE_TEST_SUITE_P(Wrong, ArtworkImageGroupFlag,
                         testing::Values(BlobCase{"OtherLetter", {'I', 'X', 0, 0, 0, 0, 0}},
                                         BlobCase{"NotTerminated", {'I', 'G', 'S', 0, 0, 0, 0}},
                                         BlobCase{"TooShort", {'I', 0, 0, 0, 0, 0, 0}},
                                         BlobCase{"CutInside", {'I', 'G'}}, BlobCase{"Nothing", {}}),
                         [](const auto& test) { return test.param.name; });

class ArtworkImageGroupCount : public testing::TestWithParam<BlobCase>
{
};

TEST_P(ArtworkImageGroupCount, LeavesTheGroupEmptyAndSaysNothing)
{
    const ScriptedPlatform platform;
    const auto group = GroupOf("old");
    group->FromData(DataOf(GetParam().blob));
    EXPECT_TRUE(group->IsEmpty());
    EXPECT_EQ("", platform.Log());
}

Bytes Counting(int count) { return Joined({{'I', 'G', 0}, Little(count), Little(0), Little(0)}); }

INSTANTIATE_TEST_SUITE_P(BelowOne, ArtworkImageGroupCount,
                         testing::Values(BlobCase{"Zero", Counting(0)}, BlobCase{"MinusOne", Counting(-1)},
                                         BlobCase{"Least", Counting(kLeast)},
                                         BlobCase{"CutInside", {'I', 'G', 0, 1, 0, 0}},
                                         BlobCase{"CutBefore", {'I', 'G', 0}}),
                         [](const auto& test) { return test.param.name; });

TEST(ArtworkImageGroup, ACountThatLiesEndsWithTheBlob)
{
    auto blob = BlobOf("red");
    blob[3] = blob[4] = blob[5] = 0xFF;
    blob[6] = 0x7F;
    const auto group = NewGroup();
    group->FromData(DataOf(blob));
    EXPECT_EQ("0.0=red", TextOf(group));
}

TEST(ArtworkImageGroup, ALengthThatLiesEndsTheReading)
{
    auto blob = BlobOf({{0, StoredPicture("a")}, {1, StoredPicture("b")}, {2, StoredPicture("c")}});
    const auto length = 7 + 8 + StoredPicture("a").size() + 4;
    for (std::size_t i = 0; i < 4; ++i)
        blob[length + i] = 0xFF;
    const auto group = NewGroup();
    group->FromData(DataOf(blob));
    EXPECT_EQ("0.0=a", TextOf(group));
}

TEST(ArtworkImageGroup, CutAtAnyByteKeepsThePicturesThatLieWholeInside)
{
    const ScriptedPlatform platform;
    const auto blob = BlobOf({{0, StoredPicture("a")}, {1, StoredPicture("b")}});
    const auto one = 7 + 8 + StoredPicture("a").size();
    for (std::size_t cut = 3; cut < blob.size(); ++cut)
    {
        const auto group = NewGroup();
        group->FromData(DataOf(Slice(blob, 0, cut)));
        EXPECT_EQ(cut < one ? "" : "0.0=a", TextOf(group)) << "cut at " << cut;
    }
    EXPECT_EQ("", platform.Log());
}

} // namespace

} // namespace Vexlor
