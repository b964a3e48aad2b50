#pragma once

#include "apps/studio/texts/ToolText.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <exception>
#include <functional>
#include <memory>
#include <optional>

namespace Vexlor::Studio
{

/// What work beside the window's thread has come to.
template <typename Value>
struct AsideResult
{
    std::optional<Value> value = {}; ///< nothing where it failed
    QString error = {};              ///< why it did
};

/// Does the work on another thread; then done gets its result on the window's thread, unless the owner is
/// gone.
template <typename Value>
void RunAside(QObject* owner, std::function<Value()> work, std::function<void(AsideResult<Value>)> done)
{
    const auto run = [work = std::move(work), done = std::move(done), owner = QPointer(owner)]
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
        const auto answer = [done, owner, result]
        {
            if (owner)
                done(std::move(*result));
        };
        QMetaObject::invokeMethod(QCoreApplication::instance(), answer, Qt::QueuedConnection);
    };
    QThreadPool::globalInstance()->start(run);
}

} // namespace Vexlor::Studio
