#include "StudioWindowFixture.h"

#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/window/RecentFiles.h"
#include "tests/media/MediaMaker.h"

#include "IVXFormatNode.h"

#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

/// Files that come by being dropped, or out of the menus of those that were opened last.
class StudioFilesTest : public StudioWindowTest
{
protected:
    /// Drops the file on the window. Answers whether it was taken.
    bool Drop(const QUrl& file)
    {
        QMimeData data;
        data.setUrls({file});
        QDragEnterEvent entry({40, 40}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &entry);
        QDropEvent event({40, 40}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        event.ignore();
        QApplication::sendEvent(window.get(), &event);
        return event.isAccepted();
    }
    bool Drop(const QString& path) { return Drop(QUrl::fromLocalFile(path)); }

    RecentFiles& Menu(const char* title)
    {
        for (auto* menu : window->findChildren<RecentFiles*>())
            if (menu->title() == title)
                return *menu;
        ADD_FAILURE() << title;
        return *window->findChild<RecentFiles*>();
    }
    RecentFiles& Documents() { return Menu("Open &Recent"); }
    RecentFiles& Media() { return Menu("Open Recent M&edia"); }

    void Trigger(const RecentFiles& menu, const QString& beginning)
    {
        for (auto* action : menu.actions())
            if (action->text().startsWith(beginning))
                return action->trigger();
        ADD_FAILURE() << beginning.toStdString();
    }

    void OpenClip()
    {
        QSignalSpy opened(&window->Outcome(), &OutcomePane::SourceOpened);
        ASSERT_TRUE(Drop(clip));
        ASSERT_TRUE(opened.wait(kPatience));
    }

    QString document = folder.filePath("mine.json");
    QString clip = QString::fromStdString(Media::Clip("film.mp4"));
};

TEST_F(StudioFilesTest, OpensADocumentThatIsDropped)
{
    SaveTo(document);
    window->Files().New();
    QSignalSpy opened(&window->Files().Files(), &DocumentFiles::Opened);
    EXPECT_TRUE(Drop(document));
    ASSERT_TRUE(opened.wait(kPatience));
    EXPECT_EQ(document, window->Document().Path());
}

TEST_F(StudioFilesTest, ImportsAnEncodingTargetThatIsDropped)
{
    QFile file(folder.filePath("target.gep"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[GStreamer Encoding Target]\nname=clip\ncategory=device\n\n[profile-dropped]\nname=dropped\n"
               "type=container\nformat=video/quicktime,variant=iso\n\n[streamprofile-dropped]\n"
               "parent=dropped\ntype=video\nformat=video/x-h264\n");
    file.close();
    const auto categories = window->Document().Root()->ChildCount();
    EXPECT_TRUE(Drop(file.fileName()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->Document().Root()->ChildCount() == categories + 1; },
                                kPatience));
}

TEST_F(StudioFilesTest, OpensADocumentThatIsDroppedOnThePaneOfMedia)
{
    const auto path = folder.filePath("mine.JSON");
    SaveTo(path);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window->Outcome(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QSignalSpy opened(&window->Files().Files(), &DocumentFiles::Opened);
    QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window->Outcome(), &drop);
    EXPECT_TRUE(opened.wait(kPatience));
}

TEST_F(StudioFilesTest, TellsThatNoDocumentIsTakenWhileAnotherIsWritten)
{
    window->Files().Files().Save(folder.filePath("written.json"), true);
    ASSERT_TRUE(window->Files().Files().IsBusy());
    EXPECT_FALSE(Drop(folder.filePath("mine.json")));
    EXPECT_TRUE(window->statusBar()->currentMessage().startsWith("\"mine.json\" was not opened"))
        << qPrintable(window->statusBar()->currentMessage());
}

TEST_F(StudioFilesTest, TellsWhyNothingCanBeConverted)
{
    QTest::keyClick(window.get(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ("There is no source to convert.", window->statusBar()->currentMessage());
}

TEST_F(StudioFilesTest, OpensMediaThatAreDropped)
{
    OpenClip();
    EXPECT_EQ(QStringList(clip), Media().Paths());
}

TEST_F(StudioFilesTest, LeavesAloneWhatIsNoFileHere)
{
    EXPECT_FALSE(Drop(QUrl("https://example.org/mine.json")));
    EXPECT_FALSE(window->Files().Files().IsBusy());
}

TEST_F(StudioFilesTest, OpensADocumentOfTheMenu)
{
    SaveTo(document);
    window->Files().New();
    QSignalSpy opened(&window->Files().Files(), &DocumentFiles::Opened);
    Trigger(Documents(), "&1  mine.json");
    ASSERT_TRUE(opened.wait(kPatience));
    EXPECT_EQ(document, window->Document().Path());
}

TEST_F(StudioFilesTest, OpensMediaOfTheMenu)
{
    OpenClip();
    QSignalSpy opened(&window->Outcome(), &OutcomePane::SourceOpened);
    Trigger(Media(), "&1  ");
    EXPECT_TRUE(opened.wait(kPatience));
}

TEST_F(StudioFilesTest, HaveTheLastInFrontAndEachOnce)
{
    const auto other = folder.filePath("other.json");
    for (const auto& path : {document, other, document})
        SaveTo(path);
    EXPECT_EQ((QStringList{document, other}), Documents().Paths());
}

TEST_F(StudioFilesTest, OfferNoMoreThanAMenuHolds)
{
    for (int i = 0; i < RecentFiles::kMost + 2; ++i)
        Documents().Add(folder.filePath(QString::number(i)));
    EXPECT_EQ(RecentFiles::kMost, Documents().Paths().size());
    EXPECT_EQ(folder.filePath("9"), Documents().Paths().front());
}

TEST_F(StudioFilesTest, AreStillInTheMenuOfTheNextWindow)
{
    SaveTo(document);
    OpenWindow();
    EXPECT_EQ(QStringList(document), Documents().Paths());
    EXPECT_TRUE(Documents().isEnabled());
}

TEST_F(StudioFilesTest, AreForgottenByClearList)
{
    SaveTo(document);
    Trigger(Documents(), "&Clear List");
    EXPECT_EQ(QStringList(), Documents().Paths());
    EXPECT_FALSE(Documents().isEnabled());
    OpenWindow();
    EXPECT_EQ(QStringList(), Documents().Paths());
}

} // namespace
