#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

/// A program that runs with a pipe as its standard output.
class Child
{
public:
    explicit Child(const std::array<const char*, 3>& arguments)
    {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            return;
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        // posix_spawn takes the arguments as it takes those of main, and leaves them alone.
        auto* const* const list = const_cast<char* const*>(arguments.data());
        m_started = ::posix_spawn(&m_process, arguments[0], &actions, nullptr, list, environ) == 0;
        ::posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
        m_output = ends[0];
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child()
    {
        ::close(m_output);
        if (m_started)
            ::waitpid(m_process, nullptr, 0);
    }

    /// False when the program ends without one.
    bool WaitForLine() const
    {
        char letter = 0;
        while (::read(m_output, &letter, 1) == 1)
            if (letter == '\n')
                return true;
        return false;
    }

private:
    bool m_started = false;
    pid_t m_process = 0;
    int m_output = -1;
};

void Start(benchmark::State& state, const std::array<const char*, 3>& arguments, bool printsALine)
{
    using Clock = std::chrono::steady_clock;
    while (state.KeepRunning())
    {
        const auto start = Clock::now();
        const Child child(arguments);
        if (child.WaitForLine() != printsALine)
            state.SkipWithError("the program does not do what it should");
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
}

void StartTree(benchmark::State& state) { Start(state, {VX_TOOL, "tree", nullptr}, true); }
BENCHMARK(StartTree)->UseManualTime();

void StartNothing(benchmark::State& state) { Start(state, {VX_NOTHING, nullptr, nullptr}, false); }
BENCHMARK(StartNothing)->UseManualTime();

} // namespace
