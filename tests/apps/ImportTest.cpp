#include "tests/apps/RunTool.h"
#include "tests/foundation/TestFolder.h"

#include "apps/host/Failure.h"
#include "apps/host/document/DocumentSave.h"
#include "apps/host/import/Import.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"
#include "IVXFrameratePreset.h"
#include "IVXJsonValue.h"
#include "IVXRational.h"
#include "IVXResolutionPreset.h"
#include "runtime/foundation/VXJson.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace Vexlor::Apps
{

namespace
{

using testing::HasSubstr;
using Words = std::vector<std::string>;

const std::string kFolder = VX_IMPORT_DATA;

/// What the tool says of a fixture, without the folder's name.
std::string Said(const std::string& file, const Words& more = {})
{
    Words words{"import", kFolder + file};
    words.insert(words.end(), more.begin(), more.end());
    const auto run = RunTool(words);
    EXPECT_EQ(0, run.exitCode) << run.err;
    auto said = run.out;
    for (auto at = said.find(kFolder); at != std::string::npos; at = said.find(kFolder))
        said.erase(at, kFolder.size());
    return said;
}

TEST(ImportHandBrake, TellsWhateverDidNotBecomeTheSame)
{
    const std::string kTelevision = "Living Room/Television/";
    EXPECT_EQ(
        "handbrake.json:14:11: changed: " + kTelevision +
            "VideoQualitySlider: a constant quality of 21.5 becomes the grade High\n"
            "handbrake.json:16:11: changed: " +
            kTelevision +
            "VideoFramerate: 30 frames per second at most becomes that rate\n"
            "handbrake.json:20:11: left out: " +
            kTelevision +
            "VideoPreset: a setting of the encoder, of which a preset here has none\n"
            "handbrake.json:22:11: left out: " +
            kTelevision +
            "VideoMultiPass: a setting of the encoder, of which a preset here has none\n"
            "handbrake.json:25:11: changed: " +
            kTelevision +
            "PicturePAR: samples are made square, with the shape of the picture kept\n"
            "handbrake.json:26:11: left out: " +
            kTelevision +
            "PictureDenoiseFilter: a preset here has no filters and crops nothing\n"
            "handbrake.json:31:15: changed: " +
            kTelevision +
            "AudioList[0].AudioEncoder: nothing is passed through here: the sound is encoded with AC-3\n"
            "handbrake.json:35:15: left out: " +
            kTelevision +
            "AudioList[0].AudioTrackGainSlider: a preset here does not change how loud the sound is\n"
            "handbrake.json:37:13: left out: " +
            kTelevision +
            "AudioList[1]: an output has one sound track\n"
            "handbrake.json:39:11: left out: " +
            kTelevision +
            "SubtitleBurnBehavior: a preset here has no subtitles\n"
            "handbrake.json:41:11: left out: " +
            kTelevision +
            "Frobnicate: nothing is known of it\n"
            "handbrake.json:52:7: left out: Clip\\/Small/PictureWidth: a bound of one side bounds nothing "
            "here\n"
            "handbrake.json:54:67: changed: Clip\\/Small/AudioList[0].AudioMixdown: \"dpl2\" becomes plain "
            "Stereo\n"
            "handbrake.json:58:7: left out: Tape/FileFormat: no container here is \"av_avi\"\n"
            "handbrake.json: 2 presets, 9 members left out, 5 changed; nothing written\n",
        Said("handbrake.json"));
}

TEST(ImportHandBrake, SetsWhatMaps)
{
    const auto import = Tool::ImportFile(kFolder + "handbrake.json");
    const auto preset = import.root->FindChild("Living Room")->FindFormatPreset("Television");
    ASSERT_NE(nullptr, preset);
    EXPECT_EQ("MP4", preset->FormatName());
    EXPECT_EQ("For the large screen", preset->Description());
    EXPECT_EQ(1920, preset->MaxWidth());
    EXPECT_EQ(1080, preset->MaxHeight());
    EXPECT_EQ(448'000, preset->MinAudioBitrate());
    const auto video = preset->CurrentVideoCodec();
    EXPECT_EQ("HEVC", video->Name());
    EXPECT_EQ("High", video->CurrentCodecQuality()->FormatQuality());
    EXPECT_EQ(30, video->CurrentFramerate()->Framerate()->Num());
    EXPECT_EQ("AC-3", preset->CurrentAudioCodec()->Name());
}

TEST(ImportHandBrake, AnAverageBitrateBecomesBounds)
{
    const auto import = Tool::ImportFile(kFolder + "handbrake.json");
    const auto preset = import.root->FindFormatPreset("Clip/Small");
    ASSERT_NE(nullptr, preset);
    EXPECT_EQ(1'500'000, preset->MinVideoBitrate());
    EXPECT_EQ(1'500'001, preset->MaxVideoBitrate());
}

TEST(ImportGStreamer, TellsWhateverDidNotBecomeTheSame)
{
    EXPECT_EQ("camera.gep:4:1: left out: camera/category: a document has no kinds of categories\n"
              "camera.gep:6:1: left out: camera/description[de]: a document has one language\n"
              "camera.gep:12:1: left out: camera/archive/preset: a setting of the encoder, of which a preset "
              "here has none\n"
              "camera.gep:17:1: left out: "
              "camera/archive/streamprofile-archive-pictures.format.stream-format: nothing here is "
              "\"stream-format\"\n"
              "camera.gep:20:1: left out: camera/archive/streamprofile-archive-pictures.pass: a setting of "
              "the encoder, of "
              "which a preset here has none\n"
              "camera.gep:26:1: changed: camera/archive/streamprofile-archive-sound.restriction.rate: the "
              "first of 2 values "
              "is taken\n"
              "camera.gep:35:1: changed: camera/preview/streamprofile-preview-pictures.format: the first of "
              "2 alternatives is "
              "taken\n"
              "camera.gep:36:1: left out: "
              "camera/preview/streamprofile-preview-pictures.restriction.framerate: a range has no "
              "place here; the source's value is taken\n"
              "camera.gep:38:1: left out: camera/preview/streamprofile-words: an output has one picture and "
              "one sound track\n"
              "camera.gep:50:1: left out: camera/odd/format: no container here is \"animal/x-pony\"\n"
              "camera.gep:52:1: left out: something-else: nothing is known of it\n"
              "camera.gep: 3 presets, 9 members left out, 2 changed; nothing written\n",
              Said("camera.gep"));
}

TEST(ImportGStreamer, SetsWhatMaps)
{
    const auto camera = Tool::ImportFile(kFolder + "camera.gep").root->FindChild("camera");
    ASSERT_NE(nullptr, camera);
    EXPECT_EQ("What the camera on the roof sends", camera->Description());
    const auto archive = camera->FindFormatPreset("archive");
    EXPECT_EQ("MP4", archive->FormatName());
    EXPECT_EQ(1920, archive->MaxWidth());
    EXPECT_EQ(180, archive->MinHeight());
    EXPECT_EQ(1001, archive->CurrentVideoCodec()->CurrentFramerate()->Framerate()->Den());
    EXPECT_EQ("AAC", archive->CurrentAudioCodec()->Name());
    const auto preview = camera->FindFormatPreset("preview");
    EXPECT_EQ(640, preview->CurrentVideoCodec()->CurrentResolution()->Width());
    EXPECT_EQ(0, preview->AudioCodecPresetCount());
    EXPECT_EQ("OPUS", camera->FindFormatPreset("voice")->FormatName());
}

class ImportFixture : public testing::TestWithParam<const char*>
{
};

TEST_P(ImportFixture, BecomesADocumentWithoutFaults)
{
    const TestFolder folder;
    const auto document = folder / "new.json";
    EXPECT_THAT(Said(GetParam(), {"-o", document}), testing::EndsWith("; written to " + document + '\n'));
    EXPECT_THAT(RunTool({"check", document}).out, testing::EndsWith(", nothing wrong\n"));
}

TEST_P(ImportFixture, GoesIntoADocumentTwiceUnderNamesOfTheirOwn)
{
    const TestFolder folder;
    const auto document =
        WithContent(folder / "mine.json", R"({"name": "Mine", "x": 1, "formatPresetList": []})");
    Said(GetParam(), {"--into", document});
    Said(GetParam(), {"--into", document});
    const auto check = RunTool({"check", document});
    EXPECT_EQ(0, check.exitCode) << check.out;
    EXPECT_THAT(check.out, testing::EndsWith("0 errors, 1 warning\n")) << "x alone";
    EXPECT_THAT(ContentOf(document), HasSubstr(R"("x": 1)"));
}

INSTANTIATE_TEST_SUITE_P(Files, ImportFixture, testing::Values("handbrake.json", "camera.gep"),
                         [](const auto& test) { return std::string(test.param).substr(0, 6); });

TEST(Import, ADocumentThatIsThereIsNotWrittenOver)
{
    const TestFolder folder;
    const auto document = WithContent(folder / "mine.json", "{}");
    const auto run = RunTool({"import", kFolder + "camera.gep", "-o", document});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ(document + ": is there already; --into adds to it\n", run.err);
    EXPECT_EQ("{}", ContentOf(document));
}

TEST(Import, ADocumentThatComesAboutMeanwhileStays)
{
    const TestFolder folder;
    const auto document = WithContent(folder / "mine.json", "{}");
    EXPECT_THROW(Tool::MakeDocument(document, "{\"name\": \"new\"}"), Tool::Failure);
    EXPECT_EQ("{}", ContentOf(document));
}

TEST(Import, JsonTellsPresetsAndFindings)
{
    const auto run = RunTool({"import", kFolder + "camera.gep", "--json"});
    const auto json = ParseJson(run.out);
    ASSERT_NE(nullptr, json) << run.out;
    EXPECT_EQ(R"(["camera/archive","camera/preview","camera/voice"])",
              JsonText(*json->GetValueArray("presets")));
    EXPECT_EQ(R"({"kind":"left out","line":4,"column":1,"path":"camera/category",)"
              R"("message":"a document has no kinds of categories"})",
              JsonText(*json->GetValueArray("findings")->At(0)));
}

/// Why a text is not imported, without the name of its file.
std::string Refused(std::string_view text)
{
    try
    {
        Tool::ImportPresets("f", text);
    }
    catch (const Tool::Failure& failure)
    {
        return failure.what();
    }
    return "taken";
}

struct RefusedCase
{
    const char* what;
    std::string text;
    std::string reason;
};

void PrintTo(const RefusedCase& test, std::ostream* out) { *out << test.what; }

class ImportRefused : public testing::TestWithParam<RefusedCase>
{
};

TEST_P(ImportRefused, IsToldWithItsPlaceAndReason) { EXPECT_EQ(GetParam().reason, Refused(GetParam().text)); }

std::string Repeated(const std::string& text, int count)
{
    std::string repeated;
    for (int i = 0; i < count; ++i)
        repeated += text;
    return repeated;
}

const std::vector<RefusedCase> kRefused{
    {"Nothing", "", "f: is neither JSON, as HandBrake exports presets, nor an encoding target of GStreamer"},
    {"PropertyList", "<?xml version=\"1.0\"?>",
     "f: is neither JSON, as HandBrake exports presets, nor an encoding target of GStreamer"},
    {"BrokenJson", "{\n \"PresetList\": [}", "f:2:17: no JSON value"},
    {"OtherJson", "{\"childList\": []}", "f: has no \"PresetList\", as files that HandBrake exports have"},
    {"NoPresets", "{\"PresetList\": []}", "f: holds no preset that could be ours"},
    {"NoPresetOfOurs", R"({"PresetList": [{"PresetName": "A"}]})",
     "f: holds no preset that could be ours; A/FileFormat: the preset names no container"},
    {"NoObject", "{\"PresetList\": [1]}", "f: holds no preset that could be ours; unnamed: is no preset"},
    {"TooManyPresets", "{\"PresetList\": [" + Repeated("{\"FileFormat\":\"webm\"},", 4000) + "{}]}",
     "f: more than 4000 presets"},
    {"TooLarge", "{" + std::string(std::size_t{4} << 20U, ' '), "f: larger than 4 MiB"},
    {"NestedTooDeep", Repeated("{\"PresetList\":[", 1025), "f:1:7681: nested deeper than 1024 levels"},
    {"OtherKeyFile", "[Desktop Entry]\nName=x\n", "f: has no [GStreamer Encoding Target]"},
    {"LineWithoutValue", "[GStreamer Encoding Target]\n\nname\n", "f:3:1: \"name\" is no key=value"},
    {"GroupThatIsOpen", "[GStreamer Encoding Target\n", "f:1:1: a group's name ends in ]"},
    {"ValueWithoutAGroup", "# a comment\nname=x", "f:2:1: a value stands in front of the first group"},
    {"TargetWithoutProfiles", "[GStreamer Encoding Target]\nname=x", "f: holds no preset that could be ours"},
    {"CapsThatEnd", "[GStreamer Encoding Target]\nname=x\n[profile-a]\nformat=video/webm, width=[1",
     "f: holds no preset that could be ours; x/a/format: expected ] at \"\""},
};

INSTANTIATE_TEST_SUITE_P(Texts, ImportRefused, testing::ValuesIn(kRefused),
                         [](const auto& test) { return std::string(test.param.what); });

/// What is found in a HandBrake preset of MP4 with those members.
std::string FindingsOf(const std::string& members)
{
    const auto import = Tool::ImportPresets(
        "f", R"({"PresetList": [{"PresetName": "P", "FileFormat": "mp4", "VideoEncoder": "x264", )"
             R"("VideoQualityType": 1, "VideoAvgBitrate": 1000)" +
                 members + "}]}");
    std::string findings;
    for (const auto& finding : import.findings)
        findings += finding.path.substr(2) + ": " + finding.what + '\n';
    return findings;
}

TEST(Import, ANameThatNobodyCanReadIsCutAndTold)
{
    const std::string name(100'000, 'n');
    for (const auto& text :
         {R"({"PresetList": [{"PresetName": ")" + name +
              R"(", "FileFormat": "webm", "VideoEncoder": "VP9", "VideoQualityType": 1, )"
              R"("VideoAvgBitrate": 900, "VideoFramerateMode": ""}]})",
          "[GStreamer Encoding Target]\nname=x\n[profile-a]\nname=" + name + "\nformat=video/webm\n"})
    {
        const auto import = Tool::ImportPresets("f", text);
        ASSERT_EQ(1U, import.presets.size());
        EXPECT_THAT(import.presets.front(), testing::EndsWith(std::string(200, 'n') + "…"));
        ASSERT_EQ(1U, import.findings.size()) << import.findings.back().path << import.findings.back().what;
        EXPECT_EQ("a name of 100000 bytes is cut", import.findings.front().what);
    }
}

/// A HandBrake preset in so many folders.
std::string InFolders(int count)
{
    return "{\"PresetList\": [" + Repeated(R"({"PresetName": "F", "ChildrenArray": [)", count) +
           R"({"FileFormat": "webm"})" + Repeated("]}", count) + "]}";
}

TEST(ImportHandBrake, FoldersLieInEachOtherAsDeepAsPeopleMakeThem)
{
    EXPECT_EQ(1U, Tool::ImportPresets("f", InFolders(32)).presets.size());
    EXPECT_EQ("f: folders lie deeper than 32 in each other", Refused(InFolders(33)));
}

TEST(ImportHandBrake, WhatAsksForNothingIsNotFound)
{
    EXPECT_EQ(
        "",
        FindingsOf(R"(, "PictureDetelecine": "off", "VideoGrayScale": false, "PictureTopCrop": 0,)"
                   R"( "SubtitleLanguageList": [], "VideoTune": "", "VideoLevel": "auto", "Default": true)"));
}

TEST(ImportHandBrake, ValuesThatTheCodecDoesNotTakeAreFound)
{
    EXPECT_THAT(FindingsOf(R"(, "VideoProfile": "mystery")"),
                testing::StartsWith("VideoProfile: video-profile: \"mystery\" is none of "));
    EXPECT_THAT(FindingsOf(R"(, "VideoFramerate": 1e300)"),
                testing::StartsWith("VideoFramerate: frame-rate: "));
}

TEST(ImportHandBrake, AnEncoderOfHardwareBecomesItsCodec)
{
    const auto import = Tool::ImportPresets("f", R"([{"PresetName": "P", "FileFormat": "mkv", )"
                                                 R"("VideoEncoder": "nvenc_h265", "VideoQualityType": 1, )"
                                                 R"("VideoAvgBitrate": 900}])");
    ASSERT_EQ(1U, import.findings.size());
    EXPECT_EQ("P/VideoEncoder", import.findings.front().path);
    EXPECT_EQ("\"nvenc_h265\" becomes the codec; which encoder makes it is not chosen here",
              import.findings.front().what);
}

} // namespace

} // namespace Vexlor::Apps
