#include "Aside.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace Vexlor::Studio
{

namespace
{

/// How many threads there are. Each of them has a share of it, for it may outlive everything else.
struct Running
{
    std::mutex mutex;
    std::condition_variable hasEnded;
    int count = 0;
};

const std::shared_ptr<Running>& All()
{
    static const auto s_all = std::make_shared<Running>();
    return s_all;
}

} // namespace

void AsideWork::Wait() const
{
    if (m_wanted)
        m_wanted->wait();
}

void AsideWork::StartThread(std::function<void()> run)
{
    const auto& all = All();
    {
        const std::lock_guard lock(all->mutex);
        ++all->count;
    }
    auto runAndTell = [all, run = std::move(run)]() mutable
    {
        run();
        run = nullptr; // what it holds goes before it is said to have ended
        const std::lock_guard lock(all->mutex);
        --all->count;
        all->hasEnded.notify_all();
    };
    try
    {
        std::thread(runAndTell).detach();
    }
    catch (const std::system_error&) // no thread is to be had
    {
        runAndTell();
    }
}

int AsideCount()
{
    const auto& all = All();
    const std::lock_guard lock(all->mutex);
    return all->count;
}

bool AwaitAside(std::chrono::milliseconds most)
{
    const auto& all = All();
    std::unique_lock lock(all->mutex);
    return all->hasEnded.wait_for(lock, most, [&all] { return all->count == 0; });
}

} // namespace Vexlor::Studio
