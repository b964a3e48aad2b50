#include "IVXSampleAspectPreset.h"

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

using Aspect = IVXSampleAspectPreset;

Aspect::AspectPresetType Type(int number) { return static_cast<Aspect::AspectPresetType>(number); }

std::shared_ptr<Aspect> Custom(int num, int den)
{
    return Aspect::MallocSampleAspectPreset(IVXRational::MallocRational(num, den));
}

TEST(SampleAspectPreset, OperationsKeepTheirSlots)
{
    using SetNumbers = void (Aspect::*)(int, int);
    using SetRational = void (Aspect::*)(const std::shared_ptr<const IVXRational>&);
    EXPECT_EQ(EverySlot(8),
              SlotsOf(ConstForm(&Aspect::Ratio), MutableForm(&Aspect::Ratio),
                      static_cast<SetNumbers>(&Aspect::SetRatio), static_cast<SetRational>(&Aspect::SetRatio),
                      &Aspect::Clone, &Aspect::JsonValue, &Aspect::SetAspectType, &Aspect::AspectType));
    EXPECT_FALSE(std::has_virtual_destructor_v<Aspect>);
}

struct TypeCase
{
    int type;
    const char* name;
    const char* ratio; ///< of the scripted platform: kind, norm and shape make the numerator
};

class SampleAspectPresetType : public testing::TestWithParam<TypeCase>
{
};

TEST_P(SampleAspectPresetType, HasItsNameAndRatio)
{
    EXPECT_EQ(GetParam().name, Aspect::AspectPresetName(Type(GetParam().type)));
    EXPECT_EQ(GetParam().ratio, Text(Aspect::AspectPresetRatio(Type(GetParam().type))));
}

INSTANTIATE_TEST_SUITE_P(
    Types, SampleAspectPresetType,
    testing::Values(
        TypeCase{0, "Default", "1/1"}, TypeCase{1, "NTSC DVD 16:9", "110/100"},
        TypeCase{2, "PAL DVD 16:9", "100/100"}, TypeCase{3, "NTSC DVD 4:3", "111/100"},
        TypeCase{4, "PAL DVD 4:3", "101/100"}, TypeCase{5, "DVPRO HD1080i NTSC 16:9", "210/100"},
        TypeCase{6, "DVPRO HD1080i PAL 16:9", "200/100"}, TypeCase{7, "DVPRO HD1080i NTSC 4:3", "211/100"},
        TypeCase{8, "DVPRO HD1080i PAL 4:3", "201/100"}, TypeCase{9, "DVPRO HD720p NTSC 16:9", "310/100"},
        TypeCase{10, "DVPRO HD720p PAL 16:9", "300/100"}, TypeCase{11, "DVPRO HD720p NTSC 4:3", "311/100"},
        TypeCase{12, "DVPRO HD720p PAL 4:3", "301/100"}, TypeCase{13, "Custom", "0/0"},
        TypeCase{300, "VCD NTSC 4:3", "0/0"}, TypeCase{301, "VCD PAL 4:3", "0/0"},
        TypeCase{302, "SVCD NTSC 4:3", "0/0"}, TypeCase{303, "SVCD PAL 4:3", "0/0"},
        TypeCase{304, "Custom", "0/0"}, TypeCase{299, "Custom", "0/0"}, TypeCase{14, "Custom", "0/0"},
        TypeCase{-1, "Custom", "0/0"}),
    [](const auto& test)
    { return test.param.type < 0 ? std::string("Negative") : "Type" + std::to_string(test.param.type); });

TEST(SampleAspectPreset, TheEnumeratorsHaveTheNumbersOfTheDocuments)
{
    EXPECT_EQ(0, Aspect::AspectDefault);
    EXPECT_EQ(13, Aspect::AspectCustom);
    EXPECT_EQ(300, Aspect::AspectNTSCVCD4x3);
    EXPECT_EQ(303, Aspect::AspectPALSVCD4x3);
}

TEST(SampleAspectPreset, ATypesRatioIsANewObjectEachTime)
{
    EXPECT_NE(Aspect::AspectPresetRatio(Type(0)), Aspect::AspectPresetRatio(Type(0)));
    EXPECT_NE(Aspect::AspectPresetRatio(Type(1)), Aspect::AspectPresetRatio(Type(1)));
}

TEST(SampleAspectPreset, MadeOfATypeItIsDefaultWhateverTheType)
{
    const auto preset = Aspect::MallocSampleAspectPreset(Type(2));
    EXPECT_EQ("Default", preset->AspectName());
    EXPECT_EQ(Type(0), preset->AspectType());
    EXPECT_EQ(R"({"num":0,"den":0,"type":0})", Text(preset->JsonValue()));
}

TEST(SampleAspectPreset, MadeOfARatioItIsCustomAndHoldsACopy)
{
    const auto ratio = IVXRational::MallocRational(8, 9);
    const auto preset = Aspect::MallocSampleAspectPreset(std::shared_ptr<const IVXRational>(ratio));
    EXPECT_EQ(Type(13), preset->AspectType());
    EXPECT_EQ("8/9", Text(preset->Ratio()));
    EXPECT_NE(ratio, preset->Ratio());
}

TEST(SampleAspectPreset, MadeOfAnEmptyRatioItHoldsTheDefaultRational)
{
    const auto preset = Aspect::MallocSampleAspectPreset(std::shared_ptr<const IVXRational>());
    EXPECT_EQ(R"({"num":0,"den":0,"type":13})", Text(preset->JsonValue()));
}

TEST(SampleAspectPreset, ACustomPresetHandsOutTheStoredRatioItself)
{
    const auto preset = Custom(8, 9);
    EXPECT_EQ(preset->Ratio(), preset->Ratio());
    EXPECT_EQ(preset->Ratio(), std::as_const(*preset).Ratio());
}

TEST(SampleAspectPreset, AnyOtherPresetHandsOutANewRatioOfItsType)
{
    const auto preset = Custom(8, 9);
    preset->SetAspectType(Type(1));
    EXPECT_EQ("110/100", Text(preset->Ratio()));
    EXPECT_EQ("110/100", Text(std::as_const(*preset).Ratio()));
    EXPECT_NE(preset->Ratio(), preset->Ratio());
}

TEST(SampleAspectPreset, AStoredRatioWaitsForTheCustomType)
{
    const auto preset = Aspect::MallocSampleAspectPreset(Type(0));
    preset->SetRatio(8, 9);
    EXPECT_EQ(Type(0), preset->AspectType());
    EXPECT_EQ("1/1", Text(preset->Ratio()));
    preset->SetAspectType(Type(13));
    EXPECT_EQ("8/9", Text(preset->Ratio()));
}

TEST(SampleAspectPreset, SetRatioCopiesTheRational)
{
    const auto preset = Custom(1, 1);
    const std::shared_ptr<const IVXRational> ratio = IVXRational::MallocRational(8, 9);
    preset->SetRatio(ratio);
    EXPECT_EQ("8/9", Text(preset->Ratio()));
    EXPECT_NE(ratio, preset->Ratio());
}

TEST(SampleAspectPreset, SetRatioOfARationalKeepsTheType)
{
    const auto preset = Aspect::MallocSampleAspectPreset(Type(0));
    preset->SetRatio(std::shared_ptr<const IVXRational>(IVXRational::MallocRational(8, 9)));
    EXPECT_EQ(R"({"num":8,"den":9,"type":0})", Text(preset->JsonValue()));
}

TEST(SampleAspectPreset, AnEmptyRatioChangesNothing)
{
    const auto preset = Custom(8, 9);
    preset->SetRatio(std::shared_ptr<const IVXRational>());
    EXPECT_EQ("8/9", Text(preset->Ratio()));
}

TEST(SampleAspectPreset, AnUnknownTypeIsKept)
{
    const auto preset = Custom(8, 9);
    preset->SetAspectType(Type(304));
    EXPECT_EQ(Type(304), preset->AspectType());
    EXPECT_EQ("Custom", preset->AspectName());
    EXPECT_EQ("0/0", Text(preset->Ratio()));
}

TEST(SampleAspectPreset, WritesTheStoredRatioNotTheOneInEffect)
{
    const auto preset = Custom(8, 9);
    preset->SetAspectType(Type(1));
    EXPECT_EQ(R"({"num":8,"den":9,"type":1})", Text(preset->JsonValue()));
}

TEST(SampleAspectPreset, IsReadBackAsItWasWritten)
{
    const auto text = R"({"num":8,"den":9,"type":303})";
    EXPECT_EQ(text, Text(Aspect::MallocSampleAspectPreset(Json(text))->JsonValue()));
}

TEST(SampleAspectPreset, MissingMembersReadAsZero)
{
    const auto preset = Aspect::MallocSampleAspectPreset(Json("{}"));
    EXPECT_EQ(R"({"num":0,"den":0,"type":0})", Text(preset->JsonValue()));
    EXPECT_EQ("1/1", Text(preset->Ratio()));
}

TEST(SampleAspectPreset, ACloneHasTheSameTypeAndItsOwnStoredRatio)
{
    const auto preset = Custom(8, 9);
    const auto clone = preset->Clone();
    EXPECT_NE(preset, clone);
    EXPECT_EQ(Text(preset->JsonValue()), Text(clone->JsonValue()));
    EXPECT_NE(preset->Ratio(), clone->Ratio());
}

TEST(SampleAspectPreset, ACloneKeepsAStoredRatioThatIsNotInEffect)
{
    const auto preset = Custom(8, 9);
    preset->SetAspectType(Type(1));
    EXPECT_EQ(R"({"num":8,"den":9,"type":1})", Text(preset->Clone()->JsonValue()));
}

} // namespace

} // namespace Vexlor
