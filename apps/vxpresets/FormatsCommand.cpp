#include "Commands.h"

#include "Table.h"
#include "apps/host/Json.h"
#include "apps/host/Text.h"
#include "apps/host/Units.h"

#include "IVXFormat.h"
#include "VXMediaCodecs.h"

namespace Vexlor::Tool
{

namespace
{

Json FormatJson(const std::string& name)
{
    const auto format = IVXFormat::MallocFormat(name, {});
    auto json = IVXJsonValue::JsonValueNull();
    json->SetValueString("name", name);
    json->SetValueArray("videoCodecs", JsonElements(CodecNames(format->VideoCodecIDs())));
    json->SetValueArray("audioCodecs", JsonElements(CodecNames(format->AudioCodecIDs())));
    return json;
}

} // namespace

std::string FormatsCommand(const Request& request, const Catalogue&, const Style& style)
{
    const auto names = VXMediaCodecSupportOutputAllMediaFormats();
    if (request.asJson)
        return JsonDocument(JsonElements(names, FormatJson));
    Table table({"Container", "Video codecs", "Audio codecs"});
    for (const auto& name : names)
    {
        const auto format = IVXFormat::MallocFormat(name, {});
        table.Add({name, Joined(CodecNames(format->VideoCodecIDs()), ", "),
                   Joined(CodecNames(format->AudioCodecIDs()), ", ")});
    }
    return table.Text(style);
}

} // namespace Vexlor::Tool
