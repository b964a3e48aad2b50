#include "ConversionJob.h"

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

// What is emitted beside the user's thread reaches those who listen in theirs.
void ConversionJob::Start(const Tool::FfmpegCommand& command, const Tool::ConversionTarget& target)
{
    if (m_thread)
        return;
    m_isCancelled = false;
    const auto watch = [this](const Tool::ConversionProgress& progress)
    {
        emit Progressed(progress);
        return !m_isCancelled;
    };
    const auto end = std::make_shared<ConversionEnd>();
    m_thread.reset(QThread::create([command, target, watch, end] { *end = EndOf(command, target, watch); }));
    connect(m_thread.get(), &QThread::finished, this, [this, end] { Finish(*end); });
    m_thread->start();
}

void ConversionJob::Finish(const ConversionEnd& end)
{
    m_thread->wait();
    m_thread.reset();
    emit Ended(end);
}

} // namespace Vexlor::Studio
