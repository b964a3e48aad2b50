#pragma once

#include "IVXFormatPreset.h"

#include "IVXCodecPreset.h"
#include "IVXJsonValue.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

namespace Vexlor
{

/// A format preset that is not the library's own, to see which operations the library asks of one.
class FormatPresetMock : public IVXFormatPreset
{
public:
    using Preset = std::shared_ptr<IVXCodecPreset>;
    using ConstPreset = std::shared_ptr<const IVXCodecPreset>;

    MOCK_METHOD(std::string, FormatName, (), (const, override));
    MOCK_METHOD(std::string, FormatHint, (), (const, override));
    MOCK_METHOD(void, SetFormatHint, (const std::string&), (override));
    MOCK_METHOD(int, FaceID, (), (const, override));
    MOCK_METHOD(void, SetFaceID, (int), (override));
    MOCK_METHOD(std::string, Name, (), (const, override));
    MOCK_METHOD(void, SetName, (const std::string&), (override));
    MOCK_METHOD(std::string, Description, (), (const, override));
    MOCK_METHOD(void, SetDescription, (const std::string&), (override));
    MOCK_METHOD(std::shared_ptr<IVXFormatPreset>, Clone, (), (const, override));
    MOCK_METHOD(void, CopyFrom, (std::shared_ptr<const IVXFormatPreset>), (override));
    MOCK_METHOD(std::shared_ptr<IVXJsonValue>, JsonValue, (), (const, override));
    MOCK_METHOD(std::vector<Preset>, AudioCodecPresets, (), (override));
    MOCK_METHOD(std::vector<ConstPreset>, AudioCodecPresets, (), (const, override));
    MOCK_METHOD(std::vector<Preset>, VideoCodecPresets, (), (override));
    MOCK_METHOD(std::vector<ConstPreset>, VideoCodecPresets, (), (const, override));
    MOCK_METHOD(Preset, AudioCodecPreset, (int), (override));
    MOCK_METHOD(ConstPreset, AudioCodecPreset, (int), (const, override));
    MOCK_METHOD(Preset, AudioCodecPresetByCodecID, (int), (override));
    MOCK_METHOD(ConstPreset, AudioCodecPresetByCodecID, (int), (const, override));
    MOCK_METHOD(Preset, VideoCodecPreset, (int), (override));
    MOCK_METHOD(ConstPreset, VideoCodecPreset, (int), (const, override));
    MOCK_METHOD(Preset, VideoCodecPresetByCodecID, (int), (override));
    MOCK_METHOD(ConstPreset, VideoCodecPresetByCodecID, (int), (const, override));
    MOCK_METHOD(int, VideoCodecPresetCount, (), (const, override));
    MOCK_METHOD(int, AudioCodecPresetCount, (), (const, override));
    MOCK_METHOD(int, IndexForAudioCodecPresets, (), (const, override));
    MOCK_METHOD(int, IndexForVideoCodecPresets, (), (const, override));
    MOCK_METHOD(int, SetIndexForAudioCodecPresets, (int), (override));
    MOCK_METHOD(int, SetIndexForVideoCodecPresets, (int), (override));
    MOCK_METHOD(Preset, AddAudioCodecPreset, (int), (override));
    MOCK_METHOD(Preset, AddVideoCodecPreset, (int), (override));
    MOCK_METHOD(void, RemoveAudioCodec, (int), (override));
    MOCK_METHOD(void, RemoveVideoCodec, (int), (override));
    MOCK_METHOD(void, RemoveAudioCodecPreset, (int), (override));
    MOCK_METHOD(void, RemoveVideoCodecPreset, (int), (override));
    MOCK_METHOD(void, InsertAudioCodecPreset, (Preset, int), (override));
    MOCK_METHOD(void, MoveAudioCodecPreset, (int, int), (override));
    MOCK_METHOD(void, InsertVideoCodecPreset, (Preset, int), (override));
    MOCK_METHOD(void, MoveVideoCodecPreset, (int, int), (override));
    MOCK_METHOD(int, MaxWidth, (), (const, override));
    MOCK_METHOD(void, SetMaxWidth, (int), (override));
    MOCK_METHOD(int, MaxHeight, (), (const, override));
    MOCK_METHOD(void, SetMaxHeight, (int), (override));
    MOCK_METHOD(int, MinWidth, (), (const, override));
    MOCK_METHOD(void, SetMinWidth, (int), (override));
    MOCK_METHOD(int, MinHeight, (), (const, override));
    MOCK_METHOD(void, SetMinHeight, (int), (override));
    MOCK_METHOD(int, MaxVideoBitrate, (), (const, override));
    MOCK_METHOD(void, SetMaxVideoBitrate, (int), (override));
    MOCK_METHOD(int, MaxAudioBitrate, (), (const, override));
    MOCK_METHOD(void, SetMaxAudioBitrate, (int), (override));
    MOCK_METHOD(int, MinVideoBitrate, (), (const, override));
    MOCK_METHOD(void, SetMinVideoBitrate, (int), (override));
    MOCK_METHOD(int, MinAudioBitrate, (), (const, override));
    MOCK_METHOD(void, SetMinAudioBitrate, (int), (override));
};

} // namespace Vexlor
