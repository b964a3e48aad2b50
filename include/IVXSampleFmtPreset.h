#pragma once

#include "VXExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

class IVXJsonValue;

/// One pixel format (video) or sample format (audio) that a codec preset offers, or "Auto".
///
/// Immutable. Auto is the "none" number of the preset's own kind.
class VX_PRESETS_API IVXSampleFmtPreset
{
public:
    /// The Auto video preset. The argument is deliberately not consulted: true makes a video preset too.
    static std::shared_ptr<IVXSampleFmtPreset> MallocSampleFmtPreset(bool isAudio);
    /// A preset of that pixel format, or of that sample format when isAudio is true.
    static std::shared_ptr<IVXSampleFmtPreset> MallocSampleFmtPreset(int format, bool isAudio);
    /// Reads "isAudio" and "format" where they are present; without "format" it holds VXPixFormat_None, for
    /// audio too.
    static std::shared_ptr<IVXSampleFmtPreset>
    MallocSampleFmtPreset(const std::shared_ptr<const IVXJsonValue>& json);

    /// True when the format is VXSampleFormat_None (audio) or VXPixFormat_None (video).
    virtual bool IsAutoValue() const = 0;
    /// True for a sample format, false for a pixel format.
    virtual bool IsAudio() const = 0;
    /// The codec library's number of the format.
    virtual int Format() const = 0;
    /// "Auto", or the codec library's name of the format.
    virtual std::string FormatSampleFmt() const = 0;
    /// A new, independent preset of the same format and kind.
    virtual std::shared_ptr<IVXSampleFmtPreset> Clone() const = 0;
    /// A new object with "isAudio" and "format"; the JSON factory reads it back.
    virtual std::shared_ptr<IVXJsonValue> JsonValue() const = 0;

protected:
    ~IVXSampleFmtPreset() = default;
};

} // namespace Vexlor
