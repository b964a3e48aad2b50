#include "StudioWindowFixture.h"

#include "apps/studio/document/TreeEditor.h"

#include "IVXFormatNode.h"

#include <QFileDialog>
#include <QLabel>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

/// What the line above the panes tells, and what its buttons do.
class StudioMessagesTest : public StudioWindowTest
{
protected:
    StudioMessagesTest() { SaveTo(path); }

    void AddCategory(const char* name)
    {
        TreeEditor(window->Document()).AddCategory(window->Document().Root(), name);
    }
    bool Has(const char* name) { return window->Document().Root()->FindChild(name) != nullptr; }

    /// Another program writes the document that a window shows.
    void WriteAsAnother(const char* category)
    {
        StudioDocument other;
        TreeEditor(other).AddCategory(other.Root(), category);
        DocumentFiles files(other);
        QSignalSpy saved(&files, &DocumentFiles::Saved);
        files.Save(path, true);
        ASSERT_TRUE(saved.wait(kPatience));
    }

    QPushButton* Button(const QString& text)
    {
        for (auto* button : The<QWidget>("messageBar").findChildren<QPushButton*>())
            if (button->isVisible() && button->text() == text)
                return button;
        return nullptr;
    }
    void Press(const char* text)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return Button(text) != nullptr; }, kPatience)) << text;
        QTest::mouseClick(Button(text), Qt::LeftButton);
    }

    /// Names the file that the next dialog asks for.
    void NameNext(const QString& name)
    {
        QTimer::singleShot(50, window.get(),
                           [this, name]
                           {
                               auto* dialog = window->findChild<QFileDialog*>();
                               ASSERT_NE(nullptr, dialog);
                               dialog->setDirectory(folder.path());
                               dialog->findChild<QLineEdit*>("fileNameEdit")->setText(name);
                               static_cast<QDialog*>(dialog)->accept();
                           });
    }

    /// Saves what another program has changed, which is refused.
    void SaveAfterAnother()
    {
        AddCategory("Mine");
        WriteAsAnother("Theirs");
        QSignalSpy refused(&window->Files().Files(), &DocumentFiles::SaveRefused);
        window->Files().Save();
        ASSERT_TRUE(refused.wait(kPatience));
    }

    /// Saves what cannot be written.
    void SaveInVain()
    {
        AddCategory("Mine");
        QFile::setPermissions(path, QFile::ReadOwner);
        QSignalSpy failed(&window->Files().Files(), &DocumentFiles::Failed);
        window->Files().Save();
        ASSERT_TRUE(failed.wait(kPatience));
    }

    QString path = folder.filePath("mine.json");
};

TEST_F(StudioMessagesTest, ReloadShowsWhatAnotherProgramHasWritten)
{
    WriteAsAnother("Theirs");
    Press("Reload");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Has("Theirs"); }, kPatience));
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(StudioMessagesTest, CloseLeavesWhatIsShownAsItIs)
{
    WriteAsAnother("Theirs");
    Press("Close");
    EXPECT_FALSE(The<QWidget>("messageBar").isVisible());
    EXPECT_FALSE(Has("Theirs"));
}

TEST_F(StudioMessagesTest, OverwriteReplacesWhatAnotherProgramHasWritten)
{
    SaveAfterAnother();
    QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
    Press("Overwrite");
    ASSERT_TRUE(saved.wait(kPatience));
    Open(path);
    EXPECT_TRUE(Has("Mine"));
    EXPECT_FALSE(Has("Theirs"));
}

TEST_F(StudioMessagesTest, SaveAsKeepsBothFiles)
{
    SaveAfterAnother();
    QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
    NameNext("both.json");
    Press("Save As…");
    ASSERT_TRUE(saved.count() > 0 || saved.wait(kPatience));
    EXPECT_EQ(folder.filePath("both.json"), window->Document().Path());
    Open(path);
    EXPECT_TRUE(Has("Theirs"));
}

TEST_F(StudioMessagesTest, OfferAnotherFileWhereSavingFails)
{
    SaveInVain();
    QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
    NameNext("elsewhere.json");
    Press("Save As…");
    ASSERT_TRUE(saved.count() > 0 || saved.wait(kPatience));
    EXPECT_EQ(folder.filePath("elsewhere.json"), window->Document().Path());
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(StudioMessagesTest, TellWhySavingFailed)
{
    SaveInVain();
    EXPECT_EQ(path + ": is write-protected", The<QLabel>("message").text());
}

TEST_F(StudioMessagesTest, OfferNoFileWhereOpeningFails)
{
    QSignalSpy failed(&window->Files().Files(), &DocumentFiles::Failed);
    window->Files().Open(folder.filePath("gone.json"));
    ASSERT_TRUE(failed.wait(kPatience));
    EXPECT_EQ(nullptr, Button("Save As…"));
}

} // namespace
