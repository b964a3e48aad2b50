#pragma once

#include "tests/apps/RunTool.h"
#include "tests/foundation/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace Vexlor::Apps
{

using Words = std::vector<std::string>;

// With members that nobody reads, at every depth, and in a layout that no program writes.
inline constexpr std::string_view kDocument = R"({ "version": 7, "name": "Mine",
  "childList": [
    {"name": "Phones", "note": "kept", "formatPresetList": [
      {"name": "A", "formatName": "MP4", "x": [1,2],
       "videoCodecPresets": [
         {"codecID": 1, "y": null,
          "resolutionPresets": [{"width": 0, "height": 0}, {"width": 1280, "height": 720, "why": "hd"}]}],
       "audioCodecPresets": [{"codecID": 1001, "levelPresets": []}]},
      {"name": "B", "formatName": "AVI"},
      {"name": "C/D", "formatName": "MKV"}
    ]},
    {"name": "Tablets"}
  ]
}
)";

/// A document in a folder of its own, and the tool that edits it.
class Edit : public testing::Test
{
protected:
    ToolRun Run(Words words)
    {
        words.insert(words.begin() + 1, m_path);
        words.insert(words.begin(), "edit");
        return RunTool(words);
    }

    /// What the tool says of a change that is made, without the file's name.
    std::string Said(const Words& words)
    {
        const auto run = Run(words);
        EXPECT_EQ(0, run.exitCode) << run.err;
        const auto begin = m_path + ": ";
        EXPECT_EQ(0U, run.out.find(begin)) << run.out;
        return run.out.substr(std::min(begin.size(), run.out.size()));
    }

    /// The same of one that is refused; nothing may have changed.
    std::string Refused(const Words& words)
    {
        const auto before = ContentOf(m_path);
        const auto run = Run(words);
        EXPECT_EQ(1, run.exitCode) << run.out;
        EXPECT_EQ("", run.out);
        EXPECT_TRUE(before == ContentOf(m_path));
        const auto begin = m_path + ": not changed: ";
        EXPECT_EQ(0U, run.err.find(begin)) << run.err;
        return run.err.substr(std::min(begin.size(), run.err.size()));
    }

    /// The document with one text in the place of another, which stands there once.
    static std::string With(const std::string& old, const std::string& now)
    {
        std::string text(kDocument);
        const auto at = text.find(old);
        EXPECT_NE(std::string::npos, at) << old;
        EXPECT_EQ(std::string::npos, text.find(old, at + 1)) << old;
        return at == std::string::npos ? text : text.replace(at, old.size(), now);
    }

    std::string Content() const { return ContentOf(m_path); }
    std::string Tree() const { return RunTool({"tree", "--paths", "--document", m_path}).out; }

    TestFolder m_folder;
    std::string m_path = WithContent(m_folder / "presets.json", kDocument);
};

} // namespace Vexlor::Apps
