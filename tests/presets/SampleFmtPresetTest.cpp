#include "IVXSampleFmtPreset.h"

#include "VXMediaCodecs.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/Slots.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace Vexlor
{

namespace
{

TEST(SampleFmtPreset, OperationsKeepTheirSlots)
{
    EXPECT_EQ(EverySlot(6), SlotsOf(&IVXSampleFmtPreset::IsAutoValue, &IVXSampleFmtPreset::IsAudio,
                                    &IVXSampleFmtPreset::Format, &IVXSampleFmtPreset::FormatSampleFmt,
                                    &IVXSampleFmtPreset::Clone, &IVXSampleFmtPreset::JsonValue));
    EXPECT_FALSE(std::has_virtual_destructor_v<IVXSampleFmtPreset>);
}

class SampleFmtPresetOfKind : public testing::TestWithParam<bool>
{
};

TEST_P(SampleFmtPresetOfKind, WithoutAFormatItIsAnAutoVideoPreset)
{
    const auto preset = IVXSampleFmtPreset::MallocSampleFmtPreset(GetParam());
    EXPECT_FALSE(preset->IsAudio());
    EXPECT_EQ(VXPixFormat_None, preset->Format());
    EXPECT_TRUE(preset->IsAutoValue());
}

INSTANTIATE_TEST_SUITE_P(Kinds, SampleFmtPresetOfKind, testing::Bool());

struct FormatCase
{
    const char* name;
    int format;
    bool isAudio;
    bool isAuto;
    const char* text;
};

class SampleFmtPresetFormat : public testing::TestWithParam<FormatCase>
{
};

TEST_P(SampleFmtPresetFormat, IsAutoWhenItIsNoneOfItsKind)
{
    const auto preset = IVXSampleFmtPreset::MallocSampleFmtPreset(GetParam().format, GetParam().isAudio);
    EXPECT_EQ(GetParam().format, preset->Format());
    EXPECT_EQ(GetParam().isAudio, preset->IsAudio());
    EXPECT_EQ(GetParam().isAuto, preset->IsAutoValue());
    EXPECT_EQ(GetParam().text, preset->FormatSampleFmt());
}

INSTANTIATE_TEST_SUITE_P(
    Formats, SampleFmtPresetFormat,
    testing::Values(FormatCase{"Pixels", VXPixFormat_YUV420P, false, false, "pixel format 0"},
                    FormatCase{"Samples", VXSampleFormat_FLT, true, false, "sample format 3"},
                    FormatCase{"NoPixels", VXPixFormat_None, false, true, "Auto"},
                    FormatCase{"NoSamples", VXSampleFormat_None, true, true, "Auto"},
                    FormatCase{"OtherNegative", -2, false, false, "pixel format -2"}),
    [](const auto& test) { return test.param.name; });

struct JsonCase
{
    const char* name;
    const char* json;
    const char* read;
};

class SampleFmtPresetJson : public testing::TestWithParam<JsonCase>
{
};

TEST_P(SampleFmtPresetJson, ReadsTheMembersThatAreThere)
{
    const auto preset = IVXSampleFmtPreset::MallocSampleFmtPreset(Json(GetParam().json));
    EXPECT_EQ(GetParam().read, Text(preset->JsonValue()));
}

INSTANTIATE_TEST_SUITE_P(
    Documents, SampleFmtPresetJson,
    testing::Values(JsonCase{"Both", R"({"format": 3, "isAudio": true})", R"({"isAudio":true,"format":3})"},
                    JsonCase{"NoFormat", R"({"isAudio": true})", R"({"isAudio":true,"format":-1})"},
                    JsonCase{"NoKind", R"({"format": 3})", R"({"isAudio":false,"format":3})"},
                    JsonCase{"Nothing", "{}", R"({"isAudio":false,"format":-1})"},
                    JsonCase{"FormatOfAnotherKind", R"({"format": "3"})", R"({"isAudio":false,"format":0})"},
                    JsonCase{"KindOfAnotherKind", R"({"isAudio": 1})", R"({"isAudio":false,"format":-1})"}),
    [](const auto& test) { return test.param.name; });

TEST(SampleFmtPreset, AnAudioDocumentWithoutAFormatHoldsNoPixelFormat)
{
    const auto preset = IVXSampleFmtPreset::MallocSampleFmtPreset(Json(R"({"isAudio": true})"));
    EXPECT_EQ(VXPixFormat_None, preset->Format());
    EXPECT_EQ(VXPixFormat_None == VXSampleFormat_None, preset->IsAutoValue());
}

TEST(SampleFmtPreset, ACloneIsAnotherObjectOfTheSameFormatAndKind)
{
    const auto preset = IVXSampleFmtPreset::MallocSampleFmtPreset(VXSampleFormat_FLT, true);
    const auto clone = preset->Clone();
    EXPECT_NE(preset, clone);
    EXPECT_EQ(R"({"isAudio":true,"format":3})", Text(clone->JsonValue()));
}

} // namespace

} // namespace Vexlor
