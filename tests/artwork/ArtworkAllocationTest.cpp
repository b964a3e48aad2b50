#include "tests/artwork/ArtworkFixture.h"

#include "tests/memory/CountedMemory.h"

#include <algorithm>
#include <array>
#include <limits>

namespace Vexlor
{

namespace
{

constexpr int kMost = std::numeric_limits<int>::max();
constexpr std::size_t kOneKiB = 1024;
constexpr std::size_t kFree = 4096; // what a file of nothing may cost

using ArtworkMemory = ArtworkFileTest;

TEST_F(ArtworkMemory, IsCounted)
{
    const auto most = MostBytesOf([] { EXPECT_FALSE(IVXData::MallocData(100000)->Empty()); });
    EXPECT_LE(100000U, most);
    EXPECT_GE(101000U, most);
}

TEST_F(ArtworkMemory, ACountThatLiesCostsNoMoreThanTheFile)
{
    for (const auto size : std::array<std::size_t, 5>{15, 47, 1024, 51200, 1 << 20})
    {
        FileBytes() = Head(kMost, {});
        FileBytes().resize(size);
        EXPECT_LE(
            MostBytesOf([&] { EXPECT_EQ((size - 15) / 32, std::size_t(Open()->ArtworkImageGroupCount())); }),
            4 * size + kFree)
            << size;
    }
}

TEST_F(ArtworkMemory, ASizeThatLiesCostsNoMoreThanTheFile)
{
    FileBytes() = Head(1, {Entry(7, 47, 0xFFFFFFFFU)});
    FileBytes().resize(kOneKiB);
    const auto manager = Open();
    EXPECT_LE(MostBytesOf([&] { manager->GetArtworkImageGroup(0); }), kOneKiB * 4 + kFree);
}

TEST_F(ArtworkMemory, ALengthThatLiesCostsNoMoreThanTheBlob)
{
    FileBytes() =
        FileOf({{7, Joined({{'I', 'G', 0}, Little(kMost), Little(0), Little(0xFFFFFFF0U), Bytes(1000)})}});
    const auto manager = Open();
    EXPECT_LE(MostBytesOf([&] { EXPECT_TRUE(manager->GetArtworkImageGroup(0)->IsEmpty()); }),
              kOneKiB * 4 + kFree);
}

// A picture without bytes costs a file 8 bytes and memory a node, a picture and its handles.
TEST_F(ArtworkMemory, ManyPicturesWithoutBytesStayInProportion)
{
    constexpr int kPictures = 100000;
    Bytes blob = Joined({{'I', 'G', 0}, Little(kMost)});
    blob.reserve(7 + std::size_t{8} * kPictures);
    for (int key = 0; key < kPictures; ++key)
        for (const int number : {key, 0})
            for (const auto byte : Little(number))
                blob.push_back(byte);
    FileBytes() = FileOf({{7, blob}});
    const auto manager = Open();
    EXPECT_LE(MostBytesOf([&] { EXPECT_FALSE(manager->GetArtworkImageGroup(0)->IsEmpty()); }),
              32 * FileBytes().size());
}

TEST_F(ArtworkMemory, OverlappingGroupsCostOneAtATime)
{
    const auto blob = BlobOf(std::string(100000, 'x'));
    FileBytes() = FileOf({{0, blob}});
    Bytes head = Head(kFullTable, {});
    for (int i = 0; i < kFullTable; ++i)
        for (const auto byte : Entry(i, kHeadArea, static_cast<std::uint32_t>(blob.size())))
            head.push_back(byte);
    std::ranges::copy(head, FileBytes().begin());
    const auto manager = Open();
    EXPECT_LE(MostBytesOf(
                  [&]
                  {
                      for (int i = 0; i < kFullTable; ++i)
                          EXPECT_FALSE(manager->GetArtworkImageGroup(i)->IsEmpty());
                  }),
              6 * FileBytes().size());
}

TEST_F(ArtworkMemory, ThatRunsOutWhileLoadingGivesAnEmptyHandle)
{
    FileBytes() = FileOf({{7, BlobOf("picture")}});
    const auto manager = Open();
    std::shared_ptr<const IVXArtworkImageGroup> group;
    std::size_t allocations = 0;
    while (!RunsWithin(allocations, [&] { group = manager->GetArtworkImageGroup(0); }))
    {
        EXPECT_FALSE(group) << allocations;
        ++allocations;
    }
    EXPECT_LT(3U, allocations);
    EXPECT_TRUE(group);
}

TEST_F(ArtworkMemory, ThatRunsOutWhileAddingLosesNoGroup)
{
    const auto added = GroupOf("new");
    const auto before = FileOf({{7, BlobOf("first")}, {8, BlobOf("second")}});
    std::size_t allocations = 0;
    for (bool enough = false; !enough; ++allocations)
    {
        FileBytes() = before;
        const auto manager = OpenMutable();
        int faceID = 0;
        enough = RunsWithin(allocations, [&] { faceID = manager->AddArtworkImageGroup(added, 9); });
        EXPECT_EQ(faceID == 9 ? 3 : 2, manager->ArtworkImageGroupCount()) << allocations;
        EXPECT_EQ(faceID == 9 ? 3 : 2, Open()->ArtworkImageGroupCount()) << allocations;
        EXPECT_TRUE(Open()->GetArtworkImageGroupByID(7)) << allocations;
        EXPECT_TRUE(Open()->GetArtworkImageGroupByID(8)) << allocations;
        EXPECT_TRUE(faceID == 9 || !enough) << allocations;
    }
    EXPECT_LT(3U, allocations);
}

TEST_F(ArtworkMemory, ThatRunsOutWhileRemovingLosesNoOtherGroup)
{
    const auto before = FileOf({{7, BlobOf("first")}, {8, BlobOf("second")}});
    std::size_t allocations = 0;
    for (bool enough = false; !enough; ++allocations)
    {
        FileBytes() = before;
        const auto manager = OpenMutable();
        enough = RunsWithin(allocations, [&] { manager->RemoveArtworkImageGroup(0); });
        EXPECT_EQ(manager->ArtworkImageGroupCount(), Open()->ArtworkImageGroupCount()) << allocations;
        EXPECT_TRUE(Open()->GetArtworkImageGroupByID(8)) << allocations;
        EXPECT_TRUE(manager->ArtworkImageGroupCount() == 1 || !enough) << allocations;
    }
    EXPECT_LT(1U, allocations);
}

TEST_F(ArtworkMemory, ThatRunsOutWhileOpeningLeavesAnEmptyTable)
{
    FileBytes() = FileOf({{7, BlobOf("first")}});
    std::size_t allocations = 1; // the manager itself
    int count = 0;
    while (!RunsWithin(allocations++, [&] { count = Open()->ArtworkImageGroupCount(); }))
        EXPECT_EQ(0, count) << allocations;
    EXPECT_EQ(1, count);
}

} // namespace

} // namespace Vexlor
