#pragma once

#include "Commands.h"

namespace CLI
{
class App;
}

namespace Vexlor::Tool
{

/// Adds "import", which fills in request.
void AddImportCommand(CLI::App& app, Request& request);

/// Turns presets of other programs into ours, and tells what does not.
std::string ImportCommand(const Request& request, const Catalogue& catalogue, const Style& style);

} // namespace Vexlor::Tool
