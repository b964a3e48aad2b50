#pragma once

#include "KeyFile.h"

#include <vector>

namespace Vexlor::Tool
{

class ImportedPreset;

inline constexpr const char* kOneLanguage = "a document has one language";

/// Reads what one profile of an encoding target and its streams ask for into a preset of ours.
void ReadGStreamerProfile(const KeyFileGroup& profile, std::vector<const KeyFileGroup*> streams,
                          ImportedPreset& target);

} // namespace Vexlor::Tool
