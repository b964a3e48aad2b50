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

void AddFitting(CLI::App& sub, Request& request)
{
    auto* stretch = sub.add_flag("--stretch", request.convert.stretches, "Bend the picture into the frame");
    sub.add_flag("--crop", request.convert.crops, "Fill the frame and cut off the rest of the picture")
        ->excludes(stretch);
}

void AddMatch(CLI::App& app, Request& request)
{
    auto* match =
        AddCommand(app, request, "match", "Print what a media file becomes in a preset", MatchCommand);
    match->add_option("MEDIA", request.convert.media, "Media file")->required();
    auto* preset = AddPreset(*match, request);
    auto* all = match
                    ->add_flag("--all", request.convert.allPresets,
                               "Print what it becomes in every preset, the best fit first")
                    ->excludes(preset);
    auto* ffmpeg = match
                       ->add_option("--ffmpeg", request.convert.ffmpegOutput,
                                    "Print the command line of the ffmpeg program that makes the file OUT")
                       ->type_name("OUT")
                       ->excludes(all);
    AddFitting(*match, request);
    for (const char* name : {"--stretch", "--crop"})
        match->get_option(name)->needs(ffmpeg);
    match->callback(
        [&request]
        {
            if (!request.convert.allPresets && request.preset.empty())
                throw CLI::RequiredError("--preset");
            request.command = request.convert.allPresets ? MatchAllCommand : MatchCommand;
        });
}

void AddSize(CLI::App& app, Request& request)
{
    auto* size = AddCommand(app, request, "size",
                            "Print how large a media file becomes in a preset; exit code 1 for a size that "
                            "cannot be had",
                            SizeCommand);
    size->add_option("MEDIA", request.convert.media, "Media file")->required();
    AddPreset(*size, request)->required();
    size->add_option("--target", request.convert.target,
                     "Print the bitrates with which it is not larger: 25MB, 700MiB")
        ->type_name("SIZE");
}

void AddConvert(CLI::App& app, Request& request)
{
    auto& convert = request.convert;
    auto* sub =
        AddCommand(app, request, "convert", "Convert a media file with the ffmpeg program", ConvertCommand);
    sub->add_option("SOURCE", convert.media, "Media file")->required();
    sub->add_option("OUT", convert.output, "File to write")->required();
    AddPreset(*sub, request)->required();
    AddFitting(*sub, request);
    sub->add_flag("--dry-run", convert.isDryRun, "Print the command line of the ffmpeg program instead");
    sub->add_flag("--force", convert.overwrites, "Overwrite the file to write where there is one");
}

} // namespace

void AddConvertCommands(CLI::App& app, Request& request)
{
    AddMatch(app, request);
    AddSize(app, request);
    AddConvert(app, request);
}

} // namespace Vexlor::Tool
