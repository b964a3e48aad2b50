#pragma once

namespace Vexlor::Tool
{

class DocumentFindings;
class DocumentTree;

/// Holds the document against the schema: values of another type or range than a loader takes, members that
/// nobody reads, and members that stand twice.
void CheckShape(const DocumentTree& tree, DocumentFindings& findings);

} // namespace Vexlor::Tool
