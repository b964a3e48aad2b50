#pragma once

#include <QString>

namespace Vexlor::Studio
{

/// The ending of a container's files, without a dot: "mp4". It is the container's name in small letters, for
/// the library tells no other.
QString EndingOf(const QString& container);

/// A file beside the source, or in that folder where it is one, that is not there yet: "clip.mkv", else
/// "clip 2.mkv".
QString FreeOutputName(const QString& source, const QString& ending, const QString& folder = {});

} // namespace Vexlor::Studio
