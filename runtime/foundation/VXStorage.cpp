#include "IVXStorage.h"

#include "runtime/foundation/VXData.h"
#include "runtime/foundation/VXError.h"
#include "runtime/foundation/VXFile.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace Vexlor
{

namespace
{

constexpr std::uint64_t kMostOffset = std::numeric_limits<std::int64_t>::max();

std::optional<FileAccess> AccessOf(IVXStorage::StorageMode mode)
{
    switch (mode)
    {
    case IVXStorage::StorageModeRead:
        return FileAccess::Read;
    case IVXStorage::StorageModeWrite:
        return FileAccess::Write;
    case IVXStorage::StorageModeReadWrite:
        return FileAccess::ReadWrite;
    }
    return {};
}

class VXStorage final : public IVXStorage
{
public:
    VXStorage(const std::string& path, StorageMode mode) : m_path(path), m_isWritable(mode != StorageModeRead)
    {
        const auto access = AccessOf(mode);
        const auto fault =
            access ? m_file.Open(PathOf(path), *access) : std::make_error_code(std::errc::invalid_argument);
        m_reason = fault ? fault.message() : std::string();
    }

    bool IsOpen() const override { return m_file.IsOpen(); }
    std::shared_ptr<IVXData> Read(std::uint32_t size) override;
    std::shared_ptr<IVXError> WriteData(const std::shared_ptr<const IVXData>& data) override;
    std::shared_ptr<IVXError> WriteBytes(const void* bytes, std::uint32_t size) override;
    std::shared_ptr<IVXError> Seek(std::uint64_t offset) override;
    void SeekToEnd() override { m_position = Size(); }
    std::uint64_t Size() const override { return m_file.IsOpen() ? m_file.Size() : 0; }
    std::uint64_t Position() const override { return m_position; }

private:
    std::shared_ptr<IVXError> Fail(const std::string& reason) const
    {
        return MallocFailure(m_path + ": " + reason);
    }
    std::uint64_t SizeFromHere(std::uint32_t wanted);

    std::string m_path;
    bool m_isWritable;
    VXFile m_file;
    std::string m_reason; // why the file is not open
    std::uint64_t m_position = 0;
    std::uint64_t m_end = 0; // of the file, when it was last looked at
};

// How many bytes follow, as far as so many are wanted. The file is asked only when it may have to have grown.
std::uint64_t VXStorage::SizeFromHere(std::uint32_t wanted)
{
    if (m_end < m_position || m_end - m_position < wanted)
        m_end = Size();
    return m_end - std::min(m_end, m_position);
}

std::shared_ptr<IVXData> VXStorage::Read(std::uint32_t size)
{
    const std::uint64_t rest = SizeFromHere(size);
    auto data = MallocUnsetData(static_cast<std::uint32_t>(std::min<std::uint64_t>(size, rest)));
    if (data->Empty())
        return data;
    std::error_code fault;
    const std::size_t count = m_file.ReadAt(m_position, data->Bytes(), data->Size(), fault);
    if (fault)
        return IVXData::MallocData(0);
    m_position += count;
    if (count == data->Size())
        return data;
    auto shorter = IVXData::MallocData(0); // the file has shrunk meanwhile
    shorter->AppendBytes(data->Bytes(), static_cast<std::uint32_t>(count));
    return shorter;
}

std::shared_ptr<IVXError> VXStorage::WriteData(const std::shared_ptr<const IVXData>& data)
{
    return data ? WriteBytes(data->Bytes(), data->Size()) : Fail("no data to write");
}

std::shared_ptr<IVXError> VXStorage::WriteBytes(const void* bytes, std::uint32_t size)
{
    if (!IsOpen())
        return Fail(m_reason);
    if (!m_isWritable)
        return Fail("opened for reading only");
    if (size > kMostOffset - m_position)
        return Fail("a file cannot reach beyond 2^63 - 1 bytes");
    if (const auto fault = m_file.WriteAt(m_position, bytes, size))
        return Fail(fault.message());
    m_position += size;
    return MallocSuccess();
}

std::shared_ptr<IVXError> VXStorage::Seek(std::uint64_t offset)
{
    if (!IsOpen())
        return Fail(m_reason);
    if (offset > kMostOffset)
        return Fail("no position beyond 2^63 - 1 bytes");
    m_position = offset;
    return MallocSuccess();
}

} // namespace

std::shared_ptr<IVXStorage> IVXStorage::MallocStorage(const std::string& path, StorageMode mode)
{
    return std::make_shared<VXStorage>(path, mode);
}

} // namespace Vexlor
