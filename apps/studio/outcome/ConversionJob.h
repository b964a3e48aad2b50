#pragma once

#include "apps/host/convert/Conversion.h"

#include <QObject>

#include <atomic>
#include <memory>

class QThread;

namespace Vexlor::Studio
{

/// How a conversion ended.
struct ConversionEnd
{
    /// What became of it.
    enum class Kind : int
    {
        Done,
        Cancelled, ///< nothing is left of it
        Failed,    ///< as above
    };
    Kind kind = Kind::Failed;
    std::string error; ///< why it failed, in the words of whoever knows
    Tool::ConversionResult result;
};

/// One conversion at a time, beside the thread that shows it.
class ConversionJob final : public QObject
{
    Q_OBJECT

public:
    explicit ConversionJob(QObject* parent = nullptr);
    /// Cancels what runs, and waits for it.
    ~ConversionJob() override;

    /// Begins; nothing happens while one runs.
    void Start(const Tool::FfmpegCommand& command, const Tool::ConversionTarget& target);
    /// Has what runs end soon, which Ended tells.
    void Cancel() { m_isCancelled = true; }
    /// Whether that was said of what was started last.
    bool IsCancelled() const { return m_isCancelled; }
    /// From Start until Ended.
    bool IsRunning() const { return m_thread != nullptr; }

signals:
    /// How far it is, some times a second.
    void Progressed(const Vexlor::Tool::ConversionProgress& progress);
    /// Once after each Start.
    void Ended(const Vexlor::Studio::ConversionEnd& end);

private:
    void Finish(const ConversionEnd& end);

    std::atomic<bool> m_isCancelled{false};
    std::unique_ptr<QThread> m_thread;
};

} // namespace Vexlor::Studio
