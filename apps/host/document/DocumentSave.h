#pragma once

#include <functional>
#include <string>

namespace Vexlor::Tool
{

/// How a document is changed.
struct DocumentSaving
{
    bool mayMake = false;     ///< a file that is not there is one without anything in it
    bool keepsBackup = false; ///< the old file stays, with ".bak" behind its name
};

/// Changes the preset document of that path, all or nothing: change gets the text and answers the new one.
///
/// The new text is written beside the old file and takes its place when it has reached the disk, and only if
/// the library can read it. Other changes of documents and artwork files in the same folder wait for this
/// one. Throws Failure; then the old file is as it was.
void ChangeDocument(const std::string& path, const DocumentSaving& saving,
                    const std::function<std::string(const std::string& text)>& change);

/// Writes a document that is not there yet. Throws Failure, among others where a file of that path is there
/// or comes about meanwhile, which stays as it is.
void MakeDocument(const std::string& path, const std::string& text);

} // namespace Vexlor::Tool
