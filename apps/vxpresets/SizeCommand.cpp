#include "ConvertCommands.h"

#include "Table.h"
#include "apps/host/Failure.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"
#include "apps/host/Units.h"
#include "apps/host/match/MediaMatch.h"
#include "apps/host/match/SizePlan.h"

#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"

#include <cmath>
#include <optional>

namespace Vexlor::Tool
{

namespace
{

std::string RangeText(const SizeRange& range)
{
    const auto least = SizeOfBytes(range.least);
    const auto most = SizeOfBytes(range.most);
    return least == most ? least : least + " to " + most;
}

/// A row of what is likely and what is possible; none for what is not there.
void AddPart(Table& table, const char* name, const SizeRange& range)
{
    if (range.most > 0)
        table.Add({name, SizeOfBytes(range.likely), RangeText(range)});
}

std::string EstimateText(const SizeEstimate& estimate, const Style& style)
{
    Table table({"Part", "Likely", "Between"});
    AddPart(table, "Video", estimate.video);
    AddPart(table, "Audio", estimate.audio);
    AddPart(table, "Container", {estimate.container, estimate.container, estimate.container});
    AddPart(table, "File", estimate.Total());
    return table.Text(style);
}

void AddSetting(std::vector<std::string>& settings, const std::string& name, const std::string& value)
{
    if (!value.empty())
        settings.push_back(name + ' ' + value);
}

std::string PlanText(const SizePlan& plan, std::int64_t wanted, const Style& style)
{
    std::vector<std::string> settings;
    AddSetting(settings, "size", SizeText(plan.width, plan.height));
    AddSetting(settings, "video bitrate", BitrateText(plan.videoBitrate));
    AddSetting(settings, "audio bitrate", BitrateText(plan.audioBitrate));
    const auto what = settings.empty() ? std::string("nothing") : Joined(settings, ", ");
    return Strong("For " + SizeOfBytes(double(wanted)), style) + ": set " + what + "\n\n" +
           EstimateText(plan.estimate, style);
}

Json RangeJson(const SizeRange& range)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt64("least", std::llround(range.least));
    json->SetValueInt64("likely", std::llround(range.likely));
    json->SetValueInt64("most", std::llround(range.most));
    return json;
}

Json EstimateJson(const SizeEstimate& estimate)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueObject("video", RangeJson(estimate.video));
    json->SetValueObject("audio", RangeJson(estimate.audio));
    json->SetValueInt64("container", std::llround(estimate.container));
    json->SetValueObject("file", RangeJson(estimate.Total()));
    return json;
}

Json PlanJson(const SizePlan& plan, std::int64_t wanted)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt64("wanted", wanted);
    json->SetValueBool("possible", plan.isPossible);
    json->SetValueString("reason", plan.reason);
    json->SetValueInt("videoBitrate", plan.videoBitrate);
    json->SetValueInt("audioBitrate", plan.audioBitrate);
    json->SetValueInt("width", plan.width);
    json->SetValueInt("height", plan.height);
    json->SetValueObject("size", EstimateJson(plan.estimate));
    return json;
}

/// What is wanted of one source.
struct SizeAnswer
{
    std::string title;
    SizeEstimate estimate;
    std::optional<std::int64_t> wanted;
    SizePlan plan;
};

std::string AnswerJson(const SizeAnswer& answer)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueObject("size", EstimateJson(answer.estimate));
    if (answer.wanted)
        json->SetValueObject("target", PlanJson(answer.plan, *answer.wanted));
    return JsonDocument(*json);
}

std::string AnswerText(const SizeAnswer& answer, const Style& style)
{
    auto text = Strong(OneLine(answer.title), style) + "\n\n" + EstimateText(answer.estimate, style);
    if (!answer.wanted)
        return text;
    return text + '\n' +
           (answer.plan.isPossible ? PlanText(answer.plan, *answer.wanted, style)
                                   : answer.plan.reason + '\n');
}

} // namespace

std::string SizeCommand(const Request& request, const Catalogue& catalogue, const Style& style)
{
    const auto& convert = request.convert;
    const auto wanted =
        convert.target ? std::optional(SizeOfText(*convert.target)) : std::optional<std::int64_t>();
    const auto& entry = FindPreset(catalogue, request.preset);
    const auto match = MatchMedia(ReadSource(convert.media), *entry.preset);
    if (const auto obstacle = StreamObstacle(*match.output); !obstacle.empty())
        throw Failure(convert.media + ": " + obstacle);
    if (match.media.duration <= 0)
        throw Failure(convert.media + ": its length is not known, so no size can be told");
    SizeAnswer answer{
        convert.media + " -> " + entry.path, EstimateSize(*match.output, match.media.duration), wanted, {}};
    if (wanted)
        answer.plan = PlanSize(match, *entry.preset, *wanted);
    auto text = request.asJson ? AnswerJson(answer) : AnswerText(answer, style);
    if (wanted && !answer.plan.isPossible)
        throw BadAnswer(text);
    return text;
}

} // namespace Vexlor::Tool
