#include "VXMediaFile.h"

#include "FFmpegQuiet.h"
#include "FormatTable.h"
#include "MediaInput.h"
#include "SourceBitrates.h"
#include "SourceStreams.h"
#include "VXFormatParameter.h"

namespace Vexlor
{

namespace
{

VXMediaFile Unread(const std::string& path, const std::string& reason)
{
    VXMediaFile file;
    file.error = path + ": " + reason;
    return file;
}

std::string ContainerName(const MediaInput& input, const std::string& path)
{
    const auto& demuxer = *input.Context().iformat;
    auto name = FormatNameOf(demuxer, path);
    if (!name.empty())
        return name;
    const std::string names = demuxer.name; // separated by commas
    return names.substr(0, names.find(','));
}

VXMediaFile Filled(const MediaInput& input, const BestStreams& best, const std::string& path)
{
    VXMediaFile file;
    file.size = input.Size();
    file.duration = input.Duration();
    file.parameter = MallocSourceParameter(ContainerName(input, path));
    const auto bitrates = SourceBitrates(input);
    if (best.video)
    {
        const auto bitrate = bitrates.at(static_cast<std::size_t>(best.video->index));
        file.parameter->SetVideoCodecParameter(VideoSource(input.Context(), *best.video, bitrate));
        file.videoCodec = SourceCodecName(*best.video);
        file.videoStream = best.video->index;
    }
    if (best.audio)
    {
        const auto bitrate = bitrates.at(static_cast<std::size_t>(best.audio->index));
        file.parameter->SetAudioCodecParameter(AudioSource(*best.audio, bitrate));
        file.audioCodec = SourceCodecName(*best.audio);
        file.audioStream = best.audio->index;
    }
    return file;
}

} // namespace

VXMediaFile ReadMediaFile(const std::string& path, const VXMediaFileLimits& limits)
{
    const FFmpegQuiet quiet;
    const MediaInput input(path, limits);
    if (!input.Complaint().empty())
        return Unread(path, input.Complaint());
    const auto best = FindBestStreams(input.Context());
    if (best.video || best.audio)
        return Filled(input, best, path);
    if (best.hasUnreadable)
        return Unread(path, "is damaged or cut off (no stream tells its size or its sample rate)");
    return Unread(path, "holds neither video nor audio");
}

} // namespace Vexlor
