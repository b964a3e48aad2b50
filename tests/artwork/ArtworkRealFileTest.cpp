#include "IVXArtworkImageMgr.h"

#include "runtime/foundation/VXLogSink.h"
#include "tests/artwork/ArtworkBytes.h"
#include "tests/foundation/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace Vexlor
{

namespace
{

class ArtworkRealFile : public testing::Test
{
protected:
    ArtworkRealFile()
        : m_sinkBefore(SetLogSink([this](IVXLogConfig::LogLevel level, std::string_view text)
                                  { m_log += std::to_string(level) + " " + std::string(text); }))
    {
    }
    ~ArtworkRealFile() override { SetLogSink(std::move(m_sinkBefore)); }

    std::shared_ptr<const IVXArtworkImageMgr> Open() const
    {
        return IVXArtworkImageMgr::MallocArtworkImageMgr(m_path, nullptr);
    }
    std::shared_ptr<IVXArtworkImageMgr> OpenMutable() const
    {
        return IVXArtworkImageMgr::MallocArtworkImageMgrMutable(m_path, nullptr);
    }

    /// What the file holds for a reader who opens it now.
    std::string Outline() const
    {
        const auto manager = Open();
        std::string text;
        for (int i = 0; i < manager->ArtworkImageGroupCount(); ++i)
            text += (i ? " | " : "") + std::to_string(manager->FaceIDAt(i)) + ":" +
                    TextOf(manager->GetArtworkImageGroup(i));
        return text;
    }

    Bytes FileBytes() const { return BytesOf(ContentOf(m_path)); }
    void Fill(const Bytes& bytes) const { WithContent(m_path, TextOf(bytes)); }

    TestFolder m_folder;
    std::string m_path = m_folder / "Icônes 图标";
    std::string m_log;

private:
    VXLogSink m_sinkBefore;
};

TEST_F(ArtworkRealFile, IsMadeWhenThereIsNone)
{
    OpenMutable();
    auto expected = Head(0, {});
    expected.resize(kHeadArea);
    EXPECT_EQ(expected, FileBytes());
    EXPECT_EQ("", m_log);
}

TEST_F(ArtworkRealFile, IsNotMadeByAReader)
{
    EXPECT_EQ(0, Open()->ArtworkImageGroupCount());
    EXPECT_EQ("3 VXArtworkImageMgr Error:file:" + m_path + ",is open faild\n", m_log);
    EXPECT_EQ(0, m_folder.Count());
}

TEST_F(ArtworkRealFile, StaysEmptyForAReader)
{
    Fill({});
    EXPECT_EQ(0, Open()->ArtworkImageGroupCount());
    EXPECT_EQ(Bytes(), FileBytes());
}

TEST_F(ArtworkRealFile, CannotBeAFolder)
{
    std::filesystem::create_directory(m_folder.Path() / "folder");
    m_path = m_folder / "folder";
    EXPECT_EQ(0, OpenMutable()->AddArtworkImageGroup(GroupOf("red"), 7));
    EXPECT_EQ("3 VXArtworkImageMgr Error:file:" + m_path + ",is open faild\n", m_log);
}

TEST_F(ArtworkRealFile, KeepsWhatIsAdded)
{
    const auto manager = OpenMutable();
    EXPECT_EQ(20000000, manager->AddArtworkImageGroup(GroupOf("red"), 20000000));
    const int second = manager->AddArtworkImageGroup(GroupOf("blue"));
    EXPECT_EQ("20000000:0.0=red | " + std::to_string(second) + ":0.0=blue", Outline());
    EXPECT_EQ(FileOf({{20000000, BlobOf("red")}, {second, BlobOf("blue")}}), FileBytes());
}

TEST_F(ArtworkRealFile, GrowsFromOneOpeningToTheNext)
{
    OpenMutable()->AddArtworkImageGroup(GroupOf("red"), 5);
    OpenMutable()->AddArtworkImageGroup(GroupOf("blue"), 7);
    EXPECT_EQ("5:0.0=red | 7:0.0=blue", Outline());
}

TEST_F(ArtworkRealFile, FindsAReplacedGroupUnderItsNewFaceIdentifier)
{
    Fill(FileOf({{5, BlobOf("a")}, {20000000, BlobOf("old")}}));
    OpenMutable()->ReplaceArtworkImageGroup(GroupOf("new"), 20000000);
    const int faceID = Open()->FaceIDAt(1);
    EXPECT_NE(20000000, faceID);
    EXPECT_EQ("5:0.0=a | " + std::to_string(faceID) + ":0.0=new", Outline());
    EXPECT_EQ(nullptr, Open()->GetArtworkImageGroupByID(20000000));
    EXPECT_EQ("1 VXArtworkImageMgr->GetArtworkImageGroupByID Error: faceID=20000000,No exist!\n", m_log);
}

TEST_F(ArtworkRealFile, LosesOnlyWhatIsRemovedAndKeepsItsSize)
{
    const auto before = FileOfGroups(3);
    Fill(before);
    OpenMutable()->RemoveArtworkImageGroupByID(FaceIDOfGroup(1));
    EXPECT_EQ("16777216:0.0=picture 0 | 50331648:0.0=picture 2", Outline());
    EXPECT_EQ(before.size(), FileBytes().size());
}

TEST_F(ArtworkRealFile, OfAnotherKindIsLeftAlone)
{
    const auto before = BytesOf("a letter to a friend");
    Fill(before);
    EXPECT_EQ(0, OpenMutable()->AddArtworkImageGroup(GroupOf("red"), 7));
    EXPECT_EQ(before, FileBytes());
    EXPECT_EQ("1 VXArtworkImageMgr->setupInfoTable Error:The data flag error\n", m_log);
}

TEST_F(ArtworkRealFile, AnswersNothingForOffsetsThatNoFileHas)
{
    Fill(Head(2, {Entry(5, ~std::uint64_t{0}, 0xFFFFFFFFU), Entry(7, std::uint64_t{1} << 62U, 0xFFFFFFFFU)}));
    EXPECT_EQ("5:none | 7:none", Outline());
    EXPECT_EQ(
        "1 VXArtworkImageMgr->GetArtworkImageGroupByTableItem Error: faceID=5,Seek File Error(offset = -1)!\n"
        "1 VXArtworkImageMgr->GetArtworkImageGroupByTableItem Error: faceID=7,read Data Error(offset = 0)!\n",
        m_log);
}

TEST_F(ArtworkRealFile, TakesAsManyGroupsAsItsHeadHolds)
{
    const auto manager = OpenMutable();
    for (int i = 0; i < kFullTable; ++i)
        manager->AddArtworkImageGroup(GroupOf(std::to_string(i)), i + 1);
    const auto size = FileBytes().size();
    EXPECT_EQ(0, manager->AddArtworkImageGroup(GroupOf("one more"), kFullTable + 1));
    EXPECT_EQ(size, FileBytes().size());
    EXPECT_EQ(kFullTable, Open()->ArtworkImageGroupCount());
    EXPECT_EQ("0.0=1598", TextOf(Open()->GetArtworkImageGroupByID(kFullTable)));
}

} // namespace

} // namespace Vexlor
