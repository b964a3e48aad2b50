#include "MediaMatch.h"

#include "apps/host/Failure.h"

#include "IVXFormatParameter.h"
#include "IVXFormatPreset.h"
#include "runtime/mediacodecs/VXEncoderSettings.h"

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

std::string StreamObstacle(const IVXFormatParameter& output)
{
    const bool hasPicture = output.GetVideoCodecParameter() != nullptr;
    if (!hasPicture && !output.GetAudioCodecParameter())
        return "nothing of the source is left";
    return !hasPicture && NeedsPicture(output.FormatName()) ? output.FormatName() + " needs a picture" : "";
}

} // namespace Vexlor::Tool
