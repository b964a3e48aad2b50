#include "PresetActions.h"

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
                             MessageBar& messages, QWidget* window)
    : QObject(window), m_document(document), m_files(files), m_findings(findings), m_messages(messages),
      m_window(window), m_check(new QAction(tr("Chec&k"), this)), m_import(new QAction(tr("&Import…"), this))
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
        if (root != m_document.Root())
            return; // another document is open
        if (!result.value)
            return m_messages.Say(result.error);
        const auto summary = FindingTexts::SummaryOf(*result.value);
        m_findings.Show(summary, FindingTexts::Of(std::move(*result.value), m_document));
        emit Found();
    };
    RunAside<CheckResult>(this, work, done);
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
    RunAside<Tool::Import>(
        this, [file = path.toStdString()] { return Tool::ImportFile(file); },
        [this, path](const auto& result)
        { m_files.WhenFree([this, path, result] { TakeImport(path, result); }); });
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
