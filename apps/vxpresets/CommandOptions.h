#pragma once

#include "Commands.h"

namespace CLI
{
class App;
}

namespace Vexlor::Tool
{

/// How a preset is named on the command line.
inline constexpr auto* kPresetHelp =
    "Path of names (\"Video/MP4\"; \"\\/\" stands for a slash inside a name), or an "
    "unambiguous part of one";

/// Adds a command of presets: its name, its help, "--json" and "--document".
CLI::App* AddCommand(CLI::App& app, Request& request, const char* name, const char* help, Command command);

} // namespace Vexlor::Tool
