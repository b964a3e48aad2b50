#pragma once

#include "RunTool.h"

#include "tests/media/MediaMaker.h"

#include "IVXJsonValue.h"
#include "runtime/foundation/VXJson.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace Vexlor::Apps
{

/// A document with short lists, whose names have slashes, capitals and wide characters in them.
inline constexpr std::string_view kShortDocument = R"({
  "name": "Mine",
  "formatPresetList": [{"name": "Disc/Wide", "formatName": "MP4"}],
  "childList": [
    {
      "name": "Disc",
      "formatPresetList": [
        {
          "name": "CD",
          "description": "For a player",
          "formatName": "WAV",
          "maxAudioBitrate": 1411200,
          "audioCodecPresets": [
            {
              "codecID": 1008,
              "indexForSampleratePresets": 1,
              "sampleratePresets": [{"samplerate": 0}, {"samplerate": 44100}],
              "channelLayoutPresets": [{"chLayout": 3}]
            }
          ]
        },
        {"name": "Wide", "formatName": "AVI"},
        {"name": "日本", "formatName": "MKV"},
        {"name": "Both", "formatName": "MOV"},
        {"name": "both", "formatName": "MOV"}
      ]
    },
    {"name": "Empty"}
  ]
})";

/// A folder for one run with a document in it.
class DocumentFile
{
public:
    explicit DocumentFile(std::string_view text) : m_path(m_folder.Write("presets.json", text)) {}

    const std::string& Path() const { return m_path; }

private:
    Media::ScratchFolder m_folder;
    std::string m_path;
};

/// Runs the tool on a document with that text.
inline ToolRun RunOn(std::string_view document, std::vector<std::string> arguments)
{
    const DocumentFile file(document);
    arguments.insert(arguments.end(), {"--document", file.Path()});
    return RunTool(arguments);
}

/// What the tool printed, read as JSON; null, and the test fails, when it is none or the tool failed.
inline std::shared_ptr<const IVXJsonValue> RunForJson(std::vector<std::string> arguments)
{
    arguments.emplace_back("--json");
    const auto run = RunTool(arguments);
    EXPECT_EQ(0, run.exitCode) << run.err;
    EXPECT_EQ("", run.err);
    std::string error;
    auto json = ParseJson(run.out, &error);
    EXPECT_NE(nullptr, json) << error;
    return json;
}

/// The array's elements as compact JSON texts, a blank in between.
inline std::string Elements(const IVXJsonValue& array)
{
    std::string text;
    for (int i = 0; i < array.Size(); ++i)
        text += (i == 0 ? "" : " ") + JsonText(*array.At(i));
    return text;
}

} // namespace Vexlor::Apps
