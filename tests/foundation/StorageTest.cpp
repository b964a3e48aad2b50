#include "IVXStorage.h"

#include "IVXData.h"
#include "IVXError.h"
#include "tests/foundation/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

namespace Vexlor
{

namespace
{

constexpr auto kRead = IVXStorage::StorageModeRead;
constexpr auto kWrite = IVXStorage::StorageModeWrite;
constexpr auto kReadWrite = IVXStorage::StorageModeReadWrite;
constexpr std::uint32_t kMost32 = std::numeric_limits<std::uint32_t>::max();
constexpr std::uint64_t kMostOffset = std::numeric_limits<std::int64_t>::max();

std::string Text(const std::shared_ptr<IVXData>& data)
{
    return data->Empty() ? "" : std::string(reinterpret_cast<const char*>(data->Bytes()), data->Size());
}

std::shared_ptr<IVXData> Data(std::string_view text)
{
    auto data = IVXData::MallocData(0);
    data->AppendBytes(text.data(), static_cast<std::uint32_t>(text.size()));
    return data;
}

class Storage : public testing::Test
{
protected:
    TestFolder m_folder;
    std::string m_path = WithContent(m_folder / "file", "0123456789");
};

} // namespace

TEST_F(Storage, ReadTakesThatManyBytesAndAdvances)
{
    const auto file = IVXStorage::MallocStorage(m_path, kRead);
    EXPECT_EQ("0123", Text(file->Read(4)));
    EXPECT_EQ("456", Text(file->Read(3)));
    EXPECT_EQ(7U, file->Position());
}

TEST_F(Storage, ReadStopsAtTheEndOfTheFile)
{
    const auto file = IVXStorage::MallocStorage(m_path, kRead);
    file->Seek(8);
    EXPECT_EQ("89", Text(file->Read(5)));
    EXPECT_EQ(10U, file->Position());
    EXPECT_TRUE(file->Read(5)->Empty());
}

TEST_F(Storage, ReadAsksForNoMoreMemoryThanTheFileHolds)
{
    const auto file = IVXStorage::MallocStorage(m_path, kRead);
    EXPECT_EQ(10U, file->Read(kMost32)->Size());
}

TEST_F(Storage, ReadBeyondTheEndIsEmptyAndStays)
{
    const auto file = IVXStorage::MallocStorage(m_path, kRead);
    file->Seek(1000);
    EXPECT_TRUE(file->Read(1)->Empty());
    EXPECT_EQ(1000U, file->Position());
}

TEST_F(Storage, ReadFromAFileOpenedForWritingIsEmpty)
{
    const auto file = IVXStorage::MallocStorage(m_path, kWrite);
    file->WriteBytes("abc", 3);
    file->Seek(0);
    EXPECT_TRUE(file->Read(3)->Empty());
}

TEST_F(Storage, ReadingAMissingFileFailsAndMakesNone)
{
    const auto file = IVXStorage::MallocStorage(m_folder / "missing", kRead);
    EXPECT_FALSE(file->IsOpen());
    EXPECT_FALSE(std::filesystem::exists(m_folder / "missing"));
}

TEST_F(Storage, ReadWriteMakesAMissingFile)
{
    const auto file = IVXStorage::MallocStorage(m_folder / "new", kReadWrite);
    EXPECT_TRUE(file->IsOpen());
    EXPECT_EQ(0U, file->Size());
    EXPECT_TRUE(std::filesystem::exists(m_folder / "new"));
}

TEST_F(Storage, ReadWriteKeepsTheContent)
{
    const auto file = IVXStorage::MallocStorage(m_path, kReadWrite);
    EXPECT_EQ(10U, file->Size());
    EXPECT_EQ("01", Text(file->Read(2)));
}

TEST_F(Storage, WriteModeEmptiesTheFile)
{
    EXPECT_EQ(0U, IVXStorage::MallocStorage(m_path, kWrite)->Size());
    EXPECT_EQ("", ContentOf(m_path));
}

TEST_F(Storage, AnUnknownModeOpensNothing)
{
    EXPECT_FALSE(IVXStorage::MallocStorage(m_path, static_cast<IVXStorage::StorageMode>(3))->IsOpen());
}

TEST_F(Storage, ADirectoryDoesNotOpen)
{
    for (const auto mode : {kRead, kWrite, kReadWrite})
        EXPECT_FALSE(IVXStorage::MallocStorage(m_folder.Path().string(), mode)->IsOpen());
}

TEST_F(Storage, APathIsNotCutAtANul)
{
    EXPECT_FALSE(IVXStorage::MallocStorage(m_path + std::string(1, '\0') + "x", kRead)->IsOpen());
}

TEST_F(Storage, PathsAreUtf8)
{
    const auto path = m_folder / "Grüße 漢字 🎬";
    IVXStorage::MallocStorage(path, kReadWrite)->WriteBytes("x", 1);
    EXPECT_EQ("x", Text(IVXStorage::MallocStorage(path, kRead)->Read(1)));
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path() / u8"Grüße 漢字 🎬"));
}

TEST_F(Storage, WritesReachTheFileAtOnce)
{
    const auto file = IVXStorage::MallocStorage(m_path, kReadWrite);
    EXPECT_TRUE(file->WriteBytes("ab", 2)->Succeed());
    EXPECT_EQ("ab23456789", ContentOf(m_path));
    EXPECT_TRUE(file->WriteData(Data("cd"))->Succeed());
    EXPECT_EQ("abcd456789", ContentOf(m_path));
    EXPECT_EQ(4U, file->Position());
}

TEST_F(Storage, WritingNothingSucceeds)
{
    const auto file = IVXStorage::MallocStorage(m_path, kReadWrite);
    EXPECT_TRUE(file->WriteData(Data(""))->Succeed());
    EXPECT_TRUE(file->WriteBytes(nullptr, 0)->Succeed());
    EXPECT_EQ("0123456789", ContentOf(m_path));
}

TEST_F(Storage, WritingAnEmptyHandleFails)
{
    const auto file = IVXStorage::MallocStorage(m_path, kReadWrite);
    EXPECT_EQ(m_path + ": no data to write", file->WriteData(nullptr)->Message());
}

TEST_F(Storage, WritingAFileOpenedForReadingFails)
{
    const auto file = IVXStorage::MallocStorage(m_path, kRead);
    EXPECT_EQ(m_path + ": opened for reading only", file->WriteBytes("x", 1)->Message());
    EXPECT_EQ("0123456789", ContentOf(m_path));
}

TEST_F(Storage, WritingToAFullDeviceNamesFileAndReason)
{
    const auto file = IVXStorage::MallocStorage("/dev/full", kReadWrite);
    ASSERT_TRUE(file->IsOpen());
    EXPECT_EQ("/dev/full: No space left on device", file->WriteBytes("x", 1)->Message());
    EXPECT_EQ(0U, file->Position());
}

TEST_F(Storage, SeekToEndThenWriteAppends)
{
    const auto file = IVXStorage::MallocStorage(m_path, kReadWrite);
    file->SeekToEnd();
    EXPECT_EQ(10U, file->Position());
    file->WriteBytes("x", 1);
    EXPECT_EQ("0123456789x", ContentOf(m_path));
}

TEST_F(Storage, WritingBeyondTheEndLeavesZerosBetween)
{
    const auto file = IVXStorage::MallocStorage(m_path, kReadWrite);
    EXPECT_TRUE(file->Seek(12)->Succeed());
    file->WriteBytes("x", 1);
    EXPECT_EQ(std::string("0123456789\0\0x", 13), ContentOf(m_path));
}

TEST_F(Storage, OffsetsBeyond4GiBWork)
{
    constexpr std::uint64_t kFar = 5'000'000'000;
    const auto file = IVXStorage::MallocStorage(m_folder / "sparse", kReadWrite);
    file->Seek(kFar);
    EXPECT_TRUE(file->WriteBytes("far", 3)->Succeed());
    EXPECT_EQ(kFar + 3, file->Size());
    file->Seek(kFar);
    EXPECT_EQ("far", Text(file->Read(10)));
}

TEST_F(Storage, SeekTakesTheLastOffsetAndNoneBeyond)
{
    const auto file = IVXStorage::MallocStorage(m_path, kReadWrite);
    EXPECT_TRUE(file->Seek(kMostOffset)->Succeed());
    EXPECT_FALSE(file->Seek(kMostOffset + 1)->Succeed());
    EXPECT_EQ(kMostOffset, file->Position());
}

TEST_F(Storage, WritingAcrossTheLastOffsetFails)
{
    const auto file = IVXStorage::MallocStorage(m_path, kReadWrite);
    file->Seek(kMostOffset);
    EXPECT_FALSE(file->WriteBytes("x", 1)->Succeed());
    EXPECT_EQ("0123456789", ContentOf(m_path));
}

TEST_F(Storage, AFileThatIsNotOpenFailsEverywhere)
{
    const auto path = m_folder / "missing";
    const auto file = IVXStorage::MallocStorage(path, kRead);
    file->SeekToEnd();
    EXPECT_EQ(0U, file->Size());
    EXPECT_EQ(0U, file->Position());
    EXPECT_TRUE(file->Read(1)->Empty());
    EXPECT_EQ(path + ": No such file or directory", file->Seek(0)->Message());
    EXPECT_EQ(path + ": No such file or directory", file->WriteBytes("x", 1)->Message());
}

TEST_F(Storage, SizeFollowsTheFile)
{
    const auto reader = IVXStorage::MallocStorage(m_path, kRead);
    const auto writer = IVXStorage::MallocStorage(m_path, kReadWrite);
    writer->SeekToEnd();
    writer->WriteBytes("more", 4);
    EXPECT_EQ(14U, reader->Size());
}

TEST_F(Storage, ReadFollowsAFileThatChangesMeanwhile)
{
    const auto reader = IVXStorage::MallocStorage(m_path, kRead);
    EXPECT_EQ("01", Text(reader->Read(2)));
    const auto writer = IVXStorage::MallocStorage(m_path, IVXStorage::StorageModeWrite);
    EXPECT_TRUE(reader->Read(5)->Empty());
    writer->WriteBytes("abcdefghijklmn", 14);
    EXPECT_EQ("cdefghijklmn", Text(reader->Read(20)));
}

} // namespace Vexlor
