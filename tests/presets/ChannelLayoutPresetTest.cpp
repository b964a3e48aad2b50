#include "IVXChannelLayoutPreset.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/Slots.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace Vexlor
{

namespace
{

constexpr std::uint64_t kStereo = 0x3;
constexpr std::uint64_t kAboveInt = std::uint64_t{1} << 40U;
constexpr std::uint64_t kHighestBit = std::uint64_t{1} << 63U;

TEST(ChannelLayoutPreset, OperationsKeepTheirSlots)
{
    EXPECT_EQ(EverySlot(4), SlotsOf(&IVXChannelLayoutPreset::Layout, &IVXChannelLayoutPreset::FormatLayout,
                                    &IVXChannelLayoutPreset::Clone, &IVXChannelLayoutPreset::JsonValue));
    EXPECT_FALSE(std::has_virtual_destructor_v<IVXChannelLayoutPreset>);
}

TEST(ChannelLayoutPreset, MadeOfNothingItIsAuto)
{
    const auto preset = IVXChannelLayoutPreset::MallocChannelLayoutPreset();
    EXPECT_EQ(0U, preset->Layout());
    EXPECT_TRUE(preset->IsAutoValue());
    EXPECT_EQ("Auto", preset->FormatLayout());
}

TEST(ChannelLayoutPreset, AMaskOfZeroIsAuto)
{
    const auto preset = IVXChannelLayoutPreset::MallocChannelLayoutPreset(std::uint64_t{0});
    EXPECT_TRUE(preset->IsAutoValue());
    EXPECT_EQ("Auto", preset->FormatLayout());
}

TEST(ChannelLayoutPreset, AnyOtherMaskIsShownByTheCodecLibrary)
{
    const auto preset = IVXChannelLayoutPreset::MallocChannelLayoutPreset(kStereo);
    EXPECT_FALSE(preset->IsAutoValue());
    EXPECT_EQ("layout 3", preset->FormatLayout());
}

TEST(ChannelLayoutPreset, TheHighestBitAloneIsNotAuto)
{
    const auto preset = IVXChannelLayoutPreset::MallocChannelLayoutPreset(kHighestBit);
    EXPECT_FALSE(preset->IsAutoValue());
    EXPECT_EQ("layout 9223372036854775808", preset->FormatLayout());
}

TEST(ChannelLayoutPreset, TheLowestBitAloneIsNotAuto)
{
    EXPECT_FALSE(IVXChannelLayoutPreset::MallocChannelLayoutPreset(std::uint64_t{1})->IsAutoValue());
}

class ChannelLayoutPresetMask : public testing::TestWithParam<std::uint64_t>
{
};

TEST_P(ChannelLayoutPresetMask, IsReadBackInAllItsBits)
{
    const auto written = IVXChannelLayoutPreset::MallocChannelLayoutPreset(GetParam())->JsonValue();
    EXPECT_EQ(GetParam(), IVXChannelLayoutPreset::MallocChannelLayoutPreset(written)->Layout());
}

INSTANTIATE_TEST_SUITE_P(Masks, ChannelLayoutPresetMask,
                         testing::Values(0, kStereo, kAboveInt, kHighestBit, ~std::uint64_t{0}));

TEST(ChannelLayoutPreset, IsWrittenAsA64BitInteger)
{
    EXPECT_EQ(R"({"chLayout":1099511627776})",
              Text(IVXChannelLayoutPreset::MallocChannelLayoutPreset(kAboveInt)->JsonValue()));
}

TEST(ChannelLayoutPreset, AnUnsignedNumberInADocumentIsTakenBitForBit)
{
    const auto json = Json(R"({"chLayout": 9223372036854775808})");
    EXPECT_EQ(kHighestBit, IVXChannelLayoutPreset::MallocChannelLayoutPreset(json)->Layout());
}

TEST(ChannelLayoutPreset, AMissingMemberReadsAsAuto)
{
    EXPECT_TRUE(IVXChannelLayoutPreset::MallocChannelLayoutPreset(Json("{}"))->IsAutoValue());
}

TEST(ChannelLayoutPreset, ACloneIsAnotherObjectOfTheSameMask)
{
    const auto preset = IVXChannelLayoutPreset::MallocChannelLayoutPreset(kAboveInt);
    const auto clone = preset->Clone();
    EXPECT_NE(preset, clone);
    EXPECT_EQ(kAboveInt, clone->Layout());
}

} // namespace

} // namespace Vexlor
