#include "tests/apps/Documents.h"
#include "tests/apps/Picture.h"

#include "IVXCodecParameter.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "runtime/mediacodecs/VXMediaFile.h"
#include "tests/media/Ffmpeg.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace Vexlor::Apps
{

namespace
{

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::Not;

/// Presets of small pictures and of sound as it is stored.
constexpr std::string_view kPresets = R"({
  "formatPresetList": [
    {"name": "Auto", "formatName": "MP4", "indexForVideoCodecPresets": 0, "indexForAudioCodecPresets": 0,
     "videoCodecPresets": [{"codecID": 1}], "audioCodecPresets": [{"codecID": 1001}]},
    {"name": "Wide", "formatName": "MP4",
     "videoCodecPresets": [{"codecID": 1, "resolutionPresets": [{"width": 320, "height": 120}]}]},
    {"name": "Wide pixels", "formatName": "MP4",
     "videoCodecPresets": [{"codecID": 1, "resolutionPresets": [{"width": 160, "height": 120}],
                            "aspectPreset": {"type": 13, "num": 2, "den": 1}}]},
    {"name": "Stereo", "formatName": "WAV",
     "audioCodecPresets": [{"codecID": 1008, "channelLayoutPresets": [{"chLayout": 3}]}]},
    {"name": "Stereo float", "formatName": "WAV",
     "audioCodecPresets": [{"codecID": 1017, "sampleratePresets": [{"samplerate": 44100}],
                            "channelLayoutPresets": [{"chLayout": 3}]}]},
    {"name": "Slow", "formatName": "WEBM",
     "videoCodecPresets": [{"codecID": 8, "resolutionPresets": [{"width": 1920, "height": 1080}]}]},
    {"name": "Refused", "formatName": "MOV", "maxWidth": 100, "maxHeight": 100,
     "videoCodecPresets": [{"codecID": 21}]}
  ]
})";

/// A folder with the presets, where conversions go.
class Conversions
{
public:
    Conversions() : m_document(m_folder.Write("presets.json", kPresets)) {}

    std::string Path(const char* name) const { return m_folder.Path(name); }

    ToolRun Convert(const std::string& source, const char* name, const char* preset,
                    std::vector<std::string> more = {}, const ToolSetting& setting = {}) const
    {
        more.insert(more.begin(),
                    {"convert", source, Path(name), "--preset", preset, "--document", m_document});
        return RunTool(more, setting);
    }

    /// The names in the folder beside the document's, hidden ones too.
    std::string Left() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_folder.Path("")))
            if (entry.path() != m_document)
                names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        std::string text;
        for (const auto& name : names)
            text += (text.empty() ? "" : " ") + name;
        return text;
    }

    const std::string& Document() const { return m_document; }

private:
    Media::ScratchFolder m_folder;
    std::string m_document;
};

/// The first picture that a preset makes of a clip of four quarters: red, green, blue and white.
Picture Converted(const char* clip, const char* preset, std::vector<std::string> more = {})
{
    const Conversions conversions;
    const auto run = conversions.Convert(Media::Clip(clip), "out.mp4", preset, std::move(more));
    EXPECT_EQ(0, run.exitCode) << run.err;
    return FirstPicture(conversions.Path("out.mp4"));
}

TEST(Convert, KeepsThePictureWhereItsShapeFits)
{
    const auto picture = Converted("quarters.mp4", "Auto");
    EXPECT_EQ("160x120", picture.Size());
    EXPECT_EQ("red green blue white", picture.Corners());
}

TEST(Convert, PadsAPictureOfAnotherShape)
{
    const auto picture = Converted("quarters.mp4", "Wide");
    EXPECT_EQ("320x120", picture.Size());
    EXPECT_EQ("black black black black", picture.Corners());
    EXPECT_EQ("black", picture.ColourAt(74, 60));
    EXPECT_EQ("red", picture.ColourAt(86, 10));
    EXPECT_EQ("white", picture.ColourAt(234, 110));
    EXPECT_EQ("black", picture.ColourAt(246, 60));
}

TEST(Convert, CropsAPictureWhereItIsTold)
{
    const auto picture = Converted("quarters.mp4", "Wide", {"--crop"});
    EXPECT_EQ("320x120", picture.Size());
    EXPECT_EQ("red green blue white", picture.Corners());
    EXPECT_EQ("red", picture.ColourAt(150, 50));
    EXPECT_EQ("white", picture.ColourAt(170, 70));
}

TEST(Convert, StretchesAPictureWhereItIsTold)
{
    const auto picture = Converted("quarters.mp4", "Wide", {"--stretch"});
    EXPECT_EQ("320x120", picture.Size());
    EXPECT_EQ("red green blue white", picture.Corners());
}

// A phone's clip: the frame lies on its side, and its upper left corner is shown at the upper right.
TEST(Convert, TurnsAPictureUpright)
{
    const auto picture = Converted("quarters-turned.mp4", "Auto");
    EXPECT_EQ("120x160", picture.Size());
    EXPECT_EQ("blue red white green", picture.Corners());
}

TEST(Convert, TurnsAPictureOnlyOnce)
{
    const Conversions conversions;
    conversions.Convert(Media::Clip("quarters-turned.mp4"), "out.mp4", "Auto");
    const auto video = ReadMediaFile(conversions.Path("out.mp4")).parameter->GetVideoCodecParameter();
    EXPECT_EQ(120, video->GetDisplayWidth());
    EXPECT_EQ(160, video->GetDisplayHeight());
}

TEST(Convert, MakesWidePixelsSquare)
{
    const auto picture = Converted("quarters-wide.mp4", "Auto");
    EXPECT_EQ("320x120", picture.Size());
    EXPECT_EQ("red green blue white", picture.Corners());
}

TEST(Convert, PadsWithinWidePixels)
{
    const Conversions conversions;
    conversions.Convert(Media::Clip("quarters.mp4"), "out.mp4", "Wide pixels");
    const auto video = ReadMediaFile(conversions.Path("out.mp4")).parameter->GetVideoCodecParameter();
    EXPECT_EQ(2, video->GetAspectRatio()->GetDoubleValue());
    const auto picture = FirstPicture(conversions.Path("out.mp4"));
    EXPECT_EQ("160x120", picture.Size());
    EXPECT_EQ("black", picture.ColourAt(34, 60));
    EXPECT_EQ("red", picture.ColourAt(46, 10));
    EXPECT_EQ("white", picture.ColourAt(114, 110));
    EXPECT_EQ("black", picture.ColourAt(126, 60));
}

/// Sound of one kind, converted by a preset.
Sound ConvertedSound(std::string_view recipe, const char* preset)
{
    const Conversions conversions;
    Media::RunFfmpeg(recipe, conversions.Path("in.wav"));
    const auto run = conversions.Convert(conversions.Path("in.wav"), "out.wav", preset);
    EXPECT_EQ(0, run.exitCode) << run.err;
    return SoundOf(conversions.Path("out.wav"));
}

// The program's test tone is an eighth of full scale.
TEST(Convert, KeepsMonoAsLoudInStereo)
{
    const auto sound = ConvertedSound("-f lavfi -i sine=duration=0.3 -ac 1", "Stereo");
    ASSERT_EQ(2U, sound.peaks.size());
    EXPECT_NEAR(0.125, sound.peaks[0], 0.002);
    EXPECT_NEAR(0.125, sound.peaks[1], 0.002);
}

TEST(Convert, MixesSurroundWithoutClipping)
{
    const auto sound = ConvertedSound("-f lavfi -i sine=duration=0.3 -c:a pcm_f32le "
                                      "-af volume=8,pan=5.1|FL=c0|FR=c0|FC=c0|LFE=c0|BL=c0|BR=c0",
                                      "Stereo float");
    ASSERT_EQ(2U, sound.peaks.size());
    EXPECT_LE(sound.peaks[0], 1.001);
    EXPECT_GT(sound.peaks[0], 0.9);
    EXPECT_EQ(44'100, sound.sampleRate);
}

TEST(Convert, MixesTheCentreIntoBothSides)
{
    const auto sound = ConvertedSound(
        "-f lavfi -i sine=duration=0.3 -af pan=5.1|FC=c0|FL=0*c0|FR=0*c0|LFE=0*c0|BL=0*c0|BR=0*c0", "Stereo");
    ASSERT_EQ(2U, sound.peaks.size());
    EXPECT_GT(sound.peaks[0], 0.02);
    EXPECT_DOUBLE_EQ(sound.peaks[0], sound.peaks[1]);
}

TEST(Convert, KeepsSidesApart)
{
    const auto sound = ConvertedSound(
        "-f lavfi -i sine=duration=0.3 -af pan=5.1|FL=c0|FC=0*c0|FR=0*c0|LFE=0*c0|BL=0*c0|BR=0*c0", "Stereo");
    ASSERT_EQ(2U, sound.peaks.size());
    EXPECT_GT(sound.peaks[0], 0.02);
    EXPECT_LT(sound.peaks[1], 0.001);
}

TEST(Convert, TellsWhatItMade)
{
    const Conversions conversions;
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), "out.mp4", "Auto");
    EXPECT_EQ("", run.err);
    EXPECT_THAT(run.out, HasSubstr("100 %, "));
    EXPECT_THAT(run.out, testing::ContainsRegex("out.mp4: [0-9]+ kB in 0:0[0-9]\n$"));
    EXPECT_THAT(run.out, Not(HasSubstr("\r")));
    EXPECT_EQ("out.mp4", conversions.Left());
}

TEST(Convert, ShowsABarOnATerminal)
{
    const Conversions conversions;
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), "out.mp4", "Auto", {},
                                         {.environment = {"TERM=xterm"}, .onTerminal = true});
    EXPECT_THAT(run.out, HasSubstr("\r█"));
    EXPECT_THAT(run.out, HasSubstr(" 100 %"));
}

TEST(Convert, KeepsWhatTheProgramItselfDoesNotRead)
{
    const Media::ScratchFolder folder;
    const auto run = RunTool({"convert", Media::Clip("quarters.mp4"), folder.Path("out.webp"), "--preset",
                              "Video/Animations/WEBP"});
    EXPECT_EQ(0, run.exitCode) << run.err;
    EXPECT_EQ("RIFF", Media::BytesOf(folder.Path("out.webp")).substr(0, 4));
}

TEST(Convert, TellsProgramsWhatItMade)
{
    const Conversions conversions;
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), "out.mp4", "Auto", {"--json"});
    const auto json = ParseJson(run.out);
    ASSERT_NE(nullptr, json) << run.out;
    EXPECT_EQ(static_cast<int>(fs::file_size(conversions.Path("out.mp4"))), json->GetValueInt("bytes"));
    EXPECT_EQ(conversions.Path("out.mp4"), json->GetValueString("output"));
}

TEST(Convert, OnlyTellsWhatItWouldDoInADryRun)
{
    const Conversions conversions;
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), "out.mp4", "Auto", {"--dry-run"});
    EXPECT_EQ(0, run.exitCode);
    EXPECT_THAT(run.out, HasSubstr("ffmpeg -i "));
    EXPECT_THAT(run.out, HasSubstr("\n# about "));
    EXPECT_EQ("", conversions.Left());
}

TEST(Convert, TakesNamesAsLongAsNamesCanBe)
{
    const Conversions conversions;
    const auto name = std::string(251, 'x') + ".mp4";
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), name.c_str(), "Auto");
    EXPECT_EQ(0, run.exitCode) << run.err;
    EXPECT_EQ(name, conversions.Left());
}

TEST(Convert, RefusesANameThatIsNone)
{
    const Conversions conversions;
    const auto run = RunTool({"convert", Media::Clip("quarters.mp4"), "", "--preset", "Video/MP4"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("the file to write has no name\n", run.err);
}

TEST(Convert, WarnsOfANameThatOtherFilesHave)
{
    const Conversions conversions;
    const auto said = [&](const char* name)
    { return conversions.Convert(Media::Clip("quarters.mp4"), name, "Auto", {"--dry-run"}).out; };
    EXPECT_THAT(said("out.mkv"), testing::StartsWith("# the name \"" + conversions.Path("out.mkv") +
                                                     "\" does not end as MP4 files do\n"));
    EXPECT_THAT(said("out.M4V"), testing::StartsWith("ffmpeg -i ")); // read by the same program
}

TEST(Convert, LeavesAFileThatIsThere)
{
    const Conversions conversions;
    fs::copy_file(Media::Clip("music.flac"), conversions.Path("out.mp4"));
    const auto before = Media::BytesOf(conversions.Path("out.mp4"));
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), "out.mp4", "Auto");
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ(conversions.Path("out.mp4") + ": is there already\n", run.err);
    EXPECT_EQ(before, Media::BytesOf(conversions.Path("out.mp4")));
    EXPECT_EQ("out.mp4", conversions.Left());
}

TEST(Convert, OverwritesAFileWhereItIsTold)
{
    const Conversions conversions;
    fs::copy_file(Media::Clip("music.flac"), conversions.Path("out.mp4"));
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), "out.mp4", "Auto", {"--force"});
    EXPECT_EQ(0, run.exitCode) << run.err;
    EXPECT_EQ("MP4", ReadMediaFile(conversions.Path("out.mp4")).parameter->FormatName());
    EXPECT_EQ("out.mp4", conversions.Left());
}

TEST(Convert, NeverOverwritesItsSource)
{
    const Conversions conversions;
    fs::copy_file(Media::Clip("quarters.mp4"), conversions.Path("in.mp4"));
    const auto run = conversions.Convert(conversions.Path("in.mp4"), "in.mp4", "Auto", {"--force"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_THAT(run.err, testing::EndsWith(": is the source itself\n"));
    EXPECT_EQ(Media::BytesOf(Media::Clip("quarters.mp4")), Media::BytesOf(conversions.Path("in.mp4")));
}

TEST(Convert, ShowsWhyTheProgramFails)
{
    const Conversions conversions;
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), "out.mov", "Refused");
    EXPECT_EQ(1, run.exitCode);
    EXPECT_THAT(run.err, HasSubstr("out.mov: ffmpeg failed: "));
    EXPECT_EQ("", conversions.Left());
}

TEST(Convert, KeepsTheOldFileWhereTheProgramFails)
{
    const Conversions conversions;
    fs::copy_file(Media::Clip("music.flac"), conversions.Path("out.mov"));
    conversions.Convert(Media::Clip("quarters.mp4"), "out.mov", "Refused", {"--force"});
    EXPECT_EQ(Media::BytesOf(Media::Clip("music.flac")), Media::BytesOf(conversions.Path("out.mov")));
    EXPECT_EQ("out.mov", conversions.Left());
}

/// Runs a command with a shell; the answer is its exit code.
int RunShell(const std::string& command)
{
    return std::system(command.c_str()); // the folder's name and the tool's hold nothing for a shell
}

// A shell's limit on the size of files ends a program that goes beyond it.
TEST(Convert, TellsWhatEndsTheProgram)
{
    const Conversions conversions;
    const auto words = "ulimit -f 1; '" VX_TOOL "' convert '" + Media::Clip("film.mp4") + "' '" +
                       conversions.Path("out.mp4") + "' --preset Video/MP4 2> '" + conversions.Path("said") +
                       "' > /dev/null";
    EXPECT_NE(0, RunShell(words));
    EXPECT_EQ(conversions.Path("out.mp4") +
                  ": ffmpeg failed: it was ended by a signal: File size limit exceeded\n",
              Media::BytesOf(conversions.Path("said")));
    EXPECT_EQ("said", conversions.Left());
}

TEST(Convert, TellsThatTheProgramIsMissing)
{
    const Conversions conversions;
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), "out.mp4", "Auto", {},
                                         {.environment = {"PATH=/no/such/folder"}});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("ffmpeg: there is no such program in PATH\n", run.err);
    EXPECT_EQ("", conversions.Left());
}

TEST(Convert, TellsThatAFolderIsMissing)
{
    const Conversions conversions;
    const auto run = conversions.Convert(Media::Clip("quarters.mp4"), "no/such/out.mp4", "Auto");
    EXPECT_EQ(conversions.Path("no/such/out.mp4") + ": No such file or directory\n", run.err);
}

/// True while a program runs that writes into that folder.
bool IsWrittenTo(const std::string& folder)
{
    std::error_code ignored;
    for (const auto& process : fs::directory_iterator("/proc"))
        if (fs::exists(process.path() / "cmdline", ignored))
        {
            std::ifstream file(process.path() / "cmdline");
            const std::string words{std::istreambuf_iterator<char>(file), {}};
            if (words.find("file:" + folder) != std::string::npos)
                return true;
        }
    return false;
}

TEST(Convert, LeavesNothingBehindWhenItIsInterrupted)
{
    const Conversions conversions;
    Media::RunFfmpeg("-f lavfi -i testsrc2=size=160x90:rate=25:duration=30 -c:v mpeg4",
                     conversions.Path("in.mp4"));
    const auto tool = std::string(VX_TOOL) + " convert " + conversions.Path("in.mp4") + ' ' +
                      conversions.Path("out.webm") + " --preset Slow --document " + conversions.Document();
    const int status =
        RunShell("timeout --preserve-status -s INT 1.5 " + tool + " >" + conversions.Path("log") + " 2>&1");
    EXPECT_NE(0, status);
    EXPECT_THAT(Media::BytesOf(conversions.Path("log")),
                testing::EndsWith("out.webm: stopped; nothing is left of it\n"));
    EXPECT_EQ("in.mp4 log", conversions.Left());
    EXPECT_FALSE(IsWrittenTo(conversions.Path("")));
}

TEST(Convert, LeavesNothingBehindWhenNobodyReads)
{
    const Conversions conversions;
    Media::RunFfmpeg("-f lavfi -i testsrc2=size=160x90:rate=25:duration=10 -c:v mpeg4",
                     conversions.Path("in.mp4"));
    const auto tool = std::string(VX_TOOL) + " convert " + conversions.Path("in.mp4") + ' ' +
                      conversions.Path("out.webm") + " --preset Slow --document " + conversions.Document();
    RunShell("timeout 60 " + tool + " 2>" + conversions.Path("log") + " | head -n 1 >/dev/null");
    EXPECT_EQ("in.mp4 log", conversions.Left());
    EXPECT_FALSE(IsWrittenTo(conversions.Path("")));
}

TEST(CommandLineForFfmpeg, DoesWhatConvertDoes)
{
    const Conversions conversions;
    fs::copy_file(Media::Clip("quarters.mp4"), conversions.Path("it's $(a) clip.mp4"));
    const auto command =
        RunTool({"match", conversions.Path("it's $(a) clip.mp4"), "--preset", "Wide", "--document",
                 conversions.Document(), "--ffmpeg", conversions.Path("an output.mp4")});
    ASSERT_EQ(0, command.exitCode) << command.err;
    std::string quiet = command.out;
    quiet.insert(quiet.find("ffmpeg ") + 7, "-v error -nostdin ");
    ASSERT_EQ(0, RunShell(quiet)) << command.out;
    fs::rename(conversions.Path("an output.mp4"), conversions.Path("output.mp4"));
    EXPECT_EQ("320x120", FirstPicture(conversions.Path("output.mp4")).Size());
}

TEST(CommandLineForFfmpeg, IsWhatAFittingIsFor)
{
    EXPECT_EQ(2, RunTool({"match", "holiday.mov", "--preset", "MP4", "--crop"}).exitCode);
    EXPECT_EQ(2, RunTool({"convert", "a.mov", "b.mp4", "--preset", "MP4", "--crop", "--stretch"}).exitCode);
}

TEST(CommandLineForFfmpeg, IsJsonForPrograms)
{
    const Conversions conversions;
    const auto run = RunTool({"match", Media::Clip("quarters.mp4"), "--preset", "Auto", "--document",
                              conversions.Document(), "--ffmpeg", "out.mp4", "--json"});
    const auto json = ParseJson(run.out);
    ASSERT_NE(nullptr, json) << run.out;
    EXPECT_THAT(json->GetValueString("command"), testing::EndsWith(" -f mp4 out.mp4"));
    EXPECT_THAT(Elements(*(*json)["arguments"]), testing::StartsWith("\"-i\" "));
}

/// A preset of the built-in tree that a clip goes into, and the size is told right.
class SizeOfAFile : public testing::TestWithParam<std::pair<const char*, const char*>>
{
};

TEST_P(SizeOfAFile, IsWithinWhatIsTold)
{
    const auto& [clip, preset] = GetParam();
    const Media::ScratchFolder folder;
    const auto size = (*(*RunForJson({"size", Media::Clip(clip), "--preset", preset}))["size"])["file"];
    const auto run = RunTool({"convert", Media::Clip(clip), folder.Path("out"), "--preset", preset});
    ASSERT_EQ(0, run.exitCode) << run.err;
    const auto bytes = static_cast<std::int64_t>(fs::file_size(folder.Path("out")));
    EXPECT_GE(bytes, size->GetValueInt64("least"));
    EXPECT_LE(bytes, size->GetValueInt64("most"));
}

INSTANTIATE_TEST_SUITE_P(
    Files, SizeOfAFile,
    testing::Values(std::pair("film.webm", "Video/MP4"), std::pair("film.webm", "Video/MKV"),
                    std::pair("film.webm", "Video/AVI"), std::pair("film.ts", "Video/TS"),
                    std::pair("film.mp4", "MOV ProRes Proxy"), std::pair("film.mp4", "General/For Editing"),
                    std::pair("film.mp4", "MOV DNxHR LB"), std::pair("film.mp4", "Audio/WAV"),
                    std::pair("music.flac", "Audio/WAV"), std::pair("music.flac", "Audio/MP3"),
                    std::pair("music.flac", "Audio/FLAC"), std::pair("music.mp3", "Audio/M4A")));

TEST(SizeCommand, FailsWhereNoFileCanBeMade)
{
    const auto run = RunTool({"size", Media::Clip("music.flac"), "--preset", "Video/DV"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ(Media::Clip("music.flac") + ": DV needs a picture\n", run.err);
}

TEST(SizeCommand, SolvesForATarget)
{
    const auto run = RunTool({"size", Media::Clip("film.mp4"), "--preset", "Video/MP4", "--target", "900kB"});
    EXPECT_EQ(0, run.exitCode) << run.err;
    EXPECT_THAT(run.out, HasSubstr("\nFor 900 kB: set "));
    EXPECT_THAT(run.out, HasSubstr("video bitrate "));
}

TEST(SizeCommand, FailsWhereATargetCannotBeHad)
{
    const auto run = RunTool({"size", Media::Clip("film.mp4"), "--preset", "Video/MP4", "--target", "1kB"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_THAT(run.out, HasSubstr("\na file of 1 kB cannot be had: "));
    EXPECT_EQ("", run.err);
}

TEST(SizeCommand, RefusesATargetThatIsNone)
{
    EXPECT_EQ(
        2, RunTool({"size", Media::Clip("film.mp4"), "--preset", "Video/MP4", "--target", "much"}).exitCode);
}

} // namespace

} // namespace Vexlor::Apps
