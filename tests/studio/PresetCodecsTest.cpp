#include "PresetPaneFixture.h"

#include "IVXCodecQualityPreset.h"
#include "VXMediaCodecs.h"

#include <QMenu>
#include <QToolButton>

namespace Vexlor::Studio
{

namespace
{

class PresetCodecsTest : public PresetPaneTest
{
protected:
    std::string Outline() const
    {
        std::string outline;
        for (int i = 0; i < preset->VideoCodecPresetCount(); ++i)
        {
            const auto name = preset->VideoCodecPreset(i)->Name();
            outline += i == preset->IndexForVideoCodecPresets() ? '[' + name + "] " : name + ' ';
        }
        return outline;
    }
    /// The codecs that the menu of the button offers, opened.
    QList<QAction*> Offered()
    {
        auto& menu = *Codecs().parentWidget()->findChild<QToolButton*>("add")->menu();
        emit menu.aboutToShow();
        return menu.actions();
    }
    void RemoveAll()
    {
        Codecs().setCurrentRow(0);
        while (preset->VideoCodecPresetCount() > 0)
            QTest::keyClick(&Codecs(), Qt::Key_Delete);
    }
};

TEST_F(PresetCodecsTest, ShowsTheCodecsAndMarksTheCurrentOne)
{
    EXPECT_EQ("Auto [H.264] HEVC AV1 VP9 MPEG-4 ", Outline());
    EXPECT_EQ(QStringList({"Auto", "H.264", "HEVC", "AV1", "VP9", "MPEG-4"}), Texts(Codecs()));
    EXPECT_EQ(1, Marked(Codecs()));
    EXPECT_EQ(1, Codecs().currentRow());
}

TEST_F(PresetCodecsTest, OpensAPageWithoutChoosingItsCodec)
{
    Codecs().setFocus();
    QTest::keyClick(&Codecs(), Qt::Key_Down);
    Pick(Combo("frame rate"), "25");
    EXPECT_EQ(0, Video()->IndexForFrameratePresets());
    EXPECT_NE(0, preset->VideoCodecPreset(2)->IndexForFrameratePresets());
    EXPECT_EQ(1, preset->IndexForVideoCodecPresets());
}

TEST_F(PresetCodecsTest, ChoosesACodec)
{
    Codecs().setCurrentRow(2);
    QTest::keyClick(&Codecs(), Qt::Key_Return);
    EXPECT_EQ("Auto H.264 [HEVC] AV1 VP9 MPEG-4 ", Outline());
    EXPECT_EQ("Change video codec to HEVC", document.Undo().undoText());
    document.Undo().undo();
    EXPECT_EQ(1, Marked(Codecs()));
}

TEST_F(PresetCodecsTest, ChoosesACodecByItsMark)
{
    auto& list = Codecs();
    const auto row = list.visualItemRect(list.item(3));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {row.left() + 10, row.center().y()});
    EXPECT_EQ(3, preset->IndexForVideoCodecPresets());
    EXPECT_EQ(3, Marked(list));
}

TEST_F(PresetCodecsTest, SaysWhatAutoIs)
{
    Codecs().setCurrentRow(0);
    EXPECT_FALSE(Row("resolution").isVisible());
    EXPECT_TRUE(Messages(Page(0)).contains("Auto stands for the first codec"));
}

TEST_F(PresetCodecsTest, RemovingAnotherKeepsTheCurrentCodec)
{
    Codecs().setCurrentRow(0);
    QTest::keyClick(&Codecs(), Qt::Key_Delete);
    EXPECT_EQ("[H.264] HEVC AV1 VP9 MPEG-4 ", Outline());
    document.Undo().undo();
    EXPECT_EQ("Auto [H.264] HEVC AV1 VP9 MPEG-4 ", Outline());
}

TEST_F(PresetCodecsTest, MovingTheCurrentCodecKeepsItCurrentAndOpen)
{
    Button(*Codecs().parentWidget(), "down").click();
    EXPECT_EQ("Auto HEVC [H.264] AV1 VP9 MPEG-4 ", Outline());
    EXPECT_EQ(2, Codecs().currentRow());
    EXPECT_EQ("Move video codec H.264", document.Undo().undoText());
}

TEST_F(PresetCodecsTest, OffersNothingToAddWhereAllAreThere)
{
    const auto offered = Offered();
    ASSERT_EQ(1, offered.size());
    EXPECT_FALSE(offered[0]->isEnabled());
}

TEST_F(PresetCodecsTest, AddsACodecThatTheContainerTakesAndOpensItsPage)
{
    QTest::keyClick(&Codecs(), Qt::Key_Delete);
    const auto offered = Offered();
    ASSERT_EQ(1, offered.size());
    EXPECT_EQ("H.264", offered[0]->text());
    offered[0]->trigger();
    EXPECT_EQ("Auto [HEVC] AV1 VP9 MPEG-4 H.264 ", Outline());
    EXPECT_EQ(5, Codecs().currentRow());
    EXPECT_EQ("Add video codec H.264", document.Undo().undoText());
}

TEST_F(PresetCodecsTest, SaysThatThereIsNoCodec)
{
    RemoveAll();
    EXPECT_EQ("", Outline());
    EXPECT_TRUE(Messages(Page(0)).contains("No codec is offered: outputs have no picture."));
    EXPECT_FALSE(Row("resolution").isVisible());
    EXPECT_FALSE(Button(*Codecs().parentWidget(), "remove").isEnabled());
}

TEST_F(PresetCodecsTest, TheFirstCodecAddedIsTheCurrentOne)
{
    RemoveAll();
    Offered()[1]->trigger();
    EXPECT_EQ("[H.264] ", Outline());
    EXPECT_TRUE(Row("resolution").isVisible());
}

TEST_F(PresetCodecsTest, SaysThatNoCodecIsChosen)
{
    const auto none = IVXFormatPreset::MallocFormatPreset(std::shared_ptr<const IVXJsonValue>());
    none->InsertVideoCodecPreset(IVXCodecPreset::MallocCodecPreset(VXCodecID_H264), 0);
    ASSERT_FALSE(none->CurrentVideoCodec()) << none->IndexForVideoCodecPresets();
    pane.ShowItem({{}, none});
    EXPECT_TRUE(Messages(Page(0)).contains("No codec is chosen: outputs have no picture."));
    EXPECT_EQ(-1, Marked(Codecs()));
}

TEST_F(PresetCodecsTest, ShowsACodecThatIsNotKnown)
{
    const auto add = [](IVXFormatPreset& changed) { changed.AddVideoCodecPreset(987'654); };
    document.EditPreset(preset, "Prepare", add);
    Codecs().setCurrentRow(6);
    EXPECT_EQ("Unknown codec 987654", Codecs().currentItem()->text());
    EXPECT_EQ("No entries", Combo("resolution").placeholderText());
    Pick(Combo("quality"), "Custom");
    EXPECT_TRUE(preset->VideoCodecPreset(6)->CurrentCodecQuality()->IsCustom());
}

TEST_F(PresetCodecsTest, TakingBackARemovalOpensNoOtherPage)
{
    Codecs().setCurrentRow(5);
    QTest::keyClick(&Codecs(), Qt::Key_Delete);
    EXPECT_EQ(4, Codecs().currentRow());
    document.Undo().undo();
    EXPECT_EQ(4, Codecs().currentRow());
    EXPECT_EQ(6, Codecs().count());
}

TEST_F(PresetCodecsTest, AnotherPresetOpensWithItsOwnCodec)
{
    const auto other = IVXFormatPreset::MallocFormatPreset("MP4", "");
    other->SetIndexForVideoCodecPresets(3);
    pane.ShowItem({{}, other});
    EXPECT_EQ(3, Codecs().currentRow());
}

} // namespace

} // namespace Vexlor::Studio
