#pragma once

#include "Commands.h"

namespace CLI
{
class App;
}

namespace Vexlor::Tool
{

/// Adds the commands that look at a media file, which fill in request.
void AddConvertCommands(CLI::App& app, Request& request);

/// What a media file becomes in a format preset.
std::string MatchCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// What a media file becomes in every preset, the best fit first.
std::string MatchAllCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// How large a media file becomes in a format preset.
std::string SizeCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Makes of a media file what a format preset says.
std::string ConvertCommand(const Request& request, const Catalogue& catalogue, const Style& style);

} // namespace Vexlor::Tool
