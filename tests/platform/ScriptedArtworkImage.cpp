#include "IVXArtworkImage.h"

#include "IVXData.h"

#include <array>
#include <cstring>
#include <vector>

namespace Vexlor
{

namespace
{

// Serialised form: these four bytes, the format as a 32-bit number of this machine, the picture's bytes.
constexpr std::array<char, 4> kMark{'I', 'M', 'G', ':'};
constexpr std::uint32_t kHeadSize = kMark.size() + sizeof(std::int32_t);

class VXArtworkImage final : public IVXArtworkImage
{
public:
    VXArtworkImage(std::vector<std::uint8_t> bytes, ArtworkImageFormat format)
        : m_bytes(std::move(bytes)), m_format(format)
    {
    }

    const std::uint8_t* Bytes() const override { return m_bytes.data(); }
    std::uint32_t Size() const override { return static_cast<std::uint32_t>(m_bytes.size()); }
    ArtworkImageFormat Format() const override { return static_cast<ArtworkImageFormat>(m_format); }
    std::shared_ptr<IVXData> ToData() const override;
    void FromData(const std::shared_ptr<const IVXData>& data) override;

private:
    std::vector<std::uint8_t> m_bytes;
    std::int32_t m_format; // an int, since numbers outside the enumeration are kept
};

std::shared_ptr<IVXData> VXArtworkImage::ToData() const
{
    auto data = IVXData::MallocData(0);
    data->AppendBytes(kMark.data(), kMark.size());
    data->AppendBytes(&m_format, sizeof m_format);
    data->AppendBytes(m_bytes.data(), Size());
    return data;
}

void VXArtworkImage::FromData(const std::shared_ptr<const IVXData>& data)
{
    m_bytes.clear();
    m_format = ArtworkImageFormatUnknown;
    if (!data || data->Size() < kHeadSize || std::memcmp(data->Bytes(), kMark.data(), kMark.size()) != 0)
        return;
    std::memcpy(&m_format, data->Bytes() + kMark.size(), sizeof m_format);
    m_bytes.assign(data->Bytes() + kHeadSize, data->Bytes() + data->Size());
}

} // namespace

std::shared_ptr<IVXArtworkImage> IVXArtworkImage::MallocArtworkImage()
{
    return MallocArtworkImage(nullptr, 0, ArtworkImageFormatUnknown);
}

std::shared_ptr<IVXArtworkImage>
IVXArtworkImage::MallocArtworkImage(const std::uint8_t* bytes, std::uint32_t size, ArtworkImageFormat format)
{
    return std::make_shared<VXArtworkImage>(std::vector<std::uint8_t>(bytes, bytes + size), format);
}

} // namespace Vexlor
