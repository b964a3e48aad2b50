#include "IVXArtworkImageMgr.h"

#include "tests/artwork/ArtworkBytes.h"
#include "tests/foundation/TestFolder.h"

#include <QIcon>
#include <QSize>

#include <gtest/gtest.h>

namespace Vexlor
{

namespace
{

const std::string kData = VX_SOURCE_FOLDER "/tests/data/artwork/";

/// A picture by the number of its format and its bytes.
struct GoldenPicture
{
    int variant;
    int mode;
    int format;
    std::string bytes;
};

struct GoldenGroup
{
    int faceID;
    std::vector<GoldenPicture> pictures;
};

// The groups that tests/artwork/make_golden.py packs, in their order.
std::vector<GoldenGroup> GoldenGroups()
{
    const auto red = ContentOf(kData + "red-4x4.png");
    const auto blue = ContentOf(kData + "blue-8x8.png");
    const auto grey = ContentOf(kData + "grey-4x4.bmp");
    return {
        {20000000, {{0, 0, 1, red}, {0, 1, 4, grey}, {1, 0, 1, blue}}},
        {10000003, {}},
        {20000000, {{0, -1, 1, blue}, {3, 0, 77, "later"}}},
        {-5, {{2, 3, 1, ""}}},
    };
}

std::shared_ptr<IVXArtworkImageGroup> Built(const GoldenGroup& golden)
{
    auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
    for (const auto& picture : golden.pictures)
    {
        const auto bytes = BytesOf(picture.bytes);
        group->SetArtworkImage(IVXArtworkImage::MallocArtworkImage(
                                   bytes.data(), static_cast<std::uint32_t>(bytes.size()),
                                   static_cast<IVXArtworkImage::ArtworkImageFormat>(picture.format)),
                               picture.variant, picture.mode);
    }
    return group;
}

/// Every picture that lies under one of these keys: those of an icon, and those that the golden groups add.
std::string Outline(const IVXArtworkImageGroup& group)
{
    std::string text;
    for (int variant = 0; variant < 4; ++variant)
        for (int mode = -1; mode < 4; ++mode)
            if (const auto picture = group.GetArtworkImage(variant, mode))
                text += std::to_string(variant) + "." + std::to_string(mode) + " format " +
                        std::to_string(picture->Format()) + ": " + TextOf(*picture) + "\n";
    return text;
}

std::string Outline(const GoldenGroup& golden)
{
    std::string text;
    for (const auto& [variant, mode, format, bytes] : golden.pictures)
        text += std::to_string(variant) + "." + std::to_string(mode) + " format " + std::to_string(format) +
                ": " + bytes + "\n";
    return text;
}

class ArtworkGolden : public testing::TestWithParam<int>
{
};

TEST_P(ArtworkGolden, IsReadAsItWasPacked)
{
    const auto golden = GoldenGroups().at(static_cast<std::size_t>(GetParam()));
    const auto manager = IVXArtworkImageMgr::MallocArtworkImageMgr(kData + "golden.artwork", nullptr);
    EXPECT_EQ(4, manager->ArtworkImageGroupCount());
    EXPECT_EQ(golden.faceID, manager->FaceIDAt(GetParam()));
    const auto group = manager->GetArtworkImageGroup(GetParam());
    ASSERT_NE(nullptr, group);
    EXPECT_EQ(Outline(golden), Outline(*group));
    EXPECT_EQ(golden.pictures.empty(), group->IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Groups, ArtworkGolden, testing::Range(0, 4));

TEST(ArtworkGoldenFile, IsWhatTheLibraryWritesForTheSameGroups)
{
    const TestFolder folder;
    const auto path = folder / "icons";
    const auto manager = IVXArtworkImageMgr::MallocArtworkImageMgrMutable(path, nullptr);
    for (const auto& golden : GoldenGroups())
        EXPECT_EQ(golden.faceID, manager->AddArtworkImageGroup(Built(golden), golden.faceID));
    EXPECT_EQ(BytesOf(ContentOf(kData + "golden.artwork")), BytesOf(ContentOf(path)));
}

TEST(ArtworkGoldenFile, HasIconsThatQtDecodes)
{
    const auto manager = IVXArtworkImageMgr::MallocArtworkImageMgr(kData + "golden.artwork", nullptr);
    const auto icon = manager->GetArtworkImageGroupByID(20000000)->ToIcon();
    EXPECT_EQ((QList<QSize>{{4, 4}, {8, 8}}), icon.availableSizes(QIcon::Normal));
    EXPECT_EQ((QList<QSize>{{4, 4}}), icon.availableSizes(QIcon::Disabled));
    EXPECT_TRUE(manager->GetArtworkImageGroup(2)->ToIcon().isNull());
}

} // namespace

} // namespace Vexlor
