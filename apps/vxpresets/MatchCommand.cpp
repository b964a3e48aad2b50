#include "ConvertCommands.h"

#include "FfmpegText.h"
#include "MatchText.h"
#include "apps/host/Text.h"
#include "apps/host/match/MediaMatch.h"

#include "IVXFormatParameter.h"

namespace Vexlor::Tool
{

namespace
{

std::string TitleOf(const std::string& name, const IVXFormatParameter& file)
{
    const auto container = file.FormatName();
    return OneLine(name + " (" + (container.empty() ? "-" : container) + ')');
}

} // namespace

std::string MatchCommand(const Request& request, const Catalogue& catalogue, const Style& style)
{
    const auto& entry = FindPreset(catalogue, request.preset);
    const auto& convert = request.convert;
    const auto match = MatchMedia(ReadSource(convert.media), *entry.preset);
    if (convert.ffmpegOutput)
    {
        const auto command =
            FfmpegCommandFor(match, convert.media, *convert.ffmpegOutput, FittingOf(convert));
        return request.asJson ? CommandJson(command) : CommandText(command);
    }
    if (request.asJson)
        return MatchJson(match);
    const auto title =
        TitleOf(convert.media, *match.media.parameter) + " -> " + TitleOf(entry.path, *match.output);
    return MatchText(match, title, style);
}

} // namespace Vexlor::Tool
