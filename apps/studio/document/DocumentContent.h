#pragma once

#include "DocumentPlan.h"

#include <memory>
#include <string>

namespace Vexlor::Studio
{

/// A document as it was read.
struct DocumentContent
{
    std::shared_ptr<IVXFormatNode> root;
    std::shared_ptr<const DocumentBasis> basis;
};

/// Reads the document of that path; on any thread. Throws Tool::Failure.
DocumentContent ReadContent(const std::string& path);
/// The built-in catalogue, which has no text.
DocumentContent BuiltInContent();

/// Writes the text as the document of that path, all or nothing; on any thread. Where the file holds another
/// text than expected it stays as it is, and the answer is false. Throws Tool::Failure; so it does where the
/// file is write-protected, or the path a link that leads nowhere.
bool WriteOver(const std::string& path, const std::string& expected, const std::string& text);
/// The same whatever the file holds.
void WriteAnyway(const std::string& path, const std::string& text);

} // namespace Vexlor::Studio
