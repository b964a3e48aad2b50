#pragma once

#include "VXFoundationExport.h"

#include <string>
#include <string_view>

namespace Vexlor
{

/// Makes text the content of the file of that UTF-8 path, or leaves what was there untouched.
///
/// The text goes to a temporary file beside it, which reaches the disk before it takes the file's name; an
/// existing file keeps its permissions, a symbolic link its target's name. Answers false when that failed,
/// with "path: reason" in error where given: no directory, no permission, no space, or path names something
/// other than a file.
VX_FOUNDATION_API bool WriteFileAtomically(const std::string& path, std::string_view text,
                                           std::string* error = nullptr);

} // namespace Vexlor
