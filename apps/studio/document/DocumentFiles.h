#pragma once

#include "Aside.h"
#include "DocumentContent.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <utility>

class QFileSystemWatcher;

namespace Vexlor::Studio
{

class StudioDocument;

/// Opens and saves the document beside the window's thread, and watches its file.
class DocumentFiles : public QObject
{
    Q_OBJECT

public:
    explicit DocumentFiles(StudioDocument& document, QObject* parent = nullptr);

    /// True while a document is being read or written; nothing may be changed then, or opened, or saved.
    bool IsBusy() const { return m_isBusy; }
    /// True while a document is being read, which can be given up.
    bool IsReading() const { return m_isReading; }
    /// The file that is being read or written, or was last.
    const QString& File() const { return m_file; }
    /// Changes the document by that when nothing is read or written, which may be at once.
    void WhenFree(const std::function<void()>& change);

    /// Reads the file of that path, which then is the document.
    void Open(const QString& path);
    /// Has something else read as the document of that path, beside the window's thread, and then taken.
    void Read(const QString& path, std::function<DocumentContent()> read,
              std::function<void(DocumentContent content)> take)
    {
        Read(path, std::move(read), std::move(take), [] {});
    }
    /// Gives up reading a file that does not answer. The document stays as it is.
    void GiveUpReading();
    /// Writes the document to that path. Unless it may overwrite, the document's own file stays as it is
    /// where somebody else has changed it.
    void Save(const QString& path, bool overwrites);

signals:
    void BusyChanged(bool isBusy);
    void Opened(const QString& path);
    void Saved(const QString& path);
    void Failed(const QString& reason);
    /// Nothing was saved, for the file was changed by somebody else.
    void SaveRefused(const QString& path);
    /// The file of the document now holds something else.
    void ChangedOnDisk(const QString& path);

private:
    /// The basis that was written; empty where the file was changed by somebody else.
    using Written = std::shared_ptr<const DocumentBasis>;

    void Begin(const QString& path, bool isReading);
    void SetBusy(bool isBusy);
    void Read(const QString& path, std::function<DocumentContent()> read,
              std::function<void(DocumentContent content)> take, std::function<void()> tell);
    void TakeSaved(const QString& path, const AsideResult<Written>& result);
    void Watch();
    void LookAtFile();

    StudioDocument& m_document;
    QFileSystemWatcher* m_watcher;
    QTimer m_settling; // a file that is being written tells of it many times
    AsideWork m_work;
    AsideWork m_look; // at what another program has written
    QString m_file;
    bool m_isBusy = false;
    bool m_isReading = false;
};

} // namespace Vexlor::Studio
