#include "IVXCodecPreset.h"

#include "tests/platform/Slots.h"

#include <array>
#include <gtest/gtest.h>
#include <type_traits>
#include <vector>

namespace Vexlor
{

namespace
{

using Codec = IVXCodecPreset;

struct SlotCase
{
    const char* name;
    int first;
    std::vector<int> slots;
};

class CodecPresetSlots : public testing::TestWithParam<SlotCase>
{
};

TEST_P(CodecPresetSlots, FollowOneAnotherFromTheFirst)
{
    auto expected = EverySlot(GetParam().slots.size());
    for (int& slot : expected)
        slot += GetParam().first;
    EXPECT_EQ(expected, GetParam().slots);
}

const std::array kSlots{
    SlotCase{"Own", 0,
             SlotsOf(&Codec::CodecID, &Codec::Name, &Codec::Description, &Codec::SetName,
                     &Codec::SetDescription, &Codec::Clone, &Codec::JsonValue)},
    SlotCase{"Resolutions", 7,
             SlotsOf(MutableForm(&Codec::ResolutionPresets), ConstForm(&Codec::ResolutionPresets),
                     &Codec::ResolutionPresetAt, &Codec::ResolutionPresetCount, &Codec::AddResolutionPreset,
                     &Codec::RemoveResolutionPreset, &Codec::ResetResolutionPresets,
                     &Codec::IndexForResolutionPreset, &Codec::SetIndexForResolutionPreset,
                     &Codec::InsertResolutionPresets, &Codec::MoveResolutionPreset)},
    SlotCase{"Framerates", 18,
             SlotsOf(MutableForm(&Codec::FrameratePresets), ConstForm(&Codec::FrameratePresets),
                     &Codec::FrameratePresetAt, &Codec::FrameratePresetCount, &Codec::AddFrameratePreset,
                     &Codec::RemoveFrameratePreset, &Codec::ResetFrameratePresets,
                     &Codec::IndexForFrameratePresets, &Codec::SetIndexForFrameratePresets,
                     &Codec::InsertFrameratePresets, &Codec::MoveFrameratePreset)},
    SlotCase{"Qualities", 29,
             SlotsOf(MutableForm(&Codec::CodecQualityPresets), ConstForm(&Codec::CodecQualityPresets),
                     ConstForm(&Codec::CodecQualityPresetAt), MutableForm(&Codec::CodecQualityPresetAt),
                     &Codec::CodecQualityPresetCount, &Codec::IndexForQualityPresets,
                     &Codec::SetIndexForQualityPresets)},
    SlotCase{"Samplerates", 36,
             SlotsOf(MutableForm(&Codec::SampleratePresets), ConstForm(&Codec::SampleratePresets),
                     &Codec::SampleratePresetAt, &Codec::SampleratePresetCount, &Codec::AddSampleratePreset,
                     &Codec::RemoveSampleratePreset, &Codec::ResetSampleratePresets,
                     &Codec::IndexForSampleratePresets, &Codec::SetIndexForSampleratePresets,
                     &Codec::InsertSampleratePresets, &Codec::MoveSampleratePreset)},
    SlotCase{"ChannelLayouts", 47,
             SlotsOf(MutableForm(&Codec::ChannelLayoutPresets), ConstForm(&Codec::ChannelLayoutPresets),
                     &Codec::ChannelLayoutPresetAt, &Codec::ChannelLayoutPresetCount,
                     &Codec::AddChannelLayoutPreset, &Codec::RemoveChannelLayoutPreset,
                     &Codec::ResetChannelLayoutPresets, &Codec::IndexForChannelLayoutPresets,
                     &Codec::SetIndexForChannelLayoutPresets, &Codec::InsertChannelLayoutPresets,
                     &Codec::MoveChannelLayoutPreset)},
    SlotCase{"Profiles", 58,
             SlotsOf(MutableForm(&Codec::ProfilePresets), ConstForm(&Codec::ProfilePresets),
                     &Codec::ProfilePresetAt, &Codec::ProfilePresetCount, &Codec::AddProfilePreset,
                     &Codec::RemoveProfilePreset, &Codec::ResetProfilePresets,
                     &Codec::IndexForProfilesPresets, &Codec::SetIndexForProfilesPresets,
                     &Codec::InsertProfilePresets, &Codec::MoveProfilePreset)},
    SlotCase{"Levels", 69,
             SlotsOf(MutableForm(&Codec::LevelPresets), ConstForm(&Codec::LevelPresets),
                     &Codec::LevelPresetAt, &Codec::LevelPresetCount, &Codec::AddLevelPreset,
                     &Codec::RemoveLevelPreset, &Codec::ResetLevelPresets, &Codec::IndexForLevelPresets,
                     &Codec::SetIndexForLevelPresets, &Codec::InsertLevelPresets, &Codec::MoveLevelPreset)},
    SlotCase{"FormatsAndAspect", 80,
             SlotsOf(&Codec::SampleFmtPresetAt, &Codec::SampleFmtPresets, &Codec::IndexForSampleFmts,
                     &Codec::SetIndexForSampleFmts, &Codec::CurrentSampleFmt,
                     MutableForm(&Codec::AspectPreset), ConstForm(&Codec::AspectPreset))},
};

INSTANTIATE_TEST_SUITE_P(Families, CodecPresetSlots, testing::ValuesIn(kSlots),
                         [](const auto& test) { return test.param.name; });

TEST(CodecPresetSlots, TheDestructorHasNone) { EXPECT_FALSE(std::has_virtual_destructor_v<IVXCodecPreset>); }

} // namespace

} // namespace Vexlor
