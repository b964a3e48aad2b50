#include "tests/artwork/ArtworkFixture.h"

#include <algorithm>
#include <limits>

namespace Vexlor
{

namespace
{

using ArtworkHostile = ArtworkFileTest;

constexpr std::uint64_t kTwoTo63 = std::uint64_t{1} << 63U;

struct OffsetCase
{
    const char* name;
    std::uint64_t offset;
    std::uint32_t size;
    const char* log;
};

class ArtworkOffset : public ArtworkFileTest, public testing::WithParamInterface<OffsetCase>
{
};

TEST_P(ArtworkOffset, IsLoggedAndAnswersNothing)
{
    FileBytes() = Head(1, {Entry(7, GetParam().offset, GetParam().size)});
    FileBytes().resize(1024);
    EXPECT_EQ(nullptr, Open()->GetArtworkImageGroupByID(7));
    EXPECT_EQ(std::string("VXArtworkImageMgr->GetArtworkImageGroupByTableItem Error: faceID=7,") +
                  GetParam().log,
              Log());
}

constexpr OffsetCase kOffsets[] = {
    {"AtTheEnd", 1024, 1, "read Data Error(offset = 1024)!\n"},
    {"BehindTheEnd", 51200, 81, "read Data Error(offset = 51200)!\n"},
    {"OfSizeZero", 0, 0, "read Data Error(offset = 0)!\n"},
    {"TheLastThatAFileCanHave", kTwoTo63 - 1, 4, "read Data Error(offset = -1)!\n"},
    {"TwoToThe63", kTwoTo63, 4, "Seek File Error(offset = 0)!\n"},
    {"BeyondTwoToThe63", kTwoTo63 + 51200, 4, "Seek File Error(offset = 51200)!\n"},
    {"Greatest", std::numeric_limits<std::uint64_t>::max(), 0xFFFFFFFFU, "Seek File Error(offset = -1)!\n"},
};
INSTANTIATE_TEST_SUITE_P(Outside, ArtworkOffset, testing::ValuesIn(kOffsets),
                         [](const auto& test) { return test.param.name; });

TEST_F(ArtworkHostile, ASizeOfFourGiBReadsToTheEndOfTheFile)
{
    const auto blob = BlobOf("red");
    FileBytes() =
        Joined({Head(1, {Entry(7, 1024 - blob.size(), 0xFFFFFFFFU)}), Bytes(1024 - 47 - blob.size()), blob});
    ASSERT_EQ(1024U, FileBytes().size());
    EXPECT_EQ("0.0=red", TextOf(Open()->GetArtworkImageGroupByID(7)));
}

TEST_F(ArtworkHostile, ASizeThatIsTooSmallKeepsThePicturesInsideIt)
{
    const auto blob = BlobOf({{0, StoredPicture("a")}, {1, StoredPicture("b")}});
    FileBytes() = Joined({Head(1, {Entry(7, 47, static_cast<std::uint32_t>(blob.size() - 1))}), blob});
    EXPECT_EQ("0.0=a", TextOf(Open()->GetArtworkImageGroupByID(7)));
}

TEST_F(ArtworkHostile, BlobsMayOverlap)
{
    const auto inner = BlobOf("inner");
    const auto outer = BlobOf({{0, StoredPicture("outer")}, {1, inner}});
    const auto innerAt = kHeadArea + outer.size() - inner.size();
    FileBytes() = FileOf({{7, outer}});
    const auto head = Head(3, {Entry(7, kHeadArea, static_cast<std::uint32_t>(outer.size())),
                               Entry(8, innerAt, static_cast<std::uint32_t>(inner.size())),
                               Entry(9, kHeadArea, static_cast<std::uint32_t>(outer.size()))});
    std::ranges::copy(head, FileBytes().begin());
    EXPECT_EQ("7:0.0=outer 0.1= | 8:0.0=inner | 9:0.0=outer 0.1=", Outline());
}

TEST_F(ArtworkHostile, ABlobMayBeTheTableItself)
{
    FileBytes() = Head(1, {Entry(7, 0, 47)});
    EXPECT_EQ("7:", Outline());
    EXPECT_EQ("VXArtworkImageGroup->FromData->Error:Data flag Error", Log());
}

TEST_F(ArtworkHostile, AHeadAloneTakesNewGroupsBehindItsArea)
{
    FileBytes() = Head(1, {Entry(7, 47, 9)});
    EXPECT_EQ(8, OpenMutable()->AddArtworkImageGroup(GroupOf("red"), 8));
    const auto blob = BlobOf("red");
    const auto size = static_cast<std::uint32_t>(blob.size());
    EXPECT_EQ(Head(2, {Entry(7, 47, 9), Entry(8, 51200, size)}), Slice(FileBytes(), 0, 79));
    EXPECT_EQ(blob, Slice(FileBytes(), 51200, FileBytes().size()));
}

/// How many of a file's groups lie whole inside its first size bytes, and are told there.
int WholeGroups(const Bytes& file, std::size_t size, int groups)
{
    std::size_t end = kHeadArea;
    int whole = 0;
    for (int i = 0; i < groups; ++i)
    {
        end += BlobOf(PictureOfGroup(i)).size();
        whole += size >= end ? 1 : 0;
    }
    return size == file.size() ? groups : whole;
}

std::string LogOfAnOpening(std::size_t size)
{
    return size > 0 && size < 11 ? "VXArtworkImageMgr->setupInfoTable Error:The data flag error\n" : "";
}

TEST_F(ArtworkHostile, CutAtAnyByteKeepsTheGroupsThatLieWholeInside)
{
    const auto whole = FileOfGroups(3);
    FileBytes() = whole;
    for (std::size_t size = whole.size(); size-- > 0;)
    {
        FileBytes().pop_back();
        ScriptedPlatform inner; // takes this cut's log alone
        inner.File("icons").bytes.swap(FileBytes());
        const auto manager = Open();
        ASSERT_EQ(LogOfAnOpening(size), inner.Log()) << size;
        const auto entries = size < kTableAt ? 0 : (size - kTableAt) / kEntryWidth;
        ASSERT_EQ(std::min<std::size_t>(3, entries),
                  static_cast<std::size_t>(manager->ArtworkImageGroupCount()))
            << size;
        int found = 0;
        for (int i = 0; i < manager->ArtworkImageGroupCount(); ++i)
            found += TextOf(manager->GetArtworkImageGroup(i)) == "0.0=" + PictureOfGroup(i) ? 1 : 0;
        ASSERT_EQ(WholeGroups(whole, size, 3), found) << size;
        inner.File("icons").bytes.swap(FileBytes());
    }
}

TEST_F(ArtworkHostile, AnyByteChangedInTheHeadLosesNoAdditionSilently)
{
    const auto whole = FileOfGroups(2);
    for (std::size_t at = 0; at < kTableAt + 2 * kEntryWidth; ++at)
        for (const auto value : Bytes{0x00, 0x01, 0x7F, 0x80, 0xFF})
        {
            FileBytes() = whole;
            FileBytes()[at] = value;
            const auto before = FileBytes();
            const auto manager = OpenMutable();
            const int entries = manager->ArtworkImageGroupCount();
            const bool takes = (at >= 11 || value == whole[at]) && entries < kFullTable;
            ASSERT_EQ(takes ? 5 : 0, manager->AddArtworkImageGroup(GroupOf("red"), 5)) << at;
            ASSERT_EQ(takes, before != FileBytes()) << at;
            ASSERT_EQ(takes ? "0.0=red" : "none", TextOf(Open()->GetArtworkImageGroup(entries))) << at;
        }
}

} // namespace

} // namespace Vexlor
