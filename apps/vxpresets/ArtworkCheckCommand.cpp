#include "ArtworkCommands.h"

#include "ArtworkChoice.h"
#include "ArtworkFindings.h"
#include "apps/host/Faces.h"
#include "apps/host/Failure.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

using Findings = std::vector<ArtworkFinding>;

const char* SeverityOf(const ArtworkFinding& finding) { return finding.isError ? "error" : "warning"; }

std::string FindingText(const ArtworkFile& file, const ArtworkFinding& finding)
{
    std::string place;
    if (finding.position)
        place = "group #" + std::to_string(*finding.position) + ", " +
                FaceText(file.table[*finding.position].faceID) + ": ";
    return OneLine(file.name + ": " + SeverityOf(finding) + ": " + place + finding.text) + '\n';
}

Json FindingJson(const ArtworkFile& file, const ArtworkFinding& finding)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("severity", SeverityOf(finding));
    if (finding.position)
    {
        const auto faceID = file.table[*finding.position].faceID;
        json->SetValueInt("position", static_cast<int>(*finding.position));
        json->SetValueInt("faceID", faceID);
        json->SetValueString("name", FaceName(faceID));
    }
    json->SetValueString("message", finding.text);
    return json;
}

std::string ReportJson(const ArtworkFile& file, const Findings& findings)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("file", file.name);
    json->SetValueInt("groups", static_cast<int>(file.table.size()));
    json->SetValueArray("findings", JsonElements(findings, [&file](const ArtworkFinding& finding)
                                                 { return FindingJson(file, finding); }));
    return JsonDocument(*json);
}

std::string Report(const ArtworkFile& file, const Findings& findings)
{
    std::string report;
    for (const auto& finding : findings)
        report += FindingText(file, finding);
    if (findings.empty())
        report = OneLine(file.name) + ": " + Counted(static_cast<int>(file.table.size()), "group", "groups") +
                 ", nothing wrong\n";
    return report;
}

} // namespace

std::string ArtworkCheckCommand(const Request& request, const Catalogue&, const Style&)
{
    const auto file = OpenRequested(request.artwork);
    const auto findings = FindingsOf(file);
    auto report = request.asJson ? ReportJson(file, findings) : Report(file, findings);
    if (std::ranges::any_of(findings, &ArtworkFinding::isError))
        throw BadAnswer(report);
    return report;
}

} // namespace Vexlor::Tool
