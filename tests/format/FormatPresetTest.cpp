#include "tests/format/CodecPresetSide.h"

#include "IVXCodecQualityPreset.h"
#include "IVXFormat.h"
#include "VXMediaCodecs.h"

#include "tests/platform/ScriptedPlatform.h"
#include "tests/platform/Slots.h"

#include <gmock/gmock.h>

#include <limits>
#include <vector>

namespace Vexlor
{

namespace
{

using testing::IsEmpty;

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

class FormatPreset : public testing::Test
{
protected:
    static std::shared_ptr<IVXFormatPreset> Load(std::string_view json)
    {
        return IVXFormatPreset::MallocFormatPreset(Json(json));
    }

    /// The preset's document, read anew.
    static std::string Rewritten(std::string_view json) { return Text(Load(json)->JsonValue()); }

    ScriptedPlatform platform;
};

TEST_F(FormatPreset, OperationsHaveTheirSlots)
{
    using P = IVXFormatPreset;
    EXPECT_EQ(EverySlot(56),
              SlotsOf(&P::FormatName, &P::FormatHint, &P::SetFormatHint, &P::FaceID, &P::SetFaceID, &P::Name,
                      &P::SetName, &P::Description, &P::SetDescription, &P::Clone, &P::CopyFrom,
                      &P::JsonValue, MutableForm(&P::AudioCodecPresets), ConstForm(&P::AudioCodecPresets),
                      MutableForm(&P::VideoCodecPresets), ConstForm(&P::VideoCodecPresets),
                      MutableForm(&P::AudioCodecPreset), ConstForm(&P::AudioCodecPreset),
                      MutableForm(&P::AudioCodecPresetByCodecID), ConstForm(&P::AudioCodecPresetByCodecID),
                      MutableForm(&P::VideoCodecPreset), ConstForm(&P::VideoCodecPreset),
                      MutableForm(&P::VideoCodecPresetByCodecID), ConstForm(&P::VideoCodecPresetByCodecID),
                      &P::VideoCodecPresetCount, &P::AudioCodecPresetCount, &P::IndexForAudioCodecPresets,
                      &P::IndexForVideoCodecPresets, &P::SetIndexForAudioCodecPresets,
                      &P::SetIndexForVideoCodecPresets, &P::AddAudioCodecPreset, &P::AddVideoCodecPreset,
                      &P::RemoveAudioCodec, &P::RemoveVideoCodec, &P::RemoveAudioCodecPreset,
                      &P::RemoveVideoCodecPreset, &P::InsertAudioCodecPreset, &P::MoveAudioCodecPreset,
                      &P::InsertVideoCodecPreset, &P::MoveVideoCodecPreset, &P::MaxWidth, &P::SetMaxWidth,
                      &P::MaxHeight, &P::SetMaxHeight, &P::MinWidth, &P::SetMinWidth, &P::MinHeight,
                      &P::SetMinHeight, &P::MaxVideoBitrate, &P::SetMaxVideoBitrate, &P::MaxAudioBitrate,
                      &P::SetMaxAudioBitrate, &P::MinVideoBitrate, &P::SetMinVideoBitrate,
                      &P::MinAudioBitrate, &P::SetMinAudioBitrate));
}

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

// Loaded.

constexpr const char* kEmpty =
    R"({"name":"","description":"","formatName":"","formatHint":"","faceID":0,)"
    R"("indexForVideoCodecPresets":-1,"videoCodecPresets":[],)"
    R"("indexForAudioCodecPresets":-1,"audioCodecPresets":[],)"
    R"("maxWidth":0,"minWidth":0,"maxHeight":0,"minHeight":0,)"
    R"("maxVideoBitrate":-1,"minVideoBitrate":-1,"maxAudioBitrate":-1,"minAudioBitrate":-1})";

constexpr const char* kFull =
    R"({"name":"Tablet \"10\"","description":"für unterwegs","formatName":"MP4","formatHint":"m4v","faceID":-7,)"
    R"("indexForVideoCodecPresets":-3,"videoCodecPresets":[],)"
    R"("indexForAudioCodecPresets":-1,"audioCodecPresets":[],)"
    R"("maxWidth":1920,"minWidth":16,"maxHeight":1080,"minHeight":-8,)"
    R"("maxVideoBitrate":8000000,"minVideoBitrate":0,"maxAudioBitrate":-1,"minAudioBitrate":-2147483648})";

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

// Fields.

TEST_F(FormatPreset, StoresTexts)
{
    const auto preset = Load("{}");
    const std::string bytes("a\0\xff\xc3", 4);
    preset->SetName(bytes);
    preset->SetDescription("description");
    preset->SetFormatHint("hint");
    EXPECT_EQ(bytes, preset->Name());
    EXPECT_EQ("description", preset->Description());
    EXPECT_EQ("hint", preset->FormatHint());
}

TEST_F(FormatPreset, StoresTheFace)
{
    const auto preset = Load("{}");
    preset->SetFaceID(kLowest);
    EXPECT_EQ(kLowest, preset->FaceID());
}

struct Limit
{
    const char* key;
    int (IVXFormatPreset::*get)() const;
    void (IVXFormatPreset::*set)(int);
};

class FormatPresetLimit : public testing::TestWithParam<Limit>
{
};

TEST_P(FormatPresetLimit, IsStoredUnchecked)
{
    const auto preset = IVXFormatPreset::MallocFormatPreset(Json("{}"));
    for (const int value : {kLowest, -1, 0, 1080, kHighest})
    {
        ((*preset).*GetParam().set)(value);
        EXPECT_EQ(value, ((*preset).*GetParam().get)());
    }
}

TEST_P(FormatPresetLimit, IsWrittenUnderItsKeyAlone)
{
    const auto preset = IVXFormatPreset::MallocFormatPreset(Json("{}"));
    ((*preset).*GetParam().set)(4711);
    std::string expected = kEmpty;
    const auto key = expected.find('"' + std::string(GetParam().key) + "\":");
    const auto value = expected.find(':', key) + 1;
    expected.replace(value, expected.find_first_of(",}", value) - value, "4711");
    EXPECT_EQ(expected, Text(preset->JsonValue()));
}

const std::vector<Limit> kLimits = {
    {"maxWidth", &IVXFormatPreset::MaxWidth, &IVXFormatPreset::SetMaxWidth},
    {"minWidth", &IVXFormatPreset::MinWidth, &IVXFormatPreset::SetMinWidth},
    {"maxHeight", &IVXFormatPreset::MaxHeight, &IVXFormatPreset::SetMaxHeight},
    {"minHeight", &IVXFormatPreset::MinHeight, &IVXFormatPreset::SetMinHeight},
    {"maxVideoBitrate", &IVXFormatPreset::MaxVideoBitrate, &IVXFormatPreset::SetMaxVideoBitrate},
    {"minVideoBitrate", &IVXFormatPreset::MinVideoBitrate, &IVXFormatPreset::SetMinVideoBitrate},
    {"maxAudioBitrate", &IVXFormatPreset::MaxAudioBitrate, &IVXFormatPreset::SetMaxAudioBitrate},
    {"minAudioBitrate", &IVXFormatPreset::MinAudioBitrate, &IVXFormatPreset::SetMinAudioBitrate},
};
INSTANTIATE_TEST_SUITE_P(Limits, FormatPresetLimit, testing::ValuesIn(kLimits),
                         [](const auto& test) { return std::string(test.param.key); });

// Copies.

class FormatPresetCopy : public FormatPreset
{
protected:
    FormatPresetCopy()
    {
        platform.Codec('V').sampleRates = {44100, 48000};
        source->SetName("name");
        source->SetDescription("description");
        source->SetFormatHint("hint");
        source->SetFaceID(5);
        source->SetMaxWidth(1920);
        source->SetMinAudioBitrate(64000);
    }

    /// Changes a codec preset of the copy, and the copy's own lists.
    static void Edit(IVXFormatPreset& copy)
    {
        copy.VideoCodecPreset(0)->SetDescription("edited");
        copy.VideoCodecPreset(0)->RemoveSampleratePreset(0);
        copy.AudioCodecPreset(0)->SetName("edited");
        copy.RemoveVideoCodecPreset(1);
        copy.SetName("edited");
    }

    std::shared_ptr<IVXFormatPreset> source = Load(
        R"({"formatName":"MP4","indexForVideoCodecPresets":-3,"videoCodecPresets":[{"codecID":86},{"codecID":87}],)"
        R"("indexForAudioCodecPresets":1,"audioCodecPresets":[{"name":"a"},{"codecID":66}]})");
};

TEST_F(FormatPresetCopy, CloneHoldsTheSame)
{
    EXPECT_EQ(Text(source->JsonValue()), Text(source->Clone()->JsonValue()));
}

TEST_F(FormatPresetCopy, CloneSharesNoCodecPreset)
{
    const auto before = Text(source->JsonValue());
    const auto clone = source->Clone();
    EXPECT_NE(source->VideoCodecPreset(0), clone->VideoCodecPreset(0));
    EXPECT_NE(source->AudioCodecPreset(1), clone->AudioCodecPreset(1));
    Edit(*clone);
    EXPECT_EQ(before, Text(source->JsonValue()));
}

TEST_F(FormatPresetCopy, CloneKeepsWhatADocumentDoesNot)
{
    source->VideoCodecPreset(0)->SetIndexForQualityPresets(5);
    source->VideoCodecPreset(0)->CurrentCodecQuality()->SetBitrate(777);
    const auto codec = source->Clone()->VideoCodecPreset(0);
    EXPECT_EQ(5, codec->IndexForQualityPresets());
    EXPECT_EQ(777, codec->CurrentCodecQuality()->Bitrate());
}

TEST_F(FormatPresetCopy, CopyFromTakesEverything)
{
    const auto target = Load(kFull);
    target->AddVideoCodecPreset('Z');
    target->CopyFrom(source);
    EXPECT_EQ(Text(source->JsonValue()), Text(target->JsonValue()));
}

TEST_F(FormatPresetCopy, CopyFromSharesNoCodecPreset)
{
    const auto before = Text(source->JsonValue());
    const auto target = Load("{}");
    target->CopyFrom(source);
    EXPECT_NE(source->VideoCodecPreset(0), target->VideoCodecPreset(0));
    Edit(*target);
    EXPECT_EQ(before, Text(source->JsonValue()));
}

TEST_F(FormatPresetCopy, CopyFromItselfChangesNothing)
{
    const auto before = Text(source->JsonValue());
    source->CopyFrom(source);
    EXPECT_EQ(before, Text(source->JsonValue()));
}

TEST_F(FormatPresetCopy, CopyFromNothingChangesNothing)
{
    const auto before = Text(source->JsonValue());
    source->CopyFrom({});
    EXPECT_EQ(before, Text(source->JsonValue()));
}

TEST_F(FormatPresetCopy, CodecPresetsOutliveTheirFormatPreset)
{
    const auto codec = source->VideoCodecPreset(1);
    source.reset();
    EXPECT_EQ('W', codec->CodecID());
}

} // namespace

} // namespace Vexlor
