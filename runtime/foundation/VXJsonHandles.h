#pragma once

#include "IVXJsonValue.h"

#include <memory>
#include <vector>

namespace Vexlor
{

/// A child of a built value; an empty one stands for null.
using JsonHandle = std::shared_ptr<IVXJsonValue>;
using JsonHandles = std::vector<JsonHandle>;

/// Lets go of children without the destructors of deep values calling each other.
void LetGoOf(JsonHandles children);

} // namespace Vexlor
