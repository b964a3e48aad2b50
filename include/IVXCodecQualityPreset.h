#pragma once

#include "VXExport.h"

#include "IVXCodecs.h"

#include <memory>
#include <string>
#include <utility>

namespace Vexlor
{

class IVXJsonValue;

/// One quality setting that a codec preset offers: "Auto" (the bitrate follows the source), a grade of the
/// codec library, or "Custom", a fixed bitrate.
///
/// Editable, since users change a custom bitrate in place. Bitrates are in bits per second. It is Custom when
/// its bitrate is not -1; otherwise Auto when its quality value is negative, and a grade when not.
class VX_PRESETS_API IVXCodecQualityPreset
{
public:
    /// The Auto setting: quality value -1, bitrate -1.
    static std::shared_ptr<IVXCodecQualityPreset> MallocCodecQualityPreset();
    /// The setting of that grade, without a bitrate.
    static std::shared_ptr<IVXCodecQualityPreset> MallocCodecQualityPreset(IVXCodecs::QualityLevel level);
    /// The Custom setting of that bitrate, which is its lower bound too, in mode 1.
    static std::shared_ptr<IVXCodecQualityPreset> MallocCodecQualityPreset(int bitrate);
    /// Reads "qualityValue", "bitrate", "mode" and "minBitrate"; absent members read as 0.
    static std::shared_ptr<IVXCodecQualityPreset>
    MallocCodecQualityPreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// The quality value as a grade, clamped into 0 to 3.
    virtual IVXCodecs::QualityLevel QualityLevel() const = 0;
    /// The quality value as stored; negative means Auto.
    virtual int QualityValue() const = 0;
    /// True when the bitrate is not -1.
    virtual bool IsCustom() const = 0;
    /// Sets the rate control mode of a custom bitrate.
    virtual void SetMode(int mode) = 0;
    /// The rate control mode of a custom bitrate, kept for the encoder.
    virtual int Mode() const = 0;
    /// The custom bitrate; -1 when there is none.
    virtual int Bitrate() const = 0;
    /// Sets the custom bitrate; -1 turns the setting back into Auto or a grade.
    virtual void SetBitrate(int bitrate) = 0;
    /// The same as Bitrate: a custom bitrate is its own upper bound.
    virtual int MaxBitrate() const = 0;
    /// The same as SetBitrate.
    virtual void SetMaxBitrate(int bitrate) = 0;
    /// The lower bound of a custom bitrate.
    virtual int MinBitrate() const = 0;
    /// Sets the lower bound of a custom bitrate.
    virtual void SetMinBitrate(int bitrate) = 0;
    /// The pair (lower bound, bitrate).
    virtual std::pair<int, int> BitrateRange() const = 0;
    /// Sets the lower bound to the pair's second number and nothing else; deliberately no mirror of
    /// BitrateRange.
    virtual void SetBitrateRange(std::pair<int, int> range) = 0;
    /// True when the quality value is negative, for a Custom setting too: ask IsCustom first.
    virtual bool IsAutoValue() const;
    /// "Custom", "Auto", or the codec library's name of the grade.
    virtual std::string FormatQuality();
    /// A new, independent setting with the same four numbers.
    virtual std::shared_ptr<IVXCodecQualityPreset> Clone() const = 0;
    /// A new object with "qualityValue" and "bitrate" only: lower bound and mode deliberately read back as 0.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

protected:
    /// Only the class behind the interface makes, copies and destroys these.
    /// @{
    IVXCodecQualityPreset() = default;
    IVXCodecQualityPreset(const IVXCodecQualityPreset&) = default;
    IVXCodecQualityPreset(IVXCodecQualityPreset&&) = default;
    IVXCodecQualityPreset& operator=(const IVXCodecQualityPreset&) = default;
    IVXCodecQualityPreset& operator=(IVXCodecQualityPreset&&) = default;
    ~IVXCodecQualityPreset() = default;
    /// @}
};

} // namespace Vexlor
