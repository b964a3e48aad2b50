#include "tests/format/FormatPresets.h"

#include "IVXFormat.h"
#include "VXMediaCodecs.h"

#include "tests/format/CodecPresetSide.h"

#include <gmock/gmock.h>

#include <string>

namespace Vexlor
{

namespace
{

using testing::IsEmpty;

// Made from a container's name.

TEST_F(FormatPreset, IsMadeOnlyForAListedContainer)
{
    platform.Format("MP4");
    platform.Format("MKV").listed = false;
    EXPECT_NE(nullptr, IVXFormatPreset::MallocFormatPreset("MP4", ""));
    for (const char* name : {"", "mp4", "MP4 ", "MP", "MP4V", "MKV", "WEBM"})
        EXPECT_EQ(nullptr, IVXFormatPreset::MallocFormatPreset(name, "")) << name;
}

TEST_F(FormatPreset, ComparesContainerNamesBeyondAZeroByte)
{
    platform.Format("MP4");
    EXPECT_EQ(nullptr, IVXFormatPreset::MallocFormatPreset(std::string("MP4\0", 4), ""));
}

TEST_F(FormatPreset, MadeFromANameIgnoresTheSecondText)
{
    platform.Format("MP4");
    const auto preset = IVXFormatPreset::MallocFormatPreset("MP4", "MKV");
    ASSERT_NE(nullptr, preset);
    EXPECT_EQ("MP4", preset->FormatName());
    EXPECT_EQ("", preset->FormatHint());
}

TEST_F(FormatPreset, MadeFromANameStartsEmpty)
{
    platform.Format("MP4");
    EXPECT_EQ(R"({"name":"","description":"","formatName":"MP4","formatHint":"","faceID":0,)"
              R"("indexForVideoCodecPresets":-1,"videoCodecPresets":[],)"
              R"("indexForAudioCodecPresets":-1,"audioCodecPresets":[],)"
              R"("maxWidth":0,"minWidth":0,"maxHeight":0,"minHeight":0,)"
              R"("maxVideoBitrate":-1,"minVideoBitrate":-1,"maxAudioBitrate":-1,"minAudioBitrate":-1})",
              Text(IVXFormatPreset::MallocFormatPreset("MP4", "")->JsonValue()));
}

TEST_F(FormatPreset, MadeFromANameKeepsThatNameVerbatim)
{
    platform.Format("MPEG1");
    EXPECT_EQ("MPEG1", IVXFormatPreset::MallocFormatPreset("MPEG1", "")->FormatName());
}

TEST_F(FormatPreset, MadeFromANameOffersTheContainersCodecs)
{
    platform.Format("MP4") = {{'V', 'W'}, {'A'}};
    const auto preset = IVXFormatPreset::MallocFormatPreset("MP4", "");
    EXPECT_EQ(std::string("\0VW", 3), Letters(preset->VideoCodecPresets()));
    EXPECT_EQ("A", Letters(preset->AudioCodecPresets()));
    EXPECT_EQ(0, preset->IndexForVideoCodecPresets());
    EXPECT_EQ(0, preset->IndexForAudioCodecPresets());
}

TEST_F(FormatPreset, MadeFromANameHasNoCurrentEntryInAnEmptyList)
{
    platform.Format("MP4") = {{'V'}, {}};
    const auto preset = IVXFormatPreset::MallocFormatPreset("MP4", "");
    EXPECT_EQ(0, preset->IndexForVideoCodecPresets());
    EXPECT_EQ(-1, preset->IndexForAudioCodecPresets());
}

TEST_F(FormatPreset, DefaultListsPutNoCodecBeforeSeveral)
{
    static_assert(VXCodecID_None == 0);
    platform.Format("MP4") = {{'V', 'W', 'X'}, {'A', 'B'}};
    EXPECT_EQ(std::string("\0VWX", 4), Letters(IVXFormatPreset::DefaultVideoCodecPresets("MP4")));
    EXPECT_EQ(std::string("\0AB", 3), Letters(IVXFormatPreset::DefaultAudioCodecPresets("MP4")));
}

TEST_F(FormatPreset, DefaultListsOfOneCodecHaveItAlone)
{
    platform.Format("MP4") = {{'V'}, {'A'}};
    EXPECT_EQ("V", Letters(IVXFormatPreset::DefaultVideoCodecPresets("MP4")));
    EXPECT_EQ("A", Letters(IVXFormatPreset::DefaultAudioCodecPresets("MP4")));
}

TEST_F(FormatPreset, DefaultListsWithoutCodecsAreEmpty)
{
    EXPECT_THAT(IVXFormatPreset::DefaultVideoCodecPresets("none"), IsEmpty());
    EXPECT_THAT(IVXFormatPreset::DefaultAudioCodecPresets("none"), IsEmpty());
}

TEST_F(FormatPreset, DefaultListsOfAContainerThatCannotBeMadeAreEmpty)
{
    platform.Format("MP4").made = false;
    EXPECT_THAT(IVXFormatPreset::DefaultVideoCodecPresets("MP4"), IsEmpty());
    EXPECT_THAT(IVXFormatPreset::DefaultAudioCodecPresets("MP4"), IsEmpty());
}

TEST_F(FormatPreset, DefaultListsAskForTheContainerWithoutAHint)
{
    IVXFormatPreset::DefaultVideoCodecPresets("MP4");
    IVXFormatPreset::DefaultAudioCodecPresets("MKV");
    EXPECT_EQ("MallocFormat(\"MP4\", \"\")\nMallocFormat(\"MKV\", \"\")\n", platform.CallsText());
}

TEST_F(FormatPreset, DefaultListsHoldTheDefaultsOfTheirCodecs)
{
    platform.Format("MP4") = {{}, {'A'}};
    platform.Codec('A').name = "Codec A";
    platform.Codec('A').sampleRates = {44100, 48000};
    const auto presets = IVXFormatPreset::DefaultAudioCodecPresets("MP4");
    ASSERT_EQ(1U, presets.size());
    EXPECT_EQ("Codec A", presets[0]->Name());
    EXPECT_EQ(3, presets[0]->SampleratePresetCount());
}

TEST_F(FormatPreset, GetFormatMakesANewObjectWithoutTheHint)
{
    const auto preset = Load(R"({"formatName":"MP4","formatHint":"m4v"})");
    EXPECT_NE(preset->GetFormat(), preset->GetFormat());
    EXPECT_EQ("MallocFormat(\"MP4\", \"\")\nMallocFormat(\"MP4\", \"\")\n", platform.CallsText());
}

} // namespace

} // namespace Vexlor
