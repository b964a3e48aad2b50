#include "ArtworkCommands.h"

#include <CLI/CLI.hpp>

#include <QtGlobal>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kFileHelp = "Artwork file; the built-in one where none is named";
constexpr const char* kGroupHelp =
    "Group: its face identifier, the identifier's name or a part of it, or #POSITION";

// What decoders think of a damaged picture; the commands tell it themselves, with the picture's name.
void Discard(QtMsgType, const QMessageLogContext&, const QString&) {}

CLI::App* Add(CLI::App& app, Request& request, const char* name, const char* help, Command command)
{
    auto* sub = app.add_subcommand(name, help);
    sub->callback(
        [&request, command]
        {
            qInstallMessageHandler(Discard);
            request.command = command;
            request.needsCatalogue = false;
        });
    return sub;
}

CLI::App* AddReading(CLI::App& app, Request& request, const char* name, const char* help, Command command)
{
    auto* sub = Add(app, request, name, help, command);
    sub->add_option("FILE", request.artwork.file, kFileHelp);
    return sub;
}

CLI::App* AddChanging(CLI::App& app, Request& request, const char* name, const char* help, Command command)
{
    auto* sub = Add(app, request, name, help, command);
    sub->add_option("FILE", request.artwork.file, "Artwork file")->required();
    return sub;
}

void AddPictureOptions(CLI::App& sub, Request& request)
{
    sub.add_option("--from", request.artwork.drawing,
                   "SVG or picture of which 16, 32 and 64 pixels in all four modes are made")
        ->type_name("PICTURE");
    sub.add_option(
           "--picture", request.artwork.pictures,
           "Picture of a variant (0 to 2) and a mode (normal, disabled, active, selected); repeatable")
        ->type_name("VARIANT:MODE=PICTURE")
        ->take_all()
        ->allow_extra_args(false);
}

void AddReadingCommands(CLI::App& app, Request& request)
{
    AddReading(app, request, "list", "Print the groups: identifiers, pictures, sizes, bytes",
               ArtworkListCommand)
        ->add_flag("--json", request.asJson, "Print JSON, for programs");
    AddReading(app, request, "check", "Print what is wrong; exit code 1 for more than warnings",
               ArtworkCheckCommand)
        ->add_flag("--json", request.asJson, "Print JSON, for programs");
    AddReading(app, request, "show", "Draw every picture, on light and on dark, as one PNG",
               ArtworkShowCommand)
        ->add_option("-o,--output", request.artwork.target, "PNG to write")
        ->type_name("PNG")
        ->required();
    auto* extract = AddReading(app, request, "extract", "Write the pictures as files", ArtworkExtractCommand);
    extract->add_option("--to", request.artwork.target, "Folder to write to; made when there is none")
        ->type_name("FOLDER")
        ->required();
    extract->add_option("--face", request.artwork.faces, kGroupHelp)
        ->type_name("GROUP")
        ->take_all()
        ->allow_extra_args(false);
}

void AddChangingCommands(CLI::App& app, Request& request)
{
    auto* add = AddChanging(app, request, "add", "Add a group; the file is made when there is none",
                            ArtworkAddCommand);
    add->add_option("FACE", request.artwork.face,
                    "Face identifier or its name; the lowest free one where none is named");
    AddPictureOptions(*add, request);
    auto* replace =
        AddChanging(app, request, "replace", "Replace all pictures of a group", ArtworkReplaceCommand);
    replace->add_option("GROUP", request.artwork.faces, kGroupHelp)->required()->expected(1);
    AddPictureOptions(*replace, request);
    AddChanging(app, request, "remove", "Remove groups", ArtworkRemoveCommand)
        ->add_option("GROUP", request.artwork.faces, kGroupHelp)
        ->required();
    AddChanging(app, request, "compact", "Write the file anew, without bytes that no group uses",
                ArtworkCompactCommand);
}

} // namespace

void AddArtworkCommands(CLI::App& app, Request& request)
{
    auto* artwork = app.add_subcommand("artwork", "Look into an artwork file, or change it");
    artwork->require_subcommand(1);
    AddReadingCommands(*artwork, request);
    AddChangingCommands(*artwork, request);
    for (auto* sub : artwork->get_subcommands({}))
        sub->footer(app.get_footer());
    artwork->footer(app.get_footer());
}

} // namespace Vexlor::Tool
