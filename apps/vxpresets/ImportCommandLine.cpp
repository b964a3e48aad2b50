#include "ImportCommand.h"

#include <CLI/CLI.hpp>

namespace Vexlor::Tool
{

void AddImportCommand(CLI::App& app, Request& request)
{
    auto* import = app.add_subcommand(
        "import", "Turn presets of HandBrake (JSON) or GStreamer (.gep) into ours, and tell what does not");
    import->add_option("FILE", request.import.file, "File of presets")->required();
    auto* into = import->add_option("--into", request.import.into, "Preset document to add them to")
                     ->type_name("DOCUMENT");
    import->add_option("-o,--output", request.import.output, "New preset document to write them to")
        ->type_name("DOCUMENT")
        ->excludes(into);
    import
        ->add_flag("--backup", request.import.keepsBackup, "Keep the old document, with .bak behind its name")
        ->needs(into);
    import->add_flag("--json", request.asJson, "Print JSON, for programs");
    import->footer(app.get_footer());
    import->callback(
        [&request]
        {
            request.command = ImportCommand;
    request.needsCatalogue = false;
});
} // namespace Vexlor::Tool

} // namespace Vexlor::Tool
