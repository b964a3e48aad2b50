#include "tests/format/FormatPresets.h"

#include "VXMediaCodecs.h"

#include "tests/format/CodecPresetSide.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Vexlor
{

namespace
{

TEST_F(FormatPreset, OfAnEmptyObjectHasDefaults) { EXPECT_EQ(kEmpty, Rewritten("{}")); }

TEST_F(FormatPreset, OfNoDocumentHasDefaults)
{
    EXPECT_EQ(kEmpty,
              Text(IVXFormatPreset::MallocFormatPreset(std::shared_ptr<const IVXJsonValue>())->JsonValue()));
}

TEST_F(FormatPreset, OfAnythingElseHasDefaultsToo)
{
    for (const char* json : {"null", "[]", "3", "\"MP4\"", "true"})
        EXPECT_EQ(kEmpty, Rewritten(json)) << json;
}

TEST_F(FormatPreset, KeepsEveryField) { EXPECT_EQ(kFull, Rewritten(kFull)); }

TEST_F(FormatPreset, AnswersWhatWasLoaded)
{
    const auto preset = Load(kFull);
    EXPECT_EQ("Tablet \"10\"", preset->Name());
    EXPECT_EQ("für unterwegs", preset->Description());
    EXPECT_EQ("MP4", preset->FormatName());
    EXPECT_EQ("m4v", preset->FormatHint());
    EXPECT_EQ(-7, preset->FaceID());
    EXPECT_EQ(-3, preset->IndexForVideoCodecPresets());
    EXPECT_EQ(1920, preset->MaxWidth());
    EXPECT_EQ(16, preset->MinWidth());
    EXPECT_EQ(1080, preset->MaxHeight());
    EXPECT_EQ(-8, preset->MinHeight());
}

TEST_F(FormatPreset, AnswersTheBitratesThatWereLoaded)
{
    const auto preset =
        Load(R"({"maxVideoBitrate":4,"minVideoBitrate":3,"maxAudioBitrate":2,"minAudioBitrate":1})");
    EXPECT_EQ(4, preset->MaxVideoBitrate());
    EXPECT_EQ(3, preset->MinVideoBitrate());
    EXPECT_EQ(2, preset->MaxAudioBitrate());
    EXPECT_EQ(1, preset->MinAudioBitrate());
}

TEST_F(FormatPreset, DropsUnknownMembersAndWritesItsOwnOrder)
{
    EXPECT_EQ(kEmpty,
              Rewritten(R"({"minAudioBitrate":-1,"colour":"red","maxWidth":0,"NAME":"x","name":""})"));
}

TEST_F(FormatPreset, TakesABitrateThatIsThereButNoNumberAsZero)
{
    const auto preset = Load(R"({"maxVideoBitrate":"much","minVideoBitrate":null,"maxAudioBitrate":[1]})");
    EXPECT_EQ(0, preset->MaxVideoBitrate());
    EXPECT_EQ(0, preset->MinVideoBitrate());
    EXPECT_EQ(0, preset->MaxAudioBitrate());
    EXPECT_EQ(-1, preset->MinAudioBitrate());
}

TEST_F(FormatPreset, TakesAListThatIsNoneAsEmpty)
{
    EXPECT_EQ(kEmpty, Rewritten(R"({"videoCodecPresets":{"codecID":1},"audioCodecPresets":7})"));
}

TEST_F(FormatPreset, MakesACodecPresetOfEveryElement)
{
    const auto preset = Load(R"({"videoCodecPresets":[1,null,{"codecID":86},"x"]})");
    EXPECT_EQ(std::string("\0\0V\0", 4), Letters(preset->VideoCodecPresets()));
}

TEST_F(FormatPreset, LoadsCodecPresetsByTheirOwnReader)
{
    const auto preset = Load(R"({"audioCodecPresets":[{"description":"first"},{"description":"second"}]})");
    ASSERT_EQ(2, preset->AudioCodecPresetCount());
    EXPECT_EQ("first", preset->AudioCodecPreset(0)->Description());
    EXPECT_EQ("second", preset->AudioCodecPreset(1)->Description());
}

struct NameCase
{
    const char* name;
    const char* stored;
    const char* loaded;
};

class LoadedFormatName : public testing::TestWithParam<NameCase>
{
};

TEST_P(LoadedFormatName, ReadsOldNamesOfTheProgramStream)
{
    const ScriptedPlatform platform;
    const auto json = Json(R"({"formatName":")" + std::string(GetParam().stored) + "\"}");
    EXPECT_EQ(GetParam().loaded, IVXFormatPreset::MallocFormatPreset(json)->FormatName());
}

const std::vector<NameCase> kNames = {
    {"Mpeg1", "MPEG1", VXFormatNameMPG},
    {"Mpeg2", "MPEG2", VXFormatNameMPG},
    {"NewName", VXFormatNameMPG, VXFormatNameMPG},
    {"LowerCase", "mpeg2", "mpeg2"},
    {"Hyphen", "MPEG-2", "MPEG-2"},
    {"Shorter", "MPEG", "MPEG"},
    {"Longer", "MPEG21", "MPEG21"},
    {"OtherNumber", "MPEG4", "MPEG4"},
    {"Space", "MPEG1 ", "MPEG1 "},
};
INSTANTIATE_TEST_SUITE_P(Names, LoadedFormatName, testing::ValuesIn(kNames),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(FormatPreset, WritesCodecPresetsAsTheyWriteThemselves)
{
    const auto preset =
        Load(R"({"videoCodecPresets":[{"codecID":86},{}],"audioCodecPresets":[{"codecID":65}]})");
    const auto json = preset->JsonValue();
    EXPECT_EQ("[" + Text(preset->VideoCodecPreset(0)->JsonValue()) + "," +
                  Text(preset->VideoCodecPreset(1)->JsonValue()) + "]",
              Text(json->GetValueArray("videoCodecPresets")));
    EXPECT_EQ("[" + Text(preset->AudioCodecPreset(0)->JsonValue()) + "]",
              Text(json->GetValueArray("audioCodecPresets")));
}

TEST_F(FormatPreset, WrittenTwiceIsTheSame)
{
    const auto once = Rewritten(
        R"({"name":"n","videoCodecPresets":[{"codecID":86,"levelPresets":[{"level":31}]}],"extra":1})");
    EXPECT_EQ(once, Rewritten(once));
}

} // namespace

} // namespace Vexlor
