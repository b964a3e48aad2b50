#include "DocumentFiles.h"

#include "DocumentText.h"
#include "StudioDocument.h"

#include "apps/host/document/DocumentFile.h"

#include <QFileInfo>
#include <QFileSystemWatcher>

#include <utility>

namespace Vexlor::Studio
{

namespace
{

constexpr int kSettlingTime = 300; // milliseconds

} // namespace

DocumentFiles::DocumentFiles(StudioDocument& document, QObject* parent)
    : QObject(parent), m_document(document), m_watcher(new QFileSystemWatcher(this))
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(kSettlingTime);
    connect(&m_settling, &QTimer::timeout, this, &DocumentFiles::LookAtFile);
    connect(m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_settling.start(); });
    connect(&document.Tree(), &PresetTree::Reset, this, &DocumentFiles::Watch);
}

void DocumentFiles::WhenFree(const std::function<void()>& change)
{
    if (!m_isBusy)
        return change();
    // Whoever hears first that nothing is done any more may begin with something else.
    connect(
        this, &DocumentFiles::BusyChanged, this, [this, change] { WhenFree(change); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void DocumentFiles::Open(const QString& path)
{
    Read(
        path, [path = path.toStdString()] { return ReadContent(path); },
        [this, path](DocumentContent content)
        { m_document.SetContent(std::move(content), QFileInfo(path).absoluteFilePath()); },
        [this] { emit Opened(m_document.Path()); });
}

void DocumentFiles::Read(const QString& path, std::function<DocumentContent()> read,
                         std::function<void(DocumentContent content)> take, std::function<void()> tell)
{
    if (m_isBusy)
        return;
    Begin(path, true);
    const auto end = [this, take = std::move(take), tell = std::move(tell)](auto result)
    {
        if (result.value)
            take(std::move(*result.value));
        SetBusy(false);
        if (result.value)
            tell();
        else
            emit Failed(result.error);
    };
    m_work.Start<DocumentContent>(std::move(read), end);
}

void DocumentFiles::GiveUpReading()
{
    if (!m_isReading)
        return;
    m_work.Abandon();
    SetBusy(false);
}

void DocumentFiles::Save(const QString& path, bool overwrites)
{
    if (m_isBusy)
        return;
    Begin(path, false);
    const bool isOwn = path == m_document.Path() && !overwrites;
    const auto work = [plan = m_document.Plan(), basis = m_document.Basis(), file = path.toStdString(),
                       expected = isOwn ? m_document.TextOfFile() : std::string(), isOwn]() -> Written
    {
        auto written = std::make_shared<DocumentBasis>();
        written->text = TextOf(plan, *basis);
        written->plan = plan;
        if (!isOwn)
            WriteAnyway(file, written->text);
        else if (!WriteOver(file, expected, written->text))
            return {};
        return written;
    };
    m_work.Start<Written>(work, [this, path](const auto& result) { TakeSaved(path, result); });
}

void DocumentFiles::TakeSaved(const QString& path, const AsideResult<Written>& result)
{
    if (result.value && *result.value)
        m_document.SetSaved(QFileInfo(path).absoluteFilePath(), *result.value);
    SetBusy(false);
    Watch();
    if (!result.value)
        emit Failed(result.error);
    else if (*result.value)
        emit Saved(m_document.Path());
    else
        emit SaveRefused(path);
}

void DocumentFiles::Begin(const QString& path, bool isReading)
{
    m_file = path;
    m_isReading = isReading;
    SetBusy(true);
}

void DocumentFiles::SetBusy(bool isBusy)
{
    m_isBusy = isBusy;
    m_isReading = m_isReading && isBusy;
    emit BusyChanged(isBusy);
}

// A file that was replaced by another one of its name is no longer watched.
void DocumentFiles::Watch()
{
    if (const auto files = m_watcher->files(); !files.isEmpty())
        m_watcher->removePaths(files);
    if (QFileInfo::exists(m_document.Path()))
        m_watcher->addPath(m_document.Path());
}

void DocumentFiles::LookAtFile()
{
    if (m_isBusy)
        return m_settling.start();
    Watch();
    const auto path = m_document.Path();
    m_look.Start<std::string>([file = path.toStdString()] { return Tool::ReadDocumentText(file); },
                              [this, path](const auto& result)
                              {
                                  const bool isOther =
                                      result.value && *result.value != m_document.TextOfFile();
                                  if (isOther && !m_isBusy && path == m_document.Path())
                                      emit ChangedOnDisk(path);
                              });
}

} // namespace Vexlor::Studio
