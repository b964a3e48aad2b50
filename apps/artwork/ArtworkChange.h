#pragma once

#include "ArtworkFile.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Vexlor::Tool
{

/// A group that a file is to hold: a new one, or one that stands in the file as it is now.
struct ArtworkSource
{
    int faceID = 0;
    VXArtworkEntry entry = {};                ///< where it stands; unused for a new one
    std::shared_ptr<const IVXData> blob = {}; ///< the bytes of a new one
};

using ArtworkSources = std::vector<ArtworkSource>;

/// Changes which groups the artwork file of that path holds, all or nothing; the file is made when there is
/// none and mayMake says so.
///
/// The new file is written beside the old one without bytes that no group uses. It takes the old one's name
/// only after it is on the disk and after it was opened again and every group was found in it. Other changes
/// of files in the same folder wait for this one. Throws Failure; then the old file is as it was.
void ChangeArtwork(const std::string& path, bool mayMake,
                   const std::function<void(const ArtworkFile& file, ArtworkSources& groups)>& change);

} // namespace Vexlor::Tool
