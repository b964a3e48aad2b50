#include "ConvertCommands.h"

#include "CommandOptions.h"

#include <CLI/CLI.hpp>

namespace Vexlor::Tool
{

namespace
{

CLI::Option* AddPreset(CLI::App& sub, Request& request)
{
    return sub.add_option("--preset", request.preset, kPresetHelp)->type_name("PRESET");
}

void AddMatch(CLI::App& app, Request& request)
{
    auto* match =
        AddCommand(app, request, "match", "Print what a media file becomes in a preset", MatchCommand);
    match->add_option("MEDIA", request.convert.media, "Media file")->required();
    auto* preset = AddPreset(*match, request);
    match
        ->add_flag("--all", request.convert.allPresets,
                   "Print what it becomes in every preset, the best fit first")
        ->excludes(preset);
    match->callback(
        [&request]
        {
            if (!request.convert.allPresets && request.preset.empty())
                throw CLI::RequiredError("--preset");
            request.command = request.convert.allPresets ? MatchAllCommand : MatchCommand;
        });
}

} // namespace

void AddConvertCommands(CLI::App& app, Request& request) { AddMatch(app, request); }

} // namespace Vexlor::Tool
