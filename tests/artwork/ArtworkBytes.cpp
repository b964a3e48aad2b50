#include "tests/artwork/ArtworkBytes.h"

#include <algorithm>

namespace Vexlor
{

Bytes BytesOf(std::string_view text) { return {text.begin(), text.end()}; }

Bytes BytesOf(const IVXData& data) { return {data.Bytes(), data.Bytes() + data.Size()}; }

std::shared_ptr<IVXData> DataOf(const Bytes& bytes)
{
    auto data = IVXData::MallocData(static_cast<std::uint32_t>(bytes.size()));
    std::ranges::copy(bytes, data->Bytes());
    return data;
}

Bytes Joined(std::initializer_list<Bytes> parts)
{
    Bytes all;
    for (const auto& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

Bytes Slice(const Bytes& bytes, std::size_t begin, std::size_t end)
{
    const auto last = std::min(end, bytes.size());
    const auto first = std::min(begin, last);
    return {bytes.data() + first, bytes.data() + last};
}

std::shared_ptr<IVXArtworkImage> Picture(std::string_view text)
{
    const auto bytes = BytesOf(text);
    return IVXArtworkImage::MallocArtworkImage(bytes.data(), static_cast<std::uint32_t>(bytes.size()),
                                               IVXArtworkImage::ArtworkImageFormatPNG);
}

Bytes StoredPicture(std::string_view text) { return BytesOf(*Picture(text)->ToData()); }

std::string TextOf(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }

std::string TextOf(const IVXArtworkImage& picture)
{
    return {picture.Bytes(), picture.Bytes() + picture.Size()};
}

Bytes BlobOf(const std::vector<std::pair<int, Bytes>>& pictures)
{
    auto blob = Joined({{'I', 'G', 0}, Little(static_cast<std::int32_t>(pictures.size()))});
    for (const auto& [key, bytes] : pictures)
        blob = Joined({blob, Little(key), Little(static_cast<std::uint32_t>(bytes.size())), bytes});
    return blob;
}

Bytes BlobOf(std::string_view picture) { return BlobOf({{0, StoredPicture(picture)}}); }

std::shared_ptr<IVXArtworkImageGroup> GroupOf(std::string_view picture)
{
    auto group = IVXArtworkImageGroup::MallocArtworkImageGroup();
    group->SetArtworkImage(Picture(picture), 0, 0);
    return group;
}

std::string TextOf(const std::shared_ptr<const IVXArtworkImageGroup>& group)
{
    if (!group)
        return "none";
    std::string text;
    for (int variant = 0; variant < 3; ++variant)
        for (int mode = 0; mode < 4; ++mode)
            if (const auto picture = group->GetArtworkImage(variant, mode))
                text += (text.empty() ? "" : " ") + std::to_string(variant) + "." + std::to_string(mode) +
                        "=" + TextOf(*picture);
    return text;
}

Bytes Entry(int faceID, std::uint64_t offset, std::uint32_t size)
{
    return Joined({Little(faceID), Bytes(4), Little(offset), Little(size), Bytes(12)});
}

Bytes Head(int count, std::initializer_list<Bytes> entries)
{
    return Joined({BytesOf("ZQAW2023CC"), {0}, Little(count), Joined(entries)});
}

Bytes FileOf(const std::vector<std::pair<int, Bytes>>& groups)
{
    Bytes file = Head(static_cast<int>(groups.size()), {});
    std::uint64_t offset = kHeadArea;
    for (const auto& [faceID, blob] : groups)
    {
        const auto entry = Entry(faceID, offset, static_cast<std::uint32_t>(blob.size()));
        file.insert(file.end(), entry.begin(), entry.end());
        offset += blob.size();
    }
    file.resize(kHeadArea);
    for (const auto& [faceID, blob] : groups)
        file.insert(file.end(), blob.begin(), blob.end());
    return file;
}

int FaceIDOfGroup(int position) { return (position + 1) << 24; }

std::string PictureOfGroup(int position) { return "picture " + std::to_string(position); }

Bytes FileOfGroups(int count)
{
    std::vector<std::pair<int, Bytes>> groups;
    groups.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        groups.emplace_back(FaceIDOfGroup(i), BlobOf(PictureOfGroup(i)));
    return FileOf(groups);
}

} // namespace Vexlor
