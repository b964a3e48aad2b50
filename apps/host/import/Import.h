#pragma once

#include "apps/host/document/DocumentPlaces.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{
class IVXFormatNode;
}

namespace Vexlor::Tool
{

/// Something of another program's preset that did not become the same here.
struct ImportFinding
{
    bool isLost = false;    ///< else it became something like it
    std::size_t offset = 0; ///< in the file that it was read from, in bytes
    DocumentPlace place;    ///< the same as people count
    std::string path;       ///< the names of categories and presets, and behind them what stands there
    std::string what;       ///< and why
};

/// Presets of another program as ours.
struct Import
{
    std::shared_ptr<IVXFormatNode> root;
    std::vector<std::string> presets; ///< the path of each
    std::vector<ImportFinding> findings;
};

/// Reads presets that HandBrake has exported (JSON) or an encoding target of GStreamer (.gep), as far as they
/// can be ours; whatever cannot is found. name is that of the file, for messages. Throws Failure for a text
/// that is neither, is too large or holds no preset that could be ours.
Import ImportPresets(const std::string& name, std::string_view text);

/// The same of the file of that path.
Import ImportFile(const std::string& path);

} // namespace Vexlor::Tool
