#include "IVXResolutionPreset.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/Slots.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace Vexlor
{

namespace
{

TEST(ResolutionPreset, OperationsKeepTheirSlots)
{
    EXPECT_EQ(EverySlot(6), SlotsOf(&IVXResolutionPreset::Width, &IVXResolutionPreset::Height,
                                    &IVXResolutionPreset::IsAutoValue, &IVXResolutionPreset::FormatResolution,
                                    &IVXResolutionPreset::Clone, &IVXResolutionPreset::JsonValue));
    EXPECT_FALSE(std::has_virtual_destructor_v<IVXResolutionPreset>);
}

TEST(ResolutionPreset, MadeOfNothingItIsAuto)
{
    const auto preset = IVXResolutionPreset::MallocResolutionPreset();
    EXPECT_EQ(R"({"width":0,"height":0})", Text(preset->JsonValue()));
    EXPECT_TRUE(preset->IsAutoValue());
    EXPECT_EQ("Auto", preset->FormatResolution());
}

TEST(ResolutionPreset, HoldsTheSizeItWasMadeOf)
{
    const auto preset = IVXResolutionPreset::MallocResolutionPreset(1280, 720);
    EXPECT_EQ(1280, preset->Width());
    EXPECT_EQ(720, preset->Height());
}

struct SizeCase
{
    const char* name;
    int width;
    int height;
    bool isAuto;
    const char* text;
};

class ResolutionPresetSize : public testing::TestWithParam<SizeCase>
{
};

TEST_P(ResolutionPresetSize, IsAutoWhenOneSideIsBelowOne)
{
    const auto preset = IVXResolutionPreset::MallocResolutionPreset(GetParam().width, GetParam().height);
    EXPECT_EQ(GetParam().isAuto, preset->IsAutoValue());
    EXPECT_EQ(GetParam().text, preset->FormatResolution());
}

INSTANTIATE_TEST_SUITE_P(Sizes, ResolutionPresetSize,
                         testing::Values(SizeCase{"Full", 1920, 1080, false, "1920 x 1080"},
                                         SizeCase{"Smallest", 1, 1, false, "1 x 1"},
                                         SizeCase{"NoHeight", 1920, 0, true, "Auto"},
                                         SizeCase{"NoWidth", 0, 1080, true, "Auto"},
                                         SizeCase{"NegativeWidth", -1, 1080, true, "Auto"},
                                         SizeCase{"NegativeHeight", 1920, -1, true, "Auto"}),
                         [](const auto& test) { return test.param.name; });

TEST(ResolutionPreset, AnAutoSizeKeepsTheSideItHas)
{
    const auto preset = IVXResolutionPreset::MallocResolutionPreset(1920, 0);
    EXPECT_EQ(R"({"width":1920,"height":0})", Text(preset->JsonValue()));
    EXPECT_EQ(1920, preset->Clone()->Width());
}

TEST(ResolutionPreset, IsReadBackAsItWasWritten)
{
    const auto written = IVXResolutionPreset::MallocResolutionPreset(1280, 720)->JsonValue();
    EXPECT_EQ(R"({"width":1280,"height":720})", Text(written));
    EXPECT_EQ(Text(written), Text(IVXResolutionPreset::MallocResolutionPreset(written)->JsonValue()));
}

TEST(ResolutionPreset, AMissingSideReadsAsAuto)
{
    const auto preset = IVXResolutionPreset::MallocResolutionPreset(Json(R"({"width": 1280})"));
    EXPECT_EQ(1280, preset->Width());
    EXPECT_EQ(0, preset->Height());
    EXPECT_TRUE(preset->IsAutoValue());
}

TEST(ResolutionPreset, NumbersAreTakenAsTheyStandInTheDocument)
{
    const auto preset = IVXResolutionPreset::MallocResolutionPreset(Json(R"({"height": -7, "width": -5})"));
    EXPECT_EQ(-5, preset->Width());
    EXPECT_EQ(-7, preset->Height());
}

TEST(ResolutionPreset, AWrittenValueIsNewEachTime)
{
    const auto preset = IVXResolutionPreset::MallocResolutionPreset(1280, 720);
    preset->JsonValue()->SetValueInt("width", 1);
    EXPECT_EQ(R"({"width":1280,"height":720})", Text(preset->JsonValue()));
}

TEST(ResolutionPreset, ACloneIsAnotherObjectOfTheSameSize)
{
    const auto preset = IVXResolutionPreset::MallocResolutionPreset(1280, 720);
    const auto clone = preset->Clone();
    EXPECT_NE(preset, clone);
    EXPECT_EQ(Text(preset->JsonValue()), Text(clone->JsonValue()));
}

/// A resolution that is not the library's own: the interface alone tells and shows Auto.
class FixedWidth final : public IVXResolutionPreset
{
public:
    explicit FixedWidth(int width) : m_width(width) {}

    int Width() const override { return m_width; }
    int Height() const override { return 600; }
    std::shared_ptr<IVXResolutionPreset> Clone() const override { return {}; }
    std::shared_ptr<IVXJsonValue> JsonValue() const override { return {}; }

private:
    int m_width;
};

TEST(ResolutionPreset, TheInterfaceItselfKnowsAuto)
{
    EXPECT_EQ("800 x 600", FixedWidth(800).FormatResolution());
    EXPECT_EQ("Auto", FixedWidth(0).FormatResolution());
}

} // namespace

} // namespace Vexlor
