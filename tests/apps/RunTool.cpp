#include "RunTool.h"

#include <array>
#include <cstdlib>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ; // NOLINT(readability-redundant-declaration): not every platform's headers have it

namespace Vexlor::Apps
{

namespace
{

int Checked(int result, const char* what)
{
    if (result < 0)
        throw std::runtime_error(std::string("RunTool: ") + what);
    return result;
}

/// A file descriptor that closes itself.
class Descriptor final
{
public:
    explicit Descriptor(int number = -1) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }

    int Number() const { return m_number; }

private:
    int m_number;
};

/// An open file without a name.
Descriptor TemporaryFile()
{
    std::string path = "/tmp/RunTool-XXXXXX";
    Descriptor file(Checked(::mkostemp(path.data(), O_CLOEXEC), "no temporary file"));
    ::unlink(path.c_str());
    return file;
}

/// Everything up to the end, which a terminal tells by an error once its other side is closed.
std::string ReadAll(const Descriptor& file)
{
    std::string text;
    std::array<char, 4096> buffer{};
    for (;;)
    {
        const auto count = ::read(file.Number(), buffer.data(), buffer.size());
        if (count <= 0)
            return text;
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

std::string ReadFromStart(const Descriptor& file)
{
    ::lseek(file.Number(), 0, SEEK_SET);
    return ReadAll(file);
}

/// Where standard output goes, and where it is read from afterwards.
struct Output
{
    Descriptor written;
    Descriptor read;
};

Output OpenTerminal()
{
    Descriptor read(Checked(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC), "no terminal"));
    std::array<char, 128> name{};
    Checked(::grantpt(read.Number()), "terminal not granted");
    Checked(::unlockpt(read.Number()), "terminal not unlocked");
    Checked(-::ptsname_r(read.Number(), name.data(), name.size()), "terminal without a name");
    Descriptor written(Checked(::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC), "terminal not opened"));
    return {std::move(written), std::move(read)};
}

Output OpenOutput(const ToolSetting& setting)
{
    if (setting.onTerminal)
        return OpenTerminal();
    if (setting.outputFile.empty())
        return {TemporaryFile(), Descriptor()};
    return {
        Descriptor(Checked(::open(setting.outputFile.c_str(), O_WRONLY | O_CLOEXEC), "output not opened")),
        Descriptor()};
}

std::vector<std::string> EnvironmentOf(const ToolSetting& setting)
{
    auto variables = setting.environment;
    for (char** variable = environ; *variable; ++variable)
    {
        const std::string_view text = *variable;
        if (!text.starts_with("TERM=") && !text.starts_with("NO_COLOR="))
            variables.emplace_back(text);
    }
    return variables;
}

std::vector<char*> Pointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

pid_t Spawn(std::vector<std::string> arguments, std::vector<std::string> environment, const Descriptor& out,
            const Descriptor& err)
{
    arguments.insert(arguments.begin(), VX_TOOL);
    posix_spawn_file_actions_t actions{};
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions, out.Number(), STDOUT_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, err.Number(), STDERR_FILENO);
    pid_t child = -1;
    const int error = ::posix_spawn(&child, VX_TOOL, &actions, nullptr, Pointers(arguments).data(),
                                    Pointers(environment).data());
    ::posix_spawn_file_actions_destroy(&actions);
    Checked(-error, "the tool cannot be started");
    return child;
}

int ExitCodeOf(pid_t child)
{
    int status = 0;
    Checked(::waitpid(child, &status, 0), "the tool cannot be waited for");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

ToolRun RunTool(const std::vector<std::string>& arguments, const ToolSetting& setting)
{
    auto output = OpenOutput(setting);
    const auto errors = TemporaryFile();
    const auto child = Spawn(arguments, EnvironmentOf(setting), output.written, errors);
    ToolRun run;
    if (setting.onTerminal)
    {
        output.written = Descriptor();
        run.out = ReadAll(output.read);
    }
    run.exitCode = ExitCodeOf(child);
    if (!setting.onTerminal && setting.outputFile.empty())
        run.out = ReadFromStart(output.written);
    run.err = ReadFromStart(errors);
    return run;
}

} // namespace Vexlor::Apps
