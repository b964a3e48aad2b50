#include "IVXSampleAspectPreset.h"
#include "VXMediaCodecs.h"

#include "tests/codec/ListFamilies.h"
#include "tests/platform/ScriptedCall.h"
#include "tests/platform/ScriptedJson.h"
#include "tests/platform/ScriptedPlatform.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace Vexlor
{

namespace
{

constexpr int kCodec = 7;

std::shared_ptr<IVXCodecPreset> Read(const char* text)
{
    return IVXCodecPreset::MallocCodecPreset(Json(text));
}

/// Every list and index of a document, and the name that only a preset without a codec keeps.
constexpr auto kDocument = R"({
    "aspectPreset": {"num": 8, "den": 9, "type": 13},
    "codecID": 0, "name": "stored", "description": "text",
    "indexForResolutionPreset": 1,
    "resolutionPresets": [{"width": 0, "height": 0}, {"width": 1280, "height": 720}],
    "indexForFrameratePresets": 2,
    "frameratePresets": [{"num": 30000, "den": 1001}],
    "indexForQualityPresets": 0,
    "indexForSampleratePresets": 3,
    "sampleratePresets": [{"samplerate": 44100}, {"samplerate": -1}],
    "indexForChannelLayoutPresets": 4,
    "channelLayoutPresets": [{"chLayout": 1099511627776}],
    "indexForProfilesPresets": 5,
    "profilesPresets": [{"profile": 100, "name": "High"}],
    "indexForLevelPresets": 6,
    "levelPresets": [{"level": -99, "name": "Unknown"}, {"level": 41, "name": "4.1"}],
    "indexForSampleFmts": 7
})";

class CodecPreset : public testing::Test
{
protected:
    CodecPreset()
    {
        m_offered.resolutions = {{640, 480}, {320, 240}};
        m_offered.frameRates = {{30, 1}};
        m_offered.sampleRates = {48000};
        m_offered.layouts = {3};
        m_offered.profiles = {{100, "High"}};
        m_offered.levels = {{41, "4.1"}};
        m_offered.formats = {0, 5};
    }

    ScriptedPlatform m_platform;
    ScriptedCodec& m_offered = m_platform.Codec(kCodec);
};

TEST_F(CodecPreset, WithoutACodecItIsAuto)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
    EXPECT_TRUE(preset->IsAutoValue());
    EXPECT_EQ("Auto", preset->Name());
    EXPECT_EQ("", preset->Description());
}

TEST_F(CodecPreset, WithoutACodecItIsEmptyButForTheAspect)
{
    EXPECT_EQ(Text(Json(R"({
        "aspectPreset": {"num": 0, "den": 0, "type": 0}, "codecID": 0, "name": "", "description": "",
        "indexForResolutionPreset": 0, "resolutionPresets": [],
        "indexForFrameratePresets": 0, "frameratePresets": [], "indexForQualityPresets": 0,
        "indexForSampleratePresets": 0, "sampleratePresets": [],
        "indexForChannelLayoutPresets": 0, "channelLayoutPresets": [],
        "indexForProfilesPresets": 0, "profilesPresets": [],
        "indexForLevelPresets": 0, "levelPresets": [], "indexForSampleFmts": 0})")),
              Text(IVXCodecPreset::MallocCodecPreset(VXCodecID_None)->JsonValue()));
}

TEST_F(CodecPreset, WithoutACodecItAsksTheCodecLibraryNothing)
{
    IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
    EXPECT_EQ("", m_platform.CallsText());
}

TEST_F(CodecPreset, WithoutACodecItHasNoQualityAndNoFormats)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
    EXPECT_EQ(0, preset->CodecQualityPresetCount());
    EXPECT_TRUE(std::as_const(*preset).SampleFmtPresets().empty());
    EXPECT_FALSE(preset->CurrentSampleFmt());
}

TEST_F(CodecPreset, OfACodecItHasTheBuiltInLists)
{
    EXPECT_EQ(Text(Json(R"({
        "aspectPreset": {"num": 0, "den": 0, "type": 0}, "codecID": 7, "name": "codec 7", "description": "",
        "indexForResolutionPreset": 0,
        "resolutionPresets": [{"width": 0, "height": 0}, {"width": 640, "height": 480},
                              {"width": 320, "height": 240}],
        "indexForFrameratePresets": 0, "frameratePresets": [{"num": 30, "den": 1}],
        "indexForQualityPresets": 0,
        "indexForSampleratePresets": 0, "sampleratePresets": [{"samplerate": 48000}],
        "indexForChannelLayoutPresets": 0, "channelLayoutPresets": [{"chLayout": 3}],
        "indexForProfilesPresets": 0,
        "profilesPresets": [{"profile": -99, "name": "Unknown"}, {"profile": 100, "name": "High"}],
        "indexForLevelPresets": 0,
        "levelPresets": [{"level": -99, "name": "Unknown"}, {"level": 41, "name": "4.1"}],
        "indexForSampleFmts": 0})")),
              Text(IVXCodecPreset::MallocCodecPreset(kCodec)->JsonValue()));
}

TEST_F(CodecPreset, OfACodecItOffersItsFormats)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    EXPECT_EQ("Auto, pixel format 0, pixel format 5",
              Shown(std::as_const(*preset).SampleFmtPresets(), &IVXSampleFmtPreset::FormatSampleFmt));
}

TEST_F(CodecPreset, OfACodecItAsksInAFixedOrder)
{
    IVXCodecPreset::MallocCodecPreset(kCodec);
    std::string questions;
    for (const auto& call : m_platform.Calls())
        if (call.starts_with("Supported") || call.starts_with("GetCodecName"))
            questions += call.substr(0, call.find('(')) + "\n";
    EXPECT_EQ("SupportedResolutions\nSupportedFrameRates\nSupportedSampleRates\nSupportedChannelLayouts\n"
              "SupportedProfiles\nSupportedLevels\nGetCodecName\nSupportedFormats\n",
              questions);
}

TEST_F(CodecPreset, OfANegativeCodecItIsNotAuto)
{
    EXPECT_FALSE(IVXCodecPreset::MallocCodecPreset(-1)->IsAutoValue());
}

TEST_F(CodecPreset, OfAnUnknownCodecItHasNoNameAndOnlyTheQualityList)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(8);
    EXPECT_EQ(8, preset->CodecID());
    EXPECT_FALSE(preset->IsAutoValue());
    EXPECT_EQ("", preset->Name());
    EXPECT_EQ(6, preset->CodecQualityPresetCount());
    EXPECT_EQ(0, preset->ResolutionPresetCount());
    EXPECT_EQ(0, preset->LevelPresetCount());
}

TEST_F(CodecPreset, TheQualityListIsTheSameForEveryCodec)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    EXPECT_EQ("Auto, grade 0, grade 1, grade 2, grade 3, Custom",
              Shown(preset->CodecQualityPresets(), &IVXCodecQualityPreset::FormatQuality));
    const auto custom = preset->CodecQualityPresetAt(5);
    EXPECT_EQ(R"({"qualityValue":-1,"bitrate":1})", Text(custom->JsonValue()));
    EXPECT_EQ(std::pair(1, 1), custom->BitrateRange());
    EXPECT_EQ(1, custom->Mode());
}

TEST_F(CodecPreset, QualityEntriesAreNotSharedBetweenPresets)
{
    const auto first = IVXCodecPreset::MallocCodecPreset(kCodec);
    first->CodecQualityPresetAt(5)->SetBitrate(5000);
    EXPECT_EQ(1, IVXCodecPreset::MallocCodecPreset(kCodec)->CodecQualityPresetAt(5)->Bitrate());
}

TEST_F(CodecPreset, NameAndDescriptionCanBeChanged)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    preset->SetName("Mine");
    preset->SetDescription("for the car");
    EXPECT_EQ("Mine", preset->Name());
    EXPECT_EQ("for the car", preset->Description());
}

TEST_F(CodecPreset, WithoutACodecItShowsAutoAndWritesTheStoredName)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(VXCodecID_None);
    preset->SetName("Mine");
    EXPECT_EQ("Auto", preset->Name());
    EXPECT_EQ("Mine", preset->JsonValue()->GetValueString("name"));
}

TEST_F(CodecPreset, WithoutACodecItIsWrittenAsItWasRead)
{
    EXPECT_EQ(Text(Json(kDocument)), Text(Read(kDocument)->JsonValue()));
}

TEST_F(CodecPreset, OfACodecItIsWrittenAsItWasReadButForTheName)
{
    const auto json = Json(kDocument);
    json->SetValueInt("codecID", kCodec);
    const auto written = IVXCodecPreset::MallocCodecPreset(json)->JsonValue();
    json->SetValueString("name", "default name of codec 7");
    EXPECT_EQ(Text(json), Text(written));
}

TEST_F(CodecPreset, AnEmptyDocumentIsAPresetWithoutACodecAndOneLevel)
{
    const auto preset = Read("{}");
    EXPECT_TRUE(preset->IsAutoValue());
    EXPECT_EQ(0, preset->ResolutionPresetCount());
    EXPECT_EQ(0, preset->ProfilePresetCount());
    EXPECT_EQ(1, preset->LevelPresetCount());
    EXPECT_EQ(R"({"num":0,"den":0,"type":0})", Text(preset->AspectPreset()->JsonValue()));
}

TEST_F(CodecPreset, AListThatADocumentLacksIsEmptyNotBuiltIn)
{
    const auto preset = Read(R"({"codecID": 7})");
    EXPECT_EQ(0, preset->ResolutionPresetCount());
    EXPECT_EQ(0, preset->FrameratePresetCount());
    EXPECT_EQ(0, preset->SampleratePresetCount());
    EXPECT_EQ(0, preset->ChannelLayoutPresetCount());
    EXPECT_EQ(0, preset->ProfilePresetCount());
}

TEST_F(CodecPreset, TheNameOfACodecIsTheLibrarysWhateverTheDocumentSays)
{
    const auto preset = Read(R"({"codecID": 7, "name": "Mine", "description": "kept"})");
    EXPECT_EQ("default name of codec 7", preset->Name());
    EXPECT_EQ("kept", preset->Description());
    EXPECT_EQ(std::vector<std::string>{"DefaultCodecName(7, true)"}, m_platform.CallsTo("DefaultCodecName"));
}

TEST_F(CodecPreset, TheNameOfAnUnknownCodecIsEmptyWhateverTheDocumentSays)
{
    EXPECT_EQ("", Read(R"({"codecID": 8, "name": "Mine"})")->Name());
}

struct LevelCase
{
    const char* name;
    const char* document;
    const char* levels;
    int index;
};

class CodecPresetLevels : public testing::TestWithParam<LevelCase>
{
};

TEST_P(CodecPresetLevels, StartWithUnknown)
{
    const auto preset = Read(GetParam().document);
    EXPECT_EQ(GetParam().levels, Shown(preset->LevelPresets(), &IVXLevelPreset::Name));
    EXPECT_EQ(GetParam().index, preset->IndexForLevelPresets());
    EXPECT_EQ(int{IVXCodecs::VXLevelUnknown}, preset->LevelPresetAt(0)->Level());
}

INSTANTIATE_TEST_SUITE_P(
    Documents, CodecPresetLevels,
    testing::Values(
        LevelCase{"Inserted",
                  R"({"indexForLevelPresets": 2, "levelPresets": [{"level": 30, "name": "3.0"},
                      {"level": 31, "name": "3.1"}, {"level": 32, "name": "3.2"}]})",
                  "Unknown, 3.0, 3.1, 3.2", 3},
        LevelCase{"InsertedBeforeAnIndexOfMinusOne",
                  R"({"indexForLevelPresets": -1, "levelPresets": [{"level": 30, "name": "3.0"}]})",
                  "Unknown, 3.0", 0},
        LevelCase{"InsertedBeforeAnUnknownFurtherBack",
                  R"({"levelPresets": [{"level": 30, "name": "3.0"}, {"level": -99, "name": "None"}]})",
                  "Unknown, 3.0, None", 1},
        LevelCase{"ThereAlready",
                  R"({"indexForLevelPresets": 2, "levelPresets": [{"level": -99, "name": "None"}]})", "None",
                  2},
        LevelCase{"Empty", R"({"indexForLevelPresets": 2, "levelPresets": []})", "Unknown", 2},
        LevelCase{"Absent", R"({"codecID": 7})", "Unknown", 0}),
    [](const auto& test) { return test.param.name; });

TEST_F(CodecPreset, IndicesOfADocumentAreTakenAsTheyAre)
{
    const auto preset = Read(R"({"indexForResolutionPreset": 99, "indexForFrameratePresets": -3,
        "indexForSampleratePresets": 98, "indexForChannelLayoutPresets": -4, "indexForProfilesPresets": 97,
        "indexForLevelPresets": -5, "indexForSampleFmts": 96})");
    EXPECT_EQ(99, preset->IndexForResolutionPreset());
    EXPECT_EQ(-3, preset->IndexForFrameratePresets());
    EXPECT_EQ(98, preset->IndexForSampleratePresets());
    EXPECT_EQ(-4, preset->IndexForChannelLayoutPresets());
    EXPECT_EQ(97, preset->IndexForProfilesPresets());
    EXPECT_EQ(-5, preset->IndexForLevelPresets());
    EXPECT_EQ(96, preset->IndexForSampleFmts());
}

TEST_F(CodecPreset, AStaleIndexHasNoCurrentEntry)
{
    const auto preset =
        Read(R"({"indexForResolutionPreset": 1, "resolutionPresets": [{"width": 1, "height": 1}],
        "indexForSampleratePresets": -1, "sampleratePresets": [{"samplerate": 1}]})");
    EXPECT_FALSE(preset->CurrentResolution());
    EXPECT_FALSE(preset->CurrentSamplerate());
}

TEST_F(CodecPreset, QualityIsNotReadFromADocument)
{
    const auto preset = Read(R"({"codecID": 7, "indexForQualityPresets": 3,
        "qualityPresets": [{"qualityValue": 1, "bitrate": -1}]})");
    EXPECT_EQ(0, preset->IndexForQualityPresets());
    EXPECT_EQ(6, preset->CodecQualityPresetCount());
}

TEST_F(CodecPreset, ADocumentWithoutACodecHasNoQualityAndNoFormats)
{
    const auto preset = Read(R"({"indexForQualityPresets": 3, "indexForSampleFmts": 2})");
    EXPECT_EQ(0, preset->IndexForQualityPresets());
    EXPECT_EQ(0, preset->CodecQualityPresetCount());
    EXPECT_EQ(2, preset->IndexForSampleFmts());
    EXPECT_TRUE(std::as_const(*preset).SampleFmtPresets().empty());
}

TEST_F(CodecPreset, FormatsAreTheBuiltInOnesWhateverTheDocumentSays)
{
    const auto preset = Read(R"({"codecID": 7, "sampleFmts": [{"isAudio": false, "format": 9}]})");
    EXPECT_EQ("Auto, pixel format 0, pixel format 5",
              Shown(std::as_const(*preset).SampleFmtPresets(), &IVXSampleFmtPreset::FormatSampleFmt));
}

TEST_F(CodecPreset, SavedAndReloadedItHasLostItsQualityEdits)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    preset->SetIndexForQualityPresets(5);
    preset->CurrentCodecQuality()->SetBitrate(5000);
    const auto written = preset->JsonValue();
    EXPECT_EQ(5, written->GetValueInt("indexForQualityPresets"));
    EXPECT_FALSE(written->HasKey("qualityPresets"));

    const auto reloaded = IVXCodecPreset::MallocCodecPreset(written);
    EXPECT_EQ(0, reloaded->IndexForQualityPresets());
    EXPECT_EQ(1, reloaded->CodecQualityPresetAt(5)->Bitrate());
}

TEST_F(CodecPreset, TheAspectIsSharedWithThePreset)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    EXPECT_EQ(preset->AspectPreset(), std::as_const(*preset).AspectPreset());
    preset->AspectPreset()->SetAspectType(IVXSampleAspectPreset::AspectPALDVD4x3);
    EXPECT_EQ("PAL DVD 4:3", preset->AspectPreset()->AspectName());
}

TEST_F(CodecPreset, AnAspectOfADocumentIsRead)
{
    const auto preset = Read(R"({"aspectPreset": {"num": 8, "den": 9, "type": 13}})");
    EXPECT_EQ("8/9", Text(preset->AspectPreset()->Ratio()));
}

TEST_F(CodecPreset, ACloneIsWrittenAsItsSource)
{
    const auto json = Json(kDocument);
    json->SetValueInt("codecID", kCodec);
    const auto preset = IVXCodecPreset::MallocCodecPreset(json);
    preset->SetName("Mine");
    preset->SetIndexForQualityPresets(4);
    EXPECT_EQ(Text(preset->JsonValue()), Text(preset->Clone()->JsonValue()));
}

TEST_F(CodecPreset, ACloneHasTheFormatsOfItsSource)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    preset->SetIndexForSampleFmts(2);
    m_offered.formats = {1};
    const auto clone = preset->Clone();
    EXPECT_EQ(5, clone->CurrentSampleFmt()->Format());
    EXPECT_NE(preset->CurrentSampleFmt(), clone->CurrentSampleFmt());
}

TEST_F(CodecPreset, ACloneHasEveryNumberOfAnEditedQuality)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    preset->SetIndexForQualityPresets(5);
    preset->CurrentCodecQuality()->SetBitrate(5000);
    preset->CurrentCodecQuality()->SetMode(3);
    const auto quality = preset->Clone()->CurrentCodecQuality();
    EXPECT_EQ(std::pair(1, 5000), quality->BitrateRange());
    EXPECT_EQ(3, quality->Mode());
}

TEST_F(CodecPreset, ACloneIsLeftAloneByEditsOfItsSource)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    const auto clone = preset->Clone();
    const auto before = Text(clone->JsonValue());
    preset->RemoveResolutionPreset(0);
    preset->AddLevelPreset(5);
    preset->SetIndexForResolutionPreset(1);
    preset->SetDescription("changed");
    preset->AspectPreset()->SetRatio(8, 9);
    preset->CodecQualityPresetAt(5)->SetBitrate(5000);
    EXPECT_EQ(before, Text(clone->JsonValue()));
    EXPECT_EQ(1, clone->CodecQualityPresetAt(5)->Bitrate());
}

template <class Family>
class CodecPresetClone : public CodecPreset
{
};

using Families = testing::Types<ResolutionFamily, FramerateFamily, QualityFamily, SamplerateFamily,
                                ChannelLayoutFamily, ProfileFamily, LevelFamily>;
TYPED_TEST_SUITE(CodecPresetClone, Families);

TYPED_TEST(CodecPresetClone, SharesNoEntryWithItsSource)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    const auto source = ((*preset).*TypeParam::kList)();
    const auto copied = ((*preset->Clone()).*TypeParam::kList)();
    EXPECT_EQ(Written(source), Written(copied));
    EXPECT_EQ(source.end(), std::find_first_of(source.begin(), source.end(), copied.begin(), copied.end()));
}

/// A host's own kind of resolution, whose clones show that it was asked for them.
class HostResolution final : public IVXResolutionPreset
{
public:
    int Width() const override { return 10; }
    int Height() const override { return 20; }
    std::shared_ptr<IVXResolutionPreset> Clone() const override { return MallocResolutionPreset(30, 40); }
    std::shared_ptr<IVXJsonValue> JsonValue() const override { return IVXJsonValue::JsonValueNull(); }
};

TEST_F(CodecPreset, ACloneAsksTheHostsValuesForTheirs)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    preset->InsertResolutionPresets({std::make_shared<HostResolution>()}, 0);
    const auto clone = preset->Clone();
    EXPECT_EQ(30, clone->ResolutionPresetAt(0)->Width());
    EXPECT_EQ(preset->ResolutionPresetAt(1)->Width(), clone->ResolutionPresetAt(1)->Width());
}

TEST_F(CodecPreset, AnEntryOutlivesItsList)
{
    auto preset = Read(R"({"resolutionPresets": [{"width": 1, "height": 2}, {"width": 3, "height": 4}]})");
    const auto entry = preset->ResolutionPresetAt(1);
    preset->RemoveResolutionPreset(0);
    preset.reset();
    EXPECT_EQ(3, entry->Width());
}

TEST_F(CodecPreset, ACloneHasItsOwnRationals)
{
    const auto preset = IVXCodecPreset::MallocCodecPreset(kCodec);
    const auto clone = preset->Clone();
    EXPECT_NE(preset->FrameratePresetAt(0)->Framerate(), clone->FrameratePresetAt(0)->Framerate());
    EXPECT_NE(preset->AspectPreset(), clone->AspectPreset());
}

} // namespace

} // namespace Vexlor
