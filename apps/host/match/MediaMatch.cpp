#include "MediaMatch.h"

#include "apps/host/Failure.h"

#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"

#include <utility>

namespace Vexlor::Tool
{

Streams MediaMatch::SourceStreams() const
{
    const std::shared_ptr<const IVXFormatParameter> source = media.parameter;
    return {{source->GetVideoCodecParameter(), media.videoCodec},
            {source->GetAudioCodecParameter(), media.audioCodec}};
}

VXMediaFile ReadSource(const std::string& path)
{
    auto media = ReadMediaFile(path);
    if (!media.parameter)
        throw Failure(media.error);
    return media;
}

MediaMatch MatchMedia(VXMediaFile media, const IVXFormatPreset& preset)
{
    auto output = preset.MatchForSource(media.parameter);
    auto reasons = ReasonsOf(preset, *media.parameter);
    return {std::move(media), std::move(output), std::move(reasons)};
}

bool NeedsPicture(const std::string& container) { return container == "DV" || container == "MXF"; }

} // namespace Vexlor::Tool
