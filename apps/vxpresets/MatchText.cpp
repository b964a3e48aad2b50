#include "MatchText.h"

#include "Table.h"
#include "apps/host/Text.h"

#include "IVXCodecParameter.h"

#include <span>

namespace Vexlor::Tool
{

namespace
{

constexpr auto* kAbsent = "-";

std::string OrAbsent(const std::string& text) { return text.empty() ? kAbsent : text; }

std::string TextOf(const MatchRow& row, const Stream& stream)
{
    return OrAbsent(stream.parameter ? row.text(*stream.parameter) : std::string());
}

/// A kind of stream on both sides.
struct BothSides
{
    const char* title;
    std::span<const MatchRow> rows;
    const Stream& source;
    const Stream& output;
    const StreamReasons& reasons;
};

void AddRow(Table& table, const char* name, const std::string& source, const std::string& output,
            const std::string& why)
{
    if (source != kAbsent || output != kAbsent)
        table.Add({name, source, {output, source != output}, why});
}

std::string StreamTable(const BothSides& sides, const Style& style)
{
    const auto& [title, rows, source, output, reasons] = sides;
    if (!source.parameter)
        return Padded(title, 17) + "none in the source\n";
    Table table({title, "Source", "Output", "Why"});
    AddRow(table, "Codec", OrAbsent(source.codec), output.parameter ? OrAbsent(output.codec) : "left out",
           output.parameter ? ReasonText(reasons, MatchValue::Codec) : "the preset has no codec for it");
    for (const auto& row : rows)
        AddRow(table, row.name, TextOf(row, source), TextOf(row, output), ReasonText(reasons, row.value));
    return table.Text(style);
}

} // namespace

std::string WarningsText(const std::vector<MatchWarning>& warnings, const Style& style)
{
    std::string text;
    for (const auto& warning : warnings)
    {
        text += Strong("warning", style) + ": " + (warning.isAudio ? "audio: " : "video: ") +
                OneLine(warning.text) + '\n';
        for (const auto& remedy : warning.remedies)
            text += "  remedy: " + remedy.text + '\n';
    }
    return text;
}

std::string MatchText(const MediaMatch& match, const std::string& title, const Style& style)
{
    const auto source = match.SourceStreams();
    const auto output = match.OutputStreams();
    const auto warnings = WarningsText(WarningsOf(match), style);
    return Strong(title, style) + "\n\n" +
           StreamTable({"Video", VideoRows(), source.video, output.video, match.reasons.video}, style) +
           '\n' +
           StreamTable({"Audio", AudioRows(), source.audio, output.audio, match.reasons.audio}, style) +
           (warnings.empty() ? "" : '\n' + warnings);
}

} // namespace Vexlor::Tool
