#pragma once

#include "apps/host/match/MatchWarnings.h"
#include "apps/host/match/MediaMatch.h"
#include "apps/host/match/SizeEstimate.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace Vexlor::Studio
{

/// What a source becomes in a format preset, and what is to be said of it.
struct Outcome
{
    Tool::MediaMatch match;
    std::vector<Tool::MatchWarning> warnings;
    /// What of the match gives way to the encoders, a sentence each.
    std::vector<std::string> changes;
    /// Why it cannot be converted here; empty where it can.
    std::string obstacle;
    /// The output's size; nothing where the source's length is not known or nothing comes out.
    std::optional<Tool::SizeEstimate> size;
};

/// The outcome of a source that was read from the file of that path.
Outcome OutcomeOf(const VXMediaFile& media, const std::string& path, const IVXFormatPreset& preset);

} // namespace Vexlor::Studio
