#include "CommandOutline.h"

#include <CLI/CLI.hpp>

namespace Vexlor::Tool
{

namespace
{

std::vector<std::string> NamesOf(const CLI::Option& option)
{
    std::vector<std::string> names;
    for (const auto& name : option.get_snames())
        names.push_back('-' + name);
    for (const auto& name : option.get_lnames())
        names.push_back("--" + name);
    if (names.empty())
        names.push_back(option.get_name(true));
    return names;
}

OutlinedOption Outlined(const CLI::Option& option)
{
    const auto value = option.get_items_expected_max() > 0 ? option.get_type_name() : std::string();
    const bool isChoice = value.find('|') != std::string::npos;
    return {NamesOf(option), value, option.get_description(), option.get_required(),
            isChoice ? CLI::detail::split(value, '|') : std::vector<std::string>()};
}

void AddOutline(const CLI::App& app, std::vector<std::string> path, std::vector<OutlinedCommand>& outline)
{
    OutlinedCommand command{path, app.get_description(), {}, {}, {}};
    for (const auto* option : app.get_options({}))
        (option->get_positional() ? command.arguments : command.options).push_back(Outlined(*option));
    const auto below = app.get_subcommands({});
    for (const auto* sub : below)
        command.commands.push_back(sub->get_name());
    outline.push_back(std::move(command));
    path.emplace_back();
    for (const auto* sub : below)
    {
        path.back() = sub->get_name();
        AddOutline(*sub, path, outline);
    }
}

} // namespace

std::vector<OutlinedCommand> OutlineOf(const CLI::App& program)
{
    std::vector<OutlinedCommand> outline;
    AddOutline(program, {}, outline);
    return outline;
}

std::string Generated(const std::string& kind, const std::vector<OutlinedCommand>& outline)
{
    if (kind == "bash")
        return BashCompletion(outline);
    if (kind == "zsh")
        return ZshCompletion(outline);
    return kind == "fish" ? FishCompletion(outline) : ManualPage(outline);
}

} // namespace Vexlor::Tool
