#pragma once

#include "VXFoundationExport.h"

#include <cstdint>
#include <memory>

namespace Vexlor
{

/// A growing buffer of bytes. Lengths are 32-bit: a buffer holds less than 4 GiB.
class VX_FOUNDATION_API IVXData
{
public:
    /// A buffer of that many zero bytes. Throws std::bad_alloc when memory is short.
    static std::shared_ptr<IVXData> MallocData(std::uint32_t size);

    /// True when the buffer holds no bytes.
    virtual bool Empty() const = 0;
    /// The first byte, writable; valid until the buffer grows. May be null when the buffer is empty.
    virtual std::uint8_t* Bytes() = 0;
    /// The first byte, read only; as above.
    virtual const std::uint8_t* Bytes() const = 0;
    /// Length in bytes.
    virtual std::uint32_t Size() const = 0;
    /// Appends size bytes, which may lie inside this buffer. Throws std::length_error beyond 4 GiB.
    virtual void AppendBytes(const void* bytes, std::uint32_t size) = 0;
    /// Appends another buffer's bytes, or its own; an empty handle appends nothing.
    virtual void AppendData(const std::shared_ptr<const IVXData>& data) = 0;

protected:
    ~IVXData() = default;
};

} // namespace Vexlor
