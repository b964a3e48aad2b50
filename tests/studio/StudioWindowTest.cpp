#include "StudioWindowFixture.h"

#include "apps/studio/outcome/OutcomeModel.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/window/PresetActions.h"
#include "apps/studio/window/StartOptions.h"
#include "tests/media/MediaMaker.h"
#include "tests/studio/Patience.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QAbstractItemView>
#include <QAction>
#include <QFile>
#include <QTableView>
#include <QTreeView>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

TEST_F(StudioWindowTest, FindsAPresetAndShowsIt)
{
    FindAndSelect("more webm");
    const auto current = window->Tree().Current();
    ASSERT_TRUE(current.IsPreset());
    EXPECT_EQ("WEBM", current.preset->FormatName());
}

TEST_F(StudioWindowTest, EditsANameUndoesAndRedoesIt)
{
    FindAndSelect("mkv");
    const auto preset = window->Tree().Current().preset;
    const auto before = preset->Name();
    window->Document().EditPreset(preset, "Name", [](IVXFormatPreset& changed) { changed.SetName("Mine"); });
    EXPECT_TRUE(window->isWindowModified());
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(before, preset->Name());
    EXPECT_FALSE(window->isWindowModified());
    QTest::keyClick(window.get(), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ("Mine", preset->Name());
}

TEST_F(StudioWindowTest, StaysAtAPresetWhoseNameIsTypedWhileTheTreeIsNarrowed)
{
    FindAndSelect("0p webm");
    const auto current = window->Tree().Current();
    auto& name = The<QLineEdit>("name");
    name.setFocus();
    name.selectAll();
    QTest::keyClicks(&name, "Mi");
    QTest::qWait(50); // for a search, if there were one
    QTest::keyClicks(&name, "ne");
    EXPECT_EQ(current, window->Tree().Current());
    EXPECT_EQ("Mine", current.preset->Name());
    EXPECT_EQ("Change name", window->Document().Undo().undoText());
}

TEST_F(StudioWindowTest, MatchesAClip)
{
    QSignalSpy opened(&window->Outcome(), &OutcomePane::SourceOpened);
    const auto clip = QString::fromStdString(Media::Clip("film.mp4"));
    window->Outcome().OpenSource(clip);
    ASSERT_TRUE(opened.wait(30000));
    window->Tree().SelectByPath("Video/MP4");
    const auto* model = window->Outcome().findChild<OutcomeModel*>();
    const auto codec = [model]
    {
        for (int row = 0; row < model->rowCount(); ++row)
            if (model->RowAt(row).name == "Codec" && !model->RowAt(row).output.isEmpty())
                return model->RowAt(row);
        return OutcomeRow();
    };
    EXPECT_TRUE(QTest::qWaitFor([&codec] { return !codec().name.isEmpty(); }, kPatience));
    EXPECT_EQ("H.264", codec().output);
    EXPECT_EQ("chosen in the preset", codec().why);
}

TEST_F(StudioWindowTest, SavesAndOpensAgain)
{
    const auto path = folder.filePath("mine.json");
    window->Tree().SelectByPath("Video/MP4");
    window->Document().EditPreset(window->Tree().Current().preset, "Bounds",
                                  [](IVXFormatPreset& preset) { preset.SetMaxWidth(640); });
    SaveTo(path);
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_TRUE(window->windowTitle().startsWith("mine.json"));
    Open(path);
    window->Tree().SelectByPath("Video/MP4");
    EXPECT_EQ(640, window->Tree().Current().preset->MaxWidth());
}

TEST_F(StudioWindowTest, AsksBeforeChangesAreLost)
{
    window->Tree().SelectByPath("Video/MP4");
    QTest::keyClick(&window->Tree().View(), Qt::Key_Delete);
    AnswerNext(QMessageBox::Cancel);
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    AnswerNext(QMessageBox::Discard);
    window->close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, kPatience));
}

TEST_F(StudioWindowTest, SavesOnCloseWhenToldTo)
{
    const auto path = folder.filePath("mine.json");
    SaveTo(path);
    window->Tree().SelectByPath("Video/MP4");
    QTest::keyClick(&window->Tree().View(), Qt::Key_Delete);
    AnswerNext(QMessageBox::Save);
    window->close();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->isVisible(); }, kPatience));
    const auto root = ReadContent(path.toStdString()).root;
    EXPECT_FALSE(root->FindChild("Video")->FindFormatPreset("MP4"));
}

TEST_F(StudioWindowTest, OffersWhatACrashHasLeft)
{
    window->Tree().SelectByPath("Video/MP4");
    QTest::keyClick(&window->Tree().View(), Qt::Key_Delete);
    QSignalSpy kept(&window->Lost(), &Recovery::Kept);
    window->Lost().Keep();
    ASSERT_TRUE(kept.wait(kPatience));
    const QDir recovery(Recovery::Folder());
    for (const auto& copy : recovery.entryInfoList({"*.json", "*.path"}))
        QFile::copy(copy.filePath(), recovery.filePath("crashed." + copy.suffix()));

    StudioWindow next;
    next.show();
    next.Start({});
    auto& bar = *next.findChild<QWidget*>("lostOffer");
    ASSERT_TRUE(bar.isVisible());
    emit next.Files().Files().Failed("Something else");
    for (auto* button : bar.findChildren<QPushButton*>())
        if (button->text() == "Restore")
            QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&next] { return next.isWindowModified(); }, kPatience));
    EXPECT_FALSE(next.Document().Root()->FindChild("Video")->FindFormatPreset("MP4"));
    next.Document().SetContent(BuiltInContent(), {});
}

TEST_F(StudioWindowTest, LeadsFromAFindingToItsPreset)
{
    window->Tree().SelectByPath("Video/MKV");
    const auto preset = window->Tree().Current().preset;
    window->Document().EditPreset(preset, "Bounds",
                                  [](IVXFormatPreset& changed)
                                  {
                                      changed.SetMaxWidth(100);
                                      changed.SetMinWidth(200);
                                  });
    window->Tree().SelectByPath("Video/MP4");
    QSignalSpy found(&window->Presets(), &PresetActions::Found);
    QTest::keyClick(window.get(), Qt::Key_F7);
    ASSERT_TRUE(found.wait(kPatience));
    auto& view = The<QTableView>("findings");
    ASSERT_TRUE(
        QTest::qWaitFor([&view] { return view.isVisible() && view.model()->rowCount() > 0; }, kPatience));
    view.setCurrentIndex(view.model()->index(0, 0));
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(preset, window->Tree().Current().preset);
}

TEST_F(StudioWindowTest, ImportsPresetsAndSelectsThem)
{
    QSignalSpy imported(&window->Presets(), &PresetActions::Imported);
    const auto path = folder.filePath("theirs.json");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        R"({"PresetList": [{"PresetName": "Theirs", "FileFormat": "av_mp4", "VideoEncoder": "x264"}]})");
    file.close();
    window->Presets().Import(path);
    ASSERT_TRUE(imported.wait(kPatience));
    EXPECT_EQ("Theirs", NameOf(window->Tree().Current()));
    EXPECT_EQ("Import", window->Document().Undo().undoText());
}

TEST_F(StudioWindowTest, KeepsWhatWasConvertedAsRecentlyUsed)
{
    window->Tree().SelectByPath("Video/MKV");
    Convert();
    const auto recent = window->Document().Root()->FindChild("Recently Used");
    ASSERT_EQ(1, recent->FormatPresetCount());
    EXPECT_EQ("MKV", recent->FirstFormatPreset()->Name());
}

TEST_F(StudioWindowTest, KeepsWhatWasConvertedWithTheDocumentThatItBeganIn)
{
    const auto first = folder.filePath("first.json");
    const auto second = folder.filePath("second.json");
    SaveTo(second);
    SaveTo(first);
    window->Tree().SelectByPath("Video/MKV");
    const auto preset = window->Tree().Current().preset;
    emit window->Outcome().ConversionStarted();
    Open(second);
    emit window->Outcome().ConversionDone(preset, preset->Clone());
    EXPECT_EQ(1U, RecentStore::PresetsOf(first).size());
    EXPECT_TRUE(RecentStore::PresetsOf(second).empty());
    const auto recent = window->Document().Root()->FindChild("Recently Used");
    EXPECT_TRUE(!recent || recent->FormatPresetCount() == 0);
}

TEST_F(StudioWindowTest, CopiesByTheKeyboard)
{
    window->Tree().SelectByPath("Video/MP4");
    QTest::keyClick(&window->Tree().View(), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(&window->Tree().View(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ("MP4 2", NameOf(window->Tree().Current()));
    QTest::keyClick(&window->Tree().View(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ("Customised", window->Document().Tree().ParentOf(window->Tree().Current())->Name());
}

TEST_F(StudioWindowTest, PastesWhatWasCopiedWhateverBecameOfIt)
{
    window->Tree().SelectByPath("Video/MP4");
    const auto preset = window->Tree().Current().preset;
    const int width = preset->MaxWidth();
    QTest::keyClick(&window->Tree().View(), Qt::Key_C, Qt::ControlModifier);
    window->Document().EditPreset(preset, "Bounds",
                                  [](IVXFormatPreset& changed) { changed.SetMaxWidth(77); });
    QTest::keyClick(&window->Tree().View(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ("MP4 2", NameOf(window->Tree().Current()));
    EXPECT_EQ(width, window->Tree().Current().preset->MaxWidth());
}

TEST_F(StudioWindowTest, MovesByTheKeyboard)
{
    window->Tree().SelectByPath("Video/MP4");
    const auto item = window->Tree().Current();
    QTest::keyClick(&window->Tree().View(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(1, window->Document().Tree().PlaceOf(item).index);
    EXPECT_EQ(item, window->Tree().Current());
}

TEST_F(StudioWindowTest, HasNoShortcutTwice)
{
    QStringList shortcuts;
    for (const auto* action : window->findChildren<QAction*>())
        if (action->shortcutContext() == Qt::WindowShortcut) // others work where the keyboard is
            for (const auto& shortcut : action->shortcuts())
                shortcuts.append(shortcut.toString());
    auto once = shortcuts;
    once.removeDuplicates();
    shortcuts.sort();
    EXPECT_EQ(once.size(), shortcuts.size()) << qPrintable(shortcuts.join(' '));
}

TEST_F(StudioWindowTest, PastesNothingThatWasCutAmongTheRecentlyUsed)
{
    window->Tree().SelectByPath("Video/MKV");
    Convert();
    window->Tree().SelectByPath("Video/MP4");
    QTest::keyClick(&window->Tree().View(), Qt::Key_X, Qt::ControlModifier);
    const auto recent = window->Document().Root()->FindChild("Recently Used");
    window->Tree().Select({{recent}});
    QTest::keyClick(&window->Tree().View(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(1, recent->FormatPresetCount());
    window->Tree().Select({{window->Document().Root()->FindChild("Video")}});
    QTest::keyClick(&window->Tree().View(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(window->Document().Root()->FindChild("Video")->FindFormatPreset("MP4"));
}

TEST_F(StudioWindowTest, QuitsByKey)
{
    QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
}

} // namespace
