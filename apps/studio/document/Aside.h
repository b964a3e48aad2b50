#pragma once

#include "apps/studio/texts/ToolText.h"

#include <QCoreApplication>

#include <chrono>
#include <exception>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <utility>

namespace Vexlor::Studio
{

/// What work beside the window's thread has come to.
template <typename Value>
struct AsideResult
{
    std::optional<Value> value = {}; ///< nothing where it failed
    QString error = {};              ///< why it did
};

/// One piece of work at a time beside the window's thread, each on a thread of its own: a file that never
/// answers keeps nobody but the thread that reads it. That is abandoned then, with all that is its own.
class AsideWork
{
public:
    AsideWork() = default;
    AsideWork(const AsideWork&) = delete;
    AsideWork& operator=(const AsideWork&) = delete;
    /// Abandons what is being done.
    ~AsideWork() = default;

    /// Does the work, abandoning what is being done; then done gets its result on the window's thread.
    template <typename Value>
    void Start(std::function<Value()> work, std::function<void(AsideResult<Value>)> done);
    /// Nothing more is heard of what is being done.
    void Abandon() { m_wanted.reset(); }
    /// Waits for what is being done, and for what was abandoned for it.
    void Wait() const;

private:
    static void StartThread(std::function<void()> run);

    std::shared_ptr<const std::shared_future<void>> m_wanted; // by nobody else
};

/// How many pieces of work are being done, the abandoned ones among them.
int AsideCount();
/// Waits so long until none is. Answers whether that is so.
bool AwaitAside(std::chrono::milliseconds most);

template <typename Value>
void AsideWork::Start(std::function<Value()> work, std::function<void(AsideResult<Value>)> done)
{
    auto end = std::make_shared<std::promise<void>>();
    m_wanted = std::make_shared<const std::shared_future<void>>(end->get_future());
    const auto tell = [this, done = std::move(done), wanted = std::weak_ptr(m_wanted)](auto result)
    {
        if (wanted.expired())
            return;
        m_wanted.reset();
        done(std::move(*result));
    };
    StartThread(
        [work = std::move(work), tell, end]
        {
            auto result = std::make_shared<AsideResult<Value>>();
            try
            {
                result->value = work();
            }
            catch (const std::exception& failure)
            {
                result->error = ToolText(failure.what());
            }
            QMetaObject::invokeMethod(
                QCoreApplication::instance(), [tell, result] { tell(result); }, Qt::QueuedConnection);
            end->set_value();
        });
}

} // namespace Vexlor::Studio
