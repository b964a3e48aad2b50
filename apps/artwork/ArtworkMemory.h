#pragma once

#include <cstdint>
#include <memory>
#include <span>

namespace Vexlor
{
class IVXStorage;
}

namespace Vexlor::Tool
{

/// A read-only file that lies in memory. The bytes are not copied and must outlive it.
std::shared_ptr<IVXStorage> MemoryStorage(std::span<const std::uint8_t> bytes);

} // namespace Vexlor::Tool
