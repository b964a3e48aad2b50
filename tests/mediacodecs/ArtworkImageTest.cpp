#include "IVXArtworkImage.h"
#include "IVXData.h"

#include <gmock/gmock.h>

#include <array>
#include <vector>

namespace Vexlor
{

namespace
{

using testing::ElementsAre;
using Bytes = std::vector<std::uint8_t>;

constexpr std::array<std::uint8_t, 3> kPixels{1, 0, 255};

std::shared_ptr<IVXArtworkImage> Picture(IVXArtworkImage::ArtworkImageFormat format)
{
    return IVXArtworkImage::MallocArtworkImage(kPixels.data(), kPixels.size(), format);
}

Bytes BytesOf(const IVXArtworkImage& image) { return {image.Bytes(), image.Bytes() + image.Size()}; }
Bytes BytesOf(const IVXData& data) { return {data.Bytes(), data.Bytes() + data.Size()}; }

std::shared_ptr<IVXData> Data(const Bytes& bytes)
{
    auto data = IVXData::MallocData(0);
    data->AppendBytes(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    return data;
}

TEST(ArtworkImage, StartsWithoutBytes)
{
    const auto image = IVXArtworkImage::MallocArtworkImage();
    EXPECT_EQ(0U, image->Size());
    EXPECT_EQ(IVXArtworkImage::ArtworkImageFormatUnknown, image->Format());
}

TEST(ArtworkImage, HoldsACopyOfItsBytes)
{
    Bytes pixels{1, 2};
    const auto image =
        IVXArtworkImage::MallocArtworkImage(pixels.data(), 2, IVXArtworkImage::ArtworkImageFormatJPEG);
    pixels = {9, 9};
    EXPECT_THAT(BytesOf(*image), ElementsAre(1, 2));
    EXPECT_EQ(IVXArtworkImage::ArtworkImageFormatJPEG, image->Format());
}

TEST(ArtworkImage, OfNoBytesAtAllIsWithoutBytes)
{
    EXPECT_EQ(
        0U, IVXArtworkImage::MallocArtworkImage(nullptr, 5, IVXArtworkImage::ArtworkImageFormatPNG)->Size());
}

TEST(ArtworkImage, SerialisesAsTagFormatAndBytes)
{
    const auto data = Picture(IVXArtworkImage::ArtworkImageFormatJPEG)->ToData();
    EXPECT_THAT(BytesOf(*data), ElementsAre('V', 'X', 'P', 'I', 2, 0, 0, 0, 1, 0, 255));
}

TEST(ArtworkImage, ComesBackExactly)
{
    const auto image = IVXArtworkImage::MallocArtworkImage();
    image->FromData(Picture(IVXArtworkImage::ArtworkImageFormatPNG)->ToData());
    EXPECT_THAT(BytesOf(*image), ElementsAre(1, 0, 255));
    EXPECT_EQ(IVXArtworkImage::ArtworkImageFormatPNG, image->Format());
}

TEST(ArtworkImage, KeepsFormatNumbersThatItDoesNotKnow)
{
    for (const int number : {-1, 77, 0x12345678})
    {
        const auto image = IVXArtworkImage::MallocArtworkImage();
        image->FromData(Picture(static_cast<IVXArtworkImage::ArtworkImageFormat>(number))->ToData());
        EXPECT_EQ(number, static_cast<int>(image->Format()));
    }
}

TEST(ArtworkImage, WithoutBytesComesBackWithoutBytes)
{
    const auto image = Picture(IVXArtworkImage::ArtworkImageFormatPNG);
    image->FromData(IVXArtworkImage::MallocArtworkImage()->ToData());
    EXPECT_EQ(0U, image->Size());
    EXPECT_EQ(IVXArtworkImage::ArtworkImageFormatUnknown, image->Format());
}

TEST(ArtworkImage, IsEmptyAfterDataThatIsNotItsOwn)
{
    for (const auto& bytes : {Bytes{}, Bytes{'V', 'X', 'P', 'I'}, Bytes{'V', 'X', 'P', 'I', 1, 0, 0},
                              Bytes{'V', 'X', 'P', 'J', 1, 0, 0, 0, 5}})
    {
        const auto image = Picture(IVXArtworkImage::ArtworkImageFormatPNG);
        image->FromData(Data(bytes));
        EXPECT_EQ(0U, image->Size());
        EXPECT_EQ(IVXArtworkImage::ArtworkImageFormatUnknown, image->Format());
    }
}

TEST(ArtworkImage, IsEmptyAfterAnEmptyHandle)
{
    const auto image = Picture(IVXArtworkImage::ArtworkImageFormatPNG);
    image->FromData(nullptr);
    EXPECT_EQ(0U, image->Size());
}

} // namespace

} // namespace Vexlor
