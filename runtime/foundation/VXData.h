#pragma once

#include "IVXData.h"

namespace Vexlor
{

/// As IVXData::MallocData, but the bytes are not set: for a buffer that is filled at once.
std::shared_ptr<IVXData> MallocUnsetData(std::uint32_t size);

} // namespace Vexlor
