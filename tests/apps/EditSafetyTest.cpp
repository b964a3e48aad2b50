#include "tests/apps/RunTool.h"
#include "tests/foundation/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <future>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Vexlor::Apps
{

namespace
{

using Words = std::vector<std::string>;

/// The tool under way, with nothing to say. Files that it writes end at that size.
pid_t Start(Words words, rlim_t largestFile, bool diesOfLimit)
{
    words.insert(words.begin(), VX_TOOL);
    std::vector<char*> pointers(words.size() + 1);
    std::ranges::transform(words, pointers.begin(), [](std::string& word) { return word.data(); });
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    const int nowhere = ::open("/dev/null", O_WRONLY);
    ::dup2(nowhere, STDOUT_FILENO);
    ::dup2(nowhere, STDERR_FILENO);
    const rlimit limit{largestFile, largestFile};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    if (!diesOfLimit)
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN)); // writes fail instead, as on a full disk
    ::execv(VX_TOOL, pointers.data());
    ::_exit(127);
}

int WaitFor(pid_t child)
{
    int status = 0;
    ::waitpid(child, &status, 0);
    return status;
}

std::string LargeDocument()
{
    std::string text = "{\"formatPresetList\": [";
    for (int i = 0; i < 400; ++i)
        text += (i == 0 ? "\n" : ",\n") + std::string(R"(  {"name": "P)") + std::to_string(i) +
                R"(", "formatName": "MP4", "description": ")" + std::string(200, 'x') + "\"}";
    return text + "\n]}\n";
}

class EditSafety : public testing::Test
{
protected:
    Words Arguments() const { return {"edit", "rename", m_path, "P200", "Renamed"}; }

    const std::string m_before = LargeDocument();
    TestFolder m_folder;
    std::string m_path = WithContent(m_folder / "presets.json", m_before);
};

constexpr rlim_t kStep = 17'011;

TEST_F(EditSafety, AFullDiskLeavesTheDocumentAsItWas)
{
    for (rlim_t limit = 0; limit < m_before.size(); limit += kStep)
    {
        EXPECT_EQ(W_EXITCODE(1, 0), WaitFor(Start(Arguments(), limit, false))) << limit;
        ASSERT_EQ(m_before, ContentOf(m_path)) << limit;
        EXPECT_EQ(1, m_folder.Count()) << "something is left over";
    }
}

TEST_F(EditSafety, AProcessThatDiesAtAnyWriteLeavesTheDocumentAsItWas)
{
    for (rlim_t limit = 0; limit < m_before.size(); limit += kStep)
    {
        EXPECT_TRUE(WIFSIGNALED(WaitFor(Start(Arguments(), limit, true)))) << limit;
        ASSERT_EQ(m_before, ContentOf(m_path)) << limit;
    }
}

TEST_F(EditSafety, KilledAtAnyTimeTheDocumentIsTheOldOrTheNewOne)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    ASSERT_EQ(0, WaitFor(Start(Arguments(), RLIM_INFINITY, true)));
    const auto duration = Clock::now() - start;
    const auto after = ContentOf(m_path);
    ASSERT_NE(m_before, after);
    constexpr int kKills = 16;
    for (int kill = 0; kill < kKills; ++kill)
    {
        WithContent(m_path, m_before);
        const auto child = Start(Arguments(), RLIM_INFINITY, true);
        std::this_thread::sleep_for(duration * kill * 5 / (4 * kKills));
        ::kill(child, SIGKILL);
        WaitFor(child);
        const auto content = ContentOf(m_path);
        ASSERT_TRUE(content == m_before || content == after) << kill;
    }
}

TEST_F(EditSafety, ChangesAtTheSameTimeAreAllKept)
{
    std::vector<std::future<ToolRun>> runs;
    for (int i = 0; i < 6; ++i)
        runs.push_back(
            std::async(std::launch::async, RunTool,
                       Words{"edit", "rename", m_path, "P" + std::to_string(i), "Q" + std::to_string(i)},
                       ToolSetting{}));
    for (auto& run : runs)
        EXPECT_EQ(0, run.get().exitCode);
    for (int i = 0; i < 6; ++i)
        EXPECT_NE(std::string::npos, ContentOf(m_path).find("\"Q" + std::to_string(i) + "\"")) << i;
}

TEST_F(EditSafety, AFolderThatCannotBeWrittenIsNamed)
{
    const auto run = RunTool({"edit", "add", "/proc/presets.json", "A", "--category"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ(0U, run.err.find("/proc/presets.json: not changed: /proc/presets.json: ")) << run.err;
}

TEST_F(EditSafety, ALinkKeepsLeadingToTheDocument)
{
    std::filesystem::create_symlink("presets.json", m_folder / "link");
    EXPECT_EQ(0, RunTool({"edit", "rename", m_folder / "link", "P200", "Renamed"}).exitCode);
    EXPECT_TRUE(std::filesystem::is_symlink(m_folder / "link"));
    EXPECT_NE(std::string::npos, ContentOf(m_path).find("\"Renamed\""));
}

} // namespace

} // namespace Vexlor::Apps
