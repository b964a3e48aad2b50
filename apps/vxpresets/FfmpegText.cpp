#include "FfmpegText.h"

#include "apps/host/Json.h"
#include "apps/host/Text.h"

namespace Vexlor::Tool
{

namespace
{

std::vector<std::string> Words(const FfmpegCommand& command)
{
    auto words = command.Arguments();
    words.insert(words.begin(), "ffmpeg");
    return words;
}

} // namespace

std::string CommandText(const FfmpegCommand& command)
{
    std::string text;
    for (const auto& change : command.changes)
        text += "# " + OneLine(change) + '\n';
    return text + ShellText(Words(command)) + '\n';
}

std::string CommandJson(const FfmpegCommand& command)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("command", ShellText(Words(command)));
    json->SetValueArray("arguments", JsonElements(command.Arguments()));
    json->SetValueArray("changes", JsonElements(command.changes));
    return JsonDocument(*json);
}

PictureFitting FittingOf(const ConvertRequest& request)
{
    if (request.stretches)
        return PictureFitting::Stretch;
    return request.crops ? PictureFitting::Crop : PictureFitting::Pad;
}

} // namespace Vexlor::Tool
