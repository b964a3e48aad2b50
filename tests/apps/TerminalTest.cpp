#include "RunTool.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Vexlor::Apps
{

namespace
{

std::string OnTerminal(const std::vector<std::string>& arguments, const std::vector<std::string>& environment)
{
    const auto run = RunTool(arguments, {.environment = environment, .onTerminal = true});
    EXPECT_EQ(0, run.exitCode) << run.err;
    return run.out;
}

/// Columns of the widest line: every sign counts as one, however many bytes it has.
int WidestLine(const std::string& text)
{
    int widest = 0;
    int width = 0;
    for (const char letter : text)
    {
        const bool goesOn = (static_cast<unsigned char>(letter) & 0xC0U) == 0x80U;
        width = letter == '\n' || letter == '\r' ? 0 : width + (goesOn ? 0 : 1);
        widest = std::max(widest, width);
    }
    return widest;
}

bool HasColours(const std::string& text) { return text.find('\x1b') != std::string::npos; }
bool HasRules(const std::string& text) { return text.find("─┼─") != std::string::npos; }

TEST(Terminal, HasColoursAndRules)
{
    const auto text = OnTerminal({"formats"}, {"TERM=xterm"});
    EXPECT_TRUE(HasColours(text));
    EXPECT_TRUE(HasRules(text));
    EXPECT_EQ(0U, text.find("\x1b[1mContainer\x1b[0m │ \x1b[1mVideo codecs")) << text;
}

TEST(Terminal, HasNoColoursWithNoColor)
{
    const auto text = OnTerminal({"formats"}, {"TERM=xterm", "NO_COLOR=1"});
    EXPECT_FALSE(HasColours(text));
    EXPECT_TRUE(HasRules(text));
}

TEST(Terminal, HasColoursWithAnEmptyNoColor)
{
    EXPECT_TRUE(HasColours(OnTerminal({"formats"}, {"TERM=xterm", "NO_COLOR="})));
}

TEST(Terminal, IsLeftPlainWhereItIsDumb)
{
    const auto text = OnTerminal({"formats"}, {"TERM=dumb"});
    EXPECT_FALSE(HasColours(text));
    EXPECT_FALSE(HasRules(text));
}

TEST(Terminal, ShowsTheCurrentEntryStrong)
{
    EXPECT_NE(std::string::npos,
              OnTerminal({"show", "Video/WEBM"}, {"TERM=xterm"}).find("\x1b[1m[VP9],\x1b[0m"));
}

TEST(Terminal, TablesAreNoWiderThanItIs)
{
    const auto text = OnTerminal({"formats"}, {"TERM=xterm", "NO_COLOR=1", "COLUMNS=90"});
    EXPECT_NE(std::string::npos, text.find("\n          │ ")) << text;
    EXPECT_LE(WidestLine(text), 90) << text;
    EXPECT_GT(WidestLine(text), 80) << text;
}

TEST(Terminal, ListsAreNoWiderThanItIs)
{
    EXPECT_LE(WidestLine(OnTerminal({"codecs", "h264"}, {"TERM=xterm", "NO_COLOR=1", "COLUMNS=60"})), 60);
}

TEST(Terminal, TablesAreAsWideAsTheyMustWhereItIsTooNarrow)
{
    const auto narrow = OnTerminal({"formats"}, {"TERM=xterm", "NO_COLOR=1", "COLUMNS=1"});
    EXPECT_NE(std::string::npos, narrow.find("Microsoft ADPCM,")) << narrow;
}

TEST(Terminal, GetsPlainJson) { EXPECT_FALSE(HasColours(OnTerminal({"formats", "--json"}, {"TERM=xterm"}))); }

TEST(Pipe, GetsALineForEveryRow)
{
    EXPECT_EQ(RunTool({"formats"}).out, RunTool({"formats"}, {.environment = {"COLUMNS=20"}}).out);
}

TEST(Pipe, GetsPlainText)
{
    const auto text = RunTool({"formats"}, {.environment = {"TERM=xterm"}}).out;
    EXPECT_FALSE(HasColours(text));
    EXPECT_FALSE(HasRules(text));
}

} // namespace

} // namespace Vexlor::Apps
