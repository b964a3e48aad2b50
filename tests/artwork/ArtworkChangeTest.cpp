#include "tests/artwork/ArtworkFixture.h"

#include <QIcon>

#include <limits>
#include <stdexcept>

namespace Vexlor
{

namespace
{

using ArtworkAdd = ArtworkFileTest;
using ArtworkReplace = ArtworkFileTest;
using ArtworkRemove = ArtworkFileTest;
using ArtworkFull = ArtworkFileTest;

/// A group whose pictures are more than a buffer can hold.
class TooLargeGroup final : public IVXArtworkImageGroup
{
public:
    void SetArtworkImage(std::shared_ptr<const IVXArtworkImage>, int, int) override {}
    std::shared_ptr<IVXArtworkImage> GetArtworkImage(int, int) const override { return {}; }
    std::shared_ptr<IVXData> ToData() const override { throw std::length_error("4 GiB"); }
    void FromData(std::shared_ptr<const IVXData>) override {}
    bool IsEmpty() const override { return false; }
    QIcon ToIcon() const override { return {}; }
};

TEST_F(ArtworkAdd, WritesWhatAFileOfThoseGroupsHolds)
{
    const auto manager = OpenMutable();
    EXPECT_EQ(20000000, manager->AddArtworkImageGroup(GroupOf("red"), 20000000));
    EXPECT_EQ(-2, manager->AddArtworkImageGroup(IVXArtworkImageGroup::MallocArtworkImageGroup(), -2));
    EXPECT_EQ(FileOf({{20000000, BlobOf("red")}, {-2, BlobOf(std::vector<std::pair<int, Bytes>>{})}}),
              FileBytes());
    EXPECT_EQ("", Log());
}

TEST_F(ArtworkAdd, ToAFileIsSeenAtOnceAndByTheNextManager)
{
    FileBytes() = FileOf({{5, BlobOf("a")}});
    const auto manager = OpenMutable();
    manager->AddArtworkImageGroup(GroupOf("b"), 7);
    EXPECT_EQ(2, manager->ArtworkImageGroupCount());
    EXPECT_EQ("0.0=b", TextOf(manager->GetArtworkImageGroupByID(7)));
    EXPECT_EQ("5:0.0=a | 7:0.0=b", Outline());
}

TEST_F(ArtworkAdd, WritesTheGroupFirstThenTheWholeHeadAtOnce)
{
    FileBytes() = FileOfGroups(2);
    const auto before = FileBytes();
    File().failWriteAt = 2;
    OpenMutable()->AddArtworkImageGroup(GroupOf("red"), 7);
    EXPECT_EQ(2, File().writes);
    EXPECT_EQ(Joined({before, BlobOf("red")}), FileBytes());
}

TEST_F(ArtworkAdd, UnderATakenFaceIdentifierMakesASecondEntry)
{
    FileBytes() = FileOf({{7, BlobOf("first")}});
    EXPECT_EQ(7, OpenMutable()->AddArtworkImageGroup(GroupOf("second"), 7));
    EXPECT_EQ("7:0.0=first | 7:0.0=second", Outline());
    EXPECT_EQ("0.0=first", TextOf(Open()->GetArtworkImageGroupByID(7)));
}

TEST_F(ArtworkAdd, TakesAnyFaceIdentifierButMinusOneAsItIs)
{
    const auto manager = OpenMutable();
    EXPECT_EQ(0, manager->AddArtworkImageGroup(GroupOf("a"), 0));
    EXPECT_EQ(10000000, manager->AddArtworkImageGroup(GroupOf("b"), 10000000));
    EXPECT_EQ(std::numeric_limits<int>::min(),
              manager->AddArtworkImageGroup(GroupOf("c"), std::numeric_limits<int>::min()));
    EXPECT_EQ("0:0.0=a | 10000000:0.0=b | -2147483648:0.0=c", Outline());
}

TEST_F(ArtworkAdd, AnEmptyHandleChangesNothing)
{
    FileBytes() = FileOfGroups(1);
    const auto before = FileBytes();
    const auto manager = OpenMutable();
    EXPECT_EQ(0, manager->AddArtworkImageGroup(nullptr));
    EXPECT_EQ(0, manager->AddArtworkImageGroup(nullptr, 7));
    EXPECT_EQ(before, FileBytes());
    EXPECT_EQ(0, File().writes);
}

TEST_F(ArtworkAdd, AGroupTooLargeForABufferChangesNothing)
{
    FileBytes() = FileOfGroups(1);
    const auto manager = OpenMutable();
    const int last = LastAutomaticFaceID();
    EXPECT_EQ(0, manager->AddArtworkImageGroup(std::make_shared<TooLargeGroup>()));
    manager->ReplaceArtworkImageGroup(std::make_shared<TooLargeGroup>(), FaceIDOfGroup(0));
    EXPECT_EQ(FileOfGroups(1), FileBytes());
    EXPECT_EQ(last + 1, LastAutomaticFaceID());
}

TEST_F(ArtworkAdd, AutomaticFaceIdentifiersCountOnThroughTheProcess)
{
    const int last = LastAutomaticFaceID();
    EXPECT_EQ(last + 1, OpenMutable()->AddArtworkImageGroup(GroupOf("a")));
    EXPECT_EQ(last + 2, OpenMutable()->AddArtworkImageGroup(GroupOf("b"), -1));
    EXPECT_EQ(last + 3, LastAutomaticFaceID());
}

TEST_F(ArtworkAdd, AutomaticFaceIdentifiersPassOverTakenOnes)
{
    const int last = LastAutomaticFaceID();
    FileBytes() = FileOf({{last + 2, BlobOf("a")}, {last + 1, BlobOf("b")}, {last + 4, BlobOf("c")}});
    const auto manager = OpenMutable();
    EXPECT_EQ(last + 3, manager->AddArtworkImageGroup(GroupOf("d")));
    EXPECT_EQ(last + 5, manager->AddArtworkImageGroup(GroupOf("e")));
}

TEST_F(ArtworkAdd, AFaceIdentifierThatIsGivenDoesNotMoveTheAutomaticOnes)
{
    const int last = LastAutomaticFaceID();
    OpenMutable()->AddArtworkImageGroup(GroupOf("a"), last + 100);
    EXPECT_EQ(last + 1, LastAutomaticFaceID());
}

TEST_F(ArtworkAdd, AFaceIdentifierIsNotGivenAgainAfterItsGroupIsRemoved)
{
    const auto manager = OpenMutable();
    const int first = manager->AddArtworkImageGroup(GroupOf("a"));
    manager->RemoveArtworkImageGroupByID(first);
    EXPECT_EQ(first + 1, manager->AddArtworkImageGroup(GroupOf("b")));
}

TEST_F(ArtworkAdd, ReservedFieldsOfOldEntriesAreWrittenAsZero)
{
    FileBytes() = FileOfGroups(1);
    FileBytes()[kTableAt + 4] = FileBytes()[kTableAt + 31] = 0xFF;
    OpenMutable()->AddArtworkImageGroup(GroupOf("red"), 7);
    EXPECT_EQ(Slice(FileOfGroups(1), kTableAt, kTableAt + kEntryWidth),
              Slice(FileBytes(), kTableAt, kTableAt + kEntryWidth));
}

TEST_F(ArtworkAdd, WritesNoHeadAnywhereButAtTheStart)
{
    FileBytes() = FileOfGroups(2);
    const auto manager = OpenMutable();
    File().failSeekAt = File().seeks + 1;
    manager->RemoveArtworkImageGroup(0);
    EXPECT_EQ(FileOfGroups(2), FileBytes());
}

TEST_F(ArtworkReplace, GivesTheEntryTheNewGroupAndANewAutomaticFaceIdentifier)
{
    FileBytes() = FileOf({{5, BlobOf("a")}, {20000000, BlobOf("old")}, {9, BlobOf("c")}});
    const auto manager = OpenMutable();
    const int last = LastAutomaticFaceID();
    manager->ReplaceArtworkImageGroup(GroupOf("new"), 20000000);
    EXPECT_EQ(last + 1, manager->FaceIDAt(1));
    EXPECT_EQ("5:0.0=a | " + std::to_string(last + 1) + ":0.0=new | 9:0.0=c", Outline());
    EXPECT_EQ(nullptr, manager->GetArtworkImageGroupByID(20000000));
}

TEST_F(ArtworkReplace, AppendsTheNewBlobAndKeepsTheOldBytes)
{
    const auto before = FileOf({{5, BlobOf("old")}});
    FileBytes() = before;
    OpenMutable()->ReplaceArtworkImageGroup(GroupOf("new one"), 5);
    const auto blob = BlobOf("new one");
    const auto entry = Entry(Open()->FaceIDAt(0), before.size(), static_cast<std::uint32_t>(blob.size()));
    EXPECT_EQ(Joined({Head(1, {entry}), Slice(before, 47, before.size()), blob}), FileBytes());
    EXPECT_EQ(2, File().writes);
}

TEST_F(ArtworkReplace, TakesTheFirstOfTwoEqualFaceIdentifiers)
{
    FileBytes() = FileOf({{5, BlobOf("first")}, {5, BlobOf("second")}});
    OpenMutable()->ReplaceArtworkImageGroup(GroupOf("new"), 5);
    EXPECT_EQ("0.0=second", TextOf(Open()->GetArtworkImageGroupByID(5)));
}

TEST_F(ArtworkReplace, OfAMissingFaceIdentifierAddsTheGroupAndWritesTheTableOnceMore)
{
    FileBytes() = FileOf({{5, BlobOf("a")}});
    OpenMutable()->ReplaceArtworkImageGroup(GroupOf("b"), 7);
    EXPECT_EQ(FileOf({{5, BlobOf("a")}, {7, BlobOf("b")}}), FileBytes());
    EXPECT_EQ(3, File().writes);
}

TEST_F(ArtworkReplace, OfAMissingMinusOneAddsUnderAnAutomaticFaceIdentifier)
{
    const int last = LastAutomaticFaceID();
    OpenMutable()->ReplaceArtworkImageGroup(GroupOf("a"), -1);
    EXPECT_EQ(std::to_string(last + 1) + ":0.0=a", Outline());
}

TEST_F(ArtworkReplace, WithAnEmptyHandleChangesNothing)
{
    FileBytes() = FileOfGroups(1);
    const auto manager = OpenMutable();
    const int last = LastAutomaticFaceID();
    manager->ReplaceArtworkImageGroup(nullptr, FaceIDOfGroup(0));
    manager->ReplaceArtworkImageGroup(nullptr, 7);
    EXPECT_EQ(FileOfGroups(1), FileBytes());
    EXPECT_EQ(0, File().writes);
    EXPECT_EQ(last + 1, LastAutomaticFaceID());
}

TEST_F(ArtworkRemove, DropsTheEntryAndKeepsTheBlobs)
{
    const auto before = FileOfGroups(3);
    FileBytes() = before;
    OpenMutable()->RemoveArtworkImageGroup(1);
    EXPECT_EQ("16777216:0.0=picture 0 | 50331648:0.0=picture 2", Outline());
    EXPECT_EQ(Slice(before, kTableAt + 2 * kEntryWidth, before.size()),
              Slice(FileBytes(), kTableAt + 2 * kEntryWidth, before.size()));
    EXPECT_EQ(before.size(), FileBytes().size());
    EXPECT_EQ(1, File().writes);
}

TEST_F(ArtworkRemove, TheLastEntryLeavesACountOfZero)
{
    FileBytes() = FileOfGroups(1);
    OpenMutable()->RemoveArtworkImageGroup(0);
    EXPECT_EQ(Head(0, {}), Slice(FileBytes(), 0, kTableAt));
}

TEST_F(ArtworkRemove, ByFaceIdentifierDropsTheFirst)
{
    FileBytes() = FileOf({{5, BlobOf("first")}, {7, BlobOf("b")}, {5, BlobOf("second")}});
    const auto manager = OpenMutable();
    manager->RemoveArtworkImageGroupByID(5);
    EXPECT_EQ("7:0.0=b | 5:0.0=second", Outline());
    EXPECT_EQ(2, manager->ArtworkImageGroupCount());
}

TEST_F(ArtworkRemove, OfWhatIsNotThereChangesNothing)
{
    FileBytes() = FileOfGroups(2);
    const auto manager = OpenMutable();
    manager->RemoveArtworkImageGroup(-1);
    manager->RemoveArtworkImageGroup(2);
    manager->RemoveArtworkImageGroupByID(7);
    EXPECT_EQ(2, manager->ArtworkImageGroupCount());
    EXPECT_EQ(0, File().writes);
    EXPECT_EQ("", Log());
}

TEST_F(ArtworkFull, The1599thGroupIsTakenAndEndsInsideTheHead)
{
    FileBytes() = FileOfGroups(kFullTable - 1);
    const auto manager = OpenMutable();
    EXPECT_EQ(7, manager->AddArtworkImageGroup(GroupOf("last"), 7));
    EXPECT_EQ(Bytes(51200 - 51183), Slice(FileBytes(), 51183, 51200));
    EXPECT_EQ("0.0=picture 0", TextOf(Open()->GetArtworkImageGroup(0)));
    EXPECT_EQ("0.0=last", TextOf(Open()->GetArtworkImageGroup(kFullTable - 1)));
}

TEST_F(ArtworkFull, The1600thGroupIsRefusedBeforeAnythingIsWritten)
{
    FileBytes() = FileOfGroups(kFullTable);
    const auto before = FileBytes();
    const auto manager = OpenMutable();
    const int last = LastAutomaticFaceID();
    EXPECT_EQ(0, manager->AddArtworkImageGroup(GroupOf("red")));
    EXPECT_EQ(0, manager->AddArtworkImageGroup(GroupOf("red"), 7));
    manager->ReplaceArtworkImageGroup(GroupOf("red"), 7);
    EXPECT_EQ(before, FileBytes());
    EXPECT_EQ(0, File().writes);
    EXPECT_EQ(kFullTable, manager->ArtworkImageGroupCount());
    EXPECT_EQ(last + 1, LastAutomaticFaceID());
}

TEST_F(ArtworkFull, ReplacesAndRemoves)
{
    FileBytes() = FileOfGroups(kFullTable);
    const auto manager = OpenMutable();
    manager->ReplaceArtworkImageGroup(GroupOf("new"), FaceIDOfGroup(3));
    EXPECT_EQ("0.0=new", TextOf(Open()->GetArtworkImageGroup(3)));
    manager->RemoveArtworkImageGroup(0);
    EXPECT_EQ(kFullTable - 1, Open()->ArtworkImageGroupCount());
}

// Such a table already runs into the groups, and moving its entries would overwrite them.
TEST_F(ArtworkFull, ATableBeyondTheHeadIsReadButNeverWritten)
{
    FileBytes() = FileOfGroups(2);
    FileBytes()[13] = 1; // a count of 65,538
    FileBytes().resize(60000);
    const auto before = FileBytes();
    const auto manager = OpenMutable();
    EXPECT_EQ((60000 - 15) / 32, manager->ArtworkImageGroupCount());
    manager->RemoveArtworkImageGroup(0);
    manager->ReplaceArtworkImageGroup(GroupOf("new"), FaceIDOfGroup(1));
    EXPECT_EQ(0, manager->AddArtworkImageGroup(GroupOf("new"), 7));
    EXPECT_EQ(before, FileBytes());
    EXPECT_EQ("0.0=picture 0", TextOf(manager->GetArtworkImageGroupByID(FaceIDOfGroup(0))));
}

} // namespace

} // namespace Vexlor
