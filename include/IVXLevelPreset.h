#pragma once

#include "VXExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

class IVXJsonValue;

/// One level that a codec preset offers: the codec library's number for it and the name to show.
///
/// Immutable. The number IVXCodecs::VXLevelUnknown leaves the level to the encoder.
class VX_PRESETS_API IVXLevelPreset
{
public:
    /// The unknown level, without a name.
    static std::shared_ptr<IVXLevelPreset> MallocLevelPreset();
    /// A preset of that number and name.
    static std::shared_ptr<IVXLevelPreset> MallocLevelPreset(int level, const std::string& name);
    /// Reads "level" and "name"; absent members read as 0 and as empty text.
    static std::shared_ptr<IVXLevelPreset> MallocLevelPreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// The level number.
    virtual int Level() const = 0;
    /// The name to show.
    virtual std::string Name() const = 0;
    /// A new, independent preset of the same number and name.
    virtual std::shared_ptr<IVXLevelPreset> Clone() const = 0;
    /// A new object with "level" and "name"; the JSON factory reads it back.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

protected:
    ~IVXLevelPreset() = default;
};

} // namespace Vexlor
