#pragma once

#include "VXExport.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Vexlor
{

class IVXJsonValue;

/// One channel layout that a codec preset offers, a mask with one bit a loudspeaker, or "Auto": take the
/// source's.
///
/// Immutable. The mask 0 is Auto.
class VX_PRESETS_API IVXChannelLayoutPreset
{
public:
    /// The Auto preset, held as 0.
    static std::shared_ptr<IVXChannelLayoutPreset> MallocChannelLayoutPreset();
    /// A preset of that mask.
    static std::shared_ptr<IVXChannelLayoutPreset> MallocChannelLayoutPreset(std::uint64_t layout);
    /// Reads "chLayout", all 64 bits of it; an absent member reads as 0, which is Auto.
    static std::shared_ptr<IVXChannelLayoutPreset>
    MallocChannelLayoutPreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// The mask as stored.
    virtual std::uint64_t Layout() const = 0;
    /// "Auto", or the codec library's name of the layout.
    virtual std::string FormatLayout() const;
    /// A new, independent preset of the same mask.
    virtual std::shared_ptr<IVXChannelLayoutPreset> Clone() const = 0;
    /// A new object with "chLayout", a 64-bit integer; the JSON factory reads it back.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

    /// True when the mask is 0.
    bool IsAutoValue() const;

protected:
    ~IVXChannelLayoutPreset() = default;
};

} // namespace Vexlor
