#include "IVXData.h"

#include <functional>
#include <limits>
#include <stdexcept>
#include <vector>

namespace Vexlor
{

namespace
{

class VXData final : public IVXData
{
public:
    explicit VXData(std::uint32_t size) : m_bytes(size) {}

    bool Empty() const override { return m_bytes.empty(); }
    std::uint8_t* Bytes() override { return m_bytes.data(); }
    const std::uint8_t* Bytes() const override { return m_bytes.data(); }
    std::uint32_t Size() const override { return static_cast<std::uint32_t>(m_bytes.size()); }

    void AppendBytes(const void* bytes, std::uint32_t size) override
    {
        if (size == 0)
            return;
        if (size > std::numeric_limits<std::uint32_t>::max() - Size())
            throw std::length_error("IVXData: a buffer holds less than 4 GiB");
        const auto* first = static_cast<const std::uint8_t*>(bytes);
        // The bytes may be our own, which move when the buffer grows.
        const bool areOurs =
            !std::less<>()(first, m_bytes.data()) && std::less<>()(first, m_bytes.data() + Size());
        if (areOurs)
            return AppendBytes(std::vector(first, first + size).data(), size);
        m_bytes.insert(m_bytes.end(), first, first + size);
    }

    void AppendData(const std::shared_ptr<const IVXData>& data) override
    {
        if (data)
            AppendBytes(data->Bytes(), data->Size());
    }

private:
    std::vector<std::uint8_t> m_bytes;
};

} // namespace

std::shared_ptr<IVXData> IVXData::MallocData(std::uint32_t size) { return std::make_shared<VXData>(size); }

} // namespace Vexlor
