#include "apps/studio/outcome/OutcomeFacts.h"
#include "apps/studio/outcome/Outcome.h"
#include "apps/studio/outcome/OutcomeNotices.h"
#include "tests/studio/OutcomeSources.h"

#include "IVXCodecQualityPreset.h"

#include <gmock/gmock.h>

namespace Vexlor::Studio
{

namespace
{

using Apps::AudioSource;
using Apps::FileOf;
using Apps::VideoSource;
using Tool::PictureFitting;

std::shared_ptr<IVXFormatPreset> AnyPreset() { return PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC); }

std::shared_ptr<IVXFormatPreset> BoundedPreset(int width, int height)
{
    auto preset = AnyPreset();
    preset->SetMaxWidth(width);
    preset->SetMaxHeight(height);
    return preset;
}

SizeFacts SizesOf(const VideoSource& source, const IVXFormatPreset& preset, PictureFitting fitting = {})
{
    const auto media = MediaOf(FileOf(source));
    const auto output = preset.MatchForSource(media.parameter);
    return SizeFactsOf(*media.parameter, output.get(), &preset, fitting);
}

StreamBitrates BitratesOf(const IVXFormatPreset& preset, const AudioSource& audio = {})
{
    return BitrateFactsOf(Tool::MatchMedia(MediaOf(FileOf(VideoSource{}, audio)), preset), preset);
}

TEST(SizeFacts, CountTheSampleAspect)
{
    const auto facts = SizesOf({.width = 720, .height = 576, .aspectNum = 64, .aspectDen = 45}, *AnyPreset());
    EXPECT_EQ(QSizeF(1024, 576), facts.source);
    EXPECT_EQ(QSize(720, 576), facts.storedSource);
    EXPECT_EQ(QSizeF(1024, 576), facts.output);
}

TEST(SizeFacts, HaveASourceAloneWithoutAPreset)
{
    const auto media = MediaOf(FileOf(VideoSource{}));
    const auto facts = SizeFactsOf(*media.parameter, nullptr, nullptr, PictureFitting::Pad);
    EXPECT_EQ(QSizeF(1920, 1080), facts.source);
    EXPECT_TRUE(facts.output.isEmpty());
}

TEST(SizeFacts, AreEmptyWithoutAPicture)
{
    const auto media = MediaOf(FileOf(AudioSource{}));
    EXPECT_EQ(SizeFacts(), SizeFactsOf(*media.parameter, nullptr, nullptr, PictureFitting::Pad));
}

TEST(SizeFacts, FollowHowThePictureFits)
{
    const auto preset = BoundedPreset(640, 640);
    EXPECT_EQ(QSizeF(640, 360), SizesOf({}, *preset, PictureFitting::Pad).picture);
    EXPECT_EQ(QSizeF(1138, 640), SizesOf({}, *preset, PictureFitting::Crop).picture);
    EXPECT_EQ(QSizeF(640, 640), SizesOf({}, *preset, PictureFitting::Stretch).picture);
    EXPECT_TRUE(SizesOf({}, *preset, PictureFitting::Stretch).isStretched);
}

TEST(SizeFacts, CountNoBoundOfOneSide)
{
    EXPECT_TRUE(SizesOf({}, *BoundedPreset(640, 0)).most.isEmpty());
    EXPECT_EQ(QSizeF(640, 480), SizesOf({}, *BoundedPreset(640, 480)).most);
}

TEST(BitrateFacts, AreWhatMatchingAnswersAtEachGrade)
{
    const auto preset = AnyPreset();
    const auto facts = BitratesOf(*preset).video;
    const auto video = preset->CurrentVideoCodec();
    for (int grade = 0; grade < BitrateFacts::kGrades; ++grade)
    {
        video->SetIndexForQualityPresets(grade + 1);
        ASSERT_EQ(grade, video->CurrentCodecQuality()->QualityValue());
        EXPECT_EQ(BitratesOf(*preset).video.output, facts.grades[static_cast<std::size_t>(grade)]);
    }
}

TEST(BitrateFacts, LeaveThePresetAsItIs)
{
    const auto preset = AnyPreset();
    preset->CurrentVideoCodec()->SetIndexForQualityPresets(2);
    BitratesOf(*preset);
    EXPECT_EQ(2, preset->CurrentVideoCodec()->IndexForQualityPresets());
}

TEST(BitrateFacts, StandInThirdsBetweenThePresetsBounds)
{
    const auto preset = AnyPreset();
    preset->SetMinVideoBitrate(1'000'000);
    preset->SetMaxVideoBitrate(2'000'000);
    const auto facts = BitratesOf(*preset).video;
    EXPECT_EQ((std::array{1'000'000, 1'333'333, 1'666'666, 2'000'000}), facts.grades);
    EXPECT_TRUE(facts.isLeastOfPreset && facts.isMostOfPreset);
    EXPECT_EQ(1'000'000, facts.least);
    EXPECT_EQ(2'000'000, facts.most);
}

TEST(BitrateFacts, TakeTheCodecsRangeWhereThePresetHasNoBound)
{
    const auto facts = BitratesOf(*AnyPreset()).video;
    EXPECT_FALSE(facts.isLeastOfPreset || facts.isMostOfPreset);
    EXPECT_GT(facts.least, 0);
    EXPECT_GT(facts.most, facts.least);
}

TEST(BitrateFacts, HaveTheGradesBesideABitrateOfOnesOwn)
{
    const auto preset = AnyPreset();
    const auto before = BitratesOf(*preset).video.grades;
    const auto video = preset->CurrentVideoCodec();
    video->CodecQualityPresetAt(1)->SetBitrate(123'456);
    video->SetIndexForQualityPresets(1);
    EXPECT_EQ(123'456, BitratesOf(*preset).video.output);
    EXPECT_EQ(before, BitratesOf(*preset).video.grades);
}

TEST(BitrateFacts, TellOfSoundWithoutLossThatContentDecides)
{
    EXPECT_FALSE(BitratesOf(*PresetOf("MKV", VXCodecID_H264, VXCodecID_FLAC)).audio.followsBitrate);
}

TEST(Outcome, PredictsASize)
{
    const auto outcome = OutcomeOf(MediaOf(FileOf(VideoSource{})), "/clip.mov", *AnyPreset());
    ASSERT_TRUE(outcome.size);
    EXPECT_GT(outcome.size->Total().likely, 1'000'000);
    EXPECT_EQ("", outcome.obstacle);
}

TEST(Outcome, PredictsNoSizeOfASourceOfUnknownLength)
{
    auto media = MediaOf(FileOf(VideoSource{}));
    media.duration = 0;
    EXPECT_FALSE(OutcomeOf(media, "/clip.mov", *AnyPreset()).size);
}

TEST(Outcome, SaysWhyNothingComesOut)
{
    const auto preset = IVXFormatPreset::MallocFormatPreset("MP3", "");
    const auto outcome = OutcomeOf(MediaOf(FileOf(VideoSource{})), "/clip.mov", *preset);
    EXPECT_NE("", outcome.obstacle);
    EXPECT_EQ(std::string::npos, outcome.obstacle.find("/clip.mov"));
    EXPECT_FALSE(outcome.size);
}

TEST(OutcomeNotices, HaveTheRemediesOfAWarning)
{
    const auto preset = AnyPreset();
    auto& video = *preset->CurrentVideoCodec();
    video.AddLevelPreset(10);
    video.SetIndexForLevelPresets(video.LevelPresetCount() - 1);
    const auto html = NoticesHtml(OutcomeOf(MediaOf(FileOf(VideoSource{})), "/clip.mov", *preset));
    EXPECT_THAT(html.toStdString(), testing::HasSubstr("<b>Warning (video):</b> level 1 is too low"));
    EXPECT_THAT(html.toStdString(), testing::HasSubstr("<li>raise the level to 4</li>"));
}

TEST(OutcomeNotices, AreNoneWhereAllIsWell)
{
    EXPECT_EQ("", NoticesHtml(OutcomeOf(MediaOf(FileOf(VideoSource{})), "/clip.mov", *AnyPreset())));
}

TEST(OutcomeNotices, WarnOfAMissingEncoder)
{
    const auto preset = PresetOf("MP4", VXCodecID_None, 99'999);
    const auto outcome = OutcomeOf(MediaOf(FileOf(AudioSource{})), "/clip.mov", *preset);
    EXPECT_TRUE(NoticesHtml(outcome).contains("Warning (sound):"));
    EXPECT_NE("", outcome.obstacle);
}

} // namespace

} // namespace Vexlor::Studio
