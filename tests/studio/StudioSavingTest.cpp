#include "StudioWindowFixture.h"

#include "apps/studio/document/TreeEditor.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/preset/QualityBitrate.h"
#include "apps/studio/window/StartOptions.h"
#include "tests/studio/Patience.h"

#include "IVXCodecPreset.h"
#include "IVXCodecQualityPreset.h"
#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QFileDialog>
#include <QLabel>
#include <QTreeView>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

/// What happens while a document is written, and after.
class StudioSavingTest : public StudioWindowTest
{
protected:
    /// Gives a preset what documents cannot hold.
    void ChooseOwnBitrate()
    {
        window->Tree().SelectByPath("Video/MP4");
        const auto chooseOwn = [](IVXFormatPreset& preset)
        {
            const auto codec = preset.VideoCodecPreset(1);
            for (int i = 0; i < codec->CodecQualityPresetCount(); ++i)
                if (codec->CodecQualityPresetAt(i)->IsCustom())
                    codec->SetIndexForQualityPresets(i);
        };
        window->Document().EditPreset(window->Tree().Current().preset, "Bitrate", chooseOwn);
        ASSERT_TRUE(HasOwnBitrate(*window->Tree().Current().preset->VideoCodecPreset(1)));
    }
};

TEST_F(StudioSavingTest, LocksEveryWayToChangeWhatIsBeingSaved)
{
    const auto path = folder.filePath("mine.json");
    SaveTo(path);
    TreeEditor(window->Document()).AddCategory(window->Document().Root(), "Mine");
    QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
    window->Files().Save();
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(saved.wait(kPatience));
    EXPECT_TRUE(window->Document().Root()->FindChild("Mine"));
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(window->Document().Root()->FindChild("Mine"));
}

TEST_F(StudioSavingTest, TakesNoLettersAndNoKeysOfTheTreeWhileItSaves)
{
    SaveTo(folder.filePath("mine.json"));
    window->Tree().SelectByPath("Video/MP4");
    const auto preset = window->Tree().Current().preset;
    QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
    window->Files().Save();
    QTest::keyClicks(&The<QLineEdit>("name"), "x");
    QTest::keyClick(&window->Tree().View(), Qt::Key_Delete);
    ASSERT_TRUE(saved.wait(kPatience));
    EXPECT_EQ("MP4", preset->Name());
    EXPECT_TRUE(window->Document().Tree().PlaceOf({{}, preset}).parent);
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(StudioSavingTest, KeepsWhatWasConvertedWhileItWasSaved)
{
    const auto path = folder.filePath("mine.json");
    SaveTo(path);
    window->Tree().SelectByPath("Video/MKV");
    QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
    window->Files().Save();
    Convert();
    ASSERT_TRUE(saved.wait(kPatience));
    const auto recent = window->Document().Root()->FindChild("Recently Used");
    EXPECT_TRUE(QTest::qWaitFor([&recent] { return recent->FormatPresetCount() == 1; }, kPatience));
    EXPECT_EQ(1U, RecentStore::PresetsOf(path).size());
}

TEST_F(StudioSavingTest, ShowsARecentlyUsedPresetThatIsConvertedStill)
{
    for (const auto* path : {"Video/MKV", "Video/MP4"})
    {
        window->Tree().SelectByPath(path);
        Convert();
    }
    window->Tree().SelectByPath("Recently Used/MKV");
    const auto shown = window->Tree().Current();
    Convert();
    EXPECT_EQ(shown, window->Tree().Current());
    EXPECT_EQ(0, window->Document().Tree().PlaceOf(shown).index);
}

TEST_F(StudioSavingTest, TellsOfABitrateOfOnesOwnThatTheFileDoesNotHold)
{
    SaveTo(folder.filePath("mine.json"));
    ChooseOwnBitrate();
    QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
    window->Files().Save();
    ASSERT_TRUE(saved.wait(kPatience));
    EXPECT_TRUE(The<QLabel>("message").text().contains("\"MP4\""))
        << qPrintable(The<QLabel>("message").text());
    EXPECT_TRUE(The<QWidget>("messageBar").isVisible());
}

TEST_F(StudioSavingTest, TellsWhileChangesCannotBePutBy)
{
    auto& line = The<QWidget>("lossMessage");
    emit window->Lost().FailureChanged("/recovery: No space left on device");
    EXPECT_TRUE(line.isVisible());
    EXPECT_TRUE(line.findChild<QLabel*>("message")->text().endsWith("/recovery: No space left on device"));
    emit window->Lost().FailureChanged("");
    EXPECT_FALSE(line.isVisible());
}

TEST_F(StudioSavingTest, SaysNoMoreWhyItFailedOnceItHasSaved)
{
    emit window->Files().Files().Failed("mine.json: is write-protected");
    EXPECT_TRUE(The<QWidget>("messageBar").isVisible());
    SaveTo(folder.filePath("other.json"));
    EXPECT_FALSE(The<QWidget>("messageBar").isVisible());
}

TEST_F(StudioSavingTest, GivesAFileItsEnding)
{
    QTimer::singleShot(50, window.get(),
                       [this]
                       {
                           auto* dialog = window->findChild<QFileDialog*>();
                           ASSERT_NE(nullptr, dialog);
                           EXPECT_EQ("json", dialog->defaultSuffix());
                           dialog->setDirectory(folder.path());
                           dialog->findChild<QLineEdit*>("fileNameEdit")->setText("mine");
                           static_cast<QDialog*>(dialog)->accept();
                       });
    QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
    window->Files().SaveAs();
    ASSERT_TRUE(saved.count() > 0 || saved.wait(kPatience));
    EXPECT_TRUE(QFileInfo::exists(folder.filePath("mine.json")));
}

TEST_F(StudioSavingTest, TellsOfABitrateOfOnesOwnThatACrashHasTaken)
{
    ChooseOwnBitrate();
    QSignalSpy kept(&window->Lost(), &Recovery::Kept);
    window->Lost().Keep();
    ASSERT_TRUE(kept.wait(kPatience));
    const QDir recovery(Recovery::Folder());
    for (const auto& copy : recovery.entryInfoList({"*.json", "*.path", "*.note"}))
        QFile::copy(copy.filePath(), recovery.filePath("crashed." + copy.suffix()));

    StudioWindow next;
    next.show();
    next.Start({});
    for (auto* button : next.findChild<QWidget*>("lostOffer")->findChildren<QPushButton*>())
        if (button->text() == "Restore")
            QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&next] { return !next.Files().Files().IsBusy(); }, kPatience));
    EXPECT_TRUE(next.findChild<QWidget*>("messageBar")->isVisible());
    EXPECT_TRUE(
        next.findChild<QWidget*>("messageBar")->findChild<QLabel*>("message")->text().contains("\"MP4\""));
    next.Document().SetContent(BuiltInContent(), {});
}

} // namespace
