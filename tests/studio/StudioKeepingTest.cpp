#include "StudioWindowFixture.h"

#include "apps/studio/document/Aside.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/outcome/SourceLoader.h"
#include "apps/studio/window/Screenshot.h"
#include "apps/studio/window/StartOptions.h"
#include "tests/media/MediaMaker.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QAction>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QImage>
#include <QLockFile>
#include <QMenu>
#include <QSemaphore>
#include <QSplitter>
#include <QStatusBar>
#include <QTreeView>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

/// What outlives a session, and what does not.
class StudioKeepingTest : public StudioWindowTest
{
protected:
    ~StudioKeepingTest() override { Themes().Use(Theme::System); }

    void Convert(const char* path)
    {
        window->Tree().SelectByPath(path);
        StudioWindowTest::Convert();
    }
    std::string Recent()
    {
        std::string names;
        const auto category = window->Document().Root()->FindChild("Recently Used");
        for (int i = 0; category && i < category->FormatPresetCount(); ++i)
            names += category->GetFormatPreset(i)->Name() + ' ';
        return names;
    }
    /// Ends the program as a user does, who is asked nothing.
    void Restart()
    {
        ASSERT_TRUE(window->close());
        OpenWindow();
    }
    void OpenFilm()
    {
        QSignalSpy opened(&window->Outcome(), &OutcomePane::SourceOpened);
        window->Outcome().OpenSource(QString::fromStdString(Media::Clip("film.mp4")));
        ASSERT_TRUE(opened.wait(kPatience));
    }
};

TEST_F(StudioKeepingTest, KeepsRecentlyUsedPresetsOfTheBuiltInOnes)
{
    Convert("Video/MKV");
    Convert("Video/MP4");
    Restart();
    EXPECT_EQ("MP4 MKV ", Recent());
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(StudioKeepingTest, KeepsRecentlyUsedPresetsOfADocumentThatIsNotSaved)
{
    const auto path = folder.filePath("mine.json");
    SaveTo(path);
    Convert("Video/MKV");
    EXPECT_FALSE(window->isWindowModified());
    Restart();
    EXPECT_EQ("", Recent());
    Open(path);
    EXPECT_EQ("MKV ", Recent());
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(StudioKeepingTest, PutsTheRecentlyUsedPresetsInFrontOfThoseOfTheFile)
{
    const auto path = folder.filePath("mine.json");
    SaveTo(path);
    Convert("Video/MKV");
    Convert("Video/MP4");
    SaveTo(path);
    EXPECT_TRUE(RecentStore::PresetsOf(path).empty());
    Convert("Video/MOV");
    Convert("Recently Used/MKV");
    Restart();
    Open(path);
    EXPECT_EQ("MKV MOV MP4 ", Recent());
}

TEST_F(StudioKeepingTest, TellsWhyRecentlyUsedPresetsAreNotBroughtBack)
{
    Convert("Video/MKV");
    QFile file(RecentStore::Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{broken");
    file.close();
    Restart();
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return window->statusBar()->currentMessage().contains("recent.json:1:"); }, kPatience))
        << qPrintable(window->statusBar()->currentMessage());
    EXPECT_EQ("", Recent());
    Convert("Video/MP4");
    EXPECT_EQ("MP4 ", Recent());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ("{broken", file.readAll());
}

TEST_F(StudioKeepingTest, KeepsItsSize)
{
    window->resize(1111, 777);
    Restart();
    EXPECT_EQ(QSize(1111, 777), window->size());
}

TEST_F(StudioKeepingTest, KeepsThePlacesOfThePanes)
{
    window->resize(1400, 800);
    The<QSplitter>("panes").setSizes({200, 600, 600});
    const auto sizes = The<QSplitter>("panes").sizes();
    Restart();
    QCoreApplication::processEvents();
    EXPECT_EQ(sizes, The<QSplitter>("panes").sizes());
}

TEST_F(StudioKeepingTest, KeepsItsColours)
{
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier | Qt::AltModifier);
    const auto dark = QApplication::palette().color(QPalette::Window);
    Themes().Use(Theme::Light);
    Restart();
    EXPECT_EQ(dark, QApplication::palette().color(QPalette::Window));
}

TEST_F(StudioKeepingTest, KeepsHowPicturesFit)
{
    window->Tree().SelectByPath("Video/MP4");
    OpenFilm();
    auto& fit = The<QComboBox>("pictureFit");
    fit.setFocus();
    QTest::keyClick(&fit, Qt::Key_Down);
    ASSERT_EQ(1, fit.currentIndex());
    Restart();
    EXPECT_EQ(1, The<QComboBox>("pictureFit").currentIndex());
}

TEST_F(StudioKeepingTest, KeepsTheFolderOfTheLastOutput)
{
    window->Tree().SelectByPath("Audio/WAV");
    OpenFilm();
    window->Outcome().ConvertTo(folder.filePath("out.wav"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->Outcome().IsConverting(); }, kPatience));
    Restart();
    window->Tree().SelectByPath("Audio/WAV");
    OpenFilm();
    QTest::mouseClick(&The<QPushButton>("convert"), Qt::LeftButton);
    auto* dialog = window->findChild<QFileDialog*>();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(folder.path(), dialog->directory().path());
}

TEST_F(StudioKeepingTest, TakesWhatIsNoHabitForNone)
{
    QSettings().setValue("output/fitting", "pink");
    QSettings().setValue("output/folder", 7);
    OpenWindow();
    EXPECT_EQ(0, The<QComboBox>("pictureFit").currentIndex());
}

/// A picture is taken of the window, as --screenshot does.
class ScreenshotTest : public StudioKeepingTest
{
protected:
    ~ScreenshotTest() override
    {
        AwaitAside(std::chrono::milliseconds(kPatience));
    } // what waits for the gate

    int Take(int patience = kPatience)
    {
        TakeScreenshotAndEnd(*window, picture, patience);
        return QApplication::exec();
    }
    /// Has media read no sooner than it is released.
    void ReadSlowly()
    {
        window->Outcome().findChild<SourceLoader*>()->SetReader(
            [this](const QString& path)
            {
                gate.acquire();
                return ReadMediaFile(path.toStdString());
            });
    }

    QString picture = folder.filePath("window.png");
    QSemaphore gate;
};

TEST_F(ScreenshotTest, IsOfTheWindow)
{
    EXPECT_EQ(0, Take());
    EXPECT_EQ(window->size() * window->devicePixelRatio(), QImage(picture).size());
}

TEST_F(ScreenshotTest, WaitsUntilTheSourceIsRead)
{
    ReadSlowly();
    StartOptions options;
    options.screenshot = picture;
    options.source = QString::fromStdString(Media::Clip("film.mp4"));
    window->Start(options);
    bool isRead = false;
    QObject::connect(&window->Outcome(), &OutcomePane::SourceOpened, window.get(),
                     [&isRead] { isRead = true; });
    QTimer::singleShot(2500, window.get(), [this] { gate.release(); });
    EXPECT_EQ(0, Take());
    EXPECT_TRUE(isRead);
}

TEST_F(ScreenshotTest, FailsWhereTheWindowDoesNotComeToRest)
{
    ReadSlowly();
    window->Outcome().OpenSource(QString::fromStdString(Media::Clip("film.mp4")));
    EXPECT_EQ(1, Take(600));
    EXPECT_FALSE(QFile::exists(picture));
    gate.release();
}

TEST_F(ScreenshotTest, FailsWhereTheFileCannotBeWritten)
{
    picture = folder.filePath("no folder/window.png");
    EXPECT_EQ(1, Take());
}

struct Unshown
{
    const char* name;
    StartOptions options;
    const char* told;
};

class UnshownTest : public ScreenshotTest, public testing::WithParamInterface<Unshown>
{
};

TEST_P(UnshownTest, MakesAScreenshotFail)
{
    auto options = GetParam().options;
    options.screenshot = picture;
    window->Start(options);
    testing::internal::CaptureStderr();
    EXPECT_EQ(1, Take());
    const auto told = testing::internal::GetCapturedStderr();
    EXPECT_NE(std::string::npos, told.find(GetParam().told)) << told;
    EXPECT_FALSE(QFile::exists(picture));
}

INSTANTIATE_TEST_SUITE_P(
    Things, UnshownTest,
    testing::Values(Unshown{"Preset", {.preset = "Video/None"}, "There is no preset \"Video/None\"."},
                    Unshown{"Source", {.source = "/nowhere/film.mp4"}, "/nowhere/film.mp4: "},
                    Unshown{"Document", {.document = "/nowhere/mine.json"}, "/nowhere/mine.json: "}),
    [](const auto& test) { return test.param.name; });

TEST_F(ScreenshotTest, LeavesNoTraceInTheSettings)
{
    const auto path = folder.filePath("mine.json");
    SaveTo(path);
    OpenWindow();
    QSettings().clear();
    StartOptions options;
    options.document = path;
    options.source = QString::fromStdString(Media::Clip("film.mp4"));
    options.theme = "dark";
    options.size = {900, 700};
    options.screenshot = picture;
    QSignalSpy opened(&window->Files().Files(), &DocumentFiles::Opened);
    window->Start(options);
    EXPECT_EQ(0, Take());
    EXPECT_EQ(1, opened.count());
    window->close();
    EXPECT_EQ(QStringList(), QSettings().allKeys());
}

TEST_F(StudioKeepingTest, KeepsRecentlyUsedPresetsOnceTheirFileIsFree)
{
    Convert("Video/MKV");
    QLockFile other(RecentStore::LockPath());
    ASSERT_TRUE(other.lock());
    QElapsedTimer clock;
    clock.start();
    Convert("Video/MP4");
    EXPECT_LT(clock.elapsed(), 1500);
    EXPECT_EQ("MP4 MKV ", Recent());
    EXPECT_EQ(1U, RecentStore::PresetsOf({}).size());
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return window->statusBar()->currentMessage().contains("another program"); }, kPatience));
    other.unlock();
    EXPECT_TRUE(QTest::qWaitFor([] { return RecentStore::PresetsOf({}).size() == 2; }, kPatience));
}

} // namespace
