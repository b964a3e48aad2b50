#pragma once

#include "IVXFormatPreset.h"
#include "IVXJsonValue.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/ScriptedPlatform.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

namespace Vexlor
{

/// A format preset of nothing, as it writes itself.
inline constexpr const char* kEmpty =
    R"({"name":"","description":"","formatName":"","formatHint":"","faceID":0,)"
    R"("indexForVideoCodecPresets":-1,"videoCodecPresets":[],)"
    R"("indexForAudioCodecPresets":-1,"audioCodecPresets":[],)"
    R"("maxWidth":0,"minWidth":0,"maxHeight":0,"minHeight":0,)"
    R"("maxVideoBitrate":-1,"minVideoBitrate":-1,"maxAudioBitrate":-1,"minAudioBitrate":-1})";

/// One with every field of its own.
inline constexpr const char* kFull =
    R"({"name":"Tablet \"10\"","description":"für unterwegs","formatName":"MP4","formatHint":"m4v","faceID":-7,)"
    R"("indexForVideoCodecPresets":-3,"videoCodecPresets":[],)"
    R"("indexForAudioCodecPresets":-1,"audioCodecPresets":[],)"
    R"("maxWidth":1920,"minWidth":16,"maxHeight":1080,"minHeight":-8,)"
    R"("maxVideoBitrate":8000000,"minVideoBitrate":0,"maxAudioBitrate":-1,"minAudioBitrate":-2147483648})";

class FormatPreset : public testing::Test
{
protected:
    static std::shared_ptr<IVXFormatPreset> Load(std::string_view json)
    {
        return IVXFormatPreset::MallocFormatPreset(Json(json));
    }

    /// The preset's document, read anew.
    static std::string Rewritten(std::string_view json) { return Text(Load(json)->JsonValue()); }

    ScriptedPlatform platform;
};

} // namespace Vexlor
