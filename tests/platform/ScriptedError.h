#pragma once

#include "IVXError.h"

#include <memory>
#include <string>

namespace Vexlor
{

/// A success when the message is empty, else a failure.
std::shared_ptr<IVXError> MakeError(const std::string& message);

} // namespace Vexlor
