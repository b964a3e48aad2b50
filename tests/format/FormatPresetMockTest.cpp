#include "tests/format/FormatPresetMock.h"

#include "tests/format/CodecPresetSide.h"
#include "tests/platform/ScriptedPlatform.h"

namespace Vexlor
{

namespace
{

using testing::Expectation;
using testing::ExpectationSet;
using testing::NiceMock;
using testing::Return;
using Mock = NiceMock<FormatPresetMock>;

TEST(FormatPresetOperations, CurrentAudioCodecAsksTheVirtualOperations)
{
    Mock preset;
    const auto codec = IVXCodecPreset::MallocCodecPreset('A');
    EXPECT_CALL(preset, IndexForAudioCodecPresets()).WillRepeatedly(Return(4));
    EXPECT_CALL(preset, AudioCodecPresetCount()).WillRepeatedly(Return(5));
    EXPECT_CALL(preset, AudioCodecPreset(4)).WillOnce(Return(codec));
    EXPECT_EQ(codec, preset.CurrentAudioCodec());
}

TEST(FormatPresetOperations, CurrentVideoCodecAsksTheVirtualOperations)
{
    Mock preset;
    const auto codec = IVXCodecPreset::MallocCodecPreset('V');
    EXPECT_CALL(preset, IndexForVideoCodecPresets()).WillRepeatedly(Return(0));
    EXPECT_CALL(preset, VideoCodecPresetCount()).WillRepeatedly(Return(1));
    EXPECT_CALL(preset, VideoCodecPreset(0)).WillOnce(Return(codec));
    EXPECT_EQ(codec, preset.CurrentVideoCodec());
}

TEST(FormatPresetOperations, CurrentCodecsAskTheConstFormsOfAConstPreset)
{
    Mock preset;
    const FormatPresetMock& constPreset = preset;
    const auto codec = IVXCodecPreset::MallocCodecPreset('V');
    ON_CALL(preset, AudioCodecPresetCount()).WillByDefault(Return(1));
    ON_CALL(preset, VideoCodecPresetCount()).WillByDefault(Return(1));
    EXPECT_CALL(constPreset, AudioCodecPreset(0)).WillOnce(Return(codec));
    EXPECT_CALL(constPreset, VideoCodecPreset(0)).WillOnce(Return(codec));
    EXPECT_EQ(codec, constPreset.CurrentAudioCodec());
    EXPECT_EQ(codec, constPreset.CurrentVideoCodec());
}

class CurrentCodecIndex : public testing::TestWithParam<int>
{
protected:
    CurrentCodecIndex()
    {
        ON_CALL(preset, IndexForAudioCodecPresets()).WillByDefault(Return(GetParam()));
        ON_CALL(preset, IndexForVideoCodecPresets()).WillByDefault(Return(GetParam()));
        ON_CALL(preset, AudioCodecPresetCount()).WillByDefault(Return(5));
        ON_CALL(preset, VideoCodecPresetCount()).WillByDefault(Return(5));
    }

    Mock preset;
};

TEST_P(CurrentCodecIndex, OutsideTheListAsksForNoEntry)
{
    EXPECT_CALL(preset, AudioCodecPreset(testing::_)).Times(0);
    EXPECT_CALL(preset, VideoCodecPreset(testing::_)).Times(0);
    EXPECT_EQ(nullptr, preset.CurrentAudioCodec());
    EXPECT_EQ(nullptr, preset.CurrentVideoCodec());
}

TEST_P(CurrentCodecIndex, OutsideTheListAsksForNoEntryReadOnly)
{
    const FormatPresetMock& constPreset = preset;
    EXPECT_CALL(constPreset, AudioCodecPreset(testing::_)).Times(0);
    EXPECT_CALL(constPreset, VideoCodecPreset(testing::_)).Times(0);
    EXPECT_EQ(nullptr, constPreset.CurrentAudioCodec());
    EXPECT_EQ(nullptr, constPreset.CurrentVideoCodec());
}

INSTANTIATE_TEST_SUITE_P(Outside, CurrentCodecIndex, testing::Values(-1, -3, 5, 6));

TEST(FormatPresetOperations, GetFormatAsksForTheName)
{
    ScriptedPlatform platform;
    Mock preset;
    EXPECT_CALL(preset, FormatName()).WillOnce(Return("MKV"));
    EXPECT_NE(nullptr, preset.GetFormat());
    EXPECT_EQ("MallocFormat(\"MKV\", \"\")\n", platform.CallsText());
}

class CopyFromMock : public testing::Test
{
protected:
    ScriptedPlatform platform;
    std::shared_ptr<IVXFormatPreset> preset = IVXFormatPreset::MallocFormatPreset(Json("{}"));
    std::shared_ptr<Mock> other = std::make_shared<Mock>();
};

TEST_F(CopyFromMock, AsksTheGettersInOrder)
{
    const Expectation name = EXPECT_CALL(*other, Name());
    const Expectation description = EXPECT_CALL(*other, Description()).After(name);
    const Expectation formatName = EXPECT_CALL(*other, FormatName()).After(description);
    const Expectation hint = EXPECT_CALL(*other, FormatHint()).After(formatName);
    const Expectation face = EXPECT_CALL(*other, FaceID()).After(hint);
    ExpectationSet bitrates = EXPECT_CALL(*other, MaxVideoBitrate()).After(face);
    bitrates += EXPECT_CALL(*other, MinVideoBitrate()).After(face);
    bitrates += EXPECT_CALL(*other, MaxAudioBitrate()).After(face);
    bitrates += EXPECT_CALL(*other, MinAudioBitrate()).After(face);
    ExpectationSet sizes = EXPECT_CALL(*other, MaxWidth()).After(bitrates);
    sizes += EXPECT_CALL(*other, MinWidth()).After(bitrates);
    sizes += EXPECT_CALL(*other, MaxHeight()).After(bitrates);
    sizes += EXPECT_CALL(*other, MinHeight()).After(bitrates);
    const Expectation video = EXPECT_CALL(*other, IndexForVideoCodecPresets()).After(sizes);
    EXPECT_CALL(*other, IndexForAudioCodecPresets()).After(video);
    preset->CopyFrom(other);
}

TEST_F(CopyFromMock, TakesTheIndicesWithoutClamping)
{
    ON_CALL(*other, IndexForVideoCodecPresets()).WillByDefault(Return(7));
    ON_CALL(*other, IndexForAudioCodecPresets()).WillByDefault(Return(-7));
    preset->CopyFrom(other);
    EXPECT_EQ(7, preset->IndexForVideoCodecPresets());
    EXPECT_EQ(-7, preset->IndexForAudioCodecPresets());
    EXPECT_EQ(nullptr, preset->CurrentVideoCodec());
}

TEST_F(CopyFromMock, AnIndexBeyondTheListIsClampedByTheNextRemoval)
{
    ON_CALL(*other, IndexForVideoCodecPresets()).WillByDefault(Return(7));
    preset->CopyFrom(other);
    preset->AddVideoCodecPreset('V');
    ASSERT_EQ(7, preset->IndexForVideoCodecPresets());
    preset->RemoveVideoCodec('Z');
    EXPECT_EQ(0, preset->IndexForVideoCodecPresets());
}

} // namespace

} // namespace Vexlor
