#include "tests/media/Ffmpeg.h"

#include "tests/media/MediaMaker.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace Vexlor::Media
{

namespace
{

std::vector<std::string> CommandLine(std::string_view arguments, const std::string& output)
{
    std::vector<std::string> words{"ffmpeg", "-hide_banner", "-nostdin", "-y", "-loglevel", "error"};
    std::istringstream stream{std::string(arguments)};
    for (std::string word; stream >> word;)
        words.push_back(word);
    words.push_back(output);
    return words;
}

// Standard input is empty, both outputs go into the log.
class Redirections final
{
public:
    explicit Redirections(const std::string& log)
    {
        posix_spawn_file_actions_init(&m_actions);
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&m_actions, STDOUT_FILENO, log.c_str(), O_WRONLY | O_CREAT, 0600);
        posix_spawn_file_actions_adddup2(&m_actions, STDOUT_FILENO, STDERR_FILENO);
    }
    ~Redirections() { posix_spawn_file_actions_destroy(&m_actions); }
    Redirections(const Redirections&) = delete;
    Redirections& operator=(const Redirections&) = delete;

    const posix_spawn_file_actions_t* Actions() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

bool Run(std::vector<std::string> words, const std::string& log)
{
    std::vector<char*> arguments(words.size() + 1); // a null pointer ends them
    std::ranges::transform(words, arguments.begin(), [](std::string& word) { return word.data(); });
    const Redirections redirections(log);
    pid_t child = 0;
    if (posix_spawnp(&child, arguments[0], redirections.Actions(), nullptr, arguments.data(), environ) != 0)
        return false;
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

void RunFfmpeg(std::string_view arguments, const std::string& output)
{
    const ScratchFolder scratch;
    const auto log = scratch.Write("log.txt", "");
    if (!Run(CommandLine(arguments, output), log))
        throw std::runtime_error("ffmpeg did not make " + output + ": " + BytesOf(log));
}

} // namespace Vexlor::Media
