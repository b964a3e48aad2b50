#include "tests/format/FormatMatching.h"

#include <gmock/gmock.h>

namespace Vexlor
{

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TEST_F(FormatMatching, OfADefaultTakesTheCurrentCodecs)
{
    const auto output = Preset("VW", 1, "ABC", 2)->DefaultFormatParameter();
    EXPECT_EQ('W', output->GetVideoCodecParameter()->GetCodecID());
    EXPECT_EQ('C', output->GetAudioCodecParameter()->GetCodecID());
    EXPECT_EQ("MP4 hint", output->FormatName() + " " + output->FormatHint());
    EXPECT_THAT(platform.CallsTo("MallocCodecParamter"),
                ElementsAre("MallocCodecParamter(87)", "MallocCodecParamter(67)"));
}

TEST_F(FormatMatching, OfADefaultTakesTheSecondEntryForNoCodec)
{
    platform.Codec('V').names.clear();
    const auto output = Preset(kNoCodec + "VW", 0, "AB" + kNoCodec, 2)->DefaultFormatParameter();
    EXPECT_EQ('V', output->GetVideoCodecParameter()->GetCodecID());
    EXPECT_EQ('B', output->GetAudioCodecParameter()->GetCodecID());
    EXPECT_THAT(platform.CallsTo("Names"), IsEmpty());
}

TEST_F(FormatMatching, OfADefaultTakesASecondEntryOfNoCodecAsItIs)
{
    const auto output = Preset(kNoCodec + kNoCodec + "V", 0, "", 0)->DefaultFormatParameter();
    ASSERT_NE(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(VXCodecID_None, output->GetVideoCodecParameter()->GetCodecID());
}

TEST_F(FormatMatching, OfADefaultLeavesOutStreamsWithoutACurrentCodec)
{
    const auto output = Preset("VW", -1, "AB", -1)->DefaultFormatParameter();
    ASSERT_NE(nullptr, output);
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, OfADefaultLeavesOutNoCodecWithoutASecondEntry)
{
    const auto output = Preset(kNoCodec, 0, kNoCodec, 0)->DefaultFormatParameter();
    EXPECT_EQ(nullptr, output->GetVideoCodecParameter());
    EXPECT_EQ(nullptr, output->GetAudioCodecParameter());
}

TEST_F(FormatMatching, OfADefaultAppliesNoBounds)
{
    const auto preset = Preset("V", 0, "A", 0);
    preset->SetMaxWidth(10);
    preset->SetMaxHeight(10);
    preset->SetMaxVideoBitrate(100);
    preset->SetMinAudioBitrate(100);
    platform.Codec('V').bestResolution = ScriptedCodec::Size(1920, 1080);
    EXPECT_EQ(1920, preset->DefaultFormatParameter()->GetVideoCodecParameter()->GetWidth());
    EXPECT_THAT(platform.CallsTo("BitrateRangeFor"), IsEmpty());
}

TEST_F(FormatMatching, OfADefaultSetsNoTag)
{
    const auto preset = Preset("", 0, "", 0, VXFormatNameAVI);
    preset->AddVideoCodecPreset(VXCodecID_DIVX);
    EXPECT_EQ(0U, preset->DefaultFormatParameter()->GetVideoCodecParameter()->GetCodecTag());
}

TEST_F(FormatMatching, OfADefaultAsksForNoSourcesCodec)
{
    Preset("V", 0, "A", 0)->DefaultFormatParameter();
    EXPECT_THAT(platform.CallsText(), Not(HasSubstr("EstQualityWithBitrate")));
    EXPECT_THAT(platform.CallsText(), HasSubstr("BestBitrateFor(0, 0, 0/0, -1, 1, \"\")"));
}

} // namespace

} // namespace Vexlor
