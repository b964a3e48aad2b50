#include "runtime/foundation/VXData.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <new>
#include <stdexcept>

namespace Vexlor
{

namespace
{

// Makes room behind a shared object, in the same block, and tells where that is.
template <class Type>
struct RoomBehind
{
    using value_type = Type;

    RoomBehind(std::uint32_t bytes, std::uint8_t*& room) : m_bytes(bytes), m_room(&room) {}
    template <class Other>
    explicit(false) RoomBehind(const RoomBehind<Other>& other) : m_bytes(other.m_bytes), m_room(other.m_room)
    {
    }

    Type* allocate(std::size_t count)
    {
        auto* const block = static_cast<std::uint8_t*>(::operator new(count * sizeof(Type) + m_bytes));
        *m_room = block + count * sizeof(Type);
        return reinterpret_cast<Type*>(block);
    }
    void deallocate(Type* block, std::size_t /*count*/) noexcept { ::operator delete(block); }

    friend bool operator==(const RoomBehind&, const RoomBehind&) { return true; }

    std::uint32_t m_bytes;
    std::uint8_t** m_room; // not looked at any more once the object is there
};

class VXData final : public IVXData
{
public:
    // The bytes are not set; they stand behind the object until more are appended.
    static std::shared_ptr<VXData> Make(std::uint32_t size)
    {
        std::uint8_t* room = nullptr;
        auto data = std::allocate_shared<VXData>(RoomBehind<VXData>(size, room));
        data->m_bytes = size > 0 ? room : nullptr;
        data->m_size = data->m_room = size;
        return data;
    }

    bool Empty() const override { return m_size == 0; }
    std::uint8_t* Bytes() override { return m_bytes; }
    const std::uint8_t* Bytes() const override { return m_bytes; }
    std::uint32_t Size() const override { return m_size; }

    void AppendBytes(const void* bytes, std::uint32_t size) override
    {
        if (size > kMost - m_size)
            throw std::length_error("IVXData: a buffer holds less than 4 GiB");
        // The bytes may be our own, so those that we had are let go of last.
        std::unique_ptr<std::uint8_t[]> before;
        if (size > m_room - m_size)
            before = Grow(m_size + size);
        std::copy_n(static_cast<const std::uint8_t*>(bytes), size, m_bytes + m_size);
        m_size += size;
    }

    void AppendData(const std::shared_ptr<const IVXData>& data) override
    {
        if (data)
            AppendBytes(data->Bytes(), data->Size());
    }

private:
    static constexpr std::uint32_t kMost = std::numeric_limits<std::uint32_t>::max();

    // Answers what the bytes stood in, if it was no part of the object.
    std::unique_ptr<std::uint8_t[]> Grow(std::uint32_t needed)
    {
        const std::uint32_t room = std::max(needed, 2 * std::min(m_room, kMost / 2));
        auto larger = std::make_unique_for_overwrite<std::uint8_t[]>(room);
        m_bytes = std::copy_n(m_bytes, m_size, larger.get()) - m_size;
        m_room = room;
        m_grown.swap(larger);
        return larger;
    }

    std::uint8_t* m_bytes = nullptr;
    std::uint32_t m_size = 0;
    std::uint32_t m_room = 0;
    std::unique_ptr<std::uint8_t[]> m_grown;
};

} // namespace

std::shared_ptr<IVXData> IVXData::MallocData(std::uint32_t size)
{
    auto data = VXData::Make(size);
    std::fill_n(data->Bytes(), size, std::uint8_t{0});
    return data;
}

std::shared_ptr<IVXData> MallocUnsetData(std::uint32_t size) { return VXData::Make(size); }

} // namespace Vexlor
