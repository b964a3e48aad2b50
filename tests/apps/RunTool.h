#pragma once

#include <string>
#include <vector>

namespace Vexlor::Apps
{

/// What a run of the tool left behind.
struct ToolRun
{
    int exitCode = -1; ///< -1 when a signal ended it
    std::string out;
    std::string err;
};

/// How the tool is run.
struct ToolSetting
{
    std::vector<std::string> environment = {}; ///< "NAME=value"; TERM and NO_COLOR are unset otherwise
    bool onTerminal = false;                   ///< standard output is a terminal
    std::string outputFile = {};               ///< standard output is this file
};

/// Runs the tool with those arguments and waits for its end. Throws std::runtime_error when it cannot be run.
ToolRun RunTool(const std::vector<std::string>& arguments, const ToolSetting& setting = {});

} // namespace Vexlor::Apps
