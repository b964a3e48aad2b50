#pragma once

#include "VXFoundationExport.h"

#include <string>

namespace Vexlor
{

/// The outcome of an operation. Immutable.
class VX_FOUNDATION_API IVXError
{
public:
    /// True when the operation that returned this object succeeded.
    virtual bool Succeed() const = 0;
    /// What went wrong, for a person to read, naming the file and the reason; empty after a success.
    virtual std::string Message() const = 0;

protected:
    ~IVXError() = default;
};

} // namespace Vexlor
