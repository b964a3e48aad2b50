#pragma once

#include "tests/apps/Sources.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"
#include "runtime/mediacodecs/VXMediaFile.h"

#include <utility>

namespace Vexlor::Studio
{

/// A file of ten seconds as reading would answer it.
inline VXMediaFile MediaOf(std::shared_ptr<IVXFormatParameter> file)
{
    VXMediaFile media;
    media.parameter = std::move(file);
    media.videoCodec = media.parameter->GetVideoCodecParameter() ? "H.264" : "";
    media.audioCodec = media.parameter->GetAudioCodecParameter() ? "AAC" : "";
    media.videoStream = media.parameter->GetVideoCodecParameter() ? 0 : -1;
    media.audioStream = media.parameter->GetAudioCodecParameter() ? 1 : -1;
    media.duration = 10;
    media.size = 1'000'000;
    return media;
}

/// A preset of that container with those codecs alone.
inline std::shared_ptr<IVXFormatPreset> PresetOf(const char* container, int video, int audio)
{
    auto preset = IVXFormatPreset::MallocFormatPreset(container, "");
    if (video != VXCodecID_None)
        preset->InsertVideoCodecPreset(IVXCodecPreset::MallocCodecPreset(video), 0);
    if (audio != VXCodecID_None)
        preset->InsertAudioCodecPreset(IVXCodecPreset::MallocCodecPreset(audio), 0);
    preset->SetIndexForVideoCodecPresets(0);
    preset->SetIndexForAudioCodecPresets(0);
    return preset;
}

} // namespace Vexlor::Studio
