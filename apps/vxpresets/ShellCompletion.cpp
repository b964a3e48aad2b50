#include "CommandOutline.h"
#include "apps/host/Text.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

std::vector<std::string> OptionNames(const OutlinedCommand& command)
{
    std::vector<std::string> names;
    for (const auto& option : command.options)
        names.insert(names.end(), option.names.begin(), option.names.end());
    return names;
}

bool TakesPreset(const OutlinedCommand& command)
{
    return std::ranges::any_of(command.arguments, [](const OutlinedOption& argument)
                               { return argument.names.front() == "PRESET"; });
}

/// The words that may come next, besides options: commands below it, or what an argument may be.
std::vector<std::string> NextWords(const OutlinedCommand& command)
{
    auto words = command.commands;
    for (const auto& argument : command.arguments)
        words.insert(words.end(), argument.choices.begin(), argument.choices.end());
    return words;
}

std::string SingleQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char letter : text)
        quoted += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
    return quoted + '\'';
}

// The shell walks over the words in front of the cursor and so comes to the command that they name:
// "/artwork/list".
std::string PlaceOf(const OutlinedCommand& command)
{
    std::string place;
    for (const auto& name : command.path)
        place += '/' + name;
    return place;
}

std::string PlacesBelow(const std::vector<OutlinedCommand>& outline)
{
    std::vector<std::string> places;
    for (const auto& command : outline)
        if (!command.path.empty())
            places.push_back(PlaceOf(command));
    return Joined(places, " | ");
}

/// One line a command of a shell's case: its place, and assignments that bash and zsh both read.
std::string Cases(const std::vector<OutlinedCommand>& outline)
{
    std::string cases;
    for (const auto& command : outline)
        cases += "        " + SingleQuoted(PlaceOf(command)) +
                 ") commands=" + SingleQuoted(Joined(NextWords(command), " ")) +
                 " options=" + SingleQuoted(Joined(OptionNames(command), " ")) +
                 (TakesPreset(command) ? " presets=yes" : "") + " ;;\n";
    return cases;
}

/// What bash and zsh share: from the words in front of the cursor to commands, options and presets.
std::string Walk(const std::vector<OutlinedCommand>& outline, const std::string& words)
{
    return "    local word place= commands= options= presets=\n"
           "    for word in " +
           words +
           "; do\n"
           "        case \"$place/$word\" in\n"
           "        " +
           PlacesBelow(outline) +
           ") place=\"$place/$word\" ;;\n"
           "        esac\n"
           "    done\n"
           "    case \"$place\" in\n" +
           Cases(outline) + "    esac\n";
}

// A command's name may be another's below it: "show" and "artwork show". Seen behind a command with others
// below it, it is theirs.
std::string FishCondition(const OutlinedCommand& command, const std::vector<OutlinedCommand>& outline)
{
    std::vector<std::string> terms;
    for (const auto& name : command.path)
        terms.push_back("__fish_seen_subcommand_from " + name);
    for (const auto& other : outline)
        if (other.path.size() == 1 && !other.commands.empty() && command.path.size() == 1 &&
            other.path != command.path)
            terms.push_back("not __fish_seen_subcommand_from " + other.path.front());
    if (!command.commands.empty())
        terms.push_back("not __fish_seen_subcommand_from " + Joined(command.commands, " "));
    return Joined(terms, "; and ");
}

std::string FishChoices(const std::string& prefix, const OutlinedCommand& command)
{
    std::string lines;
    for (const auto& argument : command.arguments)
        if (!argument.choices.empty())
            lines += prefix + " -f -a " + SingleQuoted(Joined(argument.choices, " ")) + '\n';
    return lines;
}

std::string FishOption(const std::string& prefix, const OutlinedOption& option)
{
    std::string line = prefix;
    for (const auto& name : option.names)
        line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    if (option.value == "PRESET")
        line += " -x -a '(vxpresets tree --paths 2>/dev/null)'";
    else if (!option.value.empty())
        line += " -r";
    return line + " -d " + SingleQuoted(option.help) + '\n';
}

} // namespace

std::string BashCompletion(const std::vector<OutlinedCommand>& outline)
{
    return "# bash completion of vxpresets; made by vxpresets generate bash\n"
           "_vxpresets()\n"
           "{\n"
           "    local IFS=$' \\t\\n' current=${COMP_WORDS[COMP_CWORD]} "
           "previous=${COMP_WORDS[COMP_CWORD-1]}\n" +
           Walk(outline, "\"${COMP_WORDS[@]:1:COMP_CWORD-1}\"") +
           "    if [[ $previous == --preset || $presets && $current != -* ]]; then\n"
           "        local IFS=$'\\n'\n"
           "        COMPREPLY=($(compgen -W \"$(vxpresets tree --paths 2>/dev/null)\" -- \"$current\"))\n"
           "        COMPREPLY=($(printf '%q\\n' \"${COMPREPLY[@]}\"))\n"
           "    elif [[ $current == -* ]]; then\n"
           "        COMPREPLY=($(compgen -W \"$options\" -- \"$current\"))\n"
           "    else\n"
           "        COMPREPLY=($(compgen -W \"$commands\" -- \"$current\"))\n"
           "    fi\n"
           "}\n"
           "complete -o default -F _vxpresets vxpresets\n";
}

std::string ZshCompletion(const std::vector<OutlinedCommand>& outline)
{
    return "#compdef vxpresets\n"
           "# zsh completion of vxpresets; made by vxpresets generate zsh\n"
           "_vxpresets()\n"
           "{\n" +
           Walk(outline, "\"${(@)words[2,CURRENT-1]}\"") +
           "    if [[ $words[CURRENT-1] == --preset || -n $presets && $words[CURRENT] != -* ]]; then\n"
           "        compadd -- \"${(@f)$(vxpresets tree --paths 2>/dev/null)}\"\n"
           "    elif [[ $words[CURRENT] == -* ]]; then\n"
           "        compadd -- ${=options}\n"
           "    elif [[ -n $commands ]]; then\n"
           "        compadd -- ${=commands}\n"
           "    else\n"
           "        _files\n"
           "    fi\n"
           "}\n"
           "_vxpresets \"$@\"\n";
}

std::string FishCompletion(const std::vector<OutlinedCommand>& outline)
{
    std::string text = "# fish completion of vxpresets; made by vxpresets generate fish\n";
    for (const auto& command : outline)
    {
        const auto prefix = "complete -c vxpresets -n " + SingleQuoted(FishCondition(command, outline));
        for (const auto& below : outline)
            if (below.path.size() == command.path.size() + 1 &&
                std::equal(command.path.begin(), command.path.end(), below.path.begin()))
                text += prefix + " -f -a " + below.path.back() + " -d " + SingleQuoted(below.help) + '\n';
        text += FishChoices(prefix, command);
        for (const auto& option : command.options)
            text += FishOption(prefix, option);
        if (TakesPreset(command))
            text += prefix + " -f -a '(vxpresets tree --paths 2>/dev/null)'\n";
    }
    return text;
}

} // namespace Vexlor::Tool
