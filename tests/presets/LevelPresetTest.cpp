#include "IVXLevelPreset.h"

#include "IVXCodecs.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/Slots.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace Vexlor
{

namespace
{

TEST(LevelPreset, OperationsKeepTheirSlots)
{
    EXPECT_EQ(EverySlot(4), SlotsOf(&IVXLevelPreset::Level, &IVXLevelPreset::Name, &IVXLevelPreset::Clone,
                                    &IVXLevelPreset::JsonValue));
    EXPECT_FALSE(std::has_virtual_destructor_v<IVXLevelPreset>);
}

TEST(LevelPreset, MadeOfNothingItIsTheUnknownLevelWithoutAName)
{
    const auto preset = IVXLevelPreset::MallocLevelPreset();
    EXPECT_EQ(int{IVXCodecs::VXLevelUnknown}, preset->Level());
    EXPECT_EQ("", preset->Name());
}

TEST(LevelPreset, HoldsItsNumberAndName)
{
    const auto preset = IVXLevelPreset::MallocLevelPreset(41, "4.1");
    EXPECT_EQ(41, preset->Level());
    EXPECT_EQ("4.1", preset->Name());
}

TEST(LevelPreset, IsReadBackAsItWasWritten)
{
    const auto written = IVXLevelPreset::MallocLevelPreset(41, "4.1")->JsonValue();
    EXPECT_EQ(R"({"level":41,"name":"4.1"})", Text(written));
    EXPECT_EQ(Text(written), Text(IVXLevelPreset::MallocLevelPreset(written)->JsonValue()));
}

TEST(LevelPreset, AMissingNameReadsAsEmpty)
{
    const auto preset = IVXLevelPreset::MallocLevelPreset(Json(R"({"level": 41})"));
    EXPECT_EQ(41, preset->Level());
    EXPECT_EQ("", preset->Name());
}

TEST(LevelPreset, AMissingNumberReadsAsZero)
{
    const auto preset = IVXLevelPreset::MallocLevelPreset(Json(R"({"name": "4.1"})"));
    EXPECT_EQ(0, preset->Level());
    EXPECT_EQ("4.1", preset->Name());
}

TEST(LevelPreset, ACloneIsAnotherObjectOfTheSameNumberAndName)
{
    const auto preset = IVXLevelPreset::MallocLevelPreset(41, "4.1");
    const auto clone = preset->Clone();
    EXPECT_NE(preset, clone);
    EXPECT_EQ(Text(preset->JsonValue()), Text(clone->JsonValue()));
}

} // namespace

} // namespace Vexlor
