#pragma once

#include "VXExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

class IVXJsonValue;

/// One profile that a codec preset offers: the codec library's number for it and the name to show.
///
/// Immutable. The number IVXCodecs::VXProfileUnknown leaves the profile to the encoder.
class VX_PRESETS_API IVXProfilePreset
{
public:
    /// The number 0, without a name.
    static std::shared_ptr<IVXProfilePreset> MallocProfilePreset();
    /// A preset of that number and name.
    static std::shared_ptr<IVXProfilePreset> MallocProfilePreset(int profile, const std::string& name);
    /// Reads "profile" and "name"; absent members read as 0 and as empty text.
    static std::shared_ptr<IVXProfilePreset>
    MallocProfilePreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// The profile number.
    virtual int Profile() const = 0;
    /// The name to show.
    virtual std::string Name() const = 0;
    /// A new, independent preset of the same number and name.
    virtual std::shared_ptr<IVXProfilePreset> Clone() const = 0;
    /// A new object with "profile" and "name"; the JSON factory reads it back.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

protected:
    ~IVXProfilePreset() = default;
};

} // namespace Vexlor
