#include "FindingSources.h"

#include "apps/artwork/ArtworkFile.h"
#include "apps/artwork/DefaultArtwork.h"
#include "apps/host/document/DocumentReport.h"
#include "apps/host/import/Import.h"
#include "apps/studio/document/DocumentText.h"
#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/texts/ToolText.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <algorithm>
#include <map>
#include <unordered_map>

namespace Vexlor::Studio
{

namespace
{

using Objects = std::map<Tool::DocumentPosition, const void*>;

std::set<int> BuiltInFaces()
{
    std::set<int> faces;
    for (const auto& entry : Tool::OpenArtwork("artwork", Tool::DefaultArtwork()).table)
        faces.insert(entry.faceID);
    return faces;
}

Objects ObjectsIn(const PlannedNode& plan, const Tool::DocumentTree& tree)
{
    Objects objects;
    for (const auto& [object, position] : PositionsOf(plan, tree))
        objects[position] = object;
    return objects;
}

/// What a value is part of.
const void* OwnerOf(Tool::DocumentPosition value, const Objects& objects, const Tool::DocumentTree& tree)
{
    auto found = objects.find(value);
    while (found == objects.end() && value != 0)
    {
        value = tree[value].parent;
        found = objects.find(value);
    }
    return found == objects.end() ? nullptr : found->second;
}

QString TextOf(const Tool::DocumentWording& wording)
{
    const auto what = ToolText(wording.what);
    return wording.expected.empty()
               ? what
               : FindingTexts::tr("%1; expected %2").arg(what, ToolText(wording.expected));
}

/// Every item of the tree by its object.
using Items = std::unordered_map<const void*, TreeItem>;

// As deep as the categories, which their reader bounds.
void Collect(const std::shared_ptr<IVXFormatNode>& node, Items& items)
{
    items[node.get()] = {node};
    for (int i = 0; i < node->FormatPresetCount(); ++i)
        items[node->GetFormatPreset(i).get()] = {{}, node->GetFormatPreset(i)};
    for (const auto& child : node->GetChildList())
        Collect(child, items);
}

} // namespace

CheckResult CheckPlan(const PlannedNode& plan, const DocumentBasis& basis)
{
    const auto text = TextOf(plan, basis);
    const auto report = Tool::CheckDocument(text, BuiltInFaces());
    const Tool::DocumentTree tree(text);
    const auto objects = ObjectsIn(plan, tree);
    CheckResult result{report.presets, report.errors, report.warnings};
    for (const auto& line : report.lines)
    {
        result.findings.push_back({line.isError ? Finding::Kind::Error : Finding::Kind::Warning,
                                   QString::fromStdString(line.path), TextOf(line.wording)});
        result.objects.push_back(OwnerOf(line.value, objects, tree));
    }
    return result;
}

Findings FindingTexts::Of(CheckResult result, const StudioDocument& document)
{
    Items items;
    Collect(document.Root(), items);
    for (std::size_t i = 0; i < result.findings.size(); ++i)
        if (const auto found = items.find(result.objects[i]); found != items.end())
            result.findings[i].item = found->second;
    return std::move(result.findings);
}

QString FindingTexts::SummaryOf(const CheckResult& result)
{
    const auto presets = tr("%n preset(s)", nullptr, result.presets);
    if (result.errors + result.warnings == 0)
        return tr("%1, nothing wrong.").arg(presets);
    const auto errors = tr("%n error(s)", nullptr, static_cast<int>(result.errors));
    const auto warnings = tr("%n warning(s)", nullptr, static_cast<int>(result.warnings));
    const auto listed = static_cast<int>(result.findings.size());
    const auto text = tr("%1: %2, %3.").arg(presets, errors, warnings);
    return listed == static_cast<int>(result.errors + result.warnings)
               ? text
               : text + ' ' + tr("The first %n are listed.", nullptr, listed);
}

Findings FindingTexts::Of(const Tool::Import& import, const std::vector<TreeItem>& presets)
{
    Findings findings;
    for (const auto& finding : import.findings)
    {
        const auto isAbout = [&finding](const std::string& path)
        { return (finding.path + '/').starts_with(path + '/'); };
        const auto about = std::ranges::find_if(import.presets, isAbout) - import.presets.begin();
        findings.push_back({finding.isLost ? Finding::Kind::Warning : Finding::Kind::Note,
                            QString::fromStdString(finding.path), ToolText(finding.what)});
        if (static_cast<std::size_t>(about) < presets.size())
            findings.back().item = presets[static_cast<std::size_t>(about)];
    }
    return findings;
}

QString FindingTexts::SummaryOf(const Tool::Import& import, const QString& file)
{
    const auto lost = std::ranges::count(import.findings, true, &Tool::ImportFinding::isLost);
    const auto changed = static_cast<std::ptrdiff_t>(import.findings.size()) - lost;
    const auto presets =
        tr("%n preset(s) imported from %1", nullptr, static_cast<int>(import.presets.size()));
    return tr("%1; %2 left out, %3 became something like it.").arg(presets.arg(file)).arg(lost).arg(changed);
}

} // namespace Vexlor::Studio
