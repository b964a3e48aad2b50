#pragma once

#include "Finding.h"

#include "apps/studio/document/DocumentPlan.h"

#include <QCoreApplication>

namespace Vexlor::Tool
{
struct Import;
}

namespace Vexlor::Studio
{

class StudioDocument;

/// What a check has found, before it is known which items of the tree it is about.
struct CheckResult
{
    int presets = 0;
    std::size_t errors = 0;
    std::size_t warnings = 0;
    Findings findings = {};
    std::vector<const void*> objects = {}; ///< for each finding the category or preset; empty where none is
};

/// Looks at the document that a plan makes; on any thread.
CheckResult CheckPlan(const PlannedNode& plan, const DocumentBasis& basis);

/// What checks and imports found, as the pane shows it.
class FindingTexts
{
    Q_DECLARE_TR_FUNCTIONS(Vexlor::Studio::FindingTexts)

public:
    /// The findings with the items of the tree that they are about, as far as those are still there.
    static Findings Of(CheckResult result, const StudioDocument& document);
    static QString SummaryOf(const CheckResult& result);

    /// What did not become the same of presets that another program has written; presets are those that were
    /// added, in the order of the import.
    static Findings Of(const Tool::Import& import, const std::vector<TreeItem>& presets);
    static QString SummaryOf(const Tool::Import& import, const QString& file);
};

} // namespace Vexlor::Studio
