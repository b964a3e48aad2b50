#include "CommandOutline.h"
#include "apps/host/Text.h"

namespace Vexlor::Tool
{

namespace
{

// roff takes a backslash, a dash and a dot or quote at a line's start for its own.
std::string Escaped(const std::string& text)
{
    std::string escaped;
    if (text.starts_with('.') || text.starts_with('\''))
        escaped += "\\&";
    for (const char letter : text)
    {
        if (letter == '\\')
            escaped += "\\e";
        else if (letter == '-')
            escaped += "\\-";
        else
            escaped += letter;
    }
    return escaped;
}

std::string Titled(const OutlinedOption& option)
{
    std::string title = "\\fB" + Escaped(Joined(option.names, ", ")) + "\\fR";
    return option.value.empty() ? title : title + " \\fI" + Escaped(option.value) + "\\fR";
}

std::string Item(const std::string& title, const std::string& text)
{
    return ".TP\n" + title + "\n" + Escaped(text) + ".\n";
}

std::string Argument(const OutlinedOption& argument)
{
    const auto name = "\\fI" + Escaped(argument.names.front()) + "\\fR";
    return argument.required ? ' ' + name : " [" + name + ']';
}

std::string Heading(const OutlinedCommand& command)
{
    return ".SS vxpresets " + Joined(command.path, " ") + '\n';
}

std::string Section(const OutlinedCommand& command)
{
    std::string text =
        Heading(command) + "\\fBvxpresets " + Joined(command.path, " ") + "\\fR [\\fIoptions\\fR]";
    for (const auto& option : command.options)
        if (option.required)
            text += ' ' + Titled(option);
    for (const auto& argument : command.arguments)
        text += Argument(argument);
    text += "\n.PP\n" + Escaped(command.help) + ".\n";
    for (const auto& argument : command.arguments)
        text += Item("\\fI" + Escaped(argument.names.front()) + "\\fR", argument.help);
    for (const auto& option : command.options)
        text += Item(Titled(option), option.help);
    return text;
}

} // namespace

std::string ManualPage(const std::vector<OutlinedCommand>& outline)
{
    const auto& program = outline.front();
    std::string page =
        ".TH VXPRESETS 1 \"\" \"VXMediaPresets " VX_VERSION "\" \"User Commands\"\n"
        ".SH NAME\nvxpresets \\- output presets of a media converter\n"
        ".SH SYNOPSIS\n\\fBvxpresets\\fR [\\fIoptions\\fR] \\fIcommand\\fR [\\fIarguments\\fR]\n"
        ".SH DESCRIPTION\n" +
        Escaped(program.help) + "\n.SH OPTIONS\n";
    for (const auto& option : program.options)
        page += Item(Titled(option), option.help);
    page += ".SH COMMANDS\n";
    for (const auto& command : outline)
        if (!command.path.empty() && command.commands.empty())
            page += Section(command);
    return page +
           ".SH EXIT STATUS\n0 when done, 1 when something failed, 2 for a wrong usage.\n"
           ".SH ENVIRONMENT\n" +
           Item("\\fBNO_COLOR\\fR", "Set to anything but nothing, it switches colours off");
}

} // namespace Vexlor::Tool
