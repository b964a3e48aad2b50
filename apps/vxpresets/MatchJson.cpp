#include "MatchText.h"

#include "apps/host/Json.h"

#include "IVXFormatParameter.h"
#include "IVXRational.h"

#include <span>

namespace Vexlor::Tool
{

namespace
{

Json StreamsJson(const Streams& streams)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueObject("video", VideoJson(streams.video));
    json->SetValueObject("audio", AudioJson(streams.audio));
    return json;
}

Json StepJson(const MatchStep& step)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("reason", ReasonName(step.reason));
    json->SetValueString("text", step.text);
    return json;
}

void AddSteps(IVXJsonValue& json, const char* member, const StreamReasons& reasons, MatchValue value)
{
    const auto found = reasons.find(value);
    if (found != reasons.end() && !found->second.empty())
        json.SetValueArray(member, JsonElements(found->second, StepJson));
}

Json ReasonsJson(const StreamReasons& reasons, std::span<const MatchRow> rows)
{
    if (reasons.empty())
        return {};
    auto json = IVXJsonValue::JsonValueNull();
    AddSteps(*json, "codec", reasons, MatchValue::Codec);
    for (const auto& row : rows)
        AddSteps(*json, row.member, reasons, row.value);
    return json;
}

Json WhyJson(const MatchReasons& reasons)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueObject("video", ReasonsJson(reasons.video, VideoRows()));
    json->SetValueObject("audio", ReasonsJson(reasons.audio, AudioRows()));
    return json;
}

Json RemedyJson(const MatchRemedy& remedy)
{
    const auto& stream = remedy.remedy.stream;
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("kind", RemedyName(remedy.remedy.kind));
    json->SetValueString("text", remedy.text);
    json->SetValueInt("level", remedy.remedy.level);
    json->SetValueInt("width", stream.width);
    json->SetValueInt("height", stream.height);
    json->SetValueArray("frameRate", JsonElements(stream.frameRate->Num(), stream.frameRate->Den()));
    json->SetValueInt64("bitrate", stream.bitrate);
    return json;
}

Json WarningJson(const MatchWarning& warning)
{
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("kind", WarningName(warning.kind));
    json->SetValueString("stream", warning.isAudio ? "audio" : "video");
    json->SetValueString("text", warning.text);
    json->SetValueArray("remedies", JsonElements(warning.remedies, RemedyJson));
    return json;
}

} // namespace

std::string MatchJson(const MediaMatch& match)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("format", match.output->FormatName());
    json->SetValueString("hint", match.output->FormatHint());
    json->SetValueObject("source", StreamsJson(match.SourceStreams()));
    json->SetValueObject("output", StreamsJson(match.OutputStreams()));
    json->SetValueObject("why", WhyJson(match.reasons));
    json->SetValueArray("warnings", JsonElements(WarningsOf(match), WarningJson));
    return JsonDocument(*json);
}

} // namespace Vexlor::Tool
