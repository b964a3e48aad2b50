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
#include <utility>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr std::array<std::uint8_t, 3> kFlag{'I', 'G', 0};
constexpr std::size_t kHeadSize = kFlag.size() + sizeof(std::uint32_t);
constexpr std::size_t kRecordHeadSize = 2 * sizeof(std::uint32_t);
constexpr int kVariants = 3;
constexpr int kModes = 4;

using Picture = std::shared_ptr<IVXArtworkImage>;

int KeyOf(int variant, int mode) { return WrappingSum(WrappingProduct(variant, 10), mode); }

/// Under one key stands one picture, the first that came; keys ascend.
class Pictures
{
public:
    using Entry = std::pair<int, Picture>;

    Pictures() = default;
    explicit Pictures(std::vector<Entry> entries) : m_entries(std::move(entries))
    {
        if (!std::ranges::is_sorted(m_entries, {}, &Entry::first))
            std::ranges::stable_sort(m_entries, {}, &Entry::first);
        const auto isRepeated = [](const Entry& one, const Entry& next) { return one.first == next.first; };
        m_entries.erase(std::unique(m_entries.begin(), m_entries.end(), isRepeated), m_entries.end());
    }

    const std::vector<Entry>& Entries() const { return m_entries; }

    Picture Find(int key) const
    {
        const auto place = PlaceOf(key);
        return IsAt(place, key) ? place->second : nullptr;
    }
    void Add(int key, Picture picture)
    {
        const auto place = PlaceOf(key);
        if (!IsAt(place, key))
            m_entries.emplace(place, key, std::move(picture));
    }

private:
    using Place = std::vector<Entry>::const_iterator;

    Place PlaceOf(int key) const { return std::ranges::lower_bound(m_entries, key, {}, &Entry::first); }
    bool IsAt(Place place, int key) const { return place != m_entries.end() && place->first == key; }

    std::vector<Entry> m_entries;
};

class VXArtworkImageGroup final : public IVXArtworkImageGroup
{
public:
    void SetArtworkImage(std::shared_ptr<const IVXArtworkImage> image, int variant, int mode) override;
    std::shared_ptr<IVXArtworkImage> GetArtworkImage(int variant, int mode) const override;
    std::shared_ptr<IVXData> ToData() const override;
    void FromData(std::shared_ptr<const IVXData> data) override;
    bool IsEmpty() const override { return m_pictures.Entries().empty(); }
    QIcon ToIcon() const override;

private:
    Pictures m_pictures;
};

void VXArtworkImageGroup::SetArtworkImage(std::shared_ptr<const IVXArtworkImage> image, int variant, int mode)
{
    // What is there stays, deliberately.
    if (image)
        m_pictures.Add(KeyOf(variant, mode),
                       IVXArtworkImage::MallocArtworkImage(image->Bytes(), image->Size(), image->Format()));
}

std::shared_ptr<IVXArtworkImage> VXArtworkImageGroup::GetArtworkImage(int variant, int mode) const
{
    return m_pictures.Find(KeyOf(variant, mode));
}

std::shared_ptr<IVXData> VXArtworkImageGroup::ToData() const
{
    auto data = IVXData::MallocData(kHeadSize);
    auto* const count = std::copy(kFlag.begin(), kFlag.end(), data->Bytes());
    PutLittleEndian(count, static_cast<std::uint32_t>(m_pictures.Entries().size()));
    for (const auto& [key, picture] : m_pictures.Entries())
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
Pictures ReadPictures(VXByteReader reader, std::size_t count)
{
    std::vector<Pictures::Entry> pictures;
    pictures.reserve(std::min(count, reader.Rest() / kRecordHeadSize));
    for (std::size_t i = 0; i < count; ++i)
    {
        const auto key = reader.Next<std::uint32_t>();
        const auto size = reader.Next<std::uint32_t>();
        const auto bytes = size ? reader.Bytes(*size) : std::nullopt;
        if (!bytes)
            break;
        auto data = IVXData::MallocData(*size);
        std::ranges::copy(*bytes, data->Bytes());
        auto picture = IVXArtworkImage::MallocArtworkImage();
        picture->FromData(data);
        pictures.emplace_back(static_cast<int>(*key), std::move(picture));
    }
    return Pictures(std::move(pictures));
}

void VXArtworkImageGroup::FromData(std::shared_ptr<const IVXData> data)
{
    m_pictures = {};
    if (!data)
        return;
    VXByteReader reader({data->Bytes(), data->Size()});
    const auto flag = reader.Bytes(kFlag.size());
    if (!flag || !std::ranges::equal(*flag, kFlag))
    {
        IVXLogConfig::Printf("VXArtworkImageGroup->FromData->Error:Data flag Error");
        return;
    }
    const auto count = static_cast<int>(reader.Next<std::uint32_t>().value_or(0));
    m_pictures = ReadPictures(reader, static_cast<std::size_t>(std::max(count, 0)));
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
