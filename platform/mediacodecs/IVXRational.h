#pragma once

#include "VXMediaCodecsExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

/// A fraction of two integers: a frame rate in frames per second, or a sample aspect ratio. Immutable; kept
/// as given, never reduced, so that 30000/1001 and 60/2 are written back as they came.
class VX_MEDIACODECS_API IVXRational
{
public:
    /// The invalid rational, 0/0.
    static std::shared_ptr<IVXRational> MallocRational();
    /// The rational num/den. Handles to the same terms may share one object, as it never changes.
    static std::shared_ptr<IVXRational> MallocRational(int num, int den);

    /// False when the denominator is 0.
    virtual bool IsValid() const = 0;
    /// Numerator divided by denominator; infinite for n/0, not a number for 0/0.
    virtual double GetDoubleValue() const = 0;
    /// Display text of a frame rate: "29.97 fps"; empty for one that is not valid or not above 0.
    virtual std::string FormatAsFramerate() const = 0;
    /// The numerator.
    virtual int Num() const = 0;
    /// The denominator.
    virtual int Den() const = 0;
    /// An independent copy.
    virtual std::shared_ptr<IVXRational> Clone() const = 0;

protected:
    ~IVXRational() = default;
};

} // namespace Vexlor
