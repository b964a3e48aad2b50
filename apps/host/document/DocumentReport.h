#pragma once

#include "DocumentFindings.h"
#include "DocumentPlaces.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor::Tool
{

/// A finding as it is told.
struct DocumentReportLine
{
    bool isError = false; ///< else a warning
    DocumentPlace place;
    std::string rule;
    std::string path;    ///< in names
    std::string pointer; ///< RFC 6901
    DocumentWording wording;
    DocumentPosition value = 0;
};

/// What a document has wrong, and how much of it.
struct DocumentReport
{
    int presets = 0;
    std::size_t errors = 0;
    std::size_t warnings = 0;
    std::vector<DocumentReportLine> lines; ///< not all of very many
};

/// Looks at everything that can be wrong with the text of a document; those are the icons that there are.
DocumentReport CheckDocument(std::string_view text, const std::set<int>& faces);

} // namespace Vexlor::Tool
