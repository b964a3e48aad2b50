#include "Documents.h"

#include <array>

namespace Vexlor::Apps
{

namespace
{

struct BrokenCase
{
    const char* what;
    const char* text;
    const char* place; ///< what follows the file's name
};

void PrintTo(const BrokenCase& test, std::ostream* out) { *out << test.what; }

class BrokenDocument : public testing::TestWithParam<BrokenCase>
{
};

TEST_P(BrokenDocument, IsToldOnOneLine)
{
    const DocumentFile file(GetParam().text);
    const auto run = RunTool({"tree", "--document", file.Path()});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("", run.out);
    EXPECT_EQ(0U, run.err.find(file.Path() + GetParam().place)) << run.err;
    EXPECT_EQ(run.err.size() - 1, run.err.find('\n'));
}

constexpr std::array kBroken{
    BrokenCase{"Value", "{\n  \"name\": tru\n}", ":2:11: "},
    BrokenCase{"MissingComma", "{\n  \"name\": \"a\"\n  \"faceID\": 1\n}", ":3:3: "},
    BrokenCase{"Unfinished", R"({"name": "a")", ":1:13: "},
    BrokenCase{"NoText", "", ":1:1: "},
    BrokenCase{"Array", "[]", ": is not a JSON object\n"},
    BrokenCase{"FullArray", R"([{"formatPresetList": [{"name": "a"}]}])", ": is not a JSON object\n"},
    BrokenCase{"Number", "42", ": is not a JSON object\n"},
    BrokenCase{"NoMembers", "{}", ": holds no format preset\n"},
    BrokenCase{"NoPresets", R"({"childList": [{"name": "Video"}]})", ": holds no format preset\n"},
};

INSTANTIATE_TEST_SUITE_P(Documents, BrokenDocument, testing::ValuesIn(kBroken),
                         [](const auto& test) { return test.param.what; });

TEST(Document, IsTakenBeforeTheCommandToo)
{
    const DocumentFile file(kShortDocument);
    const auto before = RunTool({"--document", file.Path(), "tree"});
    EXPECT_EQ(0, before.exitCode);
    EXPECT_EQ(0U, before.out.find("Mine (6)\n"));
    EXPECT_EQ(RunTool({"tree", "--document", file.Path()}).out, before.out);
}

TEST(Document, JsonIsTakenBeforeTheCommandToo)
{
    EXPECT_EQ(RunTool({"formats", "--json"}).out, RunTool({"--json", "formats"}).out);
}

TEST(Document, MissingFileIsTold)
{
    const auto run = RunTool({"tree", "--document", "/no/such/presets.json"});
    EXPECT_EQ("/no/such/presets.json: No such file or directory\n", run.err);
    EXPECT_EQ(1, run.exitCode);
}

TEST(Document, DirectoryIsTold)
{
    const auto run = RunTool({"tree", "--document", "/tmp"});
    EXPECT_EQ(0U, run.err.find("/tmp: ")) << run.err;
    EXPECT_EQ(1, run.exitCode);
}

TEST(Document, EmptyNameIsNotTheBuiltInTree) { EXPECT_EQ(1, RunTool({"tree", "--document", ""}).exitCode); }

TEST(Document, WhatTheLibraryLogsOfItIsToldAsOneLine)
{
    const auto run = RunOn(R"({"formatPresetList": [{"name": "p", "formatName": "MP4", "maxVideoBitrate": 1,
                               "minVideoBitrate": 2, "videoCodecPresets": [{"codecID": 1}]}]})",
                           {"match", Media::Clip("silent.mp4"), "--preset", "p"});
    EXPECT_EQ("vxpresets: IVXCodecPreset:MatchForQuality:(Error)maxbr <= minbr\n", run.err);
    EXPECT_EQ(0, run.exitCode);
}

TEST(Document, NestedTooDeepIsAnErrorOfTheDocument)
{
    std::string text;
    for (int i = 0; i < 100'000; ++i)
        text += R"({"childList":[)";
    const DocumentFile file(text);
    const auto run = RunTool({"tree", "--document", file.Path()});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ(0U, run.err.find(file.Path() + ":1:")) << run.err.substr(0, 300);
}

TEST(Document, NestedDeepIsPrinted)
{
    constexpr int kLevels = 500;
    std::string text;
    for (int i = 0; i < kLevels; ++i)
        text += R"({"name":"n","childList":[)";
    text += R"({"formatPresetList":[{"name":"deep"}]})";
    for (int i = 0; i < kLevels; ++i)
        text += "]}";
    const auto run = RunOn(text, {"tree"});
    EXPECT_EQ(0, run.exitCode) << run.err;
    EXPECT_TRUE(run.out.ends_with(" deep\n"));
}

} // namespace

} // namespace Vexlor::Apps
