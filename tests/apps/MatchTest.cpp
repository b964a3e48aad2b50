#include "Documents.h"

#include <gmock/gmock.h>

#include <array>

namespace Vexlor::Apps
{

namespace
{

std::string LittleEndian(std::uint32_t number, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(number >> static_cast<unsigned>(8 * i) & 0xFFU);
    return text;
}

/// A second of silence: 16-bit stereo samples at 48 kHz.
std::string Silence()
{
    constexpr std::uint32_t kRate = 48'000;
    constexpr std::uint32_t kBytes = kRate * 4;
    return "RIFF" + LittleEndian(kBytes + 36, 4) + "WAVEfmt " + LittleEndian(16, 4) + LittleEndian(1, 2) +
           LittleEndian(2, 2) + LittleEndian(kRate, 4) + LittleEndian(kBytes, 4) + LittleEndian(4, 2) +
           LittleEndian(16, 2) + "data" + LittleEndian(kBytes, 4) + std::string(kBytes, '\0');
}

std::shared_ptr<const IVXJsonValue> MatchJson(const char* clip, const char* preset)
{
    return RunForJson({"match", Media::Clip(clip), "--preset", preset});
}

/// The names of the object's members, in order.
std::string Names(const IVXJsonValue& stream)
{
    const auto text = JsonText(stream, JsonStyle::Indented);
    std::string names;
    for (std::size_t at = text.find("\n  \""); at != std::string::npos; at = text.find("\n  \"", at + 1))
        names += text.substr(at + 4, text.find('"', at + 4) - at - 4) + ' ';
    return names;
}

constexpr std::string_view kSilenceOnCD = R"(silence.wav (WAV) -> Disc/CD (WAV)

Video            none in the source

Audio          Source      Output      Why
Codec          PCM 16-bit  PCM 16-bit  chosen in the preset
Sample rate    48 kHz      44.1 kHz    chosen in the preset
Channels       Stereo      Stereo      chosen in the preset
Sample format  16-bit      16-bit      chosen in the preset
)";

TEST(MatchCommand, PrintsTheOutputBesideTheSource)
{
    const Media::ScratchFolder folder;
    const auto media = folder.Write("silence.wav", Silence());
    const auto run = RunOn(kShortDocument, {"match", media, "--preset", "CD"});
    const auto start = run.out.find("silence.wav");
    ASSERT_NE(std::string::npos, start) << run.err;
    EXPECT_EQ(kSilenceOnCD, run.out.substr(start, kSilenceOnCD.size()));
    EXPECT_EQ("", run.err);
    EXPECT_EQ(0, run.exitCode);
}

TEST(MatchCommand, PrintsBothStreamsOfAFilm)
{
    const auto text = RunTool({"match", Media::Clip("film.mp4"), "--preset", "Video/WEBM"}).out;
    EXPECT_NE(std::string::npos, text.find("Codec          H.264        VP9          chosen in the preset\n"))
        << text;
    EXPECT_NE(std::string::npos,
              text.find("Size           1920 x 1080  1920 x 1080  taken from the source\n"));
    EXPECT_NE(std::string::npos,
              text.find("Frame rate     30 fps       30 fps       taken from the source\n"));
    EXPECT_NE(std::string::npos,
              text.find("Codec          AAC                  Opus          chosen in the preset\n"));
}

TEST(MatchCommand, TellsThatAStreamIsLeftOut)
{
    const auto text = RunTool({"match", Media::Clip("film.mp4"), "--preset", "Audio/MP3"}).out;
    EXPECT_NE(std::string::npos,
              text.find("Codec          H.264        left out  the preset has no codec for it\n"))
        << text;
}

TEST(MatchCommand, JsonHasExactlyTheseMembers)
{
    const auto json = MatchJson("film.mp4", "Video/MP4");
    EXPECT_EQ("format hint source output why warnings ", Names(*json));
    EXPECT_EQ("video audio ", Names(*(*json)["source"]));
    EXPECT_EQ("video audio ", Names(*(*json)["output"]));
}

class MatchSide : public testing::TestWithParam<const char*>
{
};

TEST_P(MatchSide, HasExactlyTheseMembers)
{
    const auto side = (*MatchJson("film.mp4", "Video/MP4"))[GetParam()];
    EXPECT_EQ("codec codecID width height displayWidth displayHeight frameRate pixelFormat profile level "
              "sampleAspect bitrate maxBitrate minBitrate bitrateMode codecTag ",
              Names(*(*side)["video"]));
    EXPECT_EQ("codec codecID sampleRate channelLayout channels sampleFormat profile bitrate maxBitrate "
              "minBitrate bitrateMode codecTag ",
              Names(*(*side)["audio"]));
}

INSTANTIATE_TEST_SUITE_P(Json, MatchSide, testing::Values("source", "output"),
                         [](const auto& test) { return std::string(test.param); });

TEST(MatchCommand, JsonTellsTheSourcesVideo)
{
    const auto source = (*MatchJson("film.mp4", "Video/MP4"))["source"];
    const auto video = (*source)["video"];
    EXPECT_EQ("H.264", video->GetValueString("codec"));
    EXPECT_EQ(1, video->GetValueInt("codecID"));
    EXPECT_EQ(1920, video->GetValueInt("width"));
    EXPECT_EQ(1080, video->GetValueInt("height"));
    EXPECT_EQ("30 1", Elements(*video->GetValueArray("frameRate")));
    EXPECT_EQ("YUV 4:2:0", video->GetValueString("pixelFormat"));
    EXPECT_EQ("avc1", video->GetValueString("codecTag"));
    EXPECT_GT(video->GetValueInt("bitrate"), 0);
}

TEST(MatchCommand, JsonTellsTheSourcesAudio)
{
    const auto source = (*MatchJson("surround.mp4", "Video/MP4"))["source"];
    const auto audio = (*source)["audio"];
    EXPECT_EQ("AAC", audio->GetValueString("codec"));
    EXPECT_EQ(1001, audio->GetValueInt("codecID"));
    EXPECT_EQ(48'000, audio->GetValueInt("sampleRate"));
    EXPECT_EQ("5.1", audio->GetValueString("channelLayout"));
    EXPECT_EQ(6, audio->GetValueInt("channels"));
    EXPECT_EQ("32-bit float planar", audio->GetValueString("sampleFormat"));
    EXPECT_EQ("LC", audio->GetValueString("profile"));
}

TEST(MatchCommand, JsonTellsTheOutput)
{
    const auto json = MatchJson("film.mp4", "Video/WEBM");
    const auto video = (*(*json)["output"])["video"];
    const auto audio = (*(*json)["output"])["audio"];
    EXPECT_EQ("WEBM", json->GetValueString("format"));
    EXPECT_EQ("VP9", video->GetValueString("codec"));
    EXPECT_EQ(1920, video->GetValueInt("width"));
    EXPECT_EQ("30 1", Elements(*video->GetValueArray("frameRate")));
    EXPECT_EQ("1 1", Elements(*video->GetValueArray("sampleAspect")));
    EXPECT_GT(video->GetValueInt("bitrate"), 0);
    EXPECT_EQ("Opus", audio->GetValueString("codec"));
    EXPECT_EQ(48'000, audio->GetValueInt("sampleRate"));
    EXPECT_EQ(2, audio->GetValueInt("channels"));
}

TEST(MatchCommand, JsonTellsTheReasons)
{
    const auto json = MatchJson("film.mp4", "Devices/Phones/Phone 720p");
    const auto size = (*(*(*json)["why"])["video"])["size"];
    ASSERT_EQ(2, size->Size());
    EXPECT_EQ("source", size->At(0)->GetValueString("reason"));
    EXPECT_EQ("bounded", size->At(1)->GetValueString("reason"));
    EXPECT_EQ("taken from the source", size->At(0)->GetValueString("text"));
    EXPECT_EQ("null", JsonText(*(*(*(MatchJson("silent.mp4", "Video/MP4")))["why"])["audio"]));
}

TEST(MatchCommand, WarnsOfABitrateAboveTheSources)
{
    const auto text = RunTool({"match", Media::Clip("music.mp3"), "--preset", "Audio/WAV"}).out;
    EXPECT_THAT(text, testing::HasSubstr(
                          "\n\nwarning: audio: the bitrate 1.41 Mb/s is above the source's 128 kb/s\n"));
}

TEST(MatchCommand, JsonTellsTheWarnings)
{
    const auto warnings = (*MatchJson("music.mp3", "Audio/WAV"))["warnings"];
    ASSERT_EQ(1, warnings->Size());
    EXPECT_EQ("bitrateAboveSource", warnings->At(0)->GetValueString("kind"));
    EXPECT_EQ("audio", warnings->At(0)->GetValueString("stream"));
}

TEST(MatchCommand, TakesTheDisplaySizeOfAnAnamorphicSource)
{
    const auto json = MatchJson("anamorphic.mp4", "Video/MP4");
    const auto source = (*(*json)["source"])["video"];
    const auto output = (*(*json)["output"])["video"];
    EXPECT_EQ("64 45", Elements(*source->GetValueArray("sampleAspect")));
    EXPECT_EQ(720, source->GetValueInt("width"));
    EXPECT_EQ(1024, source->GetValueInt("displayWidth"));
    EXPECT_EQ(1024, output->GetValueInt("width"));
    EXPECT_EQ(576, output->GetValueInt("height"));
}

TEST(MatchCommand, StaysWithinTheBoundsOfAPreset)
{
    const auto json = MatchJson("film.mp4", "Devices/Phones/Phone 720p");
    const auto video = (*(*json)["output"])["video"];
    EXPECT_EQ(1280, video->GetValueInt("width"));
    EXPECT_EQ(720, video->GetValueInt("height"));
    EXPECT_LE(video->GetValueInt("bitrate"), 7'500'000);
}

TEST(MatchCommand, TagsMPEG4InAVI)
{
    const auto output = (*MatchJson("film.mp4", "Video/AVI"))["output"];
    EXPECT_EQ("XVID", (*output)["video"]->GetValueString("codecTag"));
}

TEST(MatchCommand, RanksAllPresets)
{
    const auto run = RunTool({"match", Media::Clip("music.flac"), "--all"});
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ("", run.err);
    EXPECT_THAT(run.out, testing::HasSubstr("music.flac (FLAC): "));
    EXPECT_LT(run.out.find("untouched\n"), run.out.find("changed  "));
    EXPECT_THAT(run.out, testing::ContainsRegex("Audio/FLAC +untouched\n"));
    EXPECT_THAT(run.out, testing::ContainsRegex("Audio/MP3 +changed +FLAC to MP3\n"));
}

TEST(MatchCommand, RanksAllPresetsAsJson)
{
    const auto json = RunForJson({"match", Media::Clip("music.flac"), "--all"});
    ASSERT_GT(json->Size(), 20);
    const auto first = json->At(0);
    EXPECT_EQ("preset format fit texts video audio ", Names(*first));
    EXPECT_EQ("untouched", first->GetValueString("fit"));
    EXPECT_EQ("FLAC", (*first)["audio"]->GetValueString("codec"));
}

TEST(MatchCommand, TakesEitherAPresetOrAll)
{
    const auto run = RunTool({"match", "holiday.mov", "--all", "--preset", "MP4"});
    EXPECT_EQ(2, run.exitCode);
}

struct AbsentCase
{
    const char* what;
    const char* clip;
    const char* preset;
    const char* side;
    const char* stream;
};

void PrintTo(const AbsentCase& test, std::ostream* out) { *out << test.what; }

class AbsentStream : public testing::TestWithParam<AbsentCase>
{
};

TEST_P(AbsentStream, IsNull)
{
    const auto& test = GetParam();
    const auto side = (*MatchJson(test.clip, test.preset))[test.side];
    EXPECT_TRUE(side->HasKey(test.stream));
    EXPECT_EQ("null", JsonText(*(*side)[test.stream]));
}

constexpr std::array kAbsent{
    AbsentCase{"SourceWithoutSound", "silent.mp4", "Video/MP4", "source", "audio"},
    AbsentCase{"OutputOfASourceWithoutSound", "silent.mp4", "Video/MP4", "output", "audio"},
    AbsentCase{"SourceWithoutPictures", "music.flac", "Video/MP4", "source", "video"},
    AbsentCase{"OutputOfASourceWithoutPictures", "music.flac", "Video/MP4", "output", "video"},
    AbsentCase{"ContainerWithoutPictures", "film.mp4", "Audio/MP3", "output", "video"},
};

INSTANTIATE_TEST_SUITE_P(Streams, AbsentStream, testing::ValuesIn(kAbsent),
                         [](const auto& test) { return test.param.what; });

TEST(MatchCommand, NamesACodecThatHasNoNumberHere)
{
    const auto video = (*(*MatchJson("animation.mov", "Video/MP4"))["source"])["video"];
    EXPECT_EQ(0, video->GetValueInt("codecID"));
    EXPECT_EQ("qtrle", video->GetValueString("codec"));
}

/// Expects one line of complaint that begins with the file's name, and nothing else.
void ExpectFailure(const std::string& media)
{
    const auto run = RunTool({"match", media, "--preset", "Video/MP4"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("", run.out);
    EXPECT_THAT(run.err,
                testing::AllOf(testing::StartsWith(media + ": "), testing::MatchesRegex(".*: .+\n")));
}

TEST(MatchCommand, FailsOnAMissingFile) { ExpectFailure("/no/such/holiday.mov"); }

TEST(MatchCommand, FailsOnADirectory) { ExpectFailure("/tmp"); }

TEST(MatchCommand, FailsOnAText)
{
    const Media::ScratchFolder folder;
    ExpectFailure(folder.Write("notes.mp4", "Bread, milk, butter.\n"));
}

TEST(MatchCommand, FailsOnAnEmptyFile)
{
    const Media::ScratchFolder folder;
    ExpectFailure(folder.Write("empty.mp4", ""));
}

TEST(MatchCommand, FailsOnAnUnknownPresetBeforeItReadsTheMedia)
{
    const auto run = RunTool({"match", "/no/such/holiday.mov", "--preset", "zzz"});
    EXPECT_EQ(0U, run.err.find("vxpresets: no preset \"zzz\"; nearest: ")) << run.err;
    EXPECT_EQ(1, run.exitCode);
}

} // namespace

} // namespace Vexlor::Apps
