#pragma once

#include "TreeItem.h"

#include <vector>

namespace Vexlor::Studio
{

/// The category of the user's own presets below that root, by its icon or its name. Where there is none it is
/// a new one, which stands last among what is to come into the tree.
std::shared_ptr<IVXFormatNode> OwnCategory(const std::shared_ptr<IVXFormatNode>& root,
                                           std::vector<PlacedItem>& added);

/// That name for an item that comes there, with a number behind it where it is taken.
QString NameAsOwn(IVXFormatNode& root, const TreeItem& item, const QString& name);

/// Position for a category behind those of its parent and behind those that are to come there.
int NextCategory(const std::shared_ptr<IVXFormatNode>& parent, const std::vector<PlacedItem>& added);

} // namespace Vexlor::Studio
