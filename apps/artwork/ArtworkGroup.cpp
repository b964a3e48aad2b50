#include "ArtworkGroup.h"

#include "artwork/VXLittleEndian.h"

#include "IVXArtworkImage.h"
#include "IVXData.h"

#include <algorithm>
#include <array>

namespace Vexlor::Tool
{

namespace
{

constexpr std::array<std::uint8_t, 3> kFlag{'I', 'G', 0};
constexpr std::array<std::string_view, kArtworkModes> kModes{"normal", "disabled", "active", "selected"};

std::shared_ptr<IVXArtworkImage> ImageOf(std::span<const std::uint8_t> bytes)
{
    const auto data = IVXData::MallocData(0);
    data->AppendBytes(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    auto image = IVXArtworkImage::MallocArtworkImage();
    image->FromData(data);
    return image;
}

} // namespace

ArtworkGroup ReadGroup(const IVXData& blob)
{
    VXByteReader reader({blob.Bytes(), blob.Size()});
    const auto flag = reader.Bytes(kFlag.size());
    ArtworkGroup group{.isGroup = flag && std::ranges::equal(*flag, kFlag)};
    if (!group.isGroup)
        return group;
    group.statedPictures = reader.Next<std::uint32_t>().value_or(0);
    for (std::uint32_t i = 0; i < group.statedPictures; ++i)
    {
        const auto key = reader.Next<std::uint32_t>();
        const auto size = reader.Next<std::uint32_t>();
        const auto bytes = size ? reader.Bytes(*size) : std::nullopt;
        if (!bytes)
            break;
        group.pictures.push_back({static_cast<int>(*key), ImageOf(*bytes)});
    }
    return group;
}

std::string_view ModeName(int mode)
{
    return mode >= 0 && mode < kArtworkModes ? kModes.at(static_cast<std::size_t>(mode)) : std::string_view();
}

int ModeOfName(std::string_view name)
{
    const auto found = std::ranges::find(kModes, name);
    return found != kModes.end() ? static_cast<int>(found - kModes.begin()) : -1;
}

bool IsShown(int key) { return key >= 0 && key / 10 < kArtworkVariants && key % 10 < kArtworkModes; }

std::string KeyText(int key)
{
    if (!IsShown(key))
        return "key-" + std::to_string(key);
    return std::to_string(key / 10) + '-' + std::string(ModeName(key % 10));
}

} // namespace Vexlor::Tool
