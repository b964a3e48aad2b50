#include "apps/studio/document/DocumentFiles.h"

#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"
#include "tests/studio/Patience.h"

#include "IVXFormatNode.h"
#include "IVXFormatPreset.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <unistd.h>

namespace
{

using namespace Vexlor;
using namespace Vexlor::Studio;

constexpr auto* kText = "{\n  \"name\": \"Root\",\n  \"formatPresetList\": []\n}\n";
constexpr auto* kTheirs = "{\"name\": \"theirs\"}";

constexpr auto kEverything = QFile::Permissions::fromInt(0x7777);
constexpr auto kNoWriting = QFile::Permissions::fromInt(0x5555);

/// As long as it lives, no file may grow beyond so many bytes: as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        m_isSet = ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        static_cast<void>(std::signal(SIGXFSZ, m_handler));
    }

    bool IsSet() const { return m_isSet; }

private:
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit m_before = {};
    bool m_isSet = false;
};

/// As long as it lives, the program is not that of the system's master, whom nothing is forbidden.
class Anybody
{
public:
    Anybody() : m_isMaster(::geteuid() == 0)
    {
        if (m_isMaster)
            m_isSet = ::seteuid(kNobody) == 0;
    }
    Anybody(const Anybody&) = delete;
    Anybody& operator=(const Anybody&) = delete;
    ~Anybody()
    {
        if (m_isMaster)
            m_isSet = ::seteuid(0) == 0;
    }

    bool IsSet() const { return m_isSet; }

private:
    static constexpr uid_t kNobody = 65534;
    bool m_isMaster;
    bool m_isSet = true;
};

/// A document with a change, and files that are not to be lost when it is saved.
class DocumentSafetyTest : public testing::Test
{
protected:
    DocumentSafetyTest()
    {
        Write(path, kText);
        document.SetContent(ReadContent(path.toStdString()), path);
        TreeEditor(document).AddCategory(document.Root(), "Mine");
    }

    ~DocumentSafetyTest() override { QFile::setPermissions(folder.path(), kEverything); } // so that it may go

    static void Write(const QString& file, const QByteArray& text)
    {
        QFile written(file);
        ASSERT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(text);
    }
    static QByteArray Read(const QString& file)
    {
        QFile read(file);
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    }
    /// Saves, and answers why that failed.
    std::string Save(const QString& file, bool overwrites)
    {
        QString reason;
        const auto context = QObject::connect(&files, &DocumentFiles::Failed, &files,
                                              [&reason](const QString& text) { reason = text; });
        files.Save(file, overwrites);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !files.IsBusy(); }, kPatience));
        QObject::disconnect(context);
        return reason.toStdString();
    }
    /// What is in the folder, hidden or not.
    QStringList Names(const QString& inside = {}) const
    {
        return QDir(folder.filePath(inside))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;
    QString path = folder.filePath("mine.json");
    StudioDocument document;
    DocumentFiles files{document};
    QSignalSpy refusals{&files, &DocumentFiles::SaveRefused};
};

TEST_F(DocumentSafetyTest, NothingReplacesAWriteProtectedFile)
{
    const auto other = folder.filePath("other.json");
    Write(other, kTheirs);
    ASSERT_TRUE(QFile::setPermissions(other, QFile::ReadOwner | QFile::ReadGroup));
    EXPECT_EQ(other.toStdString() + ": is write-protected", Save(other, true));
    EXPECT_EQ(kTheirs, Read(other));
    EXPECT_EQ(path, document.Path());
    EXPECT_TRUE(document.IsModified());
}

TEST_F(DocumentSafetyTest, NothingReplacesAFileThatOnlyOthersMayWrite)
{
    ASSERT_TRUE(QFile::setPermissions(folder.path(), kEverything));
    const auto other = folder.filePath("other.json");
    Write(other, kTheirs);
    const auto others = ::geteuid() == 0 ? QFile::WriteOwner : QFile::WriteOther;
    ASSERT_TRUE(QFile::setPermissions(other, QFile::ReadOwner | QFile::ReadGroup | others));
    const Anybody anybody;
    ASSERT_TRUE(anybody.IsSet());
    EXPECT_EQ(other.toStdString() + ": is write-protected", Save(other, true));
    EXPECT_EQ(kTheirs, Read(other));
}

TEST_F(DocumentSafetyTest, AFolderThatNobodyMayWriteStaysAsItIs)
{
    ASSERT_TRUE(QFile::setPermissions(folder.path(), kNoWriting));
    const Anybody anybody;
    ASSERT_TRUE(anybody.IsSet());
    EXPECT_TRUE(Save(folder.filePath("new.json"), true).ends_with("Permission denied"));
    EXPECT_EQ(QStringList("mine.json"), Names());
    EXPECT_TRUE(document.IsModified());
}

TEST_F(DocumentSafetyTest, AFullDiskTakesNothing)
{
    while (document.Root()->ChildCount() < 50)
        TreeEditor(document).AddCategory(document.Root(), "Mine");
    {
        const FullDisk disk(2048);
        ASSERT_TRUE(disk.IsSet());
        for (const bool overwrites : {false, true})
            EXPECT_TRUE(Save(path, overwrites).ends_with("File too large"));
    }
    EXPECT_EQ(kText, Read(path));
    EXPECT_EQ(QStringList("mine.json"), Names());
    EXPECT_TRUE(document.IsModified());
    EXPECT_EQ("", Save(path, false));
    EXPECT_EQ(50, ReadContent(path.toStdString()).root->ChildCount());
}

TEST_F(DocumentSafetyTest, ALinkStaysOneAndItsFileIsWritten)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir("far"));
    ASSERT_TRUE(QFile::rename(path, folder.filePath("far/true.json")));
    ASSERT_TRUE(QFile::link("far/true.json", path));
    EXPECT_EQ("", Save(path, false));
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_TRUE(ReadContent(folder.filePath("far/true.json").toStdString()).root->FindChild("Mine"));
    EXPECT_EQ(QStringList("true.json"), Names("far"));
}

TEST_F(DocumentSafetyTest, ALinkToAWriteProtectedFileIsProtectedToo)
{
    const auto other = folder.filePath("other.json");
    Write(other, kTheirs);
    ASSERT_TRUE(QFile::setPermissions(other, QFile::ReadOwner));
    const auto link = folder.filePath("link.json");
    ASSERT_TRUE(QFile::link(other, link));
    EXPECT_EQ(link.toStdString() + ": is write-protected", Save(link, true));
    EXPECT_EQ(kTheirs, Read(other));
}

TEST_F(DocumentSafetyTest, ALinkThatLeadsNowhereStaysOne)
{
    const auto link = folder.filePath("link.json");
    ASSERT_TRUE(QFile::link("far/away.json", link));
    EXPECT_EQ(link.toStdString() + ": is a link to a file that is not there", Save(link, true));
    EXPECT_TRUE(QFileInfo(link).isSymLink());
}

TEST_F(DocumentSafetyTest, AFolderOfThatNameStays)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir("other.json"));
    EXPECT_TRUE(Save(folder.filePath("other.json"), true).ends_with("not a regular file"));
    EXPECT_EQ(QStringList({"mine.json", "other.json"}), Names());
}

TEST_F(DocumentSafetyTest, TheRightsOfAFileStay)
{
    const auto rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    ASSERT_TRUE(QFile::setPermissions(path, rights));
    EXPECT_EQ("", Save(path, false));
    EXPECT_EQ(rights, QFile::permissions(path));
}

/// What somebody else has written meanwhile, be it a document or not.
class MeanwhileTest : public DocumentSafetyTest, public testing::WithParamInterface<const char*>
{
};

TEST_P(MeanwhileTest, StaysUntilItIsToBeOverwritten)
{
    Write(path, GetParam());
    EXPECT_EQ("", Save(path, false));
    EXPECT_EQ(1, refusals.count());
    EXPECT_EQ(GetParam(), Read(path));
    EXPECT_EQ("", Save(path, true));
    EXPECT_TRUE(ReadContent(path.toStdString()).root->FindChild("Mine"));
}

INSTANTIATE_TEST_SUITE_P(Texts, MeanwhileTest, testing::Values(kTheirs, "", "[]", "{", "notes"));

} // namespace
