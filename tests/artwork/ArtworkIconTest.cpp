#include "IVXArtworkImageGroup.h"

#include "tests/artwork/ArtworkBytes.h"

#include <QBuffer>
#include <QIcon>
#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

#include <array>

namespace Vexlor
{

namespace
{

class ArtworkIcon : public testing::Test
{
protected:
    void Add(int variant, int mode, int side, Qt::GlobalColor color, const char* format = "PNG")
    {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(color);
        QBuffer buffer;
        ASSERT_TRUE(image.save(&buffer, format));
        m_group->SetArtworkImage(Picture({buffer.data().constData(), std::size_t(buffer.data().size())}),
                                 variant, mode);
    }

    /// The widths of the pictures of a mode, as the icon lists them.
    std::string Sizes(QIcon::Mode mode, QIcon::State state = QIcon::Off) const
    {
        std::string sizes;
        for (const auto& size : m_group->ToIcon().availableSizes(mode, state))
            sizes += std::to_string(size.width()) + "x" + std::to_string(size.height()) + " ";
        return sizes;
    }

    QColor ColorOf(QIcon::Mode mode, int side) const
    {
        return m_group->ToIcon().pixmap(QSize(side, side), 1.0, mode, QIcon::Off).toImage().pixelColor(0, 0);
    }

    std::shared_ptr<IVXArtworkImageGroup> m_group = IVXArtworkImageGroup::MallocArtworkImageGroup();
};

TEST_F(ArtworkIcon, OfAnEmptyGroupIsNull) { EXPECT_TRUE(m_group->ToIcon().isNull()); }

TEST_F(ArtworkIcon, HasASizePerVariant)
{
    Add(0, QIcon::Normal, 16, Qt::red);
    Add(1, QIcon::Normal, 32, Qt::green);
    Add(2, QIcon::Normal, 64, Qt::blue);
    EXPECT_EQ("16x16 32x32 64x64 ", Sizes(QIcon::Normal));
    EXPECT_EQ(QColor(Qt::red), ColorOf(QIcon::Normal, 16));
    EXPECT_EQ(QColor(Qt::green), ColorOf(QIcon::Normal, 32));
    EXPECT_EQ(QColor(Qt::blue), ColorOf(QIcon::Normal, 64));
}

TEST_F(ArtworkIcon, HasAPicturePerMode)
{
    Add(0, 0, 16, Qt::red);
    Add(0, 1, 16, Qt::gray);
    Add(0, 2, 16, Qt::green);
    Add(0, 3, 16, Qt::blue);
    EXPECT_EQ(QColor(Qt::red), ColorOf(QIcon::Normal, 16));
    EXPECT_EQ(QColor(Qt::gray), ColorOf(QIcon::Disabled, 16));
    EXPECT_EQ(QColor(Qt::green), ColorOf(QIcon::Active, 16));
    EXPECT_EQ(QColor(Qt::blue), ColorOf(QIcon::Selected, 16));
}

TEST_F(ArtworkIcon, KeepsEachModeApart)
{
    Add(0, QIcon::Disabled, 16, Qt::gray);
    Add(2, QIcon::Selected, 48, Qt::blue);
    EXPECT_EQ("", Sizes(QIcon::Normal));
    EXPECT_EQ("16x16 ", Sizes(QIcon::Disabled));
    EXPECT_EQ("", Sizes(QIcon::Active));
    EXPECT_EQ("48x48 ", Sizes(QIcon::Selected));
}

TEST_F(ArtworkIcon, HasNothingForTheStateOn)
{
    Add(0, QIcon::Normal, 16, Qt::red);
    EXPECT_EQ("", Sizes(QIcon::Normal, QIcon::On));
}

TEST_F(ArtworkIcon, TellsAPicturesEncodingFromItsBytes)
{
    Add(0, QIcon::Normal, 16, Qt::red, "BMP"); // tagged as a PNG
    EXPECT_EQ(QColor(Qt::red), ColorOf(QIcon::Normal, 16));
}

TEST_F(ArtworkIcon, LeavesOutPicturesThatCannotBeDecoded)
{
    m_group->SetArtworkImage(Picture("no picture"), 0, 0);
    m_group->SetArtworkImage(Picture(""), 2, 0);
    Add(1, QIcon::Normal, 32, Qt::green);
    EXPECT_EQ("32x32 ", Sizes(QIcon::Normal));
}

TEST_F(ArtworkIcon, OfUndecodablePicturesOnlyIsNull)
{
    m_group->SetArtworkImage(Picture("no picture"), 0, 0);
    EXPECT_TRUE(m_group->ToIcon().isNull());
}

struct HiddenCase
{
    const char* name;
    int variant;
    int mode;
};

class ArtworkIconHidden : public ArtworkIcon, public testing::WithParamInterface<HiddenCase>
{
};

TEST_P(ArtworkIconHidden, IsNeverShown)
{
    Add(GetParam().variant, GetParam().mode, 16, Qt::red);
    EXPECT_FALSE(m_group->IsEmpty());
    EXPECT_TRUE(m_group->ToIcon().isNull());
}

constexpr std::array kHidden{HiddenCase{"Key30", 3, 0}, HiddenCase{"Key4", 0, 4}, HiddenCase{"Key24", 2, 4},
                             HiddenCase{"KeyMinus1", 0, -1}};
INSTANTIATE_TEST_SUITE_P(Places, ArtworkIconHidden, testing::ValuesIn(kHidden),
                         [](const auto& test) { return test.param.name; });

} // namespace

} // namespace Vexlor
