#include "apps/studio/document/Recovery.h"

#include "apps/studio/document/DocumentFiles.h"
#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"
#include "tests/studio/Patience.h"

#include "IVXFormatNode.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

class RecoveryTest : public testing::Test
{
protected:
    RecoveryTest() { QDir(Recovery::Folder()).removeRecursively(); }

    static void Change(StudioDocument& document)
    {
        TreeEditor(document).AddCategory(document.Root(), "Precious");
    }

    static void KeepNow(Recovery& recovery)
    {
        QSignalSpy kept(&recovery, &Recovery::Kept);
        recovery.Keep();
        ASSERT_TRUE(kept.wait(kPatience));
    }

    /// Restores what a crash has left; answers why not.
    static std::string Restore(Recovery& recovery, StudioDocument& document)
    {
        DocumentFiles files(document);
        const QSignalSpy failures(&files, &DocumentFiles::Failed);
        recovery.Recover(*Recovery::FindLost(), files);
        EXPECT_TRUE(files.IsReading());
        EXPECT_TRUE(QTest::qWaitFor([&files] { return !files.IsBusy(); }, kPatience));
        return failures.isEmpty() ? "" : failures.front().front().toString().toStdString();
    }

    static QStringList Copies() { return QDir(Recovery::Folder()).entryList({"*.json"}); }

    /// Restores a document after a crash and saves it over its file, which holds that text by then; whether
    /// it was saved.
    static bool IsSavedOver(const QString& path, const std::string& text)
    {
        WriteAnyway(path.toStdString(), text);
        StudioDocument document;
        Recovery recovery(document);
        EXPECT_EQ("", Restore(recovery, document));
        DocumentFiles files(document);
        QSignalSpy saved(&files, &DocumentFiles::Saved);
        QSignalSpy refused(&files, &DocumentFiles::SaveRefused);
        files.Save(path, false);
        EXPECT_TRUE(QTest::qWaitFor([&] { return saved.count() + refused.count() > 0; }, kPatience));
        return saved.count() > 0;
    }

    /// What is left when a program with that change does not end in order: its files but for the lock.
    static void Crash(const QString& path = {})
    {
        StudioDocument document;
        if (!path.isEmpty())
            document.SetContent(ReadContent(path.toStdString()), path);
        Recovery recovery(document);
        Change(document);
        KeepNow(recovery);
        const QDir folder(Recovery::Folder());
        for (const auto& copy : folder.entryInfoList({"*.json", "*.path"}))
            QFile::copy(copy.filePath(), folder.filePath("crashed." + copy.suffix()));
    }
};

TEST_F(RecoveryTest, KeepsACopyAfterAChange)
{
    StudioDocument document;
    Recovery recovery(document);
    QSignalSpy kept(&recovery, &Recovery::Kept);
    recovery.SetDelay(1);
    EXPECT_TRUE(Copies().isEmpty());
    Change(document);
    ASSERT_TRUE(kept.wait(kPatience));
    EXPECT_EQ(1, Copies().size());
}

TEST_F(RecoveryTest, RemovesTheCopyWhenThereIsNothingToLose)
{
    StudioDocument document;
    Recovery recovery(document);
    Change(document);
    KeepNow(recovery);
    document.Undo().undo();
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(RecoveryTest, LeavesNothingWhenItEndsInOrder)
{
    {
        StudioDocument document;
        Recovery recovery(document);
        Change(document);
        KeepNow(recovery);
    }
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_FALSE(Recovery::FindLost());
}

TEST_F(RecoveryTest, DoesNotTakeTheCopyOfAProgramThatRuns)
{
    StudioDocument document;
    Recovery recovery(document);
    Change(document);
    KeepNow(recovery);
    EXPECT_FALSE(Recovery::FindLost());
}

TEST_F(RecoveryTest, FindsWhatACrashHasLeft)
{
    Crash();
    const auto lost = Recovery::FindLost();
    ASSERT_TRUE(lost);
    EXPECT_EQ("", lost->path);
    EXPECT_LT(lost->saved.secsTo(QDateTime::currentDateTime()), 60);
}

TEST_F(RecoveryTest, RestoresItAsChangesThatAreToBeSaved)
{
    Crash();
    StudioDocument document;
    Recovery recovery(document);
    EXPECT_EQ("", Restore(recovery, document));
    EXPECT_TRUE(document.Root()->FindChild("Precious"));
    EXPECT_TRUE(document.IsModified());
    EXPECT_FALSE(Recovery::FindLost());
}

TEST_F(RecoveryTest, LeavesItWhereTheReadingIsGivenUp)
{
    Crash();
    StudioDocument document;
    Recovery recovery(document);
    DocumentFiles files(document);
    recovery.Recover(*Recovery::FindLost(), files);
    EXPECT_FALSE(document.IsModified()); // for the window does not wait
    files.GiveUpReading();
    EXPECT_TRUE(QTest::qWaitFor([] { return Recovery::FindLost().has_value(); }, kPatience));
    EXPECT_FALSE(document.Root()->FindChild("Precious"));
}

TEST_F(RecoveryTest, OffersItToNobodyElseWhileItIsRestored)
{
    Crash();
    StudioDocument document;
    Recovery recovery(document);
    DocumentFiles files(document);
    recovery.Recover(*Recovery::FindLost(), files);
    EXPECT_FALSE(Recovery::FindLost());
    EXPECT_TRUE(QTest::qWaitFor([&files] { return !files.IsBusy(); }, kPatience));
}

TEST_F(RecoveryTest, DiscardsIt)
{
    Crash();
    Recovery::Discard(*Recovery::FindLost());
    EXPECT_FALSE(Recovery::FindLost());
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(RecoveryTest, TellsWhyACopyCannotBeRestored)
{
    Crash();
    const auto lost = Recovery::FindLost();
    QFile file(lost->recovery);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{");
    file.close();
    StudioDocument document;
    Recovery recovery(document);
    EXPECT_NE("", Restore(recovery, document));
    EXPECT_FALSE(document.Root()->FindChild("Precious"));
    EXPECT_TRUE(Recovery::FindLost());
}

TEST_F(RecoveryTest, DoesNotOverwriteWhatAnotherProgramHasWrittenSinceTheCrash)
{
    const QTemporaryDir folder;
    const auto path = folder.filePath("mine.json");
    WriteAnyway(path.toStdString(), R"({"name": "before"})");
    Crash(path);
    EXPECT_FALSE(IsSavedOver(path, R"({"name": "of another"})"));
    EXPECT_EQ("of another", ReadContent(path.toStdString()).root->Name());
}

TEST_F(RecoveryTest, SavesOverTheFileThatIsAsItWasBeforeTheCrash)
{
    const QTemporaryDir folder;
    const auto path = folder.filePath("mine.json");
    WriteAnyway(path.toStdString(), R"({"name": "before"})");
    Crash(path);
    EXPECT_TRUE(IsSavedOver(path, R"({"name": "before"})"));
    EXPECT_TRUE(ReadContent(path.toStdString()).root->FindChild("Precious"));
}

TEST_F(RecoveryTest, HasTheRestoredCopyAtEveryMoment)
{
    Crash();
    StudioDocument document;
    Recovery recovery(document);
    ASSERT_EQ("", Restore(recovery, document));
    EXPECT_EQ(1, Copies().size());
}

TEST_F(RecoveryTest, TellsOfEachReasonThatStandsInItsWayOnce)
{
    StudioDocument document;
    Recovery recovery(document);
    QSignalSpy told(&recovery, &Recovery::FailureChanged);
    QDir(Recovery::Folder()).removeRecursively();
    QFile inTheWay(Recovery::Folder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    Change(document);
    KeepNow(recovery);
    KeepNow(recovery);
    ASSERT_EQ(1, told.count());
    const auto reason = told.front().front().toString();
    EXPECT_TRUE(reason.startsWith(Recovery::Folder() + '/')) << qPrintable(reason);
    EXPECT_TRUE(reason.endsWith(": Not a directory")) << qPrintable(reason);
    ASSERT_TRUE(inTheWay.remove());
    KeepNow(recovery);
    ASSERT_EQ(2, told.count());
    EXPECT_EQ("", told.back().front().toString());
    EXPECT_EQ(1, Copies().size());
    EXPECT_FALSE(Recovery::FindLost()); // for it is locked again
}

TEST_F(RecoveryTest, TriesAgainByItself)
{
    StudioDocument document;
    Recovery recovery(document);
    recovery.SetDelay(1);
    QSignalSpy told(&recovery, &Recovery::FailureChanged);
    QDir(Recovery::Folder()).removeRecursively();
    QFile inTheWay(Recovery::Folder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    Change(document);
    ASSERT_TRUE(told.wait(kPatience));
    ASSERT_TRUE(inTheWay.remove());
    EXPECT_TRUE(QTest::qWaitFor([&told] { return told.count() == 2; }, kPatience));
}

} // namespace
