#pragma once

#include "Commands.h"

#include <string>

namespace Vexlor::Tool
{

/// What a command line asks for: a command, or a text such as the help, which then is the whole answer.
struct CommandLine
{
    Request request;
    std::string text;
};

/// Reads the arguments of main. Throws WrongUsage.
CommandLine ReadCommandLine(int argc, const char* const* argv);

} // namespace Vexlor::Tool
