#pragma once

#include "artwork/VXArtworkTable.h"

#include "IVXStorage.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace Vexlor::Tool
{

/// An artwork file as it lies on the disk. The library hands out its groups; this also tells where they are.
struct ArtworkFile
{
    std::string name; ///< how messages begin
    std::shared_ptr<IVXStorage> storage;
    std::uint64_t size = 0;
    std::uint32_t statedGroups = 0; ///< what the head says; the table has as many as really stand there
    VXArtworkTable table = {};
};

/// Opens the file of that path. An empty file is one without groups. Throws Failure.
ArtworkFile OpenArtwork(const std::string& path);
/// The same of a file that lies in memory, which must outlive it.
ArtworkFile OpenArtwork(const std::string& name, std::span<const std::uint8_t> bytes);

/// True when all bytes of the group lie inside the file.
bool IsWhole(const ArtworkFile& file, const VXArtworkEntry& entry);
/// The group's bytes, as far as they lie inside the file.
std::shared_ptr<IVXData> BlobOf(const ArtworkFile& file, const VXArtworkEntry& entry);

} // namespace Vexlor::Tool
