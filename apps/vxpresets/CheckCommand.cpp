#include "Commands.h"

#include "ArtworkChoice.h"
#include "apps/host/Failure.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"
#include "apps/host/document/DocumentFile.h"
#include "apps/host/document/DocumentReport.h"

#include <set>

namespace Vexlor::Tool
{

namespace
{

/// What is wrong with the document of that file.
struct Report : DocumentReport
{
    std::string file;
};

using Line = DocumentReportLine;

const char* SeverityOf(const Line& line) { return line.isError ? "error" : "warning"; }

std::set<int> FacesOf(const Request& request)
{
    std::set<int> faces;
    for (const auto& entry : OpenRequested(request.artwork).table)
        faces.insert(entry.faceID);
    return faces;
}

std::string LineText(const Report& report, const Line& line, const Style& style)
{
    const auto place = std::to_string(line.place.line) + ':' + std::to_string(line.place.column);
    const auto path = line.path.empty() ? "" : line.path + ": ";
    const auto expected = line.wording.expected.empty() ? "" : "; expected " + line.wording.expected;
    return OneLine(report.file) + ':' + place + ": " + Strong(SeverityOf(line), style) + ": " +
           OneLine(path + line.wording.what + expected) + '\n';
}

std::string CountText(std::size_t count, const std::string& what)
{
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

std::string Summary(const Report& report)
{
    if (report.errors + report.warnings == 0)
        return OneLine(report.file) + ": " + Counted(report.presets, "preset", "presets") +
               ", nothing wrong\n";
    const auto rest = report.errors + report.warnings - report.lines.size();
    return OneLine(report.file) + ": " + CountText(report.errors, "error") + ", " +
           CountText(report.warnings, "warning") +
           (rest == 0 ? "" : ", " + std::to_string(rest) + " of them not listed") + '\n';
}

std::string ReportText(const Report& report, const Style& style)
{
    std::string text;
    for (const auto& line : report.lines)
        text += LineText(report, line, style);
    return text + Summary(report);
}

Json LineJson(const Line& line)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("severity", SeverityOf(line));
    json->SetValueString("rule", line.rule);
    json->SetValueInt("line", line.place.line);
    json->SetValueInt("column", line.place.column);
    json->SetValueString("path", line.path);
    json->SetValueString("pointer", line.pointer);
    json->SetValueString("message", line.wording.what);
    json->SetValueString("expected", line.wording.expected);
    return json;
}

std::string ReportJson(const Report& report)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("file", report.file);
    json->SetValueInt("presets", report.presets);
    json->SetValueInt64("errors", static_cast<std::int64_t>(report.errors));
    json->SetValueInt64("warnings", static_cast<std::int64_t>(report.warnings));
    json->SetValueArray("findings", JsonElements(report.lines, LineJson));
    return JsonDocument(*json);
}

} // namespace

std::string CheckCommand(const Request& request, const Catalogue&, const Style& style)
{
    const auto& file = request.document.value();
    const auto faces = FacesOf(request);
    const auto text = ReadDocumentText(file);
    const Report report{CheckDocument(text, faces), file};
    auto answer = request.asJson ? ReportJson(report) : ReportText(report, style);
    if (report.errors > 0)
        throw BadAnswer(answer);
    return answer;
}

} // namespace Vexlor::Tool
