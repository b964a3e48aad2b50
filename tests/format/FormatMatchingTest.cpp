#include "tests/format/FormatMatching.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <utility>

namespace Vexlor
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(FormatMatching, OfNothingHasNoStreams)
{
    const auto preset = Preset("V", 0, "A", 0);
    const auto output = preset->MatchForSource({});
    ASSERT_NE(nullptr, output);
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
    EXPECT_EQ("MallocFormatParameter(\"MP4\", \"hint\")\n", platform.CallsText());
}

TEST_F(FormatMatching, HandsContainerAndHintOn)
{
    const auto output = Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_EQ("MP4", output->FormatName());
    EXPECT_EQ("hint", output->FormatHint());
}

TEST_F(FormatMatching, MatchesBothStreamsByTheCurrentCodecs)
{
    const auto output = Preset("VWX", 1, "ABC", 2)->MatchForSource(source);
    EXPECT_EQ('W', output->GetVideoCodecParameter()->GetCodecID());
    EXPECT_EQ('C', output->GetAudioCodecParameter()->GetCodecID());
}

TEST_F(FormatMatching, MatchesVideoBeforeAudio)
{
    Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_THAT(platform.CallsTo("MallocCodecParamter"),
                ElementsAre("MallocCodecParamter(86)", "MallocCodecParamter(65)"));
    EXPECT_EQ("MallocFormatParameter(\"MP4\", \"hint\")", platform.Calls().front());
}

TEST_F(FormatMatching, MatchesEachStreamAgainstItsSource)
{
    video->SetDisplaySize(640, 480);
    audio->SetSampleRate(44100);
    const auto output = Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_EQ(640, output->GetVideoCodecParameter()->GetWidth());
    EXPECT_EQ(44100, output->GetAudioCodecParameter()->GetSampleRate());
}

TEST_F(FormatMatching, LeavesOutTheVideoThatTheSourceLacks)
{
    source->SetVideoCodecParameter({});
    const auto output = Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_NE(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, LeavesOutTheAudioThatTheSourceLacks)
{
    source->SetAudioCodecParameter({});
    const auto output = Preset("V", 0, "A", 0)->MatchForSource(source);
    EXPECT_NE(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, LeavesOutStreamsWithoutACurrentCodec)
{
    const auto output = Preset("V", -1, "", 0)->MatchForSource(source);
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, LimitsAndTagsNothingWhereThereIsNoVideo)
{
    const auto preset = Preset("V", -1, "A", 0, VXFormatNameAVI);
    preset->SetMaxWidth(1);
    preset->SetMaxHeight(1);
    EXPECT_EQ(nullptr, MatchedVideo(*preset));
    source->SetVideoCodecParameter({});
    EXPECT_EQ(nullptr, MatchedVideo(*preset));
}

TEST_F(FormatMatching, MakesANewOutputEachTime)
{
    const auto preset = Preset("V", 0, "A", 0);
    EXPECT_NE(preset->MatchForSource(source), preset->MatchForSource(source));
    EXPECT_NE(preset->DefaultFormatParameter(), preset->DefaultFormatParameter());
}

// Bounds of the bitrates: the grade 3 takes the upper, the grade 0 the lower.

class FormatBitrates : public FormatMatching
{
protected:
    FormatBitrates()
    {
        for (const char letter : std::string_view("VA"))
            platform.Codec(letter).bitrateRange = std::pair(11, 99);
        preset->SetMaxVideoBitrate(4000);
        preset->SetMinVideoBitrate(3000);
        preset->SetMaxAudioBitrate(200);
        preset->SetMinAudioBitrate(100);
    }

    std::string Bitrates(int grade) const
    {
        preset->VideoCodecPreset(0)->SetIndexForQualityPresets(grade + 1);
        preset->AudioCodecPreset(0)->SetIndexForQualityPresets(grade + 1);
        return std::to_string(MatchedVideo(*preset)->GetBitrate()) + " " +
               std::to_string(MatchedAudio(*preset)->GetBitrate());
    }

    std::shared_ptr<IVXFormatPreset> preset = Preset("V", 0, "A", 0);
};

TEST_F(FormatBitrates, BoundTheStreamsEachByItsOwn)
{
    EXPECT_EQ("4000 200", Bitrates(3));
    EXPECT_EQ("3000 100", Bitrates(0));
    EXPECT_EQ("", platform.Log());
}

TEST_F(FormatBitrates, BoundFromOneSideOnly)
{
    preset->SetMinVideoBitrate(-1);
    preset->SetMaxAudioBitrate(-1);
    preset->SetMinAudioBitrate(55);
    EXPECT_EQ("11 55", Bitrates(0));
    EXPECT_EQ("4000 99", Bitrates(3));
}

TEST_F(FormatBitrates, AreTheCodecLibrarysWithoutBounds)
{
    preset->CopyFrom(Preset("V", 0, "A", 0));
    EXPECT_EQ("4000 4000", Bitrates(3));
    EXPECT_THAT(platform.CallsTo("BitrateRangeFor"), IsEmpty());
}

} // namespace

} // namespace Vexlor
