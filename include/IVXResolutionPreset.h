#pragma once

#include "VXExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

class IVXJsonValue;

/// One output resolution that a codec preset offers, in pixels, or "Auto": take the source's.
///
/// Immutable. A resolution with either side below 1 is Auto and is kept as given, so it is written back
/// unchanged.
class VX_PRESETS_API IVXResolutionPreset
{
public:
    /// The Auto preset, held as 0 x 0.
    static std::shared_ptr<IVXResolutionPreset> MallocResolutionPreset();
    /// A preset of that size.
    static std::shared_ptr<IVXResolutionPreset> MallocResolutionPreset(int width, int height);
    /// Reads "width" and "height"; an absent member reads as 0, which is Auto.
    static std::shared_ptr<IVXResolutionPreset>
    MallocResolutionPreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// The width as stored.
    virtual int Width() const = 0;
    /// The height as stored.
    virtual int Height() const = 0;
    /// True when either side is below 1.
    virtual bool IsAutoValue() const;
    /// "Auto", or the codec library's text for the size.
    virtual std::string FormatResolution() const;
    /// A new, independent preset of the same size.
    virtual std::shared_ptr<IVXResolutionPreset> Clone() const = 0;
    /// A new object with "width" and "height"; the JSON factory reads it back.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

protected:
    ~IVXResolutionPreset() = default;
};

} // namespace Vexlor
