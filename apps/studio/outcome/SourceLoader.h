#pragma once

#include "runtime/mediacodecs/VXMediaFile.h"

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <utility>

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
    /// True until the file that was asked for last was told of.
    bool IsLoading() const { return m_told != m_number; }

    /// Reads a file, on a thread of its own; never throws.
    using Reader = std::function<VXMediaFile(const QString& path)>;
    /// Has files read by that.
    void SetReader(Reader reader) { m_reader = std::move(reader); }

signals:
    /// The file was read; one that could not be has no parameters, but a reason.
    void Loaded(const QString& path, const Vexlor::VXMediaFile& media);
    /// The file of that number was read.
    void HasRead(int number, const QString& path, const Vexlor::VXMediaFile& media, QPrivateSignal);

private:
    void Tell(int number, const QString& path, const VXMediaFile& media);
    Reader m_reader;
    int m_number = 0; ///< of the latest that was asked for
    int m_told = 0;   ///< of the latest that was told of
    QThreadPool m_threads;
};

} // namespace Vexlor::Studio
