#include "CommandLine.h"

#include "ArtworkCommands.h"
#include "CommandOptions.h"
#include "CommandOutline.h"
#include "ConvertCommands.h"
#include "EditCommands.h"
#include "ImportCommand.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include <CLI/CLI.hpp>

namespace Vexlor::Tool
{

namespace
{

constexpr auto* kAbout =
    "Output presets of a media converter: what they offer, and what a media file becomes in one of them.";
constexpr auto* kFooter = "Exit codes: 0 done, 1 failed, 2 wrong usage.";

// Every option is taken before the command as well as behind it.
void AddCommonOptions(CLI::App& app, Request& request)
{
    app.add_flag("--json", request.asJson, "Print JSON, for programs");
    app.add_option("--document", request.document, "Preset document to use in place of the built-in tree")
        ->type_name("FILE");
    app.footer(kFooter);
}

} // namespace

CLI::App* AddCommand(CLI::App& app, Request& request, const char* name, const char* help, Command command)
{
    auto* sub = app.add_subcommand(name, help);
    AddCommonOptions(*sub, request);
    sub->callback([&request, command] { request.command = command; });
    return sub;
}

namespace
{

void AddCheck(CLI::App& app, Request& request)
{
    auto* check = app.add_subcommand(
        "check", "Print what a preset document has wrong; exit code 1 for more than warnings");
    check->add_option("DOCUMENT", request.document, "Preset document")->required();
    check->add_option("--artwork", request.artwork.file, "Artwork file in place of the built-in one")
        ->type_name("FILE");
    check->add_flag("--json", request.asJson, "Print JSON, for programs");
    check->footer(kFooter);
    check->callback(
        [&request]
        {
            request.command = CheckCommand;
            request.needsCatalogue = false;
        });
}

void AddCommands(CLI::App& app, Request& request)
{
    AddCommand(app, request, "tree", "Print the tree of presets, with the number of presets in each category",
               TreeCommand)
        ->add_flag("--paths", request.asPaths, "Print the paths of the presets, one a line")
        ->excludes("--json");
    AddCommand(app, request, "show", "Print a preset: every list, the current entry in brackets", ShowCommand)
        ->add_option("PRESET", request.preset, kPresetHelp)
        ->required();
    AddConvertCommands(app, request);
    AddCommand(app, request, "formats", "Print the containers and the codecs that each takes",
               FormatsCommand);
    auto* codecs =
        AddCommand(app, request, "codecs", "Print the codecs and what each accepts", CodecsCommand);
    auto* codec =
        codecs->add_option("CODEC", request.codec, "Name or number of the only codec to print, in full");
    codecs
        ->add_flag("--markdown", request.asMarkdown,
                   "Print the whole reference, with containers and bitrates")
        ->excludes(codec)
        ->excludes("--json");
    AddCheck(app, request);
    AddEditCommands(app, request);
    AddImportCommand(app, request);
    AddArtworkCommands(app, request);
}

/// What packagers install beside the tool, made from what the tool itself knows of its commands.
void AddGenerate(CLI::App& app, std::string& text)
{
    const std::string kinds = "man, bash, zsh or fish";
    auto* generate = app.add_subcommand("generate", "Print the manual page or a shell's completion");
    auto kind = std::make_shared<std::string>();
    generate->add_option("KIND", *kind, "What to print: " + kinds)
        ->required()
        ->type_name("man|bash|zsh|fish")
        ->check(CLI::IsMember({"man", "bash", "zsh", "fish"}).description(""));
    generate->callback([&app, &text, kind] { text = Generated(*kind, OutlineOf(app)); });
}

/// The last of the commands that were named, one inside the other; the program itself where none was.
const CLI::App& Reached(const CLI::App& app)
{
    const auto* reached = &app;
    while (!reached->get_subcommands().empty())
        reached = reached->get_subcommands().front();
    return *reached;
}

/// What is wrong. A wrong word in place of a command would otherwise go unmentioned: only that there is no
/// command is told.
std::string ReasonOf(const CLI::App& app, const CLI::ParseError& error)
{
    const auto& reached = Reached(app);
    const auto rest = reached.remaining();
    if (!reached.get_subcommands({}).empty() && !rest.empty())
        return (rest.front().starts_with('-') ? "no option " : "no command ") + Quoted(rest.front());
    return error.what();
}

} // namespace

CommandLine ReadCommandLine(int argc, const char* const* argv)
{
    CommandLine line;
    CLI::App app(kAbout, "vxpresets");
    app.set_version_flag("--version", "vxpresets " VX_VERSION);
    app.require_subcommand(1);
    AddCommonOptions(app, line.request);
    AddCommands(app, line.request);
    AddGenerate(app, line.text);
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::CallForHelp&)
    {
        line.text = app.help();
    }
    catch (const CLI::CallForVersion& version)
    {
        line.text = std::string(version.what()) + '\n';
    }
    catch (const CLI::ParseError& error)
    {
        throw WrongUsage(ReasonOf(app, error) + "; see vxpresets --help");
    }
    return line;
}

} // namespace Vexlor::Tool
