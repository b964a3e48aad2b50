#include "artwork/VXArtworkTable.h"

#include "artwork/VXLittleEndian.h"

#include "IVXLogConfig.h"

#include <algorithm>
#include <array>

namespace Vexlor
{

namespace
{

constexpr std::array<std::uint8_t, 11> kMagic{'Z', 'Q', 'A', 'W', '2', '0', '2', '3', 'C', 'C', 0};
constexpr std::size_t kCountSize = sizeof(std::uint32_t);
constexpr std::size_t kEntrySize = 32;
// Entries are read in pieces of a whole table, so that a count that lies costs no more memory than the file
// has bytes.
constexpr std::size_t kEntriesARead = kMostArtworkEntries;

VXByteReader ReaderOf(const IVXData& data) { return VXByteReader({data.Bytes(), data.Size()}); }

bool ReadMagic(IVXStorage& storage)
{
    const auto data = storage.Read(kMagic.size());
    if (!data || data->Empty())
    {
        IVXLogConfig::Printf("VXArtworkImageMgr->setupInfoTable Info:no data\n");
        return false;
    }
    const auto bytes = ReaderOf(*data).Bytes(kMagic.size());
    if (bytes && std::ranges::equal(*bytes, kMagic))
        return true;
    IVXLogConfig::Printf("VXArtworkImageMgr->setupInfoTable Error:The data flag error\n");
    return false;
}

std::size_t ReadCount(IVXStorage& storage)
{
    const auto data = storage.Read(kCountSize);
    const auto count = data ? ReaderOf(*data).Next<std::uint32_t>() : std::nullopt;
    return count && static_cast<int>(*count) > 0 ? *count : 0;
}

VXArtworkEntry ReadEntry(std::span<const std::uint8_t> record)
{
    VXByteReader reader(record);
    VXArtworkEntry entry;
    entry.faceID = static_cast<int>(reader.Next<std::uint32_t>().value_or(0));
    reader.Next<std::uint32_t>(); // reserved
    entry.offset = reader.Next<std::uint64_t>().value_or(0);
    entry.size = reader.Next<std::uint32_t>().value_or(0);
    return entry;
}

void PutEntry(std::uint8_t* to, const VXArtworkEntry& entry)
{
    to = PutLittleEndian(to, static_cast<std::uint32_t>(entry.faceID));
    to = PutLittleEndian(to, std::uint32_t{0});
    to = PutLittleEndian(to, entry.offset);
    PutLittleEndian(to, entry.size);
}

} // namespace

VXArtworkTable ReadArtworkTable(IVXStorage& storage, bool& readable)
{
    readable = ReadMagic(storage);
    VXArtworkTable table;
    for (std::size_t left = readable ? ReadCount(storage) : 0; left > 0;)
    {
        const auto wanted = std::min(left, kEntriesARead);
        const auto data = storage.Read(static_cast<std::uint32_t>(wanted * kEntrySize));
        if (!data)
            break;
        table.reserve(table.size() + data->Size() / kEntrySize);
        auto reader = ReaderOf(*data);
        while (const auto record = reader.Bytes(kEntrySize))
            table.push_back(ReadEntry(*record));
        if (data->Size() < wanted * kEntrySize)
            break;
        left -= wanted;
    }
    return table;
}

std::shared_ptr<IVXData> ArtworkHead(const VXArtworkTable& table)
{
    const auto size = kMagic.size() + kCountSize + table.size() * kEntrySize;
    auto head = IVXData::MallocData(static_cast<std::uint32_t>(size));
    auto* to = std::copy(kMagic.begin(), kMagic.end(), head->Bytes());
    to = PutLittleEndian(to, static_cast<std::uint32_t>(table.size()));
    for (const auto& entry : table)
    {
        PutEntry(to, entry);
        to += kEntrySize;
    }
    return head;
}

} // namespace Vexlor
