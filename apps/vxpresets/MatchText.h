#pragma once

#include "Style.h"
#include "apps/host/match/MatchWarnings.h"
#include "apps/host/match/MediaMatch.h"

#include <string>

namespace Vexlor::Tool
{

/// The source beside the output, each value with its reason, and what is to be warned of.
std::string MatchText(const MediaMatch& match, const std::string& title, const Style& style);
/// The warnings with their remedies, a line each; empty without any.
std::string WarningsText(const std::vector<MatchWarning>& warnings, const Style& style);
/// The same as JSON.
std::string MatchJson(const MediaMatch& match);

} // namespace Vexlor::Tool
