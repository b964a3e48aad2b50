#pragma once

#include <QString>

namespace Vexlor::Studio
{

/// What a file is taken for that is dropped: by its name alone, for it may be on a disk that does not answer.
enum class DroppedFile
{
    Document,
    EncodingTarget,
    Media
};

inline DroppedFile KindOfDropped(const QString& path)
{
    if (path.endsWith(".json", Qt::CaseInsensitive))
        return DroppedFile::Document;
    return path.endsWith(".gep", Qt::CaseInsensitive) ? DroppedFile::EncodingTarget : DroppedFile::Media;
}

} // namespace Vexlor::Studio
