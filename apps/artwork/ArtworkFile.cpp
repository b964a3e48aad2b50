#include "ArtworkFile.h"

#include "ArtworkMemory.h"
#include "apps/host/Failure.h"

#include "artwork/VXLittleEndian.h"
#include "runtime/foundation/VXLogSink.h"

#include "IVXError.h"

namespace Vexlor::Tool
{

namespace
{

constexpr std::uint64_t kCountOffset = 11;

/// Keeps the library's log lines back: what is wrong is told in full by a Failure.
class Silence final
{
public:
    Silence() : m_before(SetLogSink([](IVXLogConfig::LogLevel, std::string_view) {})) {}
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    ~Silence() { SetLogSink(m_before); }

private:
    VXLogSink m_before;
};

std::uint32_t StatedGroups(IVXStorage& storage)
{
    storage.Seek(kCountOffset);
    const auto data = storage.Read(sizeof(std::uint32_t));
    return VXByteReader({data->Bytes(), data->Size()}).Next<std::uint32_t>().value_or(0);
}

ArtworkFile Open(const std::string& name, const std::shared_ptr<IVXStorage>& storage)
{
    if (!storage->IsOpen())
        throw Failure(storage->Seek(0)->Message());
    ArtworkFile file{.name = name, .storage = storage, .size = storage->Size()};
    if (file.size == 0)
        return file;
    const Silence silence;
    bool isReadable = false;
    file.table = ReadArtworkTable(*storage, isReadable);
    if (!isReadable)
        throw Failure(name + ": is no artwork file");
    file.statedGroups = StatedGroups(*storage);
    return file;
}

} // namespace

ArtworkFile OpenArtwork(const std::string& path)
{
    return Open(path, IVXStorage::MallocStorage(path, IVXStorage::StorageModeRead));
}

ArtworkFile OpenArtwork(const std::string& name, std::span<const std::uint8_t> bytes)
{
    return Open(name, MemoryStorage(bytes));
}

bool IsWhole(const ArtworkFile& file, const VXArtworkEntry& entry)
{
    return entry.offset <= file.size && entry.size <= file.size - entry.offset;
}

std::shared_ptr<IVXData> BlobOf(const ArtworkFile& file, const VXArtworkEntry& entry)
{
    if (!file.storage->Seek(entry.offset)->Succeed())
        return IVXData::MallocData(0);
    return file.storage->Read(entry.size);
}

} // namespace Vexlor::Tool
