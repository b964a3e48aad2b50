#pragma once

#include "apps/studio/document/DocumentFiles.h"

#include <QObject>

#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace Vexlor::Studio
{

class MessageBar;
class RecentFiles;
class StudioDocument;
class UserSettings;

/// The File menu: what is opened, saved and left, and what is asked before something is lost.
class FileActions : public QObject
{
    Q_OBJECT

public:
    FileActions(StudioDocument& document, const UserSettings& settings, MessageBar& messages,
                QWidget* window);

    DocumentFiles& Files() { return m_files; }
    /// Adds the actions of documents to the menu.
    void AddTo(QMenu& menu) const;

    /// Opens the document of that path; asks before changes are lost.
    void Open(const QString& path);
    /// Goes on at once where nothing can be lost; else asks, and goes on after the document was saved or the
    /// user wants to lose the changes.
    void WhenNothingIsLost(const std::function<void()>& next);

    /// What the menu does.
    /// @{
    void New();
    void AskForDocument();
    void Save();
    void SaveAs();
    /// @}

private:
    void Connect();
    QString AskForPath();
    bool MayReplace(const QString& path);
    void SaveTo(const QString& path, bool overwrites);
    void Tell(const QString& trouble);
    void AfterSaving();
    void TellOfFailure(const QString& reason);
    void TellOfRefusal(const QString& path);
    void TellOfChange(const QString& path);

    StudioDocument& m_document;
    MessageBar& m_messages;
    QWidget* m_window;
    DocumentFiles m_files;
    RecentFiles* m_recent;
    QAction* m_new;
    QAction* m_open;
    QAction* m_save;
    QAction* m_saveAs;
    std::function<void()> m_next; // when the document is saved
    QString m_note;               // to be told then
    QString m_trouble;            // that was told last
    bool m_isSaving = false;
};

} // namespace Vexlor::Studio
