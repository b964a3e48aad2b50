#include "PresetPaneFixture.h"

#include "IVXResolutionPreset.h"

namespace Vexlor::Studio
{

namespace
{

class PresetEntriesTest : public PresetPaneTest
{
protected:
    /// A list of three sizes, the second of which is the current one.
    PresetEntriesTest()
    {
        document.EditPreset(preset, "Prepare",
                            [](IVXFormatPreset& changed)
                            {
                                auto& codec = *changed.VideoCodecPreset(1);
                                while (codec.ResolutionPresetCount() > 0)
                                    codec.RemoveResolutionPreset(0);
                                codec.AddResolutionPreset(1920, 1080);
                                codec.AddResolutionPreset(1280, 720);
                                codec.AddResolutionPreset(640, 360);
                                codec.SetIndexForResolutionPreset(1);
                            });
        document.Undo().clear();
    }

    /// The sizes as rows, the current one in brackets.
    std::string Outline() const
    {
        std::string outline;
        for (int i = 0; i < Video()->ResolutionPresetCount(); ++i)
        {
            const auto width = std::to_string(Video()->ResolutionPresetAt(i)->Width());
            outline += i == Video()->IndexForResolutionPreset() ? '[' + width + "] " : width + ' ';
        }
        return outline;
    }
};

TEST_F(PresetEntriesTest, PicksAnEntry)
{
    Pick(Combo("resolution"), "640");
    EXPECT_EQ("1920 1280 [640] ", Outline());
    EXPECT_EQ("Change resolution to 640 x 360", document.Undo().undoText());
    document.Undo().undo();
    EXPECT_EQ("1920 [1280] 640 ", Outline());
    EXPECT_EQ(1, Combo("resolution").currentIndex());
}

TEST_F(PresetEntriesTest, AddsAnEntryBehindTheOthers)
{
    auto& input = Input("resolution");
    Type(input, "1440x1080");
    QTest::keyClick(&input, Qt::Key_Return);
    EXPECT_EQ("1920 [1280] 640 1440 ", Outline());
    EXPECT_EQ("1440 x 1080", Combo("resolution").itemText(3));
    EXPECT_EQ(3, Entries("resolution").currentRow());
    document.Undo().undo();
    EXPECT_EQ("1920 [1280] 640 ", Outline());
    EXPECT_EQ(3, Entries("resolution").count());
}

TEST_F(PresetEntriesTest, SaysThatAnEntryIsThereAlready)
{
    auto& input = Input("resolution");
    Type(input, "640x360");
    Button(Row("resolution"), "add").click();
    EXPECT_EQ(0, document.Undo().count());
    EXPECT_EQ("“640x360” is in the list already.", Messages(Row("resolution")));
    EXPECT_EQ(2, Entries("resolution").currentRow());
}

TEST_F(PresetEntriesTest, SaysHowAnEntryIsTyped)
{
    auto& input = Input("resolution");
    Type(input, "large");
    QTest::keyClick(&input, Qt::Key_Return);
    EXPECT_EQ(0, document.Undo().count());
    EXPECT_EQ("“large” tells no resolution. An example: 1440x1080", Messages(Row("resolution")));
    QTest::keyClick(&input, Qt::Key_Backspace);
    EXPECT_EQ("", Messages(Row("resolution")));
}

TEST_F(PresetEntriesTest, SaysWhatTheCodecTakesInstead)
{
    auto& input = Input("resolution");
    Type(input, "99999x9");
    QTest::keyClick(&input, Qt::Key_Return);
    EXPECT_EQ("1920 [1280] 640 ", Outline());
    EXPECT_TRUE(Messages(Row("resolution")).contains("does not take"))
        << Messages(Row("resolution")).toStdString();
}

struct RemoveCase
{
    const char* name;
    int row;
    const char* left;
};

class RemoveEntryCase : public PresetEntriesTest, public testing::WithParamInterface<RemoveCase>
{
};

TEST_P(RemoveEntryCase, KeepsTheCurrentEntry)
{
    auto& entries = Entries("resolution");
    entries.setCurrentRow(GetParam().row);
    QTest::keyClick(&entries, Qt::Key_Delete);
    EXPECT_EQ(GetParam().left, Outline());
    document.Undo().undo();
    EXPECT_EQ("1920 [1280] 640 ", Outline());
}

constexpr RemoveCase kRemovals[] = {{"InFrontOfIt", 0, "[1280] 640 "},
                                    {"ItselfForTheNext", 1, "1920 [640] "},
                                    {"BehindIt", 2, "1920 [1280] "}};
INSTANTIATE_TEST_SUITE_P(Rows, RemoveEntryCase, testing::ValuesIn(kRemovals),
                         [](const auto& test) { return test.param.name; });

TEST_F(PresetEntriesTest, RemovingTheLastWhichIsTheCurrentTakesTheOneInFront)
{
    Pick(Combo("resolution"), "640");
    Entries("resolution").setCurrentRow(2);
    Button(Row("resolution"), "remove").click();
    EXPECT_EQ("1920 [1280] ", Outline());
    EXPECT_EQ("Remove resolution 640 x 360", document.Undo().undoText());
}

TEST_F(PresetEntriesTest, RemovesTheLastEntryThatThereIs)
{
    auto& entries = Entries("resolution");
    entries.setCurrentRow(0);
    for (int i = 0; i < 3; ++i)
        Button(Row("resolution"), "remove").click();
    EXPECT_EQ("", Outline());
    EXPECT_EQ("No entries", Combo("resolution").placeholderText());
    EXPECT_FALSE(Button(Row("resolution"), "remove").isEnabled());
}

struct MoveCase
{
    const char* name;
    int row;
    Qt::Key key;
    const char* moved;
};

class MoveEntryCase : public PresetEntriesTest, public testing::WithParamInterface<MoveCase>
{
};

TEST_P(MoveEntryCase, KeepsTheCurrentEntry)
{
    auto& entries = Entries("resolution");
    entries.setCurrentRow(GetParam().row);
    QTest::keyClick(&entries, GetParam().key, Qt::AltModifier);
    EXPECT_EQ(GetParam().moved, Outline());
}

constexpr MoveCase kMoves[] = {{"ItUp", 1, Qt::Key_Up, "[1280] 1920 640 "},
                               {"ItDown", 1, Qt::Key_Down, "1920 640 [1280] "},
                               {"AnotherPastItUp", 2, Qt::Key_Up, "1920 640 [1280] "},
                               {"AnotherPastItDown", 0, Qt::Key_Down, "[1280] 1920 640 "},
                               {"TheFirstUp", 0, Qt::Key_Up, "1920 [1280] 640 "},
                               {"TheLastDown", 2, Qt::Key_Down, "1920 [1280] 640 "}};
INSTANTIATE_TEST_SUITE_P(Rows, MoveEntryCase, testing::ValuesIn(kMoves),
                         [](const auto& test) { return test.param.name; });

TEST_F(PresetEntriesTest, TheSelectionGoesWithTheMovedEntry)
{
    auto& entries = Entries("resolution");
    entries.setCurrentRow(0);
    Button(Row("resolution"), "down").click();
    Button(Row("resolution"), "down").click();
    EXPECT_EQ("[1280] 640 1920 ", Outline());
    EXPECT_EQ(2, entries.currentRow());
    EXPECT_FALSE(Button(Row("resolution"), "down").isEnabled());
}

TEST_F(PresetEntriesTest, MarksTheCurrentEntryAndTakesAnotherWithSpace)
{
    auto& entries = Entries("resolution");
    EXPECT_EQ(1, Marked(entries));
    entries.setFocus();
    entries.setCurrentRow(2);
    QTest::keyClick(&entries, Qt::Key_Space);
    EXPECT_EQ("1920 1280 [640] ", Outline());
    EXPECT_EQ(2, Marked(entries));
}

TEST_F(PresetEntriesTest, SpaceOnTheCurrentEntryLeavesItMarked)
{
    auto& entries = Entries("resolution");
    entries.setFocus();
    entries.setCurrentRow(1);
    QTest::keyClick(&entries, Qt::Key_Space);
    EXPECT_EQ(1, Marked(entries));
    EXPECT_EQ(0, document.Undo().count());
}

TEST_F(PresetEntriesTest, ResetsToWhatTheCodecOffersAndKeepsTheCurrentEntry)
{
    Entries("resolution");
    Button(Row("resolution"), "reset").click();
    EXPECT_EQ(IVXCodecPreset::DefaultResolutions(Video()->CodecID()).size(),
              static_cast<std::size_t>(Video()->ResolutionPresetCount()));
    EXPECT_EQ("1280 x 720", Combo("resolution").currentText());
    EXPECT_EQ("Reset entries of resolution", document.Undo().undoText());
}

TEST_F(PresetEntriesTest, ResettingAwayTheCurrentEntryTakesTheFirst)
{
    Pick(Combo("resolution"), "640"); // 640 x 360 is none of the codec's own
    Entries("resolution");
    Button(Row("resolution"), "reset").click();
    EXPECT_EQ("Auto", Combo("resolution").currentText());
}

TEST_F(PresetEntriesTest, ShowsANumberOutsideTheListAsWhatItIs)
{
    document.EditPreset(preset, "Prepare",
                        [](IVXFormatPreset& changed)
                        { changed.VideoCodecPreset(1)->RemoveResolutionPreset(1); });
    document.EditPreset(preset, "Prepare",
                        [](IVXFormatPreset& changed)
                        { changed.VideoCodecPreset(1)->RemoveResolutionPreset(1); });
    const auto& combo = Combo("resolution");
    EXPECT_EQ(-1, combo.currentIndex());
    EXPECT_EQ("Entry 2 of 1: not there", combo.placeholderText());
    EXPECT_EQ(-1, Marked(Entries("resolution")));
}

TEST_F(PresetEntriesTest, ANumberOutsideTheListStaysSoWhenEntriesGo)
{
    document.EditPreset(preset, "Prepare",
                        [](IVXFormatPreset& changed)
                        {
                            auto& codec = *changed.VideoCodecPreset(1);
                            codec.SetIndexForResolutionPreset(2);
                            codec.RemoveResolutionPreset(0);
                        });
    auto& entries = Entries("resolution");
    entries.setCurrentRow(0);
    QTest::keyClick(&entries, Qt::Key_Delete);
    EXPECT_EQ(2, Video()->IndexForResolutionPreset());
    EXPECT_EQ("640 ", Outline());
}

TEST_F(PresetEntriesTest, TheEditorBeginsWithTheCurrentEntryInSight)
{
    pane.resize(400, 300);
    EXPECT_EQ(1, Entries("resolution").currentRow());
    QCoreApplication::processEvents();
    const auto bottom = Button(Row("resolution"), "reset").mapTo(&pane, QPoint()).y();
    EXPECT_GT(bottom, 0);
    EXPECT_LT(bottom, 300);
}

TEST_F(PresetEntriesTest, EscapeClosesTheEditor)
{
    auto& input = Input("resolution");
    input.setFocus();
    QTest::keyClick(&input, Qt::Key_Escape);
    EXPECT_FALSE(input.isVisible());
    EXPECT_TRUE(Button(Row("resolution"), "edit").hasFocus());
}

TEST_F(PresetEntriesTest, KeepsTheFocusWhileEntriesChange)
{
    auto& input = Input("resolution");
    Type(input, "1440x1080");
    QTest::keyClick(&input, Qt::Key_Return);
    EXPECT_TRUE(input.hasFocus());
}

} // namespace

} // namespace Vexlor::Studio
