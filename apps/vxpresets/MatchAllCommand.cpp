#include "ConvertCommands.h"

#include "Table.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"
#include "apps/host/match/CatalogueMatch.h"
#include "apps/host/match/MediaMatch.h"

#include "IVXFormatParameter.h"
#include "runtime/foundation/VXLogSink.h"

#include <algorithm>

namespace Vexlor::Tool
{

namespace
{

int CountOf(const std::vector<PresetMatch>& matches, PresetFit fit)
{
    return static_cast<int>(std::ranges::count(matches, fit, &PresetMatch::fit));
}

std::string Summary(const std::vector<PresetMatch>& matches)
{
    return Counted(CountOf(matches, PresetFit::Untouched), "preset", "presets") + " untouched, " +
           std::to_string(CountOf(matches, PresetFit::Changed)) + " changed, " +
           std::to_string(CountOf(matches, PresetFit::Impossible)) + " impossible";
}

/// The library tells its log what single presets get wrong, without a word which ones they are.
class SilentLog
{
public:
    SilentLog() : m_before(SetLogSink([](auto, auto) {})) {}
    ~SilentLog() { SetLogSink(m_before); }
    SilentLog(const SilentLog&) = delete;
    SilentLog& operator=(const SilentLog&) = delete;

private:
    VXLogSink m_before;
};

std::string AllText(const std::vector<PresetMatch>& matches, const std::string& title, const Style& style)
{
    Table table({"Preset", "Fit", "What becomes another, or why not"});
    for (const auto& match : matches)
        table.Add({match.entry->path, FitName(match.fit), Joined(match.texts, ", ")});
    return Strong(OneLine(title), style) + ": " + Summary(matches) + "\n\n" + table.Text(style);
}

Json MatchElement(const PresetMatch& match)
{
    const auto output = StreamsOf(*match.output);
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("preset", match.entry->path);
    json->SetValueString("format", match.output->FormatName());
    json->SetValueString("fit", FitName(match.fit));
    json->SetValueArray("texts", JsonElements(match.texts));
    json->SetValueObject("video", VideoJson(output.video));
    json->SetValueObject("audio", AudioJson(output.audio));
    return json;
}

} // namespace

std::string MatchAllCommand(const Request& request, const Catalogue& catalogue, const Style& style)
{
    const auto media = ReadSource(request.convert.media);
    const SilentLog silent;
    const auto matches = MatchCatalogue(media, catalogue);
    if (request.asJson)
        return JsonDocument(JsonElements(matches, MatchElement));
    return AllText(matches, request.convert.media + " (" + media.parameter->FormatName() + ')', style);
}

} // namespace Vexlor::Tool
