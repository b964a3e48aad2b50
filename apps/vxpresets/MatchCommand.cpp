#include "ConvertCommands.h"

#include "MatchText.h"
#include "apps/host/MediaMatch.h"
#include "apps/host/Text.h"

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
    const auto match = MatchMedia(ReadSource(request.convert.media), *entry.preset);
    if (request.asJson)
        return MatchJson(match);
    const auto title =
        TitleOf(request.convert.media, *match.media.parameter) + " -> " + TitleOf(entry.path, *match.output);
    return MatchText(match, title, style);
}

} // namespace Vexlor::Tool
