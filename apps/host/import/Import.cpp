#include "Import.h"

#include "ImportGStreamer.h"
#include "ImportHandBrake.h"
#include "apps/host/Failure.h"
#include "apps/host/Text.h"
#include "apps/host/document/DocumentFile.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

constexpr std::size_t kMostBytes = std::size_t{4} << 20U;

// As deep as the file is nested, which its reader bounds.
void CollectPaths(const IVXFormatNode& node, const std::string& path, std::vector<std::string>& paths)
{
    for (int i = 0; i < node.FormatPresetCount(); ++i)
        paths.push_back(path + PathEscaped(node.GetFormatPreset(i)->Name()));
    for (const auto& child : node.GetChildList())
        CollectPaths(*child, path + PathEscaped(child->Name()) + '/', paths);
}

/// Why there is none, where that is told.
std::string FirstReason(const Import& import)
{
    const auto lost = std::ranges::find(import.findings, true, &ImportFinding::isLost);
    return lost == import.findings.end() ? "" : "; " + lost->path + ": " + lost->what;
}

void Place(std::vector<ImportFinding>& findings, std::string_view text)
{
    std::ranges::stable_sort(findings, {}, &ImportFinding::offset);
    DocumentPlaces places(text);
    for (auto& finding : findings)
        finding.place = places.At(finding.offset);
}

} // namespace

Import ImportPresets(const std::string& name, std::string_view text)
{
    constexpr std::string_view kBlank = " \t\r\n";
    if (text.size() > kMostBytes)
        throw Failure(name + ": larger than 4 MiB");
    const auto begin = std::min(text.find_first_not_of(kBlank), text.size());
    const auto head = text.substr(begin);
    const auto second = head.find_first_not_of(kBlank, 1);
    const bool isList = head.starts_with('[') && second != std::string_view::npos && head[second] == '{';
    Import import{IVXFormatNode::MallocFormatNode(std::shared_ptr<IVXFormatNode>()), {}, {}};
    if (head.starts_with('{') || isList)
        ImportHandBrake(name, text, import);
    else if (head.starts_with('[') || head.starts_with('#'))
        ImportGStreamer(name, text, import);
    else
        throw Failure(name +
                      ": is neither JSON, as HandBrake exports presets, nor an encoding target of GStreamer");
    Place(import.findings, text);
    CollectPaths(*import.root, {}, import.presets);
    if (import.presets.empty())
        throw Failure(name + ": holds no preset that could be ours" + FirstReason(import));
    return import;
}

Import ImportFile(const std::string& path) { return ImportPresets(path, ReadDocumentText(path)); }

} // namespace Vexlor::Tool
