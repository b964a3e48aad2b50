#include "PresetPaneFixture.h"

#include "apps/studio/preset/BitrateBox.h"

#include "IVXCodecParameter.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFormatParameter.h"
#include "IVXRational.h"
#include "IVXSampleAspectPreset.h"

#include <QLocale>

namespace Vexlor::Studio
{

namespace
{

class PresetNumbersTest : public PresetPaneTest
{
protected:
    /// The preset with bounds, and nothing to take back.
    void Bound(void (IVXFormatPreset::*set)(int), int bound)
    {
        document.EditPreset(preset, "Prepare", [=](IVXFormatPreset& changed) { (changed.*set)(bound); });
        document.Undo().clear();
    }
};

TEST_F(PresetNumbersTest, ShowsBoundsWithTheirUnits)
{
    Bound(&IVXFormatPreset::SetMaxWidth, 1280);
    Bound(&IVXFormatPreset::SetMaxVideoBitrate, 8'000'000);
    Bound(&IVXFormatPreset::SetMaxAudioBitrate, 192'000);
    EXPECT_EQ("1280 px", Number("largest width").text());
    EXPECT_EQ("None", Number("largest height").text());
    EXPECT_EQ("8 Mb/s", Number("highest video bitrate").text());
    EXPECT_EQ("None", Number("lowest video bitrate").text());
    EXPECT_EQ("192 kb/s", Number("highest audio bitrate", 1).text());
}

TEST_F(PresetNumbersTest, TypingABoundIsOneStep)
{
    auto& width = Number("largest width");
    Type(width, "640");
    EXPECT_EQ(640, preset->MaxWidth());
    EXPECT_EQ(1, document.Undo().count());
    EXPECT_EQ("Change largest width", document.Undo().undoText());
    document.Undo().undo();
    EXPECT_EQ(0, preset->MaxWidth());
    EXPECT_EQ("None", width.text());
}

struct BoundCase
{
    const char* name;
    const char* noun;
    int tab;
    int (IVXFormatPreset::*get)() const;
};

class EveryBound : public PresetNumbersTest, public testing::WithParamInterface<BoundCase>
{
};

TEST_P(EveryBound, IsStoredInItsPlace)
{
    auto& box = Number(GetParam().noun, GetParam().tab);
    const int before = box.value();
    QTest::keyClick(&box, Qt::Key_Up);
    EXPECT_GT(box.value(), before);
    EXPECT_EQ(box.value(), ((*preset).*GetParam().get)());
}

using Preset = IVXFormatPreset;
constexpr BoundCase kBounds[] = {
    {"MaxWidth", "largest width", 0, &Preset::MaxWidth},
    {"MaxHeight", "largest height", 0, &Preset::MaxHeight},
    {"MinWidth", "smallest width", 0, &Preset::MinWidth},
    {"MinHeight", "smallest height", 0, &Preset::MinHeight},
    {"MaxVideoBitrate", "highest video bitrate", 0, &Preset::MaxVideoBitrate},
    {"MinVideoBitrate", "lowest video bitrate", 0, &Preset::MinVideoBitrate},
    {"MaxAudioBitrate", "highest audio bitrate", 1, &Preset::MaxAudioBitrate},
    {"MinAudioBitrate", "lowest audio bitrate", 1, &Preset::MinAudioBitrate},
};
INSTANTIATE_TEST_SUITE_P(Bounds, EveryBound, testing::ValuesIn(kBounds),
                         [](const auto& test) { return test.param.name; });

TEST_F(PresetNumbersTest, AnEmptiedBitrateIsNone)
{
    Bound(&IVXFormatPreset::SetMaxVideoBitrate, 8'000'000);
    auto& bitrate = Number("highest video bitrate");
    bitrate.setFocus();
    bitrate.selectAll();
    QTest::keyClick(&bitrate, Qt::Key_Delete);
    QTest::keyClick(&bitrate, Qt::Key_Return);
    EXPECT_EQ(-1, preset->MaxVideoBitrate());
}

TEST_F(PresetNumbersTest, LettersThatTellNoBitrateAreNotTaken)
{
    Bound(&IVXFormatPreset::SetMaxVideoBitrate, 8'000'000);
    Type(Number("highest video bitrate"), "x");
    EXPECT_EQ("8 Mb/s", Number("highest video bitrate").text());
    EXPECT_EQ(0, document.Undo().count());
}

TEST_F(PresetNumbersTest, ShowsABoundThatItWouldNotTake)
{
    Bound(&IVXFormatPreset::SetMaxWidth, 200'000);
    Bound(&IVXFormatPreset::SetMaxVideoBitrate, 0);
    EXPECT_EQ("200000 px", Number("largest width").text());
    EXPECT_EQ("0 kb/s", Number("highest video bitrate").text());
}

TEST_F(PresetNumbersTest, SaysThatOneSideAloneDoesNothing)
{
    Bound(&IVXFormatPreset::SetMaxWidth, 1280);
    EXPECT_TRUE(Messages(Page(0)).contains("both largest sides"));
    Bound(&IVXFormatPreset::SetMaxHeight, 720);
    EXPECT_FALSE(Messages(Page(0)).contains("both largest sides"));
}

TEST_F(PresetNumbersTest, SaysThatTheBoundsOfABitrateAreCrossed)
{
    Bound(&IVXFormatPreset::SetMinVideoBitrate, 9'000'000);
    EXPECT_FALSE(Messages(Page(0)).contains("not below"));
    Bound(&IVXFormatPreset::SetMaxVideoBitrate, 8'000'000);
    EXPECT_TRUE(Messages(Page(0)).contains("not below"));
}

TEST_F(PresetNumbersTest, ProposesABitrateOfOnesOwn)
{
    Pick(Combo("quality"), "Custom");
    EXPECT_TRUE(Video()->CurrentCodecQuality()->IsCustom());
    EXPECT_GT(Video()->CurrentCodecQuality()->Bitrate(), 1'000'000);
    EXPECT_EQ(Number("own bitrate").value(), Video()->CurrentCodecQuality()->Bitrate());
}

TEST_F(PresetNumbersTest, EditsTheBitrateOfOnesOwnInItsPlace)
{
    Pick(Combo("quality"), "Custom");
    auto& bitrate = Number("own bitrate");
    const int before = bitrate.value();
    Type(bitrate, "5.5M");
    EXPECT_EQ(5'500'000, Video()->CurrentCodecQuality()->Bitrate());
    EXPECT_EQ(5'500'000, Video()->CurrentCodecQuality()->MinBitrate());
    EXPECT_EQ("5.5M", bitrate.text());
    document.Undo().undo();
    EXPECT_EQ(before, bitrate.value());
}

TEST_F(PresetNumbersTest, HidesTheBitrateOfOnesOwnBehindGrades)
{
    EXPECT_FALSE(Number("own bitrate").isVisible());
    Pick(Combo("quality"), "Custom");
    EXPECT_TRUE(Number("own bitrate").isVisible());
    Pick(Combo("quality"), "High");
    EXPECT_FALSE(Number("own bitrate").isVisible());
}

TEST_F(PresetNumbersTest, LimitsKeepTheBitrateOfOnesOwn)
{
    Pick(Combo("quality"), "Custom");
    Type(Number("own bitrate"), "5");
    Button(Page(0), "keep").click();
    EXPECT_EQ(0, Video()->IndexForQualityPresets());
    const auto output =
        Video()->MatchForSource(nullptr, preset->MaxVideoBitrate(), preset->MinVideoBitrate());
    EXPECT_EQ(5'000'000, output->GetBitrate());
    EXPECT_EQ("Set limits to the bitrate", document.Undo().undoText());
}

TEST_F(PresetNumbersTest, StoresARatioOfOnesOwn)
{
    Pick(Combo("sample aspect"), "Custom");
    auto& ratio = *Row("sample aspect").findChild<QLineEdit*>("ratio");
    EXPECT_FALSE(ratio.isReadOnly());
    Type(ratio, "16:15");
    EXPECT_EQ(16, Video()->AspectPreset()->Ratio()->Num());
    EXPECT_EQ(15, Video()->AspectPreset()->Ratio()->Den());
    EXPECT_EQ("", Messages(Row("sample aspect")));
}

TEST_F(PresetNumbersTest, SaysHowARatioIsWrittenAndKeepsTheOldOne)
{
    Pick(Combo("sample aspect"), "Custom");
    auto& ratio = *Row("sample aspect").findChild<QLineEdit*>("ratio");
    const auto before = ratio.text();
    Type(ratio, "16:0");
    EXPECT_EQ("A ratio is written as 16:15.", Messages(Row("sample aspect")));
    QTest::keyClick(&ratio, Qt::Key_Return);
    EXPECT_EQ(before, ratio.text());
    EXPECT_EQ("", Messages(Row("sample aspect")));
}

TEST_F(PresetNumbersTest, ShowsTheRatioOfANamedShape)
{
    document.EditPreset(preset, "Prepare",
                        [](IVXFormatPreset& changed) {
                            changed.VideoCodecPreset(1)->AspectPreset()->SetAspectType(
                                IVXSampleAspectPreset::AspectPALDVD16x9);
                        });
    const auto ratio = IVXSampleAspectPreset::AspectPresetRatio(IVXSampleAspectPreset::AspectPALDVD16x9);
    const auto& shown = *Row("sample aspect").findChild<QLineEdit*>("ratio");
    EXPECT_EQ(QString("%1:%2").arg(ratio->Num()).arg(ratio->Den()), shown.text());
    EXPECT_TRUE(shown.isReadOnly());
}

struct TypedBitrate
{
    const char* name;
    BitrateBox::Unit unit;
    const char* typed;
    int bitrate;
    const char* shown;
};

class TypedBitrates : public testing::TestWithParam<TypedBitrate>
{
};

TEST_P(TypedBitrates, AreReadAndShown)
{
    BitrateBox box(GetParam().unit);
    box.selectAll();
    QTest::keyClicks(&box, GetParam().typed);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(GetParam().bitrate, box.value());
    EXPECT_EQ(GetParam().shown, box.text());
}

constexpr TypedBitrate kTyped[] = {
    {"NumberAloneInMega", BitrateBox::Unit::Mega, "8", 8'000'000, "8 Mb/s"},
    {"NumberAloneInKilo", BitrateBox::Unit::Kilo, "192", 192'000, "192 kb/s"},
    {"OtherUnit", BitrateBox::Unit::Mega, "640 kb/s", 640'000, "640 kb/s"},
    {"ShortUnit", BitrateBox::Unit::Kilo, "1.5M", 1'500'000, "1500 kb/s"},
    {"Exact", BitrateBox::Unit::Mega, "5996.493k", 5'996'493, "5996.493 kb/s"},
    {"None", BitrateBox::Unit::Mega, "none", -1, "None"},
    {"TooMuch", BitrateBox::Unit::Mega, "2001", 200'000'000, "200 Mb/s"},
};
INSTANTIATE_TEST_SUITE_P(Texts, TypedBitrates, testing::ValuesIn(kTyped),
                         [](const auto& test) { return test.param.name; });

TEST(BitrateBox, ReadsTheCommaOfTheUsersLanguage)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    BitrateBox box(BitrateBox::Unit::Mega);
    box.selectAll();
    QTest::keyClicks(&box, "2,5");
    EXPECT_EQ(2'500'000, box.value());
    QLocale::setDefault(before);
}

TEST(BitrateBox, StepsFromNoneToWhatIsCommonAndBack)
{
    BitrateBox box(BitrateBox::Unit::Kilo);
    box.setValue(-1);
    box.stepUp();
    EXPECT_EQ(64'000, box.value());
    box.setValue(1'000);
    box.stepDown();
    EXPECT_EQ(-1, box.value());
}

} // namespace

} // namespace Vexlor::Studio
