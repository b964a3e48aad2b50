#include "Documents.h"

#include "IVXCodecPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

namespace Vexlor::Apps
{

namespace
{

// How it begins; what is in it, tests/catalogue knows.
constexpr std::string_view kBuiltInTree = R"(Presets (222)
  General (12)
    Just Works                     MP4   H.264, AAC
    Small Video 480p               MP4   H.264, AAC
    HD Video 720p                  MP4   H.264, AAC
)";

std::shared_ptr<IVXFormatNode> BuiltInTree() { return IVXFormatNode::MallocFormatNode(RunForJson({"tree"})); }

TEST(TreeCommand, PrintsTheBuiltInTreeWithCounts)
{
    const auto run = RunTool({"tree"});
    EXPECT_EQ(kBuiltInTree, run.out.substr(0, kBuiltInTree.size()));
    EXPECT_EQ("", run.err);
    EXPECT_EQ(0, run.exitCode);
}

TEST(TreeCommand, PrintsADocumentWithAWideNameAligned)
{
    EXPECT_EQ("Mine (6)\n"
              "  Disc/Wide  MP4\n"
              "  Disc (5)\n"
              "    CD       WAV  PCM 16-bit\n"
              "    Wide     AVI\n"
              "    日本     MKV\n"
              "    Both     MOV\n"
              "    both     MOV\n"
              "  Empty (0)\n",
              RunOn(kShortDocument, {"tree"}).out);
}

TEST(TreeCommand, JsonFedBackGivesTheSameBytes)
{
    const auto first = RunTool({"tree", "--json"}).out;
    const auto second = RunOn(first, {"tree", "--json"});
    EXPECT_EQ(0, second.exitCode);
    EXPECT_TRUE(first == second.out) << first.size() << " bytes became " << second.out.size();
}

TEST(TreeCommand, JsonIsThePresetDocument)
{
    const auto json = RunForJson({"tree"});
    EXPECT_EQ("Presets", json->GetValueString("name"));
    const auto video = json->GetValueArray("childList")->At(1);
    EXPECT_EQ("Video", video->GetValueString("name"));
    EXPECT_EQ(10000003, video->GetValueInt("faceID"));
    EXPECT_EQ("MP4", video->GetValueArray("formatPresetList")->At(0)->GetValueString("formatName"));
}

TEST(TreeCommand, CategoriesCarryTheirFaces)
{
    std::vector<int> faces;
    for (const auto& category : BuiltInTree()->GetChildList())
        faces.push_back(category->FaceID());
    EXPECT_EQ((std::vector{10000002, 10000003, 10000004, 10000005, 10000006, 10000000, 10000001}), faces);
}

TEST(TreeCommand, FormatsCarryTheirFaces)
{
    const auto tree = BuiltInTree();
    const auto video = tree->FindChild("Video");
    const auto audio = tree->FindChild("Audio");
    EXPECT_EQ(20000000, video->FindFormatPreset("MP4")->FaceID());
    EXPECT_EQ(20000001, video->FindFormatPreset("AVI")->FaceID());
    EXPECT_EQ(20000002, video->FindFormatPreset("WEBM")->FaceID());
    EXPECT_EQ(20000003, video->FindFormatPreset("MKV")->FaceID());
    EXPECT_EQ(20001000, audio->FindFormatPreset("MP3")->FaceID());
    EXPECT_EQ(20001001, audio->FindFormatPreset("M4A")->FaceID());
    EXPECT_EQ(20001002, audio->FindFormatPreset("WAV")->FaceID());
}

TEST(TreeCommand, WebPresetsAreBounded)
{
    const auto upload = BuiltInTree()->FindChild("Web Video")->FindChild("Upload");
    const auto preset = upload->FindFormatPreset("Upload 1080p");
    EXPECT_EQ(1920, preset->MaxWidth());
    EXPECT_EQ(1080, preset->MaxHeight());
    EXPECT_EQ(12'000'000, preset->MaxVideoBitrate());
    EXPECT_EQ(384'000, preset->MaxAudioBitrate());
}

TEST(TreeCommand, NamesCannotSteerTheTerminal)
{
    const auto run = RunOn(R"({"formatPresetList": [{"name": "a\u001b[2Jb\nc\u202ed"}]})", {"tree"});
    EXPECT_EQ(" (1)\n  a\uFFFD[2Jb\uFFFDc\uFFFDd\n", run.out);
}

} // namespace

} // namespace Vexlor::Apps
