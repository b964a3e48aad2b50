#pragma once

#include "Aside.h"
#include "DocumentContent.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QLockFile>
#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace Vexlor::Studio
{

class DocumentFiles;
class StudioDocument;

/// What a program that ended without being asked has left: a document with changes that were not saved.
struct LostDocument
{
    QString path = {};     ///< of its file; empty for one without
    QDateTime saved = {};  ///< when the changes were put by
    QString recovery = {}; ///< the file that they are in
    QString note = {};     ///< what that file does not hold, in words
};

/// Keeps a copy of a document with unsaved changes beside the user's other data, and finds those that were
/// left by a crash. Each program that runs has a copy of its own; it is gone when there is nothing to lose.
class Recovery : public QObject
{
    Q_OBJECT

public:
    explicit Recovery(StudioDocument& document, QObject* parent = nullptr);
    ~Recovery() override;

    /// Where copies are kept.
    static QString Folder();

    /// How long after a change the copy is made, in milliseconds.
    void SetDelay(int milliseconds) { m_timer.setInterval(milliseconds); }
    /// Has copies come with the answer to what they cannot hold, in words; asked whenever one is made.
    void SetNote(std::function<QString()> note) { m_note = std::move(note); }
    /// Begins to make the copy; does nothing where there is nothing to lose.
    void Keep();
    /// Removes the copy.
    void Forget();
    /// Leaves a copy to the next program where there is something to lose still, as when a file is not
    /// written in time.
    void Leave();

    /// The newest copy whose program has gone without removing it.
    static std::optional<LostDocument> FindLost();
    /// Makes that copy the document, and this program's own, as soon as it is read, which those files tell
    /// of. Until then nobody else finds it.
    void Recover(const LostDocument& lost, DocumentFiles& files);
    /// Removes that copy.
    static void Discard(const LostDocument& lost);

signals:
    /// A copy has become the document; what it does not hold, in words.
    void Recovered(const QString& note);
    /// After a copy was made, or could not be made.
    void Kept();
    /// Copies cannot be made for another reason than before; for none any more where it is empty.
    void FailureChanged(const QString& reason);

private:
    void Lock();
    void Schedule();
    void EndKeeping(const QString& failure);
    void TellOf(const QString& failure);
    QString PathOf(const char* ending) const;

    StudioDocument& m_document;
    std::function<QString()> m_note = [] { return QString(); };
    QString m_name;
    std::unique_ptr<QLockFile> m_lock;
    QTimer m_timer;
    QElapsedTimer m_clock;
    bool m_isStale = false;   // the copy lacks changes
    bool m_isKeeping = false; // a copy is being made
    bool m_leaves = false;    // the copy to the next program
    QString m_failure;        // of the last copy
    AsideWork m_work;
};

} // namespace Vexlor::Studio
