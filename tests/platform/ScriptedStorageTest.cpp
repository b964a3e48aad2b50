#include "IVXArtworkImage.h"
#include "IVXData.h"
#include "IVXError.h"
#include "IVXStorage.h"

#include "tests/platform/ScriptedPlatform.h"

#include <array>
#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

using Bytes = std::vector<std::uint8_t>;

std::shared_ptr<IVXStorage> Open(IVXStorage::StorageMode mode)
{
    return IVXStorage::MallocStorage("icons", mode);
}

TEST(ScriptedStorage, ReadingNeedsAFileAndWritingMakesIt)
{
    const ScriptedPlatform platform;
    EXPECT_FALSE(Open(IVXStorage::StorageModeRead)->IsOpen());
    EXPECT_FALSE(platform.HasFile("icons"));
    EXPECT_TRUE(Open(IVXStorage::StorageModeReadWrite)->IsOpen());
    EXPECT_TRUE(platform.HasFile("icons"));
}

TEST(ScriptedStorage, WritesAtThePositionAndFillsGapsWithZeros)
{
    ScriptedPlatform platform;
    platform.File("icons").bytes = {1, 2};
    const auto storage = Open(IVXStorage::StorageModeReadWrite);
    EXPECT_TRUE(storage->Seek(3)->Succeed());
    EXPECT_TRUE(storage->WriteBytes("A", 1)->Succeed());
    EXPECT_EQ((Bytes{1, 2, 0, 'A'}), platform.File("icons").bytes);
    EXPECT_EQ(4U, storage->Position());
}

TEST(ScriptedStorage, ReadsUpToTheEndOfTheFile)
{
    ScriptedPlatform platform;
    platform.File("icons").bytes = {1, 2, 3};
    const auto storage = Open(IVXStorage::StorageModeRead);
    EXPECT_EQ(2U, storage->Read(2)->Size());
    EXPECT_EQ(3, storage->Read(2)->Bytes()[0]);
    EXPECT_TRUE(storage->Read(2)->Empty());
}

TEST(ScriptedStorage, RefusesWritesWhenOpenForReading)
{
    ScriptedPlatform platform;
    platform.File("icons");
    EXPECT_FALSE(Open(IVXStorage::StorageModeRead)->WriteBytes("A", 1)->Succeed());
    EXPECT_TRUE(platform.File("icons").bytes.empty());
}

TEST(ScriptedStorage, OnlyTheCountedOperationFails)
{
    ScriptedPlatform platform;
    auto& file = platform.File("icons");
    file.bytes = {1, 2, 3};
    file.failReadAt = 2;
    file.failSeekAt = 1;
    const auto storage = Open(IVXStorage::StorageModeReadWrite);
    EXPECT_FALSE(storage->Seek(1)->Succeed());
    EXPECT_EQ(1U, storage->Read(1)->Size());
    EXPECT_TRUE(storage->Read(1)->Empty());
    EXPECT_EQ(2, storage->Read(1)->Bytes()[0]);
}

TEST(ScriptedStorage, AFailingWriteLeavesTheBytes)
{
    ScriptedPlatform platform;
    platform.File("icons").failWriteAt = 1;
    const auto storage = Open(IVXStorage::StorageModeReadWrite);
    EXPECT_FALSE(storage->WriteBytes("A", 1)->Succeed());
    EXPECT_TRUE(storage->WriteBytes("B", 1)->Succeed());
    EXPECT_EQ(Bytes{'B'}, platform.File("icons").bytes);
}

TEST(ScriptedStorage, AFileCanRefuseToOpen)
{
    ScriptedPlatform platform;
    platform.File("icons").opens = false;
    EXPECT_FALSE(Open(IVXStorage::StorageModeReadWrite)->IsOpen());
}

TEST(ScriptedData, AppendsItsOwnBytes)
{
    const auto data = IVXData::MallocData(0);
    data->AppendBytes("AB", 2);
    data->AppendData(data);
    EXPECT_EQ(4U, data->Size());
    EXPECT_EQ('B', data->Bytes()[3]);
}

TEST(ScriptedArtworkImage, IsReadBackAsItWasStored)
{
    const std::array<std::uint8_t, 3> picture{1, 2, 3};
    const auto stored = IVXArtworkImage::MallocArtworkImage(picture.data(), picture.size(),
                                                            IVXArtworkImage::ArtworkImageFormatPNG)
                            ->ToData();
    const auto image = IVXArtworkImage::MallocArtworkImage();
    image->FromData(stored);
    EXPECT_EQ(IVXArtworkImage::ArtworkImageFormatPNG, image->Format());
    EXPECT_EQ((Bytes{1, 2, 3}), Bytes(image->Bytes(), image->Bytes() + image->Size()));
}

TEST(ScriptedArtworkImage, HasNoBytesAfterForeignData)
{
    const std::array<std::uint8_t, 1> picture{1};
    const auto image = IVXArtworkImage::MallocArtworkImage(picture.data(), picture.size(),
                                                           IVXArtworkImage::ArtworkImageFormatPNG);
    image->FromData(IVXData::MallocData(100));
    EXPECT_EQ(0U, image->Size());
}

} // namespace

} // namespace Vexlor
