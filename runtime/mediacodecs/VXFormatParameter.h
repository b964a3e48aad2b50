#pragma once

#include "IVXFormatParameter.h"

namespace Vexlor
{

/// As IVXFormatParameter::MallocFormatParameter, of a file that was read: its streams stay as they are,
/// whatever libavformat would write into such a container.
std::shared_ptr<IVXFormatParameter> MallocSourceParameter(const std::string& formatName);

} // namespace Vexlor
