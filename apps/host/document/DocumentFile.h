#pragma once

#include "DocumentPlaces.h"

#include <optional>
#include <string>
#include <string_view>

namespace Vexlor::Tool
{

/// Why a text is no JSON.
struct SyntaxFault
{
    DocumentPlace place;
    std::string reason;
};

/// What the text of a file may begin with, and is no part of it.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// All bytes of the file of that path. Throws Failure.
std::string ReadWholeFile(const std::string& path);

/// The text of the document of that path, without a byte order mark. Throws Failure.
std::string ReadDocumentText(const std::string& path);

/// What the loader of documents says against the text; nothing when it takes it.
std::optional<SyntaxFault> SyntaxFaultOf(std::string_view text);

} // namespace Vexlor::Tool
