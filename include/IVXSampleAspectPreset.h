#pragma once

#include "VXExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

class IVXJsonValue;
class IVXRational;

/// The sample aspect ratio of a codec preset: a named television or disc shape, or a ratio of the user's own.
///
/// The stored ratio takes effect only while the type is AspectCustom; every other type brings its ratio
/// itself.
class VX_PRESETS_API IVXSampleAspectPreset
{
public:
    /// The named shapes. The numbers stand in preset documents.
    enum AspectPresetType : int
    {
        AspectDefault = 0, ///< square samples
        AspectNTSCDVD16x9 = 1,
        AspectPALDVD16x9 = 2,
        AspectNTSCDVD4x3 = 3,
        AspectPALDVD4x3 = 4,
        AspectNTSCHD1080i16x9 = 5,
        AspectPALHD1080i16x9 = 6,
        AspectNTSCHD1080i4x3 = 7,
        AspectPALHD1080i4x3 = 8,
        AspectNTSCHD720p16x9 = 9,
        AspectPALHD720p16x9 = 10,
        AspectNTSCHD720p4x3 = 11,
        AspectPALHD720p4x3 = 12,
        AspectCustom = 13, ///< the stored ratio applies
        AspectNTSCVCD4x3 = 300,
        AspectPALVCD4x3 = 301,
        AspectNTSCSVCD4x3 = 302,
        AspectPALSVCD4x3 = 303,
    };

    /// A preset of type AspectDefault that stores the default rational. The argument is deliberately not
    /// consulted.
    static std::shared_ptr<IVXSampleAspectPreset> MallocSampleAspectPreset(AspectPresetType type);
    /// A preset of type AspectCustom that stores a copy of the ratio; an empty handle stores the default
    /// rational.
    static std::shared_ptr<IVXSampleAspectPreset>
    MallocSampleAspectPreset(const std::shared_ptr<const IVXRational>& ratio);
    /// Reads "num", "den" and "type"; absent members read as 0.
    static std::shared_ptr<IVXSampleAspectPreset>
    MallocSampleAspectPreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// The name to show of a type; "Custom" for a number that is none.
    static std::string AspectPresetName(AspectPresetType type);
    /// The ratio of a type, a new object; the default rational for AspectCustom, for the VCD and SVCD types,
    /// which deliberately have no ratio of their own, and for a number that is none.
    static std::shared_ptr<IVXRational> AspectPresetRatio(AspectPresetType type);

    /// The ratio in effect: the stored one itself, shared, while the type is AspectCustom, else a new object
    /// of the type's ratio. Never empty.
    virtual std::shared_ptr<IVXRational> Ratio() const = 0;
    /// The same from an editable preset.
    virtual std::shared_ptr<IVXRational> Ratio() = 0;
    /// Stores the ratio num/den and leaves the type as it is.
    virtual void SetRatio(int num, int den) = 0;
    /// Stores a copy of the ratio and leaves the type as it is; an empty handle changes nothing.
    virtual void SetRatio(const std::shared_ptr<const IVXRational>& ratio) = 0;
    /// A new preset of the same type that stores a copy of the stored ratio.
    virtual std::shared_ptr<IVXSampleAspectPreset> Clone() const = 0;
    /// A new object with "num" and "den" of the stored ratio, whatever the type, and "type".
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;
    /// Sets the type; the stored ratio stays.
    virtual void SetAspectType(AspectPresetType type) = 0;
    /// The type as stored.
    virtual AspectPresetType AspectType() const = 0;

    /// The name to show of the preset's type.
    std::string AspectName() const;

protected:
    ~IVXSampleAspectPreset() = default;
};

} // namespace Vexlor
