#include "IVXProfilePreset.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/Slots.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace Vexlor
{

namespace
{

TEST(ProfilePreset, OperationsKeepTheirSlots)
{
    EXPECT_EQ(EverySlot(4), SlotsOf(&IVXProfilePreset::Profile, &IVXProfilePreset::Name,
                                    &IVXProfilePreset::Clone, &IVXProfilePreset::JsonValue));
    EXPECT_FALSE(std::has_virtual_destructor_v<IVXProfilePreset>);
}

TEST(ProfilePreset, MadeOfNothingItIsNumberZeroWithoutAName)
{
    const auto preset = IVXProfilePreset::MallocProfilePreset();
    EXPECT_EQ(0, preset->Profile());
    EXPECT_EQ("", preset->Name());
}

TEST(ProfilePreset, HoldsItsNumberAndName)
{
    const auto preset = IVXProfilePreset::MallocProfilePreset(41, "4.1");
    EXPECT_EQ(41, preset->Profile());
    EXPECT_EQ("4.1", preset->Name());
}

TEST(ProfilePreset, IsReadBackAsItWasWritten)
{
    const auto written = IVXProfilePreset::MallocProfilePreset(41, "4.1")->JsonValue();
    EXPECT_EQ(R"({"profile":41,"name":"4.1"})", Text(written));
    EXPECT_EQ(Text(written), Text(IVXProfilePreset::MallocProfilePreset(written)->JsonValue()));
}

TEST(ProfilePreset, AMissingNameReadsAsEmpty)
{
    const auto preset = IVXProfilePreset::MallocProfilePreset(Json(R"({"profile": 41})"));
    EXPECT_EQ(41, preset->Profile());
    EXPECT_EQ("", preset->Name());
}

TEST(ProfilePreset, AMissingNumberReadsAsZero)
{
    const auto preset = IVXProfilePreset::MallocProfilePreset(Json(R"({"name": "4.1"})"));
    EXPECT_EQ(0, preset->Profile());
    EXPECT_EQ("4.1", preset->Name());
}

TEST(ProfilePreset, ACloneIsAnotherObjectOfTheSameNumberAndName)
{
    const auto preset = IVXProfilePreset::MallocProfilePreset(41, "4.1");
    const auto clone = preset->Clone();
    EXPECT_NE(preset, clone);
    EXPECT_EQ(Text(preset->JsonValue()), Text(clone->JsonValue()));
}

} // namespace

} // namespace Vexlor
