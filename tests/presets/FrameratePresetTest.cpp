#include "IVXFrameratePreset.h"

#include "IVXRational.h"

#include "tests/platform/ScriptedCall.h"
#include "tests/platform/ScriptedJson.h"
#include "tests/platform/Slots.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace Vexlor
{

namespace
{

TEST(FrameratePreset, OperationsKeepTheirSlots)
{
    EXPECT_EQ(EverySlot(5), SlotsOf(&IVXFrameratePreset::Framerate, &IVXFrameratePreset::IsAutoValue,
                                    &IVXFrameratePreset::FormatFramerate, &IVXFrameratePreset::Clone,
                                    &IVXFrameratePreset::JsonValue));
    EXPECT_FALSE(std::has_virtual_destructor_v<IVXFrameratePreset>);
}

TEST(FrameratePreset, MadeOfNothingItIsAutoAndHoldsTheDefaultRational)
{
    const auto preset = IVXFrameratePreset::MallocFrameratePreset();
    EXPECT_TRUE(preset->IsAutoValue());
    EXPECT_EQ("Auto", preset->FormatFramerate());
    EXPECT_EQ(Text(IVXRational::MallocRational()), Text(preset->Framerate()));
}

TEST(FrameratePreset, SharesTheRationalItWasMadeOf)
{
    const auto rate = IVXRational::MallocRational(25, 1);
    EXPECT_EQ(rate, IVXFrameratePreset::MallocFrameratePreset(rate)->Framerate());
}

TEST(FrameratePreset, PresetsOfTheSameRationalShareItAndTheirClonesDoNot)
{
    const auto rate = IVXRational::MallocRational(25, 1);
    const auto first = IVXFrameratePreset::MallocFrameratePreset(rate);
    const auto second = IVXFrameratePreset::MallocFrameratePreset(rate);
    EXPECT_EQ(first->Framerate(), second->Framerate());
    EXPECT_NE(first->Clone()->Framerate(), second->Clone()->Framerate());
    EXPECT_EQ("25/1", Text(first->Clone()->Framerate()));
}

TEST(FrameratePreset, HandsOutItsOwnRational)
{
    const auto preset = IVXFrameratePreset::MallocFrameratePreset(30000, 1001);
    EXPECT_EQ("30000/1001", Text(preset->Framerate()));
    EXPECT_EQ(preset->Framerate(), preset->Framerate());
}

TEST(FrameratePreset, MadeOfAnEmptyHandleItIsAuto)
{
    const auto preset = IVXFrameratePreset::MallocFrameratePreset(std::shared_ptr<IVXRational>());
    EXPECT_TRUE(preset->IsAutoValue());
    EXPECT_EQ("Auto", preset->FormatFramerate());
}

struct RateCase
{
    const char* name;
    int num;
    int den;
    bool isAuto;
    const char* text;
};

class FrameratePresetRate : public testing::TestWithParam<RateCase>
{
};

TEST_P(FrameratePresetRate, IsAutoWhenInvalidOrZero)
{
    const auto preset = IVXFrameratePreset::MallocFrameratePreset(GetParam().num, GetParam().den);
    EXPECT_EQ(GetParam().isAuto, preset->IsAutoValue());
    EXPECT_EQ(GetParam().text, preset->FormatFramerate());
}

INSTANTIATE_TEST_SUITE_P(Rates, FrameratePresetRate,
                         testing::Values(RateCase{"Ntsc", 30000, 1001, false, "30000/1001 fps"},
                                         RateCase{"Negative", -30, 1, false, "-30/1 fps"},
                                         RateCase{"NoNumerator", 0, 1, true, "Auto"},
                                         RateCase{"NoDenominator", 30, 0, true, "Auto"},
                                         RateCase{"Nothing", 0, 0, true, "Auto"}),
                         [](const auto& test) { return test.param.name; });

/// A rational whose maker calls every fraction valid.
class LenientRational final : public IVXRational
{
public:
    explicit LenientRational(int num) : m_num(num) {}

    bool IsValid() const override { return true; }
    double GetDoubleValue() const override { return 0; }
    std::string FormatAsFramerate() const override { return "endless"; }
    int Num() const override { return m_num; }
    int Den() const override { return 0; }
    std::shared_ptr<IVXRational> Clone() const override { return {}; }

private:
    int m_num;
};

TEST(FrameratePreset, AskedForValidityItBelievesTheRational)
{
    const auto preset = IVXFrameratePreset::MallocFrameratePreset(std::make_shared<LenientRational>(30));
    EXPECT_FALSE(preset->IsAutoValue());
    EXPECT_EQ("endless", preset->FormatFramerate());
}

TEST(FrameratePreset, AValidRationalWithoutANumeratorIsAutoAllTheSame)
{
    const auto preset = IVXFrameratePreset::MallocFrameratePreset(std::make_shared<LenientRational>(0));
    EXPECT_TRUE(preset->IsAutoValue());
}

TEST(FrameratePreset, IsReadBackAsItWasWritten)
{
    const auto written = IVXFrameratePreset::MallocFrameratePreset(60, 2)->JsonValue();
    EXPECT_EQ(R"({"num":60,"den":2})", Text(written));
    EXPECT_EQ(Text(written), Text(IVXFrameratePreset::MallocFrameratePreset(written)->JsonValue()));
}

TEST(FrameratePreset, AMissingMemberReadsAsAuto)
{
    const auto preset = IVXFrameratePreset::MallocFrameratePreset(Json(R"({"num": 25})"));
    EXPECT_EQ("25/0", Text(preset->Framerate()));
    EXPECT_TRUE(preset->IsAutoValue());
}

TEST(FrameratePreset, ACloneIsAnotherObjectOfTheSameRate)
{
    const auto preset = IVXFrameratePreset::MallocFrameratePreset(30000, 1001);
    const auto clone = preset->Clone();
    EXPECT_NE(preset, clone);
    EXPECT_EQ(Text(preset->JsonValue()), Text(clone->JsonValue()));
}

} // namespace

} // namespace Vexlor
