#include "Documents.h"

#include "IVXCodecPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

namespace Vexlor::Apps
{

namespace
{

constexpr std::string_view kBuiltInTree = R"(Presets (25)
  General (6)
    Small Video 480p     MP4   H.264, AAC
    HD Video 720p        MP4   H.264, AAC
    Full HD Video 1080p  MP4   H.264, AAC
    4K Video 2160p       MP4   HEVC, AAC
    Music                MP3   MP3
    Lossless Music       FLAC  FLAC
  Video (6)
    MP4                  MP4   H.264, AAC
    MOV                  MOV   H.264, AAC
    MKV                  MKV   HEVC, AAC
    WEBM                 WEBM  VP9, Opus
    AVI                  AVI   MPEG-4, MP3
    MPG                  MPG   MPEG-2, MP2
  Audio (5)
    MP3                  MP3   MP3
    M4A                  M4A   AAC
    WAV                  WAV   PCM 16-bit
    FLAC                 FLAC  FLAC
    OGG                  OGG   Vorbis
  Devices (4)
    Phone                MP4   H.264, AAC
    Tablet               MP4   H.264, AAC
    4K Television        MP4   HEVC, AAC
    DivX Player          AVI   DivX, MP3
  Web Video (4)
    Upload 720p          MP4   H.264, AAC
    Upload 1080p         MP4   H.264, AAC
    Web Page 720p        WEBM  VP9, Opus
    Web Page 1080p       WEBM  VP9, Opus
  Customised (0)
  Recently Used (0)
)";

std::shared_ptr<IVXFormatNode> BuiltInTree() { return IVXFormatNode::MallocFormatNode(RunForJson({"tree"})); }

TEST(TreeCommand, PrintsTheBuiltInTreeWithCounts)
{
    const auto run = RunTool({"tree"});
    EXPECT_EQ(kBuiltInTree, run.out);
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

/// Whether the choice is a codec; where none is on offer there is nothing to choose.
bool IsCodecChosen(const std::shared_ptr<const IVXCodecPreset>& current, int count)
{
    return current ? !current->IsAutoValue() : count == 0;
}

std::string PresetsWithoutCodecs(const IVXFormatNode& category)
{
    std::string names;
    for (int i = 0; i < category.FormatPresetCount(); ++i)
    {
        const auto preset = category.GetFormatPreset(i);
        const auto sound = preset->CurrentAudioCodec();
        if (!sound || !IsCodecChosen(sound, 0) ||
            !IsCodecChosen(preset->CurrentVideoCodec(), preset->VideoCodecPresetCount()))
            names += preset->Name() + '\n';
    }
    return names;
}

TEST(TreeCommand, EveryBuiltInPresetHasRealCodecsChosen)
{
    for (const auto& category : BuiltInTree()->GetChildList())
        EXPECT_EQ("", PresetsWithoutCodecs(*category));
}

TEST(TreeCommand, WebPresetsAreBounded)
{
    const auto preset = BuiltInTree()->FindChild("Web Video")->FindFormatPreset("Upload 1080p");
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
