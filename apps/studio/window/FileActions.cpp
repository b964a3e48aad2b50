#include "FileActions.h"

#include "MessageBar.h"
#include "OwnBitrates.h"
#include "RecentFiles.h"
#include "apps/studio/ShownText.h"
#include "apps/studio/document/StudioDocument.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>

#include <utility>

namespace Vexlor::Studio
{

FileActions::FileActions(StudioDocument& document, const UserSettings& settings, MessageBar& messages,
                         QWidget* window)
    : QObject(window), m_document(document), m_messages(messages), m_window(window), m_files(document),
      m_recent(new RecentFiles(tr("Open &Recent"), "recentDocuments", settings, window)),
      m_new(new QAction(tr("&New from Built-in Presets"), this)), m_open(new QAction(tr("&Open…"), this)),
      m_save(new QAction(tr("&Save"), this)), m_saveAs(new QAction(tr("Save &As…"), this))
{
    m_new->setShortcut(QKeySequence::New);
    m_open->setShortcut(QKeySequence::Open);
    m_save->setShortcut(QKeySequence::Save);
    m_saveAs->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    Connect();
}

void FileActions::Connect()
{
    connect(m_new, &QAction::triggered, this, &FileActions::New);
    connect(m_open, &QAction::triggered, this, &FileActions::AskForDocument);
    connect(m_save, &QAction::triggered, this, &FileActions::Save);
    connect(m_saveAs, &QAction::triggered, this, &FileActions::SaveAs);
    connect(m_recent, &RecentFiles::Chosen, this, &FileActions::Open);
    connect(&m_files, &DocumentFiles::Opened, m_recent, &RecentFiles::Add);
    connect(&m_files, &DocumentFiles::Opened, this, [this] { m_next = nullptr; });
    connect(&m_files, &DocumentFiles::Saved, m_recent, &RecentFiles::Add);
    connect(&m_files, &DocumentFiles::Saved, this, &FileActions::AfterSaving);
    connect(&m_files, &DocumentFiles::SaveRefused, this, &FileActions::TellOfRefusal);
    connect(&m_files, &DocumentFiles::ChangedOnDisk, this, &FileActions::TellOfChange);
    connect(&m_files, &DocumentFiles::Failed, this, &FileActions::TellOfFailure);
}

void FileActions::AddTo(QMenu& menu) const
{
    menu.addActions({m_new, m_open});
    menu.addMenu(m_recent);
    menu.addSeparator();
    menu.addActions({m_save, m_saveAs});
}

void FileActions::New()
{
    WhenNothingIsLost([this] { m_document.SetContent(BuiltInContent(), {}); });
}

void FileActions::AskForDocument()
{
    const auto path = QFileDialog::getOpenFileName(m_window, tr("Open Preset Document"),
                                                   QFileInfo(m_document.Path()).path(),
                                                   tr("Preset documents (*.json);;All files (*)"));
    if (!path.isEmpty())
        Open(path);
}

void FileActions::Open(const QString& path)
{
    WhenNothingIsLost([this, path] { m_files.Open(path); });
}

void FileActions::Save()
{
    if (m_document.Path().isEmpty())
        SaveAs();
    else
        SaveTo(m_document.Path(), false);
}

void FileActions::SaveAs()
{
    const auto path = AskForPath();
    if (path.isEmpty())
        m_next = nullptr;
    else
        SaveTo(path, true); // it was asked for
}

QString FileActions::AskForPath()
{
    const QFileInfo suggestion(m_document.Path().isEmpty() ? tr("presets.json") : m_document.Path());
    QFileDialog dialog(m_window, tr("Save Preset Document"), suggestion.path(),
                       tr("Preset documents (*.json)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // not every one asks with the ending that it adds
    dialog.setDefaultSuffix("json");
    dialog.selectFile(suggestion.fileName());
    while (dialog.exec() == QDialog::Accepted)
        if (auto path = dialog.selectedFiles().value(0); MayReplace(path))
            return path;
    return {};
}

bool FileActions::MayReplace(const QString& path)
{
    return !QFileInfo::exists(path) ||
           QMessageBox::question(
               m_window, tr("Save Preset Document"),
               AsPlainText(tr("\"%1\" is there already. Replace it?").arg(QFileInfo(path).fileName()))) ==
               QMessageBox::Yes;
}

void FileActions::SaveTo(const QString& path, bool overwrites)
{
    m_note = OwnBitrates::NoteOf(m_document);
    m_isSaving = true;
    m_files.Save(path, overwrites);
}

// What is said of a file that cannot be saved as it is.
void FileActions::Tell(const QString& trouble)
{
    m_trouble = trouble;
    m_messages.Say(trouble);
}

void FileActions::AfterSaving()
{
    m_isSaving = false;
    m_messages.TakeBack(m_trouble);
    if (const auto note = std::exchange(m_note, {}); !note.isEmpty())
        m_messages.Say(note);
    if (const auto next = std::exchange(m_next, nullptr))
        next();
}

void FileActions::WhenNothingIsLost(const std::function<void()>& next)
{
    if (!m_document.IsModified())
        return next();
    QMessageBox box(QMessageBox::Question, tr("Unsaved Changes"),
                    tr("Save the changes of \"%1\" first?").arg(m_document.Title()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_window);
    box.setObjectName("unsavedChanges");
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(OwnBitrates::NoteOf(m_document)); // before it is too late
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    if (answer == QMessageBox::Discard)
        return next();
    if (answer != QMessageBox::Save)
        return;
    m_next = next;
    Save();
}

void FileActions::TellOfFailure(const QString& reason)
{
    m_next = nullptr;
    Tell(reason);
    if (std::exchange(m_isSaving, false))
        m_messages.Offer(tr("Save As…"), [this] { SaveAs(); });
}

void FileActions::TellOfRefusal(const QString& path)
{
    m_next = nullptr;
    m_isSaving = false;
    Tell(tr("\"%1\" was not saved: another program has changed it since it was opened.")
             .arg(QFileInfo(path).fileName()));
    m_messages.Offer(tr("Save As…"), [this] { SaveAs(); });
    m_messages.Offer(tr("Overwrite"), [this, path] { SaveTo(path, true); });
}

void FileActions::TellOfChange(const QString& path)
{
    Tell(tr("Another program has changed \"%1\". What is shown here is as it was before.")
             .arg(m_document.Title()));
    m_messages.Offer(tr("Reload"), [this, path] { Open(path); });
}

} // namespace Vexlor::Studio
