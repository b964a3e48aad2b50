#pragma once

#include <set>

namespace Vexlor::Tool
{

class DocumentFindings;
class DocumentTree;

/// Looks for what a loader takes and nobody can have meant: codecs and containers that are not known or do
/// not go together, indices outside their lists, values that a codec does not take, bounds that contradict
/// each other, names that stand twice, icons that are not among those faces. Answers the number of format
/// presets.
int CheckMeaning(const DocumentTree& tree, const std::set<int>& faces, DocumentFindings& findings);

} // namespace Vexlor::Tool
