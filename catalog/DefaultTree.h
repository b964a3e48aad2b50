#pragma once

#include <memory>

namespace Vexlor
{
class IVXFormatNode;
}

namespace Vexlor::Catalog
{

/// A new tree of the presets that are built in: a category for each way of looking for one, with a preset of
/// every container that can be written here.
std::shared_ptr<IVXFormatNode> DefaultTree();

} // namespace Vexlor::Catalog
