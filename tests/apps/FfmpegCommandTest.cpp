#include "apps/host/convert/FfmpegCommand.h"

#include "apps/host/Failure.h"
#include "apps/host/Text.h"
#include "apps/host/match/MediaMatch.h"
#include "tests/apps/Sources.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFormatPreset.h"

#include <gmock/gmock.h>

#include <array>

namespace Vexlor::Tool
{

namespace
{

using Apps::AudioSource;
using Apps::FileOf;
using Apps::VideoSource;
using testing::HasSubstr;
using testing::Not;

/// A preset of the container with those codecs current.
std::shared_ptr<IVXFormatPreset> PresetOf(const char* container, int videoCodec, int audioCodec)
{
    auto preset = IVXFormatPreset::MallocFormatPreset(container, "");
    for (int i = 0; i < preset->VideoCodecPresetCount(); ++i)
        if (preset->VideoCodecPreset(i)->CodecID() == videoCodec)
            preset->SetIndexForVideoCodecPresets(i);
    for (int i = 0; i < preset->AudioCodecPresetCount(); ++i)
        if (preset->AudioCodecPreset(i)->CodecID() == audioCodec)
            preset->SetIndexForAudioCodecPresets(i);
    return preset;
}

MediaMatch MatchOf(const IVXFormatPreset& preset, const std::shared_ptr<IVXFormatParameter>& source)
{
    VXMediaFile media;
    media.parameter = source;
    media.videoStream = 0;
    media.audioStream = 1;
    return MatchMedia(media, preset);
}

std::string CommandFor(const IVXFormatPreset& preset, const std::shared_ptr<IVXFormatParameter>& source,
                       PictureFitting fitting = PictureFitting::Pad)
{
    return Joined(FfmpegCommandFor(MatchOf(preset, source), "in.mov", "out.mp4", fitting).Arguments(), " ");
}

void SetBitrate(IVXCodecPreset& preset, int bitrate, int mode)
{
    preset.CodecQualityPresetAt(1)->SetBitrate(bitrate);
    preset.CodecQualityPresetAt(1)->SetMode(mode);
    preset.SetIndexForQualityPresets(1);
}

TEST(FfmpegCommand, TellsEverythingThatIsMatched)
{
    const auto preset = PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC);
    SetBitrate(*preset->CurrentVideoCodec(), 2'000'000, 0);
    SetBitrate(*preset->CurrentAudioCodec(), 128'000, 0);
    const auto command = CommandFor(*preset, FileOf(VideoSource{}, AudioSource{}));
    EXPECT_THAT(command, testing::StartsWith("-i in.mov -map 0:0 -c:v libx264 -b:v 2000000 "));
    EXPECT_THAT(command, HasSubstr(" -maxrate:v 2000000 "));
    EXPECT_THAT(command,
                HasSubstr(" -filter:v fps=30/1,scale=1920:1080:out_range=tv,setsar=1/1,format=yuv420p "));
    EXPECT_THAT(command, HasSubstr(" -map 0:1 -c:a aac -b:a 128000 "));
    EXPECT_THAT(command, testing::EndsWith(" -filter:a aformat=sample_fmts=fltp:sample_rates=48000:"
                                           "channel_layouts=stereo -f mp4 out.mp4"));
}

TEST(FfmpegCommand, SpellsProfilesAndLevelsAsTheEncoderDoes)
{
    const auto preset = PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC);
    auto& video = *preset->CurrentVideoCodec();
    video.AddProfilePreset(77);
    video.SetIndexForProfilesPresets(video.ProfilePresetCount() - 1);
    video.AddLevelPreset(41);
    video.SetIndexForLevelPresets(video.LevelPresetCount() - 1);
    const auto command = CommandFor(*preset, FileOf(VideoSource{}));
    EXPECT_THAT(command, HasSubstr(" -level:v 4.1 "));
    EXPECT_THAT(command, HasSubstr(" -profile:v main "));
}

TEST(FfmpegCommand, TellsWhatGivesWay)
{
    const auto preset = PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC);
    auto& video = *preset->CurrentVideoCodec();
    video.AddLevelPreset(10);
    video.SetIndexForLevelPresets(video.LevelPresetCount() - 1);
    const auto command =
        FfmpegCommandFor(MatchOf(*preset, FileOf(VideoSource{})), "in.mov", "out.mp4", PictureFitting::Pad);
    ASSERT_EQ(1U, command.changes.size());
    EXPECT_EQ("level 1 cannot hold the stream; 4 stands in", command.changes[0]);
    EXPECT_THAT(Joined(command.Arguments(), " "), HasSubstr(" -level:v 4 "));
}

TEST(FfmpegCommand, TagsAsTheContainersPlayersWant)
{
    EXPECT_THAT(CommandFor(*PresetOf("AVI", VXCodecID_MPEG4, 0), FileOf(VideoSource{})),
                HasSubstr(" -tag:v XVID "));
    EXPECT_THAT(CommandFor(*PresetOf("MP4", VXCodecID_HEVC, 0), FileOf(VideoSource{})),
                HasSubstr(" -tag:v hvc1 "));
    EXPECT_THAT(CommandFor(*PresetOf("MP4", VXCodecID_H264, 0), FileOf(VideoSource{})),
                Not(HasSubstr("-tag")));
}

TEST(FfmpegCommand, LetsQuickTimeTagWhatIsNoIntraCodecAsItIs)
{
    EXPECT_THAT(CommandFor(*PresetOf("MOV", VXCodecID_H264, 0), FileOf(VideoSource{})),
                HasSubstr(" -strict unofficial -f mov "));
}

TEST(FfmpegCommand, GivesAnimationsAPaletteOfTheirOwn)
{
    EXPECT_THAT(
        CommandFor(*PresetOf("GIF", VXCodecID_GIF, 0), FileOf(VideoSource{.width = 64, .height = 64})),
        HasSubstr("palettegen[p];[b][p]paletteuse "));
}

TEST(FfmpegCommand, GivesMotionJPEGItsFullRange)
{
    EXPECT_THAT(CommandFor(*PresetOf("MOV", VXCodecID_MJPEG, 0), FileOf(VideoSource{})),
                HasSubstr(":out_range=pc,"));
}

/// One source, one output, and the filters of its sound.
struct SoundCase
{
    const char* what;
    std::uint64_t from;
    int codec;
    const char* filters;
};

void PrintTo(const SoundCase& test, std::ostream* out) { *out << test.what; }

class SoundOfACommand : public testing::TestWithParam<SoundCase>
{
};

TEST_P(SoundOfACommand, IsMixed)
{
    const auto& test = GetParam();
    const auto preset = PresetOf("MKV", 0, test.codec);
    EXPECT_THAT(CommandFor(*preset, FileOf(AudioSource{.layout = test.from})),
                HasSubstr(std::string("-filter:a ") + test.filters));
}

constexpr std::array kSounds{
    SoundCase{"SurroundAsItIs", 0x3F, VXCodecID_AAC,
              "aformat=sample_fmts=fltp:sample_rates=48000:channel_layouts=5.1 "},
    SoundCase{"SurroundWithoutClipping", 0x3F, VXCodecID_MP3, "aresample=rematrix_maxval=1,aformat="},
    SoundCase{"MonoAsItIs", 4, VXCodecID_AAC,
              "aformat=sample_fmts=fltp:sample_rates=48000:channel_layouts=mono "},
};

INSTANTIATE_TEST_SUITE_P(Sounds, SoundOfACommand, testing::ValuesIn(kSounds),
                         [](const auto& test) { return test.param.what; });

TEST(FfmpegCommand, KeepsMonoAsLoudInStereo)
{
    const auto preset = PresetOf("WAV", 0, VXCodecID_PCM16);
    auto& audio = *preset->CurrentAudioCodec();
    audio.AddChannelLayoutPreset(3);
    audio.SetIndexForChannelLayoutPresets(audio.ChannelLayoutPresetCount() - 1);
    EXPECT_THAT(CommandFor(*preset, FileOf(AudioSource{.layout = 4})),
                HasSubstr("-filter:a pan=stereo|c0=c0|c1=c0,aformat="));
}

TEST(FfmpegCommand, TakesNamesForFilesWhateverTheyLookLike)
{
    const auto match = MatchOf(*PresetOf("WAV", 0, VXCodecID_PCM16), FileOf(AudioSource{}));
    const auto arguments = FfmpegCommandFor(match, "http://a/b", "-y.wav", PictureFitting::Pad).Arguments();
    EXPECT_EQ("file:http://a/b", arguments[1]);
    EXPECT_EQ("file:-y.wav", arguments.back());
}

TEST(FfmpegCommand, IsRefusedWhereNothingIsLeft)
{
    const auto match = MatchOf(*PresetOf("MP3", 0, VXCodecID_MP3), FileOf(VideoSource{}));
    EXPECT_THROW(FfmpegCommandFor(match, "in.mov", "out.mp3", PictureFitting::Pad), Failure);
}

TEST(FfmpegCommand, IsRefusedWithoutAnEncoder)
{
    const auto preset = PresetOf("MKV", VXCodecID_H264, 0);
    preset->InsertVideoCodecPreset(IVXCodecPreset::MallocCodecPreset(999), 0);
    preset->SetIndexForVideoCodecPresets(0);
    const auto match = MatchOf(*preset, FileOf(VideoSource{}));
    EXPECT_THROW(FfmpegCommandFor(match, "in.mov", "out.mkv", PictureFitting::Pad), Failure);
}

TEST(ShellText, QuotesWhatAShellWouldRead)
{
    EXPECT_EQ("ffmpeg -i a_b.mov 0:1", ShellText({"ffmpeg", "-i", "a_b.mov", "0:1"}));
    EXPECT_EQ("'a b' '' '$(x)' 'it'\\''s' '[a];(b)'", ShellText({"a b", "", "$(x)", "it's", "[a];(b)"}));
}

/// One picture in one frame.
struct FitCase
{
    const char* what;
    VideoSource source;
    VideoSource output;
    PictureFitting fitting;
    const char* fit; ///< "640x480 padded"
};

void PrintTo(const FitCase& test, std::ostream* out) { *out << test.what; }

class FitOfAPicture : public testing::TestWithParam<FitCase>
{
};

TEST_P(FitOfAPicture, KeepsItsShape)
{
    const auto& test = GetParam();
    const auto fit = FitPicture(*Apps::StreamOf(test.source), *Apps::StreamOf(test.output), test.fitting);
    EXPECT_EQ(test.fit, std::to_string(fit.width) + 'x' + std::to_string(fit.height) +
                            (fit.isPadded ? " padded" : "") + (fit.isCropped ? " cropped" : ""));
}

constexpr VideoSource Frame(int width, int height, int aspectNum = 1, int aspectDen = 1)
{
    return {.width = width, .height = height, .aspectNum = aspectNum, .aspectDen = aspectDen};
}

constexpr auto kPad = PictureFitting::Pad;
constexpr auto kCrop = PictureFitting::Crop;
constexpr auto kStretch = PictureFitting::Stretch;

constexpr std::array kFits{
    FitCase{"SameShape", Frame(1920, 1080), Frame(1280, 720), kPad, "1280x720"},
    FitCase{"RoundedShape", Frame(1920, 1080), Frame(854, 480), kPad, "854x480"},
    FitCase{"WiderFrame", Frame(640, 480), Frame(1280, 720), kPad, "960x720 padded"},
    FitCase{"HigherFrame", Frame(1920, 800), Frame(1280, 720), kPad, "1280x534 padded"},
    FitCase{"WiderFrameFilled", Frame(640, 480), Frame(1280, 720), kCrop, "1280x960 cropped"},
    FitCase{"HigherFrameFilled", Frame(1920, 800), Frame(1280, 720), kCrop, "1728x720 cropped"},
    FitCase{"Bent", Frame(640, 480), Frame(1280, 720), kStretch, "1280x720"},
    FitCase{"WidePixelsOfTheSource", Frame(720, 576, 64, 45), Frame(1024, 576), kPad, "1024x576"},
    FitCase{"WidePixelsOfTheOutput", Frame(1024, 576), Frame(720, 576, 64, 45), kPad, "720x576"},
    FitCase{"FullScreenInWidePixels", Frame(640, 480), Frame(720, 576, 64, 45), kPad, "540x576 padded"},
    FitCase{"AnotherTurn", Frame(1080, 1920), Frame(1920, 1080), kPad, "608x1080 padded"},
    FitCase{"ALine", Frame(4000, 1), Frame(64, 64), kPad, "64x2 padded"},
    FitCase{"NoSize", Frame(0, 0), Frame(64, 64), kPad, "64x64"},
};

INSTANTIATE_TEST_SUITE_P(Fits, FitOfAPicture, testing::ValuesIn(kFits),
                         [](const auto& test) { return test.param.what; });

} // namespace

} // namespace Vexlor::Tool
