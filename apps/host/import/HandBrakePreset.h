#pragma once

#include "apps/host/document/DocumentTree.h"

namespace Vexlor::Tool
{

class ImportedPreset;

/// Reads the members of one preset as HandBrake exports it, which is an object, into a preset of ours.
void ReadHandBrakePreset(const DocumentTree& tree, DocumentPosition preset, ImportedPreset& target);

} // namespace Vexlor::Tool
