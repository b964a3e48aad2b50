#include "IVXSampleratePreset.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/Slots.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace Vexlor
{

namespace
{

TEST(SampleratePreset, OperationsKeepTheirSlots)
{
    EXPECT_EQ(EverySlot(4), SlotsOf(&IVXSampleratePreset::Samplerate, &IVXSampleratePreset::FormatSamplerate,
                                    &IVXSampleratePreset::Clone, &IVXSampleratePreset::JsonValue));
    EXPECT_FALSE(std::has_virtual_destructor_v<IVXSampleratePreset>);
}

TEST(SampleratePreset, MadeOfNothingItIsAuto)
{
    const auto preset = IVXSampleratePreset::MallocSampleratePreset();
    EXPECT_EQ(0, preset->Samplerate());
    EXPECT_TRUE(preset->IsAutoValue());
    EXPECT_EQ("Auto", preset->FormatSamplerate());
}

struct RateCase
{
    const char* name;
    int rate;
    bool isAuto;
    const char* text;
};

class SampleratePresetRate : public testing::TestWithParam<RateCase>
{
};

TEST_P(SampleratePresetRate, IsAutoBelowOne)
{
    const auto preset = IVXSampleratePreset::MallocSampleratePreset(GetParam().rate);
    EXPECT_EQ(GetParam().rate, preset->Samplerate());
    EXPECT_EQ(GetParam().isAuto, preset->IsAutoValue());
    EXPECT_EQ(GetParam().text, preset->FormatSamplerate());
}

INSTANTIATE_TEST_SUITE_P(Rates, SampleratePresetRate,
                         testing::Values(RateCase{"Usual", 44100, false, "44100 Hz"},
                                         RateCase{"Lowest", 1, false, "1 Hz"},
                                         RateCase{"Zero", 0, true, "Auto"},
                                         RateCase{"Negative", -1, true, "Auto"}),
                         [](const auto& test) { return test.param.name; });

TEST(SampleratePreset, IsReadBackAsItWasWritten)
{
    const auto written = IVXSampleratePreset::MallocSampleratePreset(48000)->JsonValue();
    EXPECT_EQ(R"({"samplerate":48000})", Text(written));
    EXPECT_EQ(48000, IVXSampleratePreset::MallocSampleratePreset(written)->Samplerate());
}

TEST(SampleratePreset, ANegativeRateIsWrittenAsItIs)
{
    EXPECT_EQ(R"({"samplerate":-1})", Text(IVXSampleratePreset::MallocSampleratePreset(-1)->JsonValue()));
}

TEST(SampleratePreset, AMissingMemberReadsAsAuto)
{
    EXPECT_EQ(0, IVXSampleratePreset::MallocSampleratePreset(Json("{}"))->Samplerate());
}

TEST(SampleratePreset, ACloneIsAnotherObjectOfTheSameRate)
{
    const auto preset = IVXSampleratePreset::MallocSampleratePreset(48000);
    const auto clone = preset->Clone();
    EXPECT_NE(preset, clone);
    EXPECT_EQ(48000, clone->Samplerate());
}

} // namespace

} // namespace Vexlor
