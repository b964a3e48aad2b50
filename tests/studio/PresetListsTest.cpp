#include "PresetPaneFixture.h"

namespace Vexlor::Studio
{

namespace
{

// What holds of every list of a codec preset, whatever its values.

struct FamilyCase
{
    const char* name;
    const char* noun;
    int tab;
};

std::string NameOf(const testing::TestParamInfo<FamilyCase>& test) { return test.param.name; }

class AnyFamily : public PresetPaneTest, public testing::WithParamInterface<FamilyCase>
{
};

TEST_P(AnyFamily, IsPickedFromAndTakenBack)
{
    auto& combo = Combo(GetParam().noun, GetParam().tab);
    ASSERT_GE(combo.count(), 2);
    const int before = combo.currentIndex();
    combo.setFocus();
    QTest::keyClick(&combo, before == 0 ? Qt::Key_Down : Qt::Key_Up);
    EXPECT_EQ(QString("Change %1 to %2").arg(GetParam().noun, combo.currentText()),
              document.Undo().undoText());
    EXPECT_NE(before, combo.currentIndex());
    document.Undo().undo();
    EXPECT_EQ(before, combo.currentIndex());
}

constexpr FamilyCase kFamilies[] = {
    {"Resolution", "resolution", 0},      {"FrameRate", "frame rate", 0},
    {"PixelFormat", "pixel format", 0},   {"VideoProfile", "profile", 0},
    {"VideoLevel", "level", 0},           {"VideoQuality", "quality", 0},
    {"SampleAspect", "sample aspect", 0}, {"SampleRate", "sample rate", 1},
    {"Channels", "channel layout", 1},    {"AudioProfile", "profile", 1},
    {"AudioQuality", "quality", 1},
};
INSTANTIATE_TEST_SUITE_P(Lists, AnyFamily, testing::ValuesIn(kFamilies), NameOf);

class OpenFamily : public AnyFamily
{
};

TEST_P(OpenFamily, LosesAnEntryAndIsReset)
{
    auto& entries = Entries(GetParam().noun, GetParam().tab);
    const auto before = Texts(entries);
    entries.setCurrentRow(1);
    QTest::keyClick(&entries, Qt::Key_Delete);
    auto fewer = before;
    fewer.removeAt(1);
    EXPECT_EQ(fewer, Texts(entries));
    Button(Row(GetParam().noun, GetParam().tab), "reset").click();
    EXPECT_EQ(before, Texts(entries));
}

constexpr FamilyCase kOpen[] = {
    {"Resolution", "resolution", 0}, {"FrameRate", "frame rate", 0},   {"VideoProfile", "profile", 0},
    {"VideoLevel", "level", 0},      {"SampleRate", "sample rate", 1}, {"Channels", "channel layout", 1},
    {"AudioProfile", "profile", 1},
};
INSTANTIATE_TEST_SUITE_P(Lists, OpenFamily, testing::ValuesIn(kOpen), NameOf);

TEST_F(PresetPaneTest, ListsOfTheCodecAreNotEdited)
{
    for (const auto* noun : {"pixel format", "quality"})
        EXPECT_FALSE(Button(Row(noun), "edit").isVisible()) << noun;
}

} // namespace

} // namespace Vexlor::Studio
