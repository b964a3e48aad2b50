#include "IVXStorage.h"

#include "IVXData.h"

#include "tests/platform/ScriptedError.h"
#include "tests/platform/ScriptedFile.h"
#include "tests/platform/ScriptedPlatform.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace Vexlor
{

namespace
{

constexpr std::uint64_t kLargestFile = 1U << 30U;

class VXStorage final : public IVXStorage
{
public:
    VXStorage(std::shared_ptr<ScriptedFile> file, StorageMode mode) : m_file(std::move(file)), m_mode(mode) {}

    bool IsOpen() const override { return m_file != nullptr; }
    std::shared_ptr<IVXData> Read(std::uint32_t size) override;
    std::shared_ptr<IVXError> WriteData(const std::shared_ptr<const IVXData>& data) override
    {
        return data ? WriteBytes(data->Bytes(), data->Size()) : MakeError("no data");
    }
    std::shared_ptr<IVXError> WriteBytes(const void* bytes, std::uint32_t size) override;
    std::shared_ptr<IVXError> Seek(std::uint64_t offset) override;
    void SeekToEnd() override { m_position = Size(); }
    std::uint64_t Size() const override { return m_file ? m_file->bytes.size() : 0; }
    std::uint64_t Position() const override { return m_position; }

private:
    std::shared_ptr<ScriptedFile> m_file;
    StorageMode m_mode;
    std::uint64_t m_position = 0;
};

std::shared_ptr<IVXData> VXStorage::Read(std::uint32_t size)
{
    const bool readable = m_file && m_mode != StorageModeWrite && ++m_file->reads != m_file->failReadAt;
    if (!readable || m_position >= Size())
        return IVXData::MallocData(0);
    const auto length = std::min<std::uint64_t>(size, Size() - m_position);
    auto data = IVXData::MallocData(0);
    data->AppendBytes(m_file->bytes.data() + m_position, static_cast<std::uint32_t>(length));
    m_position += length;
    return data;
}

std::shared_ptr<IVXError> VXStorage::WriteBytes(const void* bytes, std::uint32_t size)
{
    if (!m_file || ++m_file->writes == m_file->failWriteAt)
        return MakeError("the write fails");
    if (m_mode == StorageModeRead)
        return MakeError("the file is open for reading only");
    if (m_position > kLargestFile)
        return MakeError("the file is too large for memory");
    const auto end = m_position + size;
    if (end > m_file->bytes.size())
        m_file->bytes.resize(end);
    if (size > 0)
        std::memcpy(m_file->bytes.data() + m_position, bytes, size);
    m_position = end;
    return MakeError("");
}

std::shared_ptr<IVXError> VXStorage::Seek(std::uint64_t offset)
{
    if (!m_file || ++m_file->seeks == m_file->failSeekAt)
        return MakeError("the seek fails");
    if (offset > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
        return MakeError("the offset is beyond what a file can have");
    m_position = offset;
    return MakeError("");
}

} // namespace

std::shared_ptr<IVXStorage> IVXStorage::MallocStorage(const std::string& path, StorageMode mode)
{
    auto* platform = ScriptedPlatform::Current();
    return std::make_shared<VXStorage>(platform ? platform->Open(path, mode) : nullptr, mode);
}

} // namespace Vexlor
