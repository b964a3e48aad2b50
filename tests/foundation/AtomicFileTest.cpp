#include "runtime/foundation/VXAtomicFile.h"

#include "tests/foundation/TestFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace Vexlor
{

namespace fs = std::filesystem;

namespace
{

class AtomicFile : public testing::Test
{
protected:
    static std::string Fault(const std::string& path, std::string_view text = "new")
    {
        std::string error = "nothing told";
        EXPECT_FALSE(WriteFileAtomically(path, text, &error));
        return error;
    }

    TestFolder m_folder;
    std::string m_path = WithContent(m_folder / "file", "old content");
};

// While it lives, files of this process end at that size, as on a disk that is full.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{.rlim_cur = size, .rlim_max = m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        static_cast<void>(std::signal(SIGXFSZ, m_signal));
    }

private:
    void (*m_signal)(int);
    rlimit m_before{};
};

} // namespace

TEST_F(AtomicFile, MakesANewFile)
{
    EXPECT_TRUE(WriteFileAtomically(m_folder / "fresh", "text"));
    EXPECT_EQ("text", ContentOf(m_folder / "fresh"));
}

TEST_F(AtomicFile, ReplacesTheContentAndLeavesNothingBeside)
{
    EXPECT_TRUE(WriteFileAtomically(m_path, "new"));
    EXPECT_EQ("new", ContentOf(m_path));
    EXPECT_EQ(1, m_folder.Count());
}

TEST_F(AtomicFile, LeavesTheErrorAloneAfterASuccess)
{
    std::string error = "before";
    EXPECT_TRUE(WriteFileAtomically(m_path, "", &error));
    EXPECT_EQ("before", error);
    EXPECT_EQ("", ContentOf(m_path));
}

TEST_F(AtomicFile, KeepsThePermissions)
{
    const auto permissions = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(m_path, permissions);
    EXPECT_TRUE(WriteFileAtomically(m_path, "new"));
    EXPECT_EQ(permissions, fs::status(m_path).permissions());
}

TEST_F(AtomicFile, WritesThroughALink)
{
    fs::create_symlink("file", m_folder / "link");
    EXPECT_TRUE(WriteFileAtomically(m_folder / "link", "new"));
    EXPECT_TRUE(fs::is_symlink(m_folder / "link"));
    EXPECT_EQ("new", ContentOf(m_path));
}

TEST_F(AtomicFile, KeepsTheOldFileWhenTheDiskIsFull)
{
    const FileSizeLimit limit(1000);
    EXPECT_EQ(m_path + ": File too large", Fault(m_path, std::string(5000, 'x')));
    EXPECT_EQ("old content", ContentOf(m_path));
    EXPECT_EQ(1, m_folder.Count());
}

TEST_F(AtomicFile, GoesAroundALeftoverOfACrash)
{
    WithContent(m_folder / ".vx-0.tmp", "half");
    EXPECT_TRUE(WriteFileAtomically(m_path, "new"));
    EXPECT_EQ("new", ContentOf(m_path));
    EXPECT_EQ("half", ContentOf(m_folder / ".vx-0.tmp"));
}

TEST_F(AtomicFile, AMissingFolderIsAnError)
{
    const auto path = m_folder / "missing/file";
    EXPECT_EQ(path + ": No such file or directory", Fault(path));
}

TEST_F(AtomicFile, ADirectoryIsAnError)
{
    const auto path = m_folder.Path().string();
    EXPECT_EQ(path + ": not a regular file", Fault(path));
}

TEST_F(AtomicFile, ADeviceIsNotReplaced)
{
    EXPECT_EQ("/dev/null: not a regular file", Fault("/dev/null"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(AtomicFile, APathIsNotCutAtANul)
{
    const auto path = m_path + std::string("\0x", 2);
    EXPECT_EQ(path + ": Invalid argument", Fault(path));
    EXPECT_EQ("old content", ContentOf(m_path));
}

TEST_F(AtomicFile, TheErrorMayBeLeftOut) { EXPECT_FALSE(WriteFileAtomically(m_folder / "missing/file", "")); }

} // namespace Vexlor
