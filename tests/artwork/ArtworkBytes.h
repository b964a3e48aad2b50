#pragma once

#include "IVXArtworkImage.h"
#include "IVXArtworkImageGroup.h"
#include "IVXData.h"

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Vexlor
{

// Artwork files and their groups written by hand, byte for byte, beside the library's own code.

using Bytes = std::vector<std::uint8_t>;

inline constexpr std::size_t kHeadArea = 51200;
inline constexpr std::size_t kTableAt = 15;
inline constexpr std::size_t kEntryWidth = 32;
inline constexpr int kFullTable = 1599;

Bytes BytesOf(std::string_view text);
Bytes BytesOf(const IVXData& data);
std::shared_ptr<IVXData> DataOf(const Bytes& bytes);
/// All parts, one behind the other.
Bytes Joined(std::initializer_list<Bytes> parts);
/// The bytes from begin up to end.
Bytes Slice(const Bytes& bytes, std::size_t begin, std::size_t end);

/// The number, lowest byte first.
template <std::integral Number>
Bytes Little(Number number)
{
    Bytes bytes;
    for (std::size_t i = 0; i < sizeof(Number); ++i)
        bytes.push_back(static_cast<std::uint8_t>(static_cast<std::uint64_t>(number) >> (8 * i)));
    return bytes;
}

/// A PNG by its tag; its bytes are the text.
std::shared_ptr<IVXArtworkImage> Picture(std::string_view text);
/// The picture as the codec library stores it, whatever that form is.
Bytes StoredPicture(std::string_view text);
std::string TextOf(const Bytes& bytes);
std::string TextOf(const IVXArtworkImage& picture);

/// A group's stored form: the pictures by their keys, in the order given.
Bytes BlobOf(const std::vector<std::pair<int, Bytes>>& pictures);
/// The stored form of a group of one picture, normal and of the first variant.
Bytes BlobOf(std::string_view picture);
/// A group of that one picture.
std::shared_ptr<IVXArtworkImageGroup> GroupOf(std::string_view picture);
/// What is shown of a group: "variant.mode=text" a picture; "none" for an empty handle.
std::string TextOf(const std::shared_ptr<const IVXArtworkImageGroup>& group);

/// One entry of the table.
Bytes Entry(int faceID, std::uint64_t offset, std::uint32_t size);
/// Magic, count and entries, and nothing behind them.
Bytes Head(int count, std::initializer_list<Bytes> entries);
/// A whole file of those groups, by face identifier.
Bytes FileOf(const std::vector<std::pair<int, Bytes>>& groups);
/// A whole file of that many groups of one picture each: "picture 0" under identifier 1 << 24, and so on.
Bytes FileOfGroups(int count);
int FaceIDOfGroup(int position);
std::string PictureOfGroup(int position);

} // namespace Vexlor
