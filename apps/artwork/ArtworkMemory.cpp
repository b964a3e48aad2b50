#include "ArtworkMemory.h"

#include "IVXData.h"
#include "IVXError.h"
#include "IVXStorage.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

class Outcome final : public IVXError
{
public:
    explicit Outcome(const char* message) : m_message(message) {}

    bool Succeed() const override { return m_message.empty(); }
    std::string Message() const override { return m_message; }

private:
    std::string m_message;
};

class Memory final : public IVXStorage
{
public:
    explicit Memory(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    bool IsOpen() const override { return true; }
    std::shared_ptr<IVXData> Read(std::uint32_t size) override;
    std::shared_ptr<IVXError> WriteData(const std::shared_ptr<const IVXData>&) override { return ReadOnly(); }
    std::shared_ptr<IVXError> WriteBytes(const void*, std::uint32_t) override { return ReadOnly(); }
    std::shared_ptr<IVXError> Seek(std::uint64_t offset) override;
    void SeekToEnd() override { m_position = Size(); }
    std::uint64_t Size() const override { return m_bytes.size(); }
    std::uint64_t Position() const override { return m_position; }

private:
    static std::shared_ptr<IVXError> ReadOnly() { return std::make_shared<Outcome>("read only"); }

    std::span<const std::uint8_t> m_bytes;
    std::uint64_t m_position = 0;
};

std::shared_ptr<IVXData> Memory::Read(std::uint32_t size)
{
    const auto rest = m_bytes.subspan(std::min<std::size_t>(m_position, m_bytes.size()));
    const auto taken = rest.first(std::min<std::size_t>(size, rest.size()));
    auto data = IVXData::MallocData(0);
    data->AppendBytes(taken.data(), static_cast<std::uint32_t>(taken.size()));
    m_position += taken.size();
    return data;
}

std::shared_ptr<IVXError> Memory::Seek(std::uint64_t offset)
{
    m_position = offset;
    return std::make_shared<Outcome>("");
}

} // namespace

std::shared_ptr<IVXStorage> MemoryStorage(std::span<const std::uint8_t> bytes)
{
    return std::make_shared<Memory>(bytes);
}

} // namespace Vexlor::Tool
