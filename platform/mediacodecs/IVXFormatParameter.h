#pragma once

#include "VXMediaCodecsExport.h"

#include <memory>
#include <string>

namespace Vexlor
{

class IVXCodecParameter;

/// The parameters of one file: a source's, or the description of an output. At most one video and one audio
/// stream.
class VX_MEDIACODECS_API IVXFormatParameter
{
public:
    /// A description of that container without streams. Never empty. The hint, as a file name's ending,
    /// chooses between variants of the container where there are several; an empty one leaves the choice
    /// open.
    static std::shared_ptr<IVXFormatParameter> MallocFormatParameter(const std::string& formatName,
                                                                     const std::string& formatHint);

    /// The container's name, as given.
    virtual std::string FormatName() const = 0;
    /// The hint, as given.
    virtual std::string FormatHint() const = 0;

    /// The video stream, shared and editable; empty when there is none.
    virtual std::shared_ptr<IVXCodecParameter> GetVideoCodecParameter() = 0;
    /// The video stream, read only.
    virtual std::shared_ptr<const IVXCodecParameter> GetVideoCodecParameter() const = 0;
    /// Sets the video stream, which is shared; an empty handle removes it.
    virtual void SetVideoCodecParameter(const std::shared_ptr<IVXCodecParameter>& parameter) = 0;
    /// The audio stream, shared and editable; empty when there is none.
    virtual std::shared_ptr<IVXCodecParameter> GetAudioCodecParameter() = 0;
    /// The audio stream, read only.
    virtual std::shared_ptr<const IVXCodecParameter> GetAudioCodecParameter() const = 0;
    /// Sets the audio stream, which is shared; an empty handle removes it.
    virtual void SetAudioCodecParameter(const std::shared_ptr<IVXCodecParameter>& parameter) = 0;

protected:
    ~IVXFormatParameter() = default;
};

} // namespace Vexlor
