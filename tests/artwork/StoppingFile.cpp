#include "tests/artwork/StoppingFile.h"

#include "IVXStorage.h"

#include "tests/platform/ScriptedError.h"

#include <algorithm>

namespace Vexlor
{

namespace
{

StoppingFile* g_file = nullptr;

class VXStorage final : public IVXStorage
{
public:
    explicit VXStorage(StoppingFile& file) : m_file(file) {}

    bool IsOpen() const override { return true; }
    std::shared_ptr<IVXData> Read(std::uint32_t size) override;
    std::shared_ptr<IVXError> WriteData(const std::shared_ptr<const IVXData>& data) override
    {
        return WriteBytes(data->Bytes(), data->Size());
    }
    std::shared_ptr<IVXError> WriteBytes(const void* bytes, std::uint32_t size) override;
    std::shared_ptr<IVXError> Seek(std::uint64_t offset) override;
    void SeekToEnd() override { Seek(Size()); }
    std::uint64_t Size() const override { return m_file.bytes.size(); }
    std::uint64_t Position() const override { return m_position; }

private:
    bool IsDone() { return m_file.operations++ < m_file.stopsAfter; }
    void Put(const std::uint8_t* bytes, std::size_t size);

    StoppingFile& m_file;
    std::size_t m_position = 0;
};

std::shared_ptr<IVXData> VXStorage::Read(std::uint32_t size)
{
    if (!IsDone())
        return IVXData::MallocData(0);
    auto data = DataOf(Slice(m_file.bytes, m_position, m_position + size));
    m_position += data->Size();
    return data;
}

void VXStorage::Put(const std::uint8_t* bytes, std::size_t size)
{
    m_file.bytes.resize(std::max(m_file.bytes.size(), m_position + size));
    std::copy_n(bytes, size, m_file.bytes.data() + m_position);
    m_position += size;
}

std::shared_ptr<IVXError> VXStorage::WriteBytes(const void* bytes, std::uint32_t size)
{
    const auto* from = static_cast<const std::uint8_t*>(bytes);
    m_file.writes.push_back({m_file.operations, size});
    if (IsDone())
    {
        Put(from, size);
        return MakeError("");
    }
    const bool isTheNext = m_file.operations == m_file.stopsAfter + 1;
    if (isTheNext && m_file.tornAt > 0)
        Put(from, std::min<std::size_t>(m_file.tornAt, size));
    return MakeError("the process is gone");
}

std::shared_ptr<IVXError> VXStorage::Seek(std::uint64_t offset)
{
    if (!IsDone())
        return MakeError("the process is gone");
    m_position = offset;
    return MakeError("");
}

} // namespace

void SetStoppingFile(StoppingFile* file) { g_file = file; }

// Stands in for the scripted platform's, which the linker then leaves in its library.
std::shared_ptr<IVXStorage> IVXStorage::MallocStorage(const std::string&, StorageMode)
{
    return std::make_shared<VXStorage>(*g_file);
}

} // namespace Vexlor
