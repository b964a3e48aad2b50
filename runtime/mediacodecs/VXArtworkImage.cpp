#include "IVXArtworkImage.h"

#include "IVXData.h"

#include <array>
#include <cstring>
#include <vector>

namespace Vexlor
{

namespace
{

// A serialised picture: four bytes that tell what it is, the format's number (32 bits, lowest byte first),
// the encoded bytes up to the end.
constexpr std::array<std::uint8_t, 4> kTag{'V', 'X', 'P', 'I'};
constexpr std::uint32_t kHeaderSize = 8;

std::array<std::uint8_t, kHeaderSize> Header(std::uint32_t format)
{
    std::array<std::uint8_t, kHeaderSize> header{};
    std::memcpy(header.data(), kTag.data(), kTag.size());
    for (std::size_t i = 0; i < 4; ++i)
        header.at(kTag.size() + i) = static_cast<std::uint8_t>(format >> (8 * i));
    return header;
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

class VXArtworkImage final : public IVXArtworkImage
{
public:
    VXArtworkImage() = default;
    VXArtworkImage(const std::uint8_t* bytes, std::uint32_t size, ArtworkImageFormat format)
        : m_bytes(bytes, bytes ? bytes + size : bytes), m_format(format)
    {
    }

    const std::uint8_t* Bytes() const override { return m_bytes.data(); }
    std::uint32_t Size() const override { return static_cast<std::uint32_t>(m_bytes.size()); }
    ArtworkImageFormat Format() const override { return m_format; }
    std::shared_ptr<IVXData> ToData() const override;
    void FromData(const std::shared_ptr<const IVXData>& data) override;

private:
    std::vector<std::uint8_t> m_bytes;
    ArtworkImageFormat m_format = ArtworkImageFormatUnknown;
};

std::shared_ptr<IVXData> VXArtworkImage::ToData() const
{
    auto data = IVXData::MallocData(0);
    const auto header = Header(static_cast<std::uint32_t>(m_format));
    data->AppendBytes(header.data(), kHeaderSize);
    data->AppendBytes(m_bytes.data(), Size());
    return data;
}

void VXArtworkImage::FromData(const std::shared_ptr<const IVXData>& data)
{
    m_bytes.clear();
    m_format = ArtworkImageFormatUnknown;
    if (!IsSerialised(data.get()))
        return;
    const auto* bytes = data->Bytes();
    m_format = static_cast<ArtworkImageFormat>(FormatNumber(bytes));
    m_bytes.assign(bytes + kHeaderSize, bytes + data->Size());
}

} // namespace

std::shared_ptr<IVXArtworkImage> IVXArtworkImage::MallocArtworkImage()
{
    return std::make_shared<VXArtworkImage>();
}

std::shared_ptr<IVXArtworkImage>
IVXArtworkImage::MallocArtworkImage(const std::uint8_t* bytes, std::uint32_t size, ArtworkImageFormat format)
{
    return std::make_shared<VXArtworkImage>(bytes, size, format);
}

} // namespace Vexlor
