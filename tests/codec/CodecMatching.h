#pragma once

#include "IVXCodecParameter.h"
#include "IVXCodecPreset.h"

#include "tests/platform/ScriptedCodecParameter.h"
#include "tests/platform/ScriptedJson.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor
{

/// Codec presets with lists written as JSON, on a platform of a video and an audio codec for the output and
/// one of each for the source.
class CodecMatching : public testing::Test
{
protected:
    static constexpr int kVideo = 7;
    static constexpr int kAudio = 8;
    static constexpr int kVideoSource = 17;
    static constexpr int kAudioSource = 18;
    static constexpr int kUnknown = 99;

    CodecMatching()
    {
        for (const int codecID : {kVideo, kVideoSource})
            platform.Codec(codecID).type = VXCodecTypeVideo;
        for (const int codecID : {kAudio, kAudioSource})
            platform.Codec(codecID).type = VXCodecTypeAudio;
    }

    /// The preset of that codec whose JSON object has these members too. Its calls are forgotten.
    std::shared_ptr<IVXCodecPreset> Preset(int codecID, const std::string& members = {})
    {
        const auto separator = members.empty() ? "" : ",";
        const auto json = R"({"codecID":)" + std::to_string(codecID) + separator + members + "}";
        auto preset = IVXCodecPreset::MallocCodecPreset(Json(json));
        platform.ForgetCalls();
        return preset;
    }

    /// The calls so far, a line each, but for the making of codecs objects and the question for their type,
    /// which a preset may repeat as it likes.
    std::string Queries() const
    {
        std::string text;
        for (const auto& call : platform.Calls())
            if (!call.starts_with("MallocCodecs(") && call != "GetCodecType()")
                text += call + "\n";
        return text;
    }

    static std::string Setters(const std::shared_ptr<IVXCodecParameter>& output)
    {
        return Scripted(output).SettersText();
    }

    ScriptedPlatform platform;
};

} // namespace Vexlor
