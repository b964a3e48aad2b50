#include "Style.h"

#include <cstdlib>
#include <string_view>

#include <unistd.h>

namespace Vexlor::Tool
{

namespace
{

// Nothing else runs yet when the environment is read.
std::string_view Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

} // namespace

Style StyleOfStandardOutput()
{
    const bool isTerminal = isatty(STDOUT_FILENO) == 1 && Environment("TERM") != "dumb";
    return {.isColoured = isTerminal && Environment("NO_COLOR").empty(), .hasLines = isTerminal};
}

std::string Strong(const std::string& text, const Style& style)
{
    return style.isColoured ? "\x1b[1m" + text + "\x1b[0m" : text;
}

} // namespace Vexlor::Tool
