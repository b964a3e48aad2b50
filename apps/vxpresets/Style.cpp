#include "Style.h"

#include <charconv>
#include <cstdlib>
#include <string_view>

#include <sys/ioctl.h>
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

int TerminalWidth()
{
    const auto columns = Environment("COLUMNS");
    int width = 0;
    if (std::from_chars(columns.data(), columns.data() + columns.size(), width).ec == std::errc() &&
        width > 0)
        return width;
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}

} // namespace

Style StyleOfStandardOutput()
{
    const bool isTerminal = isatty(STDOUT_FILENO) == 1 && Environment("TERM") != "dumb";
    return {.isColoured = isTerminal && Environment("NO_COLOR").empty(),
            .hasLines = isTerminal,
            .width = isTerminal ? TerminalWidth() : 0};
}

std::string Strong(const std::string& text, const Style& style)
{
    return style.isColoured ? "\x1b[1m" + text + "\x1b[0m" : text;
}

} // namespace Vexlor::Tool
