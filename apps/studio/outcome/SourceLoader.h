#pragma once

#include "apps/studio/document/Aside.h"
#include "runtime/mediacodecs/VXMediaFile.h"

#include <QObject>
#include <QString>

#include <functional>
#include <utility>

namespace Vexlor::Studio
{

/// Reads media files beside the thread that shows them. One that is asked for later takes the place of one
/// that is still being read, of which nothing more is heard. Nobody waits for a file that does not answer.
class SourceLoader final : public QObject
{
    Q_OBJECT

public:
    explicit SourceLoader(QObject* parent = nullptr);

    /// Begins to read the file of that path.
    void Load(const QString& path);
    /// Nothing more is heard of the file that was asked for last.
    void GiveUp();
    /// True until the file that was asked for last was told of, or given up.
    bool IsLoading() const { return m_isLoading; }

    /// Reads a file, on a thread of its own, which may outlive everything else.
    using Reader = std::function<VXMediaFile(const QString& path)>;
    /// Has files read by that.
    void SetReader(Reader reader) { m_reader = std::move(reader); }

signals:
    /// The file was read; one that could not be has no parameters, but a reason.
    void Loaded(const QString& path, const Vexlor::VXMediaFile& media);

private:
    void Tell(const QString& path, const AsideResult<VXMediaFile>& result);

    Reader m_reader;
    bool m_isLoading = false;
    AsideWork m_work;
};

} // namespace Vexlor::Studio
