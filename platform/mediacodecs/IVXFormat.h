#pragma once

#include "VXMediaCodecsExport.h"

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

/// What is known of one container: the codecs that a file of it may hold. Immutable.
class VX_MEDIACODECS_API IVXFormat
{
public:
    /// A new object for that container. Never empty: an unknown name answers with a container without codecs.
    static std::shared_ptr<IVXFormat> MallocFormat(const std::string& formatName,
                                                   const std::string& formatHint);

    /// The video codecs that the container takes, the one to prefer first.
    virtual std::vector<int> VideoCodecIDs() const = 0;
    /// The audio codecs that the container takes, the one to prefer first.
    virtual std::vector<int> AudioCodecIDs() const = 0;

protected:
    ~IVXFormat() = default;
};

} // namespace Vexlor
