#pragma once

#include "DocumentPlan.h"

#include "apps/host/document/DocumentTree.h"

#include <string>
#include <unordered_map>

namespace Vexlor::Studio
{

/// Where each category and each preset of a plan stands in a text that was made of it, or that it was read
/// from.
using ObjectPositions = std::unordered_map<const void*, Tool::DocumentPosition>;

/// The positions of everything in the plan, whose shape is that of the text.
ObjectPositions PositionsOf(const PlannedNode& plan, const Tool::DocumentTree& tree);

/// The text of the tree of a plan, over the basis that it began with. What has not changed stays as it stands
/// there: members that nobody reads, their order, the layout. An empty text stands for a document that was
/// never read.
std::string TextOf(const PlannedNode& plan, const DocumentBasis& basis);

} // namespace Vexlor::Studio
