#include "apps/studio/document/DocumentFiles.h"

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"
#include "tests/studio/Patience.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

constexpr auto* kText = R"({
  "mine": "kept",
  "name": "Root",
  "childList": [ { "name": "A", "formatPresetList": [ { "name": "one", "formatName": "WAV", "secret": 1 } ] } ]
}
)";

class DocumentFilesTest : public testing::Test
{
protected:
    DocumentFilesTest() { Write(kText); }

    void Write(const QByteArray& text) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    QByteArray Read() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void Open()
    {
        files.Open(path);
        Wait();
        ASSERT_EQ(path, document.Path());
    }

    void Save(bool overwrites = false)
    {
        files.Save(path, overwrites);
        Wait();
    }

    void Wait()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !files.IsBusy(); }, kPatience));
    }

    void RenameFirst(const QString& name)
    {
        TreeEditor(document).Rename({{}, document.Root()->GetChild(0)->FirstFormatPreset()}, name);
    }

    QTemporaryDir folder;
    QString path = folder.filePath("mine.json");
    StudioDocument document;
    DocumentFiles files{document};
    QSignalSpy failures{&files, &DocumentFiles::Failed};
    QSignalSpy refusals{&files, &DocumentFiles::SaveRefused};
};

TEST_F(DocumentFilesTest, OpensADocument)
{
    Open();
    EXPECT_EQ("A", document.Root()->GetChild(0)->Name());
    EXPECT_EQ("mine.json", document.Title());
    EXPECT_FALSE(document.IsModified());
}

TEST_F(DocumentFilesTest, TellsWhereATextIsNoJsonAndKeepsWhatIsOpen)
{
    Write("{ \"name\": \n oops }");
    files.Open(path);
    Wait();
    ASSERT_EQ(1, failures.count());
    EXPECT_TRUE(failures.at(0).at(0).toString().startsWith(path + ":2:2:"))
        << qPrintable(failures.at(0).at(0).toString());
    EXPECT_EQ("", document.Path());
    EXPECT_GT(document.Root()->ChildCount(), 3);
}

TEST_F(DocumentFilesTest, TellsThatAFileIsNotThere)
{
    files.Open(folder.filePath("none.json"));
    Wait();
    EXPECT_EQ(1, failures.count());
}

TEST_F(DocumentFilesTest, TellsThatPresetsOfAnotherProgramAreToBeImported)
{
    Write(R"({"PresetList": [{"PresetName": "Theirs"}]})");
    files.Open(path);
    Wait();
    ASSERT_EQ(1, failures.count());
    EXPECT_TRUE(failures.at(0).at(0).toString().contains("imported"));
}

TEST_F(DocumentFilesTest, SavesWhatWasChangedAndNothingElse)
{
    Open();
    RenameFirst("two");
    EXPECT_TRUE(document.IsModified());
    Save();
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(QByteArray(kText).replace("\"one\"", "\"two\""), Read());
}

TEST_F(DocumentFilesTest, SavesAgainAfterSaving)
{
    Open();
    RenameFirst("two");
    Save();
    RenameFirst("three");
    Save();
    EXPECT_EQ(QByteArray(kText).replace("\"one\"", "\"three\""), Read());
    document.Undo().setIndex(0);
    EXPECT_TRUE(document.IsModified());
    Save();
    EXPECT_EQ(kText, Read());
}

TEST_F(DocumentFilesTest, NeverOverwritesWhatSomebodyElseWrote)
{
    Open();
    RenameFirst("two");
    Write("{\"name\": \"theirs\"}");
    Save();
    EXPECT_EQ(1, refusals.count());
    EXPECT_TRUE(document.IsModified());
    EXPECT_EQ("{\"name\": \"theirs\"}", Read());
}

TEST_F(DocumentFilesTest, OverwritesItWhenToldTo)
{
    Open();
    RenameFirst("two");
    Write("{\"name\": \"theirs\"}");
    Save(true);
    EXPECT_EQ(QByteArray(kText).replace("\"one\"", "\"two\""), Read());
    EXPECT_FALSE(document.IsModified());
}

TEST_F(DocumentFilesTest, SavesWhereTheFileHasGone)
{
    Open();
    RenameFirst("two");
    QFile::remove(path);
    Save();
    EXPECT_EQ(QByteArray(kText).replace("\"one\"", "\"two\""), Read());
}

TEST_F(DocumentFilesTest, GivesTheBuiltInPresetsAFile)
{
    QFile::remove(path);
    Save(true);
    EXPECT_EQ(path, document.Path());
    const auto categories = document.Root()->ChildCount();
    Open();
    EXPECT_EQ(categories, document.Root()->ChildCount());
}

TEST_F(DocumentFilesTest, TellsWhyItCannotSave)
{
    files.Save(folder.filePath("no/such/folder/x.json"), true);
    Wait();
    EXPECT_EQ(1, failures.count());
    EXPECT_EQ("", document.Path());
}

TEST_F(DocumentFilesTest, TellsThatTheFileWasChangedByAnotherProgram)
{
    QSignalSpy changes(&files, &DocumentFiles::ChangedOnDisk);
    Open();
    Write("{\"name\": \"theirs\"}");
    EXPECT_TRUE(changes.wait(kPatience));
}

TEST_F(DocumentFilesTest, IsNotSurprisedByWhatItSavedItself)
{
    const QSignalSpy changes(&files, &DocumentFiles::ChangedOnDisk);
    Open();
    RenameFirst("two");
    Save();
    QTest::qWait(700);
    EXPECT_EQ(0, changes.count());
}

TEST_F(DocumentFilesTest, LeavesAWriteProtectedFile)
{
    Open();
    RenameFirst("two");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser));
    Save();
    EXPECT_EQ(1, failures.count());
    EXPECT_EQ(kText, Read());
    EXPECT_TRUE(document.IsModified());
}

TEST_F(DocumentFilesTest, HasChangesWaitUntilItIsFree)
{
    Open();
    int changes = 0;
    files.WhenFree([&changes] { ++changes; });
    EXPECT_EQ(1, changes);
    files.Save(path, false);
    files.WhenFree([&changes] { ++changes; });
    EXPECT_EQ(1, changes);
    Wait();
    EXPECT_TRUE(QTest::qWaitFor([&changes] { return changes == 2; }, kPatience));
}

} // namespace
