#include "apps/studio/outcome/RemedyEdits.h"

#include "apps/studio/outcome/Outcome.h"
#include "tests/studio/OutcomePaneFixture.h"
#include "tests/studio/OutcomeSources.h"

#include "IVXCodecPreset.h"
#include "IVXFormatPreset.h"

#include <gtest/gtest.h>

namespace Vexlor::Studio
{

namespace
{

using namespace Vexlor::Apps;

constexpr int kLevel1 = 10;
constexpr int kLevel3 = 30;

/// A preset of H.264 at that level, whose picture is that of the source.
std::shared_ptr<IVXFormatPreset> PresetAtLevel(int level)
{
    auto preset = PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC);
    auto& video = *preset->CurrentVideoCodec();
    video.AddLevelPreset(level);
    video.SetIndexForLevelPresets(video.LevelPresetCount() - 1);
    return preset;
}

Outcome HdOutcomeOf(const IVXFormatPreset& preset)
{
    return OutcomeOf(MediaOf(FileOf(VideoSource{})), "/clip.mov", preset);
}

bool Warns(const Outcome& outcome)
{
    for (const auto& warning : outcome.warnings)
        if (warning.kind == Tool::MatchWarningKind::LevelTooLow)
            return true;
    return false;
}

TEST(RemedyEdits, LeadOutOfALevelThatIsTooLow)
{
    const auto preset = PresetAtLevel(kLevel3);
    const auto outcome = HdOutcomeOf(*preset);
    ASSERT_TRUE(Warns(outcome));
    const auto edits = RemedyEditsOf(outcome, *preset);
    ASSERT_GE(edits.size(), 2U);
    EXPECT_EQ("raise the level to 4", edits.front().text);
    for (const auto& edit : edits)
    {
        const auto changed = preset->Clone();
        edit.change(*changed);
        EXPECT_FALSE(Warns(HdOutcomeOf(*changed))) << qPrintable(edit.text);
    }
}

TEST(RemedyEdits, AreNoneWhereTheLevelIsHighEnough)
{
    const auto preset = PresetAtLevel(51);
    EXPECT_TRUE(RemedyEditsOf(HdOutcomeOf(*preset), *preset).empty());
}

TEST(RemedyEdits, TakeAnEntryThatIsThereAlready)
{
    const auto preset = PresetAtLevel(kLevel3);
    const auto edits = RemedyEditsOf(HdOutcomeOf(*preset), *preset);
    ASSERT_FALSE(edits.empty());
    edits.front().change(*preset);
    const int count = preset->CurrentVideoCodec()->LevelPresetCount();
    preset->CurrentVideoCodec()->SetIndexForLevelPresets(0);
    edits.front().change(*preset);
    EXPECT_EQ(count, preset->CurrentVideoCodec()->LevelPresetCount());
    EXPECT_NE(0, preset->CurrentVideoCodec()->IndexForLevelPresets());
}

TEST(RemedyEdits, LeaveOutWhatDoesNotHelp)
{
    const auto preset = PresetAtLevel(kLevel3);
    preset->SetMinWidth(1920);
    preset->SetMinHeight(1080);
    preset->SetMaxWidth(1920);
    preset->SetMaxHeight(1080);
    for (const auto& edit : RemedyEditsOf(HdOutcomeOf(*preset), *preset))
        EXPECT_FALSE(edit.text.startsWith("lower the size")) << qPrintable(edit.text);
}

TEST_F(OutcomePaneTest, ChangesThePresetByARemedyInOneStep)
{
    preset = PresetAtLevel(kLevel1);
    pane.ShowPreset(preset);
    OpenFile(Path("film.mp4"));
    const auto before = preset->CurrentVideoCodec()->IndexForLevelPresets();
    ASSERT_TRUE(IsShown("remedies")) << Text("outcomeNotices").toStdString();
    const auto text = Find<QPushButton>("remedy0")->accessibleName();
    Click("remedy0");
    EXPECT_EQ(1, document.Undo().count());
    EXPECT_EQ(text.toLower(), document.Undo().undoText().toLower());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !IsShown("remedies"); }, kPatience));
    document.Undo().undo();
    EXPECT_EQ(before, preset->CurrentVideoCodec()->IndexForLevelPresets());
    EXPECT_TRUE(QTest::qWaitFor([this] { return IsShown("remedies"); }, kPatience));
}

} // namespace

} // namespace Vexlor::Studio
