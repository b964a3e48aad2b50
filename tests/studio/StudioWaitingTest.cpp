#include "apps/studio/document/Aside.h"
#include "apps/studio/document/TreeEditor.h"
#include "apps/studio/window/BusyLine.h"
#include "apps/studio/window/PresetActions.h"
#include "tests/studio/StudioWindowFixture.h"

#include "IVXFormatNode.h"

#include <QLabel>
#include <QMenuBar>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Vexlor::Studio
{

namespace
{

using namespace std::chrono_literals;

/// A file that never answers, as on a disk that is gone. Whoever reads it is let go in the end.
class Silence
{
public:
    explicit Silence(const QString& path) : m_path(path.toStdString())
    {
        EXPECT_EQ(0, ::mkfifo(m_path.c_str(), 0600));
    }
    ~Silence()
    {
        while (!AwaitAside(1ms))
            if (const int file = ::open(m_path.c_str(), O_WRONLY | O_NONBLOCK); file >= 0)
                ::close(file);
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

    QString Path() const { return QString::fromStdString(m_path); }

private:
    std::string m_path;
};

class StudioWaitingTest : public StudioWindowTest
{
protected:
    bool IsTold() { return The<BusyLine>("busyLine").isVisible(); }
    bool IsToldInTime()
    {
        return QTest::qWaitFor([this] { return IsTold(); }, kPatience);
    }
    QString Text() { return The<QLabel>("busyText").text(); }
    void Cancel() { QTest::mouseClick(&The<QPushButton>("cancelBusy"), Qt::LeftButton); }

    const Silence silent{folder.filePath("silent.json")};
};

TEST_F(StudioWaitingTest, TellsOfAFileThatDoesNotAnswer)
{
    window->Files().Open(silent.Path());
    ASSERT_TRUE(IsToldInTime());
    EXPECT_EQ("Reading \"silent.json\"…", Text());
}

TEST_F(StudioWaitingTest, GoesOnAsBeforeWhenReadingIsGivenUp)
{
    const auto before = window->Document().Root();
    window->Files().Open(silent.Path());
    ASSERT_TRUE(IsToldInTime());
    Cancel();
    EXPECT_FALSE(IsTold());
    EXPECT_TRUE(window->centralWidget()->isEnabled() && window->menuBar()->isEnabled());
    EXPECT_EQ(before, window->Document().Root());
}

TEST_F(StudioWaitingTest, GivesUpReadingWithAKey)
{
    window->Files().Open(silent.Path());
    ASSERT_TRUE(IsToldInTime());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_FALSE(window->Files().Files().IsBusy());
}

TEST_F(StudioWaitingTest, OpensAnotherFileAfterOneThatWasGivenUp)
{
    SaveTo(folder.filePath("good.json"));
    window->Files().New();
    window->Files().Open(silent.Path());
    window->Files().Files().GiveUpReading();
    Open(folder.filePath("good.json"));
    EXPECT_EQ(folder.filePath("good.json"), window->Document().Path());
}

TEST_F(StudioWaitingTest, ClosesWhileAFileIsRead)
{
    window->Files().Open(silent.Path());
    EXPECT_TRUE(window->close());
    window.reset();
    EXPECT_EQ(1, AsideCount()); // and nobody waits for it
}

TEST_F(StudioWaitingTest, AsksBeforeItClosesWhileAFileIsWritten)
{
    window->Files().Files().Save(folder.filePath("written.json"), true);
    AnswerNext(QMessageBox::No);
    EXPECT_FALSE(window->close());
}

TEST_F(StudioWaitingTest, LosesNothingWhenItClosesWhileAFileIsWritten)
{
    const auto path = folder.filePath("written.json");
    SaveTo(path);
    TreeEditor(window->Document()).AddCategory(window->Document().Root(), "Precious");
    ASSERT_TRUE(QFile::remove(path));
    const Silence disk(path);
    window->Files().Save();
    AnswerNext(QMessageBox::Yes);
    EXPECT_TRUE(window->close());
    window.reset();
    const auto lost = Recovery::FindLost();
    ASSERT_TRUE(lost);
    EXPECT_EQ(path, lost->path);
    EXPECT_TRUE(ReadContent(lost->recovery.toStdString()).root->FindChild("Precious"));
}

TEST_F(StudioWaitingTest, LeavesNothingToOfferOfAFileThatIsWrittenAfterAll)
{
    TreeEditor(window->Document()).AddCategory(window->Document().Root(), "Precious");
    QSignalSpy saved(&window->Files().Files(), &DocumentFiles::Saved);
    window->Files().Files().Save(folder.filePath("written.json"), true);
    window->Lost().Leave();
    ASSERT_TRUE(saved.wait(kPatience));
    window.reset();
    EXPECT_FALSE(Recovery::FindLost());
}

TEST_F(StudioWaitingTest, GivesUpAnImport)
{
    const auto before = window->Document().Root()->ChildCount();
    window->Presets().Import(silent.Path());
    ASSERT_TRUE(IsToldInTime());
    EXPECT_EQ("Importing \"silent.json\"…", Text());
    EXPECT_TRUE(window->centralWidget()->isEnabled()); // one may go on meanwhile
    Cancel();
    EXPECT_FALSE(IsTold());
    EXPECT_EQ(before, window->Document().Root()->ChildCount());
}

TEST_F(StudioWaitingTest, TellsNothingOfWhatIsDoneSoon)
{
    window->Presets().Check();
    ASSERT_TRUE(QTest::qWaitFor([] { return AsideCount() == 0; }, kPatience));
    QTest::qWait(600);
    EXPECT_FALSE(IsTold());
}

TEST(BusyLine, TellsOfWhatKeepsTheUserFirst)
{
    BusyLine line;
    line.Begin(BusyLine::Work::Document, "reading", nullptr);
    line.Begin(BusyLine::Work::Check, "checking", [] {});
    ASSERT_TRUE(QTest::qWaitFor([&line] { return line.isVisible(); }, kPatience));
    EXPECT_EQ("reading", line.findChild<QLabel*>("busyText")->text());
    EXPECT_TRUE(line.findChild<QPushButton*>("cancelBusy")->isHidden());
    line.End(BusyLine::Work::Document);
    EXPECT_EQ("checking", line.findChild<QLabel*>("busyText")->text());
    line.End(BusyLine::Work::Check);
    EXPECT_TRUE(line.isHidden());
}

TEST(AsideWork, IsNotHeardOfWhenItIsAbandoned)
{
    AsideWork work;
    bool isHeard = false;
    work.Start<int>([] { return 1; }, [&isHeard](const auto&) { isHeard = true; });
    work.Abandon();
    ASSERT_TRUE(AwaitAside(10s));
    QCoreApplication::processEvents();
    EXPECT_FALSE(isHeard);
}

TEST(AsideWork, TellsWhyItFailed)
{
    AsideWork work;
    QString error;
    work.Start<int>([]() -> int { throw std::runtime_error("broken"); },
                    [&error](const auto& result) { error = result.error; });
    ASSERT_TRUE(QTest::qWaitFor([&error] { return !error.isEmpty(); }, kPatience));
    EXPECT_EQ("broken", error);
}

TEST(AsideWork, IsWaitedForNoLongerThanIsAsked)
{
    std::promise<void> end;
    AsideWork work;
    work.Start<int>([waits = end.get_future().share()] { return waits.wait(), 1; }, [](const auto&) {});
    EXPECT_FALSE(AwaitAside(20ms));
    end.set_value();
    EXPECT_TRUE(AwaitAside(10s));
}

} // namespace

} // namespace Vexlor::Studio
