#include "apps/host/match/MatchWarnings.h"

#include "apps/host/match/MediaMatch.h"
#include "tests/apps/Sources.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFormatPreset.h"

#include <gmock/gmock.h>

namespace Vexlor::Tool
{

namespace
{

using Apps::AudioSource;
using Apps::FileOf;
using Apps::VideoSource;

std::shared_ptr<IVXFormatPreset> PresetWith(int codecID)
{
    auto preset = IVXFormatPreset::MallocFormatPreset("MKV", "");
    preset->InsertVideoCodecPreset(IVXCodecPreset::MallocCodecPreset(codecID), 0);
    preset->SetIndexForVideoCodecPresets(0);
    return preset;
}

/// A preset of H.264 at that bitrate.
std::shared_ptr<IVXFormatPreset> PresetOf(int bitrate)
{
    auto preset = PresetWith(VXCodecID_H264);
    const auto quality = preset->CurrentVideoCodec()->CodecQualityPresetAt(1);
    quality->SetBitrate(bitrate);
    preset->CurrentVideoCodec()->SetIndexForQualityPresets(1);
    return preset;
}

void SetLevel(IVXFormatPreset& preset, int level)
{
    auto& video = *preset.CurrentVideoCodec();
    video.AddLevelPreset(level);
    video.SetIndexForLevelPresets(video.LevelPresetCount() - 1);
}

std::vector<MatchWarning> Warn(const IVXFormatPreset& preset,
                               const std::shared_ptr<IVXFormatParameter>& source)
{
    VXMediaFile media;
    media.parameter = source;
    return WarningsOf(MatchMedia(media, preset));
}

/// The kinds of what is warned of.
std::string Kinds(const std::vector<MatchWarning>& warnings)
{
    std::string kinds;
    for (const auto& warning : warnings)
        kinds += (kinds.empty() ? "" : " ") + std::string(WarningName(warning.kind));
    return kinds;
}

TEST(MatchWarnings, AreNotMadeForAFileThatFits)
{
    EXPECT_EQ("", Kinds(Warn(*PresetOf(1'000'000), FileOf(VideoSource{}))));
}

TEST(MatchWarnings, TellOfAPresetThatLeavesNothing)
{
    const auto warnings = Warn(*IVXFormatPreset::MallocFormatPreset("MP3", ""), FileOf(VideoSource{}));
    ASSERT_EQ("noFile", Kinds(warnings));
    EXPECT_EQ("nothing of the source is left: no file can be made", warnings[0].text);
    EXPECT_FALSE(warnings[0].isAudio);
}

TEST(MatchWarnings, TellOfAContainerThatIsNotWrittenForSoundAlone)
{
    const auto warnings = Warn(*IVXFormatPreset::MallocFormatPreset("MXF", ""), FileOf(AudioSource{}));
    ASSERT_FALSE(warnings.empty());
    EXPECT_EQ("MXF needs a picture: no file can be made", warnings[0].text);
    EXPECT_TRUE(warnings[0].isAudio);
}

TEST(MatchWarnings, TellOfALevelThatIsTooLow)
{
    const auto preset = PresetOf(4'000'000);
    SetLevel(*preset, 30);
    const auto warnings = Warn(*preset, FileOf(VideoSource{}));
    ASSERT_EQ("levelTooLow", Kinds(warnings));
    EXPECT_EQ("level 3 is too low for 1920 x 1080 at 30 fps and 4.00 Mb/s", warnings[0].text);
}

TEST(MatchWarnings, RankTheRemediesOfALevel)
{
    const auto preset = PresetOf(4'000'000);
    SetLevel(*preset, 30);
    const auto warnings = Warn(*preset, FileOf(VideoSource{}));
    std::string texts;
    for (const auto& remedy : warnings.at(0).remedies)
        texts += remedy.text + "; ";
    EXPECT_EQ("raise the level to 4; lower the size to 640 x 360 (89 % less); ", texts);
}

TEST(MatchWarnings, AreNotMadeForALevelThatHolds)
{
    const auto preset = PresetOf(4'000'000);
    SetLevel(*preset, 40);
    EXPECT_EQ("", Kinds(Warn(*preset, FileOf(VideoSource{}))));
}

TEST(MatchWarnings, TellOfABitrateAboveTheSources)
{
    const auto warnings = Warn(*PresetOf(9'000'000), FileOf(VideoSource{}));
    ASSERT_EQ("bitrateAboveSource", Kinds(warnings));
    EXPECT_FALSE(warnings[0].isAudio);
    EXPECT_EQ("the bitrate 9.00 Mb/s is above the source's 8.00 Mb/s", warnings[0].text);
}

TEST(MatchWarnings, AreNotMadeForABitrateThatNobodyKnows)
{
    EXPECT_EQ("", Kinds(Warn(*PresetOf(9'000'000), FileOf(VideoSource{.bitrate = 0}))));
}

TEST(MatchWarnings, TellOfSoundWithABitrateAboveTheSources)
{
    const auto warnings =
        Warn(*IVXFormatPreset::MallocFormatPreset("WAV", ""), FileOf(AudioSource{.bitrate = 64'000}));
    ASSERT_EQ("bitrateAboveSource", Kinds(warnings));
    EXPECT_TRUE(warnings[0].isAudio);
}

TEST(MatchWarnings, TellOfAnEnlargedPicture)
{
    const auto preset = PresetOf(1'000'000);
    preset->SetMinWidth(1280);
    preset->SetMinHeight(720);
    preset->SetMaxWidth(1920);
    preset->SetMaxHeight(1080);
    const auto warnings = Warn(*preset, FileOf(VideoSource{.width = 640, .height = 360}));
    ASSERT_EQ("enlarged", Kinds(warnings));
    EXPECT_EQ("the picture is enlarged from 640 x 360 to 1280 x 720", warnings[0].text);
}

TEST(MatchWarnings, AreNotMadeForAPictureThatOnlyItsFrameOutgrows)
{
    const auto preset = PresetOf(1'000'000);
    preset->CurrentVideoCodec()->AddResolutionPreset(640, 480);
    preset->CurrentVideoCodec()->SetIndexForResolutionPreset(
        preset->CurrentVideoCodec()->ResolutionPresetCount() - 1);
    EXPECT_EQ("", Kinds(Warn(*preset, FileOf(VideoSource{.width = 640, .height = 360}))));
}

TEST(MatchWarnings, TellOfAShapeThatBoundsChange)
{
    const auto preset = PresetOf(1'000'000);
    preset->SetMaxWidth(1280);
    preset->SetMaxHeight(720);
    const auto warnings = Warn(*preset, FileOf(VideoSource{.width = 1920, .height = 800}));
    ASSERT_EQ("shapeChanged", Kinds(warnings));
    EXPECT_EQ("the bounds change the frame's shape from 1920 x 800 to 1280 x 720", warnings[0].text);
}

TEST(MatchWarnings, AreNotMadeForBoundsThatKeepTheShape)
{
    const auto preset = PresetOf(1'000'000);
    preset->SetMaxWidth(1280);
    preset->SetMaxHeight(720);
    EXPECT_EQ("", Kinds(Warn(*preset, FileOf(VideoSource{}))));
}

TEST(MatchWarnings, TellOfACodecThatIsNotKnownAndKeepIt)
{
    const auto preset = PresetWith(999);
    const auto warnings = Warn(*preset, FileOf(VideoSource{}));
    ASSERT_EQ("noEncoder", Kinds(warnings));
    EXPECT_THAT(warnings[0].text, testing::HasSubstr("999"));
    EXPECT_EQ(999, preset->CurrentVideoCodec()->CodecID());
}

} // namespace

} // namespace Vexlor::Tool
