#pragma once

#include "runtime/foundation/VXJsonDocument.h"
#include "runtime/foundation/VXJsonIndex.h"

#include <vector>

namespace Vexlor
{

/// Checks the tokens of text against JSON's grammar, lists its members and views, and resolves its escape
/// sequences. False where the text is no JSON; it has not changed then.
bool ReadContent(const VXJsonIndex& index, char* text, const VXJsonDocument& document, JsonContent& content);

} // namespace Vexlor
