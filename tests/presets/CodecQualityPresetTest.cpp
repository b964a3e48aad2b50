#include "IVXCodecQualityPreset.h"

#include "tests/platform/ScriptedJson.h"
#include "tests/platform/Slots.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace Vexlor
{

namespace
{

using Quality = IVXCodecQualityPreset;

/// The four numbers of a setting, as its JSON value would hold them if it wrote them all.
std::string Numbers(const Quality& quality)
{
    const auto json = IVXJsonValue::JsonValueNull();
    json->SetValueInt("qualityValue", quality.QualityValue());
    json->SetValueInt("bitrate", quality.Bitrate());
    json->SetValueInt("minBitrate", quality.MinBitrate());
    json->SetValueInt("mode", quality.Mode());
    return Text(json);
}

std::shared_ptr<Quality> OfValue(int value)
{
    const auto json = Json(R"({"bitrate": -1})");
    json->SetValueInt("qualityValue", value);
    return Quality::MallocCodecQualityPreset(json);
}

TEST(CodecQualityPreset, OperationsKeepTheirSlots)
{
    EXPECT_EQ(EverySlot(17),
              SlotsOf(&Quality::QualityLevel, &Quality::QualityValue, &Quality::IsCustom, &Quality::SetMode,
                      &Quality::Mode, &Quality::Bitrate, &Quality::SetBitrate, &Quality::MaxBitrate,
                      &Quality::SetMaxBitrate, &Quality::MinBitrate, &Quality::SetMinBitrate,
                      &Quality::BitrateRange, &Quality::SetBitrateRange, &Quality::IsAutoValue,
                      &Quality::FormatQuality, &Quality::Clone, &Quality::JsonValue));
    EXPECT_FALSE(std::has_virtual_destructor_v<Quality>);
}

TEST(CodecQualityPreset, MadeOfNothingItIsAuto)
{
    const auto quality = Quality::MallocCodecQualityPreset();
    EXPECT_EQ(R"({"qualityValue":-1,"bitrate":-1,"minBitrate":0,"mode":0})", Numbers(*quality));
    EXPECT_EQ("Auto", quality->FormatQuality());
}

TEST(CodecQualityPreset, MadeOfALevelItIsThatGrade)
{
    const auto quality = Quality::MallocCodecQualityPreset(IVXCodecs::QualityLevelHigh);
    EXPECT_EQ(R"({"qualityValue":2,"bitrate":-1,"minBitrate":0,"mode":0})", Numbers(*quality));
    EXPECT_EQ("grade 2", quality->FormatQuality());
}

TEST(CodecQualityPreset, MadeOfABitrateItIsCustom)
{
    const auto quality = Quality::MallocCodecQualityPreset(5000);
    EXPECT_EQ(R"({"qualityValue":-1,"bitrate":5000,"minBitrate":5000,"mode":1})", Numbers(*quality));
    EXPECT_EQ("Custom", quality->FormatQuality());
}

TEST(CodecQualityPreset, ACustomSettingIsAutoTooByItsValue)
{
    const auto quality = Quality::MallocCodecQualityPreset(5000);
    EXPECT_TRUE(quality->IsAutoValue());
    EXPECT_TRUE(quality->IsCustom());
}

TEST(CodecQualityPreset, MadeOfTheBitrateMinusOneItIsNotCustom)
{
    const auto quality = Quality::MallocCodecQualityPreset(-1);
    EXPECT_EQ(R"({"qualityValue":-1,"bitrate":-1,"minBitrate":-1,"mode":1})", Numbers(*quality));
    EXPECT_EQ("Auto", quality->FormatQuality());
}

TEST(CodecQualityPreset, ReadsFourMembersFromADocument)
{
    const auto text = R"({"qualityValue":3,"bitrate":4000,"minBitrate":1000,"mode":2})";
    EXPECT_EQ(text, Numbers(*Quality::MallocCodecQualityPreset(Json(text))));
}

TEST(CodecQualityPreset, AnEmptyDocumentIsACustomBitrateOfZero)
{
    const auto quality = Quality::MallocCodecQualityPreset(Json("{}"));
    EXPECT_EQ(R"({"qualityValue":0,"bitrate":0,"minBitrate":0,"mode":0})", Numbers(*quality));
    EXPECT_TRUE(quality->IsCustom());
    EXPECT_FALSE(quality->IsAutoValue());
}

TEST(CodecQualityPreset, WritesItsValueAndBitrateOnly)
{
    EXPECT_EQ(R"({"qualityValue":-1,"bitrate":5000})",
              Text(Quality::MallocCodecQualityPreset(5000)->JsonValue()));
}

TEST(CodecQualityPreset, ReadBackItHasLostLowerBoundAndMode)
{
    const auto written = Quality::MallocCodecQualityPreset(5000)->JsonValue();
    EXPECT_EQ(R"({"qualityValue":-1,"bitrate":5000,"minBitrate":0,"mode":0})",
              Numbers(*Quality::MallocCodecQualityPreset(written)));
}

struct ValueCase
{
    const char* name;
    int value;
    IVXCodecs::QualityLevel level;
    const char* text;
};

class CodecQualityPresetValue : public testing::TestWithParam<ValueCase>
{
};

TEST_P(CodecQualityPresetValue, IsClampedIntoTheGradesOnlyAsALevel)
{
    const auto quality = OfValue(GetParam().value);
    EXPECT_EQ(GetParam().value, quality->QualityValue());
    EXPECT_EQ(GetParam().level, quality->QualityLevel());
    EXPECT_EQ(GetParam().text, quality->FormatQuality());
    EXPECT_EQ(GetParam().value < 0, quality->IsAutoValue());
}

INSTANTIATE_TEST_SUITE_P(Values, CodecQualityPresetValue,
                         testing::Values(ValueCase{"FarBelow", -100, IVXCodecs::QualityLevelLow, "Auto"},
                                         ValueCase{"Auto", -1, IVXCodecs::QualityLevelLow, "Auto"},
                                         ValueCase{"Low", 0, IVXCodecs::QualityLevelLow, "grade 0"},
                                         ValueCase{"Normal", 1, IVXCodecs::QualityLevelNormal, "grade 1"},
                                         ValueCase{"High", 2, IVXCodecs::QualityLevelHigh, "grade 2"},
                                         ValueCase{"Best", 3, IVXCodecs::QualityLevelBest, "grade 3"},
                                         ValueCase{"JustAbove", 4, IVXCodecs::QualityLevelBest, "grade 3"},
                                         ValueCase{"FarAbove", 7, IVXCodecs::QualityLevelBest, "grade 3"}),
                         [](const auto& test) { return test.param.name; });

TEST(CodecQualityPreset, TheUpperBoundIsTheBitrate)
{
    const auto quality = Quality::MallocCodecQualityPreset(5000);
    EXPECT_EQ(5000, quality->MaxBitrate());
    quality->SetMaxBitrate(6000);
    EXPECT_EQ(6000, quality->Bitrate());
    quality->SetBitrate(7000);
    EXPECT_EQ(7000, quality->MaxBitrate());
}

TEST(CodecQualityPreset, SettingTheBitrateLeavesTheOtherNumbers)
{
    const auto quality = Quality::MallocCodecQualityPreset(5000);
    quality->SetBitrate(100);
    EXPECT_EQ(R"({"qualityValue":-1,"bitrate":100,"minBitrate":5000,"mode":1})", Numbers(*quality));
}

TEST(CodecQualityPreset, ModeAndLowerBoundAreStoredUnchecked)
{
    const auto quality = Quality::MallocCodecQualityPreset();
    quality->SetMode(-4);
    quality->SetMinBitrate(-5);
    EXPECT_EQ(R"({"qualityValue":-1,"bitrate":-1,"minBitrate":-5,"mode":-4})", Numbers(*quality));
}

TEST(CodecQualityPreset, TheRangeIsLowerBoundAndBitrate)
{
    const auto quality = Quality::MallocCodecQualityPreset(5000);
    quality->SetMinBitrate(1000);
    EXPECT_EQ(std::pair(1000, 5000), quality->BitrateRange());
}

TEST(CodecQualityPreset, SettingTheRangeStoresItsSecondNumberAsTheLowerBound)
{
    const auto quality = Quality::MallocCodecQualityPreset(5000);
    quality->SetBitrateRange({100, 200});
    EXPECT_EQ(R"({"qualityValue":-1,"bitrate":5000,"minBitrate":200,"mode":1})", Numbers(*quality));
}

TEST(CodecQualityPreset, WithoutItsBitrateACustomSettingIsAutoAgain)
{
    const auto quality = Quality::MallocCodecQualityPreset(5000);
    quality->SetBitrate(-1);
    EXPECT_FALSE(quality->IsCustom());
    EXPECT_EQ("Auto", quality->FormatQuality());
}

TEST(CodecQualityPreset, WithoutItsBitrateACustomGradeIsThatGradeAgain)
{
    const auto quality = OfValue(2);
    quality->SetBitrate(5000);
    EXPECT_EQ("Custom", quality->FormatQuality());
    quality->SetBitrate(-1);
    EXPECT_EQ("grade 2", quality->FormatQuality());
}

TEST(CodecQualityPreset, ANegativeBitrateOtherThanMinusOneIsCustom)
{
    const auto quality = Quality::MallocCodecQualityPreset(-2);
    EXPECT_TRUE(quality->IsCustom());
    EXPECT_EQ("Custom", quality->FormatQuality());
}

TEST(CodecQualityPreset, ACloneHasAllFourNumbersAndIsIndependent)
{
    const auto text = R"({"qualityValue":3,"bitrate":4000,"minBitrate":1000,"mode":2})";
    const auto quality = Quality::MallocCodecQualityPreset(Json(text));
    const auto clone = quality->Clone();
    quality->SetBitrate(1);
    quality->SetMinBitrate(1);
    quality->SetMode(1);
    EXPECT_EQ(text, Numbers(*clone));
}

/// A setting that is not the library's own: the interface alone shows it, and can be copied and moved.
class FixedQuality final : public IVXCodecQualityPreset
{
public:
    IVXCodecs::QualityLevel QualityLevel() const override { return IVXCodecs::QualityLevelBest; }
    int QualityValue() const override { return m_value; }
    bool IsCustom() const override { return false; }
    void SetMode(int mode) override { m_value = mode; }
    int Mode() const override { return 0; }
    int Bitrate() const override { return 0; }
    void SetBitrate(int /*bitrate*/) override {}
    int MaxBitrate() const override { return 0; }
    void SetMaxBitrate(int /*bitrate*/) override {}
    int MinBitrate() const override { return 0; }
    void SetMinBitrate(int /*bitrate*/) override {}
    std::pair<int, int> BitrateRange() const override { return {}; }
    void SetBitrateRange(std::pair<int, int> /*range*/) override {}
    std::shared_ptr<IVXCodecQualityPreset> Clone() const override { return {}; }
    std::shared_ptr<IVXJsonValue> JsonValue() const override { return {}; }

private:
    int m_value = 3;
};

TEST(CodecQualityPreset, TheInterfaceItselfKnowsAutoAndShowsTheGrade)
{
    FixedQuality quality;
    EXPECT_EQ("grade 3", quality.FormatQuality());
    quality.SetMode(-1);
    EXPECT_EQ("Auto", quality.FormatQuality());
}

TEST(CodecQualityPreset, TheInterfaceCanBeCopiedAndMoved)
{
    EXPECT_TRUE(std::is_copy_constructible_v<FixedQuality>);
    EXPECT_TRUE(std::is_copy_assignable_v<FixedQuality>);
    EXPECT_TRUE(std::is_nothrow_move_constructible_v<FixedQuality>);
    EXPECT_TRUE(std::is_nothrow_move_assignable_v<FixedQuality>);
}

} // namespace

} // namespace Vexlor
