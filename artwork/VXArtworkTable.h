#pragma once

#include "IVXData.h"
#include "IVXStorage.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace Vexlor
{

/// Where the artwork file holds one group.
struct VXArtworkEntry
{
    int faceID = 0;
    std::uint64_t offset = 0;
    std::uint32_t size = 0;
};

using VXArtworkTable = std::vector<VXArtworkEntry>;

/// The bytes in front of the first group: magic, entry count, entries of 32 bytes, unused ones.
inline constexpr std::uint32_t kArtworkHeadSize = 51200;
/// What the head has room for: 15 + 32 x 1,599 = 51,183 bytes.
inline constexpr std::size_t kMostArtworkEntries = 1599;

/// Reads the table of an open file, whose position it moves, and says in readable whether the file is one of
/// ours. What cannot be read is logged or left out; memory stays in proportion to the file.
VXArtworkTable ReadArtworkTable(IVXStorage& storage, bool& readable);

/// Magic, count and entries as they stand at the start of the file.
std::shared_ptr<IVXData> ArtworkHead(const VXArtworkTable& table);

} // namespace Vexlor
