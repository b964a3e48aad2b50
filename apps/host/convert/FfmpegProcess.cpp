#include "FfmpegProcess.h"

#include "apps/host/Failure.h"
#include "apps/host/Text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Vexlor::Tool
{

namespace
{

constexpr auto* kProgram = "ffmpeg";
constexpr int kPatience = 100;              // milliseconds
constexpr int kGrace = 2000;                // as above
constexpr std::size_t kMostText = 1U << 16; // of what it says, the end is kept

std::string ReasonOf(int error) { return std::generic_category().message(error); }

/// Both ends of a pipe, closed in whatever is started meanwhile.
std::pair<int, int> OpenPipe()
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        throw Failure(std::string(kProgram) + ": " + ReasonOf(errno));
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
    return {ends[0], ends[1]};
}

std::vector<char*> Pointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers(texts.size() + 1); // a null pointer ends them
    std::ranges::transform(texts, pointers.begin(), [](std::string& text) { return text.data(); });
    return pointers;
}

// SVT-AV1 writes to standard error past the program's own log unless it is told not to.
std::vector<std::string> Environment()
{
    std::vector<std::string> variables{"SVT_LOG=1"};
    for (char** variable = environ; *variable; ++variable)
        if (!std::string_view(*variable).starts_with("SVT_LOG="))
            variables.emplace_back(*variable);
    return variables;
}

/// Its files and its signals.
class Surroundings final
{
public:
    Surroundings(int output, int errors)
    {
        posix_spawn_file_actions_init(&m_files);
        posix_spawn_file_actions_addopen(&m_files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&m_files, output, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&m_files, errors, STDERR_FILENO);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_init(&m_attributes);
        posix_spawnattr_setsigmask(&m_attributes, &signals);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE})
            sigaddset(&signals, signal);
        posix_spawnattr_setsigdefault(&m_attributes, &signals);
        posix_spawnattr_setpgroup(&m_attributes, 0);
        posix_spawnattr_setflags(&m_attributes,
                                 POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }
    ~Surroundings()
    {
        posix_spawnattr_destroy(&m_attributes);
        posix_spawn_file_actions_destroy(&m_files);
    }
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;

    const posix_spawn_file_actions_t* Files() const { return &m_files; }
    const posix_spawnattr_t* Attributes() const { return &m_attributes; }

private:
    posix_spawn_file_actions_t m_files{};
    posix_spawnattr_t m_attributes{};
};

void Close(int& file)
{
    if (file >= 0)
        ::close(std::exchange(file, -1));
}

} // namespace

FfmpegProcess::FfmpegProcess(const std::vector<std::string>& arguments)
{
    auto [readOutput, writeOutput] = OpenPipe();
    m_output.file = readOutput;
    auto [readErrors, writeErrors] = OpenPipe();
    m_errors.file = readErrors;
    Spawn(arguments, writeOutput, writeErrors);
    Close(writeOutput);
    Close(writeErrors);
    if (m_process >= 0)
        return;
    Close(m_output.file);
    Close(m_errors.file);
    throw Failure(std::string(kProgram) + ": " +
                  (m_status == ENOENT ? "there is no such program in PATH" : ReasonOf(m_status)));
}

FfmpegProcess::~FfmpegProcess()
{
    if (m_process >= 0)
        Stop();
    Close(m_output.file);
    Close(m_errors.file);
}

void FfmpegProcess::Spawn(const std::vector<std::string>& arguments, int output, int errors)
{
    auto words = arguments;
    words.insert(words.begin(), kProgram);
    auto variables = Environment();
    const Surroundings surroundings(output, errors);
    m_status = ::posix_spawnp(&m_process, kProgram, surroundings.Files(), surroundings.Attributes(),
                              Pointers(words).data(), Pointers(variables).data());
    if (m_status != 0)
        m_process = -1;
}

void FfmpegProcess::Read(Pipe& pipe)
{
    std::array<char, 4096> buffer{};
    while (pipe.file >= 0)
    {
        const auto count = ::read(pipe.file, buffer.data(), buffer.size());
        if (count < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        if (count <= 0)
            return Close(pipe.file);
        pipe.text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

bool FfmpegProcess::Wait()
{
    std::array<pollfd, 2> files{pollfd{m_output.file, POLLIN, 0}, pollfd{m_errors.file, POLLIN, 0}};
    ::poll(files.data(), files.size(), kPatience);
    Read(m_output);
    Read(m_errors);
    if (m_errors.text.size() > kMostText)
        m_errors.text.erase(0, m_errors.text.size() - kMostText);
    return m_output.file >= 0 || m_errors.file >= 0;
}

std::vector<std::string> FfmpegProcess::TakeLines()
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (auto end = m_output.text.find('\n'); end != std::string::npos; end = m_output.text.find('\n', start))
    {
        lines.push_back(m_output.text.substr(start, end - start));
        start = end + 1;
    }
    m_output.text.erase(0, start);
    return lines;
}

std::vector<std::string> FfmpegProcess::Messages() const
{
    constexpr std::size_t kMost = 5;
    std::vector<std::string> messages;
    std::istringstream text(m_errors.text);
    for (std::string line; std::getline(text, line);)
        if (!line.empty())
            messages.push_back(line);
    if (messages.size() > kMost)
        messages.erase(messages.begin(), messages.end() - kMost);
    return messages;
}

bool FfmpegProcess::HasEndedWithin(int milliseconds)
{
    constexpr int kStep = 10;
    for (int waited = 0; waited <= milliseconds; waited += kStep)
    {
        if (::waitpid(m_process, &m_status, WNOHANG) != 0)
            return true;
        Wait(); // what it still says would hold it up
        ::poll(nullptr, 0, kStep);
    }
    return false;
}

void FfmpegProcess::Stop()
{
    ::kill(m_process, SIGTERM);
    if (!HasEndedWithin(kGrace))
    {
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, &m_status, 0);
    }
    m_process = -1;
}

bool FfmpegProcess::Finish()
{
    while (::waitpid(m_process, &m_status, 0) < 0 && errno == EINTR)
    {
    }
    m_process = -1;
    return WIFEXITED(m_status) && WEXITSTATUS(m_status) == 0;
}

std::string FfmpegProcess::Complaint() const
{
    if (WIFSIGNALED(m_status)) // what it said before is not the reason
        return std::string("it was ended by a signal: ") + ::strsignal(WTERMSIG(m_status));
    const auto messages = Messages();
    return messages.empty() ? "it gives no reason" : Joined(messages, "; ");
}

} // namespace Vexlor::Tool
