#include "tests/artwork/ArtworkFixture.h"

#include <limits>

namespace Vexlor
{

namespace
{

using ArtworkLookup = ArtworkFileTest;

TEST_F(ArtworkLookup, FindsTheFirstGroupOfAFaceIdentifier)
{
    FileBytes() = FileOf({{5, BlobOf("a")}, {7, BlobOf("first")}, {7, BlobOf("second")}});
    EXPECT_EQ("0.0=first", TextOf(Open()->GetArtworkImageGroupByID(7)));
    EXPECT_EQ("", Log());
}

TEST_F(ArtworkLookup, FindsTheFirstGroupInATableOfAnyOrder)
{
    FileBytes() =
        FileOf({{9, BlobOf("nine")}, {5, BlobOf("five")}, {7, BlobOf("seven")}, {5, BlobOf("again")}});
    const auto manager = Open();
    EXPECT_EQ("0.0=nine", TextOf(manager->GetArtworkImageGroupByID(9)));
    EXPECT_EQ("0.0=five", TextOf(manager->GetArtworkImageGroupByID(5)));
    EXPECT_EQ("0.0=seven", TextOf(manager->GetArtworkImageGroupByID(7)));
    EXPECT_EQ(nullptr, manager->GetArtworkImageGroupByID(6));
}

TEST_F(ArtworkLookup, AnUnknownFaceIdentifierIsLogged)
{
    FileBytes() = FileOfGroups(1);
    EXPECT_EQ(nullptr, Open()->GetArtworkImageGroupByID(7));
    EXPECT_EQ("VXArtworkImageMgr->GetArtworkImageGroupByID Error: faceID=7,No exist!\n", Log());
    EXPECT_FALSE(m_platform.LogLines().at(0).level);
}

TEST_F(ArtworkLookup, CustomizeAndRecentListHaveOperationsOfTheirOwn)
{
    FileBytes() = FileOf({{10000001, BlobOf("recent")}, {10000000, BlobOf("customize")}});
    EXPECT_EQ("0.0=customize", TextOf(Open()->GetArtworkImageGroupCustomize()));
    EXPECT_EQ("0.0=recent", TextOf(Open()->GetArtworkImageGroupRecentList()));
}

TEST_F(ArtworkLookup, MissingCustomizeAndRecentListAreLogged)
{
    FileBytes() = FileOf({});
    EXPECT_EQ(nullptr, Open()->GetArtworkImageGroupCustomize());
    EXPECT_EQ(nullptr, Open()->GetArtworkImageGroupRecentList());
    EXPECT_EQ("VXArtworkImageMgr->GetArtworkImageGroupByID Error: faceID=10000000,No exist!\n"
              "VXArtworkImageMgr->GetArtworkImageGroupByID Error: faceID=10000001,No exist!\n",
              Log());
}

TEST_F(ArtworkLookup, CountsItsGroups)
{
    FileBytes() = FileOfGroups(3);
    EXPECT_EQ(3, Open()->ArtworkImageGroupCount());
}

TEST_F(ArtworkLookup, AnIndexOutsideIsLogged)
{
    FileBytes() = FileOfGroups(2);
    EXPECT_EQ(nullptr, Open()->GetArtworkImageGroup(-1));
    EXPECT_EQ(nullptr, Open()->GetArtworkImageGroup(2));
    EXPECT_EQ("VXArtworkImageMgr->GetArtworkImageGroup Error: idx=-1,is beyond array!"
              "VXArtworkImageMgr->GetArtworkImageGroup Error: idx=2,is beyond array!",
              Log());
}

TEST_F(ArtworkLookup, FaceIdentifiersOutsideAreMinusOneWithoutAWord)
{
    FileBytes() = FileOfGroups(2);
    const auto manager = Open();
    EXPECT_EQ(FaceIDOfGroup(0), manager->FaceIDAt(0));
    EXPECT_EQ(FaceIDOfGroup(1), manager->FaceIDAt(1));
    EXPECT_EQ(-1, manager->FaceIDAt(-1));
    EXPECT_EQ(-1, manager->FaceIDAt(2));
    EXPECT_EQ("", Log());
}

TEST_F(ArtworkLookup, TheReservedOperationAnswersNothing)
{
    FileBytes() = FileOfGroups(1);
    EXPECT_EQ(nullptr, Open()->GetArtworkImageGroupReserved());
    EXPECT_EQ("", Log());
}

TEST_F(ArtworkLookup, EveryCallReadsTheFileAnew)
{
    FileBytes() = FileOf({{7, BlobOf("red")}});
    const auto manager = Open();
    const auto first = manager->GetArtworkImageGroup(0);
    FileBytes().back() = 'X';
    EXPECT_NE(first, manager->GetArtworkImageGroup(0));
    EXPECT_EQ("0.0=reX", TextOf(manager->GetArtworkImageGroup(0)));
    EXPECT_EQ("0.0=red", TextOf(first));
}

TEST_F(ArtworkLookup, AFailingSeekIsLogged)
{
    FileBytes() = FileOf({{7, BlobOf("red")}});
    const auto manager = Open();
    File().failSeekAt = File().seeks + 1;
    EXPECT_EQ(nullptr, manager->GetArtworkImageGroupByID(7));
    EXPECT_EQ("VXArtworkImageMgr->GetArtworkImageGroupByTableItem Error: faceID=7,Seek File Error(offset = "
              "51200)!\n",
              Log());
}

TEST_F(ArtworkLookup, AFailingReadIsLogged)
{
    FileBytes() = FileOf({{7, BlobOf("red")}});
    const auto manager = Open();
    File().failReadAt = File().reads + 1;
    EXPECT_EQ(nullptr, manager->GetArtworkImageGroup(0));
    EXPECT_EQ("VXArtworkImageMgr->GetArtworkImageGroupByTableItem Error: faceID=7,read Data Error(offset = "
              "51200)!\n",
              Log());
}

TEST_F(ArtworkLookup, ABlobOfAnotherKindReadsAsAGroupWithoutPictures)
{
    FileBytes() = FileOf({{7, BytesOf("something else")}});
    EXPECT_EQ("", TextOf(Open()->GetArtworkImageGroup(0)));
    EXPECT_EQ("VXArtworkImageGroup->FromData->Error:Data flag Error", Log());
}

} // namespace

} // namespace Vexlor
