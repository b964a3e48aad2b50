#include "IVXArtworkImage.h"

#include "IVXData.h"

#include <array>
#include <cstring>
#include <utility>

namespace Vexlor
{

namespace
{

// A serialised picture: four bytes that tell what it is, the format's number (32 bits, lowest byte first),
// the encoded bytes up to the end.
constexpr std::array<std::uint8_t, 4> kTag{'V', 'X', 'P', 'I'};
constexpr std::uint32_t kHeaderSize = 8;

std::shared_ptr<IVXData> Serialised(const std::uint8_t* bytes, std::uint32_t size, std::uint32_t format)
{
    std::array<std::uint8_t, kHeaderSize> header{};
    std::memcpy(header.data(), kTag.data(), kTag.size());
    for (std::size_t i = 0; i < 4; ++i)
        header.at(kTag.size() + i) = static_cast<std::uint8_t>(format >> (8 * i));
    auto data = IVXData::MallocData(0);
    data->AppendBytes(header.data(), kHeaderSize);
    data->AppendBytes(bytes, bytes ? size : 0);
    return data;
}

std::uint32_t FormatNumber(const std::uint8_t* header)
{
    std::uint32_t format = 0;
    for (std::size_t i = 0; i < 4; ++i)
        format |= std::uint32_t{header[kTag.size() + i]} << (8 * i);
    return format;
}

bool IsSerialised(const IVXData* data)
{
    return data && data->Size() >= kHeaderSize && std::memcmp(data->Bytes(), kTag.data(), kTag.size()) == 0;
}

// Keeps what it was read from: of the hundreds of pictures that a program reads, none is copied.
class VXArtworkImage final : public IVXArtworkImage
{
public:
    explicit VXArtworkImage(std::shared_ptr<const IVXData> data) : m_data(std::move(data)) {}

    const std::uint8_t* Bytes() const override
    {
        return Size() > 0 ? m_data->Bytes() + kHeaderSize : nullptr;
    }
    std::uint32_t Size() const override { return m_data ? m_data->Size() - kHeaderSize : 0; }
    ArtworkImageFormat Format() const override
    {
        return m_data ? static_cast<ArtworkImageFormat>(FormatNumber(m_data->Bytes()))
                      : ArtworkImageFormatUnknown;
    }
    std::shared_ptr<IVXData> ToData() const override
    {
        return Serialised(Bytes(), Size(), static_cast<std::uint32_t>(Format()));
    }
    void FromData(const std::shared_ptr<const IVXData>& data) override
    {
        m_data = IsSerialised(data.get()) ? data : nullptr;
    }

private:
    std::shared_ptr<const IVXData> m_data; // serialised; empty for a picture without bytes
};

} // namespace

std::shared_ptr<IVXArtworkImage> IVXArtworkImage::MallocArtworkImage()
{
    return std::make_shared<VXArtworkImage>(nullptr);
}

std::shared_ptr<IVXArtworkImage>
IVXArtworkImage::MallocArtworkImage(const std::uint8_t* bytes, std::uint32_t size, ArtworkImageFormat format)
{
    return std::make_shared<VXArtworkImage>(Serialised(bytes, size, static_cast<std::uint32_t>(format)));
}

} // namespace Vexlor
