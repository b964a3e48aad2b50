#include "DocumentReport.h"

#include "DocumentFile.h"
#include "DocumentMeaning.h"
#include "DocumentShape.h"

namespace Vexlor::Tool
{

DocumentReport CheckDocument(std::string_view text, const std::set<int>& faces)
{
    if (const auto fault = SyntaxFaultOf(text))
        return {0, 1, 0, {{true, fault->place, "syntax", {}, {}, {fault->reason}}}};
    const DocumentTree tree(text);
    DocumentFindings findings(tree);
    CheckShape(tree, findings);
    DocumentReport report{CheckMeaning(tree, faces, findings), findings.Errors(), findings.Warnings(), {}};
    DocumentPlaces places(text);
    DocumentPaths paths(tree);
    for (const auto& finding : findings.Sorted())
        report.lines.push_back({finding.isError, places.At(finding.offset), finding.rule,
                                paths.InNames(finding.value), paths.AsPointer(finding.value), finding.wording,
                                finding.value});
    return report;
}

} // namespace Vexlor::Tool
