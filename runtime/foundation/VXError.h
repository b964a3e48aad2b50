#pragma once

#include "IVXError.h"

#include <memory>
#include <string>

namespace Vexlor
{

/// The outcome of an operation that succeeded.
VX_FOUNDATION_API std::shared_ptr<IVXError> MallocSuccess();
/// The outcome of an operation that failed, with what a person is told of it.
VX_FOUNDATION_API std::shared_ptr<IVXError> MallocFailure(std::string message);

} // namespace Vexlor
