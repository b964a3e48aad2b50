#include "EditCommands.h"

#include "apps/host/Text.h"
#include "apps/host/document/PresetValues.h"

#include <CLI/CLI.hpp>

namespace Vexlor::Tool
{

namespace
{

constexpr const char* kPathHelp =
    "Path of names (\"Video/MP4\"; \"\\/\" stands for a slash inside a name, \"/\" for "
    "the root), a name that is there once, or a JSON pointer";
constexpr const char* kSettingsHelp = "What to set, KEY=VALUE; the keys stand below";

CLI::App* Add(CLI::App& app, Request& request, const char* name, const char* help, Command command)
{
    auto* sub = app.add_subcommand(name, help);
    sub->add_option("DOCUMENT", request.edit.document, "Preset document")->required();
    sub->add_flag("--backup", request.edit.keepsBackup, "Keep the old file, with .bak behind its name");
    sub->add_flag("--json", request.asJson, "Print JSON, for programs");
    sub->callback(
        [&request, command]
        {
            request.command = command;
            request.needsCatalogue = false;
        });
    return sub;
}

void AddPath(CLI::App& sub, Request& request)
{
    sub.add_option("PATH", request.edit.path, kPathHelp)->required();
}

CLI::Option* AddSettings(CLI::App& sub, Request& request)
{
    std::string keys = "Keys and their values:\n";
    for (const auto& key : PresetKeys())
        keys += "  " + Padded(std::string(key.name), 20) + std::string(key.help) + '\n';
    sub.footer(keys +
               "Values of a stream are those of its current codec. A category has description and face.");
    return sub.add_option("SETTING", request.edit.settings, kSettingsHelp);
}

void AddPlace(CLI::App& sub, Request& request)
{
    auto& place = request.edit.place;
    auto* before = sub.add_option("--before", place.before, "Put it in front of the sibling of that name")
                       ->type_name("NAME");
    auto* after =
        sub.add_option("--after", place.after, "Put it behind the sibling of that name")->type_name("NAME");
    auto* first = sub.add_flag("--first", place.isFirst, "Put it in front of all; behind all otherwise");
    before->excludes(after)->excludes(first);
    after->excludes(first);
}

void AddAdd(CLI::App& app, Request& request)
{
    auto* add = Add(app, request, "add",
                    "Add a category or a preset; the document is made when there is none", EditAddCommand);
    AddPath(*add, request);
    AddSettings(*add, request);
    add->add_flag("--category", request.edit.isCategory, "Add a category");
    add->add_option("--container", request.edit.container,
                    "Add a preset of that container, with all codecs that it takes")
        ->type_name("NAME");
    auto* from =
        add->add_option("--from", request.edit.preset, "Add a copy of that preset of the built-in tree")
            ->type_name("PRESET");
    add->add_option("--from-document", request.edit.source, "Document in place of the built-in tree")
        ->type_name("FILE")
        ->needs(from);
    add->add_flag("--parents", request.edit.mayMakeParents, "Make categories on the way that are missing");
    AddPlace(*add, request);
}

void AddOthers(CLI::App& app, Request& request)
{
    auto* remove = Add(app, request, "remove", "Remove presets and categories", EditRemoveCommand);
    remove->add_option("PATH", request.edit.paths, kPathHelp)->required();
    remove->add_flag("--recursive", request.edit.mayHoldMore, "Remove categories that are not empty, too");
    auto* move = Add(app, request, "move", "Move a preset or a category", EditMoveCommand);
    AddPath(*move, request);
    move->add_option("--into", request.edit.into, "Category to move it into; where it is otherwise")
        ->type_name("CATEGORY");
    AddPlace(*move, request);
    auto* rename = Add(app, request, "rename", "Rename a preset or a category", EditRenameCommand);
    AddPath(*rename, request);
    rename->add_option("NAME", request.edit.name, "New name")->required();
    auto* clone = Add(app, request, "clone",
                      "Copy a preset or a category into Customised, which is made when there is none",
                      EditCloneCommand);
    AddPath(*clone, request);
    AddSettings(*clone, request);
    clone->add_option("--into", request.edit.into, "Category in place of Customised")->type_name("CATEGORY");
    clone->add_option("--name", request.edit.name, "Name of the copy; the same, with a number if it is taken")
        ->type_name("NAME");
    auto* set = Add(app, request, "set", "Set values of a preset, or of a category", EditSetCommand);
    AddPath(*set, request);
    AddSettings(*set, request)->required();
}

} // namespace

void AddEditCommands(CLI::App& app, Request& request)
{
    auto* edit = app.add_subcommand("edit", "Change a preset document; all or nothing is written");
    edit->require_subcommand(1);
    AddAdd(*edit, request);
    AddOthers(*edit, request);
    for (auto* sub : edit->get_subcommands({}))
        sub->footer(sub->get_footer() + (sub->get_footer().empty() ? "" : "\n") + app.get_footer());
    edit->footer(app.get_footer());
}

} // namespace Vexlor::Tool
