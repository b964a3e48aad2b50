#pragma once

#include "Commands.h"

namespace CLI
{
class App;
}

namespace Vexlor::Tool
{

/// Adds "artwork" with its own commands, which fill in request.
void AddArtworkCommands(CLI::App& app, Request& request);

/// The groups of an artwork file.
std::string ArtworkListCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// What is wrong with an artwork file. Throws Findings where that is more than a warning.
std::string ArtworkCheckCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Writes the pictures of an artwork file as files.
std::string ArtworkExtractCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Draws all pictures of an artwork file on one sheet.
std::string ArtworkShowCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Adds a group.
std::string ArtworkAddCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Puts a group into the place of another one.
std::string ArtworkReplaceCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Removes groups.
std::string ArtworkRemoveCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// Writes the file anew without bytes that no group uses.
std::string ArtworkCompactCommand(const Request& request, const Catalogue& catalogue, const Style& style);

} // namespace Vexlor::Tool
