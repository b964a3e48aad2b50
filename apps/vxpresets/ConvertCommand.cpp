#include "ConvertCommands.h"

#include "FfmpegText.h"
#include "Interruption.h"
#include "MatchText.h"
#include "ProgressText.h"
#include "apps/host/Failure.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"
#include "apps/host/convert/Conversion.h"
#include "apps/host/convert/OutputFile.h"
#include "apps/host/match/MediaMatch.h"
#include "apps/host/match/SizeEstimate.h"

#include <cstdio>

namespace Vexlor::Tool
{

namespace
{

std::string DryText(const MediaMatch& match, const FfmpegCommand& command, const Style& style)
{
    auto text = WarningsText(WarningsOf(match), style) + CommandText(command);
    if (match.media.duration > 0)
    {
        const auto size = EstimateSize(*match.output, match.media.duration).Total();
        text += "# about " + SizeOfBytes(size.likely) + '\n';
    }
    return text;
}

ConversionResult Run(const FfmpegCommand& command, const ConversionTarget& target, ProgressLines* lines)
{
    const Interruption interruption;
    const auto watch = [&](const ConversionProgress& progress)
    {
        if (lines)
            lines->Show(progress);
        return !Interruption::HasCome();
    };
    try
    {
        auto result = Convert(command, target, watch);
        if (lines)
            lines->End();
        return result;
    }
    catch (const Failure&)
    {
        if (lines)
            lines->End();
        throw;
    }
}

std::string ResultText(const std::string& output, const ConversionResult& result)
{
    std::string text;
    for (const auto& message : result.messages)
        text += "ffmpeg: " + OneLine(message) + '\n';
    return text + OneLine(output) + ": " + SizeOfBytes(double(result.bytes)) + " in " +
           DurationText(result.seconds) + '\n';
}

std::string ResultJson(const std::string& output, const ConversionResult& result,
                       const FfmpegCommand& command)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("output", output);
    json->SetValueInt64("bytes", result.bytes);
    json->SetValueInt64("milliseconds", static_cast<std::int64_t>(result.seconds * 1000));
    json->SetValueArray("messages", JsonElements(result.messages));
    json->SetValueArray("changes", JsonElements(command.changes));
    return JsonDocument(*json);
}

void TellBeforehand(const MediaMatch& match, const FfmpegCommand& command, const Style& style)
{
    auto text = WarningsText(WarningsOf(match), style);
    for (const auto& change : command.changes)
        text += Strong("warning", style) + ": " + OneLine(change) + '\n';
    static_cast<void>(std::fputs(text.c_str(), stdout));
    static_cast<void>(std::fflush(stdout));
}

} // namespace

std::string ConvertCommand(const Request& request, const Catalogue& catalogue, const Style& style)
{
    const auto& convert = request.convert;
    const auto& entry = FindPreset(catalogue, request.preset);
    const auto match = MatchMedia(ReadSource(convert.media), *entry.preset);
    CheckOutput(convert.output, convert.media, convert.overwrites);
    const auto command = FfmpegCommandFor(match, convert.media, convert.output, FittingOf(convert));
    if (convert.isDryRun)
        return request.asJson ? CommandJson(command) : DryText(match, command, style);
    ProgressLines lines(style);
    if (!request.asJson)
        TellBeforehand(match, command, style);
    const auto result =
        Run(command, {convert.media, convert.output, convert.overwrites, match.media.duration},
            request.asJson ? nullptr : &lines);
    if (result.isStopped)
        throw Failure(convert.output + ": stopped; nothing is left of it");
    return request.asJson ? ResultJson(convert.output, result, command) : ResultText(convert.output, result);
}

} // namespace Vexlor::Tool
