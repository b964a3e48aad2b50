#pragma once

#include "tests/format/CodecPresetSide.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "VXMediaCodecs.h"

#include "tests/platform/ScriptedCodecParameter.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

namespace Vexlor
{

/// Format presets of video codecs V, W and X and audio codecs A, B and C, and sources of codecs S and T.
class FormatMatching : public testing::Test
{
protected:
    FormatMatching()
    {
        for (const char letter : std::string_view("VWXS"))
            platform.Codec(letter).type = VXCodecTypeVideo;
        for (const char letter : std::string_view("ABCT"))
            platform.Codec(letter).type = VXCodecTypeAudio;
        source->SetVideoCodecParameter(video);
        source->SetAudioCodecParameter(audio);
    }

    std::shared_ptr<IVXFormatPreset> Preset(const std::string& videoList, int videoIndex,
                                            const std::string& audioList, int audioIndex,
                                            const std::string& formatName = "MP4")
    {
        auto preset = IVXFormatPreset::MallocFormatPreset(
            Json(R"({"formatName":")" + formatName + R"(","formatHint":"hint",)" +
                 Members(kVideoSide, videoList, videoIndex) + "," +
                 Members(kAudioSide, audioList, audioIndex) + "}"));
        platform.ForgetCalls();
        return preset;
    }

    std::shared_ptr<IVXCodecParameter> MatchedVideo(const IVXFormatPreset& preset) const
    {
        return preset.MatchForSource(source)->GetVideoCodecParameter();
    }

    std::shared_ptr<IVXCodecParameter> MatchedAudio(const IVXFormatPreset& preset) const
    {
        return preset.MatchForSource(source)->GetAudioCodecParameter();
    }

    ScriptedPlatform platform;
    std::shared_ptr<ScriptedCodecParameter> video = MakeStream('S');
    std::shared_ptr<ScriptedCodecParameter> audio = MakeStream('T');
    std::shared_ptr<IVXFormatParameter> source = IVXFormatParameter::MallocFormatParameter("source", "");
};

/// The letter of no codec.
inline const std::string kNoCodec(1, '\0');

} // namespace Vexlor
