#include "tests/artwork/ArtworkFixture.h"

#include <algorithm>
#include <array>
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

constexpr std::array kOffsets{
    OffsetCase{"AtTheEnd", 1024, 1, "read Data Error(offset = 1024)!\n"},
    OffsetCase{"BehindTheEnd", 51200, 81, "read Data Error(offset = 51200)!\n"},
    OffsetCase{"OfSizeZero", 0, 0, "read Data Error(offset = 0)!\n"},
    OffsetCase{"TheLastThatAFileCanHave", kTwoTo63 - 1, 4, "read Data Error(offset = -1)!\n"},
    OffsetCase{"TwoToThe63", kTwoTo63, 4, "Seek File Error(offset = 0)!\n"},
    OffsetCase{"BeyondTwoToThe63", kTwoTo63 + 51200, 4, "Seek File Error(offset = 51200)!\n"},
    OffsetCase{"Greatest", std::numeric_limits<std::uint64_t>::max(), 0xFFFFFFFFU,
               "Seek File Error(offset = -1)!\n"},
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

/// What opening that many bytes of an artwork file logs.
std::string LogOfAnOpening(std::size_t size)
{
    return size > 0 && size < 11 ? "VXArtworkImageMgr->setupInfoTable Error:The data flag error\n" : "";
}

/// How many of a file's first size bytes' groups lie whole inside them.
int WholeGroups(std::size_t size, int groups)
{
    std::size_t end = kHeadArea;
    int whole = 0;
    for (; whole < groups && size >= end + BlobOf(PictureOfGroup(whole)).size(); ++whole)
        end += BlobOf(PictureOfGroup(whole)).size();
    return whole;
}

/// How many of the groups that FileOfGroups makes the manager loads.
int LoadedGroups(const IVXArtworkImageMgr& manager)
{
    int loaded = 0;
    for (int i = 0; i < manager.ArtworkImageGroupCount(); ++i)
        loaded += TextOf(manager.GetArtworkImageGroup(i)) == "0.0=" + PictureOfGroup(i) ? 1 : 0;
    return loaded;
}

class ArtworkCut : public ArtworkFileTest
{
protected:
    static void Check(Bytes& bytes)
    {
        ScriptedPlatform platform; // takes this cut's log alone
        platform.File("icons").bytes.swap(bytes);
        const auto size = platform.File("icons").bytes.size();
        const auto manager = Open();
        const auto entries = size < kTableAt ? 0 : (size - kTableAt) / kEntryWidth;
        EXPECT_EQ(LogOfAnOpening(size), platform.Log()) << size;
        EXPECT_EQ(std::min<std::size_t>(3, entries), std::size_t(manager->ArtworkImageGroupCount())) << size;
        EXPECT_EQ(WholeGroups(size, 3), LoadedGroups(*manager)) << size;
        platform.File("icons").bytes.swap(bytes);
    }
};

TEST_F(ArtworkCut, AtAnyByteKeepsTheGroupsThatLieWholeInside)
{
    for (auto bytes = FileOfGroups(3); !HasFailure() && !bytes.empty(); bytes.pop_back())
        Check(bytes);
}

class ArtworkChangedByte : public ArtworkFileTest, public testing::WithParamInterface<int>
{
protected:
    void Check(std::size_t at)
    {
        const auto whole = FileOfGroups(2);
        FileBytes() = whole;
        FileBytes()[at] = static_cast<std::uint8_t>(GetParam());
        const auto before = FileBytes();
        const auto manager = OpenMutable();
        const int entries = manager->ArtworkImageGroupCount();
        const bool takes = (at >= 11 || before[at] == whole[at]) && entries < kFullTable;
        EXPECT_EQ(takes ? 5 : 0, manager->AddArtworkImageGroup(GroupOf("red"), 5)) << at;
        EXPECT_EQ(takes, before != FileBytes()) << at;
        EXPECT_EQ(takes ? "0.0=red" : "none", TextOf(Open()->GetArtworkImageGroup(entries))) << at;
    }
};

TEST_P(ArtworkChangedByte, AnywhereInTheHeadLosesNoAdditionSilently)
{
    for (std::size_t at = 0; at < kTableAt + 2 * kEntryWidth; ++at)
        Check(at);
}

INSTANTIATE_TEST_SUITE_P(Values, ArtworkChangedByte, testing::Values(0x00, 0x01, 0x7F, 0x80, 0xFF));

} // namespace

} // namespace Vexlor
