#pragma once

#include "runtime/mediacodecs/VXMediaFile.h"

#include <QObject>
#include <QString>
#include <QThreadPool>

namespace Vexlor::Studio
{

/// Reads media files beside the thread that shows them. One that is asked for later takes the place of one
/// that is still being read, of which nothing more is heard.
class SourceLoader final : public QObject
{
    Q_OBJECT

public:
    explicit SourceLoader(QObject* parent = nullptr);
    /// Waits for what is being read, which the limits of reading bound.
    ~SourceLoader() override;

    /// Begins to read the file of that path.
    void Load(const QString& path);

signals:
    /// The file was read; one that could not be has no parameters, but a reason.
    void Loaded(const QString& path, const Vexlor::VXMediaFile& media);
    /// The file of that number was read.
    void HasRead(int number, const QString& path, const Vexlor::VXMediaFile& media, QPrivateSignal);

private:
    void Tell(int number, const QString& path, const VXMediaFile& media);
    int m_number = 0; ///< of the latest that was asked for
    QThreadPool m_threads;
};

} // namespace Vexlor::Studio
