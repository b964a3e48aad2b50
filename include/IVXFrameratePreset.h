#pragma once

#include "VXExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

class IVXJsonValue;
class IVXRational;

/// One frame rate that a codec preset offers, in frames per second, or "Auto": take the source's.
///
/// Immutable. A rate that is not valid or whose numerator is 0 is Auto.
class VX_PRESETS_API IVXFrameratePreset
{
public:
    /// The Auto preset; holds the codec library's default rational.
    static std::shared_ptr<IVXFrameratePreset> MallocFrameratePreset();
    /// A preset that holds that very rational, shared with the caller; an empty handle gives the Auto preset.
    static std::shared_ptr<IVXFrameratePreset> MallocFrameratePreset(std::shared_ptr<IVXRational> rate);
    /// A preset of the rate num/den.
    static std::shared_ptr<IVXFrameratePreset> MallocFrameratePreset(int num, int den);
    /// Reads "num" and "den"; absent members read as 0, which is Auto.
    static std::shared_ptr<IVXFrameratePreset>
    MallocFrameratePreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// The preset's own rational, shared, not a copy; never empty.
    virtual std::shared_ptr<IVXRational> Framerate() const = 0;
    /// True when the rate is not valid or its numerator is 0.
    virtual bool IsAutoValue() const;
    /// "Auto", or the rational's text for a frame rate.
    virtual std::string FormatFramerate() const;
    /// A new preset that holds a copy of the rational.
    virtual std::shared_ptr<IVXFrameratePreset> Clone() const = 0;
    /// A new object with "num" and "den"; the JSON factory reads it back.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

protected:
    ~IVXFrameratePreset() = default;
};

} // namespace Vexlor
