#include "tests/apps/ArtworkFiles.h"
#include "tests/apps/RunTool.h"
#include "tests/foundation/TestFolder.h"

#include "apps/artwork/DefaultArtwork.h"
#include "catalog/icons/Faces.h"
#include "runtime/foundation/VXJson.h"

#include "IVXArtworkImage.h"
#include "IVXArtworkImageGroup.h"
#include "IVXArtworkImageMgr.h"
#include "IVXJsonValue.h"

#include <QImage>

#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <set>

namespace Vexlor::Apps
{

namespace
{

std::string Default()
{
    const auto bytes = Tool::DefaultArtwork();
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

QImage Decoded(const IVXArtworkImageGroup& group, int variant, int mode)
{
    const auto picture = group.GetArtworkImage(variant, mode);
    return picture ? QImage::fromData(picture->Bytes(), static_cast<int>(picture->Size())) : QImage();
}

double LightOf(int part)
{
    const double share = part / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

// Relative luminance and contrast as the Web Content Accessibility Guidelines 2.1 define them.
double Luminance(QRgb colour)
{
    return 0.2126 * LightOf(qRed(colour)) + 0.7152 * LightOf(qGreen(colour)) +
           0.0722 * LightOf(qBlue(colour));
}

double Contrast(QRgb one, QRgb other)
{
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

class ArtworkIcon : public testing::TestWithParam<Catalog::Face>
{
protected:
    QImage Picture(int variant, int mode) const { return Decoded(*group, variant, mode); }

    TestFolder folder;
    std::string file = WithContent(folder / "vxpresets.artwork", Default());
    std::shared_ptr<const IVXArtworkImageGroup> group =
        IVXArtworkImageMgr::MallocArtworkImageMgr(file, nullptr)->GetArtworkImageGroupByID(GetParam().id);
};

TEST_P(ArtworkIcon, HasThreeSizesInFourModes)
{
    ASSERT_NE(nullptr, group);
    for (int variant = 0; variant < 3; ++variant)
        for (int mode = 0; mode < 4; ++mode)
            EXPECT_EQ(QSize(16 << variant, 16 << variant), Picture(variant, mode).size())
                << variant << ' ' << mode;
}

TEST_P(ArtworkIcon, HasASignOnATileInEverySize)
{
    for (int variant = 0; variant < 3; ++variant)
    {
        const auto picture = Picture(variant, 0);
        int white = 0;
        int tile = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                ++(qGray(picture.pixel(x, y)) > 200 ? white : tile);
        const int area = picture.width() * picture.height();
        EXPECT_LT(area / 20, white) << variant;
        EXPECT_LT(area / 2, tile) << variant;
    }
}

TEST_P(ArtworkIcon, LooksDifferentInEveryMode)
{
    for (int variant = 0; variant < 3; ++variant)
        for (int mode = 1; mode < 4; ++mode)
            EXPECT_NE(Picture(variant, 0), Picture(variant, mode)) << variant << ' ' << mode;
}

TEST_P(ArtworkIcon, IsGreyWhenDisabled)
{
    const auto picture = Picture(2, 1);
    for (int x = 0; x < picture.width(); ++x)
        EXPECT_EQ(qRed(picture.pixel(x, 32)), qBlue(picture.pixel(x, 32)));
}

TEST_P(ArtworkIcon, StandsOutOnLightOnDarkAndInItself)
{
    const auto tile = Picture(2, 0).pixel(32, 3);
    EXPECT_LE(3.0, Contrast(tile, 0xfffafafa));
    EXPECT_LE(2.0, Contrast(tile, 0xff232529));
    EXPECT_LE(3.0, Contrast(tile, 0xffffffff));
}

INSTANTIATE_TEST_SUITE_P(Default, ArtworkIcon, testing::ValuesIn(Catalog::kFaces),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(ArtworkIcons, AreDifferentFromEachOther)
{
    const TestFolder folder;
    const auto manager =
        IVXArtworkImageMgr::MallocArtworkImageMgr(WithContent(folder / "x", Default()), nullptr);
    std::set<QByteArray> pictures;
    for (int i = 0; i < manager->ArtworkImageGroupCount(); ++i)
    {
        const auto picture = Decoded(*manager->GetArtworkImageGroup(i), 0, 0);
        pictures.insert(
            QByteArray(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()));
    }
    EXPECT_EQ(Catalog::kFaces.size(), pictures.size());
}

TEST(ArtworkIcons, AreListedWithoutAFile)
{
    const auto list = RunTool({"artwork", "list"});
    EXPECT_EQ(0, list.exitCode);
    std::string names;
    for (const auto& face : Catalog::kFaces)
    {
        names += std::string(face.name) + '\n';
        EXPECT_THAT(list.out, testing::HasSubstr(std::to_string(face.id) + "  " + std::string(face.name)));
    }
    EXPECT_EQ(1 + std::ranges::count(names, '\n'), std::ranges::count(list.out, '\n'));
}

TEST(ArtworkIcons, AreFreeOfFaults)
{
    EXPECT_EQ("built-in artwork: 27 groups, nothing wrong\n", RunTool({"artwork", "check"}).out);
}

TEST(ArtworkIcons, ArePackedTheSameEveryTime)
{
    const TestFolder folder;
    const auto command = std::string(VX_PACK " " VX_ICONS " ") + (folder / "again.artwork");
    ASSERT_EQ(0, std::system(command.c_str()));
    EXPECT_TRUE(Default() == ContentOf(folder / "again.artwork"));
}

void CollectFaces(const IVXJsonValue& node, std::set<int>& faces)
{
    for (const auto* const list : {"childList", "formatPresetList"})
    {
        const auto entries = node.GetValueArray(list);
        for (int i = 0; i < entries->Size(); ++i)
        {
            faces.insert(entries->At(i)->GetValueInt("faceID"));
            CollectFaces(*entries->At(i), faces);
        }
    }
}

TEST(ArtworkIcons, CoverTheBuiltInTree)
{
    std::set<int> faces;
    CollectFaces(*ParseJson(RunTool({"tree", "--json"}).out), faces);
    EXPECT_LT(10U, faces.size());
    for (const auto& face : Catalog::kFaces)
        faces.erase(face.id);
    EXPECT_THAT(faces, testing::IsEmpty());
}

} // namespace

} // namespace Vexlor::Apps
