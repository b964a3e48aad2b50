#include "ImportCommand.h"

#include <CLI/CLI.hpp>

namespace Vexlor::Tool
{

void AddImportCommand(CLI::App& app, Request& request)
{
    auto* command = app.add_subcommand("import", "Turn presets of HandBrake (JSON) or GStreamer (.gep) into "
                                                 "ours, and tell what cannot become the same");
    command->add_option("FILE", request.import.file, "File of presets")->required();
    auto* into = command->add_option("--into", request.import.into, "Preset document to add them to")
                     ->type_name("DOCUMENT");
    command->add_option("-o,--output", request.import.output, "New preset document to write them to")
        ->type_name("DOCUMENT")
        ->excludes(into);
    command
        ->add_flag("--backup", request.import.keepsBackup, "Keep the old document, with .bak behind its name")
        ->needs(into);
    command->add_flag("--json", request.asJson, "Print JSON, for programs");
    command->footer(app.get_footer());
    command->callback(
        [&request]
        {
            request.command = ImportCommand;
            request.needsCatalogue = false;
        });
}

} // namespace Vexlor::Tool
