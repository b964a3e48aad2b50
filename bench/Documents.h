#pragma once

#include <memory>
#include <string>

namespace Vexlor
{

class IVXFormatNode;

namespace Bench
{

/// A tree of that many presets, the containers' own ones in turn: about 8 KB of text each.
std::shared_ptr<IVXFormatNode> TreeOf(int presets);

/// The same as a document's text; made once for each number.
const std::string& DocumentOf(int presets);

} // namespace Bench
} // namespace Vexlor
