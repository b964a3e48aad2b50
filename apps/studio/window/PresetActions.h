#pragma once

#include "apps/studio/document/Aside.h"
#include "apps/studio/findings/FindingSources.h"

#include <QObject>

class QAction;
class QMenu;
class QWidget;

namespace Vexlor::Studio
{

class BusyLine;
class DocumentFiles;
class FindingsPane;
class MessageBar;
class StudioDocument;

/// Checks of the document and imports into it. Both work beside the window's thread and show what they found.
class PresetActions : public QObject
{
    Q_OBJECT

public:
    PresetActions(StudioDocument& document, DocumentFiles& files, FindingsPane& findings,
                  MessageBar& messages, BusyLine& busy, QWidget* window);

    void AddTo(QMenu& menu) const;
    /// Adds the presets of that file, which another program has written.
    void Import(const QString& path);

    void Check();
    void AskForImport();

signals:
    /// There is something to see in the pane of findings.
    void Found();
    /// These presets are new.
    void Imported(const std::vector<Vexlor::Studio::TreeItem>& presets);

private:
    void TakeImport(const QString& path, const AsideResult<Tool::Import>& result);

    StudioDocument& m_document;
    DocumentFiles& m_files;
    FindingsPane& m_findings;
    MessageBar& m_messages;
    BusyLine& m_busy;
    QWidget* m_window;
    QAction* m_check;
    QAction* m_import;
    AsideWork m_checking;
    AsideWork m_importing;
};

} // namespace Vexlor::Studio
