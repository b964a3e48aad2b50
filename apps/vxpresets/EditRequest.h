#pragma once

#include "apps/host/document/DocumentEdit.h"

#include <optional>
#include <string>
#include <vector>

namespace Vexlor::Tool
{

/// What the user wants changed in a preset document.
struct EditRequest
{
    std::string document;
    std::string path;                  ///< of a preset or a category
    std::vector<std::string> paths;    ///< of those to remove
    std::vector<std::string> settings; ///< "KEY=VALUE"
    std::optional<std::string> name;   ///< a new one
    std::optional<std::string> into;   ///< category
    EditPlace place;
    bool isCategory = false;              ///< what is added
    std::optional<std::string> container; ///< what a preset is made of
    std::optional<std::string> preset;    ///< what is added is a copy of it
    std::optional<std::string> source;    ///< the document that it stands in
    bool mayMakeParents = false;
    bool mayHoldMore = false;
    bool keepsBackup = false;
};

} // namespace Vexlor::Tool
