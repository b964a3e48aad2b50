#include "tests/apps/ArtworkFiles.h"
#include "tests/apps/RunTool.h"
#include "tests/foundation/TestFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <future>
#include <iostream>
#include <thread>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Vexlor::Apps
{

namespace
{

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

const auto kOne = Group({{0, Stored(TinyPNG())}});
const auto kLarge = Group({{0, Stored(std::string(20000, 'a'))}, {1, Stored(std::string(20000, 'b'))}});

/// The tool under way, its standard error in a file.
pid_t Start(const Words& arguments, const std::string& errors, rlim_t largestFile, bool diesOfLimit)
{
    Words words = arguments;
    words.insert(words.begin(), VX_TOOL);
    std::vector<char*> pointers(words.size() + 1);
    std::ranges::transform(words, pointers.begin(), [](std::string& word) { return word.data(); });
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    const int file = ::open(errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    ::dup2(file, STDERR_FILENO);
    ::dup2(::open("/dev/null", O_WRONLY), STDOUT_FILENO);
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

struct Change
{
    const char* name;
    Words words;        ///< behind "artwork", FILE in place of the file
    std::string result; ///< what the file holds after it
};

class ArtworkSafety : public testing::TestWithParam<Change>
{
protected:
    Words Arguments() const
    {
        Words words{"artwork"};
        for (auto word : GetParam().words)
        {
            if (word == "FILE")
                word = file;
            if (word == "0:normal=PICTURE")
                word = "0:normal=" + picture;
            words.push_back(word);
        }
        return words;
    }
    int RunLimited(rlim_t largestFile, bool diesOfLimit) const
    {
        return WaitFor(Start(Arguments(), errors, largestFile, diesOfLimit));
    }

    TestFolder folder;
    const std::string before = FileOf({{1, kLarge}, {2, kOne}, {3, kLarge}});
    std::string picture = WithContent(folder / "tiny.png", TinyPNG());
    std::string errors = WithContent(folder / "errors", "");
    std::string file = WithContent(folder / "icons.artwork", before);
};

constexpr rlim_t kStep = 14983;

TEST_P(ArtworkSafety, AFullDiskLeavesTheFileAsItWas)
{
    for (rlim_t limit = 200; limit < GetParam().result.size(); limit += kStep)
    {
        EXPECT_EQ(W_EXITCODE(1, 0), RunLimited(limit, false)) << limit;
        ASSERT_TRUE(Holds(file, before)) << limit;
        EXPECT_EQ(3, folder.Count()) << "something is left over";
    }
    EXPECT_EQ(file + ": not changed: " + (folder / ".icons.artwork.new") + ": File too large\n",
              ContentOf(errors));
}

TEST_P(ArtworkSafety, AProcessThatDiesAtAnyWriteLeavesTheFileAsItWas)
{
    for (rlim_t limit = 200; limit < GetParam().result.size(); limit += kStep)
    {
        EXPECT_TRUE(WIFSIGNALED(RunLimited(limit, true))) << limit;
        ASSERT_TRUE(Holds(file, before)) << limit;
    }
}

TEST_P(ArtworkSafety, TheNextChangeClearsWhatADeadOneLeft)
{
    RunLimited(60000, true);
    EXPECT_EQ(4, folder.Count());
    EXPECT_EQ(0, RunLimited(RLIM_INFINITY, true)) << ContentOf(errors);
    EXPECT_TRUE(Holds(file, GetParam().result));
    EXPECT_EQ(3, folder.Count());
}

TEST_P(ArtworkSafety, KilledAtAnyTimeTheFileIsTheOldOrTheNewOne)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    ASSERT_EQ(0, RunLimited(RLIM_INFINITY, true));
    const auto duration = Clock::now() - start;
    int changed = 0;
    constexpr int kKills = 16;
    for (int kill = 0; kill < kKills; ++kill)
    {
        WithContent(file, before);
        const auto child = Start(Arguments(), errors, RLIM_INFINITY, true);
        std::this_thread::sleep_for(duration * kill * 5 / (4 * kKills));
        ::kill(child, SIGKILL);
        WaitFor(child);
        ASSERT_TRUE(Holds(file, before) || Holds(file, GetParam().result)) << kill;
        changed += Holds(file, before) ? 0 : 1;
    }
    std::cout << "killed " << kKills << " times, " << changed << " of them after the change\n";
}

const std::vector<Change> kChanges = {
    {"Add",
     {"add", "FILE", "4", "--picture", "0:normal=PICTURE"},
     FileOf({{1, kLarge}, {2, kOne}, {3, kLarge}, {4, kOne}})},
    {"Replace",
     {"replace", "FILE", "1", "--picture", "0:normal=PICTURE"},
     FileOf({{1, kOne}, {2, kOne}, {3, kLarge}})},
    {"Remove", {"remove", "FILE", "2"}, FileOf({{1, kLarge}, {3, kLarge}})},
    {"Compact", {"compact", "FILE"}, FileOf({{1, kLarge}, {2, kOne}, {3, kLarge}})},
};
INSTANTIATE_TEST_SUITE_P(Commands, ArtworkSafety, testing::ValuesIn(kChanges),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(ArtworkReplacement, AFolderThatCannotBeWrittenIsNamed)
{
    const auto run = RunTool({"artwork", "compact", "/proc/version"});
    EXPECT_EQ(1, run.exitCode);
    EXPECT_EQ("", run.out);
    EXPECT_THAT(run.err, testing::StartsWith("/proc/version: "));
}

TEST(ArtworkReplacement, ALinkKeepsLeadingToTheFile)
{
    const TestFolder folder;
    const auto file = WithContent(folder / "icons.artwork", FileOf({{1, kOne}, {2, kOne}}));
    fs::create_symlink("icons.artwork", folder / "link");
    RunTool({"artwork", "remove", folder / "link", "1"});
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_TRUE(Holds(file, FileOf({{2, kOne}})));
}

TEST(ArtworkReplacement, PermissionsStay)
{
    const TestFolder folder;
    const auto file = WithContent(folder / "icons.artwork", FileOf({{1, kOne}, {2, kOne}}));
    fs::permissions(file, fs::perms(0640));
    RunTool({"artwork", "remove", file, "1"});
    EXPECT_EQ(fs::perms(0640), fs::status(file).permissions());
}

TEST(ArtworkReplacement, ChangesAtTheSameTimeAreAllKept)
{
    const TestFolder folder;
    const auto file = WithContent(folder / "icons.artwork", "");
    const auto picture = "0:normal=" + WithContent(folder / "tiny.png", TinyPNG());
    std::vector<std::future<ToolRun>> runs;
    for (int face = 1; face <= 6; ++face)
        runs.push_back(std::async(std::launch::async, RunTool,
                                  Words{"artwork", "add", file, std::to_string(face), "--picture", picture},
                                  ToolSetting{}));
    for (auto& run : runs)
        EXPECT_EQ(0, run.get().exitCode);
    EXPECT_EQ(51200 + 6 * kOne.size(), ContentOf(file).size());
}

} // namespace

} // namespace Vexlor::Apps
