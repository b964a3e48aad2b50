#include "StudioWindow.h"

#include "FileActions.h"
#include "PresetActions.h"
#include "RecentFiles.h"
#include "TreeActions.h"
#include "apps/studio/findings/FindingsPane.h"
#include "apps/studio/outcome/OutcomePane.h"
#include "apps/studio/preset/PresetPane.h"
#include "apps/studio/tree/TreePane.h"

#include <QActionGroup>
#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QTreeView>

namespace Vexlor::Studio
{

void StudioWindow::MakeMenus()
{
    MakeFileMenu();
    MakeEditMenu();
    MakePresetMenu();
    MakeViewMenu();
    MakeHelpMenu();
}

void StudioWindow::MakeFileMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&File"));
    m_files->AddTo(menu);
    menu.addSeparator();
    menu.addAction(tr("Open &Media…"), QKeySequence("Ctrl+M"), m_outcome, &OutcomePane::AskForSource);
    menu.addMenu(m_recentMedia);
    menu.addAction(tr("&Convert…"), QKeySequence("Ctrl+Return"), m_outcome, &OutcomePane::AskToConvert);
    menu.addSeparator();
    menu.addAction(tr("&Quit"), QKeySequence("Ctrl+Q"), this, &QWidget::close);
}

void StudioWindow::MakeEditMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&Edit"));
    auto* undo = m_document.Undo().createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    auto* redo = m_document.Undo().createRedoAction(this, tr("R&edo"));
    redo->setShortcuts({QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")});
    menu.addActions({undo, redo});
    menu.addSeparator();
    m_treeActions->AddTo(menu);
    menu.addSeparator();
    menu.addAction(tr("&Find Preset"), QKeySequence(QKeySequence::Find), m_tree, &TreePane::FocusSearch);
}

void StudioWindow::MakePresetMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&Presets"));
    m_treeActions->AddPresetActionsTo(menu);
    menu.addSeparator();
    m_presets->AddTo(menu);
}

void StudioWindow::MakeViewMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&View"));
    AddFocusAction(menu, tr("&Tree"), QKeySequence("Ctrl+1"), &m_tree->View());
    AddFocusAction(menu, tr("&Preset"), QKeySequence("Ctrl+2"), m_preset);
    AddFocusAction(menu, tr("&Outcome"), QKeySequence("Ctrl+3"), m_outcome);
    menu.addSeparator();
    auto* findings = m_findingsDock->toggleViewAction();
    findings->setText(tr("&Findings"));
    findings->setShortcut(QKeySequence("Ctrl+4"));
    menu.addAction(findings);
    menu.addSeparator();
    MakeThemeMenu(menu);
}

// A pane itself takes no keys: the first thing in it that does.
void StudioWindow::AddFocusAction(QMenu& menu, const QString& text, const QKeySequence& shortcut,
                                  QWidget* pane)
{
    menu.addAction(text, shortcut, this,
                   [pane]
                   {
                       auto* widget = pane;
                       const auto* last = pane->previousInFocusChain();
                       while (widget != last && !((widget->focusPolicy() & Qt::TabFocus) &&
                                                  widget->isVisible() && widget->isEnabled()))
                           widget = widget->nextInFocusChain();
                       if (widget == pane || pane->isAncestorOf(widget))
                           widget->setFocus(Qt::ShortcutFocusReason);
                   });
}

void StudioWindow::MakeThemeMenu(QMenu& view)
{
    struct Choice
    {
        Theme theme;
        QString text;
        const char* shortcut;
    };
    auto& menu = *view.addMenu(tr("Co&lours"));
    const auto current = Themes::ThemeOf(UserSettings::Value("window/theme").toString());
    for (const auto& choice :
         {Choice{Theme::System, tr("&System"), "Ctrl+Alt+S"},
          Choice{Theme::Light, tr("&Light"), "Ctrl+Alt+L"}, Choice{Theme::Dark, tr("&Dark"), "Ctrl+Alt+D"}})
    {
        auto* action = m_themeChoices->addAction(menu.addAction(choice.text));
        action->setShortcut(QKeySequence(choice.shortcut));
        action->setCheckable(true);
        action->setChecked(choice.theme == current);
        connect(action, &QAction::triggered, this, [this, theme = choice.theme] { UseTheme(theme); });
    }
}

void StudioWindow::MakeHelpMenu()
{
    auto& menu = *menuBar()->addMenu(tr("&Help"));
    menu.addAction(tr("&About VXPresetStudio"), this, &StudioWindow::ShowAbout);
}

void StudioWindow::ShowAbout()
{
    QMessageBox::about(this, tr("About VXPresetStudio"),
                       tr("<h3>VXPresetStudio %1</h3><p>Shows, picks and edits the output presets of a media "
                          "converter, and shows what a source becomes with them.</p><p>Qt %2</p>")
                           .arg(QApplication::applicationVersion(), qVersion()));
}

} // namespace Vexlor::Studio
