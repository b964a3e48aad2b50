#include "PresetActions.h"

#include "BusyLine.h"
#include "MessageBar.h"
#include "apps/host/import/Import.h"
#include "apps/studio/document/DocumentFiles.h"
#include "apps/studio/document/StudioDocument.h"
#include "apps/studio/document/TreeEditor.h"
#include "apps/studio/findings/FindingsPane.h"

#include "IVXFormatNode.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

#include <utility>

namespace Vexlor::Studio
{

PresetActions::PresetActions(StudioDocument& document, DocumentFiles& files, FindingsPane& findings,
                             MessageBar& messages, BusyLine& busy, QWidget* window)
    : QObject(window), m_document(document), m_files(files), m_findings(findings), m_messages(messages),
      m_busy(busy), m_window(window), m_check(new QAction(tr("Chec&k"), this)),
      m_import(new QAction(tr("&Import…"), this))
{
    m_check->setShortcut(Qt::Key_F7);
    m_import->setShortcut(Qt::CTRL | Qt::Key_I);
    connect(m_check, &QAction::triggered, this, &PresetActions::Check);
    connect(m_import, &QAction::triggered, this, &PresetActions::AskForImport);
    connect(&document.Tree(), &PresetTree::Reset, &findings, &FindingsPane::Clear);
}

void PresetActions::AddTo(QMenu& menu) const { menu.addActions({m_check, m_import}); }

void PresetActions::Check()
{
    const auto work = [plan = m_document.Plan(), basis = m_document.Basis()]
    { return CheckPlan(plan, *basis); };
    const auto done = [this, root = m_document.Root()](AsideResult<CheckResult> result)
    {
        m_busy.End(BusyLine::Work::Check);
        if (root != m_document.Root())
            return; // another document is open
        if (!result.value)
            return m_messages.Say(result.error);
        const auto summary = FindingTexts::SummaryOf(*result.value);
        m_findings.Show(summary, FindingTexts::Of(std::move(*result.value), m_document));
        emit Found();
    };
    m_checking.Start<CheckResult>(work, done);
    m_busy.Begin(BusyLine::Work::Check, tr("Checking the document…"), [this] { m_checking.Abandon(); });
}

void PresetActions::AskForImport()
{
    const auto path = QFileDialog::getOpenFileName(
        m_window, tr("Import Presets"), {}, tr("Presets of other programs (*.json *.gep);;All files (*)"));
    if (!path.isEmpty())
        Import(path);
}

void PresetActions::Import(const QString& path)
{
    const auto done = [this, path](const auto& result)
    {
        m_busy.End(BusyLine::Work::Import);
        m_files.WhenFree([this, path, result] { TakeImport(path, result); });
    };
    m_importing.Start<Tool::Import>([file = path.toStdString()] { return Tool::ImportFile(file); }, done);
    m_busy.Begin(BusyLine::Work::Import, tr("Importing \"%1\"…").arg(QFileInfo(path).fileName()),
                 [this] { m_importing.Abandon(); });
}

void PresetActions::TakeImport(const QString& path, const AsideResult<Tool::Import>& result)
{
    if (!result.value)
        return m_messages.Say(result.error);
    const auto& import = *result.value;
    const auto presets = TreeEditor(m_document).AddAll(*import.root, tr("Import"));
    m_findings.Show(FindingTexts::SummaryOf(import, QFileInfo(path).fileName()),
                    FindingTexts::Of(import, presets));
    emit Found();
    emit Imported(presets);
}

} // namespace Vexlor::Studio
