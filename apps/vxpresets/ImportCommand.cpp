#include "ImportCommand.h"

#include "apps/host/Failure.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"
#include "apps/host/document/DocumentEdit.h"
#include "apps/host/document/DocumentSave.h"
#include "apps/host/import/Import.h"
#include "runtime/foundation/VXJson.h"

#include "IVXFormatNode.h"

#include <algorithm>
#include <filesystem>

namespace Vexlor::Tool
{

namespace
{

/// The imported presets by the paths that they have in the document that they went to.
std::vector<std::string> AddTo(const std::string& document, bool keepsBackup, const Import& import)
{
    std::vector<std::string> paths;
    ChangeDocument(document, {.mayMake = false, .keepsBackup = keepsBackup},
                   [&](const std::string& text)
                   {
                       DocumentEdit edit(text);
                       for (const auto& outcome : edit.AddAll(*import.root))
                           paths.push_back(outcome.path);
                       return edit.Text();
                   });
    return paths;
}

void WriteNew(const std::string& document, const Import& import)
{
    std::error_code ignored;
    if (std::filesystem::exists(document, ignored))
        throw Failure(document + ": is there already; --into adds to it");
    MakeDocument(document, JsonDocument(*import.root->JsonValue()));
}

const char* KindOf(const ImportFinding& finding) { return finding.isLost ? "left out" : "changed"; }

std::string FindingText(const std::string& file, const ImportFinding& finding, const Style& style)
{
    const auto place = std::to_string(finding.place.line) + ':' + std::to_string(finding.place.column);
    return OneLine(file) + ':' + place + ": " + Strong(KindOf(finding), style) + ": " +
           OneLine(finding.path + ": " + finding.what) + '\n';
}

std::string Summary(const ImportRequest& request, const Import& import)
{
    const auto lost = std::ranges::count(import.findings, true, &ImportFinding::isLost);
    const auto changed = static_cast<std::ptrdiff_t>(import.findings.size()) - lost;
    const auto target = request.into ? *request.into : request.output.value_or("");
    return OneLine(request.file) + ": " +
           Counted(static_cast<int>(import.presets.size()), "preset", "presets") + ", " +
           std::to_string(lost) + " members left out, " + std::to_string(changed) + " changed; " +
           (target.empty() ? "nothing written" : "written to " + OneLine(target)) + '\n';
}

Json FindingJson(const ImportFinding& finding)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("kind", KindOf(finding));
    json->SetValueInt("line", finding.place.line);
    json->SetValueInt("column", finding.place.column);
    json->SetValueString("path", finding.path);
    json->SetValueString("message", finding.what);
    return json;
}

std::string ReportJson(const ImportRequest& request, const Import& import)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("file", request.file);
    json->SetValueString("document", request.into ? *request.into : request.output.value_or(""));
    json->SetValueArray("presets", JsonElements(import.presets));
    json->SetValueArray("findings", JsonElements(import.findings, FindingJson));
    return JsonDocument(*json);
}

} // namespace

std::string ImportCommand(const Request& request, const Catalogue&, const Style& style)
{
    const auto& wanted = request.import;
    auto import = ImportFile(wanted.file);
    if (wanted.into)
        import.presets = AddTo(*wanted.into, wanted.keepsBackup, import);
    if (wanted.output)
        WriteNew(*wanted.output, import);
    if (request.asJson)
        return ReportJson(wanted, import);
    std::string text;
    for (const auto& finding : import.findings)
        text += FindingText(wanted.file, finding, style);
    return text + Summary(wanted, import);
}

} // namespace Vexlor::Tool
