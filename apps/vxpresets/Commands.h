#pragma once

#include "ArtworkRequest.h"
#include "ConvertRequest.h"
#include "EditRequest.h"
#include "ImportRequest.h"
#include "Style.h"
#include "apps/host/Catalogue.h"

#include <optional>
#include <string>

namespace Vexlor::Tool
{

struct Request;

/// What a command answers on standard output. Throws Failure or BadAnswer.
using Command = std::string (*)(const Request& request, const Catalogue& catalogue, const Style& style);

/// What the user asks for.
struct Request
{
    Command command = nullptr;
    bool asJson = false;
    bool asMarkdown = false;
    bool asPaths = false;
    std::optional<std::string> document;
    std::string preset;
    ConvertRequest convert = {};
    std::optional<std::string> codec;
    ArtworkRequest artwork = {};
    EditRequest edit = {};
    ImportRequest import = {};
    bool needsCatalogue = true; ///< the command gets an empty one otherwise
};

/// The tree with the number of presets in each category, or the preset document.
std::string TreeCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// One format preset: every list of its codec presets with the current entry marked.
std::string ShowCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// The containers that can be written, and the codecs that each takes.
std::string FormatsCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// The codecs, and what each accepts.
std::string CodecsCommand(const Request& request, const Catalogue& catalogue, const Style& style);
/// What a preset document has wrong.
std::string CheckCommand(const Request& request, const Catalogue& catalogue, const Style& style);

} // namespace Vexlor::Tool
