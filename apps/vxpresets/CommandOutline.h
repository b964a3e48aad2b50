#pragma once

#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace Vexlor::Tool
{

/// An option, or an argument that is told by its place.
struct OutlinedOption
{
    std::vector<std::string> names; ///< "-o", "--output"; of an argument its name alone: "FILE"
    std::string value;              ///< what it takes: "FILE"; empty for a flag
    std::string help;
    bool required = false;
    std::vector<std::string> choices = {}; ///< of a value that is one of several words: "a|b"
};

/// A command: what it is called, what it says of itself, what it takes.
struct OutlinedCommand
{
    std::vector<std::string> path; ///< "artwork", "list"; empty for the program itself
    std::string help;
    std::vector<OutlinedOption> options;
    std::vector<OutlinedOption> arguments;
    std::vector<std::string> commands; ///< the commands below it
};

/// The program's commands, each in front of those below it, the program itself first.
std::vector<OutlinedCommand> OutlineOf(const CLI::App& program);

/// What "generate" prints: "man" the manual page, "bash", "zsh" or "fish" a shell's completion.
std::string Generated(const std::string& kind, const std::vector<OutlinedCommand>& outline);

/// The manual page, for man(1).
std::string ManualPage(const std::vector<OutlinedCommand>& outline);
/// The completion of a shell: commands, options, the names of presets and files.
std::string BashCompletion(const std::vector<OutlinedCommand>& outline);
std::string ZshCompletion(const std::vector<OutlinedCommand>& outline);
std::string FishCompletion(const std::vector<OutlinedCommand>& outline);

} // namespace Vexlor::Tool
