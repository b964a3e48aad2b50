#pragma once

#include "DocumentTree.h"

namespace Vexlor::Tool
{

class DocumentFindings;

/// The member as a loader reads it: 0 where it is absent, or no integer of 32 bits.
int IntegerIn(const DocumentTree& tree, DocumentPosition object, std::string_view name);

/// Looks whether the member that is the index of a list of so many entries lies inside it, or is -1 for none.
void CheckIndex(const DocumentTree& tree, DocumentPosition object, std::string_view index,
                std::uint32_t count, DocumentFindings& findings);

} // namespace Vexlor::Tool
