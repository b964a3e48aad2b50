#pragma once

#include "Commands.h"

namespace CLI
{
class App;
}

namespace Vexlor::Tool
{

/// Adds "edit" with its own commands, which fill in request.
void AddEditCommands(CLI::App& app, Request& request);

/// What has been changed in a document: a line for each thing, or JSON.
std::string ChangesText(const Request& request, const std::string& file,
                        const std::vector<EditOutcome>& outcomes);

/// Adds a category or a preset.
std::string EditAddCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Removes categories and presets.
std::string EditRemoveCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Moves a category or a preset.
std::string EditMoveCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Gives a category or a preset another name.
std::string EditRenameCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Copies a category or a preset.
std::string EditCloneCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Sets values of a preset or a category.
std::string EditSetCommand(const Request& request, const Catalogue& catalogue, const Style& style);

} // namespace Vexlor::Tool
