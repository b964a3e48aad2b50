#include "ConversionJob.h"

#include <QMetaObject>
#include <QThread>

#include <exception>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

ConversionEnd EndOf(const Tool::FfmpegCommand& command, const Tool::ConversionTarget& target,
                    const Tool::ConversionWatch& watch)
{
    ConversionEnd end;
    try
    {
        end.result = Tool::Convert(command, target, watch);
        end.kind = end.result.isStopped ? ConversionEnd::Kind::Cancelled : ConversionEnd::Kind::Done;
    }
    catch (const std::exception& exception)
    {
        end.error = exception.what();
    }
    return end;
}

} // namespace

ConversionJob::ConversionJob(QObject* parent) : QObject(parent) {}

ConversionJob::~ConversionJob()
{
    Cancel();
    if (m_thread)
        m_thread->wait();
}

void ConversionJob::Start(const Tool::FfmpegCommand& command, const Tool::ConversionTarget& target)
{
    if (m_thread)
        return;
    m_isCancelled = false;
    const auto watch = [this](const Tool::ConversionProgress& progress)
    {
        QMetaObject::invokeMethod(
            this, [this, progress] { emit Progressed(progress); }, Qt::QueuedConnection);
        return !m_isCancelled;
    };
    const auto run = [this, command, target, watch]
    {
        const auto end = EndOf(command, target, watch);
        QMetaObject::invokeMethod(
            this, [this, end] { Finish(end); }, Qt::QueuedConnection);
    };
    m_thread.reset(QThread::create(run));
    m_thread->start();
}

void ConversionJob::Finish(const ConversionEnd& end)
{
    m_thread->wait();
    m_thread.reset();
    emit Ended(end);
}

} // namespace Vexlor::Studio
