#pragma once

#include "VXExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

class IVXJsonValue;

/// One audio sample rate that a codec preset offers, in Hz, or "Auto": take the source's.
///
/// Immutable. Any rate below 1 is Auto and is kept as given, so it is written back unchanged.
class VX_PRESETS_API IVXSampleratePreset
{
public:
    /// The Auto preset, held as 0.
    static std::shared_ptr<IVXSampleratePreset> MallocSampleratePreset();
    /// A preset of that rate.
    static std::shared_ptr<IVXSampleratePreset> MallocSampleratePreset(int samplerate);
    /// Reads "samplerate"; an absent member reads as 0, which is Auto.
    static std::shared_ptr<IVXSampleratePreset>
    MallocSampleratePreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// The rate as stored, in Hz.
    virtual int Samplerate() const = 0;
    /// "Auto", or the codec library's text for the rate.
    virtual std::string FormatSamplerate() const;
    /// A new, independent preset of the same rate.
    virtual std::shared_ptr<IVXSampleratePreset> Clone() const = 0;
    /// A new object with "samplerate"; the JSON factory reads it back.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

    /// True when the rate is below 1.
    bool IsAutoValue() const;

protected:
    ~IVXSampleratePreset() = default; // the shared pointer of the factory destroys the hidden class
};

} // namespace Vexlor
