#include "Recovery.h"

#include "DocumentFiles.h"
#include "DocumentText.h"
#include "StudioDocument.h"

#include "apps/host/Failure.h"
#include "apps/host/document/DocumentFile.h"
#include "runtime/foundation/VXAtomicFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUuid>

#include <algorithm>
#include <array>
#include <exception>
#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kDelay = 5000;       // milliseconds
constexpr qint64 kMostNote = 4096; // bytes
constexpr int kRest = 10;          // times as long as a copy takes, until the next one
constexpr auto* kTextEnding = ".json";
constexpr auto* kPathEnding = ".path"; // a file that tells of the document's own file
constexpr auto* kNoteEnding = ".note"; // a file that tells of what the copy lacks
constexpr std::array kEndings{kTextEnding, kPathEnding, kNoteEnding};
constexpr auto* kLockEnding = ".lock";

QString Sibling(const QString& recovery, const char* ending)
{
    const QFileInfo file(recovery);
    return file.path() + '/' + file.completeBaseName() + ending;
}

/// The lock of whoever made the copy or restores it.
std::shared_ptr<QLockFile> LockOf(const QString& recovery)
{
    auto lock = std::make_shared<QLockFile>(Sibling(recovery, kLockEnding));
    lock->setStaleLockTime(0); // only that of a program which has gone is
    return lock;
}

bool IsInUse(const QString& recovery) { return !LockOf(recovery)->tryLock(0); }

/// What is known of the document's own file: the hash of its text as it is expected to be, and its path.
struct Original
{
    QByteArray hash;
    QString path;
};

QByteArray HashOf(const std::string& text)
{
    return QCryptographicHash::hash(QByteArrayView(text), QCryptographicHash::Sha256).toHex();
}

Original OriginalOf(const QString& recovery)
{
    QFile file(Sibling(recovery, kPathEnding));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto hash = file.readLine().trimmed();
    return {hash, QString::fromUtf8(file.readAll())};
}

QString NoteOf(const QString& recovery)
{
    QFile file(Sibling(recovery, kNoteEnding));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(kMostNote)) : QString();
}

std::string TextOfFile(const QString& path)
{
    try
    {
        return path.isEmpty() ? std::string() : Tool::ReadDocumentText(path.toStdString());
    }
    catch (const Tool::Failure&)
    {
        return {}; // it may have gone meanwhile
    }
}

void Write(const std::string& path, const std::string& text)
{
    std::string error;
    if (!WriteFileAtomically(path, text, &error))
        throw Tool::Failure(error);
}

} // namespace

Recovery::Recovery(StudioDocument& document, QObject* parent)
    : QObject(parent), m_document(document), m_name(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    Lock();
    m_timer.setSingleShot(true);
    m_timer.setInterval(kDelay);
    connect(&m_timer, &QTimer::timeout, this, &Recovery::Keep);
    connect(&document, &StudioDocument::StateChanged, this, &Recovery::Schedule);
}

// Whoever ends in order has been asked what is to become of the changes.
Recovery::~Recovery()
{
    m_work.Wait();
    if (!m_leaves || !m_document.IsModified())
        Forget();
}

// A copy that is being made may lack the latest changes.
void Recovery::Leave()
{
    m_leaves = true;
    m_work.Wait();
    m_isKeeping = false;
    Keep();
}

QString Recovery::Folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/recovery";
}

QString Recovery::PathOf(const char* ending) const { return Folder() + '/' + m_name + ending; }

// Anew where somebody has cleared the folder away.
void Recovery::Lock()
{
    if (QFileInfo::exists(PathOf(kLockEnding)))
        return;
    QDir().mkpath(Folder());
    m_lock = std::make_unique<QLockFile>(PathOf(kLockEnding));
    m_lock->setStaleLockTime(0);
    m_lock->tryLock(0);
}

void Recovery::Schedule()
{
    if (!m_document.IsModified())
        return Forget();
    m_isStale = true;
    if (!m_isKeeping && !m_timer.isActive())
        m_timer.start();
}

void Recovery::Keep()
{
    if (!m_document.IsModified() || m_isKeeping)
        return;
    m_timer.stop();
    m_isStale = false;
    m_isKeeping = true;
    m_clock.start();
    Lock();
    const bool isBasis = &m_document.TextOfFile() == &m_document.Basis()->text; // which is not copied
    const auto work = [plan = m_document.Plan(), basis = m_document.Basis(), isBasis,
                       other = isBasis ? std::string() : m_document.TextOfFile(),
                       document = m_document.Path().toStdString(), note = m_note().toStdString(),
                       noteFile = PathOf(kNoteEnding).toStdString(),
                       pathFile = PathOf(kPathEnding).toStdString(),
                       textFile = PathOf(kTextEnding).toStdString()]
    {
        const auto hash = HashOf(isBasis ? basis->text : other).toStdString();
        Write(pathFile, hash + '\n' + document);
        Write(noteFile, note);
        Write(textFile, TextOf(plan, *basis));
        return true;
    };
    m_work.Start<bool>(work, [this](const auto& result) { EndKeeping(result.error); });
}

// While the copy was made the document may have been saved, or changed again. What failed is tried again.
void Recovery::EndKeeping(const QString& failure)
{
    m_isKeeping = false;
    m_isStale |= !failure.isEmpty();
    TellOf(failure.isEmpty() || failure.startsWith(Folder()) ? failure
                                                             : PathOf(kTextEnding) + ": " + failure);
    m_timer.setInterval(std::max(m_timer.interval(), static_cast<int>(m_clock.elapsed()) * kRest));
    emit Kept();
    if (!m_document.IsModified())
        Forget();
    else if (m_isStale)
        m_timer.start();
}

void Recovery::TellOf(const QString& failure)
{
    if (failure == m_failure)
        return;
    m_failure = failure;
    emit FailureChanged(failure);
}

void Recovery::Forget()
{
    m_timer.stop();
    m_isStale = false;
    TellOf({}); // there is nothing to lose
    for (const auto* ending : kEndings)
        QFile::remove(PathOf(ending));
}

std::optional<LostDocument> Recovery::FindLost()
{
    const QDir folder(Folder());
    const auto copies =
        folder.entryInfoList({QString("*") + kTextEnding}, QDir::Files, QDir::Time); // the newest first
    for (const auto& copy : copies)
        if (!IsInUse(copy.filePath()))
            return LostDocument{OriginalOf(copy.filePath()).path, copy.lastModified(), copy.filePath(),
                                NoteOf(copy.filePath())};
    return {};
}

void Recovery::Recover(const LostDocument& lost, DocumentFiles& files)
{
    const auto turn = LockOf(lost.recovery);
    turn->tryLock(0);
    const auto textOfFile = std::make_shared<std::string>();
    const auto read = [lost, textOfFile]
    {
        *textOfFile = TextOfFile(lost.path);
        if (HashOf(*textOfFile) != OriginalOf(lost.recovery).hash)
            textOfFile->clear(); // so that what others have written since is not overwritten unasked
        return ReadContent(lost.recovery.toStdString());
    };
    const auto take = [this, lost, textOfFile, turn](DocumentContent content)
    {
        m_document.SetRecovered(std::move(content), lost.path, std::move(*textOfFile));
        for (const auto* ending : kEndings)
            QFile::rename(Sibling(lost.recovery, ending), PathOf(ending));
        turn->unlock();
        Discard(lost);
        emit Recovered(lost.note);
    };
    files.Read(lost.path.isEmpty() ? lost.recovery : lost.path, read, take);
    const auto end = [turn] { turn->unlock(); }; // whatever has come of it
    connect(&files, &DocumentFiles::BusyChanged, this, end, Qt::SingleShotConnection);
}

void Recovery::Discard(const LostDocument& lost)
{
    for (const auto* ending : kEndings)
        QFile::remove(Sibling(lost.recovery, ending));
    QFile::remove(Sibling(lost.recovery, kLockEnding));
}

} // namespace Vexlor::Studio
