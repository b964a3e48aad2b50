#include "tests/format/FormatPresets.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"

#include "tests/platform/Slots.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace Vexlor
{

namespace
{

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

TEST_F(FormatPreset, OperationsHaveTheirSlots)
{
    using P = IVXFormatPreset;
    EXPECT_EQ(EverySlot(56),
              SlotsOf(&P::FormatName, &P::FormatHint, &P::SetFormatHint, &P::FaceID, &P::SetFaceID, &P::Name,
                      &P::SetName, &P::Description, &P::SetDescription, &P::Clone, &P::CopyFrom,
                      &P::JsonValue, MutableForm(&P::AudioCodecPresets), ConstForm(&P::AudioCodecPresets),
                      MutableForm(&P::VideoCodecPresets), ConstForm(&P::VideoCodecPresets),
                      MutableForm(&P::AudioCodecPreset), ConstForm(&P::AudioCodecPreset),
                      MutableForm(&P::AudioCodecPresetByCodecID), ConstForm(&P::AudioCodecPresetByCodecID),
                      MutableForm(&P::VideoCodecPreset), ConstForm(&P::VideoCodecPreset),
                      MutableForm(&P::VideoCodecPresetByCodecID), ConstForm(&P::VideoCodecPresetByCodecID),
                      &P::VideoCodecPresetCount, &P::AudioCodecPresetCount, &P::IndexForAudioCodecPresets,
                      &P::IndexForVideoCodecPresets, &P::SetIndexForAudioCodecPresets,
                      &P::SetIndexForVideoCodecPresets, &P::AddAudioCodecPreset, &P::AddVideoCodecPreset,
                      &P::RemoveAudioCodec, &P::RemoveVideoCodec, &P::RemoveAudioCodecPreset,
                      &P::RemoveVideoCodecPreset, &P::InsertAudioCodecPreset, &P::MoveAudioCodecPreset,
                      &P::InsertVideoCodecPreset, &P::MoveVideoCodecPreset, &P::MaxWidth, &P::SetMaxWidth,
                      &P::MaxHeight, &P::SetMaxHeight, &P::MinWidth, &P::SetMinWidth, &P::MinHeight,
                      &P::SetMinHeight, &P::MaxVideoBitrate, &P::SetMaxVideoBitrate, &P::MaxAudioBitrate,
                      &P::SetMaxAudioBitrate, &P::MinVideoBitrate, &P::SetMinVideoBitrate,
                      &P::MinAudioBitrate, &P::SetMinAudioBitrate));
}

// Fields.

TEST_F(FormatPreset, StoresTexts)
{
    const auto preset = Load("{}");
    const std::string bytes("a\0\xff\xc3", 4);
    preset->SetName(bytes);
    preset->SetDescription("description");
    preset->SetFormatHint("hint");
    EXPECT_EQ(bytes, preset->Name());
    EXPECT_EQ("description", preset->Description());
    EXPECT_EQ("hint", preset->FormatHint());
}

TEST_F(FormatPreset, StoresTheFace)
{
    const auto preset = Load("{}");
    preset->SetFaceID(kLowest);
    EXPECT_EQ(kLowest, preset->FaceID());
}

struct Limit
{
    const char* key;
    int (IVXFormatPreset::*get)() const;
    void (IVXFormatPreset::*set)(int);
};

class FormatPresetLimit : public testing::TestWithParam<Limit>
{
};

TEST_P(FormatPresetLimit, IsStoredUnchecked)
{
    const auto preset = IVXFormatPreset::MallocFormatPreset(Json("{}"));
    for (const int value : {kLowest, -1, 0, 1080, kHighest})
    {
        ((*preset).*GetParam().set)(value);
        EXPECT_EQ(value, ((*preset).*GetParam().get)());
    }
}

TEST_P(FormatPresetLimit, IsWrittenUnderItsKeyAlone)
{
    const auto preset = IVXFormatPreset::MallocFormatPreset(Json("{}"));
    ((*preset).*GetParam().set)(4711);
    std::string expected = kEmpty;
    const auto key = expected.find('"' + std::string(GetParam().key) + "\":");
    const auto value = expected.find(':', key) + 1;
    expected.replace(value, expected.find_first_of(",}", value) - value, "4711");
    EXPECT_EQ(expected, Text(preset->JsonValue()));
}

const std::vector<Limit> kLimits = {
    {"maxWidth", &IVXFormatPreset::MaxWidth, &IVXFormatPreset::SetMaxWidth},
    {"minWidth", &IVXFormatPreset::MinWidth, &IVXFormatPreset::SetMinWidth},
    {"maxHeight", &IVXFormatPreset::MaxHeight, &IVXFormatPreset::SetMaxHeight},
    {"minHeight", &IVXFormatPreset::MinHeight, &IVXFormatPreset::SetMinHeight},
    {"maxVideoBitrate", &IVXFormatPreset::MaxVideoBitrate, &IVXFormatPreset::SetMaxVideoBitrate},
    {"minVideoBitrate", &IVXFormatPreset::MinVideoBitrate, &IVXFormatPreset::SetMinVideoBitrate},
    {"maxAudioBitrate", &IVXFormatPreset::MaxAudioBitrate, &IVXFormatPreset::SetMaxAudioBitrate},
    {"minAudioBitrate", &IVXFormatPreset::MinAudioBitrate, &IVXFormatPreset::SetMinAudioBitrate},
};
INSTANTIATE_TEST_SUITE_P(Limits, FormatPresetLimit, testing::ValuesIn(kLimits),
                         [](const auto& test) { return std::string(test.param.key); });

// Copies.

class FormatPresetCopy : public FormatPreset
{
protected:
    FormatPresetCopy()
    {
        platform.Codec('V').sampleRates = {44100, 48000};
        source->SetName("name");
        source->SetDescription("description");
        source->SetFormatHint("hint");
        source->SetFaceID(5);
        source->SetMaxWidth(1920);
        source->SetMinAudioBitrate(64000);
    }

    /// Changes a codec preset of the copy, and the copy's own lists.
    static void Edit(IVXFormatPreset& copy)
    {
        copy.VideoCodecPreset(0)->SetDescription("edited");
        copy.VideoCodecPreset(0)->RemoveSampleratePreset(0);
        copy.AudioCodecPreset(0)->SetName("edited");
        copy.RemoveVideoCodecPreset(1);
        copy.SetName("edited");
    }

    std::shared_ptr<IVXFormatPreset> source = Load(
        R"({"formatName":"MP4","indexForVideoCodecPresets":-3,"videoCodecPresets":[{"codecID":86},{"codecID":87}],)"
        R"("indexForAudioCodecPresets":1,"audioCodecPresets":[{"name":"a"},{"codecID":66}]})");
};

TEST_F(FormatPresetCopy, CloneHoldsTheSame)
{
    EXPECT_EQ(Text(source->JsonValue()), Text(source->Clone()->JsonValue()));
}

TEST_F(FormatPresetCopy, CloneSharesNoCodecPreset)
{
    const auto before = Text(source->JsonValue());
    const auto clone = source->Clone();
    EXPECT_NE(source->VideoCodecPreset(0), clone->VideoCodecPreset(0));
    EXPECT_NE(source->AudioCodecPreset(1), clone->AudioCodecPreset(1));
    Edit(*clone);
    EXPECT_EQ(before, Text(source->JsonValue()));
}

TEST_F(FormatPresetCopy, CloneKeepsWhatADocumentDoesNot)
{
    source->VideoCodecPreset(0)->SetIndexForQualityPresets(5);
    source->VideoCodecPreset(0)->CurrentCodecQuality()->SetBitrate(777);
    const auto codec = source->Clone()->VideoCodecPreset(0);
    EXPECT_EQ(5, codec->IndexForQualityPresets());
    EXPECT_EQ(777, codec->CurrentCodecQuality()->Bitrate());
}

TEST_F(FormatPresetCopy, CopyFromTakesEverything)
{
    const auto target = Load(kFull);
    target->AddVideoCodecPreset('Z');
    target->CopyFrom(source);
    EXPECT_EQ(Text(source->JsonValue()), Text(target->JsonValue()));
}

TEST_F(FormatPresetCopy, CopyFromSharesNoCodecPreset)
{
    const auto before = Text(source->JsonValue());
    const auto target = Load("{}");
    target->CopyFrom(source);
    EXPECT_NE(source->VideoCodecPreset(0), target->VideoCodecPreset(0));
    Edit(*target);
    EXPECT_EQ(before, Text(source->JsonValue()));
}

TEST_F(FormatPresetCopy, CopyFromItselfChangesNothing)
{
    const auto before = Text(source->JsonValue());
    source->CopyFrom(source);
    EXPECT_EQ(before, Text(source->JsonValue()));
}

TEST_F(FormatPresetCopy, CopyFromNothingChangesNothing)
{
    const auto before = Text(source->JsonValue());
    source->CopyFrom({});
    EXPECT_EQ(before, Text(source->JsonValue()));
}

TEST_F(FormatPresetCopy, CodecPresetsOutliveTheirFormatPreset)
{
    const auto codec = source->VideoCodecPreset(1);
    source.reset();
    EXPECT_EQ('W', codec->CodecID());
}

} // namespace

} // namespace Vexlor
