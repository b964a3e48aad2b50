#include "tests/studio/OutcomePaneFixture.h"

#include "apps/studio/document/Aside.h"
#include "apps/studio/outcome/OutcomeView.h"
#include "tests/studio/Patience.h"

#include <QAccessible>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QUrl>

#include <future>

namespace Vexlor::Studio
{

namespace
{

void SetBounds(IVXFormatPreset& preset, int width, int height)
{
    preset.SetMaxWidth(width);
    preset.SetMaxHeight(height);
}

TEST_F(OutcomePaneTest, InvitesASource)
{
    EXPECT_TRUE(Text("outcomeEmpty").contains("Drop a video or sound file here"));
    pane.ShowPreset(preset);
    EXPECT_TRUE(Text("outcomeEmpty").contains("what this preset makes of it"));
    EXPECT_FALSE(IsShown("convert"));
}

TEST_F(OutcomePaneTest, ShowsTheSourceAloneWithoutAPreset)
{
    Open("film.mp4");
    EXPECT_EQ("1920 x 1080", Cell("Size", OutcomeModel::Source));
    EXPECT_EQ("", Output("Size"));
    EXPECT_EQ("film.mp4", Text("sourceName"));
    EXPECT_TRUE(Text("predictedSize").contains("Choose a preset"));
    EXPECT_FALSE(Find("convert")->isEnabled());
}

TEST_F(OutcomePaneTest, ShowsWhatTheSourceBecomes)
{
    pane.ShowPreset(preset);
    Open("film.mp4");
    EXPECT_EQ("MPEG-4", Output("Codec"));
    EXPECT_EQ("chosen in the preset", Cell("Codec", OutcomeModel::Why));
    EXPECT_EQ("Source: 1920 x 1080. Output: 1920 x 1080.", Find("sizeDrawing")->accessibleDescription());
    EXPECT_TRUE(IsShown("videoBitrate") && IsShown("audioBitrate"));
    EXPECT_TRUE(Text("predictedSize").startsWith("Predicted size: about "));
    EXPECT_TRUE(Find("convert")->isEnabled());
}

TEST_F(OutcomePaneTest, FollowsAnEditAndItsUndo)
{
    pane.ShowPreset(preset);
    Open("film.mp4");
    document.EditPreset(preset, "Bounds", [](IVXFormatPreset& it) { SetBounds(it, 640, 360); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return Output("Size") == "640 x 360"; }, kPatience));
    document.Undo().undo();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Output("Size") == "1920 x 1080"; }, kPatience));
}

TEST_F(OutcomePaneTest, TakesManyEditsAtOnce)
{
    pane.ShowPreset(preset);
    Open("film.mp4");
    int changes = 0;
    QObject::connect(pane.findChild<OutcomeModel*>(), &OutcomeModel::dataChanged, &pane,
                     [&](const QModelIndex& first)
                     { changes += first.siblingAtColumn(OutcomeModel::Name).data().toString() == "Size"; });
    for (int side = 100; side < 300; side += 2)
        document.EditPreset(preset, "Bounds", [side](IVXFormatPreset& it) { SetBounds(it, side, side); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return Output("Size") == "298 x 298"; }, kPatience));
    EXPECT_LE(changes, 2);
}

TEST_F(OutcomePaneTest, LeavesAloneWhatIsNotItsPreset)
{
    pane.ShowPreset(preset);
    Open("film.mp4");
    const auto other = PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC);
    QSignalSpy changes(pane.findChild<OutcomeModel*>(), &OutcomeModel::dataChanged);
    document.EditPreset(other, "Bounds", [](IVXFormatPreset& it) { SetBounds(it, 640, 360); });
    EXPECT_FALSE(changes.wait(100));
}

TEST_F(OutcomePaneTest, ShowsAnotherPreset)
{
    pane.ShowPreset(preset);
    Open("film.mp4");
    pane.ShowPreset(PresetOf("MP4", VXCodecID_HEVC, VXCodecID_AAC));
    EXPECT_EQ("HEVC", Output("Codec"));
    pane.ShowPreset({});
    EXPECT_EQ("", Output("Codec"));
}

TEST_F(OutcomePaneTest, TakesAFileThatIsDropped)
{
    QMimeData data;
    data.setUrls({QUrl("https://example.invalid/a.mp4"), QUrl::fromLocalFile(Path("film.mkv"))});
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&pane, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QSignalSpy opened(&pane, &OutcomePane::SourceOpened);
    QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&pane, &drop);
    ASSERT_TRUE(opened.wait(kPatience));
    EXPECT_EQ(Path("film.mkv"), opened.front().front().toString());
    EXPECT_EQ("640 x 360", Cell("Size", OutcomeModel::Source));
}

TEST_F(OutcomePaneTest, TakesNothingElseThatIsDropped)
{
    QMimeData data;
    data.setText("film.mp4");
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&pane, &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(OutcomePaneTest, ShowsTheNewerOfTwoSourcesAlone)
{
    QSignalSpy opened(&pane, &OutcomePane::SourceOpened);
    pane.OpenSource(Path("film.mp4"));
    pane.OpenSource(Path("film.mkv"));
    ASSERT_TRUE(opened.wait(kPatience));
    EXPECT_FALSE(opened.wait(200));
    EXPECT_EQ(Path("film.mkv"), opened.front().front().toString());
    EXPECT_EQ("film.mkv", Text("sourceName"));
}

/// Files of disks that are gone, but for one.
class SilentDisk : public OutcomePaneTest
{
protected:
    SilentDisk()
    {
        pane.findChild<SourceLoader*>()->SetReader(
            [answer = gate.get_future().share(), good = Path("film.mkv")](const QString& path)
            {
                if (path != good)
                    answer.wait_for(std::chrono::milliseconds(kPatience));
                return ReadMediaFile(path.toStdString());
            });
    }
    ~SilentDisk() override
    {
        gate.set_value();
        AwaitAside(std::chrono::milliseconds(kPatience));
    }

    std::promise<void> gate;
};

TEST_F(SilentDisk, KeepsNoFileOfAnotherOne)
{
    for (int i = 0; i < 6; ++i)
        pane.OpenSource(Path("film.mp4"));
    Open("film.mkv");
    EXPECT_EQ("film.mkv", Text("sourceName"));
    EXPECT_FALSE(IsShown("cancelSource"));
}

TEST_F(SilentDisk, IsGivenUp)
{
    Open("film.mkv");
    pane.OpenSource(Path("film.mp4"));
    EXPECT_TRUE(IsShown("cancelSource"));
    Click("cancelSource");
    EXPECT_FALSE(pane.IsReading());
    EXPECT_FALSE(IsShown("cancelSource") || IsShown("sourceState"));
    EXPECT_EQ("film.mkv", Text("sourceName"));
}

TEST_F(OutcomePaneTest, TellsWhyAFileCannotBeReadAndKeepsWhatItShows)
{
    const Media::ScratchFolder folder;
    const auto broken = QString::fromStdString(folder.Write("broken.mp4", "no film at all"));
    Open("film.mp4");
    pane.OpenSource(broken);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Text("sourceState").contains("broken.mp4: "); }, kPatience));
    EXPECT_TRUE(IsShown("sourceState"));
    EXPECT_EQ("film.mp4", Text("sourceName"));
    EXPECT_EQ("1920 x 1080", Cell("Size", OutcomeModel::Source));
    Open("film.mkv");
    EXPECT_FALSE(IsShown("sourceState"));
}

TEST_F(OutcomePaneTest, TellsWhyTheFirstFileCannotBeRead)
{
    pane.OpenSource("/nowhere/at all.mp4");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return Text("sourceState").contains("there is no such file"); }, kPatience));
    EXPECT_TRUE(IsShown("outcomeEmpty"));
}

TEST_F(OutcomePaneTest, DrawsNoPictureOfMusic)
{
    pane.ShowPreset(preset);
    Open("music.mp3");
    EXPECT_FALSE(IsShown("sizeDrawing"));
    EXPECT_FALSE(IsShown("videoBitrate"));
    EXPECT_TRUE(IsShown("audioBitrate"));
    EXPECT_FALSE(IsShown("pictureFit"));
}

TEST_F(OutcomePaneTest, FollowsHowThePictureIsToFit)
{
    SetBounds(*preset, 320, 320);
    pane.ShowPreset(preset);
    Open("film.mp4");
    const auto words = [this] { return Find("sizeDrawing")->accessibleDescription(); };
    EXPECT_TRUE(words().contains("padded above and below"));
    Find<QComboBox>("pictureFit")->setCurrentIndex(1);
    EXPECT_TRUE(words().contains("cut off left and right"));
    Find<QComboBox>("pictureFit")->setCurrentIndex(2);
    EXPECT_TRUE(words().contains("stretched"));
}

TEST_F(OutcomePaneTest, WarnsWithTheWaysOut)
{
    preset = PresetOf("MP4", VXCodecID_H264, VXCodecID_AAC);
    auto& h264 = *preset->CurrentVideoCodec();
    h264.AddLevelPreset(10);
    h264.SetIndexForLevelPresets(h264.LevelPresetCount() - 1);
    pane.ShowPreset(preset);
    Open("film.mp4");
    EXPECT_TRUE(IsShown("outcomeNotices"));
    EXPECT_TRUE(Text("outcomeNotices").contains("level 1 is too low"));
    EXPECT_FALSE(Text("outcomeNotices").contains("<li>"));
    EXPECT_EQ("Raise the level to 4", Find<QPushButton>("remedy0")->text());
}

TEST_F(OutcomePaneTest, SaysWhyItCannotConvert)
{
    pane.ShowPreset(IVXFormatPreset::MallocFormatPreset("MP3", ""));
    Open("silent.mp4");
    EXPECT_FALSE(Find("convert")->isEnabled());
    EXPECT_TRUE(Text("predictedSize").startsWith("Cannot be converted here: "));
    EXPECT_EQ(Text("predictedSize"), Find("convert")->toolTip());
}

TEST_F(OutcomePaneTest, NamesEverythingThatTheKeyboardReaches)
{
    pane.ShowPreset(preset);
    Open("film.mp4");
    int reached = 0;
    for (auto* widget : pane.findChildren<QWidget*>())
    {
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy())
            continue;
        ++reached;
        const auto* interface = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
    }
    EXPECT_GE(reached, 7);
}

TEST_F(OutcomePaneTest, NeedsNoMoreWidthThanAThirdOfAScreen)
{
    pane.ShowPreset(preset);
    Open("film.mp4");
    EXPECT_LT(pane.minimumSizeHint().width(), 420);
}

TEST_F(OutcomePaneTest, OpensAFileThatIsChosenInADialog)
{
    Click("openSource");
    auto* dialog = pane.findChild<QFileDialog*>();
    ASSERT_TRUE(dialog);
    QSignalSpy opened(&pane, &OutcomePane::SourceOpened);
    emit dialog->fileSelected(Path("film.mkv"));
    EXPECT_TRUE(opened.wait(kPatience));
}

} // namespace

} // namespace Vexlor::Studio
