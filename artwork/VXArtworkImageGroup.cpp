#include "IVXArtworkImageGroup.h"

#include "artwork/VXLittleEndian.h"
#include "presets/VXWrapping.h"

#include "IVXArtworkImage.h"
#include "IVXData.h"
#include "IVXLogConfig.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>

#include <algorithm>
#include <array>
#include <map>

namespace Vexlor
{

namespace
{

constexpr std::array<std::uint8_t, 3> kFlag{'I', 'G', 0};
constexpr std::size_t kHeadSize = kFlag.size() + sizeof(std::uint32_t);
constexpr std::size_t kRecordHeadSize = 2 * sizeof(std::uint32_t);
constexpr int kVariants = 3;
constexpr int kModes = 4;

using Pictures = std::map<int, std::shared_ptr<IVXArtworkImage>>;

int KeyOf(int variant, int mode) { return WrappingSum(WrappingProduct(variant, 10), mode); }

class VXArtworkImageGroup final : public IVXArtworkImageGroup
{
public:
    void SetArtworkImage(std::shared_ptr<const IVXArtworkImage> image, int variant, int mode) override;
    std::shared_ptr<IVXArtworkImage> GetArtworkImage(int variant, int mode) const override;
    std::shared_ptr<IVXData> ToData() const override;
    void FromData(std::shared_ptr<const IVXData> data) override;
    bool IsEmpty() const override { return m_pictures.empty(); }
    QIcon ToIcon() const override;

private:
    Pictures m_pictures;
};

void VXArtworkImageGroup::SetArtworkImage(std::shared_ptr<const IVXArtworkImage> image, int variant, int mode)
{
    // What is there stays, deliberately: emplace does not replace.
    if (image)
        m_pictures.emplace(KeyOf(variant, mode), IVXArtworkImage::MallocArtworkImage(
                                                     image->Bytes(), image->Size(), image->Format()));
}

std::shared_ptr<IVXArtworkImage> VXArtworkImageGroup::GetArtworkImage(int variant, int mode) const
{
    const auto found = m_pictures.find(KeyOf(variant, mode));
    return found != m_pictures.end() ? found->second : nullptr;
}

std::shared_ptr<IVXData> VXArtworkImageGroup::ToData() const
{
    auto data = IVXData::MallocData(kHeadSize);
    auto* const count = std::copy(kFlag.begin(), kFlag.end(), data->Bytes());
    PutLittleEndian(count, static_cast<std::uint32_t>(m_pictures.size()));
    for (const auto& [key, picture] : m_pictures)
    {
        const auto bytes = picture->ToData();
        std::array<std::uint8_t, kRecordHeadSize> head{};
        PutLittleEndian(PutLittleEndian(head.data(), static_cast<std::uint32_t>(key)), bytes->Size());
        data->AppendBytes(head.data(), kRecordHeadSize);
        data->AppendData(bytes);
    }
    return data;
}

/// The pictures of a blob behind its head, as many as were counted and lie whole inside it.
Pictures ReadPictures(VXByteReader reader, int count)
{
    Pictures pictures;
    for (int i = 0; i < count; ++i)
    {
        const auto key = reader.Next<std::uint32_t>();
        const auto size = reader.Next<std::uint32_t>();
        const auto bytes = size ? reader.Bytes(*size) : std::nullopt;
        if (!bytes)
            break;
        auto data = IVXData::MallocData(*size);
        std::copy(bytes->begin(), bytes->end(), data->Bytes());
        auto picture = IVXArtworkImage::MallocArtworkImage();
        picture->FromData(data);
        pictures.emplace(static_cast<int>(*key), std::move(picture));
    }
    return pictures;
}

void VXArtworkImageGroup::FromData(std::shared_ptr<const IVXData> data)
{
    m_pictures.clear();
    if (!data)
        return;
    VXByteReader reader({data->Bytes(), data->Size()});
    const auto flag = reader.Bytes(kFlag.size());
    if (!flag || !std::ranges::equal(*flag, kFlag))
    {
        IVXLogConfig::Printf("VXArtworkImageGroup->FromData->Error:Data flag Error");
        return;
    }
    if (const auto count = reader.Next<std::uint32_t>())
        m_pictures = ReadPictures(reader, static_cast<int>(*count));
}

/// The picture decoded; a null image when there is none or it cannot be decoded.
QImage Decoded(const std::shared_ptr<const IVXArtworkImage>& picture)
{
    return picture ? QImage::fromData(QByteArrayView(picture->Bytes(), picture->Size())) : QImage();
}

void AddPixmap(QIcon& icon, const QImage& image, QIcon::Mode mode)
{
    // Even an empty pixmap needs an application; a group without pictures to show does not.
    if (image.isNull())
        return;
    const auto pixmap = QPixmap::fromImage(image);
    if (!pixmap.isNull())
        icon.addPixmap(pixmap, mode, QIcon::Off);
}

QIcon VXArtworkImageGroup::ToIcon() const
{
    QIcon icon;
    for (int mode = 0; mode < kModes; ++mode)
        for (int variant = 0; variant < kVariants; ++variant)
            AddPixmap(icon, Decoded(GetArtworkImage(variant, mode)), static_cast<QIcon::Mode>(mode));
    return icon;
}

} // namespace

std::shared_ptr<IVXArtworkImageGroup> IVXArtworkImageGroup::MallocArtworkImageGroup()
{
    return std::make_shared<VXArtworkImageGroup>();
}

} // namespace Vexlor
